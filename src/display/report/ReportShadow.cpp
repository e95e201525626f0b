#include "ReportShadow.h"

#include "ReportPlacement.h"
#include "ReportShadowPicture.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

/// Devices tell the size of what is within their margins, and painters draw outside too.
constexpr double kMarginPoints = 144.0;

/// A shadow over more than an A1 sheet gets coarser instead of larger.
constexpr double kMaximumPixels = 4'000'000.0;

/// A thin shadow may have few pixels and be far too long a picture all the same.
constexpr double kMaximumSide = 16'000.0;

/// The picture that is painted on this thread of what throws a shadow, to be treated as paper: Qt
/// cannot put an effect within an effect onto a device of another scale.
thread_local const QPaintDevice *currentPicture = nullptr;

/// A recording has no paper; its unit becomes a point where it is played.
bool isRecording(const QPainter *painter)
{
    return painter->paintEngine()->type() == QPaintEngine::Picture;
}

QTransform pointsFromDevice(const QPainter *painter)
{
    // On the screen the shadow counts in pixels, as Qt's own does.
    if (isRecording(painter) || !ReportShadow::isForPaper(painter)) {
        return {};
    }
    const QPaintDevice *device = painter->device();
    return QTransform::fromScale(
        ReportPlacement::kPointsPerInch / std::max(device->logicalDpiX(), 1),
        ReportPlacement::kPointsPerInch / std::max(device->logicalDpiY(), 1));
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

/// An even number of pixels, since the shadow has half as many. Equal things get pictures of equal
/// size, wherever they stand: some numbers come out larger by what rounding leaves over.
int evenPixels(double length)
{
    constexpr double kLeftOver = 1e-6;
    return std::max(2 * int(std::ceil((length - kLeftOver) / 2)), 2);
}

double scaleOfPicture(const QSizeF &points)
{
    const double longest = std::max(points.width(), points.height());
    return std::min({1.0, std::sqrt(kMaximumPixels / (points.width() * points.height())),
                     kMaximumSide / longest});
}

QImage pictureOf(const QSize &size, const QTransform &transform, const QPainter *painter,
                 const std::function<void(QPainter *)> &draw)
{
    constexpr double kPointsPerMeter = ReportPlacement::kPointsPerInch / 0.0254;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDotsPerMeterX(qRound(kPointsPerMeter));
    image.setDotsPerMeterY(qRound(kPointsPerMeter));
    const QScopedValueRollback<const QPaintDevice *> current(currentPicture, &image);
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
    if (painter->device() == currentPicture) {
        return true;
    }
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
    if (!ReportPlacement::isDrawable(bounds) || !ReportPlacement::isWithinReach(part)
        || part.isEmpty()) {
        return;
    }
    const double scale = scaleOfPicture(part.size());
    const QSize size(evenPixels(part.width() * scale), evenPixels(part.height() * scale));
    const QTransform toPicture = toPoints * QTransform::fromTranslate(-part.x(), -part.y())
        * QTransform::fromScale(scale, scale);
    const QImage shadow = ReportShadowPicture::shadowOf(pictureOf(size, toPicture, painter, draw),
                                                        look.colour, look.radius * scale);
    const QRectF place(part.topLeft() + look.offset, QSizeF(size) / scale);

    painter->save();
    // In a PDF a picture would be as transparent as the brush.
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setWorldTransform(QTransform());
    painter->drawImage(toPoints.inverted().mapRect(place), shadow);
    painter->restore();
}
