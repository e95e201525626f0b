#include "FontChanges.h"

#include <QGuiApplication>
#include <QMutex>

#include <atomic>

namespace {

std::atomic_int changeCount = 0;
std::atomic<const QObject *> watchedApplication = nullptr;
QBasicMutex watching;

} // namespace

int FontChanges::count()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (application != watchedApplication.load(std::memory_order_acquire)) {
        static FontChanges watcher;
        watcher.watch(application);
    }
    return changeCount.load(std::memory_order_acquire);
}

void FontChanges::watch(QObject *application)
{
    const QMutexLocker locker(&watching);
    if (watchedApplication == application
        || qobject_cast<QGuiApplication *>(application) == nullptr) {
        return;
    }
    // The first to ask may be any thread, but the signals are to be heard where they are emitted.
    moveToThread(application->thread());
    connect(application, SIGNAL(fontDatabaseChanged()), this, SLOT(countChange()));
    connect(application, SIGNAL(destroyed()), this, SLOT(leaveApplication()));
    watchedApplication.store(application, std::memory_order_release);
}

void FontChanges::countChange()
{
    ++changeCount;
}

void FontChanges::leaveApplication()
{
    watchedApplication = nullptr;
    ++changeCount;
}
