#include "ShareRowDelegate.h"

#include "AddressText.h"

#include <QSize>
#include <QString>

QString ShareRowDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return AddressText::drawn(QStyledItemDelegate::displayText(value, locale));
}

QSize ShareRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
}
