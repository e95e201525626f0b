#pragma once

#include "RatioTable.h"

#include <benchmark/benchmark.h>

/// Gives a benchmark its memory by row, which then stands in the ratio table in place of its time:
/// build the rows in the timed loop, read an AllocationMeter while they live, and call this once,
/// after the loop. Without rows nothing is reported.
void reportBytesPerRow(benchmark::State &state, qint64 bytes, qint64 rows);

/// Prints what the console reporter of Google Benchmark prints, and collects for a RatioTable.
///
/// A run counts with the time that its benchmark measures by (CPU time, unless UseRealTime() or
/// UseManualTime() is set), or with its bytes a row instead when reportBytesPerRow() was called.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    /// Colours are for terminals only.
    explicit RatioReporter(bool isColoured);

    void ReportRuns(const std::vector<Run> &runs) override;

    /// What was collected so far.
    [[nodiscard]] const RatioTable &table() const;

    /// True when a benchmark ended with SkipWithError(); such a run is not collected.
    [[nodiscard]] bool hasFailed() const;

private:
    void collect(const Run &run);

    RatioTable ratios;
    bool isFailed = false;
};
