#include "TXColorSquareWidget.h"

#include <QPainter>

TXColorSquareWidget::TXColorSquareWidget(QWidget *parent)
    : QWidget(parent)
{ }

void TXColorSquareWidget::setSizeHint(const QSize &size)
{
    if (size != sizeHintValue) {
        sizeHintValue = size;
        update();
    }
}

void TXColorSquareWidget::setBrush(const QBrush &newBrush)
{
    if (newBrush != brush) {
        brush = newBrush;
        update();
    }
}

void TXColorSquareWidget::setPen(const QPen &newPen)
{
    if (newPen != pen) {
        pen = newPen;
        update();
    }
}

void TXColorSquareWidget::setRadius(double radius)
{
    if (radius != xRadius || radius != yRadius) {
        xRadius = radius;
        yRadius = radius;
        update();
    }
}

void TXColorSquareWidget::setAlignment(Qt::Alignment newAlignment)
{
    if (newAlignment != alignment) {
        alignment = newAlignment;
        update();
    }
}

QSize TXColorSquareWidget::sizeHint() const
{
    return sizeHintValue;
}

QSize TXColorSquareWidget::minimumSizeHint() const
{
    return sizeHintValue;
}

void TXColorSquareWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setBrush(brush);
    painter.setPen(pen);
    painter.drawRoundedRect(QRect(QPoint(), sizeHint()), xRadius, yRadius, Qt::AbsoluteSize);
}
