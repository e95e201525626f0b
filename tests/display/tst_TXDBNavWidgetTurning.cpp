#include "TXDBNavWidget.h"

#include "NavigatorHelpers.h"

#include <limits>

using PagedTable::Model;
using PagedTable::Navigator;

class TestTXDBNavWidgetTurning : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void turnedPageSelects_data();
    void turnedPageSelects();
    void typedDigitTurnsThePageAtOnce();
    void arrowsTurnThePageAtOnce();
    void refreshAndPageTurnCostTheirStatements();
    void largePageIsNotCountedByPortions_data();
    void largePageIsNotCountedByPortions();
    void shrunkTableShowsItsLastPage_data();
    void shrunkTableShowsItsLastPage();
    void rowsRemovedOnALatePage_data();
    void rowsRemovedOnALatePage();
    void oldMaximumHoldsWhileThePageIsSet();
    void severalPagesIsToldAtEveryRefresh();
    void updateStopsAtTheRowsOfTheLastRefresh();
    void insertedAndRevertedRowsRefresh();
    void otherFilterKeepsTheOffset_data();
    void otherFilterKeepsTheOffset();
    void otherFilterCostsOneCount();
};

void TestTXDBNavWidgetTurning::turnedPageSelects_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetTurning::turnedPageSelects()
{
    const auto connection = connect(130);
    Model model(*connection, 50);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());

    navigator.spinBox()->setValue(3);
    QCOMPARE(model.offset, 100U);
    QCOMPARE(navigator.offset(), 100U);
    QCOMPARE(model.rowCount(), 30);
    QCOMPARE(model.index(0, PagedTable::Id).data().toInt(), 101);

    navigator.spinBox()->setValue(2);
    QCOMPARE(model.offset, 50U);
    QCOMPARE(model.index(49, PagedTable::Id).data().toInt(), 100);

    // Turning a page is no refresh.
    QCOMPARE(navigator.told().size(), 1);
}

void TestTXDBNavWidgetTurning::typedDigitTurnsThePageAtOnce()
{
    const auto connection = connect(2000, false);
    Model model(*connection, 1);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.show();
    QVERIFY(QTest::qWaitForWindowExposed(&navigator));
    navigator.spinBox()->setFocus();
    navigator.spinBox()->selectAll();

    QTest::keyClick(navigator.spinBox(), Qt::Key_7);
    QCOMPARE(model.offset, 6U);
    QCOMPARE(model.ids(), QList<int>({7}));

    QTest::keyClick(navigator.spinBox(), Qt::Key_3);
    QCOMPARE(model.ids(), QList<int>({73}));
    QCOMPARE(navigator.text(), QStringLiteral("73/2000"));

    QTest::keyClick(navigator.spinBox(), Qt::Key_Return);
    QCOMPARE(model.ids(), QList<int>({73}));
}

void TestTXDBNavWidgetTurning::arrowsTurnThePageAtOnce()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);

    QTest::keyClick(navigator.spinBox(), Qt::Key_Up);
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));

    QTest::keyClick(navigator.spinBox(), Qt::Key_PageUp);
    QCOMPARE(model.ids(), QList<int>({10}));

    QTest::keyClick(navigator.spinBox(), Qt::Key_Down);
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
}

void TestTXDBNavWidgetTurning::refreshAndPageTurnCostTheirStatements()
{
    const auto connection = connect(1000, true);
    Model model(*connection, 300);
    Navigator navigator;
    forgetStatements();

    navigator.setModel(&model);
    QCOMPARE(statements(PagedTable::kCount), 1);
    QCOMPARE(statements(PagedTable::kSelect), 0);

    navigator.refresh();
    QCOMPARE(statements(PagedTable::kCount), 2);

    navigator.spinBox()->setValue(3);
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 1);

    QVERIFY(navigator.select());
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 2);
    QCOMPARE(statements(""), 4);
}

void TestTXDBNavWidgetTurning::largePageIsNotCountedByPortions_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetTurning::largePageIsNotCountedByPortions()
{
    const auto connection = connect(3000);
    Model model(*connection, 2000);
    Navigator navigator;
    navigator.setModel(&model);
    forgetStatements();

    QVERIFY(navigator.select());
    navigator.spinBox()->setValue(2);
    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!navigator.select());

    QCOMPARE(navigator.told().size(), 1);
    QCOMPARE(connection->isMariaDb() ? statements(PagedTable::kCount) : 0, 0);
}

void TestTXDBNavWidgetTurning::shrunkTableShowsItsLastPage_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetTurning::shrunkTableShowsItsLastPage()
{
    const auto connection = connect(450);
    Model model(*connection, 100);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(5);
    QCOMPARE(model.rowCount(), 50);
    connection->run(QStringLiteral("DELETE FROM samples WHERE id > 150"));

    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(navigator.spinBox()->maximum(), 2);
    QCOMPARE(model.offset, 100U);
    QCOMPARE(model.rowCount(), 50);
    QCOMPARE(model.index(49, PagedTable::Id).data().toInt(), 150);

    connection->run(QStringLiteral("DELETE FROM samples"));
    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(navigator.told(), QList<bool>({true, true, false}));
}

void TestTXDBNavWidgetTurning::rowsRemovedOnALatePage_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetTurning::rowsRemovedOnALatePage()
{
    const auto connection = connect(7);
    Model model(*connection, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    QCOMPARE(model.ids(), QList<int>({7}));

    QVERIFY(model.removeRow(0));
    QVERIFY(model.submitAll());
    QCOMPARE(model.rowCount(), 0);
    // The model tells of nothing that happens in the database.
    QCOMPARE(navigator.text(), QStringLiteral("3/3"));

    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));
}

// The value is set before the maximum: a table that has grown takes two refreshes.
void TestTXDBNavWidgetTurning::oldMaximumHoldsWhileThePageIsSet()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));

    navigator.setLimit(2);
    navigator.setOffset(8);
    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("2/5"));
    QCOMPARE(model.offset, 2U);
    QCOMPARE(model.ids(), QList<int>({3, 4}));
}

void TestTXDBNavWidgetTurning::severalPagesIsToldAtEveryRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);

    navigator.refresh();
    navigator.refresh();
    navigator.setLimit(10);
    navigator.refresh();
    navigator.refresh();

    QCOMPARE(navigator.told(), QList<bool>({true, true, true, false, false}));
}

void TestTXDBNavWidgetTurning::updateStopsAtTheRowsOfTheLastRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 2);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(4);
    QCOMPARE(model.offset, 6U);
    navigator.setLimit(5);

    navigator.update();
    QCOMPARE(model.offset, 10U);
    QCOMPARE(model.rowCount(), 0);

    navigator.setLimit(std::numeric_limits<qulonglong>::max() / 3 + 1);
    navigator.update();
    QCOMPARE(model.offset, 10U);

    navigator.setLimit(0);
    navigator.update();
    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.rowCount(), 10);
}

void TestTXDBNavWidgetTurning::insertedAndRevertedRowsRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    connection->run(QStringLiteral("INSERT INTO samples VALUES (11, 'x', 0)"));

    QVERIFY(model.insertRow(0));
    QCOMPARE(navigator.text(), QStringLiteral("1/3"));
    QCOMPARE(navigator.told().size(), 2);

    connection->run(QStringLiteral("DELETE FROM samples WHERE id = 11"));
    model.revertAll();
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));
    QCOMPARE(navigator.told().size(), 3);
    QCOMPARE(model.ids(), QList<int>({1, 2, 3, 4, 5}));
}

void TestTXDBNavWidgetTurning::otherFilterKeepsTheOffset_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetTurning::otherFilterKeepsTheOffset()
{
    const auto connection = connect(30);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    QCOMPARE(model.offset, 10U);

    model.setFilter(QStringLiteral("id > 10"));
    QCOMPARE(model.offset, 10U);
    QCOMPARE(navigator.text(), QStringLiteral("3/4"));
    QCOMPARE(model.ids(), QList<int>({21, 22, 23, 24, 25}));

    model.setFilter(QStringLiteral("id > 23"));
    QCOMPARE(model.offset, 5U);
    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(model.ids(), QList<int>({29, 30}));

    model.setFilter(QStringLiteral("id > 100"));
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(model.offset, 0U);

    model.setFilter(QString());
    QCOMPARE(navigator.text(), QStringLiteral("1/6"));
    QCOMPARE(model.ids(), QList<int>({1, 2, 3, 4, 5}));
    QCOMPARE(navigator.told(), QList<bool>({true, true, true, false, true}));
}

void TestTXDBNavWidgetTurning::otherFilterCostsOneCount()
{
    const auto connection = connect(30, true);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    forgetStatements();

    model.setFilter(QStringLiteral("id > 10"));
    QCOMPARE(statements(PagedTable::kCount), 1);
    QCOMPARE(statements(PagedTable::kSelect), 1);

    // The page is another one now, and selected again.
    model.setFilter(QStringLiteral("id > 23"));
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 3);
    QCOMPARE(statements(""), 5);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDBNavWidgetTurning>(argc, argv);
}

#include "tst_TXDBNavWidgetTurning.moc"
