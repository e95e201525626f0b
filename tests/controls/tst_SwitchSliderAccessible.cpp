#include "TXSwitchSlider.h"

#include "AccessibleEvents.h"
#include "TestBase.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalSpy>

#include <limits>
#include <memory>

namespace {

const QString kStateChange = QString::number(QAccessible::StateChanged);

} // namespace

/// What assistive programs learn of a switch, and do with it.
class TestSwitchSliderAccessible : public TestBase
{
    Q_OBJECT

private slots:
    void switchIsACheckBoxOfTheHostsName();
    void buddyNamesTheSwitch();
    void stateFollowsTheSwitch();
    void actionTogglesAsAClick_data();
    void actionTogglesAsAClick();
    void otherActionsLeaveTheState();
    void disabledSwitchHasNoAction();
    void valueSwitches_data();
    void valueSwitches();
    void changesAreTold();
    void nothingIsToldWithoutListeners();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<TXSwitchSlider> toggle;
    QAccessibleInterface *told = nullptr;
};

void TestSwitchSliderAccessible::prepare()
{
    toggle = std::make_unique<TXSwitchSlider>(nullptr);
    told = QAccessible::queryAccessibleInterface(toggle.get());
    QVERIFY(told);
}

void TestSwitchSliderAccessible::finish()
{
    AccessibleEvents::start(false);
    toggle.reset();
}

void TestSwitchSliderAccessible::switchIsACheckBoxOfTheHostsName()
{
    toggle->setAccessibleName(QStringLiteral("Night mode"));
    QCOMPARE(told->role(), QAccessible::CheckBox);
    QCOMPARE(told->text(QAccessible::Name), "Night mode");
    QCOMPARE(told->childCount(), 0);
}

void TestSwitchSliderAccessible::buddyNamesTheSwitch()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *label = new QLabel(QStringLiteral("&Server:"), &window);
    auto *labelled = new TXSwitchSlider(&window);
    label->setBuddy(labelled);
    layout->addWidget(label);
    layout->addWidget(labelled);
    QCOMPARE(QAccessible::queryAccessibleInterface(labelled)->text(QAccessible::Name), "Server:");
}

void TestSwitchSliderAccessible::stateFollowsTheSwitch()
{
    QVERIFY(told->state().checkable);
    QVERIFY(!told->state().checked);
    QVERIFY(told->state().focusable);
    toggle->setChecked(true);
    QVERIFY(told->state().checked);
    toggle->setChecked(false);
    QVERIFY(!told->state().checked);
    QVERIFY(!told->state().disabled);
    toggle->setEnabled(false);
    QVERIFY(told->state().disabled);
}

void TestSwitchSliderAccessible::actionTogglesAsAClick_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("toggle") << QAccessibleActionInterface::toggleAction();
    QTest::newRow("press") << QAccessibleActionInterface::pressAction();
}

void TestSwitchSliderAccessible::actionTogglesAsAClick()
{
    QFETCH(QString, action);
    const QSignalSpy clicked(toggle.get(), SIGNAL(clicked(bool)));
    QAccessibleActionInterface *actions = told->actionInterface();
    QVERIFY(actions);
    // The first one is what most programs do.
    QCOMPARE(actions->actionNames().first(), QAccessibleActionInterface::toggleAction());
    actions->doAction(action);
    actions->doAction(action);
    QCOMPARE(clicked, QList<QVariantList>({{true}, {false}}));
}

void TestSwitchSliderAccessible::otherActionsLeaveTheState()
{
    QAccessibleActionInterface *actions = told->actionInterface();
    toggle->show();
    QVERIFY(QTest::qWaitForWindowActive(toggle.get()));
    toggle->clearFocus();
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(toggle->hasFocus());
    actions->doAction(QStringLiteral("unknown"));
    QVERIFY(!toggle->isChecked());
}

void TestSwitchSliderAccessible::disabledSwitchHasNoAction()
{
    toggle->setEnabled(false);
    QAccessibleActionInterface *actions = told->actionInterface();
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
    told->valueInterface()->setCurrentValue(1);
    QVERIFY(!toggle->isChecked());
}

void TestSwitchSliderAccessible::valueSwitches_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("switched");
    QTest::newRow("1") << QVariant(1.0) << 1;
    QTest::newRow("0") << QVariant(0) << 0;
    QTest::newRow("beyond") << QVariant(1e300) << 1;
    QTest::newRow("negative") << QVariant(-1) << 0;
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 0;
    QTest::newRow("text") << QVariant("on") << 0;
    QTest::newRow("invalid") << QVariant() << 0;
}

void TestSwitchSliderAccessible::valueSwitches()
{
    QFETCH(QVariant, value);
    QFETCH(int, switched);
    QAccessibleValueInterface *number = told->valueInterface();
    QVERIFY(number);
    QCOMPARE(number->minimumValue().toInt(), 0);
    QCOMPARE(number->maximumValue().toInt(), 1);
    QCOMPARE(number->minimumStepSize().toInt(), 1);
    toggle->setChecked(switched == 0);
    number->setCurrentValue(value);
    QCOMPARE(number->currentValue().toInt(), switched);
    QCOMPARE(toggle->isChecked(), switched == 1);
}

void TestSwitchSliderAccessible::changesAreTold()
{
    AccessibleEvents::start(true);
    toggle->setChecked(true);
    QCOMPARE(AccessibleEvents::take(), QStringList({"value 1", kStateChange}));
    toggle->setChecked(true);
    QCOMPARE(AccessibleEvents::take(), QStringList());
    toggle->setChecked(false);
    QCOMPARE(AccessibleEvents::take(), QStringList({"value 0", kStateChange}));
}

void TestSwitchSliderAccessible::nothingIsToldWithoutListeners()
{
    AccessibleEvents::start(false);
    toggle->setChecked(true);
    // The slider asks nobody.
    QCOMPARE(AccessibleEvents::take(), QStringList("value 1"));
}

int main(int argc, char **argv)
{
    return runTest<TestSwitchSliderAccessible>(argc, argv);
}

#include "tst_SwitchSliderAccessible.moc"
