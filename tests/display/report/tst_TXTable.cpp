#include "TXTable.h"

#include "TableTestHelpers.h"
#include "TestBase.h"

#include <limits>

using TableTest::cell;
using TableTest::cellAt;
using TableTest::describe;
using TableTest::hasShadow;
using TableTest::rowOfHeight;
using TableTest::settings;
using TableTest::tableOf;
using TableTest::texts;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

/// Construction, measures and copies.
class TestTXTable : public TestBase
{
    Q_OBJECT

private slots:
    void aNewTableHasColumnsOfThirtyPointsAndNoRows();
    void withoutColumnsThereIsNoWidth_data();
    void withoutColumnsThereIsNoWidth();
    void aColumnsWidthIsSetWidthFirst();
    void aColumnOutsideTheTableIsIgnored_data();
    void aColumnOutsideTheTableIsIgnored();
    void senselessWidthsAreKeptAsGiven_data();
    void senselessWidthsAreKeptAsGiven();
    void moreColumnsThanMemoryTakesAreHarmless();
    void theFirstCellDecidesTheRowsHeight();
    void aRowWithoutCellsIsTwentyPointsHigh();
    void aRowOutsideTheTableIsTwentyPointsHigh();
    void theTablesHeightAddsAllRowsTheHeaderIncluded();
    void heightsAreAddedInSinglePrecision();
    void thereIsOneHeaderRow();
    void copiesAreValues();
    void copiesThrowAShadowAsTheirOriginalDoes();
    void copiesShareTheirRowsUntilOneChanges();
    void aTableMayBeAssignedToItself();
    void replacingTheCellsLeavesWidthsAlone();
};

void TestTXTable::aNewTableHasColumnsOfThirtyPointsAndNoRows()
{
    const TXTable table(3, false);

    QVERIFY(table.getTableCellList().isEmpty());
    QCOMPARE(table.columnWidthAtIndex(0), 30.0F);
    QCOMPARE(table.columnWidthAtIndex(2), 30.0F);
    QCOMPARE(table.tableWidth(), 90.0F);
    QCOMPARE(table.tableHeight(), 0.0F);
}

void TestTXTable::withoutColumnsThereIsNoWidth_data()
{
    QTest::addColumn<int>("nbColumns");
    QTest::addRow("none") << 0;
    QTest::addRow("negative") << -1;
    QTest::addRow("least") << kLeast;
}

void TestTXTable::withoutColumnsThereIsNoWidth()
{
    QFETCH(int, nbColumns);
    TXTable table(nbColumns, false);

    table.setColumnWidth(10.0F, 0);
    table.setColumnWidth(10.0F, -1);
    table.setColumnWidth(10.0F, kLeast);

    QCOMPARE(table.tableWidth(), 0.0F);
    QCOMPARE(table.columnWidthAtIndex(0), 0.0F);
    QCOMPARE(table.columnWidthAtIndex(-1), 0.0F);
}

void TestTXTable::aColumnsWidthIsSetWidthFirst()
{
    TXTable table(3, false);
    table.addCell(settings("a", {50.0, 20.0}));

    table.setColumnWidth(2.0F, 0);
    table.setColumnWidth(0.1F, 1);

    QCOMPARE(table.columnWidthAtIndex(0), 2.0F);
    QCOMPARE(table.columnWidthAtIndex(1), 0.1F);
    QCOMPARE(table.columnWidthAtIndex(2), 30.0F);
    QCOMPARE(table.tableWidth(), 2.0F + 0.1F + 30.0F);
    QCOMPARE(cellAt(table, 0, 0).size, QSizeF(50.0, 20.0));
}

void TestTXTable::aColumnOutsideTheTableIsIgnored_data()
{
    QTest::addColumn<int>("column");
    QTest::addRow("left of the first") << -1;
    QTest::addRow("right of the last") << 3;
    QTest::addRow("least") << kLeast;
    QTest::addRow("most") << kMost;
}

void TestTXTable::aColumnOutsideTheTableIsIgnored()
{
    QFETCH(int, column);
    TXTable table(3, false);

    table.setColumnWidth(7.0F, column);

    QCOMPARE(table.tableWidth(), 90.0F);
    QCOMPARE(table.columnWidthAtIndex(column), 0.0F);
}

void TestTXTable::senselessWidthsAreKeptAsGiven_data()
{
    QTest::addColumn<float>("width");
    QTest::addRow("zero") << 0.0F;
    QTest::addRow("negative") << -5.5F;
    QTest::addRow("infinite") << kInfinite;
    QTest::addRow("not a number") << kNotANumber;
    QTest::addRow("huge") << std::numeric_limits<float>::max();
}

void TestTXTable::senselessWidthsAreKeptAsGiven()
{
    QFETCH(float, width);
    TXTable table(2, false);

    table.setColumnWidth(width, 1);

    QCOMPARE(table.columnWidthAtIndex(1), width);
    QCOMPARE(table.tableWidth(), 30.0F + width);
}

void TestTXTable::moreColumnsThanMemoryTakesAreHarmless()
{
    TXTable table(kMost, false);

    table.setColumnWidth(5.0F, 999'999);
    table.setColumnWidth(5.0F, kMost - 1);
    table.addCell(settings("a"));
    table.addCell(settings("b"));

    QCOMPARE(table.columnWidthAtIndex(0), 30.0F);
    QCOMPARE(table.columnWidthAtIndex(999'999), 5.0F);
    QCOMPARE(table.columnWidthAtIndex(1'000'000), 0.0F);
    QCOMPARE(table.columnWidthAtIndex(kMost - 1), 0.0F);
    QVERIFY(table.tableWidth() >= 29'000'000.0F);
    QCOMPARE(texts(table), (QList<QStringList>{{"a", "b"}}));
}

void TestTXTable::theFirstCellDecidesTheRowsHeight()
{
    const TXTable table =
        tableOf({{cell("a", {10.0, 12.5}), cell("b", {10.0, 99.0})}, {cell("c", {10.0, 0.1})}});

    QCOMPARE(table.getRowHeight(0), 12.5F);
    QCOMPARE(table.getRowHeight(1), 0.1F);
    QCOMPARE(table.tableHeight(), 12.5F + 0.1F);
}

void TestTXTable::aRowWithoutCellsIsTwentyPointsHigh()
{
    const TXTable table = tableOf({rowOfHeight(7.0), {}, rowOfHeight(8.0), {}});

    QCOMPARE(table.getRowHeight(1), 20.0F);
    QCOMPARE(table.tableHeight(), 7.0F + 20.0F + 8.0F + 20.0F);
}

void TestTXTable::aRowOutsideTheTableIsTwentyPointsHigh()
{
    const TXTable table = tableOf({rowOfHeight(7.0)});

    for (const int row : {-1, 1, kLeast, kMost}) {
        QCOMPARE(table.getRowHeight(row), 20.0F);
    }
}

void TestTXTable::theTablesHeightAddsAllRowsTheHeaderIncluded()
{
    TXTable table(2, false);
    TXTable::initHeaderOfTableWithTitles(table, {"L*", "a*"}, false, 25.0F);
    table.addCell(settings("50", {50.0, 11.0}));

    QCOMPARE(table.tableHeight(), 36.0F);
}

void TestTXTable::heightsAreAddedInSinglePrecision()
{
    TableTest::Rows rows;
    float expected = 0.0F;
    for (int row = 0; row < 1000; ++row) {
        rows.append(rowOfHeight(0.1));
        expected += 0.1F;
    }
    QVERIFY(expected != 100.0F);
    QVERIFY(expected != float(1000 * double(0.1F)));

    const float height = tableOf(rows).tableHeight();

    QVERIFY2(height == expected, qPrintable(QString::number(double(height), 'g', 17)));
}

void TestTXTable::thereIsOneHeaderRow()
{
    QCOMPARE(TXTable(0, false).getNbHeaderRows(), 1);
    QCOMPARE(tableOf({{}, {}, {}}).getNbHeaderRows(), 1);
}

void TestTXTable::copiesAreValues()
{
    TXTable table(2, false);
    table.addCell(settings("a"));
    TXTable copy(table);
    TXTable assigned(9, true);
    assigned = table;

    // The cursor is part of the value: each goes on in the second column of the first row.
    copy.addCell(settings("b"));
    copy.setColumnWidth(99.0F, 0);
    assigned.addCell(settings("c"));
    assigned.addCell(settings("d"));
    table.addCell(settings("e"));

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "e"}}));
    QCOMPARE(texts(copy), (QList<QStringList>{{"a", "b"}}));
    QCOMPARE(texts(assigned), (QList<QStringList>{{"a", "c"}, {"d"}}));
    QCOMPARE(table.columnWidthAtIndex(0), 30.0F);
    QCOMPARE(copy.columnWidthAtIndex(0), 99.0F);
    QCOMPARE(assigned.tableWidth(), 60.0F);
}

void TestTXTable::copiesThrowAShadowAsTheirOriginalDoes()
{
    const TXTable shadowed(2, true);
    const TXTable flat(2, false);
    TXTable nowFlat(9, true);
    TXTable nowShadowed(9, false);

    nowFlat = flat;
    nowShadowed = shadowed;

    QVERIFY(hasShadow(TXTable(shadowed)));
    QVERIFY(!hasShadow(TXTable(flat)));
    QVERIFY(!hasShadow(nowFlat));
    QVERIFY(hasShadow(nowShadowed));
}

void TestTXTable::copiesShareTheirRowsUntilOneChanges()
{
    const TXTable table = TableTest::numberedRows(3);
    TXTable copy(table);
    QCOMPARE(copy.getTableCellList().constData(), table.getTableCellList().constData());

    copy.addCell(settings("new"));

    QCOMPARE(table.getTableCellList().size(), 3);
    QCOMPARE(copy.getTableCellList().size(), 4);
    QCOMPARE(copy.getTableCellList().at(1).constData(), table.getTableCellList().at(1).constData());
}

void TestTXTable::aTableMayBeAssignedToItself()
{
    TXTable table = TableTest::numberedRows(3);
    const TXTable &same = table;

    table = same;

    QCOMPARE(TableTest::firstTexts(table), QStringList({"0", "1", "2"}));
    QCOMPARE(table.tableWidth(), 90.0F);
}

void TestTXTable::replacingTheCellsLeavesWidthsAlone()
{
    TXTable table(3, false);
    table.setColumnWidth(5.0F, 1);

    table.setTableCellList({{cell("a", {70.0, 9.0})}});

    QCOMPARE(table.tableWidth(), 65.0F);
    QCOMPARE(table.tableHeight(), 9.0F);
    QCOMPARE(describe(table.getTableCellList()),
             describe(TableTest::Rows{{cell("a", {70.0, 9.0})}}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXTable>(argc, argv);
}

#include "tst_TXTable.moc"
