#include "AllocationMeter.h"
#include "RatioReporter.h"
#include "TXLogItem.h"

#include <QStandardItem>

#include <memory>

// What one row of a log costs without a model or a view: ours is one item with a date, a level and
// a text, the peer's a row of three items, as a log in three columns is built with it.

namespace {

std::unique_ptr<TXLogItem> makeOurs(int rows)
{
    auto root = std::make_unique<TXLogItem>();
    const QDateTime date = QDateTime::currentDateTimeUtc();
    for (int row = 0; row < rows; ++row) {
        root->addChild(TXLogItem::create(TXLogItem::Warning, "Something happened", date));
    }
    return root;
}

std::unique_ptr<QStandardItem> makeTheirs(int rows)
{
    auto root = std::make_unique<QStandardItem>();
    const QString date = QDateTime::currentDateTimeUtc().toString();
    const QString level = QStringLiteral("Warning");
    for (int row = 0; row < rows; ++row) {
        root->appendRow({new QStandardItem(date), new QStandardItem(level),
                         new QStandardItem(QStringLiteral("Something happened"))});
    }
    return root;
}

template<class Make>
void build(benchmark::State &state, Make make)
{
    const int rows = int(state.range(0));
    for (auto step : state) {
        auto root = make(rows);
        benchmark::DoNotOptimize(root);
    }
    state.SetItemsProcessed(state.iterations() * rows);
}

template<class Make>
void measureMemory(benchmark::State &state, Make make)
{
    const int rows = int(state.range(0));
    qint64 bytes = 0;
    for (auto step : state) {
        const AllocationMeter meter;
        auto root = make(rows);
        bytes = meter.bytes();
    }
    reportBytesPerRow(state, bytes, rows);
}

} // namespace

BENCHMARK_CAPTURE(build, ours, makeOurs)->Name("Build/ours")->Arg(1000)->Arg(100000);
BENCHMARK_CAPTURE(build, theirs, makeTheirs)->Name("Build/QStandardItem")->Arg(1000)->Arg(100000);
BENCHMARK_CAPTURE(measureMemory, ours, makeOurs)->Name("Memory/ours")->Arg(100000);
BENCHMARK_CAPTURE(measureMemory, theirs, makeTheirs)->Name("Memory/QStandardItem")->Arg(100000);
