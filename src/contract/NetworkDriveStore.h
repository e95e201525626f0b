#pragma once

#include "AutoMountNetworkDrive.h"
#include "TXCoreCommonExport.h"

#include <QList>
#include <QStringList>

/// Keeps the list of network drives in the application's settings, under "NetworkDrives": one line
/// of JSON a drive, as AutoMountNetworkDrive::toVariantHash() gives it, so with the password
/// enciphered.
///
/// Entries that cannot be read (damaged, or of a later version) are left out of the list, but kept:
/// write() puts them back behind the others.
///
/// The settings are replaced as a whole file, so that a process killed at any moment leaves either
/// the old list or the new one, and holds no later write() up. The temporary copy of the settings
/// that it may leave too stays: its name does not tell whose it is.
class TXCORECOMMON_PRIVATE_EXPORT NetworkDriveStore
{
public:
    /// How long write() waits at most, in milliseconds, for another process that is saving.
    static constexpr int kPatienceMilliseconds = 3000;

    explicit NetworkDriveStore(int patienceMilliseconds = kPatienceMilliseconds);

    /// The stored drives in order.
    QList<AutoMountNetworkDrive> read();

    /// How many entries the last read() could not read.
    [[nodiscard]] int unreadableCount() const;

    /// Stores the drives on disk. False when the settings could not be written, also since another
    /// process holds them locked for too long, or when a password could not be enciphered; that
    /// drive is then stored without it. Call read() before, or unreadable entries are lost.
    bool write(const QList<AutoMountNetworkDrive> &drives);

private:
    int patience;
    QStringList unreadable;
};
