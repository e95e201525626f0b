#include "ReportTablePainter.h"

#include "PdfFile.h"
#include "TablePainterHelpers.h"
#include "TestBase.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QTemporaryDir>

#include <cmath>

using TablePainterHelpers::cell;
using TablePainterHelpers::kInfinity;
using TablePainterHelpers::kNan;
using TablePainterHelpers::kTopLeft;
using TablePainterHelpers::Paint;
using TablePainterHelpers::paintDirectly;
using TablePainterHelpers::paintThroughScene;
using TablePainterHelpers::picture;
using TablePainterHelpers::randomTable;
using TablePainterHelpers::reportFont;
using TablePainterHelpers::tableOf;

namespace {

/// Texts may stand 1/128 point off, which moves some of them by a step of the renderer's.
constexpr double kRounding = 0.2;

QImage imageOfPdf(Paint paint, const TXTable &table)
{
    return PdfPicture::of([&](QPainter *painter) { paint(painter, table); });
}

/// The mean difference of all channels, from 0 to 255; above that for images of other size.
double meanDifference(const QImage &one, const QImage &other)
{
    if (one.isNull() || one.size() != other.size()) {
        return 1000.0;
    }
    if (one == other) {
        return 0.0;
    }
    double sum = 0.0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb first = one.pixel(x, y);
            const QRgb second = other.pixel(x, y);
            sum += std::abs(qRed(first) - qRed(second)) + std::abs(qGreen(first) - qGreen(second))
                + std::abs(qBlue(first) - qBlue(second));
        }
    }
    return sum / 3.0 / (double(one.width()) * one.height());
}

} // namespace

class TestReportTablePainterPdf : public TestBase
{
    Q_OBJECT

private slots:
    void paintsThePdfOfTheRenderedScene_data() { TablePainterHelpers::addTables(); }
    void paintsThePdfOfTheRenderedScene();
    void paintsThePdfOfTheRenderedSceneForRandomTables();
    void keepsNumbersThatAreNoneOutOfAPdf_data();
    void keepsNumbersThatAreNoneOutOfAPdf();
    void embedsEqualPicturesOnce();
    void paintsTheShadowOfTheFrameOnPaper();
};

void TestReportTablePainterPdf::paintsThePdfOfTheRenderedScene()
{
    QFETCH(TXTable, table);
    const double difference =
        meanDifference(imageOfPdf(paintDirectly, table), imageOfPdf(paintThroughScene, table));
    QVERIFY2(difference < kRounding, qPrintable(QString::number(difference)));
}

void TestReportTablePainterPdf::paintsThePdfOfTheRenderedSceneForRandomTables()
{
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const TXTable table = randomTable(seed);
        const double difference =
            meanDifference(imageOfPdf(paintDirectly, table), imageOfPdf(paintThroughScene, table));
        QVERIFY2(difference < kRounding,
                 qPrintable(QStringLiteral("%1: %2").arg(seed).arg(difference)));
    }
}

void TestReportTablePainterPdf::keepsNumbersThatAreNoneOutOfAPdf_data()
{
    QTest::addColumn<QSizeF>("size");
    for (const double none : {kNan, kInfinity, -kInfinity}) {
        QTest::addRow("width %f", none) << QSizeF(none, 20);
        QTest::addRow("height %f", none) << QSizeF(20, none);
    }
}

void TestReportTablePainterPdf::keepsNumbersThatAreNoneOutOfAPdf()
{
    QFETCH(QSizeF, size);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("table.pdf");
    const TXTable table = tableOf({{cell("before")},
                                   {cell("none", {{"CellSize", size}}), cell(picture(20, 20))},
                                   {cell(picture(20, 20), {{"CellSize", size}}), cell("last")}},
                                  true);
    PdfPicture::write(fileName, [&](QPainter *painter) { paintDirectly(painter, table); });
    PdfFile pdf(fileName);
    const QString text = pdf.pageTexts().value(0);
    QCOMPARE(pdf.errorText(), QString());
    QVERIFY2(text.contains("before"), qPrintable(text));
}

void TestReportTablePainterPdf::embedsEqualPicturesOnce()
{
    const QPixmap pixmap = picture(60, 40);
    const TXTable table = tableOf({{cell(pixmap), cell(pixmap)}, {cell(pixmap), cell("text")}});
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("table.pdf");
    ReportTablePainter tables;
    PdfPicture::write(fileName, [&](QPainter *painter) {
        tables.paintTable(painter, table, kTopLeft, reportFont());
        tables.paintTable(painter, table, QPointF(200, 150), reportFont());
    });
    PdfFile pdf(fileName);
    QSet<int> objects;
    const QList<PdfFile::Picture> pictures = pdf.pictures();
    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), 6);
    for (const PdfFile::Picture &shown : pictures) {
        objects.insert(shown.object);
    }
    QCOMPARE(objects.size(), 1);
}

void TestReportTablePainterPdf::paintsTheShadowOfTheFrameOnPaper()
{
    const QImage with = imageOfPdf(paintDirectly, tableOf({{cell("text")}}, true));
    const QImage without = imageOfPdf(paintDirectly, tableOf({{cell("text")}}, false));
    const QPoint belowFrame(80, 150);
    QCOMPARE(QColor(without.pixel(belowFrame)), QColor(Qt::white));
    const int grey = QColor(with.pixel(belowFrame)).red();
    QVERIFY2(grey > 150 && grey < 245, qPrintable(QString::number(grey)));
}

int main(int argc, char **argv)
{
    return runTest<TestReportTablePainterPdf>(argc, argv);
}

#include "tst_ReportTablePainterPdf.moc"
