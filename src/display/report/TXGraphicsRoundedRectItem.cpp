#include "TXGraphicsRoundedRectItem.h"

#include <QPainter>

TXGraphicsRoundedRectItem::TXGraphicsRoundedRectItem(QGraphicsItem *parent)
    : QGraphicsRectItem(parent)
{ }

void TXGraphicsRoundedRectItem::setRoundedRect(const QRectF &rect, double xRadius, double yRadius)
{
    this->xRadius = xRadius;
    this->yRadius = yRadius;
    setRect(rect);
    update();
}

void TXGraphicsRoundedRectItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                                      QWidget *widget)
{
    Q_UNUSED(option)
    Q_UNUSED(widget)
    painter->setPen(pen());
    painter->setBrush(brush());
    painter->drawRoundedRect(rect(), xRadius, yRadius, Qt::AbsoluteSize);
}
