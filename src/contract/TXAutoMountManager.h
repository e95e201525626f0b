#pragma once

#include "AutoMountNetworkDrive.h"
#include "NetworkDriveConnectionState.h"
#include "TXCoreCommonExport.h"

#include <QList>
#include <QObject>

#include <memory>

class NetworkDriveStore;
class NetworkDriveWorker;

/// The one list of network drives of the application, and the switch of what keeps them connected.
///
/// The list is read from the application's settings (the default QSettings, so the host has set the
/// organisation and application names) when it is first asked for, and stored only by
/// saveDriveList(). Entries that cannot be read are left out, told in the application's log, and
/// kept in the settings as they are.
///
/// While it runs, it keeps each activated drive connected, beside the GUI thread: connects its
/// share, makes the link of its letter in the user's folder "Network Drives", looks again and again
/// whether the share still answers, and connects it anew when it does not. A drive that cannot be
/// connected is tried again every few seconds. A server that does not answer holds up its own
/// drives only. What happens is told in the application's log, without user names and passwords. A
/// drive is
///
/// - NetworkDriveDisconnected while it is switched off, not connected yet, or lost a moment ago;
/// - NetworkDriveReconnectionFailed when address, user or password are wrong, when the server or
///   the folder in the share does not answer, when there is a user without a password, or a stored
///   password that cannot be read, or when the programs for it are not installed: gio (Debian's
///   libglib2.0-bin), with gvfs-backends and gvfs-fuse;
/// - NetworkDriveLetterTaken while an earlier drive of the list, or something else in the folder
///   "Network Drives", has its letter.
///
/// A share that the user has mounted himself is used as it is, without trying user and password,
/// and stays mounted when its drive is disconnected. After a refused log-in the next tries come
/// less and less often, up to 15 minutes apart, since servers lock accounts; a drive that is
/// edited, or switched off and on, is tried at once.
///
/// The end of the application leaves connected drives as they are; the next start() takes them
/// over. What was about to be connected or disconnected is disconnected, without waiting for it. On
/// Windows nothing connects drives: start() says so in the log, and all stay disconnected.
///
/// Thread: the GUI thread. All signals are emitted on it. No call waits for the network.
class TXCORECOMMON_EXPORT TXAutoMountManager : public QObject
{
    Q_OBJECT

public:
    /// The manager, never null, also before and after the life of the application object. Make the
    /// first call on the GUI thread. Fetch it each time, and do not delete it.
    static TXAutoMountManager *getInstance();

    ~TXAutoMountManager() override;

    /// Starts the background mounting; emits started() unless it runs already. Work begins in the
    /// next turn of the event loop.
    void start();
    /// Stops the background mounting; emits stopped() if it was running. Each drive counts as
    /// disconnected when this returns; what was connected is disconnected in the background, also
    /// when the application ends meanwhile. A slot that hears of a drive may call start(): then the
    /// mounting runs when this returns, and stopped() is not emitted.
    void stop();
    /// Whether the background mounting runs. It does not at the start of the application.
    [[nodiscard]] bool isRunning() const;

    /// The number of drives.
    [[nodiscard]] int count();
    /// A copy of the drive in a row; an empty drive when there is no such row.
    [[nodiscard]] AutoMountNetworkDrive getDrive(int row);
    /// Appends a drive, as it is; while the mounting runs, as a disconnected one.
    void add(AutoMountNetworkDrive drive);
    /// Overwrites a drive, its activation and status included. Ignored when there is no such row.
    ///
    /// While the mounting runs, the status in the drive does not count: an equal drive keeps the
    /// one that the manager knows, and another one starts as disconnected; the one before it is
    /// disconnected in the background.
    void replace(int row, AutoMountNetworkDrive drive);
    /// Removes a drive; it is disconnected in the background. Ignored when there is no such row.
    void remove(int row);

    /// Disconnects the first drive of the list that equals this one and is connected, else the
    /// first that is about to be, in the background; statusNetworkDriveChanged() follows. Ignored
    /// when there is none, or when the mounting does not run. See
    /// AutoMountNetworkDrive::disconnectExplicitlyNetworkDrive().
    void disconnectDrive(const AutoMountNetworkDrive &drive);

    /// Notes how a drive stands now, for what connects drives; emits statusNetworkDriveChanged()
    /// when that is another state. Ignored when there is no such row.
    void setDriveStatus(int row, NetworkDriveConnectionState status);

    /// Stores the list, on disk when this returns. Passwords are enciphered. A failure is told in
    /// the application's log.
    void saveDriveList();

signals:
    /// A drive changed its state; the drive already carries the new one. Emitted only on a change,
    /// not by add(), replace() or remove().
    void statusNetworkDriveChanged(NetworkDriveConnectionState newStatus,
                                   AutoMountNetworkDrive drive);
    /// The background mounting was started. Not emitted when it was running.
    void started();
    /// The background mounting was stopped. Not emitted when it was not running.
    void stopped();

private slots:
    void networkDriveChanged(quint64 id, NetworkDriveConnectionState status);
    void handDrivesOver();

private:
    TXAutoMountManager();
    void load();
    [[nodiscard]] bool hasRow(int row);
    void listChanged();
    [[nodiscard]] qsizetype findDrive(const AutoMountNetworkDrive &drive,
                                      NetworkDriveConnectionState status) const;
    void renewIds();
    void endWithTheApplication();

    QList<AutoMountNetworkDrive> drives;
    /// A number for each drive, never used again for another one.
    QList<quint64> ids;
    quint64 lastId = 0;
    std::unique_ptr<NetworkDriveStore> store;
    std::unique_ptr<NetworkDriveWorker> worker;
    bool isConnecting = false;
    bool isEndPrepared = false;
    bool isChangePosted = false;
    bool loaded = false;
    bool running = false;
};
