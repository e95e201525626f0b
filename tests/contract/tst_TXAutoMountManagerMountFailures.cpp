#include "MountedDrivesTest.h"
#include "SilentServer.h"

#include <QDir>
#include <QSignalSpy>

#include <csignal>

namespace {

/// The process whose command line contains this; 0 when there is none.
qint64 processOf(const QString &commandLine)
{
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        const QByteArray line = read("/proc/" + process + "/cmdline").replace('\0', ' ');
        if (line.contains(commandLine.toUtf8())) {
            return process.toLongLong();
        }
    }
    return 0;
}

} // namespace

class TestTXAutoMountManagerMountFailures : public MountedDrivesTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startMounts(); }
    void cleanupTestCase() { endMounts(); }

    void failuresEndInTheirState_data();
    void failuresEndInTheirState();
    void muteServerDelaysNoOtherDrive();
    void serverThatGoesIsNoticed();
    void serverThatComesBackIsConnectedAnew();
    void folderThatGoesAwayIsNoticed();
    void nobodyIsConnectedAsGuestOrRefused();
    void fileSystemThatHangsStopsNothing();
    void editedPasswordIsTried();
};

void TestTXAutoMountManagerMountFailures::failuresEndInTheirState_data()
{
    QTest::addColumn<QString>("failure");
    QTest::addColumn<QString>("words");
    QTest::newRow("wrong password") << "password"
                                    << "the user name or the password was refused";
    QTest::newRow("closed port") << "port"
                                 << "Connection refused";
    QTest::newRow("mute host") << "mute"
                               << "did not answer in time";
    QTest::newRow("unknown share") << "share"
                                   << "No such file or directory";
    QTest::newRow("unknown host") << "host"
                                  << "cannot be connected: ";
}

void TestTXAutoMountManagerMountFailures::failuresEndInTheirState()
{
    QFETCH(QString, failure);
    QFETCH(QString, words);
    const SilentServer mute;
    AutoMountNetworkDrive drive = makeDrive(failure == "mute" ? mute.port() : server->port(),
                                            failure == "share" ? "nothing" : "pictures", 'N',
                                            failure == "password" ? "wr0ng" : "s3cret");
    if (failure == "host") {
        QUrl url = drive.getUrl();
        url.setHost("nohost.invalid");
        drive.setUrl(url);
    }
    if (failure == "port") {
        server->stop();
    }
    manager()->add(drive);
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    QTRY_VERIFY2(logText().contains(words), qPrintable(logText()));
    QVERIFY(!logText().contains("wr0ng"));
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

void TestTXAutoMountManagerMountFailures::muteServerDelaysNoOtherDrive()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    const SilentServer mute;
    manager()->add(makeDrive(mute.port(), "pictures", 'M'));
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->add(makeDrive(server->port(), "proofs", 'P'));
    QSignalSpy changed(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    manager()->start();
    QVERIFY(waitForState(1, NetworkDriveConnected));
    QVERIFY(waitForState(2, NetworkDriveConnected));
    // However long these two took, the mute one has told nothing before.
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(changed.at(i).first().value<NetworkDriveConnectionState>(), NetworkDriveConnected);
    }
}

void TestTXAutoMountManagerMountFailures::serverThatGoesIsNoticed()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QSignalSpy changed(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    server->stop();
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    QCOMPARE(changed.first().first().value<NetworkDriveConnectionState>(),
             NetworkDriveDisconnected);
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QTRY_VERIFY(logText().contains("was lost: "));
}

void TestTXAutoMountManagerMountFailures::serverThatComesBackIsConnectedAnew()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    QVERIFY(write(server->shareFolder("pictures") + "/there.txt", "still there"));
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    server->hold();
    const bool isNoticed = waitForState(0, NetworkDriveReconnectionFailed);
    const bool isUnlinked = NetworkDriveFolder::letters().isEmpty();
    server->goOn();
    QVERIFY(isNoticed);
    QVERIFY(isUnlinked);
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QTRY_COMPARE(read(inDrive("there.txt")), "still there");
}

void TestTXAutoMountManagerMountFailures::folderThatGoesAwayIsNoticed()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    QDir share(server->shareFolder("pictures"));
    QVERIFY(share.mkdir("2026"));
    manager()->add(makeDrive(server->port(), "pictures/2026"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QVERIFY(share.rmdir("2026"));
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QVERIFY(share.mkdir("2026"));
    QVERIFY(waitForState(0, NetworkDriveConnected));
}

void TestTXAutoMountManagerMountFailures::nobodyIsConnectedAsGuestOrRefused()
{
    AutoMountNetworkDrive guest = makeDrive(server->port(), "pictures");
    QUrl url = guest.getUrl();
    url.setUserInfo({});
    guest.setUrl(url);
    manager()->add(guest);
    url.setUserName("mia");
    guest.setUrl(url);
    guest.setExtParameters({{"NetworkDriveMountPoint", "P:/"}});
    manager()->add(guest);
    manager()->start();
    // This server lets no guests in.
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    QVERIFY(waitForState(1, NetworkDriveReconnectionFailed));
    QTRY_VERIFY(logText().contains("it has a user name but no password"));
    QVERIFY2(!logText().contains("Invalid argument"), qPrintable(logText()));
}

// The file system that shows the shares as folders is stopped, as one that hangs.
void TestTXAutoMountManagerMountFailures::fileSystemThatHangsStopsNothing()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    const qint64 fuse = processOf("gvfsd-fuse " + mounts->shareRoot());
    QVERIFY(fuse > 0);
    QCOMPARE(::kill(pid_t(fuse), SIGSTOP), 0);
    manager()->add(makeDrive(server->port(), "proofs", 'P'));
    AutoMountNetworkDrive broken = makeDrive(server->port(), "", 'Q');
    manager()->add(broken);
    const bool hasFailed = waitForState(1, NetworkDriveReconnectionFailed);
    const bool isWorking = waitForState(2, NetworkDriveReconnectionFailed);
    manager()->stop();
    const bool isUnlinked =
        QTest::qWaitFor([] { return NetworkDriveFolder::letters().isEmpty(); }, kLongMilliseconds);
    QCOMPARE(::kill(pid_t(fuse), SIGCONT), 0);
    QVERIFY(hasFailed);
    QVERIFY(isWorking);
    QVERIFY(isUnlinked);
    QTRY_VERIFY2(logText().contains("does not answer") || logText().contains("not answer in time"),
                 qPrintable(logText()));
}

void TestTXAutoMountManagerMountFailures::editedPasswordIsTried()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QFile open(inDrive("open.txt"));
    QVERIFY(open.open(QFile::WriteOnly));
    manager()->getDrive(0).disconnectExplicitlyNetworkDrive();
    manager()->replace(0, makeDrive(server->port(), "pictures", 'N', "wr0ng"));
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    manager()->replace(0, makeDrive(server->port(), "pictures"));
    QVERIFY(waitForState(0, NetworkDriveConnected));
}

int main(int argc, char **argv)
{
    NetworkDriveWorker::setTiming(timingOfServers());
    return runTest<TestTXAutoMountManagerMountFailures>(argc, argv);
}

#include "tst_TXAutoMountManagerMountFailures.moc"
