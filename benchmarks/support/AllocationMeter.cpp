#include "AllocationMeter.h"

#include <malloc.h>

namespace {

qint64 allocatedBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return qint64(heap.uordblks) + qint64(heap.hblkhd);
}

} // namespace

AllocationMeter::AllocationMeter()
    : start(allocatedBytes())
{ }

qint64 AllocationMeter::bytes() const
{
    return allocatedBytes() - start;
}
