#include "PdfFile.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPen>
#include <QRandomGenerator>

namespace {

/// How far the frame of a table stands out from its cells, on each side.
constexpr double kFramePoints = 5.0;
/// How far a cell keeps its text off the side that it is aligned to.
constexpr double kCellMarginPoints = 2.0;
/// Edges are looked at on a grid of so many points.
constexpr double kStepPoints = 0.005;
constexpr double kEdgePoints = 0.01;

bool isDark(const QImage &image, const QPoint &pixel)
{
    constexpr int kMiddleGrey = 128;
    return qGray(image.pixel(pixel)) < kMiddleGrey;
}

/// The x or the y of an edge, a tenth of a point at most from the place that is expected. The dark
/// side is that of smaller numbers or of greater ones. Far off where there is no such edge.
double edgeNear(PdfFile &pdf, const QPointF &place, const QPoint &axis, bool isDarkBefore)
{
    constexpr double kFarOffPoints = -1000.0;
    constexpr int kSteps = 40;
    const QPoint start = (place / kStepPoints).toPoint() - axis * (kSteps / 2);
    const QImage strip =
        pdf.rendered(1, 72 / kStepPoints, QRect(start, start + axis * (kSteps - 1)));
    int steps = 0;
    while (steps < kSteps && !strip.isNull() && isDark(strip, axis * steps) == isDarkBefore) {
        ++steps;
    }
    if (steps == 0 || steps == kSteps) {
        return kFarOffPoints;
    }
    return QPoint::dotProduct(start + axis * steps, axis) * kStepPoints;
}

/// The black rectangle on the first page that is expected at a place.
QRectF blackAround(PdfFile &pdf, const QRectF &expected)
{
    const QPoint across(1, 0);
    const QPoint down(0, 1);
    const QPointF middle = expected.center();
    return {QPointF(edgeNear(pdf, {expected.left(), middle.y()}, across, false),
                    edgeNear(pdf, {middle.x(), expected.top()}, down, false)),
            QPointF(edgeNear(pdf, {expected.right(), middle.y()}, across, true),
                    edgeNear(pdf, {middle.x(), expected.bottom()}, down, true))};
}

} // namespace

class TestReportPdfPlaces : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void paperIsThatOfTheLayout_data();
    void paperIsThatOfTheLayout();
    void contentStandsWithinTheMargins_data();
    void contentStandsWithinTheMargins();
    void textsOfASceneStandWhereTheyWereDrawn();
    void sizesOfTextsArePoints();
    void textInARectangleStandsByItsAlignment_data();
    void textInARectangleStandsByItsAlignment();
    void textsOfATableStandInTheirCells();
    void edgesStandToAHundredthOfAPoint_data();
    void edgesStandToAHundredthOfAPoint();
    void linesAreAsWideAsTheirPens();
    void cellsOfATableStandToAHundredthOfAPoint();

private:
    [[nodiscard]] static QString faultOfBlack(PdfFile &pdf, const QRectF &expected);
};

/// What is wrong with the black rectangle on the first page; empty where it stands exactly.
QString TestReportPdfPlaces::faultOfBlack(PdfFile &pdf, const QRectF &expected)
{
    const QRectF found = blackAround(pdf, expected);
    if (!pdf.errorText().isEmpty()) {
        return pdf.errorText();
    }
    const bool isThere = isNear(found.topLeft(), expected.topLeft(), kEdgePoints)
        && isNear(found.bottomRight(), expected.bottomRight(), kEdgePoints);
    return isThere ? QString()
                   : toText(found.topLeft(), expected.topLeft()) + QStringLiteral(" to ")
            + toText(found.bottomRight(), expected.bottomRight());
}

void TestReportPdfPlaces::paperIsThatOfTheLayout_data()
{
    QTest::addColumn<QPageLayout>("layout");
    QTest::addColumn<QSizeF>("points");
    const auto layout = [](QPageSize::PageSizeId size, QPageLayout::Orientation orientation) {
        return QPageLayout(QPageSize(size), orientation, QMarginsF(20, 20, 20, 20));
    };
    const auto upright = QPageLayout::Portrait;
    const auto across = QPageLayout::Landscape;
    QTest::newRow("A4") << layout(QPageSize::A4, upright) << QSizeF(595.28, 841.89);
    QTest::newRow("A4 across") << layout(QPageSize::A4, across) << QSizeF(841.89, 595.28);
    QTest::newRow("A5") << layout(QPageSize::A5, upright) << QSizeF(419.53, 595.28);
    QTest::newRow("A5 across") << layout(QPageSize::A5, across) << QSizeF(595.28, 419.53);
    QTest::newRow("Letter") << layout(QPageSize::Letter, upright) << QSizeF(612, 792);
    QTest::newRow("Letter across") << layout(QPageSize::Letter, across) << QSizeF(792, 612);
    QTest::newRow("custom") << layoutOf({300, 1000}, {}) << QSizeF(300, 1000);
    QTest::newRow("wide custom") << layoutOf({1200, 200}, {}) << QSizeF(1200, 200);
}

void TestReportPdfPlaces::paperIsThatOfTheLayout()
{
    // Qt keeps page sizes in whole points.
    constexpr double kRoundingPoints = 0.5;
    QFETCH(QPageLayout, layout);
    QFETCH(QSizeF, points);
    TXReportDocument report;
    report.setPageLayout(layout);
    report.addTable(tableOf(QStringList(150, QStringLiteral("text"))), reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<QSizeF> sizes = pdf.information().pageSizes;

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(sizes.size() > 1);
    QCOMPARE(sizes.size(), report.pageCount());
    for (const QSizeF &size : sizes) {
        QVERIFY2(qAbs(size.width() - points.width()) <= kRoundingPoints
                     && qAbs(size.height() - points.height()) <= kRoundingPoints,
                 qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())));
    }
}

void TestReportPdfPlaces::contentStandsWithinTheMargins_data()
{
    QTest::addColumn<QPageLayout>("layout");
    QTest::addColumn<QRectF>("content");
    QTest::newRow("A4") << QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                       {36, 72, 18, 90}, QPageLayout::Point)
                        << QRectF(36, 72, 595 - 54, 842 - 162);
    QTest::newRow("A4 across") << QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                              {36, 72, 18, 90}, QPageLayout::Point)
                               << QRectF(36, 72, 842 - 54, 595 - 162);
    QTest::newRow("fractions") << layoutOf({400, 300}, {10.25, 20.5, 30.75, 40.1})
                               << QRectF(10.25, 20.5, 359, 239.4);
    QTest::newRow("no margins") << layoutOf({400, 300}, {}) << QRectF(0, 0, 400, 300);
    QTest::newRow("millimetres") << QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                                {25.4, 50.8, 25.4, 12.7}, QPageLayout::Millimeter)
                                 << QRectF(72, 144, 468, 612);
}

void TestReportPdfPlaces::contentStandsWithinTheMargins()
{
    QFETCH(QPageLayout, layout);
    QFETCH(QRectF, content);
    const QFont font = reportTestFont(10);
    const QFontMetricsF metrics(font);
    const QPointF lastPlace(content.width() - metrics.horizontalAdvance(QStringLiteral("lower")),
                            content.height() - metrics.height());
    TXGraphicsScene scene;
    scene.drawText(QStringLiteral("upper"), {0, 0}, font, Qt::black);
    scene.drawText(QStringLiteral("lower"), lastPlace, font, Qt::black);
    TXReportDocument report;
    report.setPageLayout(layout);
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(isNear(report.contentRect().topLeft(), content.topLeft()));
    QVERIFY(isNear(report.contentRect().bottomRight(), content.bottomRight()));
    const QPointF upper = boxOf(words, QStringLiteral("upper")).topLeft();
    QVERIFY2(isNear(upper, content.topLeft()), qPrintable(toText(upper, content.topLeft())));
    const QPointF lower = boxOf(words, QStringLiteral("lower")).bottomRight();
    QVERIFY2(isNear(lower, content.bottomRight()),
             qPrintable(toText(lower, content.bottomRight())));
}

void TestReportPdfPlaces::textsOfASceneStandWhereTheyWereDrawn()
{
    constexpr int kTexts = 120;
    constexpr int kColumns = 5;
    QRandomGenerator random(5);
    TXGraphicsScene scene;
    QList<QPointF> places;
    for (int i = 0; i < kTexts; ++i) {
        // One in each field of 100 by 28 points, somewhere in it.
        const QPointF field = QPoint(i % kColumns * 100, i / kColumns * 28);
        places.append(field + QPointF(random.bounded(60.0), random.bounded(15.0)));
        scene.drawText(QStringLiteral("T%1").arg(i), places[i], reportTestFont(9), Qt::black);
    }
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    const QPointF corner = report.contentRect().topLeft();
    for (int i = 0; i < kTexts; ++i) {
        const QPointF found = boxOf(words, QStringLiteral("T%1").arg(i)).topLeft();
        QVERIFY2(isNear(found, corner + places[i]), qPrintable(toText(found, corner + places[i])));
    }
}

void TestReportPdfPlaces::sizesOfTextsArePoints()
{
    const QString text = QStringLiteral("Measured");
    const QList<int> sizes{5, 8, 10, 12, 24, 60};
    TXGraphicsScene scene;
    double y = 0.0;
    for (const int size : sizes) {
        scene.drawText(text, {20, y}, reportTestFont(size), Qt::black);
        y += 1.5 * size;
    }
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(words.size(), sizes.size());
    for (int i = 0; i < sizes.size(); ++i) {
        const QSizeF expected = QFontMetricsF(reportTestFont(sizes[i])).size(0, text);
        const QSizeF found = words[i].box.size();
        QVERIFY2(isNear({found.width(), found.height()}, {expected.width(), expected.height()}),
                 qPrintable(toText({found.width(), found.height()},
                                   {expected.width(), expected.height()})));
    }
}

void TestReportPdfPlaces::textInARectangleStandsByItsAlignment_data()
{
    QTest::addColumn<TXHorizontalAlignment>("horizontal");
    QTest::addColumn<TXVerticalAlignment>("vertical");
    // How much of the spare room and how many margins are before the text.
    QTest::addColumn<QPointF>("share");
    QTest::addColumn<QPointF>("margins");
    const struct
    {
        const char *name;
        double share;
        double margins;
    } kinds[] = {{"first", 0, 1}, {"last", 1, -1}, {"middle", 0.5, 0}};
    for (quint32 h = 0; h < 3; ++h) {
        for (quint32 v = 0; v < 3; ++v) {
            QTest::addRow("%s %s", kinds[h].name, kinds[v].name)
                << TXHorizontalAlignment(h) << TXVerticalAlignment(v)
                << QPointF(kinds[h].share, kinds[v].share)
                << QPointF(kinds[h].margins, kinds[v].margins);
        }
    }
}

void TestReportPdfPlaces::textInARectangleStandsByItsAlignment()
{
    QFETCH(TXHorizontalAlignment, horizontal);
    QFETCH(TXVerticalAlignment, vertical);
    QFETCH(QPointF, share);
    QFETCH(QPointF, margins);
    const QString text = QStringLiteral("aligned");
    const QRectF rect(37.25, 411.6, 150.9, 60.4);
    const QSizeF textSize = QFontMetricsF(reportTestFont(11)).size(0, text);
    TXGraphicsScene scene;
    scene.drawTextInRect(text, rect, horizontal, vertical, reportTestFont(11), Qt::black, {3, 7});
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QPointF found = boxOf(pdf.words().value(0), text).topLeft();

    QCOMPARE(pdf.errorText(), QString());
    // The size of the rectangle counts in whole points.
    const QPointF expected(36 + 37.25 + share.x() * (150 - textSize.width()) + margins.x() * 3,
                           36 + 411.6 + share.y() * (60 - textSize.height()) + margins.y() * 7);
    QVERIFY2(isNear(found, expected), qPrintable(toText(found, expected)));
}

void TestReportPdfPlaces::textsOfATableStandInTheirCells()
{
    constexpr int kColumns = 4;
    constexpr int kRows = 100;
    const QSizeF size(70.3, 21.7);
    TXTable table(kColumns, false);
    for (int i = 0; i < kColumns * kRows; ++i) {
        table.addCell(leftTopCell(QStringLiteral("c%1").arg(i), size));
    }
    TXReportDocument report;
    report.addTable(table, reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<QList<PdfFile::Word>> pages = pdf.words();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(pages.size() > 1);
    const double offset = kFramePoints + kCellMarginPoints;
    const QPointF corner = report.contentRect().topLeft() + QPointF(offset, offset);
    int next = 0;
    for (const QList<PdfFile::Word> &words : pages) {
        // The first row is the header of each page, and there it is counted but once.
        int row = next == 0 ? 0 : 1;
        while (!boxOf(words, QStringLiteral("c%1").arg(next)).isNull()) {
            const QPointF found = boxOf(words, QStringLiteral("c%1").arg(next)).topLeft();
            const QPointF expected =
                corner + QPointF(next % kColumns * size.width(), row * size.height());
            QVERIFY2(isNear(found, expected), qPrintable(toText(found, expected)));
            ++next;
            row += next % kColumns == 0 ? 1 : 0;
        }
    }
    QCOMPARE(next, kColumns * kRows);
}

void TestReportPdfPlaces::edgesStandToAHundredthOfAPoint_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("whole") << QRectF(10, 20, 30, 40);
    QTest::newRow("fractions") << QRectF(10.37, 20.81, 33.33, 47.19);
    QTest::newRow("far down") << QRectF(432.17, 700.43, 55.55, 22.22);
    QTest::newRow("small") << QRectF(301.03, 299.98, 0.5, 0.75);
}

void TestReportPdfPlaces::edgesStandToAHundredthOfAPoint()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;
    scene.drawRect(rect, Qt::NoPen, Qt::black, false);
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);

    const QRectF expected = rect.translated(report.contentRect().topLeft());
    QCOMPARE(faultOfBlack(pdf, expected), QString());
}

void TestReportPdfPlaces::linesAreAsWideAsTheirPens()
{
    TXGraphicsScene scene;
    scene.drawLine({50, 333.3}, {50, 444.4}, QPen(Qt::black, 1.3, Qt::SolidLine, Qt::FlatCap),
                   false);
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);

    const QRectF expected(36 + 50 - 0.65, 36 + 333.3, 1.3, 111.1);
    QCOMPARE(faultOfBlack(pdf, expected), QString());
}

void TestReportPdfPlaces::cellsOfATableStandToAHundredthOfAPoint()
{
    // A black cell in the third column of the fourth row, in a table of white ones.
    constexpr int kColumns = 5;
    const QSizeF size(61.37, 23.19);
    TXTable table(kColumns, false);
    for (int i = 0; i < kColumns * 6; ++i) {
        QHash<QString, QVariant> cell = leftTopCell(QStringLiteral(" "), size);
        cell.insert(QStringLiteral("BorderCellColor"), QColor(Qt::transparent));
        cell.insert(QStringLiteral("BorderCellLineWidth"), 0.0);
        cell.insert(QStringLiteral("InsideCellColor"),
                    QColor(i == 3 * kColumns + 2 ? Qt::black : Qt::white));
        table.addCell(cell);
    }
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addTable(table, reportTestFont(10));
    PdfFile pdf = written(report);

    const QRectF expected(
        QPointF(36 + kFramePoints + 2 * size.width(), 36 + kFramePoints + 3 * size.height()), size);
    QCOMPARE(faultOfBlack(pdf, expected), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPdfPlaces>(argc, argv);
}

#include "tst_ReportPdfPlaces.moc"
