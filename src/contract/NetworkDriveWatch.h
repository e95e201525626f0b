#pragma once

#include "AutoMountNetworkDrive.h"
#include "NetworkDriveTiming.h"
#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <unordered_map>

class NetworkDriveConnection;
class NetworkShareConnection;

/// One drive of the list, under a number that stays the same while the drive is in it.
struct WatchedDrive
{
    quint64 id = 0;
    AutoMountNetworkDrive drive;
};

/// Keeps the active drives of a list connected, each by a connection of its own, so that a server
/// that does not answer holds up its own drives only. Lives on the worker thread of
/// TXAutoMountManager.
///
/// Drives of the same share have the same connection to the server: it is given up with the last of
/// them, and one with other credentials than the others cannot be connected beside them. A letter
/// belongs to the first active drive that names it.
///
/// Thread: that of the object, which needs an event loop; nothing here waits.
class TXCORECOMMON_PRIVATE_EXPORT NetworkDriveWatch : public QObject
{
    Q_OBJECT

public:
    explicit NetworkDriveWatch(const NetworkDriveTiming &timing = {}, QObject *parent = nullptr);

    /// Leaves the connected drives as they are; programs that still run are killed. Shares that are
    /// about to be connected or disconnected are disconnected by a program of its own.
    ~NetworkDriveWatch() override;

    /// The list as it is now, in order: connects what is active and new, or has another address or
    /// letter than before; disconnects what is gone, changed or not active any more. An empty list
    /// disconnects all. Costs one pass over the old list and the new one.
    void setDrives(const QList<WatchedDrive> &drives);

    /// Disconnects a drive; it is connected again when it changes, or is switched off and on. Does
    /// nothing for one that is not there or not active.
    void disconnectDrive(quint64 id);

signals:
    /// A drive stands differently now. Each drive counts as disconnected before the first signal.
    /// Nothing is told of a drive that is not in the list any more.
    void stateChanged(quint64 id, NetworkDriveConnectionState state);

private slots:
    void connectionChanged(NetworkDriveConnectionState state);
    void shareClosed();

private:
    enum class Wish { Off, On, LetterTaken };

    struct Entry
    {
        AutoMountNetworkDrive drive;
        /// The share of the connection; empty when the address names none.
        QString location;
        Wish wish = Wish::Off;
        bool isPaused = false;
        NetworkDriveConnection *connection = nullptr;
        NetworkDriveConnectionState told = NetworkDriveDisconnected;
    };

    struct Share
    {
        NetworkShareConnection *connection = nullptr;
        int drives = 0;
    };

    void forgetOthers(const QList<WatchedDrive> &drives);
    void take(const WatchedDrive &watched, QSet<QChar> &letters);
    void settle(quint64 id);
    void open(quint64 id, Entry &entry);
    void close(Entry &entry);
    void tell(quint64 id, Entry &entry, NetworkDriveConnectionState state);
    NetworkShareConnection *takeShare(const QString &location);
    void releaseShare(const QString &location);
    void deleteIfUnused(const QString &location);

    const NetworkDriveTiming timing;
    /// By the id of the drive.
    std::unordered_map<quint64, Entry> entries;
    QHash<const QObject *, quint64> idOfConnection;
    /// By their location.
    QHash<QString, Share> shares;
};
