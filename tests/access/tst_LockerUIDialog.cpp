#include "LockerUIDialog.h"

#include "DialogDriver.h"
#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerTestHelpers.h"
#include "TestBase.h"

namespace {

void clickLock(const QDialog &dialog)
{
    DialogDriver::click(button(dialog, "lockPushButton"));
}

void clickChange(const QDialog &dialog)
{
    DialogDriver::click(button(dialog, "changePasswordPushButton"));
}

/// Answers the dialog for a first password.
void enterFirst(QDialog &dialog, const QString &password)
{
    QVERIFY(qobject_cast<LockerFirstPasswordDialog *>(&dialog));
    field(dialog, "password1_lineEdit")->setText(password);
    field(dialog, "password2_lineEdit")->setText(password);
    DialogDriver::click(button(dialog, "apply_pushButton"));
}

/// Answers the dialog for another password.
void enterChange(QDialog &dialog, const QString &current, const QString &next)
{
    QVERIFY(qobject_cast<LockerPasswordDialog *>(&dialog));
    field(dialog, "currentPassword_lineEdit")->setText(current);
    QVERIFY(field(dialog, "password1_lineEdit")->isEnabled());
    field(dialog, "password1_lineEdit")->setText(next);
    field(dialog, "password2_lineEdit")->setText(next);
    DialogDriver::click(button(dialog, "apply_pushButton"));
}

void cancelByButton(QDialog &dialog)
{
    DialogDriver::click(button(dialog, "cancel_pushButton"));
}

} // namespace

class TestLockerUIDialog : public TestBase
{
    Q_OBJECT

private slots:
    void windowIsAsAgreed();
    void changingNeedsAStoredPassword();
    void lockWithAStoredPasswordAsksNothing();
    void lockWithoutPasswordAsksForAFirstOne_data();
    void lockWithoutPasswordAsksForAFirstOne();
    void cancelledFirstPasswordEndsWithCancel();
    void changedPasswordMakesTheLockOne();
    void samePasswordAgainIsNoChange();
    void changeThatIsTakenBackIsAChange();
    void lastChangeDecides();
    void cancelledChangeChangesNothing();
    void cancelEndsWithMinusOne_data();
    void cancelEndsWithMinusOne();
    void changeStaysReadableAfterCancel();
    void changedPasswordOutweighsACancelledFirstOne();
    void emptyPasswordDoesNotDisableChanging();
    void keyboardReachesAllButtons();
};

void TestLockerUIDialog::windowIsAsAgreed()
{
    const LockerUIDialog dialog(true, nullptr);
    checkLockerWindow(dialog);
    QVERIFY(dialog.password().isEmpty());
    QVERIFY(!dialog.isPasswordChanged());
    QCOMPARE(button(dialog, "lockPushButton")->text(), "Lock User Interface");
    QCOMPARE(button(dialog, "changePasswordPushButton")->text(), "Change Password");
    QCOMPARE(button(dialog, "cancelPushButton")->text(), "Cancel");
}

void TestLockerUIDialog::changingNeedsAStoredPassword()
{
    LockerUIDialog dialog(false, nullptr);
    QVERIFY(!button(dialog, "changePasswordPushButton")->isEnabled());
    dialog.setPassword(QString());
    QVERIFY(!button(dialog, "changePasswordPushButton")->isEnabled());
    dialog.setPassword("abc");
    QVERIFY(button(dialog, "changePasswordPushButton")->isEnabled());
    QCOMPARE(dialog.password(), "abc");
}

void TestLockerUIDialog::lockWithAStoredPasswordAsksNothing()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) { clickLock(opened); });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.password(), "abc");
    QVERIFY(!dialog.isPasswordChanged());
}

void TestLockerUIDialog::lockWithoutPasswordAsksForAFirstOne_data()
{
    QTest::addColumn<bool>("useHash");
    QTest::addColumn<QString>("stored");
    QTest::newRow("digest") << true << "900150983cd24fb0d6963f7d28e17f72";
    QTest::newRow("plain") << false << "abc";
}

void TestLockerUIDialog::lockWithoutPasswordAsksForAFirstOne()
{
    QFETCH(bool, useHash);
    QFETCH(QString, stored);
    LockerUIDialog dialog(useHash, nullptr);
    DialogDriver driver;
    driver.expect([](QDialog &opened) { clickLock(opened); });
    driver.expect([](QDialog &opened) { enterFirst(opened, "abc"); });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), stored);
    QVERIFY(dialog.isPasswordChanged());
}

void TestLockerUIDialog::cancelledFirstPasswordEndsWithCancel()
{
    LockerUIDialog dialog(true, nullptr);
    DialogDriver driver;
    driver.expect([](QDialog &opened) { clickLock(opened); });
    driver.expect([](QDialog &opened) { cancelByButton(opened); });
    QCOMPARE(dialog.exec(), -1);
    QVERIFY(dialog.password().isEmpty());
    QVERIFY(!dialog.isPasswordChanged());
}

void TestLockerUIDialog::changedPasswordMakesTheLockOne()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        // The main dialog is still there after the change.
        QVERIFY(opened.isVisible());
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "new"); });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), "new");
    QVERIFY(dialog.isPasswordChanged());
}

void TestLockerUIDialog::samePasswordAgainIsNoChange()
{
    LockerUIDialog dialog(true, nullptr);
    dialog.setPassword("900150983cd24fb0d6963f7d28e17f72");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "abc"); });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.password(), "900150983cd24fb0d6963f7d28e17f72");
    QVERIFY(!dialog.isPasswordChanged());
}

void TestLockerUIDialog::changeThatIsTakenBackIsAChange()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        clickChange(opened);
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "new"); });
    driver.expect([](QDialog &opened) { enterChange(opened, "new", "abc"); });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), "abc");
}

void TestLockerUIDialog::lastChangeDecides()
{
    // The flag is assigned by each change, not accumulated.
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        clickChange(opened);
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "new"); });
    driver.expect([](QDialog &opened) { enterChange(opened, "new", "new"); });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.password(), "new");
    QVERIFY(!dialog.isPasswordChanged());
}

void TestLockerUIDialog::cancelledChangeChangesNothing()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { cancelByButton(opened); });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.password(), "abc");
}

void TestLockerUIDialog::cancelEndsWithMinusOne_data()
{
    addWaysToCancel("cancelPushButton");
}

void TestLockerUIDialog::cancelEndsWithMinusOne()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) { cancel(opened); });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "abc");
}

void TestLockerUIDialog::changeStaysReadableAfterCancel()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        clickChange(opened);
        DialogDriver::click(button(opened, "cancelPushButton"));
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "new"); });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "new");
    QVERIFY(dialog.isPasswordChanged());
}

void TestLockerUIDialog::changedPasswordOutweighsACancelledFirstOne()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([&dialog](QDialog &opened) {
        clickChange(opened);
        dialog.setPassword(QString());
        clickLock(opened);
    });
    driver.expect([](QDialog &opened) { enterChange(opened, "abc", "new"); });
    driver.expect([](QDialog &opened) { cancelByButton(opened); });
    QCOMPARE(dialog.exec(), 1);
    QVERIFY(dialog.password().isEmpty());
}

void TestLockerUIDialog::emptyPasswordDoesNotDisableChanging()
{
    LockerUIDialog dialog(false, nullptr);
    dialog.setPassword("abc");
    dialog.setPassword(QString());
    QVERIFY(button(dialog, "changePasswordPushButton")->isEnabled());
    QVERIFY(dialog.password().isEmpty());
}

void TestLockerUIDialog::keyboardReachesAllButtons()
{
    LockerUIDialog dialog(false, nullptr);
    checkTabOrder(dialog, {"lockPushButton", "changePasswordPushButton", "cancelPushButton"});

    dialog.setPassword("abc");
    DialogDriver driver;
    driver.expect([](QDialog &opened) { QTest::keyClick(&opened, Qt::Key_Return); });
    driver.expect([](QDialog &opened) {
        QPushButton *cancelButton = button(opened, "cancelPushButton");
        cancelButton->setFocus(Qt::TabFocusReason);
        QTest::keyClick(cancelButton, Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.exec(), -1);
}

int main(int argc, char **argv)
{
    return runTest<TestLockerUIDialog>(argc, argv);
}

#include "tst_LockerUIDialog.moc"
