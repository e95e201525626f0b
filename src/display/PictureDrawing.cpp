#include "PictureDrawing.h"

#include "WholeNumber.h"

#include <QPainter>
#include <QPixmap>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using PictureDrawing::Place;

/// Below this a picture of any size is narrower than a pixel.
constexpr double kLeastDrawnScale = 1e-6;
/// From here on few pixels of a picture are in sight, and each is drawn by itself: a place within a
/// picture is told to Qt in steps that would be seen.
constexpr double kEachPixelScale = 1000.0;
/// Qt's fast ways of drawing pictures count in steps of 1/65536 and are right up to this size.
constexpr double kMostDrawnPixels = 32767.0;

bool isWithinReach(const QRectF &place)
{
    return place.left() > -kMostDrawnPixels && place.right() < kMostDrawnPixels
        && place.top() > -kMostDrawnPixels && place.bottom() < kMostDrawnPixels;
}

/// Qt would take an empty rectangle for the whole picture.
void drawPart(QPainter &painter, const QRectF &place, const QPixmap &picture, const QRectF &part)
{
    if (!place.isEmpty()) {
        painter.drawPixmap(place, picture, part);
    }
}

/// Draws a picture with the painter in picture pixels. Of what would be larger than Qt can draw,
/// only the part that is in sight.
void drawTransformed(QPainter &painter, const QPixmap &picture, const QRectF &sight)
{
    const QRectF whole(picture.rect());
    const bool isReached = isWithinReach(painter.deviceTransform().mapRect(whole));
    const QRectF part = isReached ? whole : whole & sight;
    drawPart(painter, part, picture, part);
}

/// The whole numbers around a range, held to those below a limit.
std::pair<int, int> wholeAround(double from, double to, int limit)
{
    return {std::clamp(WholeNumber::truncated(from) - 1, 0, limit),
            std::clamp(WholeNumber::truncated(to) + 1, -1, limit - 1)};
}

/// The rectangle between two points, which are told from the middle of the sight, as far as it is
/// in sight. A rectangle of that size itself would have no room for the place of its far edge.
QRectF between(const QPointF &from, const QPointF &to, const QRectF &sight)
{
    const auto held = [&sight](double x, double y) {
        const QPointF place = sight.center() + QPointF(x, y);
        return QPointF(std::clamp(place.x(), sight.left(), sight.right()),
                       std::clamp(place.y(), sight.top(), sight.bottom()));
    };
    return {held(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
            held(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

/// For scales at which the sight holds few pixels. All is reckoned from the middle of the sight, as
/// the way from the painter's origin may be longer than a double can tell.
void drawPixelsInSight(QPainter &painter, const QPixmap &picture, const Place &place)
{
    const QPointF reach = QPointF(place.sight.width(), place.sight.height()) / 2.0;
    const QPointF inPicture = reach / std::abs(place.scale);
    const QPointF from = -place.corner - inPicture;
    const QPointF to = -place.corner + inPicture;
    const auto [left, right] = wholeAround(from.x(), to.x(), picture.width());
    const auto [top, bottom] = wholeAround(from.y(), to.y(), picture.height());
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const QPointF begin = (QPointF(x, y) + place.corner) * place.scale;
            const QPointF end = (QPointF(x + 1, y + 1) + place.corner) * place.scale;
            drawPart(painter, between(begin, end, place.sight), picture, QRectF(x, y, 1.0, 1.0));
        }
    }
}

QTransform toPicturePixels(const Place &place)
{
    const QPointF middle = place.sight.center();
    QTransform transform = QTransform::fromTranslate(middle.x(), middle.y());
    transform.scale(place.scale, place.scale);
    transform.translate(place.corner.x(), place.corner.y());
    return transform;
}

} // namespace

bool PictureDrawing::isDrawable(double scale)
{
    return std::isfinite(scale) && std::abs(scale) >= kLeastDrawnScale;
}

void PictureDrawing::draw(QPainter &painter, const QPixmap &picture, const Place &place)
{
    if (!isDrawable(place.scale)) {
        return;
    }
    if (std::abs(place.scale) > kEachPixelScale) {
        drawPixelsInSight(painter, picture, place);
        return;
    }
    const QTransform before = painter.worldTransform();
    const QTransform toPainter = toPicturePixels(place);
    painter.setWorldTransform(toPainter, true);
    drawTransformed(painter, picture, toPainter.inverted().mapRect(place.sight));
    painter.setWorldTransform(before);
}
