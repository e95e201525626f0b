#include "ReportShadow.h"

#include "ReportShadowPicture.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPointsPerInch = 72.0;

/// Devices tell the size of what is within their margins, and painters draw outside too.
constexpr double kMarginPoints = 144.0;

/// A shadow over more than an A1 sheet gets coarser instead of larger.
constexpr double kMaximumPixels = 4'000'000.0;

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
}

/// A recording has no paper; its unit becomes a point where it is played.
bool isRecording(const QPainter *painter)
{
    return painter->paintEngine()->type() == QPaintEngine::Picture;
}

QTransform pointsFromDevice(const QPainter *painter)
{
    if (isRecording(painter)) {
        return {};
    }
    const QPaintDevice *device = painter->device();
    return QTransform::fromScale(kPointsPerInch / std::max(device->logicalDpiX(), 1),
                                 kPointsPerInch / std::max(device->logicalDpiY(), 1));
}

/// The part of the shadow that can be seen, in points.
QRectF visiblePart(const QPainter *painter, const QRectF &bounds, const ReportShadow::Look &look)
{
    const double radius = look.radius;
    const QRectF shadow = bounds.adjusted(-radius, -radius, radius, radius);
    if (isRecording(painter)) {
        return shadow;
    }
    const QPaintDevice *device = painter->device();
    const QRectF paper =
        pointsFromDevice(painter).mapRect(QRectF(0, 0, device->width(), device->height()));
    const double reach = kMarginPoints + radius;
    return shadow & paper.adjusted(-reach, -reach, reach, reach).translated(-look.offset);
}

QImage pictureOf(const QSize &size, const QTransform &transform, const QPainter *painter,
                 const std::function<void(QPainter *)> &draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter imagePainter(&image);
    imagePainter.setRenderHints(painter->renderHints() | QPainter::Antialiasing
                                | QPainter::SmoothPixmapTransform);
    imagePainter.setWorldTransform(painter->worldTransform() * transform);
    draw(&imagePainter);
    return image;
}

} // namespace

bool ReportShadow::isForPaper(const QPainter *painter)
{
    switch (painter->paintEngine()->type()) {
    case QPaintEngine::Pdf:
    case QPaintEngine::SVG:
    case QPaintEngine::Picture:
    case QPaintEngine::MacPrinter:
    case QPaintEngine::Windows:
        return true;
    default:
        return false;
    }
}

void ReportShadow::paint(QPainter *painter, const QRectF &bounds, const Look &look,
                         const std::function<void(QPainter *)> &draw)
{
    const QTransform toPoints = pointsFromDevice(painter);
    const QRectF part = visiblePart(painter, toPoints.mapRect(bounds), look);
    if (!isFinite(bounds) || !isFinite(part) || part.isEmpty()) {
        return;
    }
    const double pixels = part.width() * part.height();
    const double scale = std::min(1.0, std::sqrt(kMaximumPixels / pixels));
    const QSize size(int(std::ceil(part.width() * scale)), int(std::ceil(part.height() * scale)));
    const QTransform toPicture = toPoints * QTransform::fromTranslate(-part.x(), -part.y())
        * QTransform::fromScale(scale, scale);
    const QImage shadow = ReportShadowPicture::shadowOf(pictureOf(size, toPicture, painter, draw),
                                                        look.colour, look.radius * scale);
    const QRectF place(part.topLeft() + look.offset, QSizeF(size) / scale);

    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setWorldTransform(QTransform());
    painter->drawImage(toPoints.inverted().mapRect(place), shadow);
    painter->restore();
}
