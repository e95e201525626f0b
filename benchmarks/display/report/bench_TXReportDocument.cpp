#include "PeakMeter.h"
#include "RatioReporter.h"
#include "ReportTablePainter.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"
#include "TextSizeCache.h"

#include <QFile>
#include <QFont>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <benchmark/benchmark.h>

#include <memory>

// What a report costs on its way to PDF, beside what else one would write for it: a loop that
// paints each cell with the same lines, fills and texts and knows nothing of tables, and Qt's text
// document. All have the same texts of which four in ten are distinct, the same paper, the same
// resolution and the heading repeated on each page. The loop has the same rows on a page as our
// report, whose footer comes on top; the text document lays out its rows and numbers its pages
// itself. A report is mostly written once, so that our memory of texts is empty each time.

namespace {

constexpr int kColumns = 8;
constexpr double kRowHeight = 15.0;
constexpr double kColumnWidth = 64.0;
constexpr double kFrame = 5.0;
constexpr QPointF kTableCorner(kFrame, kFrame);
/// That of our writer.
constexpr int kDotsPerInch = 300;
constexpr double kPointsPerInch = 72.0;

QFont reportFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(9);
    return font;
}

/// Four texts of ten are new, the others are among a few hundred that come again and again.
QString textAt(int row, int column)
{
    const quint32 mixed = quint32(row * kColumns + column) * 2654435761U;
    if (column == 0) {
        return QString::number(row + 1);
    }
    if (mixed % 100 < 31) {
        return QString::number(double(mixed >> 8) / 1e4, 'f', 3);
    }
    return column % 2 == 0 ? QStringLiteral("Patch %1").arg(mixed / 7 % 150)
                           : QString::number(double(mixed / 7 % 150) / 8.0, 'f', 2);
}

QList<QVariant> titles()
{
    return {"No.", "Patch", "L*", "a*", "b*", "Name", "Difference", "Verdict"};
}

QList<QStringList> reportTexts(int rows)
{
    QList<QStringList> texts;
    for (int row = 0; row < rows; ++row) {
        texts.append(QStringList());
        for (int column = 0; column < kColumns; ++column) {
            texts.last().append(textAt(row, column));
        }
    }
    return texts;
}

TXTable tableWith(const QList<QStringList> &texts, double columnWidth, bool hasShadow)
{
    TXTable table(kColumns, hasShadow);
    for (int column = 0; column < kColumns; ++column) {
        table.setColumnWidth(float(columnWidth), column);
    }
    TXTable::initHeaderOfTableWithTitles(table, titles(), false, float(kRowHeight));
    QHash<QString, QVariant> settings{{"CellSize", QSizeF(columnWidth, kRowHeight)}};
    for (const QStringList &row : texts) {
        for (const QString &text : row) {
            settings.insert("CellElement", text);
            table.addCell(settings);
        }
    }
    return table;
}

TXTable reportTable(int rows)
{
    return tableWith(reportTexts(rows), kColumnWidth, false);
}

/// A folder for the files, which all contestants write to alike.
class Folder
{
public:
    [[nodiscard]] QString file() const { return folder.filePath("report.pdf"); }
    [[nodiscard]] qint64 fileSize() const { return QFile(file()).size(); }

private:
    QTemporaryDir folder;
};

QPageLayout pageLayout()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36),
            QPageLayout::Point};
}

/// What our report has between its margins and above its footer.
QSizeF contentSize()
{
    return TXReportDocument().contentRect().size();
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

void setUp(QPdfWriter &writer)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout(pageLayout());
}

void usePoints(QPainter &painter)
{
    painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
}

/// Untimed: a report is written by a program that has measured none of its texts.
void forgetTexts(benchmark::State &state)
{
    state.PauseTiming();
    TextSizeCache::forget();
    state.ResumeTiming();
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

/// Tables that differ in width by 2 points each, so many that their pages throw more shadows than
/// are remembered.
QList<TXTable> shadowTables()
{
    constexpr int kTables = 40;
    constexpr int kRows = 30;
    constexpr double kNarrowest = 50.0;
    constexpr double kStep = 0.25;
    const QList<QStringList> texts = reportTexts(kRows);
    QList<TXTable> tables;
    for (int i = 0; i < kTables; ++i) {
        tables.append(tableWith(texts, kNarrowest + i * kStep, true));
    }
    return tables;
}

/// A page with several shadows: a framed table, a title box, a line, an ellipse. All change their
/// size with the table's, so that no shadow of another page is of use.
void drawShadowPage(TXGraphicsScene *scene, const TXTable &table)
{
    const QPen pen(Qt::black, 0.5);
    const auto width = double(table.tableWidth());
    const QRectF box(10, 10, width, 60);
    scene->drawRoundedRect(box, 8, 8, pen, QColor(230, 240, 255), true);
    scene->drawTextInRect("Comparison of two charts", box, TXAlignHorizontallyCentred,
                          TXAlignVerticallyCentred, reportFont(), Qt::black, QSizeF(2, 2));
    scene->drawTable(table, QPointF(10, 90), reportFont());
    scene->drawLine(QPointF(10, 700), QPointF(10 + width, 700), QPen(Qt::darkBlue, 2), true);
    scene->drawEllipse(QRectF(300, 580, width - 320, 80), pen, Qt::yellow, true);
}

/// The table of the next page.
const TXTable &nextOf(const QList<TXTable> &tables, qsizetype *drawn)
{
    return tables.at((*drawn)++ % tables.size());
}

void shadowPageOurs(benchmark::State &state)
{
    const QList<TXTable> tables = shadowTables();
    const Folder folder;
    qsizetype drawn = 0;
    for (auto step : state) {
        forgetTexts(state);
        TXReportDocument report;
        TXGraphicsScene scene;
        drawShadowPage(&scene, nextOf(tables, &drawn));
        report.addPage(&scene);
        if (!report.writePdf(folder.file())) {
            state.SkipWithError("the report was not written");
            return;
        }
    }
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
}

void useQtEffects(const QGraphicsScene &scene)
{
    const QList<QGraphicsItem *> items = scene.items();
    for (QGraphicsItem *item : items) {
        if (const auto *ours =
                qobject_cast<const QGraphicsDropShadowEffect *>(item->graphicsEffect())) {
            auto effect = std::make_unique<QGraphicsDropShadowEffect>();
            effect->setColor(ours->color());
            effect->setOffset(ours->offset());
            effect->setBlurRadius(ours->blurRadius());
            item->setGraphicsEffect(effect.release());
        }
    }
}

/// The same page with the effect that Qt brings.
void shadowPageQtEffect(benchmark::State &state)
{
    const QList<TXTable> tables = shadowTables();
    const Folder folder;
    qsizetype drawn = 0;
    for (auto step : state) {
        forgetTexts(state);
        TXGraphicsScene scene;
        drawShadowPage(&scene, nextOf(tables, &drawn));
        useQtEffects(scene);
        QPdfWriter writer(folder.file());
        setUp(writer);
        QPainter painter(&writer);
        usePoints(painter);
        const QRectF page(QPointF(0, 0), contentSize());
        scene.render(&painter, page, page);
    }
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
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
BENCHMARK(shadowPageOurs)->Name("shadowPage/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(shadowPageQtEffect)
    ->Name("shadowPage/QGraphicsDropShadowEffect")
    ->Unit(benchmark::kMillisecond);

BENCHMARK(memoryOurs)->Name("memory/ours")->Apply(memorySizes);
BENCHMARK(memoryPageOfItems)->Name("memory/one page of items")->Apply(memorySizes);
BENCHMARK(memoryBareLoop)->Name("memory/bareLoop")->Apply(memorySizes);
