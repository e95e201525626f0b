#include "ChildProcess.h"
#include "DesktopMounts.h"
#include "LocalSambaServer.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

namespace {

constexpr int kPatienceMilliseconds = 20000;

QByteArray mountTable()
{
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString gioSays(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("gio", arguments);
    process.write(input);
    process.closeWriteChannel();
    return process.waitForFinished() ? QString::fromUtf8(process.readAll()) : QString();
}

QString locationOn(const LocalSambaServer &server)
{
    return QString("smb://127.0.0.1:%1/pictures").arg(server.port());
}

} // namespace

class TestDesktopMounts : public TestBase
{
    Q_OBJECT

private slots:
    void nothingHappensBeforeTheStart();
    void serviceAnswersOnItsOwnBus();
    void connectedShareHasALocalPathWithFuse();
    void nothingHasALocalPathIfToldSo();
    void nothingIsLeftAfterTheEnd();
    void nothingIsLeftOfAKilledProgram_data();
    void nothingIsLeftOfAKilledProgram();
    void missingProgramIsTold();
};

void TestDesktopMounts::nothingHappensBeforeTheStart()
{
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    {
        const DesktopMounts mounts;
        QVERIFY(mounts.error().isEmpty());
        QVERIFY(!mounts.hasFuse());
        QVERIFY(!mounts.messageBus());
    }
    QCOMPARE(qgetenv("XDG_RUNTIME_DIR"), before);
}

void TestDesktopMounts::serviceAnswersOnItsOwnBus()
{
    DesktopMounts mounts;
    QVERIFY2(mounts.start(), qPrintable(mounts.error()));
    const QString answer = gioSays({"mount", "smb://127.0.0.1:1/pictures"});
    QVERIFY2(answer.contains("Connection refused"), qPrintable(answer));
    QCOMPARE(mountTable().contains(mounts.shareRoot().toUtf8()), mounts.hasFuse());
}

void TestDesktopMounts::connectedShareHasALocalPathWithFuse()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    DesktopMounts mounts;
    QVERIFY2(mounts.start(), qPrintable(mounts.error()));
    const QString location = locationOn(server);
    QCOMPARE(gioSays({"mount", location}, "mia\n\ns3cret\n").contains("Error"), false);
    QVERIFY(gioSays({"info", location}).contains("type: directory"));
    QCOMPARE(gioSays({"info", location}).contains(mounts.shareRoot()), mounts.hasFuse());
}

void TestDesktopMounts::nothingHasALocalPathIfToldSo()
{
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    DesktopMounts mounts(DesktopMounts::Fuse::Never);
    QVERIFY2(mounts.start(), qPrintable(mounts.error()));
    QVERIFY(!mounts.hasFuse());
    const QString location = locationOn(server);
    QVERIFY(!gioSays({"mount", location}, "mia\n\ns3cret\n").contains("Error"));
    const QString said = gioSays({"info", location});
    QVERIFY2(said.contains("type: directory"), qPrintable(said));
    QVERIFY2(!said.contains("local path"), qPrintable(said));
    QVERIFY(!mountTable().contains(mounts.shareRoot().toUtf8()));
}

void TestDesktopMounts::nothingIsLeftAfterTheEnd()
{
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QString runtime;
    {
        DesktopMounts mounts;
        QVERIFY2(mounts.start(), qPrintable(mounts.error()));
        gioSays({"mount", locationOn(server)}, "mia\n\ns3cret\n");
        runtime = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
        QCOMPARE(QFile::permissions(runtime),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadUser
                     | QFile::WriteUser | QFile::ExeUser);
        QVERIFY(!processesOf(runtime).isEmpty());
    }
    QCOMPARE(processesOf(runtime), QStringList());
    QVERIFY(!mountTable().contains(runtime.toUtf8()));
    QVERIFY(!QDir(runtime).exists());
    QCOMPARE(qgetenv("XDG_RUNTIME_DIR"), before);
}

void TestDesktopMounts::nothingIsLeftOfAKilledProgram_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isHeld");
    QTest::newRow("killed") << SIGKILL << false;
    QTest::newRow("aborted") << SIGABRT << false;
    QTest::newRow("killed while the server is mute") << SIGKILL << true;
}

void TestDesktopMounts::nothingIsLeftOfAKilledProgram()
{
    QFETCH(int, signal);
    QFETCH(bool, isHeld);
    LocalSambaServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    // What nobody is left to take away goes with this folder.
    const QTemporaryDir rest;
    QProcess owner;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", rest.path());
    owner.setProcessEnvironment(environment);
    owner.start(QCoreApplication::applicationDirPath() + "/mountsowner", {locationOn(server)});
    QVERIFY(owner.waitForReadyRead(kPatienceMilliseconds));
    const QString runtime = QString::fromUtf8(owner.readLine().trimmed());
    QVERIFY(runtime.startsWith(rest.path()));
    QVERIFY(processesOf(runtime).size() > 1);
    if (isHeld) {
        server.hold();
    }

    ::kill(static_cast<pid_t>(owner.processId()), signal);
    QVERIFY(owner.waitForFinished());

    QTRY_COMPARE_WITH_TIMEOUT(processesOf(runtime), QStringList(), kPatienceMilliseconds);
    QTRY_VERIFY_WITH_TIMEOUT(!mountTable().contains(runtime.toUtf8()), kPatienceMilliseconds);
}

void TestDesktopMounts::missingProgramIsTold()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    DesktopMounts mounts;
    const bool isUp = mounts.start();
    qputenv("PATH", path);
    QVERIFY(!isUp);
    QCOMPARE(mounts.error(), "dbus-daemon is missing; Debian's package dbus-daemon has it");
}

int main(int argc, char **argv)
{
    return runTest<TestDesktopMounts>(argc, argv);
}

#include "tst_DesktopMounts.moc"
