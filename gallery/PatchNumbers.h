#pragma once

#include <QFont>
#include <QList>
#include <QPixmap>
#include <QPointF>

class QPainter;
class QPainterPath;

/// The numbers of the chart's patches, white in a black border, which are seen on all colours.
///
/// They grow with the chart. Each is drawn once for a scale, so that painting all of them again, as
/// it is done at each move of the mouse, costs a copy of some hundred pixels for each. In a chart
/// made much larger, where each would take more than 300 kilobytes, they are drawn each time: then
/// only one or two are in sight.
///
/// Thread: the GUI thread.
class PatchNumbers
{
public:
    /// The font's size does not count.
    explicit PatchNumbers(const QFont &font);

    /// Paints a patch's number with a painter that stands in pixels of the viewer, where `corner`
    /// is the patch's top left. The scale is above 0. Leaves the painter as it was.
    void paint(QPainter *painter, int patch, const QPointF &corner, double scale);

    /// The number as it is kept, with those of the same scale and device pixel ratio; others are
    /// forgotten. Null where it is too large for that, and for a patch that there is not.
    [[nodiscard]] QPixmap kept(int patch, double scale, double devicePixelRatio);

private:
    [[nodiscard]] QPixmap drawn(int patch) const;
    void draw(QPainter &painter, int patch) const;
    [[nodiscard]] static QPainterPath borderOf(const QPainterPath &number);

    QFont font;
    /// All in one scale. Null ones have not been asked for.
    QList<QPixmap> pixmaps;
    double keptScale = 0;
    double keptRatio = 0;
};
