#include "TXFeedbackDialog.h"

#include "BracketsTranslator.h"
#include "FeedbackTestHelpers.h"
#include "LocalFeedbackService.h"
#include "TestBase.h"

#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

TXFeedbackWidget *formOf(const QDialog &dialog)
{
    return dialog.findChild<TXFeedbackWidget *>(QStringLiteral("feedbackWidget"));
}

} // namespace

class TestTXFeedbackDialog : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void dialogHoldsTheFormAlone();
    void parentIsTheGivenOne();
    void keyboardStartsAtTheName();
    void titleFollowsTheLanguage();
    void acceptedNoteClosesTheDialog();
    void cancelClosesTheDialog_data();
    void cancelClosesTheDialog();
    void returnInAFieldSubmits();
    void returnOnCancelCancels();
    void extraFieldsAreSent();
    void failureKeepsTheDialogOpen();
    void dialogMayGoDuringTheConfirmation();
    void dialogMayGoDuringTheExchange();
    void dialogThatIsClosedDuringTheExchangeEndsIt();

private:
    void startService(LocalFeedbackService::Answer answer);

    std::unique_ptr<LocalFeedbackService> service;
    std::unique_ptr<DebugLog> log;
    std::unique_ptr<TXFeedbackDialog> dialog;
};

void TestTXFeedbackDialog::prepare()
{
    log = std::make_unique<DebugLog>();
    dialog = std::make_unique<TXFeedbackDialog>(QVariantHash{
        {QStringLiteral("Subject"), QStringLiteral("host")}, {QStringLiteral("Revision"), 10452}});
}

void TestTXFeedbackDialog::finish()
{
    dialog.reset();
    log.reset();
    service.reset();
}

void TestTXFeedbackDialog::startService(LocalFeedbackService::Answer answer)
{
    service = std::make_unique<LocalFeedbackService>();
    service->setAnswer(answer);
    QVERIFY2(service->start(), qPrintable(service->error()));
}

void TestTXFeedbackDialog::dialogHoldsTheFormAlone()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Feedback"));
    QCOMPARE(dialog->size(), QSize(234, 247));
    const auto *layout = qobject_cast<QVBoxLayout *>(dialog->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 1);
    QVERIFY(formOf(*dialog));
    QCOMPARE(layout->itemAt(0)->widget(), formOf(*dialog));
    QCOMPARE(dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

void TestTXFeedbackDialog::parentIsTheGivenOne()
{
    QWidget parent;
    const TXFeedbackDialog child({}, &parent);
    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(child.isWindow());
}

void TestTXFeedbackDialog::keyboardStartsAtTheName()
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QCOMPARE(QApplication::focusWidget(), lineEdit(*dialog, "senderNameLineEdit"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), pushButton(*dialog, "submitPushButton"));
}

void TestTXFeedbackDialog::titleFollowsTheLanguage()
{
    BracketsTranslator translator("TXFeedbackDialog");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("[Feedback]"));
}

void TestTXFeedbackDialog::acceptedNoteClosesTheDialog()
{
    DialogDriver driver;
    driver.expect([](QDialog &opened) { emit formOf(opened)->accept(); });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
}

void TestTXFeedbackDialog::cancelClosesTheDialog_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("window system") << "close";
}

void TestTXFeedbackDialog::cancelClosesTheDialog()
{
    QFETCH(QString, way);
    fillIn(*dialog);
    DialogDriver driver;
    driver.expect([&](QDialog &opened) {
        if (way == u"Escape") {
            QTest::keyClick(description(opened), Qt::Key_Escape);
        } else if (way == u"close") {
            opened.close();
        } else {
            DialogDriver::click(pushButton(opened, "cancelPushButton"));
        }
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(isFilledIn(*dialog));
}

void TestTXFeedbackDialog::returnInAFieldSubmits()
{
    dialog->show();
    QSignalSpy finished(dialog.get(), SIGNAL(finished(int)));
    DialogDriver driver;
    expectTold(driver, QStringLiteral("Missing Information"),
               QStringLiteral("Field 'Name' hasn't been set, please set a \"Name\"."));
    QTest::keyClick(lineEdit(*dialog, "feedbackSubjectLineEdit"), Qt::Key_Return);
    QTest::keyClick(description(*dialog), Qt::Key_Return);
    QCOMPARE(description(*dialog)->toPlainText(), QStringLiteral("\n"));
    QCOMPARE(finished.size(), 0);
}

void TestTXFeedbackDialog::returnOnCancelCancels()
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QSignalSpy rejected(dialog.get(), SIGNAL(rejected()));
    pushButton(*dialog, "cancelPushButton")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(pushButton(*dialog, "cancelPushButton"), Qt::Key_Return);
    QCOMPARE(rejected.size(), 1);
}

void TestTXFeedbackDialog::extraFieldsAreSent()
{
    startService(LocalFeedbackService::Answer::Accepted);
    fillIn(*dialog);
    DialogDriver driver;
    expectYes(driver);
    expectFailure(driver, kRefusedText);

    formOf(*dialog)->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
    const QByteArray content = service->requests().first().parts.value(0).content;
    QVERIFY(content.contains("\"Revision\":10452"));
    QVERIFY(content.contains("\"Subject\":\"Swatches\""));
    QVERIFY(!content.contains("host"));
}

void TestTXFeedbackDialog::failureKeepsTheDialogOpen()
{
    startService(LocalFeedbackService::Answer::Error);
    dialog->show();
    fillIn(*dialog);
    DialogDriver driver;
    expectYes(driver);
    driver.expectMessageBox([](QMessageBox &box) { box.reject(); });

    DialogDriver::click(pushButton(*dialog, "submitPushButton"));

    QCOMPARE(service->requests().size(), 1);
    QVERIFY(dialog->isVisible());
    QVERIFY(isFilledIn(*dialog));
}

void TestTXFeedbackDialog::dialogMayGoDuringTheConfirmation()
{
    dialog->show();
    fillIn(*dialog);
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &) { dialog.reset(); });

    QMetaObject::invokeMethod(formOf(*dialog), "treatSubmitClick");

    QVERIFY(!dialog);
}

void TestTXFeedbackDialog::dialogMayGoDuringTheExchange()
{
    startService(LocalFeedbackService::Answer::Silent);
    connect(service.get(), &LocalServer::becameSilent, this, [this] { dialog.reset(); });
    dialog->show();
    fillIn(*dialog);
    DialogDriver driver;
    expectYes(driver);

    formOf(*dialog)->treatSubmitClick();

    QVERIFY(!dialog);
    QCOMPARE(service->requests().size(), 1);
}

void TestTXFeedbackDialog::dialogThatIsClosedDuringTheExchangeEndsIt()
{
    startService(LocalFeedbackService::Answer::Silent);
    connect(service.get(), &LocalServer::becameSilent, this, [this] { dialog->close(); });
    fillIn(*dialog);
    DialogDriver driver;
    driver.expect([](QDialog &opened) {
        DialogDriver::click(pushButton(opened, "submitPushButton"));
        QVERIFY(!opened.isVisible());
    });
    expectYes(driver);

    QCOMPARE(dialog->exec(), int(QDialog::Rejected));

    QVERIFY(isFilledIn(*dialog));
    QCOMPARE(service->requests().size(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackDialog>(argc, argv);
}

#include "tst_TXFeedbackDialog.moc"
