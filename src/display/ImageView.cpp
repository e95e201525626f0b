#include "ImageView.h"

#include "WholeNumber.h"

#include <algorithm>
#include <cmath>

namespace {

/// The first and the last zone that are worth a look.
struct Candidates
{
    int first = 0;
    int last = -1;
};

/// The zone that the division gives and its neighbours, as the quotient may fall to either side of
/// a border.
Candidates zonesNear(double x, double zoneWidth, qsizetype zones)
{
    const int middle = WholeNumber::truncated(std::clamp(x / zoneWidth, 0.0, double(zones)));
    return {std::max(middle - 1, 0), std::min(middle + 1, int(zones) - 1)};
}

double numberOr(double wanted, double present)
{
    return std::isnan(wanted) ? present : wanted;
}

double held(double coordinate, double pictureLength, double zoneLength, double scale)
{
    const double limit = (pictureLength - zoneLength / scale) / 2.0;
    return limit > 0.0 ? std::clamp(coordinate, -limit, limit) : 0.0;
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
    if (std::isnan(place.x()) || std::isnan(place.y()) || viewerSize.isEmpty()) {
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

std::optional<QPoint> TXImageViewer::View::pixelUnderMouse(const QSize &viewerSize) const
{
    if (!mousePlace) {
        return std::nullopt;
    }
    const PixelUnderMouse pixel = pixelAt(*mousePlace, viewerSize);
    return pixel.isInside ? std::optional(pixel.pixmapCoord) : std::nullopt;
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

void TXImageViewer::View::moveBy(const QPointF &viewerDistance)
{
    // Coordinate by coordinate: the operator for points takes no divisor of 0.
    moveTo(position + QPointF(viewerDistance.x() / scale, viewerDistance.y() / scale));
}

void TXImageViewer::View::scrollBy(const QPointF &viewerDistance, const QSize &viewerSize)
{
    holdPosition(viewerSize);
    moveBy(-viewerDistance);
    holdPosition(viewerSize);
}

QPointF TXImageViewer::View::heldPosition(const QSize &viewerSize) const
{
    const QSizeF room = zone(0, viewerSize).size();
    return {held(position.x(), imageRect.width(), room.width(), scale),
            held(position.y(), imageRect.height(), room.height(), scale)};
}

void TXImageViewer::View::holdPosition(const QSize &viewerSize)
{
    position = heldPosition(viewerSize);
}

LayerKeeper::Content TXImageViewer::View::content(const QSize &viewerSize) const
{
    return {scale, heldPosition(viewerSize), viewerSize, pixmaps};
}

void TXImageViewer::View::letGoOfOtherLayer(const QSize &viewerSize)
{
    layers.keepOnlyFor(content(viewerSize));
}
