#include "ClosedPort.h"
#include "FullServer.h"
#include "LocalMailServer.h"
#include "MailDriver.h"
#include "ScriptedMailServer.h"
#include "SilentServer.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

using Security = LocalMailServer::Security;
using Settings = QHash<QString, QVariant>;
using Stage = LocalMailServer::Stage;

namespace {

constexpr int kShortMilliseconds = 700;
constexpr int kLongMilliseconds = 30000;
constexpr char kPassword[] = "s3cr3t-w0rd";

} // namespace

class TestTXMailSenderFailures : public TestBase
{
    Q_OBJECT

private slots:
    void incompleteSettingsAreToldByField_data();
    void incompleteSettingsAreToldByField();
    void passwordThatIsNoCipherIsTold();
    void megabytesInEveryFieldAreTold();

    void wrongPasswordIsTold();
    void missingLoginIsTold();
    void unknownHostIsTold();
    void closedPortIsTold();
    void hostThatNeverAnswersIsTold();
    void muteServerIsTold();
    void silenceIsTold_data();
    void silenceIsTold();
    void untrustedCertificateIsTold_data();
    void untrustedCertificateIsTold();
    void certificateOfAnotherNameIsTold_data();
    void certificateOfAnotherNameIsTold();
    void missingStartTlsIsToldAndNothingIsSent();
    void plainPortForImplicitTlsIsTold();
    void encryptionThatTheServerDemandsIsTold();
    void refusedSenderIsTold();
    void refusedReceiverIsToldAndNobodyGetsTheMail();
    void refusalIsTold_data();
    void refusalIsTold();
    void brokenConnectionIsTold_data();
    void brokenConnectionIsTold();
    void passwordIsNeverTold();

protected:
    void prepare() override;
    void finish() override;

private:
    /// Sends, and fails unless the mail failed, once, with this in the reason, in that order.
    void verifyFailure(const Settings &settings, const QStringList &words);
};

void TestTXMailSenderFailures::prepare()
{
    TXTransferSettings::setConnectTimeout(kLongMilliseconds);
    TXTransferSettings::setTotalTimeout(kLongMilliseconds);
}

void TestTXMailSenderFailures::finish()
{
    TXTransferSettings::setConnectTimeout(0);
    TXTransferSettings::setTotalTimeout(0);
    TXTransferSettings::setCertificateAuthoritiesFile({});
}

void TestTXMailSenderFailures::verifyFailure(const Settings &settings, const QStringList &words)
{
    const MailOutcome outcome = sendMail(settings);
    QCOMPARE(outcome.tellings, 1);
    QVERIFY(!outcome.sent);
    qsizetype position = 0;
    for (const QString &word : words) {
        position = outcome.reason.indexOf(word, position);
        QVERIFY2(position >= 0, qPrintable(word + " | " + outcome.reason));
    }
    QVERIFY(outcome.reason.count('\n') <= 2);
    QVERIFY(!outcome.reason.contains(kPassword));
}

void TestTXMailSenderFailures::incompleteSettingsAreToldByField_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("words");
    const QVariant nothing;
    QTest::newRow("server") << "MailServerAddress" << nothing << "'SMTP Server'";
    QTest::newRow("server, list") << "MailServerAddress" << QVariant(QVariantList{1})
                                  << "'SMTP Server'";
    QTest::newRow("server, URL") << "MailServerAddress" << QVariant("a/b")
                                 << "name of a mail server";
    QTest::newRow("sender") << "MailSender" << nothing << "'From'";
    QTest::newRow("sender, blank") << "MailSender" << QVariant("  ") << "'From'";
    QTest::newRow("sender, bad") << "MailSender" << QVariant("@.") << "not a mail address";
    QTest::newRow("sender, two") << "MailSender" << QVariant("a@x.org,b@x.org")
                                 << "not a mail address";
    QTest::newRow("receiver") << "MailMainDestination" << nothing << "'To'";
    QTest::newRow("receiver, commas") << "MailMainDestination" << QVariant(",;") << "'To'";
    QTest::newRow("receiver, bad")
        << "MailMainDestination" << QVariant("a@x.org,b") << "not a mail address";
    QTest::newRow("receiver, break")
        << "MailMainDestination" << QVariant("a@x.org\r\nRCPT TO:<e@x.org>") << "line break";
    QTest::newRow("copy, bad") << "MailCopyDestination" << QVariant("b") << "not a mail address";
    QTest::newRow("port") << "MailServerPort" << QVariant(70000) << "70000";
    QTest::newRow("encryption") << "MailWithEncryption" << QVariant("tls") << "'tls'";
}

void TestTXMailSenderFailures::incompleteSettingsAreToldByField()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, words);
    // The server is there: nothing but the setting can be why.
    const ScriptedMailServer server;
    Settings settings = mailSettings(server.port());
    settings[key] = value;
    verifyFailure(settings, {words});
    QVERIFY(server.commands().isEmpty());
}

void TestTXMailSenderFailures::passwordThatIsNoCipherIsTold()
{
    const ScriptedMailServer server;
    Settings settings = mailSettings(server.port());
    settings["MailServerLogin"] = "mia";
    settings["MailServerPassword"] = kPassword;
    verifyFailure(settings, {"password", "enter it again", "not enciphered"});
    QVERIFY(server.commands().isEmpty());
}

void TestTXMailSenderFailures::megabytesInEveryFieldAreTold()
{
    const Settings settings = mailSettings(closedPort());
    for (auto field = settings.begin(); field != settings.end(); ++field) {
        Settings large = settings;
        large[field.key()] = QString(1 << 20, field.key() == "MailServerPort" ? '9' : '@');
        const MailOutcome outcome = sendMail(large);
        QCOMPARE(outcome.tellings, 1);
        QVERIFY(!outcome.sent);
        QVERIFY(outcome.reason.size() < 300);
    }
}

void TestTXMailSenderFailures::wrongPasswordIsTold()
{
    LocalMailServer server;
    server.setLogin("mia", "right");
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(withLogin(mailSettings(server.port()), "mia", kPassword),
                  {"refused the login", "535"});
    verifyFailure(withLogin(mailSettings(server.port()), "mia", {}), {"refused the login", "535"});
    QVERIFY(server.mails().isEmpty());
}

void TestTXMailSenderFailures::missingLoginIsTold()
{
    LocalMailServer server;
    server.setLogin("mia", kPassword);
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(mailSettings(server.port()), {"demands a login", "530"});
}

void TestTXMailSenderFailures::unknownHostIsTold()
{
    Settings settings = mailSettings(25);
    settings["MailServerAddress"] = "nohost.invalid";
    verifyFailure(settings, {"No server of that name", "nohost.invalid"});
}

void TestTXMailSenderFailures::closedPortIsTold()
{
    verifyFailure(mailSettings(closedPort()), {"cannot be reached", QString::number(closedPort())});
}

void TestTXMailSenderFailures::hostThatNeverAnswersIsTold()
{
    const FullServer server;
    QVERIFY(server.port() != 0);
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    Settings settings = mailSettings(server.port());
    // A name could have a second address, on which nothing listens.
    settings["MailServerAddress"] = "127.0.0.1";
    verifyFailure(settings, {"in time"});
}

void TestTXMailSenderFailures::muteServerIsTold()
{
    const SilentServer server;
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    for (const QString encryption : {"NONE", "TLS", "SSL"}) {
        verifyFailure(mailSettings(server.port(), encryption), {"in time"});
    }
}

void TestTXMailSenderFailures::silenceIsTold_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<bool>("isConnecting");
    QTest::newRow("greeting") << Stage::Greeting << true;
    QTest::newRow("EHLO") << Stage::Ehlo << true;
    QTest::newRow("STARTTLS") << Stage::StartTls << true;
    QTest::newRow("AUTH") << Stage::Auth << true;
    QTest::newRow("MAIL") << Stage::MailFrom << false;
    QTest::newRow("RCPT") << Stage::RcptTo << false;
    QTest::newRow("DATA") << Stage::Data << false;
    QTest::newRow("end of data") << Stage::EndOfData << false;
}

void TestTXMailSenderFailures::silenceIsTold()
{
    QFETCH(Stage, stage);
    QFETCH(bool, isConnecting);
    LocalMailServer server;
    server.setSilentAt(stage);
    server.setSecurity(Security::StartTls);
    server.setLogin("mia", kPassword);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXTransferSettings::setCertificateAuthoritiesFile(server.certificateFile());
    if (isConnecting) {
        TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    } else {
        TXTransferSettings::setTotalTimeout(2 * kShortMilliseconds);
    }
    QElapsedTimer timer;
    timer.start();
    verifyFailure(withLogin(mailSettings(server.port(), "TLS"), "mia", kPassword), {"in time"});
    QVERIFY(timer.elapsed() < kLongMilliseconds / 2);
    QVERIFY(server.isSilent());
}

void TestTXMailSenderFailures::untrustedCertificateIsTold_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<QString>("encryption");
    QTest::newRow("STARTTLS") << Security::StartTls << "TLS";
    QTest::newRow("implicit TLS") << Security::ImplicitTls << "SSL";
}

void TestTXMailSenderFailures::untrustedCertificateIsTold()
{
    QFETCH(Security, security);
    QFETCH(QString, encryption);
    LocalMailServer server;
    server.setSecurity(security);
    QVERIFY2(server.start(), qPrintable(server.error()));
    // Neither by the system nor by somebody else's authority.
    verifyFailure(mailSettings(server.port(), encryption), {"not trusted", "certificate"});
    const LocalCertificate other;
    TXTransferSettings::setCertificateAuthoritiesFile(other.certificateFile());
    verifyFailure(mailSettings(server.port(), encryption), {"not trusted", "certificate"});
    QVERIFY(server.mails().isEmpty());
}

void TestTXMailSenderFailures::certificateOfAnotherNameIsTold_data()
{
    untrustedCertificateIsTold_data();
}

void TestTXMailSenderFailures::certificateOfAnotherNameIsTold()
{
    QFETCH(Security, security);
    QFETCH(QString, encryption);
    const auto certificate = std::make_shared<const LocalCertificate>("other.example.org");
    LocalMailServer server;
    server.setSecurity(security);
    server.setCertificate(certificate);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXTransferSettings::setCertificateAuthoritiesFile(certificate->certificateFile());
    verifyFailure(mailSettings(server.port(), encryption), {"another server", "localhost"});
    QVERIFY(server.mails().isEmpty());
}

void TestTXMailSenderFailures::missingStartTlsIsToldAndNothingIsSent()
{
    LocalMailServer server;
    server.setLogin("mia", kPassword);
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(withLogin(mailSettings(server.port(), "TLS"), "mia", kPassword),
                  {"does not offer an encrypted connection"});
    QVERIFY2(server.log().filter("AUTH").isEmpty(), qPrintable(server.log().join('\n')));
    QVERIFY(server.mails().isEmpty());
}

void TestTXMailSenderFailures::plainPortForImplicitTlsIsTold()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(mailSettings(server.port(), "SSL"), {"No encrypted connection", "port"});
}

void TestTXMailSenderFailures::encryptionThatTheServerDemandsIsTold()
{
    LocalMailServer server;
    server.setSecurity(Security::StartTls);
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(mailSettings(server.port()), {"demands a login or encryption", "530"});
}

void TestTXMailSenderFailures::refusedSenderIsTold()
{
    LocalMailServer server;
    server.setRefusedSender("mia@example.org");
    QVERIFY2(server.start(), qPrintable(server.error()));
    verifyFailure(mailSettings(server.port()),
                  {"refused the sender", "550 5.7.1 This sender is not welcome"});
}

void TestTXMailSenderFailures::refusedReceiverIsToldAndNobodyGetsTheMail()
{
    LocalMailServer server;
    server.setRefusedReceiver("bob@example.org");
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QStringList words = {"refused a receiver", "sent to nobody",
                               "550 5.1.1 There is nobody of this name"};
    verifyFailure(mailSettings(server.port()), words);
    for (const QString both :
         {"bob@example.org, ann@example.org", "ann@example.org, bob@example.org"}) {
        Settings settings = mailSettings(server.port());
        settings["MailMainDestination"] = both;
        verifyFailure(settings, words);
    }
    QVERIFY(server.mails().isEmpty());
}

void TestTXMailSenderFailures::refusalIsTold_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("words");
    QTest::newRow("greeting") << QByteArray() << QByteArray("554 go away") << "unexpected answer";
    QTest::newRow("no SMTP") << QByteArray() << QByteArray("SSH-2.0-x") << "in time";
    QTest::newRow("MAIL") << QByteArray("MAIL") << QByteArray("421 busy") << "refused the sender";
    QTest::newRow("DATA") << QByteArray("DATA") << QByteArray("554 no") << "refused the mail";
    QTest::newRow("end of data") << QByteArray(".") << QByteArray("554 spam") << "refused the mail";
}

void TestTXMailSenderFailures::refusalIsTold()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, answer);
    QFETCH(QString, words);
    const ScriptedMailServer server({{command, answer}});
    TXTransferSettings::setConnectTimeout(3 * kShortMilliseconds);
    verifyFailure(mailSettings(server.port()), {words, QString::fromLatin1(answer)});
}

void TestTXMailSenderFailures::brokenConnectionIsTold_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char *command : {"", "EHLO", "login", "MAIL", "RCPT", "DATA", "."}) {
        QTest::addRow("at '%s'", command) << QByteArray(command);
    }
}

void TestTXMailSenderFailures::brokenConnectionIsTold()
{
    QFETCH(QByteArray, command);
    const ScriptedMailServer server({{command, ScriptedMailServer::kHangUp}});
    verifyFailure(withLogin(mailSettings(server.port()), "mia", kPassword), {"broken"});
}

void TestTXMailSenderFailures::passwordIsNeverTold()
{
    for (const QByteArray &echo :
         {QByteArray(kPassword), QByteArray(kPassword).toBase64(),
          QByteArray(QByteArray(1, '\0') + "mia" + '\0' + kPassword).toBase64()}) {
        const ScriptedMailServer server({{"login", "535 not '" + echo + "'"}});
        const MailOutcome outcome =
            sendMail(withLogin(mailSettings(server.port()), "mia", kPassword));
        QVERIFY(outcome.reason.contains("refused the login"));
        QVERIFY2(!outcome.reason.contains(echo), qPrintable(outcome.reason));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXMailSenderFailures>(argc, argv);
}

#include "tst_TXMailSenderFailures.moc"
