#include "VariantLabel.h"

#include "FocusFrame.h"

#include <QPainter>

VariantLabel::VariantLabel(QWidget *parent)
    : QLabel(parent)
{
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
}

void VariantLabel::setFocusOwner(const QWidget *owner)
{
    focusOwner = owner;
}

void VariantLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (focusOwner != nullptr && FocusFrame::isWanted(*focusOwner)) {
        QPainter painter(this);
        FocusFrame::paint(painter, *focusOwner, rect());
    }
}
