#include "TXTable.h"
#include "TextSizeCache.h"

#include <QElapsedTimer>
#include <QFont>
#include <QFontMetricsF>
#include <QMap>

#include <benchmark/benchmark.h>

// What it costs to fit the columns of a report to their texts, beside measuring each cell anew, and
// to cut it into pages, beside a plain loop over the rows. Of ten texts four are distinct.

namespace {

constexpr int kColumns = 8;
constexpr float kPageHeightPoints = 700.0F;

using Row = QList<TXTableCell>;
using Rows = QList<Row>;

QFont reportFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    return font;
}

/// Rows with texts that no call before has had.
Rows makeRows(int count)
{
    static int made = 0;
    ++made;
    const int distinct = qMax(1, count * kColumns * 4 / 10);
    int number = 0;
    Rows rows(count);
    for (Row &row : rows) {
        row.reserve(kColumns);
        for (int column = 0; column < kColumns; ++column) {
            const QString text = QStringLiteral("%1.%2").arg(made).arg(number++ % distinct);
            TXTableCell cell({{"CellElement", text}, {"CellSize", QSizeF(30.0, 20.0)}});
            cell.realColumn = column;
            row.append(cell);
        }
    }
    return rows;
}

TXTable makeTable(int rows)
{
    TXTable table(kColumns, false);
    table.setTableCellList(makeRows(rows));
    return table;
}

struct OurOptimizing
{
    explicit OurOptimizing(int rows)
        : table(makeTable(rows))
    { }

    void run() { table.optimizeTableSize(font); }

    QFont font = reportFont();
    TXTable table;
};

/// The same two passes, with each text measured when its cell is come by.
template<class Meter>
struct PeerOptimizing
{
    explicit PeerOptimizing(int count)
        : rows(makeRows(count))
    { }

    void run()
    {
        const QMap<int, float> widths = widest();
        for (Row &row : rows) {
            for (TXTableCell &cell : row) {
                cell.size.setWidth(widths.value(cell.realColumn) / float(cell.nbMergedCell));
            }
        }
    }

    [[nodiscard]] QMap<int, float> widest() const
    {
        const Meter meter;
        QMap<int, float> widths;
        for (const Row &row : rows) {
            for (const TXTableCell &cell : row) {
                const QString text = QStringLiteral("  %1  ").arg(cell.element.toString());
                float &width = widths[cell.realColumn];
                width =
                    qMax(width, qMax(float(cell.size.width()), float(meter.size(text).width())));
            }
        }
        return widths;
    }

    Rows rows;
};

/// Takes the font's metrics for each text.
struct MetricsForEachText
{
    [[nodiscard]] QSizeF size(const QString &text) const
    {
        return QFontMetricsF(font).size(Qt::TextShowMnemonic, text);
    }

    QFont font = reportFont();
};

/// Takes the font's metrics once.
struct MetricsForAllTexts
{
    [[nodiscard]] QSizeF size(const QString &text) const
    {
        return metrics.size(Qt::TextShowMnemonic, text);
    }

    QFontMetricsF metrics{reportFont()};
};

template<class Optimizing>
void firstRun(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto step : state) {
        Optimizing optimizing(rows);
        // As in a program that has measured nothing yet.
        TextSizeCache::forget();
        QElapsedTimer timer;
        timer.start();
        optimizing.run();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
}

template<class Optimizing>
void secondRun(benchmark::State &state)
{
    const int rows = int(state.range(0));
    Optimizing optimizing(rows);
    optimizing.run();
    for (auto step : state) {
        optimizing.run();
    }
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
}

void pagingOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = makeTable(rows);
    for (auto step : state) {
        for (int first = 0; first < rows;) {
            const int repeated = first > 0 ? table.getNbHeaderRows() : 0;
            const int last =
                first + table.getNbRowDrawableOnHeight(kPageHeightPoints, first) - repeated;
            benchmark::DoNotOptimize(TXTable::copyPartOfTable(table, first, last));
            first = last;
        }
    }
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
}

struct PlainPage
{
    Rows rows;
    qsizetype nextRow = 0;
};

/// As one would write it without a table: row after row while there is room, the header first.
PlainPage plainPage(const Rows &rows, qsizetype first)
{
    PlainPage page;
    float height = 0.0F;
    if (first > 0) {
        page.rows.append(rows.first());
        height += float(rows.first().first().size.height());
    }
    for (page.nextRow = first; page.nextRow < rows.size(); ++page.nextRow) {
        const Row &row = rows.at(page.nextRow);
        height += float(row.first().size.height());
        if (height >= kPageHeightPoints) {
            break;
        }
        page.rows.append(row);
    }
    return page;
}

void pagingPlain(benchmark::State &state)
{
    const Rows rows = makeRows(int(state.range(0)));
    for (auto step : state) {
        for (qsizetype first = 0; first < rows.size();) {
            const PlainPage page = plainPage(rows, first);
            benchmark::DoNotOptimize(page.rows.constData());
            first = page.nextRow;
        }
    }
    state.SetItemsProcessed(state.iterations() * rows.size() * kColumns);
}

void reportSizes(benchmark::internal::Benchmark *family)
{
    family->RangeMultiplier(10)->Range(100, 10000);
}

} // namespace

BENCHMARK(firstRun<OurOptimizing>)->Name("OptimizeFirst/ours")->Apply(reportSizes)->UseManualTime();
BENCHMARK(firstRun<PeerOptimizing<MetricsForEachText>>)
    ->Name("OptimizeFirst/QFontMetricsF for each cell")
    ->Apply(reportSizes)
    ->UseManualTime();
BENCHMARK(firstRun<PeerOptimizing<MetricsForAllTexts>>)
    ->Name("OptimizeFirst/one QFontMetricsF")
    ->Apply(reportSizes)
    ->UseManualTime();

BENCHMARK(secondRun<OurOptimizing>)->Name("OptimizeSecond/ours")->Apply(reportSizes);
BENCHMARK(secondRun<PeerOptimizing<MetricsForEachText>>)
    ->Name("OptimizeSecond/QFontMetricsF for each cell")
    ->Apply(reportSizes);
BENCHMARK(secondRun<PeerOptimizing<MetricsForAllTexts>>)
    ->Name("OptimizeSecond/one QFontMetricsF")
    ->Apply(reportSizes);

BENCHMARK(pagingOurs)->Name("Paging/ours")->Apply(reportSizes);
BENCHMARK(pagingPlain)->Name("Paging/plain loop")->Apply(reportSizes);
