#include "NetworkDriveWatch.h"

#include "DriveLetters.h"
#include "NetworkDriveConnection.h"
#include "NetworkShare.h"
#include "NetworkShareConnection.h"
#include "TXLogItem.h"
#include "TXLogPrint.h"

#include <optional>
#include <utility>

namespace {

/// Empty for an address without a share.
QString locationOf(const AutoMountNetworkDrive &drive)
{
    const std::optional<NetworkShare> share = NetworkShare::fromUrl(drive.getUrl());
    return share ? share->location : QString();
}

} // namespace

NetworkDriveWatch::NetworkDriveWatch(const NetworkDriveTiming &timing, QObject *parent)
    : QObject(parent)
    , timing(timing)
{ }

NetworkDriveWatch::~NetworkDriveWatch() = default;

void NetworkDriveWatch::setDrives(const QList<WatchedDrive> &drives)
{
    forgetOthers(drives);
    QSet<QChar> letters;
    for (const WatchedDrive &watched : drives) {
        take(watched, letters);
    }
    // Not before all that has to go is gone, which frees letters and shares.
    for (const WatchedDrive &watched : drives) {
        settle(watched.id);
    }
}

void NetworkDriveWatch::disconnectDrive(quint64 id)
{
    const auto found = entries.find(id);
    if (found == entries.end() || found->second.wish == Wish::Off) {
        return;
    }
    found->second.isPaused = true;
    close(found->second);
    settle(id);
}

void NetworkDriveWatch::forgetOthers(const QList<WatchedDrive> &drives)
{
    QSet<quint64> ids;
    ids.reserve(drives.size());
    for (const WatchedDrive &watched : drives) {
        ids.insert(watched.id);
    }
    for (auto entry = entries.begin(); entry != entries.end();) {
        if (ids.contains(entry->first)) {
            ++entry;
        } else {
            close(entry->second);
            entry = entries.erase(entry);
        }
    }
}

void NetworkDriveWatch::take(const WatchedDrive &watched, QSet<QChar> &letters)
{
    Entry &entry = entries[watched.id];
    const QChar letter = DriveLetters::letterOf(watched.drive.getMountPoint());
    const bool isOn = watched.drive.isActivated();
    const bool isFirst = letter.isNull() || !letters.contains(letter);
    if (isOn && !letter.isNull()) {
        letters.insert(letter);
    }
    const bool isChanged = entry.drive != watched.drive;
    entry.wish = !isOn ? Wish::Off : isFirst ? Wish::On : Wish::LetterTaken;
    entry.drive = watched.drive;
    entry.isPaused = entry.isPaused && isOn && !isChanged;
    if (isChanged || entry.wish != Wish::On) {
        close(entry);
    }
}

void NetworkDriveWatch::settle(quint64 id)
{
    Entry &entry = entries[id];
    if (entry.connection) {
        return;
    }
    if (entry.isPaused || entry.wish == Wish::Off) {
        tell(id, entry, NetworkDriveDisconnected);
    } else if (entry.wish == Wish::On) {
        open(id, entry);
    } else if (entry.told != NetworkDriveLetterTaken) {
        TXLogPrint(QStringLiteral("Network drive %1 cannot be connected: another drive of the list "
                                  "has its letter.")
                       .arg(entry.drive.getMountPoint()),
                   TXLogItem::Warning);
        tell(id, entry, NetworkDriveLetterTaken);
    }
}

void NetworkDriveWatch::open(quint64 id, Entry &entry)
{
    entry.location = locationOf(entry.drive);
    entry.connection =
        new NetworkDriveConnection(entry.drive, takeShare(entry.location), timing, this);
    idOfConnection.insert(entry.connection, id);
    tell(id, entry, NetworkDriveDisconnected);
    connect(entry.connection, SIGNAL(stateChanged(NetworkDriveConnectionState)), this,
            SLOT(connectionChanged(NetworkDriveConnectionState)));
    entry.connection->open();
}

void NetworkDriveWatch::close(Entry &entry)
{
    if (NetworkDriveConnection *connection = std::exchange(entry.connection, nullptr)) {
        idOfConnection.remove(connection);
        connection->close();
        connection->deleteLater();
        releaseShare(entry.location);
    }
}

void NetworkDriveWatch::tell(quint64 id, Entry &entry, NetworkDriveConnectionState state)
{
    if (entry.told != state) {
        entry.told = state;
        emit stateChanged(id, state);
    }
}

void NetworkDriveWatch::connectionChanged(NetworkDriveConnectionState state)
{
    const auto id = idOfConnection.constFind(sender());
    if (id != idOfConnection.cend()) {
        tell(*id, entries[*id], state);
    }
}

NetworkShareConnection *NetworkDriveWatch::takeShare(const QString &location)
{
    if (location.isEmpty()) {
        return nullptr;
    }
    Share &share = shares[location];
    if (!share.connection) {
        share.connection = new NetworkShareConnection(location, timing, this);
        share.connection->setObjectName(location);
        connect(share.connection, SIGNAL(closed()), this, SLOT(shareClosed()));
    }
    ++share.drives;
    return share.connection;
}

void NetworkDriveWatch::releaseShare(const QString &location)
{
    if (!location.isEmpty()) {
        --shares[location].drives;
        deleteIfUnused(location);
    }
}

void NetworkDriveWatch::shareClosed()
{
    deleteIfUnused(sender()->objectName());
}

void NetworkDriveWatch::deleteIfUnused(const QString &location)
{
    const auto share = shares.constFind(location);
    if (share != shares.cend() && share->drives == 0 && share->connection->isIdle()) {
        share->connection->deleteLater();
        shares.erase(share);
    }
}
