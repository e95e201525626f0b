#pragma once

#include "TXGUICommonExport.h"

#include <QList>

class QPrinter;

/// Which pages of a report a printer is set to print, in which order: its page ranges where such
/// are set, all pages otherwise; backwards where the printer wants the last page first.
///
/// Holds the ranges, not the pages.
class TXGUICOMMON_PRIVATE_EXPORT ReportPrintRange
{
public:
    /// The range of a report of so many pages.
    ReportPrintRange(const QPrinter &printer, int pageCount);

    /// How many pages are to be printed; 0 when the report has none of those that are wanted.
    [[nodiscard]] int count() const { return total; }

    /// The page, counted from 0 in the report, that is to be printed as number `index`, counted
    /// from 0 and below count().
    [[nodiscard]] int page(int index) const;

private:
    void append(int firstPage, int lastPage);

    /// The first page of each range, and the number of pages in the ranges before it.
    QList<int> firstPages;
    QList<int> pagesBefore;
    int total = 0;
    bool isBackwards;
};
