#include "AllocationMeter.h"
#include "ICompletionDelegate.h"
#include "RatioReporter.h"
#include "ReportTablePainter.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QFile>
#include <QFont>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

// What a report costs on its way to PDF, beside what else one would write for it: a loop that
// paints each cell with the same lines, fills and texts and knows nothing of tables, and Qt's text
// document. All have the same texts of which four in ten are distinct, the same page, the same rows
// on a page and the heading repeated on each; the header and footer of our pages come on top.

namespace {

constexpr int kColumns = 8;
constexpr double kRowHeight = 15.0;
constexpr double kColumnWidth = 64.0;
constexpr double kFrame = 5.0;
constexpr int kDotsPerInch = 1200;
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

TXTable reportTable(int rows, bool hasShadow = false)
{
    TXTable table(kColumns, hasShadow);
    for (int column = 0; column < kColumns; ++column) {
        table.setColumnWidth(float(kColumnWidth), column);
    }
    TXTable::initHeaderOfTableWithTitles(table, titles(), false, float(kRowHeight));
    QHash<QString, QVariant> settings{{"CellSize", QSizeF(kColumnWidth, kRowHeight)}};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            settings.insert("CellElement", textAt(row, column));
            table.addCell(settings);
        }
    }
    return table;
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

QRectF contentOf(const QPageLayout &layout)
{
    return layout.paintRect(QPageLayout::Point);
}

QPageLayout pageLayout()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36),
            QPageLayout::Point};
}

int rowsOnPage(double height)
{
    return int((height - 2 * kFrame) / kRowHeight) - 1;
}

void setUp(QPdfWriter &writer)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout(pageLayout());
}

void count(benchmark::State &state, const Folder &folder, int rows)
{
    state.SetItemsProcessed(state.iterations() * rows * kColumns);
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
}

// --- the contestants ---

void tableOurs(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const TXTable table = reportTable(rows);
    const Folder folder;
    for (auto step : state) {
        TXReportDocument report;
        report.addTable(table, reportFont());
        if (!report.writePdf(folder.file())) {
            state.SkipWithError("the report was not written");
            return;
        }
    }
    count(state, folder, rows);
}

/// Paints one row of texts; the header is bold white on black.
void paintBareRow(QPainter &painter, double y, const QStringList &texts, bool isHeader)
{
    painter.setPen(isHeader ? QPen(Qt::darkGray, 0.35) : QPen(Qt::black, 0.5));
    painter.setBrush(isHeader ? Qt::black : Qt::white);
    QFont font = reportFont();
    font.setBold(isHeader);
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
    painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
    const int onPage = rowsOnPage(contentOf(pageLayout()).height());
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
            paintBareRow(painter, y, heading, true);
        }
        y += kRowHeight;
        paintBareRow(painter, y, rows.at(row), false);
    }
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
    const int onPage = rowsOnPage(contentOf(pageLayout()).height());
    for (auto step : state) {
        QPdfWriter writer(folder.file());
        setUp(writer);
        QPainter painter(&writer);
        painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
        ReportTablePainter tables;
        for (int first = 1; first <= rows; first += onPage) {
            if (first > 1) {
                writer.newPage();
            }
            const TXTable part =
                TXTable::copyPartOfTable(table, first, std::min(first + onPage, rows + 1));
            tables.paintTable(&painter, part, QPointF(kFrame, kFrame), reportFont());
        }
    }
    count(state, folder, rows);
}

void tableTextDocument(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QList<QStringList> texts = reportTexts(rows);
    const Folder folder;
    for (auto step : state) {
        QTextDocument document;
        document.setDefaultFont(reportFont());
        QTextCursor cursor(&document);
        QTextTableFormat format;
        format.setHeaderRowCount(1);
        QTextTable *table = cursor.insertTable(rows + 1, kColumns, format);
        for (int column = 0; column < kColumns; ++column) {
            table->cellAt(0, column).firstCursorPosition().insertText(
                titles().at(column).toString());
            for (int row = 0; row < rows; ++row) {
                table->cellAt(row + 1, column)
                    .firstCursorPosition()
                    .insertText(texts.at(row).at(column));
            }
        }
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
    for (auto step : state) {
        TXReportDocument report;
        const int onPage = rowsOnPage(report.contentRect().height());
        const int pages = (rows + onPage - 1) / onPage;
        report.addPages(pages, [&](TXGraphicsScene *scene, int page) {
            const int first = 1 + page * onPage;
            const int last = std::min(first + onPage, rows + 1);
            scene->drawTable(TXTable::copyPartOfTable(table, first, last), QPointF(kFrame, kFrame),
                             reportFont());
        });
        if (!report.writePdf(folder.file())) {
            state.SkipWithError("the report was not written");
            return;
        }
    }
    count(state, folder, rows);
}

/// A page with several shadows: a framed table, a title box, a line, an ellipse.
void drawShadowPage(TXGraphicsScene *scene, const TXTable &table)
{
    const QPen pen(Qt::black, 0.5);
    const QRectF box(10, 10, 500, 60);
    scene->drawRoundedRect(box, 8, 8, pen, QColor(230, 240, 255), true);
    scene->drawTextInRect("Comparison of two charts", box, TXAlignHorizontallyCentred,
                          TXAlignVerticallyCentred, reportFont(), Qt::black, QSizeF(2, 2));
    scene->drawTable(table, QPointF(10, 90), reportFont());
    scene->drawLine(QPointF(10, 700), QPointF(500, 700), QPen(Qt::darkBlue, 2), true);
    scene->drawEllipse(QRectF(400, 600, 80, 80), pen, Qt::yellow, true);
}

void shadowPageOurs(benchmark::State &state)
{
    const TXTable table = reportTable(30, true);
    const Folder folder;
    for (auto step : state) {
        TXReportDocument report;
        TXGraphicsScene scene;
        drawShadowPage(&scene, table);
        report.addPage(&scene);
        if (!report.writePdf(folder.file())) {
            state.SkipWithError("the report was not written");
            return;
        }
    }
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
}

/// The same page with the effect that Qt brings.
void shadowPageQtEffect(benchmark::State &state)
{
    const TXTable table = reportTable(30, true);
    const Folder folder;
    for (auto step : state) {
        TXGraphicsScene scene;
        drawShadowPage(&scene, table);
        for (QGraphicsItem *item : scene.items()) {
            if (const auto *ours =
                    qobject_cast<const QGraphicsDropShadowEffect *>(item->graphicsEffect())) {
                auto effect = std::make_unique<QGraphicsDropShadowEffect>();
                effect->setColor(ours->color());
                effect->setOffset(ours->offset());
                effect->setBlurRadius(ours->blurRadius());
                item->setGraphicsEffect(effect.release());
            }
        }
        QPdfWriter writer(folder.file());
        setUp(writer);
        QPainter painter(&writer);
        painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
        const QRectF page(QPointF(0, 0), contentOf(pageLayout()).size());
        scene.render(&painter, page, page);
    }
    state.counters["kB"] = double(folder.fileSize()) / 1000.0;
}

/// Looks at the heap after each page.
class HeapWatcher : public ICompletionDelegate
{
public:
    explicit HeapWatcher(const AllocationMeter &meter)
        : meter(meter)
    { }

    void onProgressionUpdated(QList<QString> /*path*/, float /*progress*/) override
    {
        most = std::max(most, meter.bytes());
    }
    void onMessageUpdated(QList<QString> /*path*/, const TXStringI18n & /*message*/) override { }
    void onLogAppended(QList<QString> /*path*/, const TXError & /*error*/) override { }
    void onMetadataEdited(QList<QString> /*path*/, QString /*key*/, QVariant /*value*/) override { }

    [[nodiscard]] qint64 peak() const { return most; }

private:
    const AllocationMeter &meter;
    qint64 most = 0;
};

/// What writing takes on top of the table, all in one "row", as the peer has one page only.
void memoryOurs(benchmark::State &state)
{
    const TXTable table = reportTable(10'000);
    const Folder folder;
    qint64 bytes = 0;
    for (auto step : state) {
        const AllocationMeter meter;
        HeapWatcher watcher(meter);
        TXReportDocument report;
        report.addTable(table, reportFont());
        if (!report.writePdf(folder.file(), &watcher)) {
            state.SkipWithError("the report was not written");
            return;
        }
        bytes = watcher.peak();
    }
    reportBytesPerRow(state, bytes, 1);
}

void memoryPageOfItems(benchmark::State &state)
{
    const TXTable table = reportTable(50);
    qint64 bytes = 0;
    for (auto step : state) {
        const AllocationMeter meter;
        TXGraphicsScene scene;
        scene.drawTable(table, QPointF(kFrame, kFrame), reportFont());
        QImage image(600, 800, QImage::Format_RGB32);
        QPainter painter(&image);
        scene.render(&painter);
        bytes = meter.bytes() - image.sizeInBytes();
    }
    reportBytesPerRow(state, bytes, 1);
}

} // namespace

BENCHMARK(tableOurs)
    ->Name("table/ours")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(tablePainter)
    ->Name("painter/ours")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(tableBareLoop)
    ->Name("table/bareLoop")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(tableTextDocument)
    ->Name("table/textDocument")
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(pagesOurs)
    ->Name("pages/ours")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(tableBareLoop)
    ->Name("pages/bareLoop")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(shadowPageOurs)->Name("shadowPage/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(shadowPageQtEffect)
    ->Name("shadowPage/QGraphicsDropShadowEffect")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

BENCHMARK(memoryOurs)->Name("memory/ours")->Iterations(1);
BENCHMARK(memoryPageOfItems)->Name("memory/one page of items")->Iterations(1);
