#include "AccessPageTest.h"
#include "StoredPassword.h"

#include "LockerUIDialog.h"

#include <QComboBox>

using AccessDialogs::applying;
using AccessDialogs::clickIn;
using AccessDialogs::kDigest;

/// The work area of the page, locked and unlocked.
class TestAccessPageLocking : public AccessPageTest
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
};

void TestAccessPageLocking::lockAsksForAFirstPassword()
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

void TestAccessPageLocking::lockWithAStoredPasswordAsksNothing()
{
    storePassword("secret");
    QVERIFY(!isLocked());

    lockWithStoredPassword();

    QVERIFY(isLocked());
    QVERIFY(isRead(*page, kDigest));
    QVERIFY(isRead(*page, "Locked with the stored password."));
}

void TestAccessPageLocking::lockWithANewPasswordStoresIt()
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

void TestAccessPageLocking::newPasswordThatWasSetTwiceIsStored()
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

void TestAccessPageLocking::cancelledLockChangesNothing_data()
{
    QTest::addColumn<bool>("isStored");
    QTest::newRow("without a password") << false;
    QTest::newRow("with a password") << true;
}

void TestAccessPageLocking::cancelledLockChangesNothing()
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

void TestAccessPageLocking::cancelAfterAChangeKeepsTheOldPassword()
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

void TestAccessPageLocking::wrongPasswordOpensNothing()
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

void TestAccessPageLocking::rightPasswordOpensTheWorkArea()
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

void TestAccessPageLocking::returnKeyUnlocks()
{
    storePassword("secret");
    lockWithStoredPassword();
    QVERIFY(unlockField()->hasFocus());

    QTest::keyClicks(unlockField(), "secret");
    QTest::keyClick(unlockField(), Qt::Key_Return);

    QVERIFY(!isLocked());
}

void TestAccessPageLocking::lockedAreaHidesTheWork()
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

void TestAccessPageLocking::nothingCanBeStoredWhileLocked()
{
    storePassword("secret");
    lockWithStoredPassword();

    for (const char *text : {"Lock...", "Forget", "First Password...", "Change Password...",
                             "MD5 digest", "plain text"}) {
        QVERIFY2(!isEnabled(text), text);
    }
}

void TestAccessPageLocking::areaCannotBeLockedWithoutAPassword()
{
    auto *area = page->findChild<LockedArea *>();

    area->lock(StoredPassword());

    QVERIFY(!area->isLocked());
}

int main(int argc, char **argv)
{
    return runTest<TestAccessPageLocking>(argc, argv);
}

#include "tst_AccessPageLocking.moc"
