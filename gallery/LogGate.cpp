#include "LogGate.h"

#include "TXLogManager.h"

#include <QMutexLocker>

LogGate::LogGate(const QSharedPointer<TXLogManager> &log, QObject *parent)
    : QObject(parent)
    , log(log)
{
    connect(log->rootItem().data(), SIGNAL(itemAppended(QSharedPointer<TXLogItem>)), this,
            SLOT(entryTaken(QSharedPointer<TXLogItem>)));
    // A log that is emptied as a whole takes no notice of what was on its way.
    connect(log.data(), SIGNAL(hasBeenReset()), this, SLOT(forgetAll()));
}

void LogGate::append(const QSharedPointer<TXLogItem> &entry)
{
    {
        const QMutexLocker locker(&mutex);
        while (!isOpen && onTheWay.size() >= kMostOnTheWay) {
            changed.wait(&mutex);
        }
        onTheWay.insert(entry.data());
    }
    log->append(entry);
}

void LogGate::open()
{
    const QMutexLocker locker(&mutex);
    isOpen = true;
    changed.wakeAll();
}

void LogGate::close()
{
    const QMutexLocker locker(&mutex);
    isOpen = false;
}

void LogGate::entryTaken(QSharedPointer<TXLogItem> entry)
{
    const QMutexLocker locker(&mutex);
    if (onTheWay.remove(entry.data())) {
        changed.wakeOne();
    }
}

void LogGate::forgetAll()
{
    const QMutexLocker locker(&mutex);
    onTheWay.clear();
    changed.wakeAll();
}
