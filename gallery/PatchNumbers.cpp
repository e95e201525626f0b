#include "PatchNumbers.h"

#include "ChartPatches.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

/// In pixels of the picture, from the patch's top left.
constexpr int kNumberPixels = 44;
constexpr QPointF kNumberPlace(14, 50);
constexpr double kBorderPixels = 7;
/// Where a number stands with its border.
constexpr QRectF kRoom(4, 4, 80, 60);

/// Device pixels by picture pixel: there a number takes 300 kilobytes.
constexpr double kLargestKeptScale = 4;

/// The nearest whole pixel of the device: there a copy is exact.
double onDevicePixel(double place, double ratio)
{
    return std::round(place * ratio) / ratio;
}

} // namespace

PatchNumbers::PatchNumbers(const QFont &font)
    : font(font)
    , pixmaps(kChartPatches)
{
    this->font.setPixelSize(kNumberPixels);
    this->font.setBold(true);
}

void PatchNumbers::paint(QPainter *painter, int patch, const QPointF &corner, double scale)
{
    const double ratio = painter->device()->devicePixelRatioF();
    const QPixmap pixmap = kept(patch, scale, ratio);
    if (!pixmap.isNull()) {
        const QPointF place = corner + kRoom.topLeft() * scale;
        painter->drawPixmap(
            QPointF(onDevicePixel(place.x(), ratio), onDevicePixel(place.y(), ratio)), pixmap);
        return;
    }
    painter->save();
    painter->translate(corner);
    painter->scale(scale, scale);
    draw(*painter, patch);
    painter->restore();
}

QPixmap PatchNumbers::kept(int patch, double scale, double devicePixelRatio)
{
    if (patch < 0 || patch >= pixmaps.size() || scale * devicePixelRatio > kLargestKeptScale) {
        return {};
    }
    if (scale != keptScale || devicePixelRatio != keptRatio) {
        pixmaps.fill(QPixmap());
        keptScale = scale;
        keptRatio = devicePixelRatio;
    }
    if (pixmaps[patch].isNull()) {
        pixmaps[patch] = drawn(patch);
    }
    return pixmaps[patch];
}

QPixmap PatchNumbers::drawn(int patch) const
{
    const double scale = keptScale * keptRatio;
    QPixmap pixmap(int(std::ceil(kRoom.width() * scale)), int(std::ceil(kRoom.height() * scale)));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(scale, scale);
    painter.translate(-kRoom.topLeft());
    draw(painter, patch);
    painter.end();
    pixmap.setDevicePixelRatio(keptRatio);
    return pixmap;
}

/// In pixels of the picture, from the patch's top left.
void PatchNumbers::draw(QPainter &painter, int patch) const
{
    QPainterPath number;
    number.addText(kNumberPlace, font, QString::number(patch + 1));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(borderOf(number), Qt::black);
    painter.fillPath(number, Qt::white);
}

QPainterPath PatchNumbers::borderOf(const QPainterPath &number)
{
    QPainterPathStroker stroker;
    stroker.setWidth(kBorderPixels);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(number);
}
