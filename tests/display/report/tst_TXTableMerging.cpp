#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QColor>

#include <limits>

using TableTest::cell;
using TableTest::cellAt;
using TableTest::describe;
using TableTest::Rows;
using TableTest::tableOf;
using TableTest::texts;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// Two rows: five cells "a" to "e" of 10 points each in columns 0 to 4, and none.
Rows fiveCellsAndAnEmptyRow()
{
    Rows rows(2);
    for (int i = 0; i < 5; ++i) {
        rows.first().append(cell(QString(QChar(u'a' + i)), {10.0, 20.0}, i));
    }
    return rows;
}

double mergedWidth(const QList<double> &widths)
{
    Rows rows(1);
    for (const double width : widths) {
        rows.first().append(cell("a", {width, 20.0}));
    }
    TXTable table = tableOf(rows);
    table.mergeCells(0, int(widths.size()) - 1, 0);
    return cellAt(table, 0, 0).size.width();
}

} // namespace

/// What mergeCells() joins, leaves alone and truncates.
class TestTXTableMerging : public TestBase
{
    Q_OBJECT

private slots:
    void cellsBecomeOne_data();
    void cellsBecomeOne();
    void theMergedCellIsTheFirstButForItsSize();
    void fractionsAreLostAtEachStep_data();
    void fractionsAreLostAtEachStep();
    void theFirstCellsHeightIsTruncated_data();
    void theFirstCellsHeightIsTruncated();
    void indexesAreOfCellsAndNotOfColumns();
    void whatCannotBeMergedStays_data();
    void whatCannotBeMergedStays();
    void aTableWithoutRowsStaysEmpty();
    void otherRowsAndCopiesStay();
    void mergedCellsMayBeMergedAgain();
    void widthsOfColumnsStay();
};

void TestTXTableMerging::cellsBecomeOne_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<double>("width");
    QTest::addRow("two in front") << 0 << 1 << QStringList{"a", "c", "d", "e"} << 20.0;
    QTest::addRow("three in the middle") << 1 << 3 << QStringList{"a", "b", "e"} << 30.0;
    QTest::addRow("two at the end") << 3 << 4 << QStringList{"a", "b", "c", "d"} << 20.0;
    QTest::addRow("all") << 0 << 4 << QStringList{"a"} << 50.0;
}

void TestTXTableMerging::cellsBecomeOne()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QStringList, left);
    QFETCH(double, width);
    TXTable table = tableOf(fiveCellsAndAnEmptyRow());

    table.mergeCells(first, last, 0);

    QCOMPARE(texts(table), (QList<QStringList>{left, {}}));
    QCOMPARE(cellAt(table, 0, first).size, QSizeF(width, 20.0));
}

void TestTXTableMerging::theMergedCellIsTheFirstButForItsSize()
{
    TXTableCell first = cell("a", {10.5, 9.5}, 3, 4);
    first.bold = true;
    first.insideColor = QColor(Qt::red);
    first.textColor = QColor(Qt::blue);
    first.borderColor = QColor();
    first.borderLineWidth = 0.35;
    first.horizontalAlign = 1;
    first.verticalAlign = 9;
    TXTable table = tableOf({{first, cell("b", {10.0, 99.0}, 5, 6)}});

    table.mergeCells(0, 1, 0);

    first.size = QSizeF(20.0, 9.0);
    QCOMPARE(describe(table.getTableCellList()), describe(Rows{{first}}));
}

void TestTXTableMerging::fractionsAreLostAtEachStep_data()
{
    QTest::addColumn<QList<double>>("widths");
    QTest::addColumn<double>("merged");
    QTest::addRow("twice 30.7") << QList<double>{30.7, 30.7} << 60.0;
    QTest::addRow("four halves") << QList<double>{0.5, 0.5, 0.5, 0.5} << 0.0;
    QTest::addRow("a half after a whole") << QList<double>{1.0, 0.5, 0.5} << 1.0;
    QTest::addRow("toward zero below zero") << QList<double>{-0.9, -1.9, 0.0} << -1.0;
    QTest::addRow("up from below zero") << QList<double>{-5.0, 2.5} << -2.0;
    QTest::addRow("beyond int") << QList<double>{1e300, 1.0} << double(kMost);
    QTest::addRow("below int") << QList<double>{-1e300, -1.0} << double(kLeast);
    QTest::addRow("just beyond int") << QList<double>{2147483647.0, 2147483647.0} << double(kMost);
    QTest::addRow("infinite") << QList<double>{kInfinite, 1.0} << double(kMost);
    QTest::addRow("not a number") << QList<double>{qQNaN(), 7.0} << 7.0;
}

void TestTXTableMerging::fractionsAreLostAtEachStep()
{
    QFETCH(QList<double>, widths);
    QFETCH(double, merged);

    QCOMPARE(mergedWidth(widths), merged);
}

void TestTXTableMerging::theFirstCellsHeightIsTruncated_data()
{
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("truncated");
    QTest::addRow("fraction") << 20.9 << 20.0;
    QTest::addRow("negative") << -20.9 << -20.0;
    QTest::addRow("huge") << 1e300 << double(kMost);
    QTest::addRow("not a number") << qQNaN() << 0.0;
}

void TestTXTableMerging::theFirstCellsHeightIsTruncated()
{
    QFETCH(double, height);
    QFETCH(double, truncated);
    TXTable table = tableOf({{cell("a", {1.0, height}), cell("b", {1.0, 50.0})}});

    table.mergeCells(0, 1, 0);

    QCOMPARE(cellAt(table, 0, 0).size.height(), truncated);
}

void TestTXTableMerging::indexesAreOfCellsAndNotOfColumns()
{
    TXTable table(2, false);
    table.addCell(TableTest::settings("a"));
    table.addCell(TableTest::settings(QStringList{"x", "y", "z"}, {90.0, 20.0}));

    table.mergeCells(2, 3, 0);

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "x", "y"}}));
    const TXTableCell merged = cellAt(table, 0, 2);
    QCOMPARE(merged.size.width(), 60.0);
    QCOMPARE(merged.realColumn, 1);
    QCOMPARE(merged.nbMergedCell, 3);
}

void TestTXTableMerging::whatCannotBeMergedStays_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("row");
    QTest::addRow("a cell with itself") << 2 << 2 << 0;
    QTest::addRow("backwards") << 3 << 1 << 0;
    QTest::addRow("first outside") << -1 << 2 << 0;
    QTest::addRow("last outside") << 2 << 5 << 0;
    QTest::addRow("both outside") << 5 << 6 << 0;
    QTest::addRow("row above") << 0 << 1 << -1;
    QTest::addRow("row below") << 0 << 1 << 2;
    QTest::addRow("row without cells") << 0 << 1 << 1;
    QTest::addRow("least first") << kLeast << 1 << 0;
    QTest::addRow("least last") << 0 << kLeast << 0;
    QTest::addRow("most last") << 0 << kMost << 0;
    QTest::addRow("all the range") << kLeast << kMost << 0;
    QTest::addRow("least row") << 0 << 1 << kLeast;
    QTest::addRow("most row") << 0 << 1 << kMost;
}

void TestTXTableMerging::whatCannotBeMergedStays()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, row);
    Rows rows = fiveCellsAndAnEmptyRow();
    rows[0][2].size = QSizeF(10.5, 20.5);
    TXTable table = tableOf(rows);

    table.mergeCells(first, last, row);

    QCOMPARE(describe(table.getTableCellList()), describe(rows));
}

void TestTXTableMerging::aTableWithoutRowsStaysEmpty()
{
    TXTable table(3, false);

    table.mergeCells(0, 1, 0);

    QVERIFY(table.getTableCellList().isEmpty());
}

void TestTXTableMerging::otherRowsAndCopiesStay()
{
    const Rows rows{fiveCellsAndAnEmptyRow().first(), fiveCellsAndAnEmptyRow().first()};
    TXTable table = tableOf(rows);
    const TXTable copy(table);

    table.mergeCells(0, 4, 0);

    QCOMPARE(describe(copy.getTableCellList()), describe(rows));
    QCOMPARE(table.getTableCellList().at(1).constData(), rows.at(1).constData());
}

void TestTXTableMerging::mergedCellsMayBeMergedAgain()
{
    TXTable table = tableOf(fiveCellsAndAnEmptyRow());

    table.mergeCells(3, 4, 0);
    table.mergeCells(0, 3, 0);

    QCOMPARE(texts(table), (QList<QStringList>{{"a"}, {}}));
    QCOMPARE(cellAt(table, 0, 0).size.width(), 50.0);
}

void TestTXTableMerging::widthsOfColumnsStay()
{
    TXTable table = tableOf(fiveCellsAndAnEmptyRow(), 5);

    table.mergeCells(0, 4, 0);

    QCOMPARE(table.tableWidth(), 150.0F);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableMerging>(argc, argv);
}

#include "tst_TXTableMerging.moc"
