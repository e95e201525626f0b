#include "LogEntries.h"
#include "RatioReporter.h"
#include "TXLogManager.h"

#include <QCoreApplication>

#include <thread>
#include <vector>

// Four threads write at once; timed until the last entry has been linked and announced on the
// receiving thread. The peer is what one would write first: a queued signal for each entry.

namespace {

constexpr int kThreads = 4;
constexpr int kEntries = 25000; // a thread

/// Links what arrives, as the manager does, entry by entry.
class QueuedLog : public QObject
{
    Q_OBJECT

public:
    explicit QueuedLog()
    {
        connect(this, &QueuedLog::arrived, this, &QueuedLog::link, Qt::QueuedConnection);
    }

    QSharedPointer<TXLogItem> root = QSharedPointer<TXLogItem>::create();

signals:
    void arrived(QSharedPointer<TXLogItem>);

private:
    void link(const QSharedPointer<TXLogItem> &item) const
    {
        root->addChild(item);
        emit root->itemAppended(item);
    }
};

/// Runs a function for each of the numbers 0 to kEntries - 1 on kThreads threads, and this thread's
/// event loop until `root` holds all that they wrote.
template<class Write>
void writeAndReceive(const TXLogItem &root, Write write)
{
    std::vector<std::thread> writers;
    writers.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        writers.emplace_back([thread, &write] {
            for (int i = 0; i < kEntries; ++i) {
                write(thread, i);
            }
        });
    }
    while (root.children.size() < qsizetype(kThreads) * kEntries) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    for (std::thread &writer : writers) {
        writer.join();
    }
}

QList<QList<LogEntries::Item>> makeForAllThreads()
{
    QList<QList<LogEntries::Item>> items;
    for (int thread = 0; thread < kThreads; ++thread) {
        items.append(LogEntries::makeMany(0, kEntries, 0));
    }
    return items;
}

void handOverOurs(benchmark::State &state)
{
    for (auto step : state) {
        state.PauseTiming();
        auto manager = std::make_unique<TXLogManager>();
        auto items = makeForAllThreads();
        state.ResumeTiming();
        writeAndReceive(*manager->rootItem(),
                        [&](int thread, int i) { manager->append(items.at(thread).at(i)); });
        state.PauseTiming();
        manager.reset();
        items.clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kThreads * kEntries);
}

void handOverPeer(benchmark::State &state)
{
    for (auto step : state) {
        state.PauseTiming();
        auto log = std::make_unique<QueuedLog>();
        auto items = makeForAllThreads();
        state.ResumeTiming();
        writeAndReceive(*log->root,
                        [&](int thread, int i) { emit log->arrived(items.at(thread).at(i)); });
        state.PauseTiming();
        log.reset();
        items.clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kThreads * kEntries);
}

void writeOurs(benchmark::State &state)
{
    const TXStringI18n message = TXStringI18n::fromString(QStringLiteral("Profile was read"));
    for (auto step : state) {
        TXLogManager manager;
        writeAndReceive(*manager.rootItem(), [&](int, int) { manager.append(1, message); });
    }
    state.SetItemsProcessed(state.iterations() * kThreads * kEntries);
}

void writePeer(benchmark::State &state)
{
    const TXStringI18n message = TXStringI18n::fromString(QStringLiteral("Profile was read"));
    for (auto step : state) {
        QueuedLog log;
        writeAndReceive(*log.root,
                        [&](int, int) { emit log.arrived(TXLogItem::create(1, message)); });
    }
    state.SetItemsProcessed(state.iterations() * kThreads * kEntries);
}

} // namespace

BENCHMARK(handOverOurs)->Name("HandOver/ours")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(handOverPeer)
    ->Name("HandOver/queued signal")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(writeOurs)->Name("Write/ours")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writePeer)->Name("Write/queued signal")->UseRealTime()->Unit(benchmark::kMillisecond);

#include "bench_TXLogManager.moc"
