#include "UnfinishedDownloads.h"

#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace {

const QString kKey = QStringLiteral("UnfinishedDownloads");

QString nameOf(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

/// The remembered paths but for this one and for those whose file is gone.
QStringList othersThan(const QString &name)
{
    QStringList names = QSettings().value(kKey).toStringList();
    names.removeIf(
        [&](const QString &other) { return other == name || !QFileInfo::exists(other); });
    return names;
}

void store(const QStringList &names)
{
    QSettings settings;
    if (names.isEmpty()) {
        settings.remove(kKey);
    } else {
        settings.setValue(kKey, names);
    }
    settings.sync();
}

} // namespace

bool UnfinishedDownloads::contains(const QString &path)
{
    return QSettings().value(kKey).toStringList().contains(nameOf(path));
}

void UnfinishedDownloads::add(const QString &path)
{
    const QString name = nameOf(path);
    store(othersThan(name) + QStringList(name));
}

void UnfinishedDownloads::remove(const QString &path)
{
    if (contains(path)) {
        store(othersThan(nameOf(path)));
    }
}
