#include "MarkerPlaces.h"

#include "WholeNumber.h"

#include <QPoint>
#include <QTransform>

#include <algorithm>

namespace {

/// As Qt clips: by the nearest borders of pixels, so that each pixel belongs to one zone.
bool coversAPixel(const QRectF &area)
{
    return WholeNumber::rounded(area.left()) < WholeNumber::rounded(area.right())
        && WholeNumber::rounded(area.top()) < WholeNumber::rounded(area.bottom());
}

} // namespace

QList<QPointF> MarkerPlaces::seenIn(qsizetype zone, const QList<QRectF> &zones,
                                    const QRectF &marker, const QTransform &toDevice)
{
    QList<QPointF> places;
    if (!coversAPixel(toDevice.mapRect(zones[zone]))) {
        return places;
    }
    const double width = zones[zone].width();
    const qsizetype before = WholeNumber::truncated((marker.right() + 1.0) / width);
    const qsizetype behind = WholeNumber::truncated((width + 1.0 - marker.left()) / width);
    const qsizetype first = std::max(zone - before - 1, qsizetype(0));
    const qsizetype last = std::min(zone + behind + 1, zones.size() - 1);
    QPoint lastPixel;
    for (qsizetype i = first; i <= last; ++i) {
        const QPointF place = zones[i].topLeft() + marker.topLeft();
        const QPoint pixel = toDevice.map(place).toPoint();
        if (places.isEmpty() || pixel != lastPixel) {
            places.append(place);
            lastPixel = pixel;
        }
    }
    return places;
}
