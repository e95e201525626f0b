#pragma once

#include "ChartReportOptions.h"

#include <QCoreApplication>
#include <QFont>
#include <QRectF>
#include <QSizeF>

class TXGraphicsScene;

/// Draws the cover of the chart report: title, the chart itself, statistics, a bar for each patch,
/// and what it all rests on.
class ChartReportCover
{
    Q_DECLARE_TR_FUNCTIONS(ChartReportCover)

public:
    /// Draws on the scene, which stays the caller's, within (0, 0) and the size, in points.
    ChartReportCover(TXGraphicsScene *scene, const QSizeF &size, const ChartReportOptions &options);

    /// Draws everything, once, on an empty scene.
    void draw(const QString &title);

private:
    void planUpright(const QRectF &middle);
    void planLandscape(const QRectF &middle);
    void placeChart(const QPointF &topLeft, double width);
    void drawTitle(const QString &title);
    void drawChart();
    void drawPatch(int patch, const QRectF &rect);
    void drawLegend();
    void drawStatistics();
    void drawStatisticsRow(const QString &name, const QString &cie76, const QString &ciede2000,
                           const QRectF &row);
    void drawBars();
    void drawScale(const QRectF &plot, double top);
    void drawBar(const PatchPair &pair, const QRectF &slot, double top);
    void drawBarNumbers(const PatchPair &pair, const QRectF &slot, double top);
    void drawTolerance(const QRectF &plot, double top);
    void drawNotes();

    [[nodiscard]] QFont font(double pixels, QFont::Weight weight = QFont::Normal) const;
    [[nodiscard]] QString formulaSign() const;

    TXGraphicsScene *scene;
    ChartReportOptions options;
    QList<PatchPair> pairs;
    /// 1 on the usual sheet, less on small ones.
    double scale;
    QRectF titleRect;
    QRectF chartRect;
    QRectF legendRect;
    QRectF statisticsRect;
    QRectF barsRect;
    QRectF notesRect;
};
