#include "TXDisplaySpecralGradient.h"

#include "TestBase.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <limits>

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
const QColor kRed(255, 0, 0, 130);

/// The table of colours, row by row.
QColor tableColor(qint64 l, qint64 start)
{
    float share = 0;
    const auto v = [&] {
        return int(share * 255.0);
    };
    if (l >= 580) {
        share = float(645 - l) / 65;
        return {255, v(), 0, 130};
    }
    if (l >= 510) {
        share = float(l - 510) / 70;
        return {v(), 255, 0, 130};
    }
    if (l >= 490) {
        share = float(510 - l) / 20;
        return {0, 255, v(), 130};
    }
    if (l >= 440) {
        share = float(l - 440) / 50;
        return {0, v(), 255, 130};
    }
    share = float(440 - l) / float(440 - start);
    return {v(), 0, 255, 130};
}

/// Stop after stop, set the plain way.
QGradientStops plainStops(qint64 start, qint64 end)
{
    QLinearGradient gradient;
    for (qint64 l = start; l < end && l < 645; l += 10) {
        gradient.setColorAt(double(float(l - start) / float(end - start)), tableColor(l, start));
    }
    gradient.setColorAt(1.0, kRed);
    return gradient.stops();
}

QString inWords(const QGradientStops &stops)
{
    QStringList lines;
    for (const auto &[position, color] : stops) {
        lines.append(QString::number(position, 'g', 17) + " " + color.name(QColor::HexArgb));
    }
    return lines.join("\n");
}

} // namespace

class TestTXDisplaySpecralGradient : public TestBase
{
    Q_OBJECT

private slots:
    void gradientSpansWhatIsPainted();
    void stopsAreThoseOfTheTable_data();
    void stopsAreThoseOfTheTable();
    void visibleSpectrumHasKnownStops();
    void everyStartGivesTheStopsOfTheTable();
    void nothingToSpanIsRed_data();
    void nothingToSpanIsRed();
    void tooManyStopsAreRed();
    void spectrumIsPaintedFromLeftToRight();
};

void TestTXDisplaySpecralGradient::gradientSpansWhatIsPainted()
{
    for (const QLinearGradient &gradient :
         {TXDisplaySpecralGradient(380, 780), TXDisplaySpecralGradient(500, 500)}) {
        QCOMPARE(gradient.start(), QPointF(0, 1));
        QCOMPARE(gradient.finalStop(), QPointF(1, 1));
        QCOMPARE(gradient.coordinateMode(), QGradient::StretchToDeviceMode);
        QCOMPARE(gradient.spread(), QGradient::PadSpread);
    }
}

void TestTXDisplaySpecralGradient::stopsAreThoseOfTheTable_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("count");
    QTest::addRow("visible") << 380 << 780 << 28;
    QTest::addRow("as measured") << 380 << 730 << 28;
    QTest::addRow("with ultraviolet") << 300 << 1100 << 36;
    QTest::addRow("odd numbers") << 383 << 727 << 28;
    QTest::addRow("short") << 400 << 405 << 2;
    QTest::addRow("end is not reached") << 400 << 410 << 2;
    QTest::addRow("end is passed") << 400 << 411 << 3;
    QTest::addRow("from 440") << 440 << 700 << 22;
    QTest::addRow("from 439") << 439 << 700 << 22;
    QTest::addRow("from 450") << 450 << 700 << 21;
    QTest::addRow("within blue") << 441 << 489 << 6;
    QTest::addRow("within cyan") << 490 << 509 << 3;
    QTest::addRow("up to red") << 580 << 645 << 8;
    QTest::addRow("last stop before red") << 644 << 700 << 2;
    QTest::addRow("within red") << 645 << 700 << 1;
    QTest::addRow("infrared") << 900 << 1700 << 1;
    QTest::addRow("ultraviolet") << 200 << 380 << 19;
    QTest::addRow("from 0") << 0 << 780 << 66;
    QTest::addRow("negative") << -500 << -100 << 41;
    QTest::addRow("around 0") << -35 << 1000 << 69;
    QTest::addRow("as many as may be") << -99355 << 780 << 10001;
    QTest::addRow("endless red") << 400 << kMost << 26;
    QTest::addRow("only red") << 700 << kMost << 1;
    QTest::addRow("at the end of numbers") << kMost - 1 << kMost << 1;
    QTest::addRow("at the start of numbers") << kLeast << kLeast + 25 << 4;
}

void TestTXDisplaySpecralGradient::stopsAreThoseOfTheTable()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, count);

    const QGradientStops stops = TXDisplaySpecralGradient(start, end).stops();

    QCOMPARE(inWords(stops), inWords(plainStops(start, end)));
    QCOMPARE(stops.size(), count);
    for (const QGradientStop &stop : stops) {
        QVERIFY(stop.second.isValid());
        QCOMPARE(stop.second.alpha(), 130);
    }
    QCOMPARE(stops.constLast().first, 1.0);
    QCOMPARE(stops.constLast().second, kRed);
}

void TestTXDisplaySpecralGradient::visibleSpectrumHasKnownStops()
{
    const QGradientStops stops = TXDisplaySpecralGradient(380, 780).stops();

    const auto colorAt = [&](int wavelength) {
        return stops.at((wavelength - 380) / 10).second;
    };
    QCOMPARE(stops.at(26).first, double(260 / 400.0F));
    QCOMPARE(colorAt(380), QColor(255, 0, 255, 130));
    QCOMPARE(colorAt(390), QColor(212, 0, 255, 130));
    QCOMPARE(colorAt(430), QColor(42, 0, 255, 130));
    QCOMPARE(colorAt(440), QColor(0, 0, 255, 130));
    QCOMPARE(colorAt(450), QColor(0, 51, 255, 130));
    QCOMPARE(colorAt(490), QColor(0, 255, 255, 130));
    QCOMPARE(colorAt(500), QColor(0, 255, 127, 130));
    QCOMPARE(colorAt(510), QColor(0, 255, 0, 130));
    QCOMPARE(colorAt(570), QColor(218, 255, 0, 130));
    QCOMPARE(colorAt(580), QColor(255, 255, 0, 130));
    QCOMPARE(colorAt(640), QColor(255, 19, 0, 130));
}

void TestTXDisplaySpecralGradient::everyStartGivesTheStopsOfTheTable()
{
    for (int start = -300; start <= 700; ++start) {
        for (const int end : {start + 7, 640, 700, 780, kMost}) {
            const QGradientStops stops = TXDisplaySpecralGradient(start, end).stops();
            if (start < end && stops != plainStops(start, end)) {
                QFAIL(qPrintable(QString("%1 to %2:\n").arg(start).arg(end) + inWords(stops)));
            }
        }
    }
}

void TestTXDisplaySpecralGradient::nothingToSpanIsRed_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addRow("equal") << 500 << 500;
    QTest::addRow("reversed") << 780 << 380;
    QTest::addRow("reversed by one") << 501 << 500;
    QTest::addRow("all numbers, reversed") << kMost << kLeast;
    QTest::addRow("both the least") << kLeast << kLeast;
    QTest::addRow("both the largest") << kMost << kMost;
}

void TestTXDisplaySpecralGradient::nothingToSpanIsRed()
{
    QFETCH(int, start);
    QFETCH(int, end);

    QCOMPARE(TXDisplaySpecralGradient(start, end).stops(), (QGradientStops{{1.0, kRed}}));
}

void TestTXDisplaySpecralGradient::tooManyStopsAreRed()
{
    const QGradientStops red{{1.0, kRed}};
    QElapsedTimer clock;
    clock.start();

    QCOMPARE(TXDisplaySpecralGradient(-99356, 780).stops(), red);
    QCOMPARE(TXDisplaySpecralGradient(-1000000, 645).stops(), red);
    QCOMPARE(TXDisplaySpecralGradient(kLeast, 780).stops(), red);
    QCOMPARE(TXDisplaySpecralGradient(kLeast, kMost).stops(), red);
    QCOMPARE(TXDisplaySpecralGradient(kLeast, 0).stops(), red);

    // Each of the last three would have 200 million stops.
    QVERIFY(clock.elapsed() < 1000);
}

void TestTXDisplaySpecralGradient::spectrumIsPaintedFromLeftToRight()
{
    QImage image(401, 20, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(image.rect(), TXDisplaySpecralGradient(380, 780));
    painter.end();

    const auto hue = [&](int wavelength) {
        return image.pixelColor(wavelength - 380, 10).hue();
    };
    QVERIFY(qAbs(hue(381) - 300) < 5);
    QVERIFY(qAbs(hue(440) - 240) < 5);
    QVERIFY(qAbs(hue(490) - 180) < 5);
    QVERIFY(qAbs(hue(510) - 120) < 5);
    QVERIFY(qAbs(hue(580) - 60) < 5);
    QVERIFY(hue(778) < 5 || hue(778) > 355);
    QCOMPARE(image.pixelColor(60, 0), image.pixelColor(60, 19));
    // The white shines through.
    QVERIFY(image.pixelColor(60, 10).red() > 100);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDisplaySpecralGradient>(argc, argv);
}

#include "tst_TXDisplaySpecralGradient.moc"
