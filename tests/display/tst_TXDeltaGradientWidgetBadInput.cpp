#include "TXDeltaGradientWidget.h"

#include "DeltaBarHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <cmath>
#include <limits>

namespace {

const QList<double> kOddNumbers = {-0.0,
                                   -1,
                                   -100,
                                   1e9,
                                   -1e9,
                                   3e9,
                                   1e18,
                                   1e38,
                                   1e39,
                                   -1e39,
                                   1e300,
                                   -1e300,
                                   std::numeric_limits<double>::max(),
                                   double(INFINITY),
                                   -double(INFINITY),
                                   double(NAN),
                                   std::numeric_limits<double>::denorm_min()};

} // namespace

/// Numbers that no comparison of pictures comes to.
class TestTXDeltaGradientWidgetBadInput : public TestBase
{
    Q_OBJECT

private slots:
    void everyNumberIsPainted();
    void placesFarOutsideShowNothing();
    void notANumberStandsAtZero();
    void widgetOfAnySizeIsPainted_data();
    void widgetOfAnySizeIsPainted();
};

void TestTXDeltaGradientWidgetBadInput::everyNumberIsPainted()
{
    DeltaBar bar;
    for (const double delta : kOddNumbers) {
        for (const double percent : kOddNumbers) {
            bar.widget->setAverage(delta, percent);
            bar.widget->setLimit(delta, percent);
            bar.widget->setMax(delta);
            const PixelProbe probe(*bar.widget);
            QVERIFY(probe.image().height() > 0);
            QCOMPARE(probe.at({60, bar.valueTop()}), QColor("#efeedc"));
        }
    }
}

void TestTXDeltaGradientWidgetBadInput::placesFarOutsideShowNothing()
{
    DeltaBar bar;
    const auto pictureAt = [&](double percent) {
        bar.widget->setAverage(1, percent);
        return PixelProbe(*bar.widget).image();
    };
    // The mark and the text are gone.
    const QImage outside = pictureAt(1000);

    for (const double percent : {10000.0, 1e6, 1e9, 1e39, 1e300, double(INFINITY)}) {
        QCOMPARE(pictureAt(percent), outside);
        QCOMPARE(pictureAt(-percent), outside);
    }
    QVERIFY(pictureAt(50) != outside);
}

void TestTXDeltaGradientWidgetBadInput::notANumberStandsAtZero()
{
    DeltaBar bar;
    const auto pictureAt = [&](double percent) {
        bar.widget->setAverage(1, percent);
        return PixelProbe(*bar.widget).image();
    };

    QCOMPARE(pictureAt(std::nan("")), pictureAt(0));
    QVERIFY(pictureAt(std::nan("")) != pictureAt(50));
}

void TestTXDeltaGradientWidgetBadInput::widgetOfAnySizeIsPainted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addRow("one pixel") << QSize(1, 1);
    QTest::addRow("one column") << QSize(1, 80);
    QTest::addRow("two columns") << QSize(2, 80);
    QTest::addRow("one row") << QSize(400, 1);
    QTest::addRow("wider than a coordinate of the rasterizer") << QSize(40000, 70);
}

void TestTXDeltaGradientWidgetBadInput::widgetOfAnySizeIsPainted()
{
    QFETCH(QSize, size);
    DeltaBar bar;
    bar.widget->setAverage(1, 20);
    bar.widget->setLimit(2, 50);
    bar.widget->setMax(3);

    bar.widget->resize(size);

    QCOMPARE(PixelProbe(*bar.widget).image().size(), size);
    QCOMPARE(PixelProbe(*bar.widget, 2).image().size(), 2 * size);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDeltaGradientWidgetBadInput>(argc, argv);
}

#include "tst_TXDeltaGradientWidgetBadInput.moc"
