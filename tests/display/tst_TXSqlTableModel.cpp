#include "TXSqlTableModel.h"

#include "PagedTableHelpers.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QSqlDriver>
#include <QTableView>

#include <limits>
#include <numeric>

using PagedTable::Connection;
using PagedTable::Model;

namespace {

QList<int> range(int first, int last)
{
    QList<int> numbers(last - first + 1);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

/// As a host for a database without LIMIT writes it.
class HostModel : public TXSqlTableModel
{
public:
    HostModel(const Connection &connection, const QString &statement)
        : TXSqlTableModel(nullptr, connection.database())
        , text(statement)
    {
        setTable(QStringLiteral("samples"));
    }

    QString selectStatement() const override { return text; }

private:
    QString text;
};

} // namespace

class TestTXSqlTableModel : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void startsWithoutPaging();
    void pageIsTheRowsFromTheOffsetOn_data();
    void pageIsTheRowsFromTheOffsetOn();
    void filterAndSortingComeBeforeThePage_data();
    void filterAndSortingComeBeforeThePage();
    void numbersCountFromTheNextSelectOn();
    void selectIsOneResetHoweverItEnds_data();
    void selectIsOneResetHoweverItEnds();
    void viewShowsTheWholePage();
    void filterChangedTellsOtherFilters_data();
    void filterChangedTellsOtherFilters();
    void filterCountsWhenItIsTold_data();
    void filterCountsWhenItIsTold();
    void filterSelectsOnceAndOnlyBehindASelect();
    void hostWritesItsOwnStatement_data();
    void hostWritesItsOwnStatement();
    void statementWithoutColumnsEnds();
    void secondStatementIsRefused_data();
    void secondStatementIsRefused();
    void refusalKeepsTheColumnsAndTheWayBack_data();
    void refusalKeepsTheColumnsAndTheWayBack();
    void hostsStatementIsRefusedToo_data();
    void hostsStatementIsRefusedToo();
    void semicolonInALiteralPasses_data();
    void semicolonInALiteralPasses();
    void tableNameRunsNothing_data();
    void tableNameRunsNothing();
    void tableWithASemicolonInItsNameIsRead_data();
    void tableWithASemicolonInItsNameIsRead();
    void commentBehindTheFilterKeepsThePage_data();
    void commentBehindTheFilterKeepsThePage();
    void withoutATableNothingIsSelected();
    void withoutAConnectionNothingIsSelected();
    void closedConnectionFails();
};

void TestTXSqlTableModel::startsWithoutPaging()
{
    const TXSqlTableModel model;

    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.limit, 0U);
    QVERIFY(model.tableName().isEmpty());
}

void TestTXSqlTableModel::pageIsTheRowsFromTheOffsetOn_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<qulonglong>("limit");
    QTest::addColumn<qulonglong>("offset");
    QTest::addColumn<QList<int>>("ids");
    constexpr qulonglong kMost = std::numeric_limits<qulonglong>::max();
    constexpr qulonglong kMostSigned = std::numeric_limits<qlonglong>::max();
    const std::initializer_list<const char *> names = {"SQLite", "MariaDB"};
    for (const char *name : names) {
        const auto row = [name](const char *what) -> QTestData & {
            return QTest::addRow("%s, %s", name, what) << (name[0] == 'M');
        };
        row("no paging") << 0ULL << 0ULL << range(1, 1000);
        row("no paging, offset") << 0ULL << 500ULL << range(1, 1000);
        row("first page") << 100ULL << 0ULL << range(1, 100);
        row("middle page") << 100ULL << 400ULL << range(401, 500);
        row("last page") << 100ULL << 900ULL << range(901, 1000);
        row("part of a page") << 300ULL << 900ULL << range(901, 1000);
        row("within a page") << 10ULL << 5ULL << range(6, 15);
        row("behind the rows") << 100ULL << 1000ULL << QList<int>();
        row("one row") << 1ULL << 999ULL << QList<int>{1000};
        row("255 rows") << 255ULL << 0ULL << range(1, 255);
        row("256 rows") << 256ULL << 0ULL << range(1, 256);
        row("more than two portions of Qt") << 600ULL << 100ULL << range(101, 700);
        row("as many as signed numbers have") << kMostSigned << 990ULL << range(991, 1000);
        row("as many as there are numbers") << kMost << 990ULL << range(991, 1000);
        row("offset of signed numbers") << 100ULL << kMostSigned << QList<int>();
        row("offset above signed numbers") << 100ULL << kMostSigned + 1 << QList<int>();
        row("all at their ends") << kMost << kMost << QList<int>();
    }
}

void TestTXSqlTableModel::pageIsTheRowsFromTheOffsetOn()
{
    QFETCH(qulonglong, limit);
    QFETCH(qulonglong, offset);
    QFETCH(QList<int>, ids);
    const auto connection = connect(1000);
    Model model(*connection, limit, offset);

    QVERIFY2(model.select(), qPrintable(model.lastError().text()));

    QCOMPARE(model.ids(), ids);
    QVERIFY(!model.canFetchMore(QModelIndex()));
    QCOMPARE(model.limit, limit);
    QCOMPARE(model.offset, offset);
}

void TestTXSqlTableModel::filterAndSortingComeBeforeThePage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterAndSortingComeBeforeThePage()
{
    const auto connection = connect(1000);
    Model model(*connection, 3, 3);
    model.setFilter(QStringLiteral("lightness = 7 OR lightness = 8"));
    model.setSort(PagedTable::Id, Qt::DescendingOrder);

    QVERIFY(model.select());
    QCOMPARE(model.ids(), QList<int>({807, 708, 707}));

    model.sort(PagedTable::Id, Qt::AscendingOrder);
    QCOMPARE(model.ids(), QList<int>({108, 207, 208}));
}

void TestTXSqlTableModel::numbersCountFromTheNextSelectOn()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    QVERIFY(model.select());

    model.limit = 2;
    model.offset = 4;
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));

    QVERIFY(model.select());
    QCOMPARE(model.ids(), QList<int>({5, 6}));
}

void TestTXSqlTableModel::selectIsOneResetHoweverItEnds_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::selectIsOneResetHoweverItEnds()
{
    const auto connection = connect(2000);
    Model model(*connection, 1500);
    const QSignalSpy begun(&model, &TXSqlTableModel::modelAboutToBeReset);
    const QSignalSpy ended(&model, &TXSqlTableModel::modelReset);
    const QSignalSpy inserted(&model, &TXSqlTableModel::rowsInserted);
    const QSignalSpy removed(&model, &TXSqlTableModel::rowsRemoved);

    QVERIFY(model.select());
    QCOMPARE(begun.count(), 1);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(model.rowCount(), 1500);

    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(begun.count(), 2);
    QCOMPARE(ended.count(), 2);
    QCOMPARE(model.rowCount(), 0);

    model.setTable(QStringLiteral("there is none"));
    QVERIFY(!model.select());
    QCOMPARE(begun.count(), ended.count());
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(removed.count(), 0);
}

void TestTXSqlTableModel::viewShowsTheWholePage()
{
    const auto connection = connect(2000, false);
    Model model(*connection, 700);
    QTableView view;
    view.setModel(&model);
    view.show();

    QVERIFY(model.select());
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 699);

    model.offset = 1900;
    QVERIFY(model.select());
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 99);
    QCOMPARE(view.verticalHeader()->count(), 100);
}

void TestTXSqlTableModel::filterChangedTellsOtherFilters_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterChangedTellsOtherFilters()
{
    const auto connection = connect(10);
    Model model(*connection, 3);
    const QSignalSpy spy(&model, SIGNAL(filterChanged(QString)));

    model.setFilter(QString());
    QCOMPARE(spy.count(), 0);

    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).toString(), QStringLiteral("id > 5"));

    QVERIFY(model.select());
    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(spy.count(), 1);

    model.setFilter(QString());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.last().at(0).toString(), QString());
}

void TestTXSqlTableModel::filterCountsWhenItIsTold_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterCountsWhenItIsTold()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 1);
    QVERIFY(model.select());
    QString seenFilter;
    QList<int> seenIds;
    QObject::connect(&model, &TXSqlTableModel::filterChanged, &model, [&] {
        seenFilter = model.filter();
        seenIds = model.ids();
    });

    model.setFilter(QStringLiteral("id > 5"));

    QCOMPARE(seenFilter, QStringLiteral("id > 5"));
    QCOMPARE(seenIds, QList<int>({7, 8, 9}));
    QCOMPARE(model.offset, 1U);
}

void TestTXSqlTableModel::filterSelectsOnceAndOnlyBehindASelect()
{
    const auto connection = connect(10, true);
    Model model(*connection, 3);
    forgetStatements();

    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(statements("SELECT"), 0);
    QCOMPARE(model.rowCount(), 0);

    QVERIFY(model.select());
    QCOMPARE(statements("SELECT"), 1);
    model.setFilter(QStringLiteral("id > 6"));
    QCOMPARE(statements("SELECT"), 2);
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
}

void TestTXSqlTableModel::hostWritesItsOwnStatement_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::hostWritesItsOwnStatement()
{
    const auto connection = connect(10);
    HostModel model(*connection,
                    QStringLiteral("SELECT id, name, lightness FROM samples "
                                   "WHERE id BETWEEN 4 AND 5"));
    model.limit = 1;

    QVERIFY(model.select());
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(0, PagedTable::Id).data().toInt(), 4);
}

// Qt's model of such a statement says for ever that there is more.
void TestTXSqlTableModel::statementWithoutColumnsEnds()
{
    const auto connection = connect(10, false);
    HostModel model(*connection, QStringLiteral("UPDATE samples SET lightness = 0"));

    (void)model.select();

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
}

void TestTXSqlTableModel::secondStatementIsRefused_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::secondStatementIsRefused()
{
    const auto connection = connect(10);
    Model model(*connection);
    const QSignalSpy ended(&model, &TXSqlTableModel::modelReset);
    const QString filter = QStringLiteral("1 = 1; DELETE FROM samples");

    model.setFilter(filter);
    QVERIFY(!model.select());

    QVERIFY2(model.lastError().text().contains(connection->isMariaDb()
                                                   ? QStringLiteral("near 'DELETE FROM samples'")
                                                   : QStringLiteral("multiple statements")),
             qPrintable(model.lastError().text()));
    QCOMPARE(model.lastError().type(), QSqlError::StatementError);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(connection->count(), 10);

    model.limit = 3;
    QVERIFY(!model.select());
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModel::refusalKeepsTheColumnsAndTheWayBack_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::refusalKeepsTheColumnsAndTheWayBack()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(0, PagedTable::Name), QStringLiteral("changed")));
    QVERIFY(model.insertRow(1));

    model.setFilter(QStringLiteral("1 = 1; DROP TABLE samples"));
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 3);
    QVERIFY(!model.isDirty());
    QVERIFY(model.lastError().isValid());

    model.setFilter(QString());
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));
    QVERIFY(!model.lastError().isValid());
}

void TestTXSqlTableModel::hostsStatementIsRefusedToo_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::hostsStatementIsRefusedToo()
{
    const auto connection = connect(10);
    HostModel model(*connection,
                    QStringLiteral("SELECT * FROM samples WHERE id > 5; DELETE FROM samples"));

    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModel::semicolonInALiteralPasses_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::semicolonInALiteralPasses()
{
    const auto connection = connect(10);
    connection->run(
        QStringLiteral("UPDATE samples SET name = 'a; DELETE :x ? it''s' WHERE id = 7"));
    Model model(*connection, 3);

    model.setFilter(QStringLiteral("name = 'a; DELETE :x ? it''s'"));
    QVERIFY2(model.select(), qPrintable(model.lastError().text()));

    QCOMPARE(model.ids(), QList<int>{7});
}

void TestTXSqlTableModel::tableNameRunsNothing_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<QString>("table");
    const QStringList names = {QStringLiteral("samples; DELETE FROM samples"),
                               QStringLiteral("samples`; DELETE FROM samples; -- "),
                               QStringLiteral("`samples`; DELETE FROM samples; -- `"),
                               QStringLiteral("samples\"; DELETE FROM samples; -- "),
                               QStringLiteral("\"samples\"; DELETE FROM samples; --\""),
                               QStringLiteral("'; DELETE FROM samples; -- '"),
                               QStringLiteral(";"),
                               QStringLiteral("(SELECT 1) x; DELETE FROM samples")};
    for (const QString &name : names) {
        QTest::addRow("SQLite, %s", qPrintable(name)) << false << name;
        QTest::addRow("MariaDB, %s", qPrintable(name)) << true << name;
    }
}

void TestTXSqlTableModel::tableNameRunsNothing()
{
    QFETCH(QString, table);
    const auto connection = connect(10);
    TXSqlTableModel model(nullptr, connection->database());

    model.setTable(table);
    QVERIFY(model.lastError().isValid());

    QVERIFY(!model.select());
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModel::tableWithASemicolonInItsNameIsRead_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::tableWithASemicolonInItsNameIsRead()
{
    const auto connection = connect(10);
    const QString name = QStringLiteral("a; b");
    const QString quoted =
        connection->database().driver()->escapeIdentifier(name, QSqlDriver::TableName);
    connection->run(QStringLiteral("CREATE TABLE %1 AS SELECT * FROM samples").arg(quoted));
    TXSqlTableModel model(nullptr, connection->database());
    model.limit = 4;

    model.setTable(name);
    QVERIFY2(model.select(), qPrintable(model.lastError().text()));
    QCOMPARE(model.rowCount(), 4);

    connection->run(QStringLiteral("DROP TABLE ") + quoted);
}

void TestTXSqlTableModel::commentBehindTheFilterKeepsThePage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::commentBehindTheFilterKeepsThePage()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 1);

    model.setFilter(QStringLiteral("id > 4 -- the light ones; all of them"));
    QVERIFY(model.select());

    QCOMPARE(model.ids(), QList<int>({6, 7, 8}));
}

void TestTXSqlTableModel::withoutATableNothingIsSelected()
{
    const auto connection = connect(10, false);
    TXSqlTableModel model(nullptr, connection->database());
    model.limit = 3;

    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(model.rowCount(), 0);
}

void TestTXSqlTableModel::withoutAConnectionNothingIsSelected()
{
    TXSqlTableModel model;
    model.limit = 3;
    model.setTable(QStringLiteral("samples; DELETE FROM samples"));
    model.setFilter(QStringLiteral("1 = 1; DELETE FROM samples"));

    QVERIFY(!model.select());
    QCOMPARE(model.rowCount(), 0);
}

void TestTXSqlTableModel::closedConnectionFails()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    QVERIFY(model.select());
    connection->database().close();

    QTest::ignoreMessage(QtWarningMsg, "QSqlQuery::exec: database not open");
    QVERIFY(!model.select());
    QCOMPARE(model.rowCount(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSqlTableModel>(argc, argv);
}

#include "tst_TXSqlTableModel.moc"
