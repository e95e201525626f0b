#pragma once

#include "TXGUICommonExport.h"

#include <QList>

class QPrinter;

/// Which pages of a report a printer is set to print.
class TXGUICOMMON_PRIVATE_EXPORT ReportPrintRange
{
public:
    /// The pages, counted from 0, in the order in which they are to be printed: the printer's page
    /// ranges or its first and last page where such are set, all of them otherwise; backwards where
    /// the printer wants the last page first. Empty when no page of the report is wanted.
    [[nodiscard]] static QList<int> pages(const QPrinter &printer, int pageCount);
};
