#include "TXScalablePixmapItem.h"

#include <QPainter>

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
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->drawPixmap(boundingRect().toRect(), pixmap());
}
