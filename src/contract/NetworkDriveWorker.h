#pragma once

#include "NetworkDriveTiming.h"
#include "NetworkDriveWatch.h"
#include "TXCoreCommonExport.h"

#include <QList>
#include <QThread>

#include <memory>

/// The NetworkDriveWatch of TXAutoMountManager on a thread of its own. All calls come back at once.
///
/// Thread: made, used and deleted on one thread, which needs an event loop to hear of changes.
class TXCORECOMMON_PRIVATE_EXPORT NetworkDriveWorker
{
public:
    /// The timing of those that are made later, in place of the usual one.
    static void setTiming(const NetworkDriveTiming &timing);

    /// Starts the thread. The listener's slot networkDriveChanged(quint64,
    /// NetworkDriveConnectionState) hears, on its own thread, of each change.
    explicit NetworkDriveWorker(QObject *listener);

    /// The same with a watch of the caller's, which belongs to the thread from then on.
    NetworkDriveWorker(QObject *listener, std::unique_ptr<NetworkDriveWatch> watchToMove);

    NetworkDriveWorker(const NetworkDriveWorker &) = delete;
    NetworkDriveWorker &operator=(const NetworkDriveWorker &) = delete;
    NetworkDriveWorker(NetworkDriveWorker &&) = delete;
    NetworkDriveWorker &operator=(NetworkDriveWorker &&) = delete;

    /// Kills the programs that run, leaves the connected drives as they are, and waits for the end
    /// of the thread, which does not wait for the network. What was asked for before is begun, and
    /// left to a program that outlives this one.
    ///
    /// Waits 2 seconds at most. A thread that hangs until then, in a file system that does not
    /// answer, is left alone with its watch: that is lost memory in place of a program that does
    /// not end.
    ~NetworkDriveWorker();

    /// See NetworkDriveWatch::setDrives().
    void setDrives(const QList<WatchedDrive> &drives);

    /// See NetworkDriveWatch::disconnectDrive().
    void disconnectDrive(quint64 id);

private:
    std::unique_ptr<QThread> thread;
    NetworkDriveWatch *watch;
};
