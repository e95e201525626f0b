#include "ColourDifferencePageTest.h"
#include "PixelProbe.h"

#include <QFontMetricsF>

#include <algorithm>

/// The spectrum of the page, and the range of wavelengths that it shows.
class TestColourDifferencePageSpectrum : public ColourDifferencePageTest
{
    Q_OBJECT

private slots:
    void spectrumFollowsTheRange_data();
    void spectrumFollowsTheRange();
    void wavelengthsAreLabelledInEveryRange_data();
    void wavelengthsAreLabelledInEveryRange();
    void curveReachesItsPeak();
    void rangeKeepsItsOrder();
};

void TestColourDifferencePageSpectrum::spectrumFollowsTheRange_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("leftHue");
    QTest::addColumn<int>("middleHue");
    QTest::addColumn<int>("rightHue");
    QTest::newRow("all") << 380 << 780 << 300 << 60 << 0;
    QTest::newRow("blue") << 440 << 490 << 240 << 208 << 180;
    QTest::newRow("green") << 500 << 600 << 150 << 86 << 42;
    QTest::newRow("one step") << 505 << 515 << 135 << 120 << 116;
    QTest::newRow("red") << 660 << 700 << 0 << 0 << 0;
    QTest::newRow("beyond the eye") << 300 << 830 << 300 << 76 << 0;
}

void TestColourDifferencePageSpectrum::spectrumFollowsTheRange()
{
    QFETCH(int, first);
    QFETCH(int, last);
    applyGalleryColours(GalleryColours::Light);
    box("First wavelength").setValue(first);
    box("Last wavelength").setValue(last);
    const auto distance = [&](double share, int hue) {
        const double edge = QFontMetricsF(plot().font()).horizontalAdvance("1.0") + 6;
        const double x = edge + 2 + share * (plot().width() - 2 * edge - 4);
        const int shown = PixelProbe(plot()).at({int(x), 4}).hue();
        return std::min(qAbs(shown - hue), 360 - qAbs(shown - hue));
    };

    QCOMPARE(plot().accessibleName(),
             QString("Luminous efficiency from %1 to %2 nm").arg(first).arg(last));
    QFETCH(int, leftHue);
    QVERIFY2(distance(0, leftHue) < 10, qPrintable(QString::number(distance(0, leftHue))));
    QFETCH(int, middleHue);
    QVERIFY2(distance(0.5, middleHue) < 10, qPrintable(QString::number(distance(0.5, middleHue))));
    QFETCH(int, rightHue);
    QVERIFY2(distance(1, rightHue) < 10, qPrintable(QString::number(distance(1, rightHue))));
}

void TestColourDifferencePageSpectrum::wavelengthsAreLabelledInEveryRange_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("labels");
    QTest::newRow("all") << 380 << 780 << 800 << 8;
    QTest::newRow("one step") << 501 << 511 << 800 << 2;
    QTest::newRow("20 nm") << 511 << 531 << 800 << 4;
    QTest::newRow("30 nm, narrow") << 511 << 541 << 360 << 3;
    QTest::newRow("100 nm") << 501 << 599 << 800 << 9;
    QTest::newRow("widest, narrow") << 300 << 830 << 360 << 6;
}

void TestColourDifferencePageSpectrum::wavelengthsAreLabelledInEveryRange()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, width);
    QFETCH(int, labels);
    SpectrumPlot plot;
    plot.resize(width, 200);
    plot.setRange(first, last);

    const QImage image = PixelProbe(plot).image();
    const QColor ground = image.pixelColor(0, 0);
    const int top = plot.height() - QFontMetrics(plot.font()).height() + 2;
    // Between words there is less room than between labels.
    const int gap = QFontMetrics(plot.font()).height() / 2;
    int runs = 0;
    int lastInk = -1000;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = top; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != ground) {
                runs += x - lastInk > gap ? 1 : 0;
                lastInk = x;
                break;
            }
        }
    }
    QCOMPARE(runs, labels);
}

void TestColourDifferencePageSpectrum::curveReachesItsPeak()
{
    SpectrumPlot plot;
    plot.resize(700, 800);
    plot.setRange(550, 560);
    QPalette palette = plot.palette();
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    plot.setPalette(palette);
    const QImage image = PixelProbe(plot).image();

    // The curve is what is black; it is highest in the middle, by some pixels.
    const auto heightAt = [&](double share) {
        const int x = int(share * image.width());
        int y = 0;
        while (y < image.height() && image.pixelColor(x, y).lightness() > 60) {
            ++y;
        }
        return image.height() - y;
    };
    QVERIFY2(heightAt(0.5) >= heightAt(0.1) + 2, qPrintable(QString::number(heightAt(0.5))));
    QVERIFY2(heightAt(0.5) >= heightAt(0.9) + 2, qPrintable(QString::number(heightAt(0.9))));
}

void TestColourDifferencePageSpectrum::rangeKeepsItsOrder()
{
    box("First wavelength").setValue(900);
    QCOMPARE(box("First wavelength").value(), 770);
    box("Last wavelength").setValue(100);
    QCOMPARE(box("Last wavelength").value(), 780);
    box("Last wavelength").setValue(900);
    QCOMPARE(box("Last wavelength").value(), 830);
    box("First wavelength").setValue(0);
    QCOMPARE(box("First wavelength").value(), 300);
}

int main(int argc, char **argv)
{
    return runTest<TestColourDifferencePageSpectrum>(argc, argv);
}

#include "tst_ColourDifferencePageSpectrum.moc"
