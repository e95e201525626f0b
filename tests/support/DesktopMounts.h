#pragma once

#include "LocalMessageBus.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

/// The desktop's services behind "gio mount" for one test program: a message bus with gvfsd on it
/// and a folder for what belongs to a session. Shares connect as on a desktop, and nothing of the
/// user's own session is touched.
///
/// Their processes take their surroundings from the bus, so HOME must be the test's own before
/// start(), as TestBase sees to. All of them end with the object, with every drive that is still
/// connected. They end with the program too when that is killed, since they do not live without
/// their bus; only the temporary folder stays then.
///
/// Thread: the main one. Needs Debian's packages gvfs, gvfs-backends, libglib2.0-bin, dbus-daemon,
/// and for local paths gvfs-fuse and fuse3.
class DesktopMounts
{
public:
    /// Whether the services may make a file system, by which shares have local paths.
    enum class Fuse {
        /// Where the system allows it.
        IfThere,
        /// In no case, as on a machine without gvfs-fuse or /dev/fuse.
        Never
    };

    explicit DesktopMounts(Fuse fuse = Fuse::IfThere)
        : fuse(fuse)
    { }

    DesktopMounts(const DesktopMounts &) = delete;
    DesktopMounts &operator=(const DesktopMounts &) = delete;
    DesktopMounts(DesktopMounts &&) = delete;
    DesktopMounts &operator=(DesktopMounts &&) = delete;

    /// Ends the services and the bus, and takes the file system of the shares away, also when one
    /// of them hangs. XDG_RUNTIME_DIR is again what it was.
    ~DesktopMounts();

    /// Starts bus and services and waits until shares can be connected. Changes XDG_RUNTIME_DIR,
    /// DBUS_SESSION_BUS_ADDRESS and GVFS_REMOTE_VOLUME_MONITOR_IGNORE of this process. False, with
    /// the reason in error(), when a program is missing or does not start. Call it once, before the
    /// process uses its session bus. Says in the test's output whether there are local paths.
    [[nodiscard]] bool start();

    /// Why start() failed, in words; empty when it has not.
    [[nodiscard]] QString error() const { return failure; }

    /// Whether a connected share has a local path, since the system allows a file system of the
    /// user's own here, and the services may make one. A fact that is known after start(), not a
    /// setting.
    [[nodiscard]] bool hasFuse() const { return isFuseThere; }

    /// Where the shares' local paths stand if hasFuse(): one folder for each connected share.
    [[nodiscard]] QString shareRoot() const;

    /// The bus, of which a test may want to hold the breath; null before start().
    [[nodiscard]] LocalMessageBus *messageBus() const { return bus.get(); }

private:
    [[nodiscard]] QString missingProgram() const;
    [[nodiscard]] bool startBus();
    [[nodiscard]] bool startDaemon();
    [[nodiscard]] bool waitForShareRoot() const;
    [[nodiscard]] bool isShareRootMounted() const;
    void unmountShareRoot() const;
    void endProcesses() const;

    const Fuse fuse;
    QTemporaryDir runtime;
    QByteArray runtimeBefore;
    std::unique_ptr<LocalMessageBus> bus;
    QString failure;
    bool isFuseThere = false;
};
