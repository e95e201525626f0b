#include "FeedbackTestHelpers.h"
#include "LocalFeedbackService.h"
#include "TestBase.h"

#include <QPointer>

#include <memory>

class TestTXFeedbackWidgetConfirmation : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void boxIsAsDesigned();
    void onlyYesSends_data();
    void onlyYesSends();
    void secondSubmitWhileTheBoxIsOpenDoesNothing();
    void formMayGoWhileTheBoxIsOpen();
    void boxThatIsDeletedSendsNothing();
    void whatIsEnteredUntilYesIsSent();
    void formCanBeSubmittedAgainAfterCancel();

private:
    std::unique_ptr<LocalFeedbackService> service;
    std::unique_ptr<TXFeedbackWidget> form;
    std::unique_ptr<DialogDriver> driver;
    std::unique_ptr<DebugLog> log;
};

void TestTXFeedbackWidgetConfirmation::prepare()
{
    service = std::make_unique<LocalFeedbackService>();
    QVERIFY2(service->start(), qPrintable(service->error()));
    log = std::make_unique<DebugLog>();
    driver = std::make_unique<DialogDriver>();
    form = std::make_unique<TXFeedbackWidget>();
    form->show();
    fillIn(*form);
}

void TestTXFeedbackWidgetConfirmation::finish()
{
    form.reset();
    driver.reset();
    log.reset();
    service.reset();
}

void TestTXFeedbackWidgetConfirmation::boxIsAsDesigned()
{
    driver->expectMessageBox([this](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Reset Application"));
        QCOMPARE(box.text(), QStringLiteral("Are you really sure you want to send this feedback?"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::Cancel);
        QCOMPARE(box.parentWidget(), form.get());
        QCOMPARE(box.windowModality(), Qt::WindowModal);
        QCOMPARE(box.windowType(), Qt::Dialog);
        QVERIFY(box.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
        DialogDriver::click(box.button(QMessageBox::Cancel));
    });

    QTest::mouseClick(pushButton(*form, "submitPushButton"), Qt::LeftButton);

    QVERIFY(form->findChildren<QDialog *>().isEmpty());
}

void TestTXFeedbackWidgetConfirmation::onlyYesSends_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("sent");
    QTest::newRow("Yes") << "Yes" << 1;
    QTest::newRow("Cancel") << "Cancel" << 0;
    QTest::newRow("Escape") << "Escape" << 0;
    QTest::newRow("close") << "close" << 0;
    QTest::newRow("accept") << "accept" << 0;
}

void TestTXFeedbackWidgetConfirmation::onlyYesSends()
{
    QFETCH(QString, end);
    QFETCH(int, sent);
    driver->expectMessageBox([&](QMessageBox &box) {
        if (end == u"Escape") {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else if (end == u"close") {
            box.close();
        } else if (end == u"accept") {
            box.accept();
        } else {
            DialogDriver::click(box.button(end == u"Yes" ? QMessageBox::Yes : QMessageBox::Cancel));
        }
    });
    if (sent > 0) {
        expectFailure(*driver, kRefusedText);
    }

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), sent);
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetConfirmation::secondSubmitWhileTheBoxIsOpenDoesNothing()
{
    driver->expectMessageBox([this](QMessageBox &box) {
        form->treatSubmitClick();
        pushButton(*form, "submitPushButton")->click();
        QVERIFY(box.isVisible());
        DialogDriver::click(box.button(QMessageBox::Yes));
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
}

void TestTXFeedbackWidgetConfirmation::formMayGoWhileTheBoxIsOpen()
{
    QPointer<QMessageBox> opened;
    driver->expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        form.reset();
    });

    form->treatSubmitClick();

    QVERIFY(!opened);
    QVERIFY(service->requests().isEmpty());
}

void TestTXFeedbackWidgetConfirmation::boxThatIsDeletedSendsNothing()
{
    driver->expectMessageBox([](QMessageBox &box) { delete &box; });

    form->treatSubmitClick();

    QVERIFY(service->requests().isEmpty());
}

void TestTXFeedbackWidgetConfirmation::whatIsEnteredUntilYesIsSent()
{
    driver->expectMessageBox([this](QMessageBox &box) {
        lineEdit(*form, "feedbackSubjectLineEdit")->setText(QStringLiteral("Later"));
        DialogDriver::click(box.button(QMessageBox::Yes));
    });
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
    QVERIFY(service->requests().first().parts.first().content.contains("\"Later\""));
}

void TestTXFeedbackWidgetConfirmation::formCanBeSubmittedAgainAfterCancel()
{
    driver->expectMessageBox([](QMessageBox &box) { box.reject(); });
    form->treatSubmitClick();
    expectYes(*driver);
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackWidgetConfirmation>(argc, argv);
}

#include "tst_TXFeedbackWidgetConfirmation.moc"
