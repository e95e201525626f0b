#pragma once

#include "AutoMountNetworkDrive.h"
#include "NetworkDriveConnectionState.h"
#include "TXCoreCommonExport.h"

#include <QList>
#include <QObject>

#include <memory>

class NetworkDriveStore;

/// The one list of network drives of the application, and the switch of what keeps them connected.
///
/// The list is read from the application's settings (the default QSettings, so the host has set the
/// organisation and application names) when it is first asked for, and stored only by
/// saveDriveList(). Entries that cannot be read are left out, told in the application's log, and
/// kept in the settings as they are.
///
/// Nothing connects drives yet: the manager can be started and stopped, and every drive that it
/// reads is disconnected.
///
/// Thread: the GUI thread.
class TXCORECOMMON_EXPORT TXAutoMountManager : public QObject
{
    Q_OBJECT

public:
    /// The manager, never null, also before and after the life of the application object. Make the
    /// first call on the GUI thread. Fetch it each time, and do not delete it.
    static TXAutoMountManager *getInstance();

    ~TXAutoMountManager() override;

    /// Starts the background mounting; emits started() unless it runs already.
    void start();
    /// Stops the background mounting; emits stopped() if it was running.
    void stop();
    /// Whether the background mounting runs. It does not at the start of the application.
    [[nodiscard]] bool isRunning() const;

    /// The number of drives.
    [[nodiscard]] int count();
    /// A copy of the drive in a row; an empty drive when there is no such row.
    [[nodiscard]] AutoMountNetworkDrive getDrive(int row);
    /// Appends a drive, as it is.
    void add(AutoMountNetworkDrive drive);
    /// Overwrites a drive, its activation and status included. Ignored when there is no such row.
    void replace(int row, AutoMountNetworkDrive drive);
    /// Removes a drive. Ignored when there is no such row.
    void remove(int row);

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

private:
    TXAutoMountManager();
    void load();
    [[nodiscard]] bool hasRow(int row);

    QList<AutoMountNetworkDrive> drives;
    std::unique_ptr<NetworkDriveStore> store;
    bool loaded = false;
    bool running = false;
};
