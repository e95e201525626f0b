#pragma once

#include <QtGlobal>

/// Tells how much more memory the process held at its fullest than when the meter was made.
///
/// Counts the pages in main memory, on all threads, whoever asked for them: the heap with its gaps,
/// but also stacks and what is loaded for the first time. Let the work run once before. What is
/// free in the heap is given back when the meter is made, so that using it again counts. The kernel
/// counts in pages and not at once, so that some hundred KB of noise are in each reading.
class PeakMeter
{
public:
    /// Making a second meter starts the peak anew for the first one too.
    PeakMeter();

    /// False where the kernel tells no peak, or does not let it start anew; bytes() is 0 then.
    [[nodiscard]] bool isValid() const;

    /// The peak since, above what was held at the start.
    [[nodiscard]] qint64 bytes() const;

private:
    qint64 start = -1;
};
