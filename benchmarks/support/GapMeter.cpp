#include "GapMeter.h"

GapMeter::GapMeter()
{
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, SIGNAL(timeout()), this, SLOT(tick()));
    timer.start(1);
    sinceTick.start();
}

double GapMeter::milliseconds() const
{
    return static_cast<double>(qMax(longestNanoseconds, sinceTick.nsecsElapsed())) / 1e6;
}

void GapMeter::tick()
{
    longestNanoseconds = qMax(longestNanoseconds, sinceTick.nsecsElapsed());
    sinceTick.start();
}
