#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A message bus of its own for one test program, in place of the user's: dbus-daemon with a
/// configuration and a socket in a temporary folder. Ends with the object, and with the thread that
/// has started it, however that ends.
///
/// A process finds its session bus once, at the first use: call start() before that. Programs that
/// the bus is to start on demand are announced before start() too.
class LocalMessageBus
{
public:
    LocalMessageBus() = default;
    LocalMessageBus(const LocalMessageBus &) = delete;
    LocalMessageBus &operator=(const LocalMessageBus &) = delete;
    LocalMessageBus(LocalMessageBus &&) = delete;
    LocalMessageBus &operator=(LocalMessageBus &&) = delete;

    /// Stops the bus; those who are connected lose it.
    ~LocalMessageBus();

    /// Lets the bus start this command when somebody calls the service. False when the file that
    /// tells the bus cannot be written.
    [[nodiscard]] bool announce(const QString &service, const QString &command);

    /// Starts the bus, waits until it takes connections, and makes it the session bus of this
    /// process and its children. False when it does not come up in 30 seconds.
    [[nodiscard]] bool start();

    /// For connections beside that to the session bus.
    [[nodiscard]] QString address() const;

    /// The address of a second socket of the same bus, one without a file.
    [[nodiscard]] QString abstractAddress() const;

    /// The file of the socket, "bus" in a folder of its own.
    [[nodiscard]] QString socket() const;

    /// Lets the bus hold its breath: it takes connections and messages and is silent.
    void hold();

    /// Lets it go on.
    void goOn();

private:
    [[nodiscard]] bool writeFile(const QString &name, const QString &text) const;

    QTemporaryDir folder;
    QProcess daemon;
};
