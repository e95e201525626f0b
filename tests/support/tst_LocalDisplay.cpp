#include "ChildProcess.h"
#include "LocalDisplay.h"
#include "TestBase.h"

#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>

namespace {

constexpr int kPatienceMilliseconds = 60000;

/// The file of the screen ":7". A user other than root may have none, as its folder is root's.
QString socketOf(const QString &display)
{
    return "/tmp/.X11-unix/X" + display.mid(1);
}

} // namespace

class TestLocalDisplay : public TestBase
{
    Q_OBJECT

private slots:
    void nothingIsLeftAfterItsEnd_data();
    void nothingIsLeftAfterItsEnd();
    void missingProgramIsTold_data();
    void missingProgramIsTold();
};

void TestLocalDisplay::nothingIsLeftAfterItsEnd_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("of its own") << 0;
    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("killed") << SIGKILL;
}

void TestLocalDisplay::nothingIsLeftAfterItsEnd()
{
    QFETCH(const int, signal);
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    QProcess owner;
    owner.setProcessEnvironment(environment);
    owner.start(QCoreApplication::applicationDirPath() + "/displayowner", QStringList());
    QVERIFY(owner.waitForReadyRead(kPatienceMilliseconds));
    const QString socket = socketOf(QString::fromLatin1(owner.readAll().trimmed()));
    const QDateTime made = QFileInfo(socket).metadataChangeTime();
    QVERIFY(processesOf(home.path()).size() >= 3);

    if (signal == 0) {
        owner.closeWriteChannel();
    } else {
        ::kill(pid_t(owner.processId()), signal);
    }
    QVERIFY(owner.waitForFinished(kPatienceMilliseconds));

    QTRY_COMPARE_WITH_TIMEOUT(processesOf(home.path()), QStringList(), kPatienceMilliseconds);
    // Another test may have made one of the same name by now.
    QVERIFY(!QFileInfo::exists(socket) || QFileInfo(socket).metadataChangeTime() != made);
}

void TestLocalDisplay::missingProgramIsTold_data()
{
    QTest::addColumn<QStringList>("programs");
    QTest::addColumn<bool>("isStarted");

    QTest::newRow("none") << QStringList{"Xvfb", "openbox", "xdotool"} << true;
    QTest::newRow("the server") << QStringList{"openbox", "xdotool"} << false;
    QTest::newRow("the window manager") << QStringList{"Xvfb", "xdotool"} << false;
    QTest::newRow("the mouse") << QStringList{"Xvfb", "openbox"} << false;
}

void TestLocalDisplay::missingProgramIsTold()
{
    QFETCH(const QStringList, programs);
    const QTemporaryDir folder;
    for (const QString &program : programs) {
        QVERIFY(QFile::link(QStandardPaths::findExecutable(program), folder.filePath(program)));
    }
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()));

    LocalDisplay display;
    const bool isStarted = display.start();

    qputenv("PATH", path);
    QTEST(isStarted, "isStarted");
}

int main(int argc, char **argv)
{
    return runTest<TestLocalDisplay>(argc, argv);
}

#include "tst_LocalDisplay.moc"
