#include "LockerFirstPasswordDialog.h"

#include "DialogDriver.h"
#include "LockerTestHelpers.h"
#include "TestBase.h"

class TestLockerFirstPasswordDialog : public TestBase
{
    Q_OBJECT

private slots:
    void windowIsAsAgreed();
    void applyNeedsTwoEqualTexts_data();
    void applyNeedsTwoEqualTexts();
    void applyFollowsBothFields();
    void appliedPasswordIsInItsStoredForm_data();
    void appliedPasswordIsInItsStoredForm();
    void cancelKeepsThePassword_data();
    void cancelKeepsThePassword();
    void returnAppliesOnlyWhenThatIsPossible();
    void returnOnCancelCancels();
    void keyboardGoesFromFieldToButtons();
};

void TestLockerFirstPasswordDialog::windowIsAsAgreed()
{
    const LockerFirstPasswordDialog dialog(true, nullptr);
    checkLockerWindow(dialog);
    QVERIFY(dialog.password().isEmpty());
    QCOMPARE(labelText(dialog, "label_2"), "Enter Password (twice)");
    for (const char *name : {"password1_lineEdit", "password2_lineEdit"}) {
        QCOMPARE(field(dialog, name)->echoMode(), QLineEdit::Password);
        QVERIFY(!field(dialog, name)->accessibleName().isEmpty());
    }
    QCOMPARE(button(dialog, "apply_pushButton")->text(), "Apply");
    QCOMPARE(button(dialog, "cancel_pushButton")->text(), "Cancel");
    QVERIFY(!button(dialog, "apply_pushButton")->isEnabled());
}

void TestLockerFirstPasswordDialog::applyNeedsTwoEqualTexts_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("isPossible");
    QTest::newRow("both empty") << ""
                                << "" << false;
    QTest::newRow("equal") << "abc"
                           << "abc" << true;
    QTest::newRow("case differs") << "abc"
                                  << "Abc" << false;
    QTest::newRow("second is longer") << "abc"
                                      << "abcd" << false;
    QTest::newRow("first only") << "abc"
                                << "" << false;
    QTest::newRow("second only") << ""
                                 << "abc" << false;
    QTest::newRow("a blank") << " "
                             << " " << true;
}

void TestLockerFirstPasswordDialog::applyNeedsTwoEqualTexts()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, isPossible);
    const LockerFirstPasswordDialog dialog(true, nullptr);
    field(dialog, "password1_lineEdit")->setText(first);
    field(dialog, "password2_lineEdit")->setText(second);
    QCOMPARE(button(dialog, "apply_pushButton")->isEnabled(), isPossible);
}

void TestLockerFirstPasswordDialog::applyFollowsBothFields()
{
    const LockerFirstPasswordDialog dialog(false, nullptr);
    field(dialog, "password1_lineEdit")->setText("abc");
    field(dialog, "password2_lineEdit")->setText("abc");
    QVERIFY(button(dialog, "apply_pushButton")->isEnabled());
    field(dialog, "password1_lineEdit")->setText("abcd");
    QVERIFY(!button(dialog, "apply_pushButton")->isEnabled());
    field(dialog, "password2_lineEdit")->setText("abcd");
    QVERIFY(button(dialog, "apply_pushButton")->isEnabled());
}

void TestLockerFirstPasswordDialog::appliedPasswordIsInItsStoredForm_data()
{
    QTest::addColumn<bool>("useHash");
    QTest::addColumn<QString>("stored");
    // As md5sum prints it for the UTF-8 bytes.
    QTest::newRow("digest") << true << "da84d888f8e2ad17a2a35ba34b989f3e";
    QTest::newRow("plain") << false << "Grün";
}

void TestLockerFirstPasswordDialog::appliedPasswordIsInItsStoredForm()
{
    QFETCH(bool, useHash);
    QFETCH(QString, stored);
    LockerFirstPasswordDialog dialog(useHash, nullptr);
    DialogDriver driver;
    driver.expect([&](QDialog &) {
        field(dialog, "password1_lineEdit")->setText("Grün");
        field(dialog, "password2_lineEdit")->setText("Grün");
        DialogDriver::click(button(dialog, "apply_pushButton"));
    });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), stored);
}

void TestLockerFirstPasswordDialog::cancelKeepsThePassword_data()
{
    addWaysToCancel("cancel_pushButton");
}

void TestLockerFirstPasswordDialog::cancelKeepsThePassword()
{
    LockerFirstPasswordDialog dialog(false, nullptr);
    dialog.setPassword("before");
    DialogDriver driver;
    driver.expect([&](QDialog &) {
        field(dialog, "password1_lineEdit")->setText("abc");
        field(dialog, "password2_lineEdit")->setText("abc");
        cancel(dialog);
    });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "before");
}

void TestLockerFirstPasswordDialog::returnAppliesOnlyWhenThatIsPossible()
{
    LockerFirstPasswordDialog dialog(false, nullptr);
    DialogDriver driver;
    driver.expect([&](QDialog &) {
        QLineEdit *second = field(dialog, "password2_lineEdit");
        field(dialog, "password1_lineEdit")->setText("abc");
        QTest::keyClick(second, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        second->setText("abc");
        QTest::keyClick(second, Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), "abc");
}

void TestLockerFirstPasswordDialog::returnOnCancelCancels()
{
    LockerFirstPasswordDialog dialog(false, nullptr);
    dialog.setPassword("before");
    DialogDriver driver;
    driver.expect([](QDialog &opened) { returnOnCancel(opened); });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "before");
}

void TestLockerFirstPasswordDialog::keyboardGoesFromFieldToButtons()
{
    const LockerFirstPasswordDialog dialog(false, nullptr);
    checkTabOrder(
        dialog,
        {"password1_lineEdit", "password2_lineEdit", "apply_pushButton", "cancel_pushButton"});
    QCOMPARE(dialog.findChild<QLabel *>("label_2")->buddy(), field(dialog, "password1_lineEdit"));
}

int main(int argc, char **argv)
{
    return runTest<TestLockerFirstPasswordDialog>(argc, argv);
}

#include "tst_LockerFirstPasswordDialog.moc"
