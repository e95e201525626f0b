#include "UnfinishedDownloads.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

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

/// An entry that is no entry of ours counts as old and gone.
bool isOldAndGone(const QStringList &entry)
{
    if (entry.size() != 2) {
        return true;
    }
    const QDateTime made = QDateTime::fromString(entry.at(1), Qt::ISODate);
    const qint64 age = made.secsTo(QDateTime::currentDateTimeUtc());
    const bool isRecent = made.isValid() && qAbs(age) <= UnfinishedDownloads::kKeptSeconds;
    return !isRecent && !QFileInfo::exists(entry.at(0));
}

void dropOldEntries(QSettings &settings)
{
    settings.beginGroup(kGroup);
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (isOldAndGone(settings.value(key).toStringList())) {
            settings.remove(key);
        }
    }
    settings.endGroup();
}

} // namespace

bool UnfinishedDownloads::contains(const QString &path)
{
    return !path.isEmpty() && QSettings().contains(keyOf(nameOf(path)));
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
    if (contains(path)) {
        QSettings settings;
        settings.remove(keyOf(nameOf(path)));
        settings.sync();
    }
}
