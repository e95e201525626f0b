#include "FindsUnderWay.h"

#include <QDeadlineTimer>
#include <QMutexLocker>

FindsUnderWay::FindsUnderWay(int patienceMilliseconds)
    : patienceMilliseconds(patienceMilliseconds)
{ }

void FindsUnderWay::send()
{
    const QMutexLocker locker(&mutex);
    while (count >= kMost && !isReleased && !isReceiverAway) {
        isReceiverAway = !changed.wait(&mutex, QDeadlineTimer(patienceMilliseconds));
    }
    ++count;
}

void FindsUnderWay::take()
{
    const QMutexLocker locker(&mutex);
    --count;
    isReceiverAway = false;
    // Not for each one, so that the threads do not take turns for each one.
    if (count <= kMost / 2) {
        changed.wakeOne();
    }
}

void FindsUnderWay::release()
{
    const QMutexLocker locker(&mutex);
    isReleased = true;
    changed.wakeAll();
}

void FindsUnderWay::hold()
{
    const QMutexLocker locker(&mutex);
    isReleased = false;
}
