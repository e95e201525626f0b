#include "FocusFrame.h"

#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>
#include <QWidget>

namespace {

constexpr qreal kLineWidth = 1;
constexpr qreal kLineMiddle = kLineWidth / 2;

} // namespace

bool FocusFrame::isWanted(const QWidget &widget)
{
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void FocusFrame::paint(QPainter &painter, const QWidget &widget, const QRect &area)
{
    if (!isWanted(widget)) {
        return;
    }
    // Not the style's: many styles' frames are a tint that nobody sees on a dark ground.
    const QRectF outer =
        QRectF(area).adjusted(kLineMiddle, kLineMiddle, -kLineMiddle, -kLineMiddle);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(widget.palette().color(QPalette::Highlight), kLineWidth));
    painter.drawRect(outer);
    painter.setPen(QPen(widget.palette().color(QPalette::Window), kLineWidth));
    painter.drawRect(outer.adjusted(kLineWidth, kLineWidth, -kLineWidth, -kLineWidth));
    painter.restore();
}
