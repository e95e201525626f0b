#include "TabOrder.h"

#include <QWidget>

namespace {

/// Whether Tab can stop there. A part of a control, as the field of a spin box, goes with it.
bool isStop(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy();
}

/// What Tab stops at in the part, itself among it, in the order of Tab.
QList<QWidget *> stopsOf(QWidget *part)
{
    QList<QWidget *> stops;
    QWidget *next = part;
    do {
        if (isStop(*next) && (next == part || part->isAncestorOf(next))) {
            stops.append(next);
        }
        next = next->nextInFocusChain();
    } while (next != part);
    return stops;
}

} // namespace

void setTabOrderOfParts(const QList<QWidget *> &parts)
{
    QWidget *last = nullptr;
    for (QWidget *part : parts) {
        const QList<QWidget *> stops = stopsOf(part);
        for (QWidget *stop : stops) {
            if (last) {
                QWidget::setTabOrder(last, stop);
            }
            last = stop;
        }
    }
}
