#include "ProgressBarCompletionDelegate.h"
#include "TXProgressBar.h"

#include <benchmark/benchmark.h>

#include <QMutex>
#include <QMutexLocker>
#include <QRecursiveMutex>

#include <mutex>
#include <utility>

// What a report costs a worker, with one worker and with eight that share a delegate: beside a bare
// mutex around a store, for the kind of mutex that the delegate has, and for the one of the
// standard library. The path is a worker's own, as workers have it.

namespace {

constexpr int kOne = 1;
constexpr int kEight = 8;

struct Ours
{
    void store(float value) { delegate.onProgressionUpdated({}, value); }
    void store(const QList<QString> &path, float value)
    {
        delegate.onProgressionUpdated(path, value);
    }
    void store(const TXStringI18n &text) { delegate.onMessageUpdated({}, text); }

    TXProgressBar bar;
    ProgressBarCompletionDelegate delegate{&bar};
};

template<class Mutex>
struct Bare
{
    void store(float value)
    {
        const std::lock_guard lock(mutex);
        progress = value;
    }
    void store(const QList<QString> &path, float value)
    {
        QList<QString> copy = path;
        benchmark::DoNotOptimize(copy);
        store(value);
    }
    void store(const TXStringI18n &text)
    {
        const std::lock_guard lock(mutex);
        message = text;
    }

    Mutex mutex;
    float progress = 0.0F;
    TXStringI18n message;
};

/// One for all workers of all benchmarks of a kind.
template<class Store>
Store &shared()
{
    static auto *const store = new Store; // goes with the process, and after the application
    return *store;
}

template<class Store>
void reportProgress(benchmark::State &state)
{
    auto &store = shared<Store>();
    float value = 0.0F;
    for (auto step : state) {
        store.store(value);
        value = value < 99.0F ? value + 1.0F : 0.0F;
    }
}

template<class Store>
void reportWithPath(benchmark::State &state)
{
    auto &store = shared<Store>();
    const QList<QString> path = {QStringLiteral("measurement"), QString::number(1)};
    float value = 0.0F;
    for (auto step : state) {
        store.store(path, value);
        value = value < 99.0F ? value + 1.0F : 0.0F;
    }
}

template<class Store>
void reportMessage(benchmark::State &state)
{
    auto &store = shared<Store>();
    for (auto step : state) {
        store.store(TXStringI18n("Worker", "Reading %1", "", -1));
    }
}

void addWorkers(benchmark::internal::Benchmark *family)
{
    // Who waits for a lock uses no processor.
    family->Threads(kOne)->Threads(kEight)->UseRealTime();
}

} // namespace

BENCHMARK(reportProgress<Ours>)->Name("Report/ours")->Apply(addWorkers);
BENCHMARK(reportProgress<Bare<QRecursiveMutex>>)->Name("Report/QRecursiveMutex")->Apply(addWorkers);
BENCHMARK(reportProgress<Bare<std::mutex>>)->Name("Report/std::mutex")->Apply(addWorkers);

BENCHMARK(reportWithPath<Ours>)->Name("ReportWithPath/ours")->Apply(addWorkers);
BENCHMARK(reportWithPath<Bare<QRecursiveMutex>>)
    ->Name("ReportWithPath/QRecursiveMutex")
    ->Apply(addWorkers);
BENCHMARK(reportWithPath<Bare<std::mutex>>)->Name("ReportWithPath/std::mutex")->Apply(addWorkers);

BENCHMARK(reportMessage<Ours>)->Name("Message/ours")->Apply(addWorkers);
BENCHMARK(reportMessage<Bare<QRecursiveMutex>>)->Name("Message/QRecursiveMutex")->Apply(addWorkers);
BENCHMARK(reportMessage<Bare<std::mutex>>)->Name("Message/std::mutex")->Apply(addWorkers);
