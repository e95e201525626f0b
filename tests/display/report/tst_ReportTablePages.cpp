#include "ReportDocumentHelpers.h"
#include "ReportTablePages.h"
#include "TestBase.h"

#include <QRandomGenerator>

#include <cmath>
#include <limits>

class TestReportTablePages : public TestBase
{
    Q_OBJECT

private slots:
    void pagesHoldWhatFits_data();
    void pagesHoldWhatFits();
    void headerIsRepeatedOnEachPageButTheFirst();
    void randomTablesLoseNoRow();
    void anyHeightOfPagesEnds_data();
    void anyHeightOfPagesEnds();
    void anyHeightOfRowsEnds_data();
    void anyHeightOfRowsEnds();
    void tableWithoutRowsHasNoPages();
    void rowsWithoutCellsTakeTheirRoom();
    void aMillionCellsAreCutAtOnce();
};

namespace {

QList<int> firstRowsOf(const ReportTablePages &pages)
{
    QList<int> rows;
    for (int page = 0; page < pages.count(); ++page) {
        rows.append(pages.firstRow(page));
    }
    return rows;
}

QStringList textsOf(const TXTable &table)
{
    // Cells keep their texts to themselves: a row is told by its height here.
    QStringList texts;
    for (const QList<TXTableCell> &row : table.getTableCellList()) {
        texts.append(QString::number(row.isEmpty() ? -1.0 : row.first().size.height()));
    }
    return texts;
}

} // namespace

void TestReportTablePages::pagesHoldWhatFits_data()
{
    QTest::addColumn<QList<double>>("heights");
    QTest::addColumn<float>("height");
    QTest::addColumn<QList<int>>("firstRows");

    const QList<double> even(10, 20.0);
    // 20 for the header, so that the first page has header and rows, and each further one too.
    QTest::newRow("all on one page") << even << 221.0F << QList<int>{0};
    QTest::newRow("a row that ends at the height does not fit")
        << even << 220.0F << QList<int>{0, 10};
    QTest::newRow("four rows and the header") << even << 101.0F << QList<int>{0, 5, 9};
    QTest::newRow("header and one row")
        << even << 41.0F << QList<int>{0, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("the header alone fills a page")
        << QList<double>{20, 20} << 21.0F << QList<int>{0, 1, 2};
    QTest::newRow("a row higher than the page")
        << QList<double>{20, 500, 20, 20} << 101.0F << QList<int>{0, 2, 3};
    QTest::newRow("no room at all") << QList<double>{20, 20} << 0.0F << QList<int>{0, 1, 2};
}

void TestReportTablePages::pagesHoldWhatFits()
{
    QFETCH(QList<double>, heights);
    QFETCH(float, height);
    QFETCH(QList<int>, firstRows);

    const ReportTablePages pages(tableOfRows(heights), height);

    QCOMPARE(firstRowsOf(pages), firstRows);
    QCOMPARE(pages.firstRow(pages.count()), int(heights.size()) + 1);
}

void TestReportTablePages::headerIsRepeatedOnEachPageButTheFirst()
{
    const ReportTablePages pages(tableOfRows({1, 2, 3, 4}, 50), 57);

    QCOMPARE(pages.count(), 2);
    QCOMPARE(textsOf(pages.page(0)), QStringList({"50", "1", "2", "3"}));
    QCOMPARE(textsOf(pages.page(1)), QStringList({"50", "4"}));
}

void TestReportTablePages::randomTablesLoseNoRow()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 1000; ++round) {
        QList<double> heights;
        for (int rows = random.bounded(60); rows > 0; --rows) {
            heights.append(random.bounded(80.0));
        }
        const TXTable table = tableOfRows(heights, random.bounded(60.0));
        const ReportTablePages pages(table, float(random.bounded(200.0)));

        QStringList rows;
        for (int page = 0; page < pages.count(); ++page) {
            QStringList onPage = textsOf(pages.page(page));
            if (page > 0) {
                QCOMPARE(onPage.takeFirst(), textsOf(table).first());
            }
            QVERIFY(!onPage.isEmpty());
            rows += onPage;
        }
        QCOMPARE(rows, textsOf(table));
    }
}

void TestReportTablePages::anyHeightOfPagesEnds_data()
{
    QTest::addColumn<float>("height");
    QTest::addColumn<int>("pages");

    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 11;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 1;
    QTest::newRow("minus infinite") << -std::numeric_limits<float>::infinity() << 11;
    QTest::newRow("negative") << -1.0F << 11;
    QTest::newRow("largest") << std::numeric_limits<float>::max() << 1;
}

void TestReportTablePages::anyHeightOfPagesEnds()
{
    QFETCH(float, height);
    QFETCH(int, pages);

    QCOMPARE(ReportTablePages(tableOfRows(10), height).count(), pages);
}

void TestReportTablePages::anyHeightOfRowsEnds_data()
{
    QTest::addColumn<double>("rowHeight");
    QTest::addColumn<QList<int>>("firstRows");

    // Header and nine rows; the fifth of them is the odd one. Pages hold header and four rows.
    QTest::newRow("not a number") << std::nan("") << QList<int>{0, 5, 6};
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QList<int>{0, 5, 6};
    // What takes no height, or gives some back, makes room for more.
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << QList<int>{0};
    QTest::newRow("negative") << -60.0 << QList<int>{0, 9};
    QTest::newRow("zero") << 0.0 << QList<int>{0, 6};
}

void TestReportTablePages::anyHeightOfRowsEnds()
{
    QFETCH(double, rowHeight);
    QFETCH(QList<int>, firstRows);
    QList<double> heights(9, 20.0);
    heights[4] = rowHeight;

    QCOMPARE(firstRowsOf(ReportTablePages(tableOfRows(heights), 101.0F)), firstRows);
}

void TestReportTablePages::tableWithoutRowsHasNoPages()
{
    const ReportTablePages pages(TXTable(3, true), 100.0F);

    QCOMPARE(pages.count(), 0);
    QCOMPARE(pages.firstRow(0), 0);
}

void TestReportTablePages::rowsWithoutCellsTakeTheirRoom()
{
    TXTable table(1, false);
    table.setTableCellList(QList<QList<TXTableCell>>(10));

    QCOMPARE(firstRowsOf(ReportTablePages(table, 101.0F)), QList<int>({0, 5, 9}));
}

void TestReportTablePages::aMillionCellsAreCutAtOnce()
{
    constexpr int kRows = 1'000'000;
    TXTable table(1, false);
    const TXTableCell cell({{"CellElement", "x"}, {"CellSize", QSizeF(10, 20)}});
    table.setTableCellList(QList<QList<TXTableCell>>(kRows, {cell}));

    // A page holds the header and 36 rows. With a cost that grows with the square of the rows the
    // time limit of a test would not do.
    QCOMPARE(ReportTablePages(table, 741.0F).count(), 1 + (kRows - 37 + 35) / 36);
    QCOMPARE(ReportTablePages(table, 1.0F).count(), kRows);
}

int main(int argc, char **argv)
{
    return runTest<TestReportTablePages>(argc, argv);
}

#include "tst_ReportTablePages.moc"
