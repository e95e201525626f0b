#include "TXAutoMountManager.h"

#include "NetworkDriveStore.h"
#include "TXLogItem.h"
#include "TXLogPrint.h"

#include <utility>

TXAutoMountManager *TXAutoMountManager::getInstance()
{
    static TXAutoMountManager instance;
    return &instance;
}

TXAutoMountManager::TXAutoMountManager()
    : store(std::make_unique<NetworkDriveStore>())
{ }

TXAutoMountManager::~TXAutoMountManager() = default;

void TXAutoMountManager::start()
{
    if (running) {
        return;
    }
    running = true;
    TXLogPrint(QStringLiteral("Connecting network drives is not available yet."),
               TXLogItem::Warning);
    emit started();
}

void TXAutoMountManager::stop()
{
    if (!running) {
        return;
    }
    running = false;
    emit stopped();
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
    drives.append(std::move(drive));
}

void TXAutoMountManager::replace(int row, AutoMountNetworkDrive drive)
{
    if (hasRow(row)) {
        drives[row] = std::move(drive);
    }
}

void TXAutoMountManager::remove(int row)
{
    if (hasRow(row)) {
        drives.removeAt(row);
    }
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
