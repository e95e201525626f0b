#include "DesktopMounts.h"
#include "LocalSambaServer.h"
#include "NetworkDriveFolder.h"
#include "NetworkDriveWorker.h"
#include "SearchLog.h"
#include "TXAutoMountManager.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QProcess>
#include <QUrl>

#include <optional>

// A real server and the desktop's real services, which give no share a local path: what a machine
// without gvfs-fuse shows.

namespace {

constexpr int kPatienceMilliseconds = 20'000;

TXAutoMountManager *manager()
{
    return TXAutoMountManager::getInstance();
}

AutoMountNetworkDrive makeDrive(quint16 port, const QString &share, const QString &password,
                                QChar letter)
{
    QUrl url(QString("afp://127.0.0.1:%1/%2").arg(port).arg(share));
    url.setUserName("mia");
    url.setPassword(password);
    AutoMountNetworkDrive drive({});
    drive.setUrl(url);
    drive.setExtParameters({{"NetworkDriveMountPoint", letter + QString(":/")}});
    drive.setActivated(true);
    return drive;
}

QString connectedShares()
{
    QProcess gio;
    gio.start("gio", {"mount", "-l"});
    return gio.waitForFinished() ? QString::fromUtf8(gio.readAll()) : QString("no answer");
}

} // namespace

class TestTXAutoMountManagerWithoutFuse : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { TXLogManager::applicationLog()->reset(); }
    void finish() override;

private slots:
    void initTestCase();
    void cleanupTestCase();

    void shareWithoutALocalPathIsNoDrive();
    void eachDriveTellsItsOwnReason();
    void failedDriveIsTriedAgain();

private:
    [[nodiscard]] bool waitForFailure(int row) const;

    std::optional<DesktopMounts> mounts;
    LocalSambaServer server;
};

void TestTXAutoMountManagerWithoutFuse::initTestCase()
{
    mounts.emplace(DesktopMounts::Fuse::Never);
    QVERIFY2(mounts->start(), qPrintable(mounts->error()));
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(!mounts->hasFuse());
}

void TestTXAutoMountManagerWithoutFuse::cleanupTestCase()
{
    server.stop();
    mounts.reset();
}

void TestTXAutoMountManagerWithoutFuse::finish()
{
    manager()->stop();
    while (manager()->count() > 0) {
        manager()->remove(manager()->count() - 1);
    }
}

bool TestTXAutoMountManagerWithoutFuse::waitForFailure(int row) const
{
    return QTest::qWaitFor(
        [row] { return manager()->getDrive(row).getStatus() == NetworkDriveReconnectionFailed; },
        kPatienceMilliseconds);
}

void TestTXAutoMountManagerWithoutFuse::shareWithoutALocalPathIsNoDrive()
{
    manager()->add(makeDrive(server.port(), "pictures", "s3cret", 'N'));
    manager()->start();
    QVERIFY(waitForFailure(0));

    const QStringList lines = warningsInTheLog();
    QVERIFY(!lines.isEmpty());
    QVERIFY2(lines.first().contains("Debian's package gvfs-fuse or the device /dev/fuse"),
             qPrintable(lines.first()));
    QVERIFY2(!lines.join('\n').contains("s3cret"), qPrintable(lines.join('\n')));
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    manager()->stop();
    // Nothing stays connected that nobody can use.
    QTRY_VERIFY2(!connectedShares().contains("pictures"), qPrintable(connectedShares()));
}

void TestTXAutoMountManagerWithoutFuse::eachDriveTellsItsOwnReason()
{
    manager()->add(makeDrive(server.port(), "pictures", "s3cret", 'N'));
    manager()->add(makeDrive(server.port(), "proofs", "wr0ng", 'P'));
    manager()->add(makeDrive(server.port(), "nothing", "s3cret", 'Q'));
    manager()->start();
    for (int row = 0; row < 3; ++row) {
        QVERIFY(waitForFailure(row));
    }
    const QString lines = warningsInTheLog().join('\n');
    for (const char *words :
         {"gvfs-fuse", "the user name or the password was refused", "No such file or directory"}) {
        QVERIFY2(lines.contains(words), qPrintable(lines));
    }
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

void TestTXAutoMountManagerWithoutFuse::failedDriveIsTriedAgain()
{
    manager()->add(makeDrive(server.port(), "pictures", "wr0ng", 'N'));
    manager()->start();
    QVERIFY(waitForFailure(0));
    QVERIFY(!warningsInTheLog().join('\n').contains("gvfs-fuse"));
    manager()->replace(0, makeDrive(server.port(), "pictures", "s3cret", 'N'));
    QTRY_VERIFY_WITH_TIMEOUT(warningsInTheLog().join('\n').contains("gvfs-fuse"),
                             kPatienceMilliseconds);
    QVERIFY(waitForFailure(0));
}

int main(int argc, char **argv)
{
    NetworkDriveTiming timing;
    timing.check = 200;
    timing.retry = 200;
    timing.path = 50;
    NetworkDriveWorker::setTiming(timing);
    return runTest<TestTXAutoMountManagerWithoutFuse>(argc, argv);
}

#include "tst_TXAutoMountManagerWithoutFuse.moc"
