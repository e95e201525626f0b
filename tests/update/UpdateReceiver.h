#pragma once

#include "UpdateRunnable.h"

#include <QObject>
#include <QThread>
#include <QVariantHash>

/// Takes what a check emits, on the thread that made the receiver.
class UpdateReceiver : public QObject
{
public:
    /// How often something came.
    int count = 0;
    /// What came last, and on which thread.
    QVariantHash update;
    QVariantHash lastUpdate;
    QThread *thread = nullptr;

    /// From now on takes what this one emits.
    void listenTo(const UpdateRunnable &runnable) const
    {
        connect(&runnable, &UpdateRunnable::updateReceived, this, &UpdateReceiver::take);
    }

private:
    void take(const QVariantHash &newUpdate, const QVariantHash &newLastUpdate)
    {
        ++count;
        update = newUpdate;
        lastUpdate = newLastUpdate;
        thread = QThread::currentThread();
    }
};
