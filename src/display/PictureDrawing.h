#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;
class QPixmap;

/// Draws pictures at any scale and place, within the sizes that Qt draws rightly.
namespace PictureDrawing {

/// Where a picture stands.
struct Place
{
    /// The part of the painter's coordinates in which the picture may be seen.
    QRectF sight;
    /// The picture's top left corner from the middle of the sight, in picture pixels.
    QPointF corner;
    /// Lengths in the painter's coordinates by those in picture pixels.
    double scale = 1.0;
};

/// False where nothing would be seen of a picture of any size: at scales near 0, endless ones and
/// what is no number.
[[nodiscard]] bool isDrawable(double scale);

/// Draws the picture pixel by pixel of its own: the pixmap's device pixel ratio has no say. The
/// painter, whose clip is to hold the sight, is left as it was. Draws nothing when the scale is not
/// drawable. At large scales only the pixels in sight cost time.
void draw(QPainter &painter, const QPixmap &picture, const Place &place);

} // namespace PictureDrawing
