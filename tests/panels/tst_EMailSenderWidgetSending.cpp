#include "EMailSenderWidget.h"

#include "DialogDriver.h"
#include "TXMailSender.h"
#include "TestBase.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

namespace {

/// Answers when the test wants it to.
class Sender : public QObject
{
    Q_OBJECT

signals:
    void mailSendingSucceed();
    void mailSendingFailed(QString);
};

} // namespace

class TestEMailSenderWidgetSending : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<EMailSenderWidget>(nullptr); }
    void finish() override { panel.reset(); }

private slots:
    void wrongFieldsAreToldAndNothingIsSent();
    void outcomeIsToldInABox_data();
    void outcomeIsToldInABox();
    void senderIsFreedAfterTheBoxHasClosed_data();
    void senderIsFreedAfterTheBoxHasClosed();
    void senderMayGoWhileTheBoxIsOpen();
    void slotsCalledByHandFreeNothing();
    void panelMayGoWhileABoxIsOpen_data();
    void panelMayGoWhileABoxIsOpen();
    void panelMayGoWhileTheMessageAboutAFieldIsOpen();

private:
    [[nodiscard]] QPushButton &button() const
    {
        return *panel->findChild<QPushButton *>(QStringLiteral("testMailButton"));
    }
    [[nodiscard]] QPointer<Sender> makeSender() const;
    static void emitOutcome(Sender &sender, bool isSent);

    std::unique_ptr<EMailSenderWidget> panel;
};

/// A sender that is connected as the panel connects its own, and that nobody frees but the panel.
QPointer<Sender> TestEMailSenderWidgetSending::makeSender() const
{
    QPointer<Sender> sender = new Sender;
    connect(sender, SIGNAL(mailSendingSucceed()), panel.get(), SLOT(testEMailSucceed()));
    connect(sender, SIGNAL(mailSendingFailed(QString)), panel.get(),
            SLOT(testEMailFailed(QString)));
    return sender;
}

void TestEMailSenderWidgetSending::emitOutcome(Sender &sender, bool isSent)
{
    if (isSent) {
        emit sender.mailSendingSucceed();
    } else {
        emit sender.mailSendingFailed(QStringLiteral("the <reason>"));
    }
}

void TestEMailSenderWidgetSending::wrongFieldsAreToldAndNothingIsSent()
{
    panel->setSMTPServerName(QStringLiteral("127.0.0.1"));
    panel->show();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), panel.get());
        QCOMPARE(box.windowTitle(), QStringLiteral("Uncompleted Mail Configuration"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QCOMPARE(box.text(),
                 QStringLiteral("Field 'Sender' is empty, please add sender address which contain "
                                "'.' and '@'."));
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(&button());

    QVERIFY(panel->findChildren<TXMailSender *>().isEmpty());
    QVERIFY(qApp->findChildren<TXMailSender *>().isEmpty());
}

void TestEMailSenderWidgetSending::outcomeIsToldInABox_data()
{
    QTest::addColumn<bool>("isSent");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QString>("text");
    QTest::addRow("sent") << true << QMessageBox::Information
                          << QStringLiteral("Mail has been sent successfully.");
    QTest::addRow("not sent") << false << QMessageBox::Warning << QStringLiteral("the <reason>");
}

void TestEMailSenderWidgetSending::outcomeIsToldInABox()
{
    QFETCH(bool, isSent);
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(QString, text);
    const QPointer<Sender> sender = makeSender();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), panel.get());
        QCOMPARE(box.windowTitle(), QStringLiteral("Mail Sending Result"));
        QCOMPARE(box.icon(), icon);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    emitOutcome(*sender, isSent);
    QTRY_VERIFY(!sender);
}

void TestEMailSenderWidgetSending::senderIsFreedAfterTheBoxHasClosed_data()
{
    QTest::addColumn<bool>("isSent");
    QTest::addRow("sent") << true;
    QTest::addRow("not sent") << false;
}

void TestEMailSenderWidgetSending::senderIsFreedAfterTheBoxHasClosed()
{
    QFETCH(bool, isSent);
    const QPointer<Sender> sender = makeSender();
    QSignalSpy destroyed(sender, SIGNAL(destroyed()));
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCoreApplication::sendPostedEvents(sender, QEvent::DeferredDelete);
        QVERIFY(sender);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    emitOutcome(*sender, isSent);

    QVERIFY(sender);
    QVERIFY(destroyed.wait());
    QVERIFY(!sender);
    QCOMPARE(destroyed.count(), 1);
}

void TestEMailSenderWidgetSending::senderMayGoWhileTheBoxIsOpen()
{
    const QPointer<Sender> sender = makeSender();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        delete sender;
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    emit sender->mailSendingSucceed();

    QVERIFY(!sender);
}

void TestEMailSenderWidgetSending::slotsCalledByHandFreeNothing()
{
    DialogDriver driver;
    for (int i = 0; i < 2; ++i) {
        driver.expectMessageBox(
            [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Ok)); });
    }

    panel->testEMailSucceed();
    panel->testEMailFailed(QString());
}

void TestEMailSenderWidgetSending::panelMayGoWhileABoxIsOpen_data()
{
    senderIsFreedAfterTheBoxHasClosed_data();
}

void TestEMailSenderWidgetSending::panelMayGoWhileABoxIsOpen()
{
    QFETCH(bool, isSent);
    const QPointer<Sender> sender = makeSender();
    panel->show();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &) { panel.reset(); });

    emitOutcome(*sender, isSent);

    QVERIFY(!panel);
    QTRY_VERIFY(!sender);
}

void TestEMailSenderWidgetSending::panelMayGoWhileTheMessageAboutAFieldIsOpen()
{
    panel->setSMTPServerName(QStringLiteral("127.0.0.1"));
    panel->show();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &) { panel.reset(); });

    DialogDriver::click(&button());

    QVERIFY(!panel);
    QVERIFY(qApp->findChildren<TXMailSender *>().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestEMailSenderWidgetSending>(argc, argv);
}

#include "tst_EMailSenderWidgetSending.moc"
