#include "AccessPage.h"
#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LockedArea.h"
#include "PadlockSign.h"
#include "PageChecks.h"
#include "PixelProbe.h"
#include "StoredPassword.h"
#include "TestBase.h"

#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"
#include "TXPasswordLineEdit.h"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

#include <memory>

namespace {

// Of "secret", as md5sum tells it.
const QString kDigest = QStringLiteral("5ebe2294ecd0e0f08eab7690d2a6ee69");

void clickIn(QDialog &dialog, const char *name)
{
    DialogDriver::click(dialog.findChild<QPushButton *>(name));
}

void typeIn(QDialog &dialog, const char *name, const QString &text)
{
    auto *field = dialog.findChild<QLineEdit *>(name);
    QVERIFY(field && field->isEnabled());
    field->clear();
    QTest::keyClicks(field, text);
}

/// Answers the dialog for a first password, or that for another one, with the present password.
DialogDriver::Answer applying(const QString &password, const QString &present = QString())
{
    return [password, present](QDialog &dialog) {
        if (!present.isEmpty()) {
            typeIn(dialog, "currentPassword_lineEdit", present);
        }
        typeIn(dialog, "password1_lineEdit", password);
        typeIn(dialog, "password2_lineEdit", password);
        clickIn(dialog, "apply_pushButton");
    };
}

void cancel(QDialog &dialog)
{
    clickIn(dialog, "cancel_pushButton");
}

} // namespace

class TestAccessPage : public TestBase
{
    Q_OBJECT

private slots:
    void lockAsksForAFirstPassword();
    void lockWithAStoredPasswordAsksNothing();
    void lockWithANewPasswordStoresIt();
    void newPasswordThatWasSetTwiceIsStored();
    void cancelledLockChangesNothing_data();
    void cancelledLockChangesNothing();
    void cancelAfterAChangeKeepsTheOldPassword();
    void wrongPasswordOpensNothing();
    void rightPasswordOpensTheWorkArea();
    void returnKeyUnlocks();
    void lockedAreaHidesTheWork();
    void nothingCanBeStoredWhileLocked();
    void areaCannotBeLockedWithoutAPassword();
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

protected:
    void prepare() override;
    void finish() override { page.reset(); }

private:
    void click(const QString &text) { DialogDriver::click(buttonOf(*page, text)); }
    bool isEnabled(const QString &text) const { return buttonOf(*page, text)->isEnabled(); }
    bool isLocked() const { return page->findChild<LockedArea *>()->isLocked(); }
    TXPasswordLineEdit *unlockField() const;
    void activate();
    void storePassword(const QString &password);
    void lockWithStoredPassword();
    void tryToUnlock(const QString &password);

    std::unique_ptr<AccessPage> page;
};

void TestAccessPage::prepare()
{
    page = std::make_unique<AccessPage>();
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QVERIFY(isRead(*page, "nothing"));
}

TXPasswordLineEdit *TestAccessPage::unlockField() const
{
    return page->findChild<LockedArea *>()->findChild<TXPasswordLineEdit *>();
}

/// A window system does so by itself when a dialog has closed; the platform of the tests does not.
void TestAccessPage::activate()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestAccessPage::storePassword(const QString &password)
{
    DialogDriver driver;
    driver.expect(applying(password));
    click("First Password...");
    activate();
}

void TestAccessPage::lockWithStoredPassword()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { clickIn(dialog, "lockPushButton"); });
    click("Lock...");
    activate();
}

void TestAccessPage::tryToUnlock(const QString &password)
{
    unlockField()->clear();
    QTest::keyClicks(unlockField(), password);
    click("Unlock");
}

void TestAccessPage::lockAsksForAFirstPassword()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        QVERIFY(qobject_cast<LockerUIDialog *>(&dialog));
        clickIn(dialog, "lockPushButton");
    });
    driver.expect(applying("secret"));

    click("Lock...");

    QVERIFY(isLocked());
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "Locked with a new password, which is now stored."));
}

void TestAccessPage::lockWithAStoredPasswordAsksNothing()
{
    storePassword("secret");
    QVERIFY(!isLocked());

    lockWithStoredPassword();

    QVERIFY(isLocked());
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "Locked with the stored password."));
}

void TestAccessPage::lockWithANewPasswordStoresIt()
{
    storePassword("old one");
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        clickIn(dialog, "changePasswordPushButton");
        clickIn(dialog, "lockPushButton");
    });
    driver.expect(applying("secret", "old one"));

    click("Lock...");

    QVERIFY(isLocked());
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "Locked with a new password, which is now stored."));
}

void TestAccessPage::newPasswordThatWasSetTwiceIsStored()
{
    storePassword("old one");
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        clickIn(dialog, "changePasswordPushButton");
        clickIn(dialog, "changePasswordPushButton");
        QVERIFY(!qobject_cast<LockerUIDialog *>(&dialog)->isPasswordChanged());
        clickIn(dialog, "lockPushButton");
        QCOMPARE(dialog.result(), 0);
    });
    driver.expect(applying("secret", "old one"));
    driver.expect(applying("secret", "secret"));

    click("Lock...");

    QVERIFY(isRead(*page, kDigest));
    tryToUnlock("secret");
    QVERIFY(!isLocked());
}

void TestAccessPage::cancelledLockChangesNothing_data()
{
    QTest::addColumn<bool>("isStored");
    QTest::newRow("without a password") << false;
    QTest::newRow("with a password") << true;
}

void TestAccessPage::cancelledLockChangesNothing()
{
    QFETCH(bool, isStored);
    if (isStored) {
        storePassword("secret");
    }
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { clickIn(dialog, "cancelPushButton"); });

    click("Lock...");

    QVERIFY(!isLocked());
    QVERIFY(isRead(*page, isStored ? kDigest : QStringLiteral("nothing")));
    QVERIFY(isRead(*page, "Cancelled: nothing is locked, and what is stored stays."));
}

void TestAccessPage::cancelAfterAChangeKeepsTheOldPassword()
{
    storePassword("secret");
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        clickIn(dialog, "changePasswordPushButton");
        clickIn(dialog, "cancelPushButton");
    });
    driver.expect(applying("other", "secret"));

    click("Lock...");

    QVERIFY(!isLocked());
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page,
                   "Cancelled after the password was changed: nothing is locked, and the "
                   "new password is not kept."));
}

void TestAccessPage::wrongPasswordOpensNothing()
{
    const QString message = "This is not the password.";
    storePassword("secret");
    lockWithStoredPassword();
    QVERIFY(!isRead(*page, message));

    for (const QString &wrong : {QString("Secret"), QString(), kDigest}) {
        tryToUnlock(wrong);
        QVERIFY(isLocked());
        QVERIFY(isRead(*page, message));
    }
    QVERIFY(unlockField()->hasFocus());
    QTest::keyClick(unlockField(), Qt::Key_S);
    QVERIFY(!isRead(*page, message));
}

void TestAccessPage::rightPasswordOpensTheWorkArea()
{
    storePassword("secret");
    lockWithStoredPassword();

    tryToUnlock("secret");

    QVERIFY(!isLocked());
    QVERIFY(isRead(*page, "Unlocked with the right password."));
    QVERIFY(isEnabled("Lock..."));
    QVERIFY(buttonOf(*page, "Lock...")->hasFocus());
    QVERIFY(unlockField()->text().isEmpty());
}

void TestAccessPage::returnKeyUnlocks()
{
    storePassword("secret");
    lockWithStoredPassword();
    QVERIFY(unlockField()->hasFocus());

    QTest::keyClicks(unlockField(), "secret");
    QTest::keyClick(unlockField(), Qt::Key_Return);

    QVERIFY(!isLocked());
}

void TestAccessPage::lockedAreaHidesTheWork()
{
    const auto boxes = page->findChildren<QComboBox *>();
    QVERIFY(!boxes.isEmpty());
    storePassword("secret");
    lockWithStoredPassword();

    for (const QComboBox *box : boxes) {
        QVERIFY(!box->isVisible());
    }
    QVERIFY(unlockField()->isVisible());
    tryToUnlock("secret");
    for (const QComboBox *box : boxes) {
        QVERIFY(box->isVisible());
    }
    QVERIFY(!unlockField()->isVisible());
}

void TestAccessPage::nothingCanBeStoredWhileLocked()
{
    storePassword("secret");
    lockWithStoredPassword();

    for (const char *text : {"Lock...", "Forget", "First Password...", "Change Password...",
                             "MD5 digest", "plain text"}) {
        QVERIFY2(!isEnabled(text), text);
    }
}

void TestAccessPage::areaCannotBeLockedWithoutAPassword()
{
    auto *area = page->findChild<LockedArea *>();

    area->lock(StoredPassword());

    QVERIFY(!area->isLocked());
}

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
