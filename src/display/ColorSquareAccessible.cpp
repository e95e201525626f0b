#include "ColorSquareAccessible.h"

#include "AccessibleDescription.h"
#include "TXColorSquareWidget.h"

ColorSquareAccessible::ColorSquareAccessible(TXColorSquareWidget *square)
    : QAccessibleWidget(square, QAccessible::Graphic)
{ }

QString ColorSquareAccessible::text(QAccessible::Text kind) const
{
    const auto &shown = *static_cast<const TXColorSquareWidget *>(object());
    const QString ofWidget = QAccessibleWidget::text(kind);
    switch (kind) {
    case QAccessible::Name:
        return ofWidget.isEmpty() ? TXColorSquareWidget::tr("Colour") : ofWidget;
    case QAccessible::Value:
        return shown.brushInWords();
    case QAccessible::Description:
        return AccessibleDescription::withValue(shown, shown.brushInWords());
    default:
        return ofWidget;
    }
}
