#include "TXDialogDirectories.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>
#include <QVariant>

namespace {

/// Settings would read a separator in the key as a group.
QString settingsKey(const QString &key)
{
    return QStringLiteral("OpenDialogDirectories/")
        + QString::fromLatin1(QUrl::toPercentEncoding(key));
}

QString nearestExistingFolder(QString path)
{
    while (!QFileInfo(path).isDir()) {
        const QString parent = QFileInfo(path).path();
        if (parent == path) {
            return {};
        }
        path = parent;
    }
    return path;
}

} // namespace

QString getOpenDialogDirectoryForKey(const QString &key)
{
    if (key.isEmpty()) {
        return {};
    }
    const QVariant remembered = QSettings().value(settingsKey(key));
    const QString path = remembered.toString();
    if (remembered.typeId() != QMetaType::QString || !QDir::isAbsolutePath(path)
        || path.contains(QChar(u'\0'))) {
        return {};
    }
    return nearestExistingFolder(QDir::cleanPath(path));
}

void saveOpenDialogDirectoryForKey(const QString &key, const QString &path)
{
    if (key.isEmpty()) {
        return;
    }
    QSettings settings;
    if (path.isEmpty()) {
        settings.remove(settingsKey(key));
    } else {
        settings.setValue(settingsKey(key), QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    }
}
