#include "PeakMeter.h"
#include "RatioReporter.h"
#include "ReportOfABenchmark.h"
#include "ReportTablePainter.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"
#include "TextSizeCache.h"

#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <benchmark/benchmark.h>

// What a report costs on its way to PDF, beside what else one would write for it: a loop that
// paints each cell with the same lines, fills and texts and knows nothing of tables, and Qt's text
// document. All have the same texts of which four in ten are distinct, the same paper, the same
// resolution and the heading repeated on each page. The loop has the same rows on a page as our
// report, whose footer comes on top; the text document lays out its rows and numbers its pages
// itself. A report is mostly written once, so that our memory of texts is empty each time.

using ReportOfABenchmark::contentSize;
using ReportOfABenchmark::Folder;
using ReportOfABenchmark::forgetTexts;
using ReportOfABenchmark::kColumns;
using ReportOfABenchmark::kColumnWidth;
using ReportOfABenchmark::kRowHeight;
using ReportOfABenchmark::reportFont;
using ReportOfABenchmark::reportTexts;
using ReportOfABenchmark::setUp;
using ReportOfABenchmark::tableWith;
using ReportOfABenchmark::titles;
using ReportOfABenchmark::usePoints;

namespace {

constexpr double kFrame = 5.0;
constexpr QPointF kTableCorner(kFrame, kFrame);

TXTable reportTable(int rows)
{
    return tableWith(reportTexts(rows), kColumnWidth, false);
}

/// Without the heading.
int rowsOnPage()
{
    return int((contentSize().height() - 2 * kFrame) / kRowHeight) - 1;
}

int pagesFor(int rows)
{
    return (rows + rowsOnPage() - 1) / rowsOnPage();
}

/// With the header, which is the first row.
TXTable partOnPage(const TXTable &table, int page, int rowsOnPage)
{
    const int first = 1 + page * rowsOnPage;
    return TXTable::copyPartOfTable(table, first, first + rowsOnPage);
}

void count(benchmark::State &state, const Folder &folder, int rows)
{
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
}

// --- the contestants ---

/// False, and the benchmark fails, when the report is not written or not on as many pages.
bool writeTable(benchmark::State &state, const TXTable &table, int pages, const Folder &folder)
{
    TXReportDocument report;
    report.addTable(table, reportFont());
    if (!report.writePdf(folder.file()) || report.pageCount() != pages) {
        state.SkipWithError("the report was not written on as many pages as the peer's");
        return false;
    }
    return true;
}

void tableOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = reportTable(rows);
    const Folder folder;
    for (auto step : state) {
        forgetTexts(state);
        if (!writeTable(state, table, pagesFor(rows), folder)) {
            return;
        }
    }
    count(state, folder, rows);
}

void tableFromTextsOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QList<QStringList> texts = reportTexts(rows);
    const Folder folder;
    for (auto step : state) {
        forgetTexts(state);
        const TXTable table = tableWith(texts, kColumnWidth, false);
        if (!writeTable(state, table, pagesFor(rows), folder)) {
            return;
        }
    }
    count(state, folder, rows);
}

/// Paints one row of texts; the header is bold white on black.
void paintBareRow(QPainter &painter, double y, const QStringList &texts, const QFont &font,
                  bool isHeader)
{
    painter.setPen(isHeader ? QPen(Qt::darkGray, 0.35) : QPen(Qt::black, 0.5));
    painter.setBrush(isHeader ? Qt::black : Qt::white);
    painter.setFont(font);
    for (int column = 0; column < texts.size(); ++column) {
        const QRectF rect(kFrame + column * kColumnWidth, y, kColumnWidth, kRowHeight);
        painter.drawRect(rect);
        if (isHeader) {
            painter.setPen(Qt::white);
        }
        painter.drawText(rect, Qt::AlignCenter, texts.at(column));
        if (isHeader) {
            painter.setPen(QPen(Qt::darkGray, 0.35));
        }
    }
}

void paintBare(const QString &fileName, const QList<QStringList> &rows)
{
    QPdfWriter writer(fileName);
    setUp(writer);
    QPainter painter(&writer);
    usePoints(painter);
    const int onPage = rowsOnPage();
    const QFont plain = reportFont();
    QFont bold = plain;
    bold.setBold(true);
    QStringList heading;
    for (const QVariant &title : titles()) {
        heading.append(title.toString());
    }
    double y = 0.0;
    for (int row = 0; row < rows.size(); ++row) {
        if (row % onPage == 0) {
            if (row > 0) {
                writer.newPage();
            }
            y = kFrame;
            paintBareRow(painter, y, heading, bold, true);
        }
        y += kRowHeight;
        paintBareRow(painter, y, rows.at(row), plain, false);
    }
}

void tableBareLoop(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QList<QStringList> texts = reportTexts(rows);
    const Folder folder;
    for (auto step : state) {
        paintBare(folder.file(), texts);
    }
    count(state, folder, rows);
}

/// Our table without the report around it.
void tablePainter(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = reportTable(rows);
    const Folder folder;
    const int onPage = rowsOnPage();
    const int pages = pagesFor(rows);
    for (auto step : state) {
        forgetTexts(state);
        QPdfWriter writer(folder.file());
        setUp(writer);
        QPainter painter(&writer);
        usePoints(painter);
        ReportTablePainter tables;
        for (int page = 0; page < pages; ++page) {
            if (page > 0) {
                writer.newPage();
            }
            tables.paintTable(&painter, partOnPage(table, page, onPage), kTableCorner,
                              reportFont());
        }
    }
    count(state, folder, rows);
}

void fillTextTable(QTextDocument &document, const QList<QStringList> &texts)
{
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    QTextTableFormat format;
    format.setHeaderRowCount(1);
    const QList<QVariant> heading = titles();
    QTextTable *table = cursor.insertTable(int(texts.size()) + 1, kColumns, format);
    for (int column = 0; column < kColumns; ++column) {
        table->cellAt(0, column).firstCursorPosition().insertText(heading.at(column).toString());
    }
    for (int row = 0; row < texts.size(); ++row) {
        for (int column = 0; column < kColumns; ++column) {
            table->cellAt(row + 1, column)
                .firstCursorPosition()
                .insertText(texts.at(row).at(column));
        }
    }
    cursor.endEditBlock();
}

void tableFromTextsTextDocument(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QList<QStringList> texts = reportTexts(rows);
    const Folder folder;
    for (auto step : state) {
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        document.setDefaultFont(reportFont());
        fillTextTable(document, texts);
        QPdfWriter writer(folder.file());
        setUp(writer);
        document.print(&writer);
    }
    count(state, folder, rows);
}

void pagesOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = reportTable(rows);
    const Folder folder;
    const int onPage = rowsOnPage();
    for (auto step : state) {
        forgetTexts(state);
        TXReportDocument report;
        report.addPages(pagesFor(rows), [&](TXGraphicsScene *scene, int page) {
            scene->drawTable(partOnPage(table, page, onPage), kTableCorner, reportFont());
        });
        if (!report.writePdf(folder.file())) {
            state.SkipWithError("the report was not written");
            return;
        }
    }
    count(state, folder, rows);
}

/// The peak of the work, all in one "row", when all has been loaded that is loaded once.
template<class Work>
void measurePeak(benchmark::State &state, const Work &work)
{
    qint64 bytes = 0;
    work();
    for (auto step : state) {
        TextSizeCache::forget();
        const PeakMeter meter;
        if (!meter.isValid()) {
            state.SkipWithError("the peak of the memory can't be measured here");
            return;
        }
        work();
        bytes = meter.bytes();
    }
    reportBytesPerRow(state, bytes, 1);
}

/// What writing takes on top of the table, the memory of its texts included.
void memoryOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = reportTable(rows);
    const Folder folder;
    measurePeak(state, [&] { writeTable(state, table, pagesFor(rows), folder); });
}

/// One page alone of the same table, as items.
void memoryPageOfItems(benchmark::State &state)
{
    const TXTable table = reportTable(rowsOnPage());
    const Folder folder;
    measurePeak(state, [&] {
        TXGraphicsScene scene;
        scene.drawTable(table, kTableCorner, reportFont());
        QPdfWriter writer(folder.file());
        setUp(writer);
        QPainter painter(&writer);
        usePoints(painter);
        const QRectF page(QPointF(0, 0), contentSize());
        scene.render(&painter, page, page);
    });
}

void memoryBareLoop(benchmark::State &state)
{
    const QList<QStringList> texts = reportTexts(int(state.range(0)));
    const Folder folder;
    measurePeak(state, [&] { paintBare(folder.file(), texts); });
}

void reportSizes(benchmark::internal::Benchmark *family)
{
    family->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
}

void memorySizes(benchmark::internal::Benchmark *family)
{
    family->RangeMultiplier(10)->Range(100, 10000)->Iterations(1);
}

} // namespace

BENCHMARK(tableOurs)->Name("table/ours")->Apply(reportSizes);
BENCHMARK(tableBareLoop)->Name("table/bareLoop")->Apply(reportSizes);
BENCHMARK(tableFromTextsOurs)->Name("tableFromTexts/ours")->Apply(reportSizes);
BENCHMARK(tableFromTextsTextDocument)->Name("tableFromTexts/textDocument")->Apply(reportSizes);
BENCHMARK(tablePainter)->Name("painter/ours")->Apply(reportSizes);
BENCHMARK(tableBareLoop)->Name("painter/bareLoop")->Apply(reportSizes);
BENCHMARK(pagesOurs)->Name("pages/ours")->Apply(reportSizes);
BENCHMARK(tableBareLoop)->Name("pages/bareLoop")->Apply(reportSizes);

BENCHMARK(memoryOurs)->Name("memory/ours")->Apply(memorySizes);
BENCHMARK(memoryPageOfItems)->Name("memory/one page of items")->Apply(memorySizes);
BENCHMARK(memoryBareLoop)->Name("memory/bareLoop")->Apply(memorySizes);
