#include "ImageView.h"

#include "WholeNumber.h"

#include <algorithm>
#include <cmath>

namespace {

/// Where a number is expected to be found among evenly spaced ones, and its neighbours, as the
/// division may fall to either side of a border.
struct Candidates
{
    int first = 0;
    int last = -1;
};

Candidates zonesNear(double x, double zoneWidth, qsizetype zones)
{
    const int middle = WholeNumber::truncated(std::clamp(x / zoneWidth, 0.0, double(zones)));
    return {std::max(middle - 1, 0), std::min(middle + 1, int(zones) - 1)};
}

/// Toward the present one where the wanted number is none.
double numberOr(double wanted, double present)
{
    return std::isnan(wanted) ? present : wanted;
}

} // namespace

QPointF TXImageViewer::View::rounded(const QPointF &place)
{
    return {std::round(place.x()), std::round(place.y())};
}

QRectF TXImageViewer::View::zone(qsizetype index, const QSize &viewerSize) const
{
    const auto zones = double(std::max(pixmaps.size(), qsizetype(1)));
    const double zoneWidth = viewerSize.width() / zones;
    return {double(index) * zoneWidth, 0.0, zoneWidth, double(viewerSize.height())};
}

int TXImageViewer::View::zoneAt(const QPointF &place, const QSize &viewerSize) const
{
    if (std::isnan(place.x()) || viewerSize.isEmpty()) {
        return -1;
    }
    const Candidates near = zonesNear(place.x(), zone(0, viewerSize).width(), pixmaps.size());
    for (int i = near.first; i <= near.last; ++i) {
        if (zone(i, viewerSize).contains(place)) {
            return i;
        }
    }
    return -1;
}

TXImageViewer::View::PixelUnderMouse TXImageViewer::View::pixelAt(const QPointF &viewerPos,
                                                                  const QSize &viewerSize) const
{
    PixelUnderMouse pixel;
    const QPointF place = rounded(viewerPos);
    pixel.zoneIndex = zoneAt(place, viewerSize);
    if (pixel.zoneIndex < 0) {
        return pixel;
    }
    const QPointF fromCentre = place - zone(pixel.zoneIndex, viewerSize).center();
    const double x = fromCentre.x() / scale + imageRect.width() / 2.0 - position.x();
    const double y = fromCentre.y() / scale + imageRect.height() / 2.0 - position.y();
    // Only at a scale of 0, which shows nothing.
    if (std::isnan(x) || std::isnan(y)) {
        return pixel;
    }
    pixel.pixmapCoord = {WholeNumber::truncated(x), WholeNumber::truncated(y)};
    pixel.isInside = isInside(pixel.pixmapCoord);
    return pixel;
}

bool TXImageViewer::View::isInside(const QPoint &pixmapCoord) const
{
    return pixmapCoord.x() >= 0 && pixmapCoord.x() < imageRect.width() - 1.0 && pixmapCoord.y() >= 0
        && pixmapCoord.y() < imageRect.height() - 1.0;
}

void TXImageViewer::View::moveTo(const QPointF &wanted)
{
    position = {numberOr(wanted.x(), position.x()), numberOr(wanted.y(), position.y())};
}
