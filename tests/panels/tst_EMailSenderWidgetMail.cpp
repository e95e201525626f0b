#include "EMailSenderWidget.h"

#include "ClosedPort.h"
#include "DialogDriver.h"
#include "FullServer.h"
#include "LocalMailServer.h"
#include "SilentServer.h"
#include "TXMailSender.h"
#include "TXTransferSettings.h"
#include "TestBase.h"
#include "TestMailText.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

using Security = LocalMailServer::Security;
using Stage = LocalMailServer::Stage;

namespace {

constexpr int kMailMilliseconds = 30000;
/// How long a panel may take to go, which ends its mail too.
constexpr int kGoneMilliseconds = 250;

} // namespace

/// The test mail on its way to servers that run.
class TestEMailSenderWidgetMail : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<EMailSenderWidget>(nullptr); }
    void finish() override
    {
        panel.reset();
        TXTransferSettings::setCertificateAuthoritiesFile({});
    }

private slots:
    void testMailArrives_data();
    void testMailArrives();
    void reasonOfAFailureIsShown_data();
    void reasonOfAFailureIsShown();
    void untrustedServerIsTold();
    void serverThatDoesNotEncipherGetsNoPassword();
    void blankFormIsSentToNobody();
    void portAboveTheRangeIsTold();
    void mailsSentAtOnceAreToldEach();
    void textsInjectNothing_data();
    void textsInjectNothing();

    void panelThatGoesEndsItsMail_data();
    void panelThatGoesEndsItsMail();
    void panelThatGoesWhileNobodyAnswersEndsItsMail();
    void panelMayGoWithItsResult_data();
    void panelMayGoWithItsResult();
    void panelThatGoesEndsAllItsMails();

private:
    void fillIn(quint16 port, const QString &encryption = QStringLiteral("NONE"));
    QPointer<TXMailSender> clickSend();
    void expectResult(DialogDriver &driver, QMessageBox::Icon icon, const QString &part);

    std::unique_ptr<EMailSenderWidget> panel;
    QString shownText;
};

void TestEMailSenderWidgetMail::fillIn(quint16 port, const QString &encryption)
{
    panel->setSMTPServerName(QStringLiteral("127.0.0.1"));
    panel->setPortNumber(port);
    panel->setEncryption(encryption);
    panel->setSenderName(QStringLiteral("mia@example.org"));
    panel->setMainDestinationAddress(QStringLiteral("bob@example.org"));
    panel->setCopyDestinationAddress(QStringLiteral("eve@example.org"));
}

/// Clicks as a user does; gives the sender that the click made, null when it made none.
QPointer<TXMailSender> TestEMailSenderWidgetMail::clickSend()
{
    const auto before = panel->findChildren<TXMailSender *>();
    auto *button = panel->findChild<QPushButton *>(QStringLiteral("testMailButton"));
    panel->show();
    DialogDriver::click(button);
    if (!button->isEnabled()) {
        QTest::qFail("the button is disabled while sending", __FILE__, __LINE__);
    }
    auto senders = panel->findChildren<TXMailSender *>();
    senders.removeIf([&](TXMailSender *sender) { return before.contains(sender); });
    return senders.value(0);
}

/// Closes the next result after a look at it, and keeps what it said in shownText.
void TestEMailSenderWidgetMail::expectResult(DialogDriver &driver, QMessageBox::Icon icon,
                                             const QString &part)
{
    driver.expectMessageBox([this, icon, part](QMessageBox &box) {
        shownText = box.text();
        QCOMPARE(box.parentWidget(), panel.get());
        QCOMPARE(box.windowTitle(), QStringLiteral("Mail Sending Result"));
        QCOMPARE(box.icon(), icon);
        QVERIFY2(shownText.contains(part), qPrintable(shownText));
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
}

void TestEMailSenderWidgetMail::testMailArrives_data()
{
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<Security>("security");
    QTest::addColumn<QString>("login");
    for (const QString &login : {QString(), QStringLiteral("mia")}) {
        const char *tail = login.isEmpty() ? "" : ", login";
        QTest::addRow("NONE%s", tail) << QStringLiteral("NONE") << Security::Plain << login;
        QTest::addRow("TLS%s", tail) << QStringLiteral("TLS") << Security::StartTls << login;
        QTest::addRow("SSL%s", tail) << QStringLiteral("SSL") << Security::ImplicitTls << login;
    }
}

void TestEMailSenderWidgetMail::testMailArrives()
{
    QFETCH(QString, encryption);
    QFETCH(Security, security);
    QFETCH(QString, login);
    const QString password = QStringLiteral("sécret |1|");
    LocalMailServer server;
    server.setSecurity(security);
    server.setLogin(login, password);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXTransferSettings::setCertificateAuthoritiesFile(server.certificateFile());
    fillIn(server.port(), encryption);
    panel->setLoginName(login);
    panel->setPassword(password);
    DialogDriver driver;
    expectResult(driver, QMessageBox::Information,
                 QStringLiteral("Mail has been sent successfully."));

    const QPointer<TXMailSender> sender = clickSend();
    QVERIFY(sender);
    const QSignalSpy destroyed(sender, SIGNAL(destroyed()));
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);

    QCOMPARE(destroyed.count(), 1);
    QCOMPARE(shownText, QStringLiteral("Mail has been sent successfully."));
    QCOMPARE(server.mails().size(), 1);
    const ReceivedMail mail = server.mails().first();
    QCOMPARE(mail.sender, QStringLiteral("mia@example.org"));
    QCOMPARE(mail.receivers,
             QStringList({QStringLiteral("bob@example.org"), QStringLiteral("eve@example.org")}));
    QCOMPARE(mail.usedTls, security != Security::Plain);
    QCOMPARE(mail.login, login);
    const QByteArray subject = TestMailText::subject().toUtf8();
    QVERIFY2(mail.content.contains("\r\nSubject: " + subject + "\r\n"), mail.content);
    QVERIFY2(mail.content.contains("\r\n\r\n" + TestMailText::body().toUtf8()), mail.content);
}

void TestEMailSenderWidgetMail::reasonOfAFailureIsShown_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("refusedReceiver");
    QTest::addColumn<QString>("part");
    QTest::addRow("wrong password") << "wrong"
                                    << ""
                                    << "535";
    QTest::addRow("refused copy receiver") << "s3cret"
                                           << "eve@example.org"
                                           << "550";
}

void TestEMailSenderWidgetMail::reasonOfAFailureIsShown()
{
    QFETCH(QString, password);
    QFETCH(QString, refusedReceiver);
    QFETCH(QString, part);
    LocalMailServer server;
    server.setLogin(QStringLiteral("mia"), QStringLiteral("s3cret"));
    server.setRefusedReceiver(refusedReceiver);
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port());
    panel->setLoginName(QStringLiteral("mia"));
    panel->setPassword(password);
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, part);

    const QPointer<TXMailSender> sender = clickSend();
    QVERIFY(sender);
    const QSignalSpy failed(sender, SIGNAL(mailSendingFailed(QString)));
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);

    // The text to the letter, and nothing added.
    QCOMPARE(shownText, failed.value(0).value(0).toString());
    QVERIFY(!shownText.contains(password));
    QVERIFY(server.mails().isEmpty());
}

void TestEMailSenderWidgetMail::untrustedServerIsTold()
{
    LocalMailServer server;
    server.setSecurity(Security::ImplicitTls);
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port(), QStringLiteral("SSL"));
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, QStringLiteral("certificate"));

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
    QVERIFY(server.mails().isEmpty());
}

void TestEMailSenderWidgetMail::serverThatDoesNotEncipherGetsNoPassword()
{
    LocalMailServer server;
    server.setSecurity(Security::StartTlsNotOffered);
    server.setLogin(QStringLiteral("mia"), QStringLiteral("s3cret"));
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port(), QStringLiteral("TLS"));
    panel->setLoginName(QStringLiteral("mia"));
    panel->setPassword(QStringLiteral("s3cret"));
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, QString());

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
    QVERIFY(!server.log().join(u'\n').contains(QStringLiteral("AUTH")));
    QVERIFY(server.mails().isEmpty());
}

void TestEMailSenderWidgetMail::blankFormIsSentToNobody()
{
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, QStringLiteral("no server"));

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
}

void TestEMailSenderWidgetMail::portAboveTheRangeIsTold()
{
    fillIn(1);
    panel->setPortNumber(70000);
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, QStringLiteral("70000"));

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
}

void TestEMailSenderWidgetMail::mailsSentAtOnceAreToldEach()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port());
    DialogDriver driver;
    QStringList results;
    for (int i = 0; i < 2; ++i) {
        // The second may come while the first is read.
        driver.expectMessageBox([&results](QMessageBox &box) {
            results.append(box.text());
            DialogDriver::click(box.button(QMessageBox::Ok));
        });
    }

    const QPointer<TXMailSender> first = clickSend();
    panel->setPortNumber(closedPort());
    const QPointer<TXMailSender> second = clickSend();
    QVERIFY(first);
    QVERIFY(second);
    QTRY_VERIFY_WITH_TIMEOUT(!first && !second, kMailMilliseconds);

    QCOMPARE(results.size(), 2);
    QCOMPARE(results.count(QStringLiteral("Mail has been sent successfully.")), 1);
    QCOMPARE(server.mails().size(), 1);
}

void TestEMailSenderWidgetMail::textsInjectNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    const QList<QPair<const char *, QString>> texts = {
        {"line break", QStringLiteral("a@example.org\r\nBcc: mallory@example.org\r\n\r\nmallory")},
        {"line feed", QStringLiteral("a@example.org\nRCPT TO:<mallory@example.org>\n")},
        {"command", QStringLiteral("a@example.org>\r\nRCPT TO:<mallory@example.org>\r\n")},
        {"parameter", QStringLiteral("a@example.org> ORCPT=mallory@example.org")},
        {"null", QStringLiteral("a@example.org") + QChar(0) + QStringLiteral("mallory")},
        {"long", QStringLiteral("a@example.org") + QString(1 << 20, u'm')}};
    for (const char *key : {"MailSender", "MailMainDestination", "MailCopyDestination",
                            "MailServerAddress", "MailServerLogin"}) {
        for (const auto &[name, text] : texts) {
            QTest::addRow("%s, %s", key, name) << QString::fromLatin1(key) << text;
        }
    }
}

void TestEMailSenderWidgetMail::textsInjectNothing()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    LocalMailServer server;
    server.setLogin(QStringLiteral("mia"), QStringLiteral("s3cret"));
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port());
    panel->setLoginName(QStringLiteral("mia"));
    panel->setPassword(QStringLiteral("s3cret"));
    auto settings = panel->save();
    settings[key] = text;
    panel->load(settings);
    DialogDriver driver;
    expectResult(driver, QMessageBox::Warning, QString());

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
    QVERIFY(server.mails().isEmpty());
    QVERIFY(!server.log().join(u'\n').contains(QStringLiteral("mallory")));
}

void TestEMailSenderWidgetMail::panelThatGoesEndsItsMail_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<Stage>("stage");
    const auto add = [](const char *name, Security security, Stage stage) {
        QTest::addRow("%s", name) << security << stage;
    };
    add("greeting", Security::Plain, Stage::Greeting);
    add("EHLO", Security::Plain, Stage::Ehlo);
    add("STARTTLS", Security::StartTls, Stage::StartTls);
    add("MAIL", Security::Plain, Stage::MailFrom);
    add("RCPT", Security::Plain, Stage::RcptTo);
    add("DATA", Security::Plain, Stage::Data);
    add("end of the mail", Security::Plain, Stage::EndOfData);
}

void TestEMailSenderWidgetMail::panelThatGoesEndsItsMail()
{
    QFETCH(Security, security);
    QFETCH(Stage, stage);
    LocalMailServer server;
    server.setSecurity(security);
    server.setSilentAt(stage);
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(server.port(),
           security == Security::Plain ? QStringLiteral("NONE") : QStringLiteral("TLS"));
    const DialogDriver driver;
    const QPointer<TXMailSender> sender = clickSend();
    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(server.isSilent(), kMailMilliseconds);

    QElapsedTimer timer;
    timer.start();
    panel.reset();
    const qint64 milliseconds = timer.elapsed();

    QVERIFY(!sender);
    QVERIFY2(milliseconds < kGoneMilliseconds, qPrintable(QString::number(milliseconds)));
    QCoreApplication::processEvents();
}

void TestEMailSenderWidgetMail::panelThatGoesWhileNobodyAnswersEndsItsMail()
{
    const FullServer full;
    QVERIFY(full.port());
    const SilentServer silent;
    for (const quint16 port : {full.port(), silent.port()}) {
        prepare();
        fillIn(port);
        const QPointer<TXMailSender> sender = clickSend();
        QVERIFY(sender);
        QVERIFY(port != silent.port() || silent.waitForClient(kMailMilliseconds));

        QElapsedTimer timer;
        timer.start();
        panel.reset();
        const qint64 milliseconds = timer.elapsed();

        QVERIFY(!sender);
        QVERIFY2(milliseconds < kGoneMilliseconds, qPrintable(QString::number(milliseconds)));
    }
}

void TestEMailSenderWidgetMail::panelMayGoWithItsResult_data()
{
    QTest::addColumn<bool>("isSent");
    QTest::addRow("sent") << true;
    QTest::addRow("not sent") << false;
}

void TestEMailSenderWidgetMail::panelMayGoWithItsResult()
{
    QFETCH(bool, isSent);
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    fillIn(isSent ? server.port() : closedPort());
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &) { panel.reset(); });

    const QPointer<TXMailSender> sender = clickSend();

    QVERIFY(sender);
    QTRY_VERIFY_WITH_TIMEOUT(!sender, kMailMilliseconds);
    QVERIFY(!panel);
}

void TestEMailSenderWidgetMail::panelThatGoesEndsAllItsMails()
{
    const SilentServer server;
    fillIn(server.port());
    QList<QPointer<TXMailSender>> senders;
    for (int i = 0; i < 5; ++i) {
        senders.append(clickSend());
        QVERIFY(senders.last());
    }

    QElapsedTimer timer;
    timer.start();
    panel.reset();
    const qint64 milliseconds = timer.elapsed();

    for (const auto &sender : senders) {
        QVERIFY(!sender);
    }
    QVERIFY2(milliseconds < kGoneMilliseconds, qPrintable(QString::number(milliseconds)));
}

int main(int argc, char **argv)
{
    return runTest<TestEMailSenderWidgetMail>(argc, argv);
}

#include "tst_EMailSenderWidgetMail.moc"
