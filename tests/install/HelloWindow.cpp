#include "HelloWindow.h"

#include "ChildProcess.h"
#include "HostBuild.h"
#include "LocalDisplay.h"

#include <QTest>

namespace {

constexpr int kPatienceMilliseconds = 60000;
constexpr int kEndMilliseconds = 1000;

/// The window is there to be seen, and the keyboard is its own.
bool isActive(const QProcessEnvironment &screen)
{
    const CommandResult found =
        runCommand(QStringLiteral("xdotool"),
                   {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")}, screen);
    return found.succeeded && found.output.trimmed() == u"Hello";
}

/// Presses the keys that close the window, and gives the program a moment to end. They can come too
/// early for the window manager.
bool isClosed(QProcess &program, const QProcessEnvironment &screen)
{
    return runCommand(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("alt+F4")},
                      screen)
               .succeeded
        && program.waitForFinished(kEndMilliseconds);
}

} // namespace

QString showAndCloseHello(const QString &program)
{
    LocalDisplay display;
    if (!display.start()) {
        return QStringLiteral("no screen; are Xvfb, openbox and xdotool installed?");
    }
    const QProcessEnvironment screen = display.environment();
    QProcess hello;
    endWithThisThread(hello);
    hello.setProcessEnvironment(screen);
    hello.setProcessChannelMode(QProcess::MergedChannels);
    hello.start(program, QStringList());
    const bool came = hello.waitForStarted(kPatienceMilliseconds)
        && QTest::qWaitFor(
                          [&] { return hello.state() == QProcess::NotRunning || isActive(screen); },
                          kPatienceMilliseconds);
    if (!came || hello.state() == QProcess::NotRunning) {
        return program + QStringLiteral(" shows no window: ") + QString::fromUtf8(hello.readAll());
    }
    const bool ended =
        QTest::qWaitFor([&] { return isClosed(hello, screen); }, kPatienceMilliseconds);
    if (!ended || hello.exitStatus() != QProcess::NormalExit || hello.exitCode() != 0) {
        return program + QStringLiteral(" does not end well: ")
            + QString::fromUtf8(hello.readAll());
    }
    return {};
}
