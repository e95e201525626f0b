#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>

class QWidget;

/// A widget as it is painted, to be asked for the colour of a place.
///
/// Places are device-independent: a probe at (10, 4) means the same spot at every device pixel
/// ratio, so that one test runs at ratio 1 and 2 alike.
class PixelProbe
{
public:
    /// Paints the widget without a window, at its present size, at the given device pixel ratio.
    explicit PixelProbe(QWidget &widget, qreal devicePixelRatio = 1.0);

    /// Looks at a picture that carries its own device pixel ratio.
    explicit PixelProbe(QImage image);

    /// The colour in the middle of the device-independent pixel, or an invalid colour outside.
    [[nodiscard]] QColor at(const QPoint &place) const;

    /// True when every channel at the place is within the tolerance (0 to 255) of the colour.
    [[nodiscard]] bool isNear(const QPoint &place, const QColor &colour, int tolerance = 2) const;

    /// The number of different colours in the area, a quick test for "something is painted here".
    [[nodiscard]] qsizetype countColours(const QRect &area) const;

    [[nodiscard]] const QImage &image() const { return picture; }

private:
    QImage picture;
};
