#include "ChartPatches.h"
#include "ChartReport.h"
#include "ChartReportTables.h"
#include "PageChecks.h"
#include "PdfFile.h"
#include "TestBase.h"

#include "TXTableCell.h"

#include <QFontMetricsF>
#include <QPixmap>
#include <QRegularExpression>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(DifferenceFormula)

namespace {

/// The two numbers behind a name that begins a line: by CIE76 and by CIEDE2000. Empty without such
/// a line.
QStringList numbersBehind(const QString &name, const QString &page)
{
    const QRegularExpression line("^ *" + QRegularExpression::escape(name)
                                      + " +(\\d+(?:\\.\\d+)?) +(\\d+(?:\\.\\d+)?) *$",
                                  QRegularExpression::MultilineOption);
    return line.match(page).capturedTexts().mid(1);
}

QString twoDecimals(double value)
{
    return QString::number(value, 'f', 2);
}

void addPapers()
{
    QTest::addColumn<QPageSize::PageSizeId>("paper");
    QTest::addColumn<QPageLayout::Orientation>("orientation");
    QTest::newRow("A4") << QPageSize::A4 << QPageLayout::Portrait;
    QTest::newRow("A4 landscape") << QPageSize::A4 << QPageLayout::Landscape;
    QTest::newRow("Letter") << QPageSize::Letter << QPageLayout::Portrait;
    QTest::newRow("Letter landscape") << QPageSize::Letter << QPageLayout::Landscape;
    QTest::newRow("A5") << QPageSize::A5 << QPageLayout::Portrait;
    QTest::newRow("A5 landscape") << QPageSize::A5 << QPageLayout::Landscape;
}

ChartReportOptions onPaperOfTheRow()
{
    ChartReportOptions options;
    options.paper = *static_cast<QPageSize::PageSizeId *>(
        QTest::qData("paper", qMetaTypeId<QPageSize::PageSizeId>()));
    options.orientation = *static_cast<QPageLayout::Orientation *>(
        QTest::qData("orientation", qMetaTypeId<QPageLayout::Orientation>()));
    return options;
}

/// The numbers that rows of a table begin with.
QList<int> rowNumbers(const QStringList &pages)
{
    static const QRegularExpression row(R"(^\s*(\d+)\s+\S.*\d+\.\d\d\s*$)");
    QList<int> numbers;
    for (const QString &page : pages) {
        const QStringList lines = page.split('\n');
        for (const QString &line : lines) {
            const auto match = row.match(line);
            if (match.hasMatch()) {
                numbers.append(match.captured(1).toInt());
            }
        }
    }
    return numbers;
}

QList<int> countedTo(int last)
{
    QList<int> numbers;
    for (int i = 1; i <= last; ++i) {
        numbers.append(i);
    }
    return numbers;
}

/// The texts of a table that do not fit into their cells.
QStringList textsTooWide(const ChartReportTables &tables, const TXTable &table)
{
    QStringList wide;
    QFont font = tables.font();
    const QList<QList<TXTableCell>> rows = table.getTableCellList();
    for (const QList<TXTableCell> &cells : rows) {
        for (const TXTableCell &cell : cells) {
            font.setBold(cell.bold);
            const QString text = cell.element.toString();
            if (QFontMetricsF(font).horizontalAdvance(text) > cell.size.width() - 2) {
                wide.append(text);
            }
        }
    }
    return wide;
}

int markedCells(const TXTable &table)
{
    int count = 0;
    const QList<QList<TXTableCell>> rows = table.getTableCellList();
    for (const QList<TXTableCell> &cells : rows) {
        for (const TXTableCell &cell : cells) {
            const QColor &colour = cell.textColor;
            count += cell.bold && colour.red() > 2 * colour.green() && colour.green() < 100 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class TestChartReport : public TestBase
{
    Q_OBJECT

private slots:
    void everyPatchAndEachPairIsRead();
    void headerAndNumberStandOnEveryPage();
    void coverTellsTheStatistics();
    void tablesFillThePaper_data();
    void tablesFillThePaper();
    void groupRowsAreOneCell();
    void patchesAreShownInTheirColours();
    void patchesHaveTheResolutionOfAReport_data();
    void patchesHaveTheResolutionOfAReport();
    void toleranceMarksWhatExceedsIt_data();
    void toleranceMarksWhatExceedsIt();
    void orderOfThePairsIsTheChosenOne();
    void reportSpeaksTheLanguageOfTheMoment();

protected:
    void prepare() override { folder.reset(new QTemporaryDir); }
    void finish() override { folder.reset(); }

private:
    QString write(const ChartReportOptions &options);
    QStringList read(const ChartReportOptions &options);

    QScopedPointer<QTemporaryDir> folder;
};

/// The name of the file, empty when it could not be written.
QString TestChartReport::write(const ChartReportOptions &options)
{
    const QString file = folder->filePath("report.pdf");
    ChartReport report(options);
    return report.document().writePdf(file) ? file : QString();
}

/// The texts of the pages.
QStringList TestChartReport::read(const ChartReportOptions &options)
{
    PdfFile file(write(options));
    const QStringList pages = file.pageTexts();
    if (!file.errorText().isEmpty()) {
        QTest::qFail(qPrintable(file.errorText()), __FILE__, __LINE__);
    }
    return pages;
}

void TestChartReport::everyPatchAndEachPairIsRead()
{
    const QStringList pages = read({});

    QVERIFY2(pages.size() > 5, qPrintable(pages.join('\n')));
    for (const ChartPatch &patch : chartPatches()) {
        QVERIFY2(pages.at(1).contains(patch.translatedName()), patch.name);
    }
    QCOMPARE(rowNumbers(pages.mid(1, 1)), countedTo(24));
    QCOMPARE(rowNumbers(pages.mid(2)), countedTo(276));
}

void TestChartReport::headerAndNumberStandOnEveryPage()
{
    const QStringList pages = read({});

    QVERIFY(!pages.isEmpty());
    for (int i = 0; i < pages.size(); ++i) {
        QVERIFY(pages.at(i).contains("Colour comparison of the 24-patch chart"));
        const QString number = QStringLiteral("Page %1 of %2").arg(i + 1).arg(pages.size());
        QVERIFY2(pages.at(i).contains(number), qPrintable(pages.at(i)));
        QVERIFY(i == 0 || pages.at(i).contains("ΔE*ab"));
    }
}

void TestChartReport::coverTellsTheStatistics()
{
    constexpr double kTolerance = 1.25;
    ChartReportOptions options;
    options.tolerance = kTolerance;
    const QString cover = read(options).value(0);

    const auto pairs = ChartComparison::samePatches();
    const auto cie76 = ChartComparison::statistics(pairs, DifferenceFormula::Cie76, kTolerance);
    const auto ciede2000 =
        ChartComparison::statistics(pairs, DifferenceFormula::Ciede2000, kTolerance);
    QCOMPARE(numbersBehind("Mean", cover),
             QStringList({twoDecimals(cie76.mean), twoDecimals(ciede2000.mean)}));
    QCOMPARE(numbersBehind("95 %", cover),
             QStringList({twoDecimals(cie76.percentile95), twoDecimals(ciede2000.percentile95)}));
    QCOMPARE(numbersBehind("Maximum", cover),
             QStringList({twoDecimals(cie76.largest), twoDecimals(ciede2000.largest)}));
    QCOMPARE(numbersBehind("Above 1.25", cover),
             QStringList({QString::number(cie76.aboveTolerance),
                          QString::number(ciede2000.aboveTolerance)}));
}

void TestChartReport::tablesFillThePaper_data()
{
    addPapers();
}

void TestChartReport::tablesFillThePaper()
{
    const ChartReportOptions options = onPaperOfTheRow();
    ChartReport report(options);
    const QRectF content = report.document().contentRect();
    const ChartReportTables tables(content.size(), options);

    for (const TXTable &table : {tables.patches(), tables.pairs()}) {
        // With its frame, which stands 5 points out, as wide as the content, but for a point.
        const double width = double(table.tableWidth()) + 10;
        QVERIFY(width <= content.width() && width > content.width() - 1);
        QCOMPARE(textsTooWide(tables, table), QStringList());
    }
}

void TestChartReport::groupRowsAreOneCell()
{
    const ChartReportTables tables({523, 740}, {});
    const TXTable table = tables.patches();
    const auto rows = table.getTableCellList();

    QCOMPARE(rows.size(), 1 + 4 + 24);
    for (int group = 0; group < kChartRows; ++group) {
        const QList<TXTableCell> &row = rows.at(1 + group * (kChartColumns + 1));
        QCOMPARE(row.size(), 1);
        QCOMPARE(row.first().element.toString(), chartRowName(group));
        QCOMPARE(row.first().size.width(), double(table.tableWidth()));
    }
}

void TestChartReport::patchesAreShownInTheirColours()
{
    const ChartReportTables tables({523, 740}, {});
    const QList<TXTableCell> row = tables.patches().getTableCellList().at(2);

    const ChartPatch &patch = chartPatches()[0];
    const QColor older = row.at(2).element.value<QPixmap>().toImage().pixelColor(3, 3);
    const QColor newer = row.at(3).element.value<QPixmap>().toImage().pixelColor(3, 3);
    QCOMPARE(older.rgb(), patch.older.toScreen().rgb());
    QCOMPARE(newer.rgb(), patch.newer.toScreen().rgb());
}

void TestChartReport::patchesHaveTheResolutionOfAReport_data()
{
    addPapers();
}

/// Both ways: a picture of other proportions than its cell would lose a part of a point.
void TestChartReport::patchesHaveTheResolutionOfAReport()
{
    PdfFile file(write(onPaperOfTheRow()));
    int patches = 0;
    for (const PdfFile::Picture &picture : file.pictures()) {
        // The cover has none, but shadows.
        if (picture.page > 1) {
            ++patches;
            const QSize dots = picture.dotsPerInch;
            const QString text = QStringLiteral("%1 x %2").arg(dots.width()).arg(dots.height());
            QVERIFY2(qAbs(dots.width() - 200) <= 5 && qAbs(dots.height() - 200) <= 5,
                     qPrintable(text));
        }
    }
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(patches, 2 * (24 + 276));
}

void TestChartReport::toleranceMarksWhatExceedsIt_data()
{
    QTest::addColumn<DifferenceFormula>("formula");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("CIE76") << DifferenceFormula::Cie76 << 1.5;
    QTest::newRow("CIEDE2000") << DifferenceFormula::Ciede2000 << 1.0;
    QTest::newRow("strict") << DifferenceFormula::Ciede2000 << 0.1;
    QTest::newRow("lax") << DifferenceFormula::Ciede2000 << 20.0;
}

void TestChartReport::toleranceMarksWhatExceedsIt()
{
    ChartReportOptions options;
    QFETCH(DifferenceFormula, formula);
    QFETCH(double, tolerance);
    options.formula = formula;
    options.tolerance = tolerance;

    int expected = 0;
    for (const PatchPair &pair : ChartComparison::samePatches()) {
        expected += pair.by(formula) > tolerance ? 1 : 0;
    }
    QCOMPARE(markedCells(ChartReportTables({523, 740}, options).patches()), expected);
}

void TestChartReport::orderOfThePairsIsTheChosenOne()
{
    ChartReportOptions options;
    options.order = PairOrder::SmallestFirst;
    const TXTable table = ChartReportTables({523, 740}, options).pairs();

    double previous = 0;
    const auto rows = table.getTableCellList().mid(1);
    QCOMPARE(rows.size(), 276);
    for (const QList<TXTableCell> &row : rows) {
        const double difference = row.last().element.toString().toDouble();
        QVERIFY(difference >= previous);
        previous = difference;
    }
    QVERIFY(previous > 50);
}

void TestChartReport::reportSpeaksTheLanguageOfTheMoment()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const QStringList pages = read({});
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();

    QVERIFY(pages.value(0).contains("COLOUR COMPARISON OF THE 24-PATCH CHART"));
    QVERIFY(pages.value(1).contains("DARK SKIN"));
    QVERIFY(pages.value(1).contains("SKIN AND NATURE"));
}

int main(int argc, char **argv)
{
    return runTest<TestChartReport>(argc, argv);
}

#include "tst_ChartReport.moc"
