#include "PagedTableHelpers.h"
#include "TXSqlTableModel.h"

#include <QSignalSpy>

using PagedTable::Model;

// What a host does with a page that the user edits.
class TestTXSqlTableModelEditing : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void changedFieldOnALatePageShowsWhatIsStored_data();
    void changedFieldOnALatePageShowsWhatIsStored();
    void submittedRowKeepsItsPlace_data();
    void submittedRowKeepsItsPlace();
    void rowIsSelectedByItsKey_data();
    void rowIsSelectedByItsKey();
    void insertedRowIsStored_data();
    void insertedRowIsStored();
    void removedRowGoesAndTheNextMovesUp_data();
    void removedRowGoesAndTheNextMovesUp();
    void filterDoesNotReachOtherRows_data();
    void filterDoesNotReachOtherRows();
    void revertedChangesLeaveThePage_data();
    void revertedChangesLeaveThePage();
    void turnedPageDropsWhatWasNotSubmitted();
};

void TestTXSqlTableModelEditing::changedFieldOnALatePageShowsWhatIsStored_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::changedFieldOnALatePageShowsWhatIsStored()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnFieldChange);
    QVERIFY(model.select());
    const QModelIndex name = model.index(1, PagedTable::Name);
    QCOMPARE(name.data().toString(), QStringLiteral("8"));

    QVERIFY2(model.setData(name, QStringLiteral("it's; 100 %")),
             qPrintable(model.lastError().text()));

    QCOMPARE(name.data().toString(), QStringLiteral("it's; 100 %"));
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
    QCOMPARE(connection->value(QStringLiteral("SELECT name FROM samples WHERE id = 8")).toString(),
             QStringLiteral("it's; 100 %"));
}

void TestTXSqlTableModelEditing::submittedRowKeepsItsPlace_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::submittedRowKeepsItsPlace()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnRowChange);
    model.setSort(PagedTable::Id, Qt::DescendingOrder);
    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(2, PagedTable::Lightness), 55));

    QVERIFY(model.submit());

    QVERIFY(!model.isDirty());
    QCOMPARE(model.ids(), QList<int>({4, 3, 2}));
    QCOMPARE(model.index(2, PagedTable::Lightness).data().toInt(), 55);
}

void TestTXSqlTableModelEditing::rowIsSelectedByItsKey_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::rowIsSelectedByItsKey()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setFilter(QStringLiteral("lightness < 9"));
    QVERIFY(model.select());
    QCOMPARE(model.ids(), QList<int>({7, 8}));
    connection->run(QStringLiteral("UPDATE samples SET lightness = 99 WHERE id = 8"));

    QVERIFY(model.selectRow(1));
    QCOMPARE(model.index(1, PagedTable::Lightness).data().toInt(), 99);
    QCOMPARE(model.filter(), QStringLiteral("lightness < 9"));

    QVERIFY(!model.selectRow(2));
    QVERIFY(!model.selectRow(-1));
    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!model.selectRow(1));
    QCOMPARE(model.limit, 3U);
    QCOMPARE(model.offset, 6U);
}

void TestTXSqlTableModelEditing::insertedRowIsStored_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::insertedRowIsStored()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());

    QVERIFY(model.insertRow(1));
    QVERIFY(model.setData(model.index(1, PagedTable::Id), 0));
    QVERIFY(model.setData(model.index(1, PagedTable::Name), QStringLiteral("new")));
    QVERIFY2(model.submitAll(), qPrintable(model.lastError().text()));

    QCOMPARE(connection->count(), 11);
    // The new row stands on the first page; the others moved on by one.
    QCOMPARE(model.ids(), QList<int>({6, 7, 8}));
}

void TestTXSqlTableModelEditing::removedRowGoesAndTheNextMovesUp_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::removedRowGoesAndTheNextMovesUp()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());

    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(connection->count(), 10);
    QVERIFY(model.submitAll());

    QCOMPARE(connection->count(), 8);
    QCOMPARE(model.ids(), QList<int>({9, 10}));
}

void TestTXSqlTableModelEditing::filterDoesNotReachOtherRows_data()
{
    PagedTable::addDatabases();
}

// Rows are changed and deleted by their keys alone.
void TestTXSqlTableModelEditing::filterDoesNotReachOtherRows()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    model.setFilter(QStringLiteral("id > 0 OR 1 = 1"));
    QVERIFY(model.select());

    QVERIFY(model.setData(model.index(0, PagedTable::Lightness), 77));
    QVERIFY(model.removeRow(1));
    QVERIFY(model.submitAll());

    QCOMPARE(connection->count(), 9);
    QCOMPARE(connection->value(QStringLiteral("SELECT SUM(id) FROM samples WHERE lightness = 77"))
                 .toInt(),
             4);
    QCOMPARE(model.ids(), QList<int>({4, 6, 7}));
}

void TestTXSqlTableModelEditing::revertedChangesLeaveThePage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelEditing::revertedChangesLeaveThePage()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(0, PagedTable::Name), QStringLiteral("other")));
    QVERIFY(model.insertRow(3));
    QVERIFY(model.removeRow(1));

    model.revertAll();

    QVERIFY(!model.isDirty());
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
    QCOMPARE(model.index(0, PagedTable::Name).data().toString(), QStringLiteral("7"));
}

void TestTXSqlTableModelEditing::turnedPageDropsWhatWasNotSubmitted()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3, 6);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(0, PagedTable::Name), QStringLiteral("other")));

    model.offset = 0;
    QVERIFY(model.select());

    QVERIFY(!model.isDirty());
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));
    QVERIFY(model.submitAll());
    QCOMPARE(connection->value(QStringLiteral("SELECT name FROM samples WHERE id = 7")).toString(),
             QStringLiteral("7"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXSqlTableModelEditing>(argc, argv);
}

#include "tst_TXSqlTableModelEditing.moc"
