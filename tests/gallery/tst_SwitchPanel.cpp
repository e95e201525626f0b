#include "DialogDriver.h"
#include "PageChecks.h"
#include "SwitchPanel.h"
#include "TestBase.h"

#include "TXSwitchSlider.h"

#include <QPushButton>

#include <memory>

class TestSwitchPanel : public TestBase
{
    Q_OBJECT

private slots:
    void switchesAreOfSeveralSizes();
    void clickTogglesAndIsCounted();
    void stateStandsBesideTheSwitch();
    void keysSwitchToo();
    void rightButtonChangesNothing();
    void disabledSwitchesDoNotMove();
    void programSwitchesWithTheSameSignal();
    void everyTextFollowsTheLanguage();
    void sizesAreInTheDigitsOfTheLanguage();

protected:
    void prepare() override;
    void finish() override { panel.reset(); }

private:
    TXSwitchSlider *switchOf(int height) const;
    QList<TXSwitchSlider *> disabledSwitches() const;
    QString stateBeside(const TXSwitchSlider *slider) const;

    std::unique_ptr<SwitchPanel> panel;
};

void TestSwitchPanel::prepare()
{
    panel = std::make_unique<SwitchPanel>();
    panel->show();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
}

TXSwitchSlider *TestSwitchPanel::switchOf(int height) const
{
    return controlOf<TXSwitchSlider>(*panel, QString("Switch of %1 pixels").arg(height));
}

QList<TXSwitchSlider *> TestSwitchPanel::disabledSwitches() const
{
    QList<TXSwitchSlider *> disabled;
    const auto sliders = panel->findChildren<TXSwitchSlider *>();
    for (TXSwitchSlider *slider : sliders) {
        if (!slider->isEnabled()) {
            disabled.append(slider);
        }
    }
    return disabled;
}

/// The text of the nearest label to the right of the switch, at its height.
QString TestSwitchPanel::stateBeside(const TXSwitchSlider *slider) const
{
    const QLabel *nearest = nullptr;
    const auto labels = panel->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QRect row = slider->geometry().adjusted(slider->width(), 0, panel->width(), 0);
        const bool isCandidate = label->isVisible() && row.contains(label->geometry().center());
        if (isCandidate && (!nearest || label->x() < nearest->x())) {
            nearest = label;
        }
    }
    return nearest ? nearest->text() : QString();
}

void TestSwitchPanel::switchesAreOfSeveralSizes()
{
    for (const int height : {20, 30, 38}) {
        QVERIFY(switchOf(height));
        QCOMPARE(switchOf(height)->height(), height);
        QVERIFY(switchOf(height)->isEnabled());
    }
    int countOn = 0;
    for (const TXSwitchSlider *slider : disabledSwitches()) {
        countOn += slider->isChecked() ? 1 : 0;
    }
    QCOMPARE(disabledSwitches().size(), 6);
    QCOMPARE(countOn, 3);
}

void TestSwitchPanel::clickTogglesAndIsCounted()
{
    QVERIFY(isRead(*panel, "clicked: 0"));

    QTest::mouseClick(switchOf(20), Qt::LeftButton);
    QVERIFY(switchOf(20)->isChecked());
    QVERIFY(isRead(*panel, "clicked: 1, last by 20 pixels: on"));

    QTest::mouseClick(switchOf(30), Qt::LeftButton);
    QVERIFY(!switchOf(30)->isChecked());
    QVERIFY(isRead(*panel, "clicked: 2, last by 30 pixels: off"));
}

void TestSwitchPanel::stateStandsBesideTheSwitch()
{
    QCOMPARE(stateBeside(switchOf(20)), "off");
    QCOMPARE(stateBeside(switchOf(30)), "on");

    QTest::mouseClick(switchOf(20), Qt::LeftButton);

    QCOMPARE(stateBeside(switchOf(20)), "on");
    QCOMPARE(stateBeside(switchOf(30)), "on");
}

void TestSwitchPanel::keysSwitchToo()
{
    switchOf(38)->setFocus();

    QTest::keyClick(switchOf(38), Qt::Key_Right);

    QCOMPARE(stateBeside(switchOf(38)), "on");
    QVERIFY(isRead(*panel, "clicked: 1, last by 38 pixels: on"));
}

void TestSwitchPanel::rightButtonChangesNothing()
{
    QTest::mouseClick(switchOf(20), Qt::RightButton);

    QVERIFY(!switchOf(20)->isChecked());
    QVERIFY(isRead(*panel, "clicked: 0"));
}

void TestSwitchPanel::disabledSwitchesDoNotMove()
{
    for (TXSwitchSlider *slider : disabledSwitches()) {
        const bool wasOn = slider->isChecked();
        QTest::mouseClick(slider, Qt::LeftButton);
        QCOMPARE(slider->isChecked(), wasOn);
    }
    QVERIFY(isRead(*panel, "clicked: 0"));
}

void TestSwitchPanel::programSwitchesWithTheSameSignal()
{
    // One of the three is on already, and tells nothing.
    DialogDriver::click(buttonOf(*panel, "Turn All On"));
    QVERIFY(isRead(*panel, "clicked: 2, last by 38 pixels: on"));

    DialogDriver::click(buttonOf(*panel, "Turn All On"));
    QVERIFY(isRead(*panel, "clicked: 2, last by 38 pixels: on"));
}

void TestSwitchPanel::everyTextFollowsTheLanguage()
{
    QTest::mouseClick(switchOf(20), Qt::LeftButton);
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*panel, {}), QStringList());
    QVERIFY(isRead(*panel, "CLICKED: 1, LAST BY 20 PIXELS: ON"));
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

void TestSwitchPanel::sizesAreInTheDigitsOfTheLanguage()
{
    panel->setLocale(QLocale(QLocale::Arabic, QLocale::Egypt));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel.get(), &change);
    QVERIFY(controlOf<TXSwitchSlider>(*panel, QString::fromUtf8("Switch of ٢٠ pixels")));
}

int main(int argc, char **argv)
{
    return runTest<TestSwitchPanel>(argc, argv);
}

#include "tst_SwitchPanel.moc"
