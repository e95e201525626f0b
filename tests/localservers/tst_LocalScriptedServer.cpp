#include "CurlClient.h"
#include "LocalScriptedServer.h"
#include "TestBase.h"

class TestLocalScriptedServer : public TestBase
{
    Q_OBJECT

private slots:
    void answersComeOneByOne();
    void secretsAreNotLogged();
    void withoutAnswersItHangsUp();
};

void TestLocalScriptedServer::answersComeOneByOne()
{
    LocalScriptedServer server({"220 \xff\r\n", "230 come in\r\n", "257 \"/\"\r\n", "221 bye\r\n"});
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());
    client.logIn("mia", "s3cret");
    client.set(CURLOPT_NOBODY, 1L);

    QCOMPARE(client.run(), int(CURLE_OK));

    QCOMPARE(server.log().mid(0, 2), QStringList({"USER mia", "PWD"}));
    QCOMPARE(server.error(), QString());
}

void TestLocalScriptedServer::secretsAreNotLogged()
{
    LocalScriptedServer server({"220 hello\r\n", "331 password?\r\n", "530 no\r\n"});
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());
    client.logIn("mia", "s3cret");

    QCOMPARE(client.run(), int(CURLE_LOGIN_DENIED));

    QCOMPARE(server.log().mid(0, 2), QStringList({"USER mia", "PASS"}));
}

void TestLocalScriptedServer::withoutAnswersItHangsUp()
{
    LocalScriptedServer server({});
    QVERIFY2(server.start(), qPrintable(server.error()));
    CurlClient client("ftp", server.port());

    QVERIFY(client.run() != int(CURLE_OPERATION_TIMEDOUT));

    QCOMPARE(client.answer(), 0);
    QCOMPARE(server.log(), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestLocalScriptedServer>(argc, argv);
}

#include "tst_LocalScriptedServer.moc"
