#include "FileContents.h"
#include "LocalSambaServer.h"
#include "ProcessTable.h"
#include "SambaClient.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int kPatienceMilliseconds = 20000;

bool isWhollyStopped(const LocalSambaServer &server)
{
    const QList<qint64> processes = processesWith(server.folder().toUtf8() + "/smb.conf");
    return !processes.isEmpty()
        && std::all_of(processes.begin(), processes.end(), [](qint64 process) {
               return contents(QString("/proc/%1/stat").arg(process)).contains(") T ");
           });
}

bool waitForFolder(const QString &path)
{
    return QTest::qWaitFor([&path] { return QDir(path).exists(); }, kPatienceMilliseconds);
}

/// A client that does what is written to it.
void startSession(QProcess *session, const LocalSambaServer &server, const QString &folder)
{
    put(folder, "who", "username = mia\npassword = s3cret\n");
    session->start(
        "smbclient",
        {"//127.0.0.1/pictures", "-p", QString::number(server.port()), "-A", folder + "/who"});
}

} // namespace

class TestLocalSambaServer : public TestBase
{
    Q_OBJECT

private slots:
    void userReadsAndWrites();
    void everybodyElseIsRefused_data();
    void everybodyElseIsRefused();
    void sharesAreListed();
    void nobodyElseGetsThePort();
    void heldServerIsMuteAndGoesOn();
    void heldServerLetsNewClientsWait();
    void holdingWithoutAServerDoesNothing();
    void twoRunSideBySide();
    void folderIsForItsOwnerAlone();

private:
    /// For the tests that only look.
    LocalSambaServer usual;
};

void TestLocalSambaServer::userReadsAndWrites()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString folder = server.shareFolder("pictures");
    QVERIFY(QDir(folder).isEmpty());
    put(folder, "there.txt", "from the server");
    put(server.folder(), "local.txt", "from the client");
    SambaClient client(server);
    client.setWorkingDirectory(server.folder());

    QVERIFY2(client.run("pictures", "get there.txt got.txt; put local.txt new.txt; mkdir in"),
             client.readAll());

    QCOMPARE(contents(server.folder() + "/got.txt"), "from the server");
    QCOMPARE(contents(folder + "/new.txt"), "from the client");
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({"in", "new.txt", "there.txt"}));
    QVERIFY(QDir(server.shareFolder("proofs")).isEmpty());
    QCOMPARE(server.error(), QString());
}

void TestLocalSambaServer::everybodyElseIsRefused_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("reason");
    QTest::newRow("wrong password") << "mia"
                                    << "secret"
                                    << "NT_STATUS_LOGON_FAILURE";
    QTest::newRow("no password") << "mia"
                                 << ""
                                 << "NT_STATUS_LOGON_FAILURE";
    QTest::newRow("unknown user") << "eve"
                                  << "s3cret"
                                  << "NT_STATUS_ACCESS_DENIED";
}

void TestLocalSambaServer::everybodyElseIsRefused()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, reason);
    QVERIFY2(usual.isRunning() || usual.start(), qPrintable(usual.error()));
    SambaClient client(usual);
    client.logIn(user, password);

    QVERIFY(!client.run("pictures", "ls"));

    const QByteArray said = client.readAll();
    QVERIFY2(said.contains(reason.toUtf8()), said);
}

void TestLocalSambaServer::sharesAreListed()
{
    LocalSambaServer server;
    server.setShares({"Größe 測", "proofs"});
    QVERIFY2(server.start(), qPrintable(server.error()));
    SambaClient client(server);

    QVERIFY(client.list());

    const QByteArray said = client.readAll();
    QVERIFY2(said.contains("Disk|Größe 測|"), said);
    QVERIFY2(said.contains("Disk|proofs|"), said);
}

// Neither another program can listen at it nor is it ever one of those that are handed out.
void TestLocalSambaServer::nobodyElseGetsThePort()
{
    QVERIFY2(usual.isRunning() || usual.start(), qPrintable(usual.error()));
    QTcpServer other;

    QVERIFY(!other.listen(QHostAddress::LocalHost, usual.port()));

    // The server's own end leaves the port to nobody before the script has ended.
    QCOMPARE(other.serverError(), QAbstractSocket::AddressInUseError);
}

void TestLocalSambaServer::heldServerIsMuteAndGoesOn()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QTemporaryDir secrets;
    QProcess session;
    startSession(&session, server, secrets.path());
    session.write("mkdir first\n");
    const QString pictures = server.shareFolder("pictures");
    QVERIFY(waitForFolder(pictures + "/first"));

    server.hold();
    session.write("mkdir second\n");
    QTRY_VERIFY(isWhollyStopped(server));
    QVERIFY(!QDir(pictures + "/second").exists());

    server.goOn();
    QVERIFY(waitForFolder(pictures + "/second"));
    session.closeWriteChannel();
    QVERIFY(session.waitForFinished());
}

void TestLocalSambaServer::heldServerLetsNewClientsWait()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    server.hold();
    QTRY_VERIFY(isWhollyStopped(server));
    // A stopped process does nothing; the system alone takes the connection.
    QTcpSocket late;
    late.connectToHost(QHostAddress::LocalHost, server.port());
    QVERIFY(late.waitForConnected(kPatienceMilliseconds));

    server.goOn();
    QVERIFY2(SambaClient(server).run("pictures", "ls"), "a new client");
}

void TestLocalSambaServer::holdingWithoutAServerDoesNothing()
{
    LocalSambaServer server;
    server.hold();
    server.goOn();
    QVERIFY(!server.isRunning());
    QCOMPARE(server.shareFolder("pictures"), QString());
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(server.shareFolder("none"), QString());
}

void TestLocalSambaServer::twoRunSideBySide()
{
    LocalSambaServer first;
    LocalSambaServer second;
    second.setUser("tom", "cat");
    QVERIFY2(first.start(), qPrintable(first.error()));
    QVERIFY2(second.start(), qPrintable(second.error()));
    QVERIFY(first.port() != second.port());
    SambaClient client(second);

    QVERIFY(!client.run("pictures", "mkdir in"));
    client.logIn("tom", "cat");
    QVERIFY2(client.run("pictures", "mkdir in"), client.readAll());
    QVERIFY(QDir(first.shareFolder("pictures")).isEmpty());
    first.stop();
    QVERIFY2(client.run("pictures", "ls"), client.readAll());
}

void TestLocalSambaServer::folderIsForItsOwnerAlone()
{
    QVERIFY2(usual.isRunning() || usual.start(), qPrintable(usual.error()));
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
        | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(usual.folder()) & others));
    QVERIFY(!(QFile::permissions(usual.shareFolder("pictures")) & others));
    QVERIFY(SambaClient(usual).run("pictures", "mkdir in"));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalSambaServer>(argc, argv);
}

#include "tst_LocalSambaServer.moc"
