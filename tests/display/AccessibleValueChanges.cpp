#include "AccessibleValueChanges.h"

#include <QAccessible>

#include <utility>

namespace {

bool isListening = false;

QStringList &values()
{
    static QStringList list;
    return list;
}

} // namespace

void AccessibleValueChanges::start(bool isSomebodyListening)
{
    isListening = isSomebodyListening;
    values().clear();
}

QStringList AccessibleValueChanges::take()
{
    return std::exchange(values(), {});
}

bool QAccessible::isActive()
{
    return isListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ValueChanged) {
        auto *change = static_cast<QAccessibleValueChangeEvent *>(event);
        values().append(change->value().toString());
    }
}
