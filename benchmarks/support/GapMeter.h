#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Tells the longest time in which the event loop of this thread took no event, since the meter was
/// made.
///
/// A timer ticks each millisecond, so that a gap is told about that much too long, and nothing
/// below it. Make it right before the work, in the thread that runs it, and ask it there too.
class GapMeter : public QObject
{
    Q_OBJECT

public:
    GapMeter();

    /// The longest gap so far, the one that is not over yet included.
    [[nodiscard]] double milliseconds() const;

public slots:
    /// The event loop is at work: the gap is over.
    void tick();

private:
    QTimer timer;
    QElapsedTimer sinceTick;
    qint64 longestNanoseconds = 0;
};
