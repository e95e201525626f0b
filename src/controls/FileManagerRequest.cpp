#include "FileManagerRequest.h"

#include "FolderProgram.h"
#include "SessionBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QUrl>

#include <limits>

namespace {

constexpr int kBusMilliseconds = 1000;

const QString kService = QStringLiteral("org.freedesktop.FileManager1");

QDBusMessage askBus(const QDBusConnection &bus, const QString &method,
                    const QVariantList &arguments = {})
{
    const QString daemon = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage call = QDBusMessage::createMethodCall(
        daemon, QStringLiteral("/org/freedesktop/DBus"), daemon, method);
    call.setArguments(arguments);
    return bus.call(call, QDBus::Block, kBusMilliseconds);
}

bool isServiceThere(const QDBusConnection &bus)
{
    if (!bus.isConnected()) {
        return false;
    }
    const QDBusReply<bool> isRunning = askBus(bus, QStringLiteral("NameHasOwner"), {kService});
    if (!isRunning.isValid() || isRunning.value()) {
        return isRunning.isValid();
    }
    const QDBusReply<QStringList> startable = askBus(bus, QStringLiteral("ListActivatableNames"));
    return startable.value().contains(kService);
}

} // namespace

FileManagerRequest::FileManagerRequest(const QDBusPendingCall &call, const QString &path,
                                       QObject *parent)
    : QDBusPendingCallWatcher(call, parent)
    , path(path)
{
    connect(this, SIGNAL(finished(QDBusPendingCallWatcher *)), this, SLOT(openFolderUnlessShown()));
}

bool FileManagerRequest::send(const QString &absolutePath)
{
    const QDBusConnection bus = SessionBus::connection();
    if (!isServiceThere(bus)) {
        return false;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        kService, QStringLiteral("/org/freedesktop/FileManager1"), kService,
        QFileInfo(absolutePath).isDir() ? QStringLiteral("ShowFolders")
                                        : QStringLiteral("ShowItems"));
    const QUrl url = QUrl::fromLocalFile(absolutePath);
    call << QStringList(url.toString(QUrl::FullyEncoded)) << QString();
    // Without a limit: a file manager that is slow shows the file in the end, and a second window
    // must not come before it.
    const QDBusPendingCall pending = bus.asyncCall(call, std::numeric_limits<int>::max());
    new FileManagerRequest(pending, absolutePath, QCoreApplication::instance());
    return true;
}

void FileManagerRequest::openFolderUnlessShown()
{
    if (isError()) {
        FolderProgram::open(path);
    }
    deleteLater();
}
