#include "ReportTestFont.h"
#include "TXTable.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <limits>

using TableTest::describe;
using TableTest::firstTexts;
using TableTest::hasShadow;
using TableTest::numberedRows;
using TableTest::rowOfHeight;
using TableTest::Rows;
using TableTest::settings;
using TableTest::tableOf;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

TXTable rowsOfHeights(const QList<double> &heights)
{
    Rows rows;
    for (const double height : heights) {
        rows.append(rowOfHeight(height));
    }
    return tableOf(rows);
}

} // namespace

/// How many rows fit on a page, and the table of a page.
class TestTXTablePaging : public TestBase
{
    Q_OBJECT

private slots:
    void rowsThatFit_data();
    void rowsThatFit();
    void theHeaderCountsWithItsOwnHeight();
    void aRowWithoutCellsCountsTwentyPoints();
    void whatIsTooHighEndsThePage_data();
    void whatIsTooHighEndsThePage();
    void usedHeightIsAddedInSinglePrecision();
    void senselessRowHeights_data();
    void senselessRowHeights();
    void rowsAboveTheTableCountAsEmptyOnes();
    void farAwayFirstRows_data();
    void farAwayFirstRows();
    void pieces_data();
    void pieces();
    void aPieceOfATableWithoutRowsHasNone();
    void aPieceSharesItsRows();
    void thePieceOfAllIsTheTable();
    void aPieceKeepsAllElse();
    void changingAPieceLeavesTheTable();
};

void TestTXTablePaging::rowsThatFit_data()
{
    QTest::addColumn<float>("height");
    QTest::addColumn<int>("firstRow");
    QTest::addColumn<int>("count");
    QTest::addRow("a row that ends on the limit is out") << 100.0F << 0 << 4;
    QTest::addRow("just above the limit") << 100.001F << 0 << 5;
    QTest::addRow("with the header before") << 100.0F << 10 << 4;
    QTest::addRow("from the first row after the header") << 100.0F << 1 << 4;
    QTest::addRow("near the end") << 100.0F << 18 << 3;
    QTest::addRow("last row") << 100.0F << 19 << 2;
    QTest::addRow("first row past the end counts the header") << 100.0F << 20 << 1;
    QTest::addRow("far past the end counts the header") << 100.0F << 1000 << 1;
    QTest::addRow("all") << 400.001F << 0 << 20;
    QTest::addRow("more than all") << 1e6F << 0 << 20;
    QTest::addRow("infinite") << kInfinite << 0 << 20;
    QTest::addRow("nothing") << 0.0F << 0 << 0;
    QTest::addRow("one row on the limit") << 20.0F << 0 << 0;
    QTest::addRow("header on the limit") << 20.0F << 5 << 0;
    QTest::addRow("header only") << 40.0F << 5 << 1;
    QTest::addRow("negative") << -1.0F << 0 << 0;
    QTest::addRow("minus infinite") << -kInfinite << 7 << 0;
    QTest::addRow("not a number") << kNotANumber << 0 << 0;
}

void TestTXTablePaging::rowsThatFit()
{
    QFETCH(float, height);
    QFETCH(int, firstRow);
    QFETCH(int, count);

    QCOMPARE(numberedRows(20).getNbRowDrawableOnHeight(height, firstRow), count);
}

void TestTXTablePaging::theHeaderCountsWithItsOwnHeight()
{
    const TXTable table = rowsOfHeights({50.0, 20.0, 20.0, 20.0, 20.0});

    QCOMPARE(table.getNbRowDrawableOnHeight(100.0F, 0), 3);
    QCOMPARE(table.getNbRowDrawableOnHeight(100.0F, 1), 3);
    QCOMPARE(table.getNbRowDrawableOnHeight(60.0F, 2), 1);
    QCOMPARE(table.getNbRowDrawableOnHeight(50.0F, 2), 0);
}

void TestTXTablePaging::aRowWithoutCellsCountsTwentyPoints()
{
    const TXTable table = tableOf({rowOfHeight(5.0), {}, {}, rowOfHeight(5.0)});

    QCOMPARE(table.getNbRowDrawableOnHeight(45.0F, 0), 2);
    QCOMPARE(table.getNbRowDrawableOnHeight(45.5F, 0), 3);
    QCOMPARE(TXTable(1, false).getNbRowDrawableOnHeight(100.0F, 0), 0);
    // The header row that is not there counts as an empty one.
    QCOMPARE(TXTable(1, false).getNbRowDrawableOnHeight(100.0F, 1), 1);
    QCOMPARE(TXTable(1, false).getNbRowDrawableOnHeight(20.0F, 1), 0);
}

void TestTXTablePaging::whatIsTooHighEndsThePage_data()
{
    QTest::addColumn<QList<double>>("heights");
    QTest::addColumn<int>("count");
    QTest::addRow("the first") << QList<double>{200.0, 1.0, 1.0} << 0;
    QTest::addRow("the second") << QList<double>{10.0, 200.0, 1.0} << 1;
    QTest::addRow("the last") << QList<double>{10.0, 10.0, 200.0} << 2;
    QTest::addRow("none") << QList<double>{10.0, 10.0, 10.0} << 3;
}

void TestTXTablePaging::whatIsTooHighEndsThePage()
{
    QFETCH(QList<double>, heights);
    QFETCH(int, count);

    QCOMPARE(rowsOfHeights(heights).getNbRowDrawableOnHeight(100.0F, 0), count);
}

void TestTXTablePaging::usedHeightIsAddedInSinglePrecision()
{
    // A thousand times 0.1 is a little below 100 in single precision, and above it in double.
    const TXTable table = rowsOfHeights(QList<double>(1000, 0.1));
    double inDouble = 0.0;
    for (int i = 0; i < 1000; ++i) {
        inDouble += double(0.1F);
    }
    QVERIFY(inDouble > 100.0);

    QCOMPARE(table.getNbRowDrawableOnHeight(100.0F, 0), 1000);
}

void TestTXTablePaging::senselessRowHeights_data()
{
    QTest::addColumn<QList<double>>("heights");
    QTest::addColumn<int>("count");
    QTest::addRow("zero") << QList<double>{0.0, 0.0, 0.0} << 3;
    QTest::addRow("negative gives room back") << QList<double>{90.0, -80.0, 80.0, 20.0} << 3;
    QTest::addRow("infinite") << QList<double>{10.0, qInf(), 10.0} << 1;
    QTest::addRow("minus infinite") << QList<double>{10.0, -qInf(), 500.0} << 3;
    QTest::addRow("not a number") << QList<double>{10.0, qQNaN(), 10.0} << 1;
    QTest::addRow("beyond float") << QList<double>{10.0, 1e300, 10.0} << 1;
}

void TestTXTablePaging::senselessRowHeights()
{
    QFETCH(QList<double>, heights);
    QFETCH(int, count);

    QCOMPARE(rowsOfHeights(heights).getNbRowDrawableOnHeight(100.0F, 0), count);
}

void TestTXTablePaging::rowsAboveTheTableCountAsEmptyOnes()
{
    const TXTable table = rowsOfHeights({5.0, 5.0, 5.0});

    QCOMPARE(table.getNbRowDrawableOnHeight(50.5F, -2), 4);
    QCOMPARE(table.getNbRowDrawableOnHeight(1000.0F, -2), 5);
    QCOMPARE(table.getNbRowDrawableOnHeight(40.0F, -2), 1);
    QCOMPARE(table.getNbRowDrawableOnHeight(100.0F, -1000), 4);
}

void TestTXTablePaging::farAwayFirstRows_data()
{
    QTest::addColumn<float>("height");
    QTest::addColumn<int>("firstRow");
    QTest::addColumn<int>("count");
    QTest::addRow("least") << 100.0F << kLeast << 4;
    QTest::addRow("least without limit") << kInfinite << kLeast << 1'000'003;
    QTest::addRow("most") << 100.0F << kMost << 1;
    QTest::addRow("most without limit") << kInfinite << kMost << 1;
}

void TestTXTablePaging::farAwayFirstRows()
{
    QFETCH(float, height);
    QFETCH(int, firstRow);
    QFETCH(int, count);

    QCOMPARE(numberedRows(3).getNbRowDrawableOnHeight(height, firstRow), count);
}

void TestTXTablePaging::pieces_data()
{
    QTest::addColumn<int>("firstRow");
    QTest::addColumn<int>("lastRow");
    QTest::addColumn<QString>("rows");
    QTest::addRow("from the top without a second header") << 0 << 5 << "0 1 2 3 4";
    QTest::addRow("five rows below the header") << 5 << 10 << "0 5 6 7 8 9";
    QTest::addRow("from the row after the header") << 1 << 3 << "0 1 2";
    QTest::addRow("past the end") << 8 << 50 << "0 8 9 10 11";
    QTest::addRow("all") << 0 << 12 << "0 1 2 3 4 5 6 7 8 9 10 11";
    QTest::addRow("nothing at the top") << 0 << 0 << "";
    QTest::addRow("nothing further down") << 5 << 5 << "0";
    QTest::addRow("from the end") << 12 << 14 << "0";
    QTest::addRow("from past the end") << 13 << 14 << "0";
    QTest::addRow("last before first means all the rest") << 9 << 3 << "0 9 10 11";
    QTest::addRow("last above the table means all") << 0 << -1 << "0 1 2 3 4 5 6 7 8 9 10 11";
    QTest::addRow("first above the table repeats the header") << -2 << 2 << "0 0 1";
    QTest::addRow("all above the table") << -5 << -2 << "0";
    QTest::addRow("backwards above the table") << -2 << -5 << "0 0 1 2 3 4 5 6 7 8 9 10 11";
    QTest::addRow("least to most") << kLeast << kMost << "0 0 1 2 3 4 5 6 7 8 9 10 11";
    QTest::addRow("most to least") << kMost << kLeast << "0";
    QTest::addRow("least to two") << kLeast << 2 << "0 0 1";
    QTest::addRow("three to most") << 10 << kMost << "0 10 11";
    QTest::addRow("three to least") << 10 << kLeast << "0 10 11";
    QTest::addRow("least to least") << kLeast << kLeast << "0";
}

void TestTXTablePaging::pieces()
{
    QFETCH(int, firstRow);
    QFETCH(int, lastRow);
    QFETCH(QString, rows);
    const TXTable table = numberedRows(12);

    const TXTable part = TXTable::copyPartOfTable(table, firstRow, lastRow);

    QCOMPARE(firstTexts(part), rows.split(u' ', Qt::SkipEmptyParts));
    QCOMPARE(table.getTableCellList().size(), 12);
}

void TestTXTablePaging::aPieceOfATableWithoutRowsHasNone()
{
    const TXTable table(2, false);

    for (const int firstRow : {0, 1, -1, kLeast, kMost}) {
        QVERIFY(TXTable::copyPartOfTable(table, firstRow, 5).getTableCellList().isEmpty());
    }
}

void TestTXTablePaging::aPieceSharesItsRows()
{
    const TXTable table = numberedRows(12);
    const Rows whole = table.getTableCellList();

    const Rows part = TXTable::copyPartOfTable(table, 5, 8).getTableCellList();

    QCOMPARE(part.size(), 4);
    QCOMPARE(part.at(0).constData(), whole.at(0).constData());
    for (int row = 1; row < 4; ++row) {
        QCOMPARE(part.at(row).constData(), whole.at(row + 4).constData());
    }
}

void TestTXTablePaging::thePieceOfAllIsTheTable()
{
    const TXTable table = numberedRows(12);

    const TXTable part = TXTable::copyPartOfTable(table, 0, 12);

    QCOMPARE(part.getTableCellList().constData(), table.getTableCellList().constData());
}

void TestTXTablePaging::aPieceKeepsAllElse()
{
    TXTable table(3, true);
    for (const char *text : {"a", "b", "c", "d", "e", "f", "g"}) {
        table.addCell(settings(text));
    }
    table.setColumnWidth(44.5F, 2);

    TXTable part = TXTable::copyPartOfTable(table, 0, 3);

    // The cursor came along: it stands in the third row, second column.
    part.addCell(settings("h"));
    part.addCell(settings("i"));
    part.addCell(settings("j"));
    QCOMPARE(TableTest::texts(part).mid(2), (QList<QStringList>{{"g", "h", "i"}, {"j"}}));
    QCOMPARE(part.tableWidth(), 104.5F);
    QCOMPARE(part.columnWidthAtIndex(2), 44.5F);
    QCOMPARE(part.getNbHeaderRows(), 1);
    QVERIFY(hasShadow(part));
    QVERIFY(hasShadow(TXTable::copyPartOfTable(table, 1, 3)));
    QVERIFY(!hasShadow(TXTable::copyPartOfTable(numberedRows(5), 1, 3)));
}

void TestTXTablePaging::changingAPieceLeavesTheTable()
{
    const TXTable table = numberedRows(5);
    const QStringList before = describe(table.getTableCellList());

    TXTable part = TXTable::copyPartOfTable(table, 1, 4);
    part.setColumnWidth(1.0F, 0);
    part.optimizeTableSize(reportTestFont(90));
    part.addCell(settings("new"));

    QCOMPARE(describe(table.getTableCellList()), before);
    QCOMPARE(table.tableWidth(), 90.0F);
    QVERIFY(part.tableWidth() != 61.0F);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTablePaging>(argc, argv);
}

#include "tst_TXTablePaging.moc"
