#include "LocalDisplay.h"

#include "ChildProcess.h"

#include <QPoint>

namespace {

constexpr int kPatienceMilliseconds = 60000;

void stop(QProcess &process)
{
    if (process.state() == QProcess::NotRunning) {
        return;
    }
    process.terminate();
    if (!process.waitForFinished(kPatienceMilliseconds)) {
        process.kill();
        process.waitForFinished(kPatienceMilliseconds);
    }
}

/// False when the program ends without one.
bool waitForLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(kPatienceMilliseconds)) {
            return false;
        }
    }
    return true;
}

} // namespace

LocalDisplay::~LocalDisplay()
{
    stop(windowManager);
    stop(server);
}

bool LocalDisplay::start()
{
    return startServer() && startWindowManager() && releaseMouse();
}

QProcessEnvironment LocalDisplay::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), name);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none"));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    return environment;
}

bool LocalDisplay::moveMouse(const QPoint &place) const
{
    return work(
        {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

bool LocalDisplay::pressMouse() const
{
    return work({QStringLiteral("mousedown"), QStringLiteral("1")});
}

bool LocalDisplay::releaseMouse() const
{
    return work({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool LocalDisplay::startServer()
{
    // Killed, it would leave its socket behind.
    endWithThisThread(server, SIGTERM);
    // What the server says about keyboards is not of interest; it writes the number it has taken
    // once programs can connect.
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                  QStringLiteral("0"), QStringLiteral("1024x768x24"), QStringLiteral("-noreset"),
                  QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!waitForLine(server)) {
        return false;
    }
    name = QLatin1Char(':') + QString::fromLatin1(server.readLine().trimmed());
    return true;
}

bool LocalDisplay::startWindowManager()
{
    endWithThisThread(windowManager);
    windowManager.setProcessEnvironment(environment());
    windowManager.setStandardErrorFile(QProcess::nullDevice());
    // It runs this command once it manages the windows; before, it may have things of its own to
    // say.
    windowManager.start(QStringLiteral("openbox"),
                        {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                         QStringLiteral("/bin/echo ready")});
    while (waitForLine(windowManager)) {
        if (windowManager.readLine().trimmed() == "ready") {
            return true;
        }
    }
    return false;
}

bool LocalDisplay::work(const QStringList &arguments) const
{
    QProcess mouse;
    endWithThisThread(mouse);
    mouse.setProcessEnvironment(environment());
    mouse.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mouse.start(QStringLiteral("xdotool"), arguments);
    return mouse.waitForFinished(kPatienceMilliseconds)
        && mouse.exitStatus() == QProcess::NormalExit && mouse.exitCode() == 0;
}
