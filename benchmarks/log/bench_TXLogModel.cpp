#include "AllocationMeter.h"
#include "LogEntries.h"
#include "RatioReporter.h"
#include "TXLogModel.h"

#include <QElapsedTimer>
#include <QStandardItemModel>
#include <QTreeWidget>

#include <memory>

// What it costs to bring a log entry in front of a view, beside the models that one would take
// otherwise. The entries of the log are there anyway, so ours is timed with ready items; the peer
// both with its own items ready and with the making of them, which comes on top of the log.

namespace {

constexpr int kSubItems = 3;
constexpr int kChunk = 100; // entries made at a time, outside the timing, so that they are warm

/// A row of the three columns of the log.
QList<QStandardItem *> makeRow(int number)
{
    auto *dateItem = std::make_unique<QStandardItem>().release();
    dateItem->setData(LogEntries::date(number), Qt::DisplayRole);
    auto *levelItem = std::make_unique<QStandardItem>().release();
    levelItem->setData(1 + number % 3, Qt::DisplayRole);
    return {dateItem,
            std::make_unique<QStandardItem>(QStringLiteral("Profile %1 was read").arg(number))
                .release(),
            levelItem};
}

struct OurLog
{
    QSharedPointer<TXLogManager> manager = QSharedPointer<TXLogManager>::create();
    TXLogModel model{manager};

    void append(const LogEntries::Item &item, TXLogItem *parent = nullptr) const
    {
        (parent ? parent : manager->rootItem().data())->addChild(item);
        emit manager->rootItem()->itemAppended(item);
    }
};

void appendOurs(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto step : state) {
        OurLog log;
        qint64 nanoseconds = 0;
        for (int first = 0; first < count; first += kChunk) {
            const auto items = LogEntries::makeMany(first, kChunk, kSubItems);
            QElapsedTimer timer;
            timer.start();
            for (const auto &item : items) {
                log.append(item);
            }
            nanoseconds += timer.nsecsElapsed();
        }
        state.SetIterationTime(double(nanoseconds) / 1e9);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

struct PeerEntry
{
    QList<QStandardItem *> row;
    QList<QList<QStandardItem *>> below;
};

PeerEntry makePeerEntry(int number)
{
    PeerEntry entry{makeRow(number), {}};
    for (int i = 0; i < kSubItems; ++i) {
        entry.below.append(makeRow(i));
    }
    return entry;
}

void appendPeer(QStandardItemModel &model, const PeerEntry &entry)
{
    model.appendRow(entry.row);
    for (const auto &row : entry.below) {
        entry.row.first()->appendRow(row);
    }
}

void appendPeerReady(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto step : state) {
        QStandardItemModel model;
        qint64 nanoseconds = 0;
        for (int first = 0; first < count; first += kChunk) {
            QList<PeerEntry> entries;
            for (int i = 0; i < kChunk; ++i) {
                entries.append(makePeerEntry(first + i));
            }
            QElapsedTimer timer;
            timer.start();
            for (const PeerEntry &entry : qAsConst(entries)) {
                appendPeer(model, entry);
            }
            nanoseconds += timer.nsecsElapsed();
        }
        state.SetIterationTime(double(nanoseconds) / 1e9);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void appendPeerMade(benchmark::State &state)
{
    const int count = int(state.range(0));
    for (auto step : state) {
        QStandardItemModel model;
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < count; ++i) {
            appendPeer(model, makePeerEntry(i));
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void appendBelowLastOurs(benchmark::State &state)
{
    OurLog log;
    for (int i = 0; i < state.range(0); ++i) {
        log.append(LogEntries::make(i, 0));
    }
    TXLogItem *last = log.manager->rootItem()->children.last().data();
    for (auto step : state) {
        log.append(LogEntries::make(0, 0), last);
    }
}

void appendBelowLastPeer(benchmark::State &state)
{
    QStandardItemModel model;
    for (int i = 0; i < state.range(0); ++i) {
        model.appendRow(makeRow(i));
    }
    QStandardItem *last = model.item(model.rowCount() - 1);
    for (auto step : state) {
        last->appendRow(makeRow(0));
    }
}

void parentOurs(benchmark::State &state)
{
    OurLog log;
    for (int i = 0; i < state.range(0); ++i) {
        log.append(LogEntries::make(i, 1));
    }
    const QAbstractItemModel &model = log.model;
    const QModelIndex child = model.index(0, 0, model.index(model.rowCount() - 1, 0));
    for (auto step : state) {
        benchmark::DoNotOptimize(model.parent(child));
    }
}

void parentPeer(benchmark::State &state)
{
    QStandardItemModel model;
    for (int i = 0; i < state.range(0); ++i) {
        const auto row = makeRow(i);
        row.first()->appendRow(makeRow(0));
        model.appendRow(row);
    }
    const QModelIndex child = model.index(0, 0, model.index(model.rowCount() - 1, 0));
    for (auto step : state) {
        benchmark::DoNotOptimize(model.parent(child));
    }
}

void memoryOurs(benchmark::State &state)
{
    qint64 bytes = 0;
    for (auto step : state) {
        const AllocationMeter meter;
        OurLog log;
        for (int i = 0; i < state.range(0); ++i) {
            log.append(LogEntries::make(i, 0));
        }
        bytes = meter.bytes();
    }
    reportBytesPerRow(state, bytes, state.range(0));
}

void memoryPeer(benchmark::State &state)
{
    qint64 bytes = 0;
    for (auto step : state) {
        const AllocationMeter meter;
        QTreeWidget tree;
        tree.setColumnCount(3);
        for (int i = 0; i < state.range(0); ++i) {
            auto item = std::make_unique<QTreeWidgetItem>();
            item->setData(0, Qt::DisplayRole, LogEntries::date(i));
            item->setText(1, QStringLiteral("Profile %1 was read").arg(i));
            item->setData(2, Qt::DisplayRole, 1 + i % 3);
            tree.addTopLevelItem(item.release());
        }
        bytes = meter.bytes();
    }
    reportBytesPerRow(state, bytes, state.range(0));
}

} // namespace

BENCHMARK(appendOurs)
    ->Name("Append/ours")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->UseManualTime();
BENCHMARK(appendPeerReady)
    ->Name("Append/QStandardItemModel, items ready")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->UseManualTime();
BENCHMARK(appendPeerMade)
    ->Name("Append/QStandardItemModel, items made")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->UseManualTime();

BENCHMARK(appendBelowLastOurs)->Name("AppendBelowLast/ours")->Arg(100)->Arg(100000);
BENCHMARK(appendBelowLastPeer)->Name("AppendBelowLast/QStandardItemModel")->Arg(100)->Arg(100000);

BENCHMARK(parentOurs)->Name("Parent/ours")->Arg(100)->Arg(100000);
BENCHMARK(parentPeer)->Name("Parent/QStandardItemModel")->Arg(100)->Arg(100000);

BENCHMARK(memoryOurs)->Name("Memory/ours")->Arg(1000000)->Iterations(1);
BENCHMARK(memoryPeer)->Name("Memory/QTreeWidget")->Arg(1000000)->Iterations(1);
