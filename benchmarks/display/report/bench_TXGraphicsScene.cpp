#include "RatioReporter.h"
#include "TXGraphicsScene.h"
#include "TXTableCell.h"
#include "TextSizeCache.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QPen>

#include <memory>

// A scene is filled with the cells of a table, four of ten texts distinct. The peer makes the same
// items by hand as one would write it first: the text before its font, each text measured anew.
// Painting and destroying the scene are not in the timing.
//
// FillScene is a report that is made once: no text was measured before. FillSceneAgain is one that
// is made again, as for a preview that follows a change.

namespace {

constexpr int kColumns = 8;
constexpr QSizeF kCellSize(60.0, 20.0);
constexpr double kBorderWidth = 0.5;

QFont reportFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    return font;
}

/// Four of ten cells have a text of their own, the others one of a few.
QString textOfCell(int number)
{
    const bool isDistinct = number % 10 < 4;
    return isDistinct ? QString::number(number * 0.37, 'f', 2)
                      : QStringLiteral("Patch %1").arg(number % 7);
}

QList<QString> textsOfRows(int rows)
{
    QList<QString> texts;
    for (int i = 0; i < rows * kColumns; ++i) {
        texts.append(textOfCell(i));
    }
    return texts;
}

QPointF placeOfCell(qsizetype number)
{
    const qsizetype row = number / kColumns;
    const qsizetype column = number % kColumns;
    return {double(column) * kCellSize.width(), double(row) * kCellSize.height()};
}

/// Turns the event loop before the scene goes: Qt is slow at removing items that it never met.
template<class Scene>
void destroy(std::unique_ptr<Scene> scene)
{
    QCoreApplication::processEvents();
    scene.reset();
}

QList<TXTableCell> cellsWith(const QList<QString> &texts)
{
    QList<TXTableCell> cells;
    for (const QString &text : texts) {
        cells.append(TXTableCell({{"CellElement", text}, {"CellSize", kCellSize}}));
    }
    return cells;
}

enum class Time { First, Again };

template<Time time>
void fillOurs(benchmark::State &state)
{
    const QList<TXTableCell> cells = cellsWith(textsOfRows(int(state.range(0))));
    const QFont font = reportFont();
    for (auto step : state) {
        auto scene = std::make_unique<TXGraphicsScene>();
        if (time == Time::First) {
            TextSizeCache::forget();
        }
        QElapsedTimer timer;
        timer.start();
        for (qsizetype i = 0; i < cells.size(); ++i) {
            cells.at(i).drawTableCell(scene.get(), placeOfCell(i), font);
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        destroy(std::move(scene));
    }
    state.SetItemsProcessed(state.iterations() * cells.size());
}

void drawCellPlainly(QGraphicsScene &scene, const QPointF &place, const QString &text,
                     const QFont &font)
{
    const QRectF rect(place, kCellSize);
    QPen pen(Qt::black);
    pen.setWidthF(kBorderWidth);
    scene.addRect(rect, pen, QBrush(Qt::white));

    QFont regular = font;
    regular.setWeight(QFont::Normal);
    const QSizeF size = QFontMetricsF(regular).size(Qt::TextShowMnemonic, text);
    QGraphicsSimpleTextItem *item = scene.addSimpleText(text);
    item->setPos(rect.x() + (rect.width() - size.width()) / 2,
                 rect.y() + (rect.height() - size.height()) / 2);
    item->setFont(regular);
    item->setBrush(Qt::black);
}

void fillPlain(benchmark::State &state)
{
    const QList<QString> texts = textsOfRows(int(state.range(0)));
    const QFont font = reportFont();
    for (auto step : state) {
        auto scene = std::make_unique<QGraphicsScene>();
        QElapsedTimer timer;
        timer.start();
        for (qsizetype i = 0; i < texts.size(); ++i) {
            drawCellPlainly(*scene, placeOfCell(i), texts.at(i), font);
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        destroy(std::move(scene));
    }
    state.SetItemsProcessed(state.iterations() * texts.size());
}

void reportSizes(benchmark::internal::Benchmark *family)
{
    family->RangeMultiplier(10)->Range(100, 10000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(fillOurs<Time::First>)->Name("FillScene/ours")->Apply(reportSizes);
BENCHMARK(fillPlain)->Name("FillScene/plain")->Apply(reportSizes);
BENCHMARK(fillOurs<Time::Again>)->Name("FillSceneAgain/ours")->Apply(reportSizes);
BENCHMARK(fillPlain)->Name("FillSceneAgain/plain")->Apply(reportSizes);
