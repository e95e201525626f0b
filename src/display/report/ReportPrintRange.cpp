#include "ReportPrintRange.h"

#include <QPageRanges>
#include <QPrinter>

#include <algorithm>

namespace {

QPageRanges wantedRanges(const QPrinter &printer, int pageCount)
{
    QPageRanges ranges = printer.pageRanges();
    if (ranges.isEmpty() && printer.fromPage() > 0) {
        ranges.addRange(printer.fromPage(), std::max(printer.fromPage(), printer.toPage()));
    }
    if (ranges.isEmpty()) {
        ranges.addRange(1, pageCount);
    }
    return ranges;
}

} // namespace

QList<int> ReportPrintRange::pages(const QPrinter &printer, int pageCount)
{
    QList<int> pages;
    if (pageCount < 1) {
        return pages;
    }
    const QList<QPageRanges::Range> ranges = wantedRanges(printer, pageCount).toRangeList();
    for (const QPageRanges::Range &range : ranges) {
        for (int page = std::max(range.from, 1); page <= std::min(range.to, pageCount); ++page) {
            pages.append(page - 1);
        }
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}
