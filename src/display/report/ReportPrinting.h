#pragma once

#include "TXGUICommonExport.h"

class QPainter;
class QPrinter;
class ReportPages;
class ReportPrintRange;
class ReportRun;

/// Prints a report.
class TXGUICOMMON_PRIVATE_EXPORT ReportPrinting
{
public:
    /// True when all pages that the printer is set to were printed. Otherwise the run has failed or
    /// was cancelled. There must be pages.
    [[nodiscard]] static bool print(ReportPages &pages, QPrinter *printer, ReportRun &run);

private:
    [[nodiscard]] static bool paintWanted(ReportPages &pages, const ReportPrintRange &range,
                                          QPrinter *printer, ReportRun &run, QPainter *painter);
};
