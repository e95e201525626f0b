#include "ReportPictures.h"

#include "ReportPlacement.h"

#include <algorithm>
#include <memory>

namespace {

constexpr qsizetype kRememberedBytes = qsizetype(64) * 1024 * 1024;

qsizetype bytesOf(const QPixmap &pixmap)
{
    constexpr qsizetype kBitsPerByte = 8;
    return std::max<qsizetype>(
        qsizetype(pixmap.width()) * pixmap.height() * pixmap.depth() / kBitsPerByte, 1);
}

} // namespace

ReportPictures::ReportPictures()
    : remembered(kRememberedBytes)
{ }

QPixmap ReportPictures::resampled(const QPixmap &pixmap, const QSize &points)
{
    const QSize pixels =
        ReportPlacement::pixelsForPoints(points, ReportPlacement::kPictureDotsPerInch);
    const Key key(pixmap.cacheKey(), {pixels.width(), pixels.height()});
    if (const QPixmap *known = remembered.object(key)) {
        return *known;
    }
    QPixmap result = ReportPlacement::resampled(pixmap, pixels);
    remembered.insert(key, std::make_unique<QPixmap>(result).release(), bytesOf(result));
    return result;
}
