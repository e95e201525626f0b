#include "ReportPrintRange.h"

#include <QPageRanges>
#include <QPrinter>

#include <algorithm>

ReportPrintRange::ReportPrintRange(const QPrinter &printer, int pageCount)
    : isBackwards(printer.pageOrder() == QPrinter::LastPageFirst)
{
    const QList<QPageRanges::Range> ranges = printer.pageRanges().toRangeList();
    for (const QPageRanges::Range &range : ranges) {
        append(std::max(range.from, 1) - 1, std::min(range.to, pageCount) - 1);
    }
    if (ranges.isEmpty()) {
        append(0, pageCount - 1);
    }
}

void ReportPrintRange::append(int firstPage, int lastPage)
{
    if (firstPage <= lastPage) {
        firstPages.append(firstPage);
        pagesBefore.append(total);
        total += lastPage - firstPage + 1;
    }
}

int ReportPrintRange::page(int index) const
{
    const int place = isBackwards ? total - 1 - index : index;
    const auto next = std::upper_bound(pagesBefore.begin(), pagesBefore.end(), place);
    const qsizetype range = next - pagesBefore.begin() - 1;
    return firstPages.at(range) + place - pagesBefore.at(range);
}
