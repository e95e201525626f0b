#include "FileManagerRequest.h"

#include "FolderProgram.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>
#include <QUrl>

#include <chrono>
#include <future>
#include <limits>
#include <memory>

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

bool isServiceThere()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
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

/// The one thread that talks to the bus until it is known to be well: the first connection blocks
/// for as long as a mute bus likes.
QThreadPool *busThread()
{
    static QPointer<QThreadPool> pool;
    if (!pool) {
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(1);
    }
    return pool;
}

/// Does not block for longer than a second, and not at all while an earlier question hangs.
bool isServiceThereInTime()
{
    const auto answer = std::make_shared<std::promise<bool>>();
    std::future<bool> isThere = answer->get_future();
    return busThread()->tryStart([answer] { answer->set_value(isServiceThere()); })
        && isThere.wait_for(std::chrono::milliseconds(kBusMilliseconds))
        == std::future_status::ready
        && isThere.get();
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
    if (!isServiceThereInTime()) {
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
    const QDBusPendingCall pending =
        QDBusConnection::sessionBus().asyncCall(call, std::numeric_limits<int>::max());
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
