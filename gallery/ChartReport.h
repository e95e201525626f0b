#pragma once

#include "ChartReportOptions.h"

#include "TXGraphicsScene.h"
#include "TXReportDocument.h"

#include <QCoreApplication>

/// The report on the chart of 24 patches: a cover, the patches one by one, and all pairs of
/// different patches.
///
/// Made at once, in the language of the moment; another choice takes another report. Thread: the
/// GUI thread, since the cover stands on a scene.
class ChartReport
{
    Q_DECLARE_TR_FUNCTIONS(ChartReport)
    Q_DISABLE_COPY_MOVE(ChartReport)

public:
    explicit ChartReport(const ChartReportOptions &options);

    /// The whole report. It lives as long as this object.
    [[nodiscard]] TXReportDocument &document() { return report; }

private:
    void setUpPaper(const ChartReportOptions &options);

    TXGraphicsScene cover;
    TXReportDocument report;
};
