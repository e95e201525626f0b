#include "ChartPatches.h"
#include "ScreenColour.h"
#include "TestBase.h"

#include <cmath>

class TestScreenColour : public TestBase
{
    Q_OBJECT

private slots:
    void lightFollowsTheCurve_data();
    void lightFollowsTheCurve();
    void channelsOutsideAreBroughtToTheEnds();
    void everyChannelComesBack();
    void labOfAColourIsThePublishedOne_data();
    void labOfAColourIsThePublishedOne();
    void labIsTheOtherWayOfToScreen();
};

void TestScreenColour::lightFollowsTheCurve_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("light");

    QTest::newRow("black") << 0 << 0.0;
    QTest::newRow("on the straight part") << 10 << 10 / 255.0 / 12.92;
    QTest::newRow("a fifth of the light") << 124 << 0.2016;
    QTest::newRow("half of the light") << 188 << 0.5029;
    QTest::newRow("white") << 255 << 1.0;
}

void TestScreenColour::lightFollowsTheCurve()
{
    QFETCH(const int, channel);
    QFETCH(const double, light);

    QVERIFY2(std::abs(ScreenColour::lightOf(channel) - light) < 0.0001,
             qPrintable(QString::number(ScreenColour::lightOf(channel))));
}

void TestScreenColour::channelsOutsideAreBroughtToTheEnds()
{
    QCOMPARE(ScreenColour::lightOf(-1), 0.0);
    QCOMPARE(ScreenColour::lightOf(256), 1.0);
    QCOMPARE(ScreenColour::channelOf(-0.5), 0);
    QCOMPARE(ScreenColour::channelOf(1.5), 255);
}

void TestScreenColour::everyChannelComesBack()
{
    for (int channel = 0; channel <= 255; ++channel) {
        QCOMPARE(ScreenColour::channelOf(ScreenColour::lightOf(channel)), channel);
    }
}

/// By the calculators of colour spaces on the web.
void TestScreenColour::labOfAColourIsThePublishedOne_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<double>("lightness");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");

    QTest::newRow("black") << QColor("#000000") << 0.0 << 0.0 << 0.0;
    QTest::newRow("white") << QColor("#ffffff") << 100.0 << 0.0 << 0.0;
    QTest::newRow("red") << QColor("#ff0000") << 54.29 << 80.81 << 69.89;
    QTest::newRow("green") << QColor("#00ff00") << 87.82 << -79.29 << 80.99;
    QTest::newRow("blue") << QColor("#0000ff") << 29.57 << 68.30 << -112.03;
    QTest::newRow("grey") << QColor("#808080") << 53.59 << 0.0 << 0.0;
}

void TestScreenColour::labOfAColourIsThePublishedOne()
{
    QFETCH(const QColor, colour);
    QFETCH(const double, lightness);
    QFETCH(const double, a);
    QFETCH(const double, b);
    constexpr double kTolerance = 0.02;

    const LabColour lab = ScreenColour::labOf(colour.rgb());

    QVERIFY2(std::abs(lab.lightness - lightness) < kTolerance && std::abs(lab.a - a) < kTolerance
                 && std::abs(lab.b - b) < kTolerance,
             qPrintable(QString("%1 %2 %3").arg(lab.lightness).arg(lab.a).arg(lab.b)));
}

void TestScreenColour::labIsTheOtherWayOfToScreen()
{
    // Half a step of a channel.
    constexpr double kRounding = 0.8;
    for (const ChartPatch &patch : chartPatches()) {
        if (!patch.newer.isOnScreen()) {
            continue;
        }
        const LabColour lab = ScreenColour::labOf(patch.newer.toScreen().rgb());
        QVERIFY2(std::abs(lab.lightness - patch.newer.lightness) < kRounding
                     && std::abs(lab.a - patch.newer.a) < kRounding
                     && std::abs(lab.b - patch.newer.b) < kRounding,
                 patch.name);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestScreenColour>(argc, argv);
}

#include "tst_ScreenColour.moc"
