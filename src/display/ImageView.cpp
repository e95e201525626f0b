#include "ImageView.h"

#include <algorithm>

QRectF TXImageViewer::View::zone(qsizetype index, const QSize &viewerSize) const
{
    const auto zones = double(std::max(pixmaps.size(), qsizetype(1)));
    const double zoneWidth = viewerSize.width() / zones;
    return {double(index) * zoneWidth, 0.0, zoneWidth, double(viewerSize.height())};
}
