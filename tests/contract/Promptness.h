#pragma once

#include <QElapsedTimer>
#include <QList>

#include <algorithm>
#include <functional>
#include <limits>

/// How long a program or a search that is cancelled may go on.
constexpr qint64 kLongestStopMilliseconds = 250;
/// How seldom it may ask whether it is cancelled.
constexpr qint64 kLongestGapMilliseconds = 50;

/// Asks forty times, and tells how long it took from one question to the next.
class Questions
{
public:
    static constexpr int kCount = 40;

    /// To be asked by what is tried; true at the last time.
    bool operator()()
    {
        if (timer.isValid()) {
            gaps.append(timer.elapsed());
        }
        timer.start();
        return gaps.size() + 1 >= kCount;
    }

    /// Milliseconds; half of the gaps are shorter. A machine that is busy with other things makes
    /// some of them long, not that many.
    [[nodiscard]] qint64 medianGap() const
    {
        QList<qint64> sorted = gaps;
        std::sort(sorted.begin(), sorted.end());
        return sorted.size() + 1 < kCount ? std::numeric_limits<qint64>::max()
                                          : sorted.at(sorted.size() / 2);
    }

private:
    QElapsedTimer timer;
    QList<qint64> gaps;
};

/// The shortest of ten times from the answer that ends it to the end, in milliseconds; a machine
/// that is busy with other things does not make all of them long. `run` gets the question to ask.
inline qint64 bestStop(const std::function<void(const std::function<bool()> &)> &run)
{
    constexpr int kRounds = 10;
    constexpr int kQuestionsBefore = 5;
    qint64 best = std::numeric_limits<qint64>::max();
    for (int round = 0; round < kRounds; ++round) {
        int asked = 0;
        QElapsedTimer timer;
        run([&] {
            if (++asked == kQuestionsBefore) {
                timer.start();
            }
            return asked >= kQuestionsBefore;
        });
        best = std::min(best, timer.isValid() ? timer.elapsed() : best);
    }
    return best;
}
