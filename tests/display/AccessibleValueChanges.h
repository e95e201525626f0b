#pragma once

#include <QAccessible>
#include <QStringList>

#include <utility>

/// What assistive programs would be told of new values.
///
/// The offscreen platform never counts accessibility as used, and drops all events. This header
/// therefore stands in for two functions of Qt, for all calls that the library makes; it is for the
/// one source of a test program.
namespace AccessibleValueChanges {

inline bool isSomebodyListening = false;
inline QStringList values;

/// The values told since the last call, oldest first.
inline QStringList take()
{
    return std::exchange(values, {});
}

} // namespace AccessibleValueChanges

bool QAccessible::isActive()
{
    return AccessibleValueChanges::isSomebodyListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::ValueChanged) {
        auto *change = static_cast<QAccessibleValueChangeEvent *>(event);
        AccessibleValueChanges::values.append(change->value().toString());
    }
}
