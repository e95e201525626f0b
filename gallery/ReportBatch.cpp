#include "ReportBatch.h"

#include "ChartReport.h"
#include "ObservedProgress.h"
#include "PartProgress.h"

#include "TXError.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <iterator>

namespace {

constexpr float kDonePercent = 100.0F;
constexpr int kNumberDigits = 2;
constexpr int kDecimalBase = 10;

constexpr DifferenceFormula kFormulas[] = {DifferenceFormula::Cie76, DifferenceFormula::Ciede2000};
constexpr PairOrder kOrders[] = {PairOrder::ByNumber, PairOrder::LargestFirst,
                                 PairOrder::SmallestFirst};
constexpr QPageSize::PageSizeId kPapers[] = {QPageSize::A4, QPageSize::Letter, QPageSize::A5};
constexpr QPageLayout::Orientation kOrientations[] = {QPageLayout::Portrait,
                                                      QPageLayout::Landscape};

static_assert(std::size(kFormulas) * std::size(kOrders) * std::size(kPapers)
                  * std::size(kOrientations)
              == ReportBatch::kMostReports);

ChartReportOptions chosen(DifferenceFormula formula, PairOrder order, QPageSize::PageSizeId paper,
                          QPageLayout::Orientation orientation)
{
    ChartReportOptions options;
    options.formula = formula;
    options.order = order;
    options.paper = paper;
    options.orientation = orientation;
    return options;
}

} // namespace

ReportBatch::ReportBatch(int reports)
{
    for (const DifferenceFormula formula : kFormulas) {
        for (const PairOrder order : kOrders) {
            for (const QPageSize::PageSizeId paper : kPapers) {
                for (const QPageLayout::Orientation orientation : kOrientations) {
                    choices.append(chosen(formula, order, paper, orientation));
                }
            }
        }
    }
    choices.resize(std::clamp(reports, 1, kMostReports));
}

bool ReportBatch::run(ObservedProgress *progress, TXError *error)
{
    const QPointer<ObservedProgress> whole(progress);
    bool isGood = true;
    for (int i = 0; i < count() && isGood && !wasCancelled; ++i) {
        isGood = write(i, whole, error);
    }
    if (whole) {
        // What was left out would leave the bar standing.
        whole->onProgressionUpdated({}, kDonePercent);
    }
    return isGood && !wasCancelled;
}

void ReportBatch::cancel()
{
    wasCancelled = true;
    if (running) {
        running->document().cancel();
    }
}

bool ReportBatch::write(int index, ObservedProgress *progress, TXError *error)
{
    ChartReport report(choices.at(index));
    const QString number =
        QStringLiteral("%1").arg(index + 1, kNumberDigits, kDecimalBase, QLatin1Char('0'));
    const QString file = temporary.filePath(QStringLiteral("colour-comparison-%1.pdf").arg(number));
    PartProgress part(progress, index, count());
    running = &report;
    const bool isWritten = report.document().writePdf(file, &part, error);
    running = nullptr;
    if (isWritten) {
        ++fileCount;
        pageCount += report.document().pageCount();
        byteCount += QFileInfo(file).size();
    }
    return isWritten;
}
