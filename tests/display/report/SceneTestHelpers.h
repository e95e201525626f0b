#pragma once

#include "PixelProbe.h"

#include <QColor>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QTest>

/// What the tests of scenes and their items share.
namespace SceneTestHelpers {

/// The part of the scene from (0, 0) to the size, a unit being a device-independent pixel, on a
/// background that shows where nothing is painted.
inline PixelProbe rendered(QGraphicsScene &scene, const QSize &size, qreal devicePixelRatio = 1.0,
                           const QColor &background = Qt::white)
{
    QImage image(size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(background);
    QPainter painter(&image);
    const QRectF area(QPointF(0, 0), size);
    scene.render(&painter, area, area);
    painter.end();
    return PixelProbe(image);
}

/// The scene's item of that number, the bottommost being 0, or null when it is of another type or
/// not there.
template<class Item>
Item *itemAt(const QGraphicsScene &scene, int number)
{
    return dynamic_cast<Item *>(scene.items(Qt::AscendingOrder).value(number));
}

/// The scene's one item, or null when there are more, none, or it is of another type.
template<class Item>
Item *onlyItem(const QGraphicsScene &scene)
{
    return scene.items().size() == 1 ? itemAt<Item>(scene, 0) : nullptr;
}

/// The number in a form that shows its last bit, as QCOMPARE takes close ones for equal.
inline QString exactly(double number)
{
    return QString::number(number, 'g', 17);
}

inline QString exactly(const QPointF &place)
{
    return exactly(place.x()) + QStringLiteral(", ") + exactly(place.y());
}

/// Devices of ratio 1 and 2 in the column "ratio".
inline void addRatios()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("ratio 1") << 1.0;
    QTest::addRow("ratio 2") << 2.0;
}

} // namespace SceneTestHelpers
