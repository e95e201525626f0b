#include "FileContents.h"
#include "LocalSambaServer.h"
#include "ProcessTable.h"
#include "SambaClient.h"
#include "TestBase.h"

#include <QDir>
#include <QSignalSpy>
#include <QTcpServer>

#include <csignal>

namespace {

constexpr int kPatienceMilliseconds = 20000;

qint64 serverProcess(const LocalSambaServer &server)
{
    return contents(server.folder() + "/group.pid").trimmed().toLongLong();
}

} // namespace

class TestLocalSambaServerLifetime : public TestBase
{
    Q_OBJECT

private slots:
    void heldServerCanBeStopped();
    void stopLeavesNothing();
    void killedServerIsTold();
    void killedScriptLeavesNoServer();
    void startedAgainServerIsEmpty();
    void wantedPortIsThatOfTheServer();
    void takenPortIsNotShared();
};

void TestLocalSambaServerLifetime::heldServerCanBeStopped()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString folder = server.folder();
    server.hold();

    server.stop();

    QVERIFY(processesWith(folder.toUtf8() + "/smb.conf").isEmpty());
    QVERIFY(!QDir(folder).exists());
}

void TestLocalSambaServerLifetime::stopLeavesNothing()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString folder = server.folder();
    const QByteArray mark = folder.toUtf8() + "/smb.conf";
    SambaClient client(server);
    // Lists are made by programs that leave the group of the server.
    QVERIFY(client.list());
    QVERIFY(processesWith(mark).size() > 3);

    server.stop();

    QVERIFY(processesWith(mark).isEmpty());
    QVERIFY(!QDir(folder).exists());
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost, server.port()));
    QCOMPARE(server.error(), QString());
}

void TestLocalSambaServerLifetime::killedServerIsTold()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QByteArray mark = server.folder().toUtf8() + "/smb.conf";
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(serverProcess(server)), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QVERIFY2(server.error().startsWith("the file server has ended"), qPrintable(server.error()));
    QVERIFY(processesWith(mark).isEmpty());
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(ended.size(), 1);
}

void TestLocalSambaServerLifetime::killedScriptLeavesNoServer()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QByteArray mark = server.folder().toUtf8() + "/smb.conf";
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(server.processId()), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QTRY_VERIFY_WITH_TIMEOUT(processesWith(mark).isEmpty(), kPatienceMilliseconds);
}

void TestLocalSambaServerLifetime::startedAgainServerIsEmpty()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(SambaClient(server).run("pictures", "mkdir in"));
    server.stop();
    server.setUser("zoe", "other");
    server.setShares({"films"});

    QVERIFY2(server.start(), qPrintable(server.error()));

    SambaClient client(server);
    QVERIFY(!client.run("films", "ls"));
    client.logIn("zoe", "other");
    QVERIFY2(client.run("films", "ls"), client.readAll());
    QVERIFY(!client.run("pictures", "ls"));
    QVERIFY(QDir(server.shareFolder("films")).isEmpty());
}

void TestLocalSambaServerLifetime::wantedPortIsThatOfTheServer()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const quint16 port = server.port();
    SambaClient client(server);
    QVERIFY(client.list());
    server.stop();
    server.setWantedPort(port);

    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(server.port(), port);
    QVERIFY(client.list());
}

void TestLocalSambaServerLifetime::takenPortIsNotShared()
{
    LocalSambaServer first;
    QVERIFY2(first.start(), qPrintable(first.error()));
    LocalSambaServer second;
    second.setWantedPort(first.port());

    QVERIFY2(second.start(), qPrintable(second.error()));

    QVERIFY(second.port() != first.port());
}

int main(int argc, char **argv)
{
    return runTest<TestLocalSambaServerLifetime>(argc, argv);
}

#include "tst_LocalSambaServerLifetime.moc"
