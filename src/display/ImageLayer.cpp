#include "ImageLayer.h"

#include <QPainter>

#include <cmath>

bool ImageLayer::State::operator==(const State &other) const
{
    // By coordinates, as points compare with a tolerance.
    return scale == other.scale && position.x() == other.position.x()
        && position.y() == other.position.y() && viewerSize == other.viewerSize
        && toDevice == other.toDevice && pictures == other.pictures;
}

ImageLayer::ImageLayer(const State &state, const QList<QRectF> &areas, const DrawPicture &draw)
    : drawn(state)
{
    zones.reserve(areas.size());
    for (qsizetype i = 0; i < areas.size(); ++i) {
        const QRect place = drawn.toDevice.mapRect(areas[i]).toAlignedRect();
        QPixmap pixels(place.size());
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        painter.setWorldTransform(drawn.toDevice
                                  * QTransform::fromTranslate(-place.x(), -place.y()));
        draw(painter, i);
        painter.end();
        zones.append({place, pixels});
    }
}

void ImageLayer::drawZone(QPainter &painter, qsizetype zone) const
{
    const QTransform before = painter.worldTransform();
    const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const QTransform toDevice = painter.deviceTransform();
    const QPointF shift(std::floor(toDevice.dx()), std::floor(toDevice.dy()));
    const QPointF place = zones[zone].place.topLeft() + shift;
    const QTransform onDevice = QTransform::fromTranslate(place.x(), place.y());
    painter.setWorldTransform(onDevice * toDevice.inverted(), true);
    // With it Qt takes the slow way although nothing is scaled.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawPixmap(QPointF(), zones[zone].pixels);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
    painter.setWorldTransform(before);
}
