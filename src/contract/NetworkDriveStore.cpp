#include "NetworkDriveStore.h"

#include "TXJSONSerializer.h"

#include <QLockFile>
#include <QSettings>

namespace {

const QString kListKey = QStringLiteral("NetworkDrives");

/// Every drive is stored with this key, so a dictionary without it is none.
const QString kAlwaysThereKey = QStringLiteral("NetworkDriveActivated");
const QString kPasswordKey = QStringLiteral("NetworkDrivePassword");

/// A value that is no list of texts counts as one entry, which then cannot be read.
QStringList storedTexts()
{
    const QVariant value = QSettings().value(kListKey);
    if (!value.isValid() || value.canConvert<QStringList>()) {
        return value.toStringList();
    }
    return {value.toString()};
}

/// A process that is killed at the wrong moment leaves a lock that names nobody. The settings
/// themselves would wait for half a minute then, and for ever for somebody who has stopped.
bool isLockFree(const QString &settingsPath, int patienceMilliseconds)
{
    constexpr int kStaleMilliseconds = 250;
    QLockFile lock(settingsPath + QStringLiteral(".lock"));
    // Who is alive keeps it also when it is older: the system holds the file for him.
    lock.setStaleLockTime(kStaleMilliseconds);
    return lock.tryLock(patienceMilliseconds) || lock.error() != QLockFile::LockFailedError;
}

bool hasLostItsPassword(const AutoMountNetworkDrive &drive, const QHash<QString, QVariant> &stored)
{
    return !drive.getUrl().password().isEmpty() && !stored.contains(kPasswordKey);
}

} // namespace

NetworkDriveStore::NetworkDriveStore(int patienceMilliseconds)
    : patience(patienceMilliseconds)
{ }

QList<AutoMountNetworkDrive> NetworkDriveStore::read()
{
    const QStringList texts = storedTexts();
    QList<AutoMountNetworkDrive> drives;
    unreadable.clear();
    for (const QString &text : texts) {
        const QHash<QString, QVariant> stored =
            TXJSONSerializer::deserialize(text.toUtf8()).toHash();
        if (stored.contains(kAlwaysThereKey)) {
            drives.append(AutoMountNetworkDrive(stored));
        } else {
            unreadable.append(text);
        }
    }
    return drives;
}

int NetworkDriveStore::unreadableCount() const
{
    return int(unreadable.size());
}

bool NetworkDriveStore::write(const QList<AutoMountNetworkDrive> &drives)
{
    bool complete = true;
    QStringList texts;
    for (const AutoMountNetworkDrive &drive : drives) {
        const QHash<QString, QVariant> stored = drive.toVariantHash();
        complete = complete && !hasLostItsPassword(drive, stored);
        texts.append(QString::fromUtf8(TXJSONSerializer::serialize(stored, false)));
    }
    QSettings settings;
    if (!isLockFree(settings.fileName(), patience)) {
        return false;
    }
    settings.setValue(kListKey, texts + unreadable);
    // Writes now, to a new file that then takes the place of the old one.
    settings.sync();
    return complete && settings.status() == QSettings::NoError;
}
