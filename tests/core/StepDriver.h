#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>

/// The clock of all animations, moved by the test alone: no time passes between two steps.
///
/// For the life of the object; one at a time.
class StepDriver : public QAnimationDriver
{
public:
    StepDriver() { install(); }
    ~StepDriver() override { uninstall(); }

    Q_DISABLE_COPY_MOVE(StepDriver)

    [[nodiscard]] qint64 elapsed() const override { return now; }

    /// Lets so many milliseconds pass at once. Animations that were started since the last step
    /// begin before it.
    void step(int milliseconds)
    {
        settle();
        now += milliseconds;
        if (isRunning()) {
            advanceAnimation();
        }
    }

    /// Whether there is any animation to move, paused ones left out.
    [[nodiscard]] bool hasWork() const
    {
        settle();
        return isRunning();
    }

protected:
    void start() override
    {
        now = 0;
        QAnimationDriver::start();
    }

private:
    /// Animations that begin and end are taken up by the event loop, in calls that make calls.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }

    qint64 now = 0;
};
