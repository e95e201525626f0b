#include "FakeFolderProgram.h"
#include "TXFileDialog.h"
#include "TestBase.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>

namespace {

/// Many times what a program needs that waits for the bus for a second.
constexpr int kMostMilliseconds = 20000;

} // namespace

/// A bus that takes connections and never says a word.
class GraphicalShellMuteBusTest : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void folderIsOpenedByTheProgramInTime();
    void nextCallDoesNotWaitAgain();
    void programEndsByItself();

private:
    QTemporaryDir home;
    QLocalServer bus;
};

void GraphicalShellMuteBusTest::initTestCase()
{
    const QString socket = home.filePath(QStringLiteral("bus"));
    QVERIFY(bus.listen(socket));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(socket));
}

void GraphicalShellMuteBusTest::folderIsOpenedByTheProgramInTime()
{
    FakeFolderProgram program;
    QVERIFY(program.install());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellMuteBusTest::nextCallDoesNotWaitAgain()
{
    FakeFolderProgram program;
    QVERIFY(program.install());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QVERIFY2(clock.elapsed() < 900, qPrintable(QString::number(clock.elapsed())));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellMuteBusTest::programEndsByItself()
{
    FakeFolderProgram program;
    QVERIFY(program.install());
    QProcess host;
    host.start(QCoreApplication::applicationDirPath() + QStringLiteral("/folderShower"),
               {home.path()});
    const bool hasEnded = host.waitForFinished(kMostMilliseconds);
    if (!hasEnded) {
        host.kill();
        host.waitForFinished();
    }
    QVERIFY(hasEnded);
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.exitCode(), 0);
    QCOMPARE(host.readAllStandardError(), QByteArray());
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

int main(int argc, char **argv)
{
    return runTest<GraphicalShellMuteBusTest>(argc, argv);
}

#include "tst_GraphicalShellMuteBus.moc"
