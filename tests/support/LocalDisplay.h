#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

class QPoint;

/// A screen of its own for programs of a test that need real windows: an X server that paints into
/// memory, with a window manager, and a mouse that the test moves.
///
/// The server takes a display number that is free. Everything ends with the object, and with the
/// thread that has started it, however that ends, and leaves no socket behind.
class LocalDisplay
{
public:
    LocalDisplay() = default;
    LocalDisplay(const LocalDisplay &) = delete;
    LocalDisplay &operator=(const LocalDisplay &) = delete;
    LocalDisplay(LocalDisplay &&) = delete;
    LocalDisplay &operator=(LocalDisplay &&) = delete;

    /// Stops the window manager, then the server.
    ~LocalDisplay();

    /// Starts the server and the window manager, and tries the mouse. False when one of the
    /// programs is missing or does not come up in a minute.
    [[nodiscard]] bool start();

    /// For programs that are to show their windows here.
    [[nodiscard]] QProcessEnvironment environment() const;

    /// Moves the mouse. False when that has failed, as with the other two.
    [[nodiscard]] bool moveMouse(const QPoint &place) const;
    /// Presses the left button.
    [[nodiscard]] bool pressMouse() const;
    /// Lets the left button go.
    [[nodiscard]] bool releaseMouse() const;

private:
    [[nodiscard]] bool startServer();
    [[nodiscard]] bool startWindowManager();
    [[nodiscard]] bool work(const QStringList &arguments) const;

    QProcess server;
    QProcess windowManager;
    QString name;
};
