#include "FocusFrame.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

bool FocusFrame::isWanted(const QWidget &widget)
{
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void FocusFrame::paint(QPainter &painter, const QWidget &widget, const QRect &area)
{
    if (!isWanted(widget)) {
        return;
    }
    QStyleOptionFocusRect frame;
    frame.initFrom(&widget);
    frame.rect = area;
    frame.backgroundColor = widget.palette().color(widget.backgroundRole());
    painter.save();
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &widget);
    painter.restore();
}
