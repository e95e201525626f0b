#include "ChartPicture.h"
#include "PrintSimulation.h"
#include "ScreenColour.h"
#include "TestBase.h"

#include <QColor>

#include <cmath>

using PrintSimulation::Ink;

namespace {

constexpr Ink kInks[] = {Ink::Cyan, Ink::Magenta, Ink::Yellow};

/// The channel that an ink keeps back.
int channelOf(Ink ink, QRgb colour)
{
    return ink == Ink::Cyan ? qRed(colour) : ink == Ink::Magenta ? qGreen(colour) : qBlue(colour);
}

QImage uniform(QRgb colour)
{
    QImage picture(PrintSimulation::kRipplePeriod, PrintSimulation::kRipplePeriod,
                   QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

} // namespace

class TestPrintSimulation : public TestBase
{
    Q_OBJECT

private slots:
    void whiteBecomesPaperAndBlackBecomesInk();
    void dotsGrowMostInTheMiddle();
    void screensRepeatAndCancelOut();
    void screensAreTurnedAgainstEachOther();
    void channelsFollowTheFormula_data();
    void channelsFollowTheFormula();
    void everyPixelFollowsItsScreen();
    void greysStayInOrder();
    void pictureOfAnyFormatIsPrinted();
    void noPictureMakesNoPrint();
};

/// No dots, no screen: nothing is left but paper, or all is covered.
void TestPrintSimulation::whiteBecomesPaperAndBlackBecomesInk()
{
    const QImage white = PrintSimulation::make(uniform(qRgb(255, 255, 255)));
    const QImage black = PrintSimulation::make(uniform(qRgb(0, 0, 0)));

    QImage paper = uniform(PrintSimulation::kPaper.toScreen().rgb());
    QImage ink = uniform(PrintSimulation::kBlack.toScreen().rgb());
    QCOMPARE(white, paper);
    QCOMPARE(black, ink);
}

void TestPrintSimulation::dotsGrowMostInTheMiddle()
{
    QCOMPARE(PrintSimulation::grown(0), 0.0);
    QCOMPARE(PrintSimulation::grown(1), 1.0);
    QCOMPARE(PrintSimulation::grown(0.5), 0.5 + PrintSimulation::kDotGain);
    QVERIFY(PrintSimulation::grown(0.3) - 0.3 < PrintSimulation::kDotGain);
}

void TestPrintSimulation::screensRepeatAndCancelOut()
{
    constexpr int kPeriod = PrintSimulation::kRipplePeriod;
    for (const Ink ink : kInks) {
        double sum = 0;
        for (int y = 0; y < kPeriod; ++y) {
            for (int x = 0; x < kPeriod; ++x) {
                const double ripple = PrintSimulation::ripple(ink, x, y);
                QVERIFY(ripple >= -1 && ripple <= 1);
                QVERIFY(std::abs(ripple - PrintSimulation::ripple(ink, x + kPeriod, y)) < 1e-9);
                QVERIFY(std::abs(ripple - PrintSimulation::ripple(ink, x, y + kPeriod)) < 1e-9);
                sum += ripple;
            }
        }
        QCOMPARE(PrintSimulation::ripple(ink, 0, 0), 1.0);
        QVERIFY(std::abs(sum) < 1e-6);
    }
}

void TestPrintSimulation::screensAreTurnedAgainstEachOther()
{
    // The next dot of each.
    QVERIFY(PrintSimulation::ripple(Ink::Cyan, 6, 2) > 0.999);
    QVERIFY(PrintSimulation::ripple(Ink::Magenta, 2, 6) > 0.999);
    QVERIFY(PrintSimulation::ripple(Ink::Yellow, 4, 2) > 0.999);
    QVERIFY(PrintSimulation::ripple(Ink::Magenta, 6, 2) < 0.9);
    QVERIFY(PrintSimulation::ripple(Ink::Cyan, 4, 2) < 0.9);
}

/// Worked out by hand: coverage, growth, screen, light.
void TestPrintSimulation::channelsFollowTheFormula_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("ripple");

    for (const int channel : {0, 1, 40, 124, 188, 230, 255}) {
        for (const double ripple : {-1.0, 0.0, 0.5, 1.0}) {
            QTest::addRow("%d at %.1f", channel, ripple) << channel << ripple;
        }
    }
}

void TestPrintSimulation::channelsFollowTheFormula()
{
    QFETCH(const int, channel);
    QFETCH(const double, ripple);
    const double a = 1 - ScreenColour::lightOf(channel);
    const double g = a + 4 * PrintSimulation::kDotGain * a * (1 - a);
    const double s = g + 4 * PrintSimulation::kRipple * g * (1 - g) * ripple;

    for (const Ink ink : kInks) {
        const QRgb paper = PrintSimulation::kPaper.toScreen().rgb();
        const QRgb black = PrintSimulation::kBlack.toScreen().rgb();
        const double light = ScreenColour::lightOf(channelOf(ink, paper)) * (1 - s)
            + ScreenColour::lightOf(channelOf(ink, black)) * s;
        QCOMPARE(PrintSimulation::printed(ink, channel, ripple), ScreenColour::channelOf(light));
    }
}

/// To within the steps in which the ripple is taken.
void TestPrintSimulation::everyPixelFollowsItsScreen()
{
    const QImage chart = ChartPicture::make();

    const QImage print = PrintSimulation::make(chart);

    QCOMPARE(print.size(), chart.size());
    for (int y = 3; y < chart.height(); y += 37) {
        for (int x = 1; x < chart.width(); x += 11) {
            for (const Ink ink : kInks) {
                const int wanted = PrintSimulation::printed(ink, channelOf(ink, chart.pixel(x, y)),
                                                            PrintSimulation::ripple(ink, x, y));
                QVERIFY(std::abs(channelOf(ink, print.pixel(x, y)) - wanted) <= 1);
            }
        }
    }
}

void TestPrintSimulation::greysStayInOrder()
{
    for (const Ink ink : kInks) {
        for (int channel = 1; channel <= 255; ++channel) {
            QVERIFY(PrintSimulation::printed(ink, channel, 0)
                    >= PrintSimulation::printed(ink, channel - 1, 0));
        }
    }
}

void TestPrintSimulation::pictureOfAnyFormatIsPrinted()
{
    const QImage picture = uniform(qRgb(90, 160, 30));
    const QImage grey = uniform(qRgb(77, 77, 77));

    QCOMPARE(PrintSimulation::make(picture.convertToFormat(QImage::Format_RGB888)),
             PrintSimulation::make(picture));
    QCOMPARE(PrintSimulation::make(grey.convertToFormat(QImage::Format_Grayscale8)),
             PrintSimulation::make(grey));
}

void TestPrintSimulation::noPictureMakesNoPrint()
{
    QVERIFY(PrintSimulation::make({}).isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestPrintSimulation>(argc, argv);
}

#include "tst_PrintSimulation.moc"
