#include "LocalMariaDbServer.h"
#include "LoopbackSocket.h"
#include "MariaDbClient.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QDir>
#include <QSignalSpy>

#include <csignal>

using MariaDb::Client;
using MariaDb::databaseProcess;
using MariaDb::kAccessDenied;
using MariaDb::kConnectionRefused;
using MariaDb::kPatienceMilliseconds;

namespace {

bool isRefused(quint16 port)
{
    const LoopbackSocket socket;
    socket.connectTo(port);
    return !socket.waitForConnected(kPatienceMilliseconds);
}

} // namespace

class TestLocalMariaDbServerLifetime : public TestBase
{
    Q_OBJECT

private slots:
    void stopLeavesNoProcessAndAClosedPort();
    void startedAgainServerIsEmpty();
    void twoRunSideBySide();
    void killedScriptLeavesNoDatabaseServer();
};

void TestLocalMariaDbServerLifetime::stopLeavesNoProcessAndAClosedPort()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = databaseProcess(server);
    QVERIFY(isAlive(process));
    QVERIFY(process != server.processId());
    const QString folder = server.folder();
    Client client(server);
    QCOMPARE(client.logIn(), 0);

    server.stop();

    QVERIFY(isRefused(server.port()));
    QVERIFY(!isAlive(process));
    QVERIFY(!QDir(folder).exists());
    QCOMPARE(server.error(), QString());
    QCOMPARE(Client(server).logIn(), kConnectionRefused);
}

void TestLocalMariaDbServerLifetime::startedAgainServerIsEmpty()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    {
        Client client(server);
        QCOMPARE(client.logIn(), 0);
        QCOMPARE(client.run("create table t (a int)"), 0);
    }
    server.stop();
    server.setUser("zoë", "other");

    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(server.statements(), QStringList());
    QCOMPARE(Client(server).logIn(), kAccessDenied);
    Client client(server);
    QCOMPARE(client.logIn("zoë", "other"), 0);
    QCOMPARE(client.run("create table t (a int)"), 0);
}

void TestLocalMariaDbServerLifetime::twoRunSideBySide()
{
    LocalMariaDbServer first;
    LocalMariaDbServer second;
    second.setUser("tom", "cat");
    QVERIFY2(first.start(), qPrintable(first.error()));
    QVERIFY2(second.start(), qPrintable(second.error()));
    QVERIFY(first.port() != second.port());

    QCOMPARE(Client(first).logIn(), 0);
    QCOMPARE(Client(second).logIn(), kAccessDenied);
    QCOMPARE(Client(second).logIn("tom", "cat"), 0);
    first.stop();
    QCOMPARE(Client(second).logIn("tom", "cat"), 0);
}

void TestLocalMariaDbServerLifetime::killedScriptLeavesNoDatabaseServer()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = databaseProcess(server);
    QVERIFY(isAlive(process));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(server.processId()), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(process), kPatienceMilliseconds);
    // Threads of it may live a moment longer than the process.
    QTRY_VERIFY_WITH_TIMEOUT(isRefused(server.port()), kPatienceMilliseconds);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalMariaDbServerLifetime>(argc, argv);
}

#include "tst_LocalMariaDbServerLifetime.moc"
