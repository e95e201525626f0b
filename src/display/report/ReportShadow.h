#pragma once

#include "TXGUICommonExport.h"

#include <QColor>
#include <QPointF>
#include <QRectF>

#include <functional>

class QPainter;

/// Shadows on paper: a small soft picture below a thing that stays lines and text.
///
/// Looks as QGraphicsDropShadowEffect does on a screen that shows one point as one pixel. Equal
/// shadows share one picture, which a PDF then holds once. Thread: any; each remembers its own
/// pictures, 16 MB of them at most.
namespace ReportShadow {

/// What a shadow looks like, in points.
struct Look
{
    QColor colour;
    /// How far it reaches around what throws it.
    double radius = 0.0;
    /// How far it is moved.
    QPointF offset;
};

/// Whether the painter draws onto paper, or records for it: then nothing should become pixels that
/// need not.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool isForPaper(const QPainter *painter);

/// Paints the shadow alone. `draw` draws what throws it on the painter that it gets, which stands
/// in the same coordinates as `painter` does, and `bounds` encloses that in the coordinates of the
/// painter's device. What lies far off the paper throws no shadow on it, however large it is, and
/// bounds that are not finite give none. Costs what a picture of the visible part costs at 72 dots
/// per inch, and takes 4 million dots at most. Leaves the painter's state as it was.
TXGUICOMMON_PRIVATE_EXPORT void paint(QPainter *painter, const QRectF &bounds, const Look &look,
                                      const std::function<void(QPainter *)> &draw);

} // namespace ReportShadow
