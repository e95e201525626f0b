#include "DeltaGradientAccessible.h"

#include "AccessibleDescription.h"
#include "TXDeltaGradientWidget.h"

DeltaGradientAccessible::DeltaGradientAccessible(TXDeltaGradientWidget *bar)
    : QAccessibleWidget(bar, QAccessible::Chart)
{ }

QString DeltaGradientAccessible::text(QAccessible::Text kind) const
{
    const auto &shown = *static_cast<const TXDeltaGradientWidget *>(object());
    const QString ofWidget = QAccessibleWidget::text(kind);
    switch (kind) {
    case QAccessible::Name:
        return ofWidget.isEmpty() ? TXDeltaGradientWidget::tr("Colour differences") : ofWidget;
    case QAccessible::Value:
        return shown.valuesInWords();
    case QAccessible::Description:
        return AccessibleDescription::withValue(shown, shown.valuesInWords());
    default:
        return ofWidget;
    }
}
