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
    // Heard where they are emitted: the watcher may stand on a thread without an event loop, that
    // of whoever asked first, and counting is safe on all.
    connect(application, SIGNAL(fontDatabaseChanged()), this, SLOT(countChange()),
            Qt::DirectConnection);
    connect(application, SIGNAL(destroyed()), this, SLOT(leaveApplication()), Qt::DirectConnection);
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
