#pragma once

#include "UpdateRunnable.h"

#include <QObject>
#include <QThread>
#include <QVariantHash>

/// Takes what a check emits, on the thread that made the receiver.
class UpdateReceiver : public QObject
{
public:
    int count = 0;
    QVariantHash update;
    QVariantHash lastUpdate;
    QThread *thread = nullptr;

    void listenTo(const UpdateRunnable &runnable)
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
