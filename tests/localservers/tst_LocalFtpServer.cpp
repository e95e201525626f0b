#include "CurlClient.h"
#include "LocalFtpServer.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>

class TestLocalFtpServer : public TestBase
{
    Q_OBJECT

private slots:
    void userIsLetInAndLogged();
    void everybodyElseIsRefused_data();
    void everybodyElseIsRefused();
    void commandsAreLoggedInTheirOrder();
    void fallsSilent_data();
    void fallsSilent();
    void certificateMeansTls();
};

void TestLocalFtpServer::userIsLetInAndLogged()
{
    LocalFtpServer server;
    server.setUser("zoë", "p@ss: /");
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(QDir(server.homeFolder()).isEmpty());
    CurlClient client("ftp", server.port());
    client.logIn("zoë", "p@ss: /");
    client.set(CURLOPT_NOBODY, 1L);

    QCOMPARE(client.run(), int(CURLE_OK));

    const QStringList log = server.log();
    QCOMPARE(log.mid(0, 2), QStringList({"USER zoë", "PASS"}));
    QVERIFY(!log.join(u'\n').contains("p@ss"));
    QCOMPARE(server.error(), QString());
}

void TestLocalFtpServer::everybodyElseIsRefused_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("wrong password") << QByteArray("mia") << QByteArray("secret");
    QTest::newRow("unknown user") << QByteArray("eve") << QByteArray("s3cret");
    QTest::newRow("anonymous") << QByteArray("anonymous") << QByteArray("x@y");
}

void TestLocalFtpServer::everybodyElseIsRefused()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());
    client.logIn(user.constData(), password.constData());

    QCOMPARE(client.run(), int(CURLE_LOGIN_DENIED));
    QCOMPARE(client.answer(), 530);
}

void TestLocalFtpServer::commandsAreLoggedInTheirOrder()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());
    client.logIn("mia", "s3cret");
    client.set(CURLOPT_NOBODY, 1L);
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> commands(
        curl_slist_append(curl_slist_append(nullptr, "MKD  in"), "*NONSENSE 1"),
        curl_slist_free_all);
    client.set(CURLOPT_QUOTE, commands.get());

    QCOMPARE(client.run(), int(CURLE_OK));

    const QStringList log = server.log();
    const qsizetype first = log.indexOf("MKD  in");
    QVERIFY2(first > 1, qPrintable(log.join(u'\n')));
    QCOMPARE(log.value(first + 1), QStringLiteral("NONSENSE 1"));
}

void TestLocalFtpServer::fallsSilent_data()
{
    QTest::addColumn<LocalFtpServer::Silence>("silence");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("after the greeting")
        << LocalFtpServer::Silence::AfterGreeting << QStringList("USER mia");
    QTest::newRow("after USER") << LocalFtpServer::Silence::AfterUser
                                << QStringList({"USER mia", "PASS"});
}

void TestLocalFtpServer::fallsSilent()
{
    QFETCH(LocalFtpServer::Silence, silence);
    QFETCH(QStringList, log);
    LocalFtpServer server;
    server.setSilence(silence);
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());
    client.logIn("mia", "s3cret");
    client.giveUpWhenSilent(server);
    QVERIFY(!server.isSilent());

    QCOMPARE(client.run(), int(CURLE_ABORTED_BY_CALLBACK));

    QVERIFY(server.isSilent());
    QCOMPARE(server.log(), log);
}

void TestLocalFtpServer::certificateMeansTls()
{
    const auto certificate = std::make_shared<const LocalCertificate>();
    LocalFtpServer server;
    server.setCertificate(certificate);
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftps", server.port());
    client.logIn("mia", "s3cret");
    client.set(CURLOPT_NOBODY, 1L);

    QCOMPARE(client.run(), int(CURLE_PEER_FAILED_VERIFICATION));
    client.set(CURLOPT_CAINFO, QFile::encodeName(certificate->certificateFile()).constData());
    QCOMPARE(client.run(), int(CURLE_OK));

    QCOMPARE(server.log().value(0), QStringLiteral("USER mia"));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalFtpServer>(argc, argv);
}

#include "tst_LocalFtpServer.moc"
