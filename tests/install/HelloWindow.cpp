#include "HelloWindow.h"

#include "ChildProcess.h"
#include "HostBuild.h"
#include "LocalDisplay.h"

#include <QTest>

namespace {

constexpr int kPatienceMilliseconds = 60000;
constexpr int kEndMilliseconds = 1000;

/// The window is there to be seen, and the keyboard is its own.
bool isActive(const QString &title, const QProcessEnvironment &screen)
{
    const CommandResult found =
        runCommand(QStringLiteral("xdotool"),
                   {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")}, screen);
    return found.succeeded && found.output.trimmed() == title;
}

/// Presses the keys that close the window, and gives the program a moment to end. They can come too
/// early for the window manager.
bool isClosed(QProcess &program, const QProcessEnvironment &screen)
{
    return pressKeys(QStringLiteral("alt+F4"), screen) && program.waitForFinished(kEndMilliseconds);
}

/// False when the program ends, or when the window does not come.
bool waitForWindow(QProcess &program, const QString &title, const QProcessEnvironment &screen)
{
    const auto hasCome = [&] {
        return program.state() == QProcess::NotRunning || isActive(title, screen);
    };
    return program.waitForStarted(kPatienceMilliseconds)
        && QTest::qWaitFor(hasCome, kPatienceMilliseconds)
        && program.state() != QProcess::NotRunning;
}

} // namespace

bool pressKeys(const QString &keys, const QProcessEnvironment &screen)
{
    return runCommand(QStringLiteral("xdotool"), {QStringLiteral("key"), keys}, screen).succeeded;
}

QString showAndClose(const QString &program, const QStringList &arguments, const QString &title,
                     const WhileShown &whileShown)
{
    LocalDisplay display;
    if (!display.start()) {
        return QStringLiteral("no screen; are Xvfb, openbox and xdotool installed?");
    }
    const QProcessEnvironment screen = display.environment();
    QProcess host;
    endWithThisThread(host);
    host.setProcessEnvironment(screen);
    host.setProcessChannelMode(QProcess::MergedChannels);
    host.start(program, arguments);
    if (!waitForWindow(host, title, screen)) {
        return program + QStringLiteral(" shows no window: ") + QString::fromUtf8(host.readAll());
    }
    const QString complaint = whileShown ? whileShown(host, screen) : QString();
    if (!complaint.isEmpty()) {
        host.kill();
        host.waitForFinished();
        return complaint;
    }
    const bool ended =
        QTest::qWaitFor([&] { return isClosed(host, screen); }, kPatienceMilliseconds);
    if (!ended || host.exitStatus() != QProcess::NormalExit || host.exitCode() != 0) {
        return program + QStringLiteral(" does not end well: ") + QString::fromUtf8(host.readAll());
    }
    return {};
}

QString showAndCloseHello(const QString &program)
{
    return showAndClose(program, {}, QStringLiteral("Hello"), {});
}
