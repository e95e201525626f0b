#include "RatioReporter.h"

namespace {

constexpr char kBytesPerRowCounter[] = "bytes_per_row";

double secondsOf(const benchmark::BenchmarkReporter::Run &run)
{
    const bool isReal = !run.run_name.time_type.empty();
    const double time = isReal ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    return time / benchmark::GetTimeUnitMultiplier(run.time_unit);
}

} // namespace

void reportBytesPerRow(benchmark::State &state, qint64 bytes, qint64 rows)
{
    if (rows > 0) {
        state.counters[kBytesPerRowCounter] = double(bytes) / double(rows);
    }
}

RatioReporter::RatioReporter(bool isColoured)
    : benchmark::ConsoleReporter(isColoured ? OO_ColorTabular : OO_Tabular)
{ }

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    benchmark::ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        if (run.error_occurred) {
            isFailed = true;
        } else {
            collect(run);
        }
    }
}

void RatioReporter::collect(const Run &run)
{
    // With --benchmark_report_aggregates_only there is nothing else; beside the single runs the
    // median changes nothing.
    if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median") {
        return;
    }
    const QString name = QString::fromStdString(run.run_name.str());
    const auto bytes = run.counters.find(kBytesPerRowCounter);
    if (bytes != run.counters.end()) {
        ratios.add(name, RatioTable::Measure::BytesPerRow, bytes->second.value);
    } else {
        ratios.add(name, RatioTable::Measure::Seconds, secondsOf(run));
    }
}

const RatioTable &RatioReporter::table() const
{
    return ratios;
}

bool RatioReporter::hasFailed() const
{
    return isFailed;
}
