#include "TXComboSeparatorDrawDelegate.h"

#include "SeparatorLine.h"

TXComboSeparatorDrawDelegate::TXComboSeparatorDrawDelegate(int linePosition, QSize separatorSize,
                                                           QObject *parent)
    : QStyledItemDelegate(parent)
    , linePosition(linePosition)
    , separatorSize(separatorSize)
{ }

void TXComboSeparatorDrawDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (SeparatorLine::isSeparator(index)) {
        SeparatorLine::draw(*painter, option, linePosition);
    }
}

QSize TXComboSeparatorDrawDelegate::sizeHint(const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    return SeparatorLine::isSeparator(index) ? separatorSize
                                             : QStyledItemDelegate::sizeHint(option, index);
}
