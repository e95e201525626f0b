#include "ReportOfABenchmark.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QPainter>
#include <QPdfWriter>

#include <benchmark/benchmark.h>

#include <memory>

// What the shadows of a report cost on their way to PDF, beside the effect that Qt brings. The
// memory of texts is empty each time, as for the other benchmarks of documents.

using ReportOfABenchmark::contentSize;
using ReportOfABenchmark::Folder;
using ReportOfABenchmark::forgetTexts;
using ReportOfABenchmark::reportFont;
using ReportOfABenchmark::reportTexts;
using ReportOfABenchmark::setUp;
using ReportOfABenchmark::tableWith;
using ReportOfABenchmark::usePoints;

namespace {

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

} // namespace

BENCHMARK(shadowPageOurs)->Name("shadowPage/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(shadowPageQtEffect)
    ->Name("shadowPage/QGraphicsDropShadowEffect")
    ->Unit(benchmark::kMillisecond);
