#include "PixelProbe.h"

#include <QPainter>
#include <QSet>
#include <QWidget>

namespace {

QImage render(QWidget &widget, qreal devicePixelRatio)
{
    QImage image(widget.size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    widget.ensurePolished();
    widget.render(&image);
    return image;
}

bool isWithin(int left, int right, int tolerance)
{
    return qAbs(left - right) <= tolerance;
}

} // namespace

PixelProbe::PixelProbe(QWidget &widget, qreal devicePixelRatio)
    : picture(render(widget, devicePixelRatio))
{ }

PixelProbe::PixelProbe(QImage image)
    : picture(std::move(image))
{ }

QColor PixelProbe::at(const QPoint &place) const
{
    const QPointF middle = (QPointF(place) + QPointF(0.5, 0.5)) * picture.devicePixelRatio();
    const QPoint pixel(qFloor(middle.x()), qFloor(middle.y()));
    return picture.valid(pixel) ? picture.pixelColor(pixel) : QColor();
}

bool PixelProbe::isNear(const QPoint &place, const QColor &colour, int tolerance) const
{
    const QColor found = at(place);
    return found.isValid() && isWithin(found.red(), colour.red(), tolerance)
        && isWithin(found.green(), colour.green(), tolerance)
        && isWithin(found.blue(), colour.blue(), tolerance)
        && isWithin(found.alpha(), colour.alpha(), tolerance);
}

qsizetype PixelProbe::countColours(const QRect &area) const
{
    QSet<QRgb> colours;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            colours.insert(at({x, y}).rgba());
        }
    }
    return colours.size();
}
