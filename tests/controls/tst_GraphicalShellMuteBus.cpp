#include "FakeFolderProgram.h"
#include "TXFileDialog.h"
#include "TestBase.h"

#include <QElapsedTimer>
#include <QLocalServer>

#include <optional>

/// A bus that takes connections and never says a word.
class GraphicalShellMuteBusTest : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void folderIsOpenedByTheProgramInTime();
    void nextCallDoesNotWaitAgain();
    void cleanupTestCase();

private:
    QTemporaryDir home;
    std::optional<QLocalServer> bus;
};

void GraphicalShellMuteBusTest::initTestCase()
{
    const QString socket = home.filePath(QStringLiteral("bus"));
    bus.emplace();
    QVERIFY(bus->listen(socket));
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
}

/// Hangs up on who waits, so that the program can end.
void GraphicalShellMuteBusTest::cleanupTestCase()
{
    bus.reset();
}

int main(int argc, char **argv)
{
    return runTest<GraphicalShellMuteBusTest>(argc, argv);
}

#include "tst_GraphicalShellMuteBus.moc"
