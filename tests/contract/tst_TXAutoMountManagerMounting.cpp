#include "MountedDrivesTest.h"
#include "SilentServer.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>

namespace {

/// The command lines and the environments of all running programs named gio.
QByteArray gioSurroundings()
{
    QByteArray all;
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        const QByteArray line = read("/proc/" + process + "/cmdline");
        if (line.contains("gio")) {
            all += line + read("/proc/" + process + "/environ");
        }
    }
    return all;
}

int runGio(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess gio;
    gio.start("gio", arguments);
    gio.write(input);
    gio.closeWriteChannel();
    return gio.waitForFinished(kLongMilliseconds) ? gio.exitCode() : -1;
}

} // namespace

class TestTXAutoMountManagerMounting : public MountedDrivesTest
{
    Q_OBJECT

private slots:
    void initTestCase() { startMounts(); }
    void cleanupTestCase() { endMounts(); }

    void filesAreReadAndWrittenThroughTheDrive();
    void folderInTheShareIsTheDrive();
    void noSecretIsSeenOutside();
    void takenLetterIsLeftAlone();
    void twoDrivesShareOneShare();
    void shareInCapitalsIsTheSame();
    void shareOfTheUsersOwnStaysMounted();
    void allLettersCanBeConnected();

private:
    void driveFailsWithoutFuse();
    void stoppingLeavesNothing();
};

/// What is seen of the first drive where the shares have no local paths.
void TestTXAutoMountManagerMounting::driveFailsWithoutFuse()
{
    QVERIFY(waitForState(0, NetworkDriveReconnectionFailed));
    QTRY_VERIFY(logText().contains("gvfs-fuse"));
}

/// Stops the manager and sees the letters and the shares go.
void TestTXAutoMountManagerMounting::stoppingLeavesNothing()
{
    manager()->stop();
    QTRY_VERIFY(NetworkDriveFolder::letters().isEmpty());
    QTRY_VERIFY(QDir(mounts->shareRoot()).isEmpty());
}

void TestTXAutoMountManagerMounting::filesAreReadAndWrittenThroughTheDrive()
{
    QVERIFY(write(server->shareFolder("pictures") + "/there.txt", "from the server"));
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    if (!mounts->hasFuse()) {
        driveFailsWithoutFuse();
        return;
    }
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QVERIFY(NetworkDriveFolder::target('N').startsWith(mounts->shareRoot()));
    QCOMPARE(read(inDrive("there.txt")), "from the server");
    QVERIFY(write(inDrive("new.txt"), "from here"));
    QTRY_COMPARE(read(server->shareFolder("pictures") + "/new.txt"), "from here");
    stoppingLeavesNothing();
}

void TestTXAutoMountManagerMounting::folderInTheShareIsTheDrive()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    const QString folder = server->shareFolder("pictures") + "/Été 100%/1";
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(write(folder + "/there.txt", "below"));
    manager()->add(makeDrive(server->port(), "pictures/Été 100%/1"));
    manager()->add(makeDrive(server->port(), "pictures/nothing", 'P'));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QCOMPARE(read(inDrive("there.txt")), "below");
    QVERIFY(waitForState(1, NetworkDriveReconnectionFailed));
    QVERIFY(QDir(server->shareFolder("pictures")).mkpath("nothing"));
    QVERIFY(waitForState(1, NetworkDriveConnected));
}

void TestTXAutoMountManagerMounting::noSecretIsSeenOutside()
{
    const SilentServer mute;
    manager()->add(makeDrive(mute.port(), "pictures"));
    manager()->start();
    QTRY_VERIFY(gioSurroundings().contains(QByteArray::number(mute.port())));
    const QByteArray surroundings = gioSurroundings();
    QVERIFY(!surroundings.contains("s3cret") && !surroundings.contains("mia"));
    manager()->saveDriveList();
    const QString settings = QFileInfo(QSettings().fileName()).path();
    int files = 0;
    for (QDirIterator file(settings, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
        QVERIFY(!read(file.next()).contains("s3cret"));
        ++files;
    }
    QVERIFY(files > 0);
}

void TestTXAutoMountManagerMounting::takenLetterIsLeftAlone()
{
    const QString entry = NetworkDriveFolder::path() + "/N";
    QVERIFY(QDir().mkpath(entry));
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveLetterTaken));
    QVERIFY(QDir().rmdir(entry));
    QVERIFY(waitForState(
        0, mounts->hasFuse() ? NetworkDriveConnected : NetworkDriveReconnectionFailed));
}

void TestTXAutoMountManagerMounting::twoDrivesShareOneShare()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    QVERIFY(write(server->shareFolder("pictures") + "/there.txt", "both"));
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->add(makeDrive(server->port(), "pictures", 'P'));
    manager()->add(makeDrive(server->port(), "pictures", 'Q', "wr0ng"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QVERIFY(waitForState(1, NetworkDriveConnected));
    QVERIFY(waitForState(2, NetworkDriveReconnectionFailed));
    manager()->remove(0);
    QTRY_COMPARE(NetworkDriveFolder::letters(), QList<QChar>{'P'});
    QCOMPARE(read(inDrive("there.txt", 'P')), "both");
    QCOMPARE(stateOf(0), NetworkDriveConnected);
}

void TestTXAutoMountManagerMounting::shareInCapitalsIsTheSame()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->add(makeDrive(server->port(), "PICTURES", 'P'));
    manager()->add(makeDrive(server->port(), "Pictures", 'Q', "wr0ng"));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QVERIFY(waitForState(1, NetworkDriveConnected));
    QVERIFY(waitForState(2, NetworkDriveReconnectionFailed));
    manager()->remove(0);
    QTRY_COMPARE(NetworkDriveFolder::letters(), QList<QChar>{'P'});
    QVERIFY(write(inDrive("new.txt", 'P'), "still connected"));
}

void TestTXAutoMountManagerMounting::shareOfTheUsersOwnStaysMounted()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    const QString location = QString("smb://127.0.0.1:%1/pictures").arg(server->port());
    QCOMPARE(runGio({"mount", location}, "mia\n\ns3cret\n"), 0);
    manager()->add(makeDrive(server->port(), "pictures"));
    manager()->add(makeDrive(server->port(), "proofs", 'P'));
    manager()->start();
    QVERIFY(waitForState(0, NetworkDriveConnected));
    QVERIFY(waitForState(1, NetworkDriveConnected));
    manager()->stop();
    QTRY_COMPARE(QDir(mounts->shareRoot()).entryList(QDir::NoDotAndDotDot | QDir::Dirs).size(), 1);
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QCOMPARE(runGio({"mount", "-u", location}), 0);
}

void TestTXAutoMountManagerMounting::allLettersCanBeConnected()
{
    if (!mounts->hasFuse()) {
        QSKIP("no FUSE here: drives cannot be connected");
    }
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        manager()->add(
            makeDrive(server->port(), letter % 2 == 0 ? "pictures" : "proofs", QChar(letter)));
    }
    manager()->add(makeDrive(server->port(), "pictures", 'Z'));
    manager()->start();
    for (int row = 0; row < 26; ++row) {
        QVERIFY(waitForState(row, NetworkDriveConnected));
    }
    QVERIFY(waitForState(26, NetworkDriveLetterTaken));
    QCOMPARE(NetworkDriveFolder::letters().size(), 26);
}

int main(int argc, char **argv)
{
    NetworkDriveWorker::setTiming(timingOfServers());
    return runTest<TestTXAutoMountManagerMounting>(argc, argv);
}

#include "tst_TXAutoMountManagerMounting.moc"
