#include "NetworkDriveWorker.h"

#include <QMetaObject>

#include <utility>

namespace {

constexpr int kEndMilliseconds = 2'000;

NetworkDriveTiming &timingOfNext()
{
    static NetworkDriveTiming timing;
    return timing;
}

} // namespace

void NetworkDriveWorker::setTiming(const NetworkDriveTiming &timing)
{
    timingOfNext() = timing;
}

NetworkDriveWorker::NetworkDriveWorker(QObject *listener)
    : NetworkDriveWorker(listener, std::make_unique<NetworkDriveWatch>(timingOfNext()))
{ }

NetworkDriveWorker::NetworkDriveWorker(QObject *listener,
                                       std::unique_ptr<NetworkDriveWatch> watchToMove)
    : thread(std::make_unique<QThread>())
    , watch(watchToMove.release())
{
    // Its thread deletes it, since its timers and programs belong to that.
    watch->moveToThread(thread.get());
    QObject::connect(thread.get(), SIGNAL(finished()), watch, SLOT(deleteLater()));
    QObject::connect(watch, SIGNAL(stateChanged(quint64, NetworkDriveConnectionState)), listener,
                     SLOT(networkDriveChanged(quint64, NetworkDriveConnectionState)));
    thread->setObjectName(QStringLiteral("Network drives"));
    thread->start();
}

NetworkDriveWorker::~NetworkDriveWorker()
{
    // Behind what was asked for before.
    QMetaObject::invokeMethod(
        watch, [] { QThread::currentThread()->quit(); }, Qt::QueuedConnection);
    if (!thread->wait(kEndMilliseconds)) {
        // To delete it while it runs would end the process.
        static_cast<void>(thread.release());
    }
}

void NetworkDriveWorker::setDrives(const QList<WatchedDrive> &drives)
{
    QMetaObject::invokeMethod(
        watch, [drives, receiver = watch] { receiver->setDrives(drives); }, Qt::QueuedConnection);
}

void NetworkDriveWorker::disconnectDrive(quint64 id)
{
    QMetaObject::invokeMethod(
        watch, [id, receiver = watch] { receiver->disconnectDrive(id); }, Qt::QueuedConnection);
}
