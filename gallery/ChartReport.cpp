#include "ChartReport.h"

#include "ChartReportCover.h"
#include "ChartReportTables.h"
#include "ReportFonts.h"

#include <QDate>
#include <QFont>
#include <QLocale>
#include <QMarginsF>

namespace {

constexpr double kMarginPoints = 36;
constexpr double kSmallMarginPoints = 24;
/// Below it, in points, a sheet is small.
constexpr double kSmallSheetPoints = 450;

constexpr int kHeaderPixels = 8;
constexpr int kSmallHeaderPixels = 6;

bool isSmall(QPageSize::PageSizeId paper)
{
    return QPageSize::sizePoints(paper).width() < kSmallSheetPoints;
}

QPageLayout layoutFor(const ChartReportOptions &options)
{
    const double margin = isSmall(options.paper) ? kSmallMarginPoints : kMarginPoints;
    return {QPageSize(options.paper), options.orientation,
            QMarginsF(margin, margin, margin, margin), QPageLayout::Point};
}

} // namespace

ChartReport::ChartReport(const ChartReportOptions &options)
{
    setUpPaper(options);
    const QSizeF content = report.contentRect().size();
    ChartReportCover(&cover, content, options).draw(report.title());
    report.addPage(&cover);

    const ChartReportTables tables(content, options);
    report.addTable(tables.patches(), tables.font());
    report.addTable(tables.pairs(), tables.font());
}

void ChartReport::setUpPaper(const ChartReportOptions &options)
{
    report.setPageLayout(layoutFor(options));
    report.setTitle(tr("Colour comparison of the 24-patch chart"));
    report.setAuthor(tr("TXGUICommon Gallery"));
    report.setHeaderFont(
        ReportFonts::withPixels(isSmall(options.paper) ? kSmallHeaderPixels : kHeaderPixels));
    report.setHeaderText(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat),
                         TXAlignRight);
    report.setFooterText(report.author(), TXAlignLeft);
    report.setFooterText(tr("Page {page} of {pages}"), TXAlignRight);
    report.setFooterText(QString(), TXAlignHorizontallyCentred);
}
