#pragma once

#include "TXGUICommonExport.h"

#include <QMutex>
#include <QWaitCondition>

/// Holds a searching thread back while the receiver of its finds is far behind, so that the
/// receiver never finds more than a few of them waiting when it comes to them, and can do other
/// work in between.
///
/// A receiver that takes nothing for a while (it may be waiting for the search's end) holds nobody
/// back until it takes again; then more than kMost may be under way. Nothing is ever lost by this.
///
/// Thread: the sender calls send(), the receiver the rest; all are safe.
class TXGUICOMMON_PRIVATE_EXPORT FindsUnderWay
{
public:
    /// How many may be under way; taking so many costs an event loop a few milliseconds.
    static constexpr int kMost = 200;
    /// How long a receiver that takes nothing holds the sender back.
    static constexpr int kDefaultPatienceMilliseconds = 500;

    explicit FindsUnderWay(int patienceMilliseconds = kDefaultPatienceMilliseconds);

    /// Counts one more. Blocks before that while there are kMost, the receiver takes them, and
    /// release() has not been called.
    void send();

    /// Counts one less. To be called once for each that was sent.
    void take();

    /// Lets send() pass at once, now and from now on.
    void release();

    /// Ends release(). What is under way stays so.
    void hold();

private:
    QMutex mutex;
    QWaitCondition changed;
    const int patienceMilliseconds;
    int count = 0;
    bool isReleased = false;
    bool isReceiverAway = false;
};
