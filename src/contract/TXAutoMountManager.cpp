#include "TXAutoMountManager.h"

#include "NetworkDriveStore.h"
#include "NetworkDriveSupply.h"
#include "NetworkDriveWorker.h"
#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TXLogPrint.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

TXAutoMountManager *TXAutoMountManager::getInstance()
{
    static TXAutoMountManager instance;
    return &instance;
}

TXAutoMountManager::TXAutoMountManager()
    : store(std::make_unique<NetworkDriveStore>())
{
    // Made before the manager, the log lives until the worker has ended.
    static_cast<void>(TXLogManager::applicationLog());
}

TXAutoMountManager::~TXAutoMountManager() = default;

void TXAutoMountManager::start()
{
    if (running) {
        return;
    }
    running = true;
    isConnecting = canConnectNetworkDrives();
    listChanged();
    emit started();
}

void TXAutoMountManager::stop()
{
    if (!running) {
        return;
    }
    running = false;
    // What was told of the drives before, and is on its way, does not count any more.
    renewIds();
    if (worker) {
        worker->setDrives({});
    }
    // Who hears of the first one may have it started again.
    for (int row = 0; row < drives.size() && !running; ++row) {
        setDriveStatus(row, NetworkDriveDisconnected);
    }
    if (!running) {
        emit stopped();
    }
}

bool TXAutoMountManager::isRunning() const
{
    return running;
}

int TXAutoMountManager::count()
{
    load();
    return int(drives.size());
}

AutoMountNetworkDrive TXAutoMountManager::getDrive(int row)
{
    return hasRow(row) ? drives.at(row) : AutoMountNetworkDrive();
}

void TXAutoMountManager::add(AutoMountNetworkDrive drive)
{
    load();
    if (running) {
        drive.setStatus(NetworkDriveDisconnected);
    }
    drives.append(std::move(drive));
    ids.append(++lastId);
    listChanged();
}

void TXAutoMountManager::replace(int row, AutoMountNetworkDrive drive)
{
    if (!hasRow(row)) {
        return;
    }
    const bool isSame = drive == drives.at(row);
    if (!isSame) {
        ids[row] = ++lastId;
    }
    if (running) {
        drive.setStatus(isSame ? drives.at(row).getStatus() : NetworkDriveDisconnected);
    }
    drives[row] = std::move(drive);
    listChanged();
}

void TXAutoMountManager::remove(int row)
{
    if (hasRow(row)) {
        drives.removeAt(row);
        ids.removeAt(row);
        listChanged();
    }
}

void TXAutoMountManager::disconnectDrive(const AutoMountNetworkDrive &drive)
{
    if (!worker || !running) {
        return;
    }
    qsizetype row = findDrive(drive, NetworkDriveConnected);
    if (row < 0) {
        // One that is on its way: the worker may have come further than is known here.
        row = findDrive(drive, NetworkDriveDisconnected);
    }
    if (row >= 0) {
        worker->disconnectDrive(ids.at(row));
    }
}

qsizetype TXAutoMountManager::findDrive(const AutoMountNetworkDrive &drive,
                                        NetworkDriveConnectionState status) const
{
    const auto found = std::find_if(
        drives.cbegin(), drives.cend(), [&drive, status](const AutoMountNetworkDrive &candidate) {
            return candidate.isActivated() && candidate.getStatus() == status && candidate == drive;
        });
    return found == drives.cend() ? -1 : found - drives.cbegin();
}

void TXAutoMountManager::setDriveStatus(int row, NetworkDriveConnectionState status)
{
    if (!hasRow(row) || drives.at(row).getStatus() == status) {
        return;
    }
    drives[row].setStatus(status);
    const AutoMountNetworkDrive changed = drives.at(row);
    emit statusNetworkDriveChanged(status, changed);
}

void TXAutoMountManager::saveDriveList()
{
    load();
    if (!store->write(drives)) {
        TXLogPrint(QStringLiteral("The list of network drives could not be saved completely. "
                                  "Please check the settings folder."),
                   TXLogItem::Error);
    }
}

void TXAutoMountManager::load()
{
    if (loaded) {
        return;
    }
    loaded = true;
    drives = store->read();
    renewIds();
    if (store->unreadableCount() > 0) {
        TXLogPrint(QStringLiteral("Stored network drives that could not be read: %1. They are kept "
                                  "in the settings.")
                       .arg(store->unreadableCount()),
                   TXLogItem::Warning);
    }
}

bool TXAutoMountManager::hasRow(int row)
{
    load();
    return row >= 0 && row < drives.size();
}

void TXAutoMountManager::networkDriveChanged(quint64 id, NetworkDriveConnectionState status)
{
    setDriveStatus(int(ids.indexOf(id)), status);
}

// One copy of the list for all changes of a turn of the event loop.
void TXAutoMountManager::listChanged()
{
    if (running && isConnecting && !isChangePosted) {
        isChangePosted = QMetaObject::invokeMethod(this, "handDrivesOver", Qt::QueuedConnection);
    }
}

void TXAutoMountManager::handDrivesOver()
{
    isChangePosted = false;
    if (!running) {
        return;
    }
    load();
    if (!worker) {
        worker = std::make_unique<NetworkDriveWorker>(this);
        if (!std::exchange(isEndPrepared, true)) {
            qAddPostRoutine([] { getInstance()->endWithTheApplication(); });
        }
    }
    QList<WatchedDrive> watched;
    watched.reserve(drives.size());
    for (qsizetype row = 0; row < drives.size(); ++row) {
        watched.append({ids.at(row), drives.at(row)});
    }
    worker->setDrives(watched);
}

void TXAutoMountManager::renewIds()
{
    ids.resize(drives.size());
    for (quint64 &id : ids) {
        id = ++lastId;
    }
}

void TXAutoMountManager::endWithTheApplication()
{
    if (worker && isChangePosted) {
        // So that a drive that was removed a moment ago is disconnected.
        handDrivesOver();
    }
    worker.reset();
    running = false;
    isEndPrepared = false;
    isChangePosted = false;
    renewIds();
    for (AutoMountNetworkDrive &drive : drives) {
        drive.setStatus(NetworkDriveDisconnected);
    }
}
