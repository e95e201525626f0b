#include "ColourDifference.h"
#include "DifferencePicture.h"
#include "LabColour.h"
#include "TestBase.h"

#include <QColor>
#include <QRandomGenerator>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

namespace {

/// Any colours, with anything in the bits that do not count.
QImage randomPicture(const QSize &size, quint32 seed)
{
    QRandomGenerator numbers(seed);
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = numbers.generate();
        }
    }
    return picture;
}

} // namespace

class TestDifferencePicture : public TestBase
{
    Q_OBJECT

private slots:
    void differencesHaveTheirColours_data();
    void differencesHaveTheirColours();
    void differenceIsThatOfTheColoursInLab();
    void everyPixelHasTheColourOfItsDifference();
    void oneColourAgainstManyIsNotMixedUp();
    void samePicturesAreWhite();
    void picturesOfOtherSizesHaveTheirCommonPart();
    void nothingComesOfNoPicture();
    void cancelledWorkGivesNothing();

private:
    std::atomic_bool isCancelled = false;
};

void TestDifferencePicture::differencesHaveTheirColours_data()
{
    QTest::addColumn<double>("delta");
    QTest::addColumn<QString>("colour");

    QTest::newRow("none") << 0.0 << "#ffffff";
    QTest::newRow("below 0") << -3.0 << "#ffffff";
    QTest::newRow("half of what is close") << 2.5 << "#80cc80";
    QTest::newRow("just close") << 5.0 << "#009900";
    QTest::newRow("no more") << std::nextafter(5.0, 6.0) << "#ffb200";
    QTest::newRow("in the middle of the rest") << 10.0 << "#995900";
    QTest::newRow("largest") << 15.0 << "#330000";
    QTest::newRow("beyond") << 1e300 << "#330000";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "#330000";
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "#330000";
}

void TestDifferencePicture::differencesHaveTheirColours()
{
    QFETCH(const double, delta);
    QFETCH(const QString, colour);

    QCOMPARE(QColor(DifferencePicture::colourOf(delta)).name(), colour);
}

void TestDifferencePicture::differenceIsThatOfTheColoursInLab()
{
    const LabColour dark = {30, 20, -10};
    const LabColour light = {60, -5, 25};
    const double wanted = ColourDifference::ciede2000(dark, light);

    const double delta =
        DifferencePicture::difference(dark.toScreen().rgb(), light.toScreen().rgb());

    // The colours are rounded to those of a screen.
    QVERIFY2(std::abs(delta - wanted) < 0.4, qPrintable(QString("%1 %2").arg(delta).arg(wanted)));
    QCOMPARE(DifferencePicture::difference(qRgba(1, 2, 3, 4), qRgb(1, 2, 3)), 0.0);
}

/// Whatever is remembered of pairs of colours.
void TestDifferencePicture::everyPixelHasTheColourOfItsDifference()
{
    constexpr QSize kSize(400, 300);
    const QImage one = randomPicture(kSize, 1);
    QImage other = randomPicture(kSize, 2);
    // Pairs that come again.
    for (int y = 0; y < kSize.height(); y += 2) {
        std::copy_n(other.constScanLine(0), other.bytesPerLine(), other.scanLine(y));
    }

    const QImage picture = DifferencePicture::make(one, other, isCancelled);

    QCOMPARE(picture.size(), kSize);
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = y % 7; x < kSize.width(); x += 7) {
            const double delta = DifferencePicture::difference(one.pixel(x, y), other.pixel(x, y));
            QCOMPARE(picture.pixel(x, y), DifferencePicture::colourOf(delta));
        }
    }
}

/// More pairs than are remembered, half of each the same.
void TestDifferencePicture::oneColourAgainstManyIsNotMixedUp()
{
    constexpr QSize kSize(600, 400);
    const QImage many = randomPicture(kSize, 8);
    QImage grey(kSize, QImage::Format_RGB32);
    grey.fill(Qt::gray);

    const QImage picture = DifferencePicture::make(grey, many, isCancelled);

    QCOMPARE(picture, DifferencePicture::make(many, grey, isCancelled));
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = y % 9; x < kSize.width(); x += 9) {
            const double delta = DifferencePicture::difference(grey.pixel(x, y), many.pixel(x, y));
            QCOMPARE(picture.pixel(x, y), DifferencePicture::colourOf(delta));
        }
    }
}

void TestDifferencePicture::samePicturesAreWhite()
{
    constexpr QSize kSize(64, 64);
    const QImage picture = randomPicture(kSize, 3);
    QImage white(kSize, QImage::Format_RGB32);
    white.fill(Qt::white);

    QCOMPARE(DifferencePicture::make(picture, picture, isCancelled), white);

    // Black too, which is what an empty memory is filled with.
    QImage black(kSize, QImage::Format_RGB32);
    black.fill(Qt::black);
    QCOMPARE(DifferencePicture::make(black, black, isCancelled), white);
}

void TestDifferencePicture::picturesOfOtherSizesHaveTheirCommonPart()
{
    const QImage wide = randomPicture(QSize(50, 10), 4);
    const QImage high = randomPicture(QSize(20, 40), 5);

    const QImage picture = DifferencePicture::make(wide, high, isCancelled);

    QCOMPARE(picture.size(), QSize(20, 10));
    QCOMPARE(picture.pixel(19, 9),
             DifferencePicture::colourOf(
                 DifferencePicture::difference(wide.pixel(19, 9), high.pixel(19, 9))));
}

void TestDifferencePicture::nothingComesOfNoPicture()
{
    const QImage picture = randomPicture(QSize(5, 5), 6);
    QVERIFY(DifferencePicture::make({}, picture, isCancelled).isNull());
    QVERIFY(DifferencePicture::make(picture, {}, isCancelled).isNull());
}

void TestDifferencePicture::cancelledWorkGivesNothing()
{
    const QImage picture = randomPicture(QSize(5, 5), 7);
    const std::atomic_bool cancelled = true;
    QVERIFY(DifferencePicture::make(picture, picture, cancelled).isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestDifferencePicture>(argc, argv);
}

#include "tst_DifferencePicture.moc"
