#include "DeltaGradientAccessible.h"

#include "TXDeltaGradientWidget.h"

DeltaGradientAccessible::DeltaGradientAccessible(TXDeltaGradientWidget *bar)
    : QAccessibleWidget(bar, QAccessible::Chart)
{ }

QString DeltaGradientAccessible::text(QAccessible::Text kind) const
{
    const QString ofWidget = QAccessibleWidget::text(kind);
    if (!ofWidget.isEmpty()) {
        return ofWidget;
    }
    switch (kind) {
    case QAccessible::Name:
        return TXDeltaGradientWidget::tr("Colour differences");
    case QAccessible::Value:
    case QAccessible::Description:
        return static_cast<const TXDeltaGradientWidget *>(object())->valuesInWords();
    default:
        return {};
    }
}
