#include "ColorSquareAccessible.h"

#include "TXColorSquareWidget.h"

ColorSquareAccessible::ColorSquareAccessible(TXColorSquareWidget *square)
    : QAccessibleWidget(square, QAccessible::Graphic)
{ }

QString ColorSquareAccessible::text(QAccessible::Text kind) const
{
    const QString ofWidget = QAccessibleWidget::text(kind);
    if (!ofWidget.isEmpty()) {
        return ofWidget;
    }
    switch (kind) {
    case QAccessible::Name:
        return TXColorSquareWidget::tr("Colour");
    case QAccessible::Value:
    case QAccessible::Description:
        return static_cast<const TXColorSquareWidget *>(object())->brushInWords();
    default:
        return {};
    }
}
