#include "FocusFrame.h"

#include <QPainter>
#include <QRegion>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace {

constexpr int kFramePixels = 2;

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
    QStyleOptionFocusRect frame;
    frame.initFrom(&widget);
    frame.rect = area;
    frame.backgroundColor = widget.palette().color(widget.backgroundRole());
    painter.save();
    // Styles tint what the frame is around, and colours that somebody judges have to stay.
    const QMargins frameWidths(kFramePixels, kFramePixels, kFramePixels, kFramePixels);
    painter.setClipRegion(QRegion(area) - (area - frameWidths), Qt::IntersectClip);
    widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &widget);
    painter.restore();
}
