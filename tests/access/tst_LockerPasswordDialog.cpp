#include "LockerPasswordDialog.h"

#include "DialogDriver.h"
#include "LockerTestHelpers.h"
#include "TestBase.h"

namespace {

/// The MD5 digest of "abc", as md5sum prints it.
const QString kDigestOfAbc = QStringLiteral("900150983cd24fb0d6963f7d28e17f72");

bool areNewFieldsOpen(const QDialog &dialog)
{
    const bool isFirstOpen = field(dialog, "password1_lineEdit")->isEnabled();
    const bool isSecondOpen = field(dialog, "password2_lineEdit")->isEnabled();
    return isFirstOpen && isSecondOpen;
}

bool areNewFieldsClosed(const QDialog &dialog)
{
    const bool isFirstOpen = field(dialog, "password1_lineEdit")->isEnabled();
    const bool isSecondOpen = field(dialog, "password2_lineEdit")->isEnabled();
    return !isFirstOpen && !isSecondOpen;
}

} // namespace

class TestLockerPasswordDialog : public TestBase
{
    Q_OBJECT

private slots:
    void windowIsAsAgreed();
    void onlyTheOldPasswordOpensTheNewFields_data();
    void onlyTheOldPasswordOpensTheNewFields();
    void settingThePasswordComparesNothing();
    void contentsAndApplyStayWhenTheProofIsGone();
    void appliedPasswordIsInItsStoredForm_data();
    void appliedPasswordIsInItsStoredForm();
    void cancelKeepsThePassword_data();
    void cancelKeepsThePassword();
    void returnOnCancelCancels();
    void keyboardGoesFromFieldToButtons();
};

void TestLockerPasswordDialog::windowIsAsAgreed()
{
    const LockerPasswordDialog dialog(true, nullptr);
    checkLockerWindow(dialog);
    QVERIFY(dialog.password().isEmpty());
    QCOMPARE(labelText(dialog, "label"), "Enter Current Password");
    QCOMPARE(labelText(dialog, "label_2"), "Enter a New Password (twice)");
    for (const char *name :
         {"currentPassword_lineEdit", "password1_lineEdit", "password2_lineEdit"}) {
        QCOMPARE(field(dialog, name)->echoMode(), QLineEdit::Password);
        QVERIFY(!field(dialog, name)->accessibleName().isEmpty());
    }
    QVERIFY(areNewFieldsClosed(dialog));
    QVERIFY(!button(dialog, "apply_pushButton")->isEnabled());
    QCOMPARE(button(dialog, "apply_pushButton")->text(), "Apply");
    QCOMPARE(button(dialog, "cancel_pushButton")->text(), "Cancel");
}

void TestLockerPasswordDialog::onlyTheOldPasswordOpensTheNewFields_data()
{
    QTest::addColumn<bool>("useHash");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("digest: right") << true << kDigestOfAbc << "abc" << true;
    QTest::newRow("digest: wrong") << true << kDigestOfAbc << "abd" << false;
    QTest::newRow("digest: case") << true << kDigestOfAbc << "ABC" << false;
    QTest::newRow("digest: the digest itself") << true << kDigestOfAbc << kDigestOfAbc << false;
    QTest::newRow("digest: stored in upper case")
        << true << kDigestOfAbc.toUpper() << "abc" << false;
    QTest::newRow("digest: nothing stored") << true << ""
                                            << "abc" << false;
    QTest::newRow("digest: stored in plain") << true << "abc"
                                             << "abc" << false;
    QTest::newRow("plain: right") << false << "abc"
                                  << "abc" << true;
    QTest::newRow("plain: wrong") << false << "abc"
                                  << "abcd" << false;
    QTest::newRow("plain: case") << false << "abc"
                                 << "ABC" << false;
    QTest::newRow("plain: nothing stored") << false << ""
                                           << "abc" << false;
}

void TestLockerPasswordDialog::onlyTheOldPasswordOpensTheNewFields()
{
    QFETCH(bool, useHash);
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    QFETCH(bool, isOpen);
    LockerPasswordDialog dialog(useHash, nullptr);
    dialog.setPassword(stored);
    QLineEdit *current = field(dialog, "currentPassword_lineEdit");
    current->setText(typed);
    QCOMPARE(areNewFieldsOpen(dialog), isOpen);
    QCOMPARE(areNewFieldsClosed(dialog), !isOpen);

    current->clear();
    QVERIFY(areNewFieldsClosed(dialog));
}

void TestLockerPasswordDialog::settingThePasswordComparesNothing()
{
    LockerPasswordDialog dialog(false, nullptr);
    field(dialog, "currentPassword_lineEdit")->setText("abc");
    dialog.setPassword("abc");
    QVERIFY(areNewFieldsClosed(dialog));

    field(dialog, "currentPassword_lineEdit")->setText("ab");
    field(dialog, "currentPassword_lineEdit")->setText("abc");
    QVERIFY(areNewFieldsOpen(dialog));
    dialog.setPassword("other");
    QVERIFY(areNewFieldsOpen(dialog));
}

void TestLockerPasswordDialog::contentsAndApplyStayWhenTheProofIsGone()
{
    LockerPasswordDialog dialog(true, nullptr);
    dialog.setPassword(kDigestOfAbc);
    QLineEdit *current = field(dialog, "currentPassword_lineEdit");
    current->setText("abc");
    field(dialog, "password1_lineEdit")->setText("new");
    field(dialog, "password2_lineEdit")->setText("new");
    QVERIFY(button(dialog, "apply_pushButton")->isEnabled());

    current->setText("ab");
    QVERIFY(areNewFieldsClosed(dialog));
    QCOMPARE(field(dialog, "password1_lineEdit")->text(), "new");
    QCOMPARE(field(dialog, "password2_lineEdit")->text(), "new");
    QVERIFY(button(dialog, "apply_pushButton")->isEnabled());
}

void TestLockerPasswordDialog::appliedPasswordIsInItsStoredForm_data()
{
    QTest::addColumn<bool>("useHash");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("digest") << true << kDigestOfAbc << "da84d888f8e2ad17a2a35ba34b989f3e";
    QTest::newRow("plain") << false << "abc"
                           << "Grün";
}

void TestLockerPasswordDialog::appliedPasswordIsInItsStoredForm()
{
    QFETCH(bool, useHash);
    QFETCH(QString, before);
    QFETCH(QString, after);
    LockerPasswordDialog dialog(useHash, nullptr);
    dialog.setPassword(before);
    DialogDriver driver;
    driver.expect([&](QDialog &) {
        QTest::keyClicks(field(dialog, "currentPassword_lineEdit"), "abc");
        field(dialog, "password1_lineEdit")->setText("Grün");
        field(dialog, "password2_lineEdit")->setText("Grün");
        DialogDriver::click(button(dialog, "apply_pushButton"));
    });
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(dialog.password(), after);
}

void TestLockerPasswordDialog::cancelKeepsThePassword_data()
{
    addWaysToCancel("cancel_pushButton");
}

void TestLockerPasswordDialog::cancelKeepsThePassword()
{
    LockerPasswordDialog dialog(false, nullptr);
    dialog.setPassword("before");
    DialogDriver driver;
    driver.expect([&](QDialog &) { cancel(dialog); });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "before");
}

void TestLockerPasswordDialog::returnOnCancelCancels()
{
    LockerPasswordDialog dialog(false, nullptr);
    dialog.setPassword("before");
    DialogDriver driver;
    driver.expect([](QDialog &opened) { returnOnCancel(opened); });
    QCOMPARE(dialog.exec(), -1);
    QCOMPARE(dialog.password(), "before");
}

void TestLockerPasswordDialog::keyboardGoesFromFieldToButtons()
{
    const LockerPasswordDialog dialog(false, nullptr);
    checkTabOrder(dialog,
                  {"currentPassword_lineEdit", "password1_lineEdit", "password2_lineEdit",
                   "apply_pushButton", "cancel_pushButton"});
    QCOMPARE(dialog.findChild<QLabel *>("label")->buddy(),
             field(dialog, "currentPassword_lineEdit"));
    QCOMPARE(dialog.findChild<QLabel *>("label_2")->buddy(), field(dialog, "password1_lineEdit"));
}

int main(int argc, char **argv)
{
    return runTest<TestLockerPasswordDialog>(argc, argv);
}

#include "tst_LockerPasswordDialog.moc"
