#include "ChartReportCover.h"

#include "ChartPatches.h"
#include "ChartReportStyle.h"
#include "ReportFonts.h"

#include "TXAlignment.h"
#include "TXGraphicsScene.h"

#include <QBrush>
#include <QLocale>
#include <QPen>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

using ChartReportStyle::decimal;
using ChartReportStyle::kMarkColour;

/// The content of the sheet for which the sizes below are meant.
constexpr double kUsualWidthPoints = 523;
constexpr double kUsualHeightPoints = 700;
constexpr double kSmallestScale = 0.7;

constexpr double kTitleHeight = 62;
constexpr double kLegendHeight = 40;
constexpr double kNotesHeight = 50;
constexpr double kGap = 20;
constexpr double kRadius = 6;
constexpr double kPadding = 10;
constexpr double kChartWidthShare = 0.56;
constexpr double kLandscapeChartWidthShare = 0.34;

const QColor kInk(0x1c, 0x20, 0x26);
const QColor kPaleInk(0x5e, 0x66, 0x70);
const QColor kLine(0xc8, 0xcc, 0xd2);
const QColor kAccent(0x1f, 0x5f, 0xa8);
const QColor kChartFrame(0x18, 0x18, 0x1a);
const QSizeF kNoMargins(0, 0);

/// A round distance between the lines of a scale that reaches at least so far in a few steps.
double stepFor(double reach)
{
    constexpr double kMostSteps = 6;
    const double decade = std::pow(10, std::floor(std::log10(reach / kMostSteps)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (reach / (factor * decade) <= kMostSteps) {
            return factor * decade;
        }
    }
    return 10 * decade;
}

QRectF below(const QRectF &rect, double gap, double height)
{
    return {rect.left(), rect.bottom() + gap, rect.width(), height};
}

} // namespace

ChartReportCover::ChartReportCover(TXGraphicsScene *scene, const QSizeF &size,
                                   const ChartReportOptions &options)
    : scene(scene)
    , options(options)
    , pairs(ChartComparison::samePatches())
    , scale(
          std::clamp(std::min(size.width() / kUsualWidthPoints, size.height() / kUsualHeightPoints),
                     kSmallestScale, 1.0))
{
    titleRect = QRectF(0, kGap * scale, size.width(), kTitleHeight * scale);
    notesRect = QRectF(0, size.height() - kNotesHeight * scale, size.width(), kNotesHeight * scale);
    const QRectF middle(QPointF(0, titleRect.bottom() + kGap * scale),
                        QPointF(size.width(), notesRect.top() - kGap * scale));
    if (size.width() > size.height()) {
        planLandscape(middle);
    } else {
        planUpright(middle);
    }
}

/// Chart and statistics side by side, the bars below.
void ChartReportCover::planUpright(const QRectF &middle)
{
    const double gap = kGap * scale;
    placeChart(middle.topLeft(), kChartWidthShare * middle.width());
    statisticsRect = QRectF(QPointF(chartRect.right() + gap, chartRect.top()),
                            QPointF(middle.right(), chartRect.bottom()));
    barsRect = QRectF(QPointF(middle.left(), legendRect.bottom() + gap), middle.bottomRight());
}

/// Chart and statistics one below the other, the bars beside them.
void ChartReportCover::planLandscape(const QRectF &middle)
{
    const double gap = kGap * scale;
    placeChart(middle.topLeft(), kLandscapeChartWidthShare * middle.width());
    statisticsRect = QRectF(QPointF(middle.left(), legendRect.bottom() + gap / 2),
                            QPointF(chartRect.right(), middle.bottom()));
    barsRect = QRectF(QPointF(chartRect.right() + 1.5 * gap, middle.top()), middle.bottomRight());
}

void ChartReportCover::placeChart(const QPointF &topLeft, double width)
{
    chartRect = QRectF(topLeft, QSizeF(width, width * kChartRows / kChartColumns));
    legendRect = below(chartRect, kGap / 2 * scale, kLegendHeight * scale);
}

void ChartReportCover::draw(const QString &title)
{
    drawTitle(title);
    drawChart();
    drawLegend();
    drawStatistics();
    drawBars();
    drawNotes();
}

QFont ChartReportCover::font(double pixels, QFont::Weight weight) const
{
    return ReportFonts::withPixels(int(std::lround(pixels * scale)), weight);
}

QString ChartReportCover::formulaSign() const
{
    return options.formula == DifferenceFormula::Cie76 ? tr("ΔE*ab") : tr("ΔE00");
}

void ChartReportCover::drawTitle(const QString &title)
{
    scene->drawTextInRect(title, titleRect, TXAlignLeft, TXAlignTop, font(22, QFont::Bold), kInk,
                          kNoMargins);
    const QString subtitle =
        tr("Published averages of older charts against the current reference values");
    scene->drawTextInRect(subtitle, titleRect.adjusted(0, 32 * scale, 0, 0), TXAlignLeft,
                          TXAlignTop, font(11), kPaleInk, kNoMargins);
    scene->drawLine(titleRect.bottomLeft(), titleRect.bottomRight(), QPen(kAccent, 1.5), false);
}

void ChartReportCover::drawChart()
{
    scene->drawRoundedRect(chartRect, kRadius * scale, kRadius * scale, Qt::NoPen, kChartFrame,
                           true);
    const double gap = 5 * scale;
    const QRectF inner = chartRect.adjusted(gap, gap, 0, 0);
    const double width = inner.width() / kChartColumns;
    const double height = inner.height() / kChartRows;
    for (int i = 0; i < kChartPatches; ++i) {
        const int row = i / kChartColumns;
        const int column = i % kChartColumns;
        const QPointF corner(inner.left() + width * column, inner.top() + height * row);
        drawPatch(i, QRectF(corner, QSizeF(width - gap, height - gap)));
    }
}

/// Side by side without a line between, so that an eye can judge the difference.
void ChartReportCover::drawPatch(int patch, const QRectF &rect)
{
    const ChartPatch &colours = chartPatches()[size_t(patch)];
    QRectF half = rect;
    half.setWidth(rect.width() / 2);
    scene->drawRect(rect, Qt::NoPen, colours.newer.toScreen(), false);
    scene->drawRect(half, Qt::NoPen, colours.older.toScreen(), false);
}

void ChartReportCover::drawLegend()
{
    const QStringList lines = {
        tr("Left half, set A: average of charts made before November 2014"),
        tr("Right half, set B: charts made since November 2014"),
        tr("CIELAB under D50 for the 2° observer, shown in sRGB"),
    };
    QRectF line = legendRect;
    line.setHeight(legendRect.height() / double(lines.size()));
    for (const QString &text : lines) {
        scene->drawTextInRect(text, line, TXAlignLeft, TXAlignVerticallyCentred, font(8), kPaleInk,
                              kNoMargins);
        line.translate(0, line.height());
    }
}

void ChartReportCover::drawStatistics()
{
    scene->drawRoundedRect(statisticsRect, kRadius * scale, kRadius * scale, QPen(kLine, 0.5),
                           QColor(Qt::white), true);
    const double padding = kPadding * scale;
    const QRectF inner = statisticsRect.adjusted(padding, padding, -padding, -padding);
    const auto cie76 =
        ChartComparison::statistics(pairs, DifferenceFormula::Cie76, options.tolerance);
    const auto ciede2000 =
        ChartComparison::statistics(pairs, DifferenceFormula::Ciede2000, options.tolerance);

    constexpr int kRows = 6;
    QRectF row = inner;
    row.setHeight(inner.height() / kRows);
    scene->drawTextInRect(tr("Differences of the 24 patches"), row, TXAlignLeft,
                          TXAlignVerticallyCentred, font(10, QFont::Bold), kInk, kNoMargins);
    const auto addRow = [&](const QString &name, const QString &one, const QString &two) {
        row.translate(0, row.height());
        drawStatisticsRow(name, one, two, row);
    };
    addRow(QString(), tr("CIE76"), tr("CIEDE2000"));
    addRow(tr("Mean"), decimal(cie76.mean), decimal(ciede2000.mean));
    addRow(tr("95 %"), decimal(cie76.percentile95), decimal(ciede2000.percentile95));
    addRow(tr("Maximum"), decimal(cie76.largest), decimal(ciede2000.largest));
    addRow(tr("Above %1").arg(decimal(options.tolerance)), QLocale().toString(cie76.aboveTolerance),
           QLocale().toString(ciede2000.aboveTolerance));
}

void ChartReportCover::drawStatisticsRow(const QString &name, const QString &cie76,
                                         const QString &ciede2000, const QRectF &row)
{
    const bool isFirstChosen = options.formula == DifferenceFormula::Cie76;
    const auto weight = [](bool isChosen) {
        return isChosen ? QFont::Bold : QFont::Normal;
    };
    QRectF left = row;
    left.setRight(row.left() + 0.58 * row.width());
    scene->drawLine(row.topLeft(), row.topRight(), QPen(kLine, 0.4), false);
    scene->drawTextInRect(name, row, TXAlignLeft, TXAlignVerticallyCentred, font(9), kPaleInk,
                          kNoMargins);
    scene->drawTextInRect(cie76, left, TXAlignRight, TXAlignVerticallyCentred,
                          font(9, weight(isFirstChosen)), kInk, kNoMargins);
    scene->drawTextInRect(ciede2000, row, TXAlignRight, TXAlignVerticallyCentred,
                          font(9, weight(!isFirstChosen)), kInk, kNoMargins);
}

void ChartReportCover::drawBars()
{
    const QString heading =
        tr("%1 of each patch, tolerance %2").arg(formulaSign(), decimal(options.tolerance));
    scene->drawTextInRect(heading, barsRect, TXAlignLeft, TXAlignTop, font(10, QFont::Bold), kInk,
                          kNoMargins);
    const QRectF plot = barsRect.adjusted(26 * scale, 28 * scale, 0, -18 * scale);
    const auto largest =
        ChartComparison::statistics(pairs, options.formula, options.tolerance).largest;
    // Room above the highest bar for its number.
    const double top = 1.12 * std::max(largest, std::min(options.tolerance, 2 * largest));
    drawScale(plot, top);
    const double width = plot.width() / kChartPatches;
    const auto slot = [&](int bar) {
        return QRectF(plot.left() + bar * width, plot.top(), width, plot.height());
    };
    for (int i = 0; i < pairs.size(); ++i) {
        drawBar(pairs.at(i), slot(i), top);
    }
    drawTolerance(plot, top);
    for (int i = 0; i < pairs.size(); ++i) {
        drawBarNumbers(pairs.at(i), slot(i), top);
    }
}

void ChartReportCover::drawScale(const QRectF &plot, double top)
{
    const double step = stepFor(top);
    for (int i = 0; i * step <= top; ++i) {
        const double y = plot.bottom() - i * step / top * plot.height();
        scene->drawLine({plot.left(), y}, {plot.right(), y},
                        i == 0 ? QPen(kPaleInk, 0.8) : QPen(kLine, 0.4), false);
        const QRectF label(barsRect.left(), y - 6, plot.left() - barsRect.left() - 5, 12);
        scene->drawTextInRect(QLocale().toString(i * step), label, TXAlignRight,
                              TXAlignVerticallyCentred, font(7), kPaleInk, kNoMargins);
    }
}

void ChartReportCover::drawBar(const PatchPair &pair, const QRectF &slot, double top)
{
    const double value = pair.by(options.formula);
    const double inset = 0.16 * slot.width();
    const QRectF bar(QPointF(slot.left() + inset, slot.bottom() - value / top * slot.height()),
                     QPointF(slot.right() - inset, slot.bottom()));
    const QColor colour = chartPatches()[size_t(pair.newer)].newer.toScreen();
    scene->drawRect(bar, value > options.tolerance ? QPen(kMarkColour, 1) : QPen(kPaleInk, 0.4),
                    colour, false);
}

/// The difference above the bar, on white where a line passes, and the patch below it.
void ChartReportCover::drawBarNumbers(const PatchPair &pair, const QRectF &slot, double top)
{
    const double value = pair.by(options.formula);
    const bool isAbove = value > options.tolerance;
    const QFont numberFont = font(6.5, isAbove ? QFont::Bold : QFont::Normal);
    const double lineHeight = 12 * scale;
    const double barTop = slot.bottom() - value / top * slot.height();
    const QRectF number(slot.left(), barTop - lineHeight, slot.width(), lineHeight);
    QRectF paper = TXGraphicsScene::getBoundingRectOfText(decimal(value), numberFont);
    paper.moveCenter(number.center());
    scene->drawRect(paper, Qt::NoPen, QColor(Qt::white), false);
    scene->drawTextInRect(decimal(value), number, TXAlignHorizontallyCentred,
                          TXAlignVerticallyCentred, numberFont, isAbove ? kMarkColour : kPaleInk,
                          kNoMargins);
    scene->drawTextInRect(QLocale().toString(pair.newer + 1),
                          QRectF(slot.left(), slot.bottom() + 3, slot.width(), lineHeight),
                          TXAlignHorizontallyCentred, TXAlignVerticallyCentred, font(7), kInk,
                          kNoMargins);
}

void ChartReportCover::drawTolerance(const QRectF &plot, double top)
{
    if (options.tolerance > top) {
        return;
    }
    const double y = plot.bottom() - options.tolerance / top * plot.height();
    scene->drawLine({plot.left(), y}, {plot.right(), y}, QPen(kMarkColour, 0.8, Qt::DashLine),
                    false);
}

void ChartReportCover::drawNotes()
{
    const QStringList lines = {
        tr("ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry."),
        tr("ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6."),
        tr("G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. "
           "Color Research and Application 30 (2005)."),
    };
    scene->drawLine(notesRect.topLeft(), notesRect.topRight(), QPen(kLine, 0.5), false);
    QRectF line = notesRect.adjusted(0, 6 * scale, 0, 0);
    line.setHeight(line.height() / double(lines.size()));
    for (const QString &text : lines) {
        scene->drawTextInRect(text, line, TXAlignLeft, TXAlignVerticallyCentred, font(7.5),
                              kPaleInk, kNoMargins);
        line.translate(0, line.height());
    }
}
