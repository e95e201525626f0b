#include "UpdatePageTest.h"

#include "TXCheckForUpdateConfigWidget.h"
#include "UpdateSettingsPanel.h"

#include <QCheckBox>
#include <QPointer>
#include <QSettings>

/// The settings of updates on the page.
class TestUpdatePageSettings : public UpdatePageTest
{
    Q_OBJECT

private slots:
    void settingsAreForARunningServiceOnly();
    void savingStoresAndCountsAtOnce();
    void dialogChecksByItselfOnlyWhileTheServiceRuns();
    void loadingShowsWhatIsStored();
    void checkNowAsksTheLocalService();
    void textsFollowTheLanguage();
    void newLanguageKeepsWhatIsNotStored();

private:
    [[nodiscard]] UpdateSettingsPanel *panel() const
    {
        return page->findChild<UpdateSettingsPanel *>();
    }
    [[nodiscard]] QCheckBox *box(const char *name) const
    {
        return page->findChild<QCheckBox *>(QLatin1String(name));
    }
    [[nodiscard]] QString stored(const QString &key) const
    {
        const auto found = panel()->findChild<QTreeWidget *>()->findItems(key, Qt::MatchExactly);
        return found.isEmpty() ? QString() : found.first()->text(2);
    }
};

void TestUpdatePageSettings::settingsAreForARunningServiceOnly()
{
    auto *checkNow = buttonOf(*page, "Check Now");
    QVERIFY(!checkNow->isEnabled());
    // As on a fresh installation.
    QVERIFY(box("automaticCheckBox")->isChecked());
    QVERIFY(box("atStartupCheckBox")->isChecked());

    switchOn();
    QVERIFY(checkNow->isEnabled());
    service->setRunning(false);
    QVERIFY(!checkNow->isEnabled());
}

void TestUpdatePageSettings::savingStoresAndCountsAtOnce()
{
    switchOn();
    QVERIFY(isRead(*page, "The dialog above does not check by itself."));

    DialogDriver::click(buttonOf(*page, "Save Settings"));
    QCOMPARE(stored("CheckForUpdatesAutoPeriod"), "7");
    QCOMPARE(stored("CheckForUpdatesAtStartup"), "true");
    QCOMPARE(dialog->autoCheckPeriod(), 7);
    QVERIFY(isRead(*page, "The dialog above checks by itself every 7 days."));

    DialogDriver::click(box("automaticCheckBox"));
    DialogDriver::click(buttonOf(*page, "Save Settings"));
    QCOMPARE(stored("CheckForUpdatesAutoPeriod"), "0");
    QCOMPARE(dialog->autoCheckPeriod(), 0);
}

void TestUpdatePageSettings::dialogChecksByItselfOnlyWhileTheServiceRuns()
{
    switchOn();
    DialogDriver::click(buttonOf(*page, "Save Settings"));
    QCOMPARE(dialog->autoCheckPeriod(), 7);

    service->setRunning(false);

    QCOMPARE(dialog->autoCheckPeriod(), 0);
    QVERIFY(isRead(*page, "The dialog above does not check by itself."));
}

void TestUpdatePageSettings::loadingShowsWhatIsStored()
{
    switchOn();
    QSettings().setValue("CheckForUpdatesAutoPeriod", 0);
    QCOMPARE(stored("CheckForUpdatesAutoPeriod"), QString());

    DialogDriver::click(buttonOf(*page, "Load Settings"));

    QVERIFY(!box("automaticCheckBox")->isChecked());
    QVERIFY(box("atStartupCheckBox")->isChecked());
    QCOMPARE(stored("CheckForUpdatesAutoPeriod"), "0");
}

void TestUpdatePageSettings::checkNowAsksTheLocalService()
{
    check(UpdateOffer::Newer);
    QVERIFY(dialog->isVisible());
    QPointer<TXCheckForUpdateWidget> opened;
    DialogDriver driver;
    driver.expect([&](QDialog &shown) {
        opened = qobject_cast<TXCheckForUpdateWidget *>(&shown);
        QVERIFY(opened);
        QVERIFY(!dialog->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(opened->state() == State::UpdateAvailable, kPatienceMilliseconds);
        opened->reject();
    });

    DialogDriver::click(buttonOf(*page, "Check Now"));

    QVERIFY(!opened);
    // That of the page, and that of the button.
    QTRY_COMPARE(requests().count("GET /checkUpdate"), 2);
}

void TestUpdatePageSettings::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*panel(), {}), QStringList());
    QVERIFY(buttonOf(*page, "CHECK NOW"));
    QVERIFY(!buttonOf(*page, "CHECK NOW")->isEnabled());
    QCOMPARE(page->findChildren<TXCheckForUpdateConfigWidget *>().size(), 1);

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Check Now"));
}

void TestUpdatePageSettings::newLanguageKeepsWhatIsNotStored()
{
    switchOn();
    DialogDriver::click(box("automaticCheckBox"));
    QVERIFY(!box("automaticCheckBox")->isChecked());

    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel(), &event);

    QVERIFY(!box("automaticCheckBox")->isChecked());
    QVERIFY(box("atStartupCheckBox")->isChecked());
    QCOMPARE(stored("CheckForUpdatesAutoPeriod"), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestUpdatePageSettings>(argc, argv);
}

#include "tst_UpdatePageSettings.moc"
