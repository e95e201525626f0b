#include "VariantLabelAccessible.h"

#include "VariantLabel.h"

VariantLabelAccessible::VariantLabelAccessible(VariantLabel *label)
    : QAccessibleWidget(label, QAccessible::StaticText)
{ }

QString VariantLabelAccessible::text(QAccessible::Text text) const
{
    if (text == QAccessible::Name && widget()->accessibleName().isEmpty()) {
        return static_cast<VariantLabel *>(widget())->visibleText(kCharactersMaximum);
    }
    return QAccessibleWidget::text(text);
}
