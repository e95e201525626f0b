#include "LogEntries.h"
#include "RatioReporter.h"
#include "TXLogFilterProxyModel.h"
#include "TXLogModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <memory>
#include <thread>
#include <vector>

// The tree of the log window as a user has it before him: shown, sorted by date with the newest
// entry on top, under the proxy of the window, under Qt's, and under none.

namespace {

class Window
{
public:
    explicit Window(std::unique_ptr<QSortFilterProxyModel> proxyModel)
        : proxy(std::move(proxyModel))
    {
        view.setWordWrap(true);
        view.setSortingEnabled(bool(proxy));
        if (proxy) {
            proxy->setSourceModel(&model);
            proxy->setFilterKeyColumn(TXLogModel::LevelColumn);
            view.setModel(proxy.get());
        } else {
            view.setModel(&model);
        }
        if (auto *ours = qobject_cast<TXLogFilterProxyModel *>(proxy.get())) {
            ours->setSelectionModel(view.selectionModel());
        }
        view.hideColumn(TXLogModel::LevelColumn);
        view.resize(476, 300);
        view.show();
        paint();
    }

    void fill(int entries, int subItems)
    {
        for (int i = 0; i < entries; ++i) {
            manager->append(LogEntries::make(i, subItems));
        }
        manager->flush();
        paint();
    }

    /// One more entry, with all that follows on the screen.
    void appendAndPaint(int number)
    {
        manager->append(LogEntries::make(number, 0));
        manager->flush();
        paint();
    }

    void filterAndPaint(const QString &pattern)
    {
        proxy->setFilterRegularExpression(pattern);
        paint();
    }

    void paint()
    {
        QCoreApplication::processEvents();
        view.viewport()->repaint();
    }

    QSharedPointer<TXLogManager> manager = QSharedPointer<TXLogManager>::create();

private:
    TXLogModel model{manager};
    std::unique_ptr<QSortFilterProxyModel> proxy;
    QTreeView view;
};

struct Ours
{
    static std::unique_ptr<QSortFilterProxyModel> make()
    {
        return std::make_unique<TXLogFilterProxyModel>();
    }
};

struct Plain
{
    static std::unique_ptr<QSortFilterProxyModel> make()
    {
        return std::make_unique<QSortFilterProxyModel>();
    }
};

struct None
{
    static std::unique_ptr<QSortFilterProxyModel> make() { return nullptr; }
};

/// The average of taking two thirds of the rows away and of bringing them back.
template<class Proxy>
void changeFilter(benchmark::State &state)
{
    Window window(Proxy::make());
    window.fill(int(state.range(0)), int(state.range(1)));
    bool isFiltered = false;
    for (auto step : state) {
        isFiltered = !isFiltered;
        window.filterAndPaint(isFiltered ? QStringLiteral("3") : QString());
    }
}

template<class Proxy>
void showLiveEntry(benchmark::State &state)
{
    Window window(Proxy::make());
    int number = int(state.range(0));
    window.fill(number, 0);
    for (auto step : state) {
        window.appendAndPaint(++number);
    }
}

/// The time of an iteration is that of the longest turn of the event loop while four threads write
/// entries with sub-items.
template<class Proxy>
void longestTurn(benchmark::State &state)
{
    constexpr int kThreads = 4;
    const int entries = int(state.range(0));
    for (auto step : state) {
        Window window(Proxy::make());
        std::vector<std::thread> writers;
        writers.reserve(kThreads);
        for (int thread = 0; thread < kThreads; ++thread) {
            writers.emplace_back([&window, entries] {
                for (int i = 0; i < entries / kThreads; ++i) {
                    window.manager->append(LogEntries::make(i, 3));
                }
            });
        }
        qint64 longest = 0;
        while (window.manager->rootItem()->children.size() < entries) {
            QElapsedTimer turn;
            turn.start();
            QCoreApplication::processEvents();
            longest = qMax(longest, turn.nsecsElapsed());
        }
        for (std::thread &writer : writers) {
            writer.join();
        }
        state.SetIterationTime(double(longest) / 1e9);
    }
}

} // namespace

BENCHMARK(changeFilter<Ours>)
    ->Name("ChangeFilter/ours")
    ->ArgNames({"entries", "subItems"})
    ->Args({10000, 0})
    ->Args({100000, 0})
    ->Args({1000000, 0})
    ->Args({100000, 3})
    ->Args({1000000, 3})
    ->Unit(benchmark::kMillisecond);
// Qt's own takes minutes for a change at 1,000,000 entries.
BENCHMARK(changeFilter<Plain>)
    ->Name("ChangeFilter/QSortFilterProxyModel")
    ->ArgNames({"entries", "subItems"})
    ->Args({10000, 0})
    ->Args({100000, 0})
    ->Unit(benchmark::kMillisecond);

BENCHMARK(showLiveEntry<Ours>)
    ->Name("LiveEntry/ours")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(showLiveEntry<None>)
    ->Name("LiveEntry/no proxy")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(showLiveEntry<Plain>)
    ->Name("LiveEntry/QSortFilterProxyModel")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

BENCHMARK(longestTurn<Ours>)
    ->Name("LongestTurn/ours")
    ->Arg(20000)
    ->UseManualTime()
    ->Iterations(2)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(longestTurn<Plain>)
    ->Name("LongestTurn/QSortFilterProxyModel")
    ->Arg(20000)
    ->UseManualTime()
    ->Iterations(2)
    ->Unit(benchmark::kMillisecond);
