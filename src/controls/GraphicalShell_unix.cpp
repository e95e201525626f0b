#include "GraphicalShell.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace {

const QString kService = QStringLiteral("org.freedesktop.FileManager1");

bool hasService(const QDBusConnection &bus)
{
    const QDBusConnectionInterface *daemon = bus.isConnected() ? bus.interface() : nullptr;
    return daemon != nullptr
        && (daemon->isServiceRegistered(kService)
            || daemon->activatableServiceNames().value().contains(kService));
}

bool askService(const QString &path)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!hasService(bus)) {
        return false;
    }
    const bool isFolder = QFileInfo(path).isDir();
    QDBusMessage call = QDBusMessage::createMethodCall(
        kService, QStringLiteral("/org/freedesktop/FileManager1"), kService,
        isFolder ? QStringLiteral("ShowFolders") : QStringLiteral("ShowItems"));
    const QUrl url = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    call << QStringList(url.toString(QUrl::FullyEncoded)) << QString();
    return bus.send(call);
}

bool openFolder(const QString &path)
{
    const QFileInfo file(path);
    const QString folder = file.isDir() ? file.absoluteFilePath() : file.absolutePath();
    return QProcess::startDetached(QStringLiteral("xdg-open"), {folder});
}

} // namespace

bool GraphicalShell::show(const QString &path)
{
    return askService(path) || openFolder(path);
}
