#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QPixmap>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QTransform>

#include <functional>

class QPainter;

/// The pictures of all zones as they stand on the screen: drawing them again is a copy of pixels.
///
/// Holds four bytes for each pixel of the zones, transparent where no picture is, so that it looks
/// the same over every background. Holds no picture itself.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ImageLayer
{
public:
    /// All that decides about the pixels. What is not a number equals nothing.
    struct State
    {
        double scale = 0.0;
        /// In picture pixels.
        QPointF position;
        QSize viewerSize;
        /// From viewer to device pixels: a scaling, and a shift by less than a pixel.
        QTransform toDevice;
        /// QPixmap::cacheKey() of each zone's picture.
        QList<qint64> pictures;

        [[nodiscard]] bool operator==(const State &other) const;
    };

    /// Draws a zone's picture, clipped to the zone, with a painter that stands in viewer pixels.
    using DrawPicture = std::function<void(QPainter &, qsizetype)>;

    /// Draws all pictures in this state. The areas are the zones' rectangles in the viewer.
    ImageLayer(const State &state, const QList<QRectF> &areas, const DrawPicture &draw);

    /// What the pixels show.
    [[nodiscard]] const State &state() const { return drawn; }

    /// Copies a zone's picture to the painter, which may be clipped and must stand in viewer
    /// pixels, on a device for which state() is true. The painter is left as it was.
    void drawZone(QPainter &painter, qsizetype zone) const;

private:
    struct Zone
    {
        /// Where the pixels belong, in device pixels as by State::toDevice.
        QRect place;
        QPixmap pixels;
    };

    State drawn;
    QList<Zone> zones;
};
