#pragma once

#include "ChartReportOptions.h"

#include <QList>
#include <QTemporaryDir>

class ChartReport;
class ObservedProgress;
class TXError;

/// Exports the chart report as PDF in several kinds, each of another formula, order, paper or
/// orientation, into a folder of its own that goes with it. GUI thread, since the report stands on
/// scenes.
class ReportBatch
{
public:
    /// How many kinds there are.
    static constexpr int kMostReports = 36;

    /// Is to write the first so many kinds; at least one and at most all.
    explicit ReportBatch(int reports = kMostReports);

    /// How many reports there are to write.
    [[nodiscard]] int count() const { return int(choices.size()); }

    /// Writes them all, once. Comes back when it is done, has failed or was cancelled; true when
    /// all are there. Events are handled meanwhile, in which this object must not be destroyed, but
    /// the progress may be. The progress ends with 100 in any case.
    [[nodiscard]] bool run(ObservedProgress *progress, TXError *error);

    /// Ends a running export at the next page.
    void cancel();

    [[nodiscard]] bool isCancelled() const { return wasCancelled; }

    /// What was written so far: files, their pages, their bytes; and where.
    [[nodiscard]] int files() const { return fileCount; }
    [[nodiscard]] int pages() const { return pageCount; }
    [[nodiscard]] qint64 bytes() const { return byteCount; }
    [[nodiscard]] QString folder() const { return temporary.path(); }

private:
    [[nodiscard]] bool write(int index, ObservedProgress *progress, TXError *error);

    QTemporaryDir temporary;
    QList<ChartReportOptions> choices;
    /// Null between two reports.
    ChartReport *running = nullptr;
    bool wasCancelled = false;
    int fileCount = 0;
    int pageCount = 0;
    qint64 byteCount = 0;
};
