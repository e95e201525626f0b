#include "ReadableProgressBar.h"

#include "Contrast.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QGuiApplication>
#include <QStyle>
#include <QStyleFactory>

#include <limits>
#include <memory>

namespace {

constexpr QSize kSize(200, 24);

/// As on a screen of high contrast.
QPalette contrastPalette()
{
    QPalette palette(Qt::black);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, Qt::white);
    }
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

QPalette lightPalette()
{
    QPalette palette(QColor(240, 240, 240));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(30, 80, 170));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

template<class Bar>
std::unique_ptr<Bar> makeBar(int value, QStyle *style, const QPalette &palette = lightPalette())
{
    auto bar = std::make_unique<Bar>();
    bar->setStyle(style);
    bar->setPalette(palette);
    bar->setValue(value);
    bar->resize(kSize);
    return bar;
}

QImage pictureOf(QWidget &bar, qreal ratio = 1)
{
    return PixelProbe(bar, ratio).image();
}

/// The bar without its text.
QImage groundOf(QProgressBar &bar, qreal ratio = 1)
{
    bar.setTextVisible(false);
    const QImage ground = pictureOf(bar, ratio);
    bar.setTextVisible(true);
    return ground;
}

/// From left to right, where the style draws the text of this place; empty where there is none.
QRect inkOf(const QImage &picture, const QImage &ground)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink |= picture.pixel(x, y) == ground.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// The most that any pixel of the text stands out from what is behind that very pixel.
qreal contrastIn(const QRect &area, const QImage &picture, const QImage &ground)
{
    qreal best = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            best = std::max(best,
                            Contrast::between(picture.pixelColor(x, y), ground.pixelColor(x, y)));
        }
    }
    return best;
}

} // namespace

class TestReadableProgressBar : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }

private slots:
    void textStandsOutFromRightToLeft_data() { addBars(); }
    void textStandsOutFromRightToLeft();
    void textStandsOutWhenInverted();
    void textChangesColourWhereTheFillingStarts();
    void fillingStaysTheStyles_data() { addBars(); }
    void fillingStaysTheStyles();
    void leftToRightStays_data() { addBars(); }
    void leftToRightStays();
    void upwardBarStays();
    void busyBarAndBarWithoutValueStay();
    void styleWithOneColourOfTextStays();
    void sheetsKnowItAsProgressBar();

private:
    static void addBars();

    std::unique_ptr<QStyle> fusion;
};

void TestReadableProgressBar::prepare()
{
    fusion.reset(QStyleFactory::create("fusion"));
    QVERIFY(fusion != nullptr);
}

void TestReadableProgressBar::addBars()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("isContrast");
    QTest::addColumn<double>("ratio");
    for (const int value : {0, 6, 49, 60, 100}) {
        for (const bool isContrast : {false, true}) {
            for (const double ratio : {1.0, 2.0}) {
                QTest::addRow("%d %%, %s, ratio %.0f", value, isContrast ? "contrast" : "light",
                              ratio)
                    << value << isContrast << ratio;
            }
        }
    }
}

void TestReadableProgressBar::textStandsOutFromRightToLeft()
{
    QFETCH(int, value);
    QFETCH(bool, isContrast);
    QFETCH(double, ratio);
    const auto bar = makeBar<ReadableProgressBar>(value, fusion.get(),
                                                  isContrast ? contrastPalette() : lightPalette());
    bar->setLayoutDirection(Qt::RightToLeft);
    const QImage ground = groundOf(*bar, ratio);
    const QImage picture = pictureOf(*bar, ratio);

    const QRect ink = inkOf(picture, ground);
    QVERIFY(ink.width() > 10 * ratio);
    // Digit by digit, as the text may stand on both colours.
    const int step = ink.width() / 3;
    for (int part = 0; part < 3; ++part) {
        const QRect area(ink.x() + part * step, ink.y(), step, ink.height());
        QVERIFY(contrastIn(area, picture, ground) >= Contrast::kText);
    }
}

void TestReadableProgressBar::textStandsOutWhenInverted()
{
    const auto bar = makeBar<ReadableProgressBar>(100, fusion.get());
    bar->setInvertedAppearance(true);
    const QImage ground = groundOf(*bar);
    const QImage picture = pictureOf(*bar);
    QVERIFY(contrastIn(picture.rect(), picture, ground) >= Contrast::kText);
}

/// The same letters, mirrored only in where their colours meet.
void TestReadableProgressBar::textChangesColourWhereTheFillingStarts()
{
    const auto bar = makeBar<ReadableProgressBar>(40, fusion.get());
    bar->setLayoutDirection(Qt::RightToLeft);
    bar->setFormat("MMMMMMMMMM");
    const QImage ground = groundOf(*bar);
    const QImage picture = pictureOf(*bar);
    const QRect ink = inkOf(picture, ground);
    for (int x = ink.left(); x < ink.right(); x += 10) {
        const QRect area(x, ink.y(), 10, ink.height());
        QVERIFY(contrastIn(area, picture, ground) >= Contrast::kText);
    }
}

void TestReadableProgressBar::fillingStaysTheStyles()
{
    QFETCH(int, value);
    QFETCH(bool, isContrast);
    QFETCH(double, ratio);
    const QPalette palette = isContrast ? contrastPalette() : lightPalette();
    const auto bar = makeBar<ReadableProgressBar>(value, fusion.get(), palette);
    const auto plain = makeBar<QProgressBar>(value, fusion.get(), palette);
    bar->setLayoutDirection(Qt::RightToLeft);
    plain->setLayoutDirection(Qt::RightToLeft);
    // A text without letters goes the same way as any other.
    bar->setFormat(" ");
    plain->setFormat(" ");
    QCOMPARE(pictureOf(*bar, ratio), pictureOf(*plain, ratio));
}

void TestReadableProgressBar::leftToRightStays()
{
    QFETCH(int, value);
    QFETCH(bool, isContrast);
    QFETCH(double, ratio);
    const QPalette palette = isContrast ? contrastPalette() : lightPalette();
    const auto bar = makeBar<ReadableProgressBar>(value, fusion.get(), palette);
    const auto plain = makeBar<QProgressBar>(value, fusion.get(), palette);
    QCOMPARE(pictureOf(*bar, ratio), pictureOf(*plain, ratio));
    // So does one that is filled from the left in a layout from right to left.
    for (QProgressBar *each : {static_cast<QProgressBar *>(bar.get()), plain.get()}) {
        each->setLayoutDirection(Qt::RightToLeft);
        each->setInvertedAppearance(true);
    }
    QCOMPARE(pictureOf(*bar, ratio), pictureOf(*plain, ratio));
}

void TestReadableProgressBar::upwardBarStays()
{
    const auto bar = makeBar<ReadableProgressBar>(60, fusion.get());
    const auto plain = makeBar<QProgressBar>(60, fusion.get());
    for (QProgressBar *each : {static_cast<QProgressBar *>(bar.get()), plain.get()}) {
        each->setLayoutDirection(Qt::RightToLeft);
        each->setOrientation(Qt::Vertical);
        each->resize(kSize.transposed());
    }
    QCOMPARE(pictureOf(*bar), pictureOf(*plain));
}

void TestReadableProgressBar::busyBarAndBarWithoutValueStay()
{
    const auto bar = makeBar<ReadableProgressBar>(0, fusion.get());
    const auto plain = makeBar<QProgressBar>(0, fusion.get());
    for (QProgressBar *each : {static_cast<QProgressBar *>(bar.get()), plain.get()}) {
        each->setLayoutDirection(Qt::RightToLeft);
        each->reset();
    }
    QCOMPARE(pictureOf(*bar), pictureOf(*plain));
    bar->setRange(0, 0);
    QVERIFY(!pictureOf(*bar).isNull());
    bar->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    bar->setValue(std::numeric_limits<int>::max());
    QVERIFY(!pictureOf(*bar).isNull());
}

/// The text of this style stands beside the bar, in the colour of other text.
void TestReadableProgressBar::styleWithOneColourOfTextStays()
{
    const std::unique_ptr<QStyle> windows(QStyleFactory::create("windows"));
    QVERIFY(windows != nullptr);
    for (const int value : {0, 40, 100}) {
        const auto bar = makeBar<ReadableProgressBar>(value, windows.get());
        const auto plain = makeBar<QProgressBar>(value, windows.get());
        bar->setLayoutDirection(Qt::RightToLeft);
        plain->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(pictureOf(*bar), pictureOf(*plain));
    }
}

void TestReadableProgressBar::sheetsKnowItAsProgressBar()
{
    ReadableProgressBar bar;
    bar.setLayoutDirection(Qt::RightToLeft);
    bar.setValue(100);
    bar.resize(kSize);
    bar.setStyleSheet("QProgressBar {border: 3px solid #010203; color: #ff0000;}"
                      "QProgressBar::chunk {background: #00ff00;}");
    const PixelProbe probe(bar);
    QCOMPARE(probe.at({1, 12}), QColor(1, 2, 3));
    QCOMPARE(probe.at({10, 12}), QColor(0, 255, 0));
    QCOMPARE(Contrast::groundOf(probe.image()), QColor(0, 255, 0));
    QVERIFY(probe.countColours(bar.rect()) > 3);
}

int main(int argc, char **argv)
{
    return runTest<TestReadableProgressBar>(argc, argv);
}

#include "tst_ReadableProgressBar.moc"
