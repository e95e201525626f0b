#include "TXScalablePixmapItem.h"

#include <QPainter>

#include <cmath>

namespace {

bool isWithinInt(const QRectF &rect)
{
    constexpr double kFarthest = 1 << 30;
    return std::abs(rect.left()) < kFarthest && std::abs(rect.top()) < kFarthest
        && std::abs(rect.right()) < kFarthest && std::abs(rect.bottom()) < kFarthest;
}

} // namespace

TXScalablePixmapItem::TXScalablePixmapItem(const QPixmap &pixmap, QGraphicsItem *parent,
                                           QSizeF size)
    : QGraphicsPixmapItem(pixmap, parent)
    , size(size)
{
    setCacheMode(QGraphicsItem::NoCache);
}

void TXScalablePixmapItem::setSize(QSizeF size)
{
    prepareGeometryChange();
    this->size = size;
}

QRectF TXScalablePixmapItem::boundingRect() const
{
    return {0, 0, size.width(), size.height()};
}

void TXScalablePixmapItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                 QWidget *widget)
{
    Q_UNUSED(option)
    Q_UNUSED(widget)
    const QRectF bounds = boundingRect();
    // Beyond the range of int the rounding would be undefined.
    if (!isWithinInt(bounds)) {
        return;
    }
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->drawPixmap(bounds.toRect(), pixmap());
}
