#include "PdfFile.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QMarginsF>
#include <QRandomGenerator>

namespace {

/// How far the frame of a table stands out from its cells, on each side.
constexpr double kFramePoints = 5.0;
constexpr int kFontPoints = 4;

const QString kElement = QStringLiteral("CellElement");
const QString kSize = QStringLiteral("CellSize");
const QString kVerticalAlign = QStringLiteral("CellTextVerticalAlign");

QHash<QString, QVariant> cell(const QVariant &element, const QSizeF &size)
{
    return {{kElement, element}, {kSize, size}, {kVerticalAlign, TXAlignTop}};
}

/// One column of rows "r0", "r1", and so on, the first of which is the header.
TXTable numberedRows(const QList<double> &heights)
{
    TXTable table(1, false);
    for (int row = 0; row < heights.size(); ++row) {
        table.addCell(cell(QStringLiteral("r%1").arg(row), {60, heights[row]}));
    }
    return table;
}

/// Where rows of such heights have to be cut, thought out anew: each page but the first repeats row
/// 0; rows are taken as long as they end above the limit, at least one.
QList<QList<int>> expectedPages(const QList<double> &heights, double limit)
{
    QList<QList<int>> pages;
    double used = 0.0;
    for (int row = 0; row < heights.size(); ++row) {
        const bool isFull = used + heights[row] >= limit;
        if (pages.isEmpty()) {
            pages.append(QList<int>());
        } else if (isFull) {
            pages.append(QList<int>{0});
            used = heights[0];
        }
        pages.last().append(row);
        used += heights[row];
    }
    return pages;
}

/// A table of random shape whose every text is on paper once, but for the header's.
class RandomTable
{
public:
    /// `number` is the seed and stands in each text.
    explicit RandomTable(int number);

    [[nodiscard]] const TXTable &table() const { return filled; }

    /// What has to stand on each page, in reading order.
    [[nodiscard]] QList<QStringList> expectedTexts(double limit) const;

private:
    void addRow(int row);
    void addColumn(int row, int column, double height);
    void mergeSomeCells(int row);
    [[nodiscard]] double randomHeight();

    static constexpr double kColumnPoints = 64.0;

    QRandomGenerator random;
    QString name;
    int columns;
    TXTable filled;
    QList<double> heights;
    QList<QStringList> texts;
};

RandomTable::RandomTable(int number)
    : random(quint32(number))
    , name(QStringLiteral("t%1").arg(number))
    , columns(random.bounded(1, 6))
    , filled(columns, random.bounded(8) == 0)
{
    const int rows = random.bounded(1, 60);
    for (int row = 0; row < rows; ++row) {
        addRow(row);
    }
}

/// Mostly lines of text, rarely higher than a page; in quarters, which add up exactly.
double RandomTable::randomHeight()
{
    const int quarters =
        random.bounded(60) == 0 ? random.bounded(800, 1200) : random.bounded(24, 120);
    return quarters / 4.0;
}

void RandomTable::addRow(int row)
{
    // A header may take all of the page, but not so much that what follows is off the paper.
    const double height = row == 0 ? random.bounded(24, 600) / 4.0 : randomHeight();
    heights.append(height);
    texts.append(QStringList());
    for (int column = 0; column < columns; ++column) {
        addColumn(row, column, height);
    }
    mergeSomeCells(row);
}

void RandomTable::addColumn(int row, int column, double height)
{
    const QString text = QStringLiteral("%1r%2c%3").arg(name).arg(row).arg(column);
    const QSizeF size(kColumnPoints, height);
    const int kind = random.bounded(8);
    if (column > 0 && kind == 0) {
        const QStringList parts{text + u'a', text + u'b'};
        filled.addCell(cell(parts, size));
        texts.last().append(parts);
    } else if (column > 0 && kind == 1) {
        filled.addCell(cell(QString(), size));
        texts.last().append(QString());
    } else {
        filled.addCell(cell(text, size));
        texts.last().append(text);
    }
}

/// A merged cell shows what the first of its cells showed. The height would lose its fraction with
/// the row's first cell.
void RandomTable::mergeSomeCells(int row)
{
    QStringList &inRow = texts.last();
    if (inRow.size() > 2 && random.bounded(6) == 0) {
        filled.mergeCells(1, 2, row);
        inRow.removeAt(2);
    }
}

QList<QStringList> RandomTable::expectedTexts(double limit) const
{
    QList<QStringList> result;
    const QList<QList<int>> pages = expectedPages(heights, limit);
    for (const QList<int> &rows : pages) {
        QStringList onPage;
        for (const int row : rows) {
            onPage.append(texts[row]);
        }
        onPage.removeAll(QString());
        result.append(onPage);
    }
    return result;
}

} // namespace

class TestReportPdfPaging : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void eachPageTellsItsNumberAndTheTitle();
    void headerAndFooterStandAtTheirPlaces();
    void headerAndFooterMayBeEmpty();
    void tableHeaderIsRepeatedOnEachPage();
    void rowsAreCutAtTheLimit_data();
    void rowsAreCutAtTheLimit();
    void rowHigherThanThePaperStillStandsAlone();
    void contentsFollowEachOtherInOrder();
    void noRowOfRandomTablesIsLostOrDoubled_data();
    void noRowOfRandomTablesIsLostOrDoubled();

private:
    [[nodiscard]] QList<QStringList> pagesOf(TXReportDocument &report) const;
    [[nodiscard]] QStringList textsOf(TXReportDocument &report) const;
};

/// What stands on each page, in reading order. Empty, and the test has failed, on any error.
QList<QStringList> TestReportPdfPaging::pagesOf(TXReportDocument &report) const
{
    PdfFile pdf = written(report);
    QList<QStringList> result;
    const QList<QList<PdfFile::Word>> pages = pdf.words();
    for (const QList<PdfFile::Word> &page : pages) {
        result.append(inReadingOrder(page));
    }
    if (!pdf.errorText().isEmpty()) {
        QTest::qFail(qPrintable(pdf.errorText()), __FILE__, __LINE__);
    }
    return result;
}

/// A text for each page, the words of which stand with a blank between them.
QStringList TestReportPdfPaging::textsOf(TXReportDocument &report) const
{
    QStringList texts;
    const QList<QStringList> pages = pagesOf(report);
    for (const QStringList &words : pages) {
        texts.append(words.join(u' '));
    }
    return texts;
}

void TestReportPdfPaging::eachPageTellsItsNumberAndTheTitle()
{
    TXReportDocument report;
    report.setTitle(QStringLiteral("Chart comparison"));
    report.addTable(numberedRows(QList<double>(150, 20.0)), reportTestFont(10));
    PdfFile pdf = written(report);
    const QStringList pages = pdf.pageTexts();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(pages.size() > 3);
    QCOMPARE(pages.size(), report.pageCount());
    for (int page = 0; page < pages.size(); ++page) {
        const QString number = QStringLiteral("page %1 of %2").arg(page + 1).arg(pages.size());
        QCOMPARE(pages[page].count(number), 1);
        QCOMPARE(pages[page].count(QStringLiteral("page")), 1);
        QCOMPARE(pages[page].count(QStringLiteral("Chart comparison")), 1);
        QVERIFY(pages[page].trimmed().startsWith(u"Chart comparison"));
        QVERIFY(pages[page].trimmed().endsWith(number));
    }
}

void TestReportPdfPaging::headerAndFooterStandAtTheirPlaces()
{
    TXReportDocument report;
    report.setPageLayout(layoutOf({400, 500}, {30, 40, 50, 60}));
    report.setHeaderFont(reportTestFont(8));
    report.setTitle(QStringLiteral("Topic"));
    report.setHeaderText(QStringLiteral("{title}"), TXAlignLeft);
    report.setHeaderText(QStringLiteral("middle"), TXAlignHorizontallyCentred);
    report.setHeaderText(QStringLiteral("{page}/{pages}"), TXAlignRight);
    report.setFooterText(QStringLiteral("below{page}"), TXAlignLeft);
    report.setFooterText(QString(), TXAlignHorizontallyCentred);
    report.setFooterText(QStringLiteral("end"), TXAlignRight);
    report.addTable(numberedRows(QList<double>(30, 20.0)), reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<QList<PdfFile::Word>> pages = pdf.words();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(pages.size() > 1);
    const QRectF content = report.contentRect();
    const auto isThere = [](double found, double expected) {
        return qAbs(found - expected) < kTolerancePoints;
    };
    for (int page = 0; page < pages.size(); ++page) {
        const QList<PdfFile::Word> &words = pages[page];
        const QRectF number = boxOf(words, QStringLiteral("%1/%2").arg(page + 1).arg(pages.size()));
        QVERIFY(isThere(boxOf(words, QStringLiteral("Topic")).left(), 30.0));
        QVERIFY(isThere(boxOf(words, QStringLiteral("Topic")).top(), 40.0));
        QVERIFY(isThere(boxOf(words, QStringLiteral("middle")).center().x(), (30.0 + 350.0) / 2));
        QVERIFY(isThere(number.right(), 350.0));
        QVERIFY(number.bottom() <= content.top() + kTolerancePoints);
        const QRectF below = boxOf(words, QStringLiteral("below%1").arg(page + 1));
        QVERIFY(isThere(below.left(), 30.0));
        QVERIFY(isThere(below.bottom(), 440.0));
        QVERIFY(below.top() >= content.bottom() - kTolerancePoints);
        QVERIFY(isThere(boxOf(words, QStringLiteral("end")).right(), 350.0));
        QVERIFY(boxOf(words, QStringLiteral("r0")).top() > content.top());
    }
}

void TestReportPdfPaging::headerAndFooterMayBeEmpty()
{
    TXReportDocument report;
    report.setTitle(QStringLiteral("hidden"));
    removeHeaderAndFooter(report);
    report.addTable(numberedRows({20.0}), reportTestFont(10));

    QCOMPARE(pagesOf(report), (QList<QStringList>{{QStringLiteral("r0")}}));
}

void TestReportPdfPaging::tableHeaderIsRepeatedOnEachPage()
{
    TXTable table(3, false);
    TXTable::initHeaderOfTableWithTitles(
        table, {QStringLiteral("Patch"), QStringLiteral("Lab"), QStringLiteral("Delta")}, true, 25);
    for (int value = 0; value < 300; ++value) {
        table.addCell(cell(value, {30, 20}));
    }
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addTable(table, reportTestFont(8));
    const QList<QStringList> pages = pagesOf(report);

    QVERIFY(pages.size() > 2);
    int value = 0;
    for (const QStringList &words : pages) {
        QCOMPARE(words.mid(0, 3).join(u' '), QStringLiteral("Patch Lab Delta"));
        QVERIFY(words.size() > 3);
        for (const QString &word : words.mid(3)) {
            QCOMPARE(word, QString::number(value));
            ++value;
        }
    }
    QCOMPARE(value, 300);
}

void TestReportPdfPaging::rowsAreCutAtTheLimit_data()
{
    QTest::addColumn<double>("room");
    QTest::addColumn<QList<double>>("heights");
    QTest::addColumn<QString>("pages");
    // The room is that for the rows: the height of the content without the frame's 5 on each side.
    QTest::newRow("a row that ends at the limit goes to the next page")
        << 100.0 << QList<double>(8, 20.0) << "r0 r1 r2 r3 | r0 r4 r5 r6 | r0 r7";
    QTest::newRow("a row that ends just above the limit stays")
        << 101.0 << QList<double>(8, 20.0) << "r0 r1 r2 r3 r4 | r0 r5 r6 r7";
    QTest::newRow("a table that ends above the limit takes one page")
        << 100.0 << QList<double>{20, 20, 20, 39} << "r0 r1 r2 r3";
    QTest::newRow("a row higher than the page stands alone")
        << 100.0 << QList<double>{20, 20, 150, 20} << "r0 r1 | r0 r2 | r0 r3";
    QTest::newRow("the first row may be too high as well")
        << 100.0 << QList<double>{100, 20} << "r0 | r0 r1";
    QTest::newRow("a huge header leaves one row a page")
        << 100.0 << QList<double>{120, 10, 10, 10} << "r0 | r0 r1 | r0 r2 | r0 r3";
    QTest::newRow("a header that leaves no room leaves one row a page")
        << 100.0 << QList<double>{90, 10, 10} << "r0 | r0 r1 | r0 r2";
    QTest::newRow("one row") << 100.0 << QList<double>{20} << "r0";
}

void TestReportPdfPaging::rowsAreCutAtTheLimit()
{
    QFETCH(double, room);
    QFETCH(QList<double>, heights);
    QFETCH(QString, pages);
    // Much paper below the content, so that what is too high can still be read.
    const double height = 30.0 + room + 2 * kFramePoints + 300.0;
    TXReportDocument report;
    report.setPageLayout(layoutOf({200, height}, {20, 30, 20, 300}));
    removeHeaderAndFooter(report);
    report.addTable(numberedRows(heights), reportTestFont(8));

    const QStringList found = textsOf(report);
    QCOMPARE(found.join(QStringLiteral(" | ")), pages);
    QCOMPARE(report.pageCount(), found.size());
}

void TestReportPdfPaging::rowHigherThanThePaperStillStandsAlone()
{
    TXReportDocument report;
    report.setPageLayout(layoutOf({200, 200}, {20, 20, 20, 20}));
    removeHeaderAndFooter(report);
    report.addTable(numberedRows({20, 1000, 20, 100000, 20}), reportTestFont(8));

    QCOMPARE(textsOf(report).join(QStringLiteral(" | ")),
             QStringLiteral("r0 | r0 r1 | r0 r2 | r0 r3 | r0 r4"));
}

void TestReportPdfPaging::contentsFollowEachOtherInOrder()
{
    const auto write = [](const QString &text, TXGraphicsScene *scene) {
        scene->drawText(text, {10, 10}, reportTestFont(10), Qt::black);
    };
    TXGraphicsScene cover;
    write(QStringLiteral("cover"), &cover);
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.setPageLayout(layoutOf({200, 150}, {20, 20, 20, 20}));
    report.addPage(&cover);
    report.addTable(numberedRows(QList<double>(6, 20.0)), reportTestFont(10));
    report.addPages(3, [&](TXGraphicsScene *scene, int page) {
        write(QStringLiteral("drawn%1").arg(page), scene);
    });
    report.addPage(&cover);

    QCOMPARE(textsOf(report).join(QStringLiteral(" | ")),
             QStringLiteral("cover | r0 r1 r2 r3 | r0 r4 r5 | drawn0 | drawn1 | drawn2 | cover"));
}

void TestReportPdfPaging::noRowOfRandomTablesIsLostOrDoubled_data()
{
    QTest::addColumn<int>("firstTable");
    QTest::addColumn<QSizeF>("paper");
    // A hundred tables each: a process for each table would take longer than the tables.
    QRandomGenerator random(2026);
    for (int document = 0; document < 10; ++document) {
        QTest::addRow("document %d", document)
            << document * 100 << QSizeF(random.bounded(360, 800), random.bounded(420, 700));
    }
}

void TestReportPdfPaging::noRowOfRandomTablesIsLostOrDoubled()
{
    constexpr int kTables = 100;
    // As in the rows cut at the limit: paper for what may stand below the content.
    const QMarginsF margins(10, 15, 10, 180);
    QFETCH(int, firstTable);
    QFETCH(QSizeF, paper);
    TXReportDocument report;
    report.setPageLayout(layoutOf(paper, margins));
    removeHeaderAndFooter(report);
    const double limit = paper.height() - margins.top() - margins.bottom() - 2 * kFramePoints;
    QList<QStringList> expected;
    for (int number = firstTable; number < firstTable + kTables; ++number) {
        const RandomTable random(number);
        report.addTable(random.table(), reportTestFont(kFontPoints));
        expected.append(random.expectedTexts(limit));
    }

    const QList<QStringList> found = pagesOf(report);
    for (int page = 0; page < qMin(found.size(), expected.size()); ++page) {
        QCOMPARE(found[page].join(u' '), expected[page].join(u' '));
    }
    QCOMPARE(found.size(), expected.size());
    QCOMPARE(report.pageCount(), expected.size());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPdfPaging>(argc, argv);
}

#include "tst_ReportPdfPaging.moc"
