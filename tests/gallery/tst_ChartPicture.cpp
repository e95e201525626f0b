#include "ChartPatches.h"
#include "ChartPicture.h"
#include "TestBase.h"

#include <QSet>

#include <cstdlib>

namespace {

QSet<QRgb> coloursIn(const QImage &picture, const QRect &area)
{
    QSet<QRgb> colours;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            colours.insert(picture.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

class TestChartPicture : public TestBase
{
    Q_OBJECT

private slots:
    void everyPatchIsFilledWithItsPublishedColour();
    void patchesStandInTheChartsRows();
    void placesAreFoundOnTheirPatches();
    void wedgeGoesFromBlackToWhite();
    void whatThereIsNotHasNoPlace();
    void numbersStandInSmallPrintBelowThePatches();
    void finestLinesAreAPixelWide();
};

void TestChartPicture::everyPatchIsFilledWithItsPublishedColour()
{
    const QImage picture = ChartPicture::make();

    QCOMPARE(picture.size(), ChartPicture::kSize);
    QVERIFY(!picture.hasAlphaChannel());
    for (int i = 0; i < kChartPatches; ++i) {
        const QRgb wanted = chartPatches()[size_t(i)].newer.toScreen().rgb();
        QCOMPARE(coloursIn(picture, ChartPicture::patchRect(i)), QSet<QRgb>{wanted});
    }
    QCOMPARE(picture.pixel(0, 0), ChartPicture::frameColour().rgb());
}

void TestChartPicture::patchesStandInTheChartsRows()
{
    QRect before;
    for (int i = 0; i < kChartPatches; ++i) {
        const QRect patch = ChartPicture::patchRect(i);
        QVERIFY(QRect(QPoint(), ChartPicture::kSize).contains(patch));
        const bool isFirstOfRow = i % kChartColumns == 0;
        QVERIFY(isFirstOfRow ? patch.top() > before.bottom() : patch.left() > before.right());
        QVERIFY(isFirstOfRow || patch.top() == before.top());
        before = patch;
    }
}

void TestChartPicture::placesAreFoundOnTheirPatches()
{
    for (int i = 0; i < kChartPatches; ++i) {
        const QRect patch = ChartPicture::patchRect(i);
        QCOMPARE(ChartPicture::patchAt(patch.topLeft()), i);
        QCOMPARE(ChartPicture::patchAt(patch.bottomRight()), i);
        QCOMPARE(ChartPicture::patchAt(patch.topLeft() - QPoint(1, 1)), -1);
        QCOMPARE(ChartPicture::patchAt(patch.bottomRight() + QPoint(1, 1)), -1);
    }
    QCOMPARE(ChartPicture::patchAt(QPoint(-5, 100'000)), -1);
}

void TestChartPicture::wedgeGoesFromBlackToWhite()
{
    const QImage picture = ChartPicture::make();

    int lightness = -1;
    for (int i = 0; i < ChartPicture::kWedgeSteps; ++i) {
        const QColor colour = ChartPicture::wedgeColour(i);
        QCOMPARE(coloursIn(picture, ChartPicture::wedgeRect(i)), QSet<QRgb>{colour.rgb()});
        QVERIFY(colour.green() > lightness);
        QVERIFY(std::abs(colour.red() - colour.blue()) <= 1);
        lightness = colour.green();
    }
    QCOMPARE(ChartPicture::wedgeColour(0).name(), "#000000");
    QCOMPARE(ChartPicture::wedgeColour(ChartPicture::kWedgeSteps - 1).name(), "#ffffff");
}

void TestChartPicture::whatThereIsNotHasNoPlace()
{
    QVERIFY(ChartPicture::patchRect(-1).isNull());
    QVERIFY(ChartPicture::patchRect(kChartPatches).isNull());
    QVERIFY(ChartPicture::wedgeRect(-1).isNull());
    QVERIFY(ChartPicture::wedgeRect(ChartPicture::kWedgeSteps).isNull());
}

void TestChartPicture::numbersStandInSmallPrintBelowThePatches()
{
    const QImage picture = ChartPicture::make();
    for (int i = 0; i < kChartPatches; ++i) {
        const QRect patch = ChartPicture::patchRect(i);
        const QRect print(patch.left(), patch.bottom() + 1, patch.width(), 24);
        QVERIFY(coloursIn(picture, print).size() > 2);
    }
}

void TestChartPicture::finestLinesAreAPixelWide()
{
    const QImage picture = ChartPicture::make();
    for (int x = 60; x < 168; x += 2) {
        QVERIFY(picture.pixelColor(x, 1130).lightness() > 150);
        QCOMPARE(picture.pixel(x + 1, 1130), ChartPicture::frameColour().rgb());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestChartPicture>(argc, argv);
}

#include "tst_ChartPicture.moc"
