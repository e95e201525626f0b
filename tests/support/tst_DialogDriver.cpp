#include "DialogDriver.h"
#include "TestBase.h"

#include <QPushButton>
#include <QSignalSpy>

class TestDialogDriver : public TestBase
{
    Q_OBJECT

private slots:
    void clickEndsTheDialogWithItsButton();
    void answersAreUsedInOrder();
    void dialogThatNeverComesFails();
    void dialogThatNobodyExpectsFailsAndIsRejected();
    void dialogThatStaysOpenFailsAndIsRejected();
    void disabledButtonCannotBeClicked();
    void hiddenButtonCannotBeClicked();
};

void TestDialogDriver::clickEndsTheDialogWithItsButton()
{
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.text(), QStringLiteral("Delete it?"));
        DialogDriver::click(box.button(QMessageBox::No));
    });

    const auto answer = QMessageBox::question(nullptr, QString(), QStringLiteral("Delete it?"));

    QCOMPARE(answer, QMessageBox::No);
}

void TestDialogDriver::answersAreUsedInOrder()
{
    DialogDriver driver;
    QStringList texts;
    for (int i = 0; i < 2; ++i) {
        driver.expectMessageBox([&texts](QMessageBox &box) {
            texts.append(box.text());
            DialogDriver::click(box.button(QMessageBox::Ok));
        });
    }

    QMessageBox::information(nullptr, QString(), QStringLiteral("first"));
    QMessageBox::information(nullptr, QString(), QStringLiteral("second"));

    QCOMPARE(texts, QStringList({QStringLiteral("first"), QStringLiteral("second")}));
}

void TestDialogDriver::dialogThatNeverComesFails()
{
    QEXPECT_FAIL("", "the driver was told of a dialog that does not come", Continue);
    DialogDriver driver;
    driver.expect([](QDialog &) {});
}

void TestDialogDriver::dialogThatNobodyExpectsFailsAndIsRejected()
{
    QEXPECT_FAIL("", "the driver was not told of this dialog", Continue);
    DialogDriver driver;
    QDialog dialog;

    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void TestDialogDriver::dialogThatStaysOpenFailsAndIsRejected()
{
    QEXPECT_FAIL("", "the answer does not close the dialog", Continue);
    DialogDriver driver;
    driver.expect([](QDialog &) {});
    QDialog dialog;

    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void TestDialogDriver::disabledButtonCannotBeClicked()
{
    QPushButton button;
    button.setEnabled(false);
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    button.show();

    QEXPECT_FAIL("", "a disabled button", Continue);
    DialogDriver::click(&button);

    QCOMPARE(clicked.count(), 0);
}

void TestDialogDriver::hiddenButtonCannotBeClicked()
{
    QPushButton button;
    QSignalSpy clicked(&button, SIGNAL(clicked()));

    QEXPECT_FAIL("", "a hidden button", Continue);
    DialogDriver::click(&button);

    QCOMPARE(clicked.count(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestDialogDriver>(argc, argv);
}

#include "tst_DialogDriver.moc"
