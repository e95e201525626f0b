#include "AccessibleDescription.h"

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace {

QString lines(const QString &first, const QString &second)
{
    return second.isEmpty() ? first : first + QLatin1Char('\n') + second;
}

} // namespace

QString AccessibleDescription::withValue(const QWidget &widget, const QString &value)
{
    const QString own = widget.accessibleDescription();
    return own.isEmpty() ? lines(value, widget.toolTip()) : lines(own, value);
}

void AccessibleDescription::tellOfChange(QWidget &widget)
{
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}
