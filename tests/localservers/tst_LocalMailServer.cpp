#include "CurlClient.h"
#include "LocalMailServer.h"
#include "TestBase.h"

#include <QBuffer>
#include <QFile>
#include <QSignalSpy>

namespace {

using Security = LocalMailServer::Security;
using Stage = LocalMailServer::Stage;

size_t readFrom(char *buffer, size_t size, size_t count, void *source)
{
    const auto bytes = static_cast<qint64>(size) * static_cast<qint64>(count);
    return static_cast<size_t>(static_cast<QIODevice *>(source)->read(buffer, bytes));
}

/// A client that sends one mail.
class MailClient : public CurlClient
{
public:
    explicit MailClient(const QByteArray &scheme, LocalMailServer &server)
        : CurlClient(scheme, server.port())
    {
        set(CURLOPT_MAIL_FROM, "mia@example.com");
        receivers.reset(curl_slist_append(nullptr, "bob@example.com"));
        curl_slist_append(receivers.get(), "eve@example.com");
        set(CURLOPT_MAIL_RCPT, receivers.get());
        set(CURLOPT_UPLOAD, 1L);
        set(CURLOPT_READFUNCTION, readFrom);
        set(CURLOPT_READDATA, static_cast<void *>(static_cast<QIODevice *>(&buffer)));
        trusted = QFile::encodeName(server.certificateFile());
        if (!trusted.isEmpty()) {
            set(CURLOPT_CAINFO, trusted.constData());
        }
    }

    [[nodiscard]] int send(const QByteArray &content)
    {
        buffer.setData(content);
        return buffer.open(QIODevice::ReadOnly) ? run() : int(CURLE_READ_ERROR);
    }

private:
    std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> receivers{nullptr,
                                                                          curl_slist_free_all};
    QBuffer buffer;
    QByteArray trusted;
};

const QByteArray kMail = "Subject: hello\r\n\r\n.one\r\nzwei \xc3\xa4\r\n";

} // namespace

class TestLocalMailServer : public TestBase
{
    Q_OBJECT

private slots:
    void mailArrivesAsItWasSent();
    void mailsAreSignalledInTheirOrder();
    void connectionIsProtectedAsChosen_data();
    void connectionIsProtectedAsChosen();
    void loginIsDemanded_data();
    void loginIsDemanded();
    void startTlsIsDemanded();
    void plainServerOffersNoStartTls();
    void addressIsRefused_data();
    void addressIsRefused();
    void certificateOfAnotherNameIsUsed();
    void fallsSilent_data();
    void fallsSilent();
    void mailOfManyMegabytesArrives();
};

void TestLocalMailServer::mailArrivesAsItWasSent()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);

    QCOMPARE(client.send(kMail), int(CURLE_OK));

    const QList<ReceivedMail> mails = server.mails();
    QCOMPARE(mails.size(), 1);
    QCOMPARE(mails[0].sender, QStringLiteral("mia@example.com"));
    QCOMPARE(mails[0].receivers, QStringList({"bob@example.com", "eve@example.com"}));
    QCOMPARE(mails[0].content, kMail);
    QCOMPARE(mails[0].usedTls, false);
    QCOMPARE(mails[0].login, QString());
    QCOMPARE(server.error(), QString());
    QVERIFY(server.log().contains("RCPT TO:<eve@example.com>"));
}

void TestLocalMailServer::mailsAreSignalledInTheirOrder()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QSignalSpy received(&server, SIGNAL(mailReceived()));
    for (const QByteArray content : {"one\r\n", "two\r\n"}) {
        MailClient client("smtp", server);
        QCOMPARE(client.send(content), int(CURLE_OK));
    }

    QTRY_COMPARE(received.count(), 2);
    server.stop();

    QCOMPARE(server.mails().size(), 2);
    QCOMPARE(server.mails()[0].content, QByteArray("one\r\n"));
    QCOMPARE(server.mails()[1].content, QByteArray("two\r\n"));
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(server.mails().isEmpty());
}

void TestLocalMailServer::connectionIsProtectedAsChosen_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<QByteArray>("scheme");
    QTest::addColumn<long>("useSsl");
    QTest::addColumn<bool>("usesTls");
    QTest::newRow("plain") << Security::Plain << QByteArray("smtp") << long(CURLUSESSL_NONE)
                           << false;
    QTest::newRow("starttls") << Security::StartTls << QByteArray("smtp") << long(CURLUSESSL_ALL)
                              << true;
    QTest::newRow("implicit") << Security::ImplicitTls << QByteArray("smtps")
                              << long(CURLUSESSL_NONE) << true;
}

void TestLocalMailServer::connectionIsProtectedAsChosen()
{
    QFETCH(Security, security);
    QFETCH(QByteArray, scheme);
    QFETCH(long, useSsl);
    QFETCH(bool, usesTls);
    LocalMailServer server;
    server.setSecurity(security);
    server.setLogin("zoë", "p@ss: /");
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client(scheme, server);
    client.set(CURLOPT_USE_SSL, useSsl);
    client.logIn("zoë", "p@ss: /");

    QCOMPARE(client.send(kMail), int(CURLE_OK));

    QCOMPARE(server.mails().size(), 1);
    QCOMPARE(server.mails()[0].usedTls, usesTls);
    QCOMPARE(server.mails()[0].login, QStringLiteral("zoë"));
    QVERIFY(!server.log().join(u'\n').contains("p@ss"));
    QCOMPARE(server.error(), QString());
}

void TestLocalMailServer::loginIsDemanded_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<int>("error");
    QTest::addColumn<long>("answer");
    QTest::newRow("none") << QByteArray() << QByteArray() << int(CURLE_SEND_ERROR) << 530L;
    QTest::newRow("wrong password")
        << QByteArray("mia") << QByteArray("secret") << int(CURLE_LOGIN_DENIED) << 535L;
    QTest::newRow("unknown user") << QByteArray("eve") << QByteArray("s3cret")
                                  << int(CURLE_LOGIN_DENIED) << 535L;
}

void TestLocalMailServer::loginIsDemanded()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    QFETCH(int, error);
    QFETCH(long, answer);
    LocalMailServer server;
    server.setLogin("mia", "s3cret");
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);
    if (!user.isEmpty()) {
        client.logIn(user.constData(), password.constData());
    }

    QCOMPARE(client.send(kMail), error);
    QCOMPARE(client.answer(), answer);
    QVERIFY(server.mails().isEmpty());
}

void TestLocalMailServer::startTlsIsDemanded()
{
    LocalMailServer server;
    server.setSecurity(Security::StartTls);
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);

    QCOMPARE(client.send(kMail), int(CURLE_SEND_ERROR));
    QCOMPARE(client.answer(), 530);
    QVERIFY(server.mails().isEmpty());
}

void TestLocalMailServer::plainServerOffersNoStartTls()
{
    LocalMailServer server;
    server.setSecurity(Security::StartTlsNotOffered);
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);
    client.set(CURLOPT_USE_SSL, long(CURLUSESSL_ALL));

    QCOMPARE(client.send(kMail), int(CURLE_USE_SSL_FAILED));
}

void TestLocalMailServer::addressIsRefused_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("receiver");
    QTest::newRow("sender") << "mia@example.com"
                            << "";
    QTest::newRow("receiver") << ""
                              << "eve@example.com";
}

void TestLocalMailServer::addressIsRefused()
{
    QFETCH(QString, sender);
    QFETCH(QString, receiver);
    LocalMailServer server;
    server.setRefusedSender(sender);
    server.setRefusedReceiver(receiver);
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);

    QCOMPARE(client.send(kMail), int(CURLE_SEND_ERROR));
    QCOMPARE(client.answer(), 550);
    QVERIFY(server.mails().isEmpty());
}

void TestLocalMailServer::certificateOfAnotherNameIsUsed()
{
    LocalMailServer server;
    server.setSecurity(Security::ImplicitTls);
    server.setCertificate(std::make_shared<const LocalCertificate>("mail.example"));
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtps", server);

    QCOMPARE(client.send(kMail), int(CURLE_PEER_FAILED_VERIFICATION));
}

void TestLocalMailServer::fallsSilent_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QString>("lastCommand");
    QTest::newRow("greeting") << Stage::Greeting << "";
    QTest::newRow("ehlo") << Stage::Ehlo << "EHLO";
    QTest::newRow("starttls") << Stage::StartTls << "STARTTLS";
    QTest::newRow("auth") << Stage::Auth << "AUTH";
    QTest::newRow("mail from") << Stage::MailFrom << "MAIL";
    QTest::newRow("rcpt to") << Stage::RcptTo << "RCPT";
    QTest::newRow("data") << Stage::Data << "DATA";
    QTest::newRow("end of data") << Stage::EndOfData << "DATA";
}

void TestLocalMailServer::fallsSilent()
{
    QFETCH(Stage, stage);
    QFETCH(QString, lastCommand);
    LocalMailServer server;
    server.setSecurity(Security::StartTls);
    server.setLogin("mia", "s3cret");
    server.setSilentAt(stage);
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);
    client.set(CURLOPT_USE_SSL, long(CURLUSESSL_ALL));
    client.giveUpWhenSilent(server);
    client.logIn("mia", "s3cret");

    QCOMPARE(client.send(kMail), int(CURLE_ABORTED_BY_CALLBACK));

    QVERIFY(server.isSilent());
    QCOMPARE(server.log().value(server.log().size() - 1).section(u' ', 0, 0), lastCommand);
    QVERIFY(server.mails().isEmpty());
}

void TestLocalMailServer::mailOfManyMegabytesArrives()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    MailClient client("smtp", server);
    const QByteArray content = QByteArray(76, 'x').append("\r\n").repeated(100000);

    QCOMPARE(client.send(content), int(CURLE_OK));

    QCOMPARE(server.mails().size(), 1);
    QVERIFY(server.mails()[0].content == content);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalMailServer>(argc, argv);
}

#include "tst_LocalMailServer.moc"
