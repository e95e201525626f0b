#pragma once

#include "PixelProbe.h"
#include "WaitWidget.h"

#include <QPalette>
#include <QTransform>
#include <QtMath>

/// The bars of a spinner of twelve, as they are seen on a white ground.
class SpinnerProbe
{
public:
    static constexpr int kBars = 12;

    /// Paints the spinner as it is, which lights up its current bar if that does not fade.
    explicit SpinnerProbe(WaitWidget &spinner, double ratio = 1.0)
        : size(spinner.size())
        , probe(paintedOnWhite(spinner, ratio))
    { }

    /// How opaque the black of that bar is in its middle, 0 to 255.
    [[nodiscard]] int alphaOf(int bar) const { return alphaAt(bar, size.width() * 0.375); }

    /// The same at a distance from the middle of the spinner, in the direction of the bar. The
    /// numbers after it move the place across the bar.
    [[nodiscard]] int alphaAt(int bar, double distance, double across = 0.0) const
    {
        QTransform turned;
        turned.translate(size.width() * 0.5, size.height() * 0.5);
        turned.rotate(bar * 360.0 / kBars);
        const QPointF place = turned.map(QPointF(distance, across));
        return 255 - probe.at(QPoint(qFloor(place.x()), qFloor(place.y()))).red();
    }

    /// The alpha of each bar, in their order.
    [[nodiscard]] QList<int> alphas() const
    {
        QList<int> all;
        for (int bar = 0; bar < kBars; ++bar) {
            all.append(alphaOf(bar));
        }
        return all;
    }

    [[nodiscard]] const PixelProbe &pixels() const { return probe; }

private:
    static PixelProbe paintedOnWhite(WaitWidget &spinner, double ratio)
    {
        spinner.setPalette(QPalette(Qt::white));
        return PixelProbe(spinner, ratio);
    }

    QSize size;
    PixelProbe probe;
};
