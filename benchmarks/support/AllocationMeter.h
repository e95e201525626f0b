#pragma once

#include <QtGlobal>

/// Tells how much more the heap holds than when the meter was made.
///
/// Counts what malloc handed out, on all threads, with its own overhead, however it was asked for
/// (operator new, Qt's containers). Blocks that a thread keeps for its next allocation still count,
/// so that a few KB of noise are in each reading: measure thousands of rows. Reads nothing of use
/// under the address sanitizer, which brings an allocator of its own.
class AllocationMeter
{
public:
    AllocationMeter();

    /// Bytes allocated since and not freed; negative when more was freed.
    [[nodiscard]] qint64 bytes() const;

private:
    qint64 start;
};
