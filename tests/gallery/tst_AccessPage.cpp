#include "AccessPageTest.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PadlockSign.h"
#include "PixelProbe.h"

#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"

#include <QLabel>

using AccessDialogs::applying;
using AccessDialogs::clickIn;
using AccessDialogs::kDigest;

namespace {

void cancel(QDialog &dialog)
{
    clickIn(dialog, "cancel_pushButton");
}

} // namespace

/// What the page stores, and the page as a whole.
class TestAccessPage : public AccessPageTest
{
    Q_OBJECT

private slots:
    void formDecidesWhatIsStored();
    void changeOfTheFormIsTold();
    void passwordDialogsOpenDirectly();
    void cancelledPasswordDialogStoresNothing();
    void forgottenPasswordIsAskedForAnew();
    void furtherWindowsShowTheDialogsAndTheLock();
    void padlockIsPaintedInTheColoursOfThePalette_data();
    void padlockIsPaintedInTheColoursOfThePalette();
    void everyTextFollowsTheLanguage();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
};

void TestAccessPage::formDecidesWhatIsStored()
{
    click("plain text");

    storePassword("secret");

    QVERIFY(isRead(*page, "secret"));
    lockWithStoredPassword();
    tryToUnlock("secret");
    QVERIFY(!isLocked());
}

void TestAccessPage::changeOfTheFormIsTold()
{
    click("plain text");
    QVERIFY(isRead(*page, "No password has been set: the lock asks for a first one."));
    storePassword("secret");

    click("MD5 digest");
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "The stored password has been replaced by its digest."));

    click("plain text");
    QVERIFY(isRead(*page, "nothing"));
    QVERIFY(isRead(*page, "A digest cannot be turned back into the password: it is forgotten."));
}

void TestAccessPage::passwordDialogsOpenDirectly()
{
    QVERIFY(!isEnabled("Change Password..."));
    storePassword("old one");
    QVERIFY(!isEnabled("First Password..."));
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        QVERIFY(qobject_cast<LockerPasswordDialog *>(&dialog));
        applying("secret", "old one")(dialog);
    });

    click("Change Password...");

    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "The new password is stored."));
    QVERIFY(!isLocked());
}

void TestAccessPage::cancelledPasswordDialogStoresNothing()
{
    {
        DialogDriver driver;
        driver.expect([](QDialog &dialog) {
            QVERIFY(qobject_cast<LockerFirstPasswordDialog *>(&dialog));
            cancel(dialog);
        });
        click("First Password...");
    }
    QVERIFY(isRead(*page, "nothing"));
    storePassword("secret");
    DialogDriver driver;
    driver.expect(cancel);

    click("Change Password...");

    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "Cancelled: what is stored stays."));
}

void TestAccessPage::forgottenPasswordIsAskedForAnew()
{
    QVERIFY(!isEnabled("Forget"));
    storePassword("secret");

    click("Forget");

    QVERIFY(isRead(*page, "nothing"));
    QVERIFY(isRead(*page, "The password is forgotten."));
    QVERIFY(isEnabled("First Password..."));
    QVERIFY(!isEnabled("Change Password..."));
}

void TestAccessPage::furtherWindowsShowTheDialogsAndTheLock()
{
    page->fillForPicture();

    const auto windows = page->furtherWindows();

    QCOMPARE(windows.size(), 4);
    for (const GalleryFurtherWindow &further : windows) {
        QVERIFY2(further.window->isVisible(), qPrintable(further.name));
        QVERIFY2(!further.window->isModal(), qPrintable(further.name));
    }
    auto *lockDialog = qobject_cast<LockerUIDialog *>(windows.first().window);
    QVERIFY(lockDialog);
    QVERIFY(lockDialog->findChild<QPushButton *>("changePasswordPushButton")->isEnabled());
    QVERIFY(isLocked());
}

void TestAccessPage::padlockIsPaintedInTheColoursOfThePalette_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void TestAccessPage::padlockIsPaintedInTheColoursOfThePalette()
{
    QFETCH(qreal, ratio);
    PadlockSign sign;
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::darkGreen);
    palette.setColor(QPalette::PlaceholderText, Qt::darkRed);
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    sign.setPalette(palette);
    sign.resize(100, 100);

    const PixelProbe probe(sign, ratio);

    QVERIFY(probe.isNear({25, 70}, Qt::darkGreen));
    QVERIFY(probe.isNear({50, 10}, Qt::darkRed));
    QVERIFY(probe.isNear({50, 64}, Qt::yellow));
    QVERIFY(!probe.isNear({5, 70}, Qt::darkGreen));
}

void TestAccessPage::everyTextFollowsTheLanguage()
{
    storePassword("secret");
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    const QStringList names = {kDigest, "Lab-D50/2"};
    QCOMPARE(smallTexts(*page, names), QStringList());
    QVERIFY(isRead(*page, "THE NEW PASSWORD IS STORED."));
    QVERIFY(page->findChildren<QLabel *>().size() > 20);
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(isRead(*page, "The new password is stored."));
}

void TestAccessPage::mnemonicsAreNotShared()
{
    page.reset();
    GallerySettings settings;
    settings.page = "access";
    GalleryLanguages languages(QString{});
    const GalleryWindow window(languages, settings);

    QVERIFY(buttonOf(window, "Lock..."));
    QCOMPARE(clashingMnemonics(window), QStringList());
}

void TestAccessPage::everyControlHasANameAndIsReachedByTab()
{
    storePassword("secret");
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());

    lockWithStoredPassword();
    QVERIFY(unlockField()->hasFocus());
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestAccessPage>(argc, argv);
}

#include "tst_AccessPage.moc"
