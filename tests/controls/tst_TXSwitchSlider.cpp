#include "TXSwitchSlider.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int kHeight = 30;
constexpr int kWidth = 60;
constexpr int kMiddle = 15;

const QColor kHandleColour(0xa2, 0xa2, 0xa2);
const QColor kGrooveColour(0xba, 0xba, 0xba);
/// The gradients run that far from their middle colours around the probed places.
constexpr int kGradientTolerance = 8;

constexpr QPoint kLeftEnd(14, kMiddle);
constexpr QPoint kRightEnd(kWidth - 14, kMiddle);

const QString kSheetForHeight30 = QStringLiteral(
    "QSlider::groove:horizontal {border: 1px solid #999999; background: qlineargradient(x1:0, "
    "y1:0, x2:0, y2:1, stop:0 #B1B1B1, stop:1 #c4c4c4); height: 22.62px; margin: 0 0 0 0; "
    "border-radius: 12.22px;}QSlider::handle:horizontal {background: qlineargradient(x1:0, y1:0, "
    "x2:1, y2:1, stop:0 #b4b4b4, stop:1 #8f8f8f);  border: 1px solid #5c5c5c;  width: 26px; "
    "margin: -2px 0 -2px 0; border-radius: 13px;}");

/// The numbers in a style sheet, in the order of their places.
QStringList numbersIn(const QString &sheet)
{
    QStringList numbers;
    for (const char *key : {"width: ", "height: "}) {
        numbers.append(
            sheet.section(QString::fromLatin1(key), 1).section(QStringLiteral("px"), 0, 0));
    }
    const QStringList parts = sheet.split(QStringLiteral("border-radius: "));
    for (const QString &part : parts.mid(1)) {
        numbers.append(part.section(QStringLiteral("px"), 0, 0));
    }
    return numbers;
}

QColor blend(const QColor &above, const QColor &below, double opacity)
{
    const auto mix = [opacity](int a, int b) {
        return qRound(a * opacity + b * (1 - opacity));
    };
    return {mix(above.red(), below.red()), mix(above.green(), below.green()),
            mix(above.blue(), below.blue())};
}

} // namespace

class TestTXSwitchSlider : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { toggle.reset(); }

private slots:
    void startsOff();
    void checkingSetsTheValue();
    void everyChangeOfTheValueIsAClick();
    void sameStateAgainIsNoClick();
    void valueOutOfRangeIsClamped();
    void positionOtherThanOneIsOff();
    void leftButtonTogglesWhereverItIsPressed_data();
    void leftButtonTogglesWhereverItIsPressed();
    void otherButtonsDoNothing_data();
    void otherButtonsDoNothing();
    void pressNeitherDragsNorPages();
    void doubleClickTogglesTwice();
    void disabledSwitchIgnoresClicks();
    void keysSwitchAsOnASlider_data();
    void keysSwitchAsOnASlider();
    void styleSheetComesWithTheFirstResize();
    void styleSheetIsExact();
    void styleSheetFollowsTheHeight_data();
    void styleSheetFollowsTheHeight();
    void tinySwitchDoesNoHarm();
    void heightSettlesInALayout();
    void switchIsPaintedInItsState_data();
    void switchIsPaintedInItsState();
    void keyboardFocusIsVisible_data();
    void keyboardFocusIsVisible();

private:
    std::unique_ptr<TXSwitchSlider> toggle;
};

void TestTXSwitchSlider::prepare()
{
    toggle = std::make_unique<TXSwitchSlider>(nullptr);
    toggle->setFixedSize(kWidth, kHeight);
}

void TestTXSwitchSlider::startsOff()
{
    QVERIFY(!toggle->isChecked());
    QCOMPARE(toggle->value(), 0);
    QCOMPARE(toggle->minimum(), 0);
    QCOMPARE(toggle->maximum(), 1);
    QCOMPARE(toggle->pageStep(), 1);
    QCOMPARE(toggle->orientation(), Qt::Horizontal);
}

void TestTXSwitchSlider::checkingSetsTheValue()
{
    toggle->setChecked(true);
    QVERIFY(toggle->isChecked());
    QCOMPARE(toggle->value(), 1);
    toggle->setChecked(false);
    QVERIFY(!toggle->isChecked());
    QCOMPARE(toggle->value(), 0);
}

void TestTXSwitchSlider::everyChangeOfTheValueIsAClick()
{
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    toggle->setChecked(true);
    toggle->setValue(0);
    toggle->setSliderPosition(1);
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}, {true}}));
}

void TestTXSwitchSlider::sameStateAgainIsNoClick()
{
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    toggle->setChecked(false);
    QCOMPARE(clicked.count(), 0);
    toggle->setChecked(true);
    toggle->setChecked(true);
    QCOMPARE(clicked.count(), 1);
}

void TestTXSwitchSlider::valueOutOfRangeIsClamped()
{
    toggle->setValue(7);
    QVERIFY(toggle->isChecked());
    toggle->setValue(-7);
    QVERIFY(!toggle->isChecked());
    QCOMPARE(toggle->value(), 0);
}

void TestTXSwitchSlider::positionOtherThanOneIsOff()
{
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    for (const int position : {1, 0, 2, -1}) {
        toggle->sliderPosChanged(position);
    }
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}, {false}, {false}}));
    QVERIFY(!toggle->isChecked());
}

void TestTXSwitchSlider::leftButtonTogglesWhereverItIsPressed_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("on the handle") << kLeftEnd;
    QTest::newRow("on the groove") << kRightEnd;
    QTest::newRow("in the middle") << QPoint(kWidth / 2, kMiddle);
    QTest::newRow("in a corner") << QPoint(0, 0);
    QTest::newRow("in the last corner") << QPoint(kWidth - 1, kHeight - 1);
}

void TestTXSwitchSlider::leftButtonTogglesWhereverItIsPressed()
{
    QFETCH(QPoint, place);
    toggle->show();
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    QTest::mouseClick(toggle.get(), Qt::LeftButton, {}, place);
    QVERIFY(toggle->isChecked());
    QTest::mouseClick(toggle.get(), Qt::LeftButton, {}, place);
    QVERIFY(!toggle->isChecked());
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}}));
}

void TestTXSwitchSlider::otherButtonsDoNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    // A slider jumps to the place of a middle click.
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void TestTXSwitchSlider::otherButtonsDoNothing()
{
    QFETCH(Qt::MouseButton, button);
    toggle->show();
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    QTest::mouseClick(toggle.get(), button, {}, kLeftEnd);
    QTest::mouseClick(toggle.get(), button, {}, kRightEnd);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(!toggle->isChecked());
}

void TestTXSwitchSlider::pressNeitherDragsNorPages()
{
    toggle->show();
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    QTest::mousePress(toggle.get(), Qt::LeftButton, {}, kLeftEnd);
    QVERIFY(!toggle->isSliderDown());
    QVERIFY(toggle->isChecked());
    for (const QPoint &place : {kRightEnd, kLeftEnd, kRightEnd}) {
        QTest::mouseMove(toggle.get(), place);
    }
    QTest::mouseRelease(toggle.get(), Qt::LeftButton, {}, kLeftEnd);
    QVERIFY(toggle->isChecked());
    QCOMPARE(clicked.count(), 1);
}

void TestTXSwitchSlider::doubleClickTogglesTwice()
{
    toggle->show();
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    QTest::mouseClick(toggle.get(), Qt::LeftButton, {}, kRightEnd);
    QTest::mouseDClick(toggle.get(), Qt::LeftButton, {}, kRightEnd); // the second press alone
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}}));
}

void TestTXSwitchSlider::disabledSwitchIgnoresClicks()
{
    toggle->setEnabled(false);
    toggle->show();
    for (const char *action : {"MousePress", "MouseRelease"}) {
        const QString told = QStringLiteral("Mouse event \"%1\" not accepted by receiving widget");
        QTest::ignoreMessage(QtWarningMsg, qPrintable(told.arg(QString::fromLatin1(action))));
    }
    QTest::mouseClick(toggle.get(), Qt::LeftButton, {}, kRightEnd);
    QVERIFY(!toggle->isChecked());
}

void TestTXSwitchSlider::keysSwitchAsOnASlider_data()
{
    QTest::addColumn<int>("on");
    QTest::addColumn<int>("off");
    QTest::newRow("left, right") << int(Qt::Key_Right) << int(Qt::Key_Left);
    QTest::newRow("up, down") << int(Qt::Key_Up) << int(Qt::Key_Down);
    QTest::newRow("page") << int(Qt::Key_PageUp) << int(Qt::Key_PageDown);
    QTest::newRow("end, home") << int(Qt::Key_End) << int(Qt::Key_Home);
}

void TestTXSwitchSlider::keysSwitchAsOnASlider()
{
    QFETCH(int, on);
    QFETCH(int, off);
    toggle->show();
    QVERIFY(toggle->focusPolicy() & Qt::TabFocus);
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    for (const int key : {on, on, off, off}) {
        QTest::keyClick(toggle.get(), Qt::Key(key));
    }
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}}));
}

void TestTXSwitchSlider::styleSheetComesWithTheFirstResize()
{
    const QString before = toggle->styleSheet();
    toggle->show();
    QCOMPARE(before, QString());
    QCOMPARE(toggle->styleSheet(), kSheetForHeight30);
}

void TestTXSwitchSlider::styleSheetIsExact()
{
    toggle->show();
    const QString sheet = toggle->styleSheet();
    QCOMPARE(sheet, kSheetForHeight30);
    // The template's four places have two characters each.
    QCOMPARE(sheet.size(), 391 - 4 * 2 + QStringLiteral("2622.6212.2213").size());
}

void TestTXSwitchSlider::styleSheetFollowsTheHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QStringList>("numbers"); // width, height, radius of groove, of handle
    const auto add = [](int height, const QStringList &numbers) {
        QTest::addRow("%d", height) << height << numbers;
    };
    add(16, {"12", "10.44", "5.64", "6"});
    add(19, {"15", "13.05", "7.05", "7"}); // half of 15 by integer division
    add(24, {"20", "17.4", "9.4", "10"});
    add(30, {"26", "22.62", "12.22", "13"});
    add(104, {"100", "87", "47", "50"});
    add(1004, {"1000", "870", "470", "500"});
    add(4, {"0", "0", "0", "0"});
    add(1, {"-3", "-2.61", "-1.41", "-1"});
}

void TestTXSwitchSlider::styleSheetFollowsTheHeight()
{
    QFETCH(int, height);
    QFETCH(QStringList, numbers);
    toggle->show();
    toggle->setFixedSize(kWidth, height);
    QCOMPARE(numbersIn(toggle->styleSheet()), numbers);
}

void TestTXSwitchSlider::tinySwitchDoesNoHarm()
{
    toggle->show();
    for (int height = 8; height >= 0; --height) {
        toggle->setFixedSize(height, height);
        const QImage picture = toggle->grab().toImage();
        QCOMPARE(picture.isNull(), height == 0);
    }
    QTest::keyClick(toggle.get(), Qt::Key_Right);
    QVERIFY(toggle->isChecked());
}

void TestTXSwitchSlider::heightSettlesInALayout()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *inner = new TXSwitchSlider(&window);
    layout->addWidget(inner);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSize settled = inner->size();
    QVERIFY(settled.height() > 8);
    for (int round = 0; round < 5; ++round) {
        inner->updateGeometry();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(inner->size(), settled);
    }
}

void TestTXSwitchSlider::switchIsPaintedInItsState_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<qreal>("ratio");
    for (int row = 0; row < 16; ++row) {
        const bool isDark = row & 1;
        const bool isOn = row & 2;
        const bool isEnabled = row & 4;
        const qreal ratio = row & 8 ? 2.0 : 1.0;
        QTest::addRow("%s, %s, %s, ratio %g", isDark ? "dark" : "light", isOn ? "on" : "off",
                      isEnabled ? "enabled" : "disabled", ratio)
            << (isDark ? darkPalette() : QPalette()) << isOn << isEnabled << ratio;
    }
}

void TestTXSwitchSlider::switchIsPaintedInItsState()
{
    QFETCH(QPalette, palette);
    QFETCH(bool, isOn);
    QFETCH(bool, isEnabled);
    QFETCH(qreal, ratio);
    toggle->setPalette(palette);
    toggle->setChecked(isOn);
    toggle->setEnabled(isEnabled);
    toggle->show();
    const QColor window = palette.color(QPalette::Window);
    const double opacity = isEnabled ? 1.0 : 0.4;
    const QColor handle = blend(kHandleColour, blend(kGrooveColour, window, opacity), opacity);
    const QColor groove = blend(kGrooveColour, window, opacity);

    const PixelProbe probe(*toggle, ratio);

    QVERIFY(probe.isNear(isOn ? kRightEnd : kLeftEnd, handle, kGradientTolerance));
    QVERIFY(probe.isNear(isOn ? kLeftEnd : kRightEnd, groove, kGradientTolerance));
    QVERIFY(!probe.isNear(isOn ? kLeftEnd : kRightEnd, handle, kGradientTolerance));
    QVERIFY(probe.isNear({0, 0}, window));
    QVERIFY(probe.isNear({kWidth - 1, kHeight - 1}, window));
}

void TestTXSwitchSlider::keyboardFocusIsVisible_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette();
    QTest::newRow("dark") << darkPalette();
}

void TestTXSwitchSlider::keyboardFocusIsVisible()
{
    QFETCH(QPalette, palette);
    QWidget window;
    window.setPalette(palette);
    auto *layout = new QHBoxLayout(&window);
    auto *button = new QPushButton(QStringLiteral("first"), &window);
    auto *inner = new TXSwitchSlider(&window);
    inner->setFixedSize(kWidth, kHeight);
    layout->addWidget(button);
    layout->addWidget(inner);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    inner->setFocus(Qt::MouseFocusReason);
    const QImage byMouse = inner->grab().toImage();
    button->setFocus();
    const QImage unfocused = inner->grab().toImage();
    QTest::keyClick(button, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), inner);
    const QImage byKey = inner->grab().toImage();

    QCOMPARE(byMouse, unfocused);
    QVERIFY(byKey != unfocused);
    // All around, not on a side only.
    for (const QPoint &place : {QPoint(kWidth / 2, 0), QPoint(kWidth / 2, kHeight - 1),
                                QPoint(0, kHeight / 4), QPoint(kWidth - 1, kHeight / 4)}) {
        QVERIFY(byKey.pixelColor(place) != unfocused.pixelColor(place));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXSwitchSlider>(argc, argv);
}

#include "tst_TXSwitchSlider.moc"
