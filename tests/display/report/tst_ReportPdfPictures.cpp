#include "PdfFile.h"
#include "PixelProbe.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRandomGenerator>

namespace {

constexpr int kReportDotsPerInch = 200;

QPixmap patch(const QSize &pixels, const QColor &colour)
{
    QPixmap pixmap(pixels);
    pixmap.fill(colour);
    return pixmap;
}

/// A picture without two equal neighbours, so that nothing about it compresses or survives a loss.
QPixmap noise(const QSize &pixels)
{
    QImage image(pixels, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            image.setPixel(x, y, 0xff000000U | random.generate());
        }
    }
    return QPixmap::fromImage(image);
}

QHash<QString, QVariant> cell(const QVariant &element, const QSizeF &size)
{
    return {{QStringLiteral("CellElement"), element}, {QStringLiteral("CellSize"), size}};
}

bool isReportResolution(const QSize &dotsPerInch)
{
    return qAbs(dotsPerInch.width() - kReportDotsPerInch) <= 1
        && qAbs(dotsPerInch.height() - kReportDotsPerInch) <= 1;
}

QString describe(const PdfFile::Picture &picture)
{
    return QStringLiteral("%1 x %2 pixels, %3 x %4 dpi, %5")
        .arg(picture.pixels.width())
        .arg(picture.pixels.height())
        .arg(picture.dotsPerInch.width())
        .arg(picture.dotsPerInch.height())
        .arg(picture.encoding);
}

} // namespace

class TestReportPdfPictures : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void pictureOfASceneHasItsResolution_data();
    void pictureOfASceneHasItsResolution();
    void pictureOfATableHasItsResolution();
    void patchesKeepTheirExactColours();
    void patchesOfATableKeepTheirExactColours();
    void pictureAtItsOwnResolutionKeepsEachPixel();
    void pictureStandsInItsRectangle();
    void transparentPictureShowsWhatIsBelow();
};

void TestReportPdfPictures::pictureOfASceneHasItsResolution_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSizeF>("room");
    QTest::addColumn<QSizeF>("points");
    QTest::newRow("as large as it is kept") << QSize(200, 200) << QSizeF(72, 72) << QSizeF(72, 72);
    QTest::newRow("made smaller") << QSize(1500, 1000) << QSizeF(180, 180) << QSizeF(180, 120);
    QTest::newRow("made larger") << QSize(10, 20) << QSizeF(144, 144) << QSizeF(72, 144);
    QTest::newRow("as large as the page")
        << QSize(300, 420) << QSizeF(500, 700) << QSizeF(500, 700);
}

void TestReportPdfPictures::pictureOfASceneHasItsResolution()
{
    QFETCH(QSize, source);
    QFETCH(QSizeF, room);
    QFETCH(QSizeF, points);
    TXGraphicsScene scene;
    scene.drawImageInRect(noise(source), QRectF(QPointF(3.5, 7.25), room), TXAlignLeft, TXAlignTop);
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<PdfFile::Picture> pictures = pdf.pictures();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), 1);
    QVERIFY2(isReportResolution(pictures[0].dotsPerInch), qPrintable(describe(pictures[0])));
    QCOMPARE(pictures[0].encoding, QStringLiteral("image"));
    const QSizeF size = pictures[0].size();
    QVERIFY2(qAbs(size.width() - points.width()) <= 0.5 + points.width() / kReportDotsPerInch,
             qPrintable(describe(pictures[0])));
    QVERIFY2(qAbs(size.height() - points.height()) <= 0.5 + points.height() / kReportDotsPerInch,
             qPrintable(describe(pictures[0])));
}

void TestReportPdfPictures::pictureOfATableHasItsResolution()
{
    // Within the cell a picture keeps 1 point off each side: 108 by 72 points are left.
    constexpr int kRows = 12;
    TXTable table(2, false);
    for (int row = 0; row < kRows; ++row) {
        table.addCell(cell(QStringLiteral("row%1").arg(row), {60, 74}));
        table.addCell(cell(noise({450, 300}), {110, 74}));
    }
    TXReportDocument report;
    report.addTable(table, reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<PdfFile::Picture> pictures = pdf.pictures();

    QCOMPARE(pdf.errorText(), QString());
    // The first row is the header of the second page too, with its picture.
    QCOMPARE(report.pageCount(), 2);
    QCOMPARE(pictures.size(), kRows + 1);
    for (const PdfFile::Picture &picture : pictures) {
        QCOMPARE(picture.pixels, QSize(300, 200));
        QVERIFY2(isReportResolution(picture.dotsPerInch), qPrintable(describe(picture)));
        QCOMPARE(picture.encoding, QStringLiteral("image"));
    }
}

void TestReportPdfPictures::patchesKeepTheirExactColours()
{
    constexpr int kPatches = 24;
    TXGraphicsScene scene;
    QList<QColor> colours;
    QRandomGenerator random(24);
    for (int i = 0; i < kPatches; ++i) {
        colours.append(QColor::fromRgb(0xff000000U | random.generate()));
        scene.drawImageInRect(patch({50, 50}, colours.last()),
                              QRectF(QPoint(i % 6 * 80, i / 6 * 80), QSizeF(72, 72)), TXAlignLeft,
                              TXAlignTop);
    }
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<QImage> pictures = pdf.pixelsOfPictures(1);
    const PixelProbe page(pdf.rendered(1, 72));

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), kPatches);
    const QPoint corner = report.contentRect().topLeft().toPoint();
    for (int i = 0; i < kPatches; ++i) {
        const QImage exact = pictures[i].convertToFormat(QImage::Format_RGB32);
        QImage expected(exact.size(), QImage::Format_RGB32);
        expected.fill(colours[i]);
        QVERIFY2(exact == expected, qPrintable(colours[i].name()));
        // The order on the paper is that of drawing; poppler cuts fractions off when it scales.
        QVERIFY2(page.isNear(corner + QPoint(i % 6 * 80 + 36, i / 6 * 80 + 36), colours[i], 1),
                 qPrintable(colours[i].name()));
    }
}

void TestReportPdfPictures::patchesOfATableKeepTheirExactColours()
{
    constexpr int kPatches = 16;
    TXTable table(4, false);
    QList<QColor> colours;
    QRandomGenerator random(16);
    for (int i = 0; i < kPatches; ++i) {
        colours.append(QColor::fromRgb(0xff000000U | random.generate()));
        table.addCell(cell(patch({30, 30}, colours.last()), {38, 38}));
    }
    TXReportDocument report;
    report.addTable(table, reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<QImage> pictures = pdf.pixelsOfPictures(1);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), kPatches);
    for (int i = 0; i < kPatches; ++i) {
        QCOMPARE(pictures[i].pixelColor(0, 0).name(), colours[i].name());
        QCOMPARE(pictures[i].pixelColor(pictures[i].rect().center()).name(), colours[i].name());
    }
}

void TestReportPdfPictures::pictureAtItsOwnResolutionKeepsEachPixel()
{
    const QPixmap source = noise({200, 100});
    TXGraphicsScene scene;
    scene.drawImageInRect(source, QRectF(20, 30, 72, 36), TXAlignLeft, TXAlignTop);
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<QImage> pictures = pdf.pixelsOfPictures(1);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(pictures[0].convertToFormat(QImage::Format_RGB32),
             source.toImage().convertToFormat(QImage::Format_RGB32));
}

void TestReportPdfPictures::pictureStandsInItsRectangle()
{
    // 100 by 50 in a room of 100 by 100: 25 below the top.
    TXGraphicsScene scene;
    scene.drawImageInRect(patch({400, 200}, Qt::darkRed), QRectF(20, 30, 100, 100),
                          TXAlignHorizontallyCentred, TXAlignVerticallyCentred);
    TXReportDocument report;
    report.setPageLayout(layoutOf({400, 400}, {40, 50, 40, 50}));
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);
    constexpr int kPixelsPerPoint = 4;
    const PixelProbe page(pdf.rendered(1, 72.0 * kPixelsPerPoint));

    QCOMPARE(pdf.errorText(), QString());
    const QRect expected(60 * kPixelsPerPoint, 105 * kPixelsPerPoint, 100 * kPixelsPerPoint,
                         50 * kPixelsPerPoint);
    const QRect inside = expected.adjusted(1, 1, -1, -1);
    const QRect outside = expected.adjusted(-2, -2, 2, 2);
    for (const QPoint &place : {inside.topLeft(), inside.bottomRight()}) {
        QVERIFY2(page.isNear(place, Qt::darkRed, 2), qPrintable(page.at(place).name()));
    }
    for (const QPoint &place :
         {outside.topLeft(), outside.bottomRight(), QPoint(outside.left(), expected.center().y()),
          QPoint(expected.center().x(), outside.top()),
          QPoint(outside.right(), expected.center().y()),
          QPoint(expected.center().x(), outside.bottom())}) {
        QVERIFY2(page.isNear(place, Qt::white, 2), qPrintable(page.at(place).name()));
    }
}

void TestReportPdfPictures::transparentPictureShowsWhatIsBelow()
{
    TXGraphicsScene scene;
    scene.drawRect({0, 0, 100, 100}, Qt::NoPen, QColor(0, 0, 200), false);
    scene.drawImageInRect(patch({100, 100}, QColor(255, 0, 0, 128)), QRectF(10, 10, 72, 72),
                          TXAlignLeft, TXAlignTop);
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const PixelProbe page(pdf.rendered(1, 72));

    QCOMPARE(pdf.errorText(), QString());
    const QPoint corner = report.contentRect().topLeft().toPoint();
    QVERIFY(page.isNear(corner + QPoint(5, 5), QColor(0, 0, 200), 1));
    const QPoint mixed = corner + QPoint(46, 46);
    QVERIFY2(page.isNear(mixed, QColor(128, 0, 100), 3), qPrintable(page.at(mixed).name()));
}

int main(int argc, char **argv)
{
    return runTest<TestReportPdfPictures>(argc, argv);
}

#include "tst_ReportPdfPictures.moc"
