#include "ChildProcess.h"
#include "LocalDisplay.h"
#include "PluginUnderTest.h"
#include "TestBase.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>

namespace {

/// For a machine under load.
constexpr int kPatienceMilliseconds = 60000;

QString designerProgram()
{
    return QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/designer";
}

/// What the program has written, but for the lines about OpenGL, which the screen does not have.
QStringList complaintsIn(const QByteArray &output)
{
    QStringList lines = QString::fromLocal8Bit(output).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.contains(QLatin1String("OpenGL")); });
    return lines;
}

/// Whether the process has the plug-in in its memory.
bool hasLoadedThePlugin(qint64 process)
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(process));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(TX_DESIGNER_PLUGIN);
}

} // namespace

/// The program Qt Designer, on a screen of its own.
class TestDesignerProgram : public TestBase
{
    Q_OBJECT

private slots:
    void findsThePluginAndHasNoComplaint();

private:
    bool showsItsWindow(const LocalDisplay &display) const;
};

bool TestDesignerProgram::showsItsWindow(const LocalDisplay &display) const
{
    QProcess search;
    endWithThisThread(search);
    search.setProcessEnvironment(display.environment());
    search.start("xdotool", {"search", "--onlyvisible", "--name", "^Qt Designer$"});
    return search.waitForFinished() && search.exitCode() == 0
        && !search.readAllStandardOutput().isEmpty();
}

void TestDesignerProgram::findsThePluginAndHasNoComplaint()
{
    LocalDisplay display;
    QVERIFY2(display.start(), "needs the programs Xvfb, openbox and xdotool");
    QProcess designer;
    endWithThisThread(designer);
    QProcessEnvironment environment = display.environment();
    environment.insert("QT_PLUGIN_PATH", QFileInfo(PluginUnderTest::folder()).path());
    designer.setProcessEnvironment(environment);
    designer.setProcessChannelMode(QProcess::MergedChannels);
    designer.start(designerProgram(), {TX_FORMS "/Settings.ui"});
    QVERIFY2(designer.waitForStarted(), "needs Qt Designer");

    QTRY_VERIFY_WITH_TIMEOUT(showsItsWindow(display), kPatienceMilliseconds);
    QTRY_VERIFY_WITH_TIMEOUT(hasLoadedThePlugin(designer.processId()), kPatienceMilliseconds);
    QCOMPARE(designer.state(), QProcess::Running);
    designer.terminate();
    QVERIFY(designer.waitForFinished(kPatienceMilliseconds));
    QCOMPARE(complaintsIn(designer.readAll()), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestDesignerProgram>(argc, argv);
}

#include "tst_DesignerProgram.moc"
