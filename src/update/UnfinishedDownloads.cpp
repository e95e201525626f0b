#include "UnfinishedDownloads.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace {

const QString kGroup = QStringLiteral("UnfinishedDownloads");

/// The file's one name: the folder's real place, then the name as it was given, since the file
/// itself may not be there yet.
QString nameOf(const QString &path)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return folder.isEmpty() ? file.filePath() : QDir(folder).filePath(file.fileName());
}

/// Settings take no slash in a key.
QString keyOf(const QString &name)
{
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1);
    return kGroup + u'/' + QString::fromLatin1(hash.toHex());
}

/// When the entry was made; invalid for an entry that is no entry of ours.
QDateTime timeOf(const QVariant &entry)
{
    return QDateTime::fromString(entry.toStringList().value(1), Qt::ISODate);
}

/// Whether both times are known and further apart than so many seconds.
bool areApart(const QDateTime &first, const QDateTime &second, qint64 seconds)
{
    return first.isValid() && second.isValid() && qAbs(first.secsTo(second)) > seconds;
}

bool isOld(const QDateTime &made)
{
    return !made.isValid()
        || areApart(made, QDateTime::currentDateTimeUtc(), UnfinishedDownloads::kKeptSeconds);
}

void dropOldEntries(QSettings &settings)
{
    settings.beginGroup(kGroup);
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (isOld(timeOf(settings.value(key)))) {
            settings.remove(key);
        }
    }
    settings.endGroup();
}

} // namespace

bool UnfinishedDownloads::contains(const QString &path)
{
    const QString key = keyOf(nameOf(path));
    const QSettings settings;
    if (path.isEmpty() || !settings.contains(key)) {
        return false;
    }
    const QDateTime birth = QFileInfo(path).birthTime();
    return !areApart(birth, timeOf(settings.value(key)), kApartSeconds);
}

bool UnfinishedDownloads::add(const QString &path)
{
    if (path.isEmpty()) {
        return false;
    }
    const QString name = nameOf(path);
    QSettings settings;
    dropOldEntries(settings);
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    settings.setValue(keyOf(name), QStringList({name, now}));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

void UnfinishedDownloads::remove(const QString &path)
{
    const QString key = keyOf(nameOf(path));
    QSettings settings;
    if (!path.isEmpty() && settings.contains(key)) {
        settings.remove(key);
        settings.sync();
    }
}
