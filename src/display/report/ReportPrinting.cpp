#include "ReportPrinting.h"

#include "ReportPages.h"
#include "ReportPlacement.h"
#include "ReportPrintRange.h"
#include "ReportRun.h"
#include "ReportSharedParts.h"
#include "TXStringI18n.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>

namespace {

constexpr const char *kOtherPaper = QT_TRANSLATE_NOOP(
    "TXReportDocument", "The printer \"%1\" does not take the page size of the report.");
constexpr const char *kDoesNotStart =
    QT_TRANSLATE_NOOP("TXReportDocument", "The printer \"%1\" can't be started.");
constexpr const char *kStops =
    QT_TRANSLATE_NOOP("TXReportDocument", "The printer \"%1\" has stopped in the middle.");

bool fail(ReportRun &run, const char *reason, const QPrinter &printer)
{
    // A printer that prints to a file may have no name.
    const QString name = printer.printerName();
    run.fail(reportText(reason).arg(name.isEmpty() ? printer.outputFileName() : name));
    return false;
}

bool takesSheet(QPrinter *printer, const QPageLayout &sheet)
{
    printer->setPageLayout(sheet);
    printer->setFullPage(true);
    return printer->pageLayout().fullRectPoints() == sheet.fullRectPoints();
}

} // namespace

bool ReportPrinting::print(ReportPages &pages, QPrinter *printer, ReportRun &run)
{
    if (printer == nullptr) {
        run.fail(reportText(QT_TRANSLATE_NOOP("TXReportDocument", "There is no printer.")));
        return false;
    }
    if (printer->paintingActive()) {
        return fail(run, kDoesNotStart, *printer);
    }
    const ReportPrintRange range(*printer, pages.count());
    if (range.count() == 0) {
        run.fail(reportText(QT_TRANSLATE_NOOP(
            "TXReportDocument", "The report has none of the pages that are to be printed.")));
        return false;
    }
    if (!takesSheet(printer, pages.sheetLayout())) {
        return fail(run, kOtherPaper, *printer);
    }
    printer->setDocName(ReportTextLine::onOneLine(pages.frame().title));
    QPainter painter;
    if (!painter.begin(printer)) {
        return fail(run, kDoesNotStart, *printer);
    }
    return paintWanted(pages, range, printer, run, &painter);
}

bool ReportPrinting::paintWanted(ReportPages &pages, const ReportPrintRange &range,
                                 QPrinter *printer, ReportRun &run, QPainter *painter)
{
    painter->scale(printer->logicalDpiX() / ReportPlacement::kPointsPerInch,
                   printer->logicalDpiY() / ReportPlacement::kPointsPerInch);
    ReportSharedParts shared;
    for (int i = 0; i < range.count(); ++i) {
        if (!run.beginPage(i, range.count())) {
            printer->abort();
            return false;
        }
        if (i > 0 && !printer->newPage()) {
            return fail(run, kStops, *printer);
        }
        pages.paint(range.page(i), painter, &shared);
        run.endPage(i, range.count());
    }
    if (!run.close()) {
        printer->abort();
        return false;
    }
    return painter->end() || fail(run, kStops, *printer);
}
