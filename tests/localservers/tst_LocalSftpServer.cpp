#include "CurlClient.h"
#include "LocalSftpServer.h"
#include "TestBase.h"

#include <QDir>

class TestLocalSftpServer : public TestBase
{
    Q_OBJECT

private slots:
    void userIsLetInAndLogged();
    void everybodyElseIsRefused_data();
    void everybodyElseIsRefused();
    void pathsAreLogged();
    void hostKeyIsNewAtEachStart();
    void fallsSilent_data();
    void fallsSilent();
};

void TestLocalSftpServer::userIsLetInAndLogged()
{
    LocalSftpServer server;
    server.setUser("zoë", "p@ss: /");
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(QDir(server.homeFolder()).isEmpty());
    CurlClient client("sftp", server.port());
    client.logIn("zoë", "p@ss: /");
    client.set(CURLOPT_NOBODY, 1L);

    QCOMPARE(client.run(), int(CURLE_OK));

    QCOMPARE(server.log().mid(0, 2), QStringList({"login zoë", "accepted"}));
    QCOMPARE(server.error(), QString());
}

void TestLocalSftpServer::everybodyElseIsRefused_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("wrong password") << QByteArray("mia") << QByteArray("secret");
    QTest::newRow("unknown user") << QByteArray("eve") << QByteArray("s3cret");
}

void TestLocalSftpServer::everybodyElseIsRefused()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    LocalSftpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("sftp", server.port());
    client.logIn(user.constData(), password.constData());

    QCOMPARE(client.run(), int(CURLE_LOGIN_DENIED));

    const QString text = QString::fromUtf8(user);
    QCOMPARE(server.log(), QStringList({"login " + text, "refused"}));
}

void TestLocalSftpServer::pathsAreLogged()
{
    LocalSftpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("sftp", server.port());
    client.logIn("mia", "s3cret");
    client.set(CURLOPT_NOBODY, 1L);
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> commands(
        curl_slist_append(nullptr, "mkdir /in"), curl_slist_free_all);
    client.set(CURLOPT_QUOTE, commands.get());

    QCOMPARE(client.run(), int(CURLE_OK));

    QVERIFY2(server.log().contains("mkdir /in"), qPrintable(server.log().join(u'\n')));
    QCOMPARE(QDir(server.homeFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList("in"));
}

void TestLocalSftpServer::hostKeyIsNewAtEachStart()
{
    LocalSftpServer server;
    QVERIFY(server.hostKey().isEmpty());
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QByteArray first = server.hostKey();
    QVERIFY(first.startsWith("ssh-ed25519 "));

    server.stop();
    QVERIFY(server.hostKey().isEmpty());
    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(server.hostKey().startsWith("ssh-ed25519 "));
    QVERIFY(server.hostKey() != first);
}

void TestLocalSftpServer::fallsSilent_data()
{
    QTest::addColumn<LocalSftpServer::Silence>("silence");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("after the version") << LocalSftpServer::Silence::AfterGreeting << QStringList();
    QTest::newRow("after the password")
        << LocalSftpServer::Silence::AfterUser << QStringList("login mia");
}

void TestLocalSftpServer::fallsSilent()
{
    QFETCH(LocalSftpServer::Silence, silence);
    QFETCH(QStringList, log);
    LocalSftpServer server;
    server.setSilence(silence);
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("sftp", server.port());
    client.logIn("mia", "s3cret");
    client.giveUpWhenSilent(server);

    QCOMPARE(client.run(), int(CURLE_ABORTED_BY_CALLBACK));

    QVERIFY(server.isSilent());
    QCOMPARE(server.log(), log);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalSftpServer>(argc, argv);
}

#include "tst_LocalSftpServer.moc"
