#include "LayoutItems.h"

#include <QLayout>
#include <QWidget>
#include <QWidgetItem>

namespace {

bool holds(QLayoutItem *item, const QObject *place)
{
    QLayout *const layout = item->layout();
    if (!layout) {
        return LayoutItems::isInside(place, item->widget());
    }
    bool isHolding = LayoutItems::isInside(place, layout);
    for (int i = 0; !isHolding && i < layout->count(); ++i) {
        isHolding = holds(layout->itemAt(i), place);
    }
    return isHolding;
}

} // namespace

bool LayoutItems::isInside(const QObject *place, const QObject *object)
{
    const QObject *above = place;
    while (above && above != object) {
        above = above->parent();
    }
    return above != nullptr;
}

bool LayoutItems::fitInto(const QObject *place, QLayoutItem *item)
{
    if (!item || (dynamic_cast<QWidgetItem *>(item) && !item->widget())) {
        return false; // Qt does not look before it asks the widget
    }
    const QLayout *layout = item->layout();
    return !(layout && layout->parent()) && !holds(item, place);
}
