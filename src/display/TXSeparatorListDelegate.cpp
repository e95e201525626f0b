#include "TXSeparatorListDelegate.h"

#include "SeparatorLine.h"

#include <QModelIndex>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QStyleOptionViewItem>

namespace {

constexpr double kLineWidth = 1.0;

void drawLineBelow(QPainter &painter, const QRect &item)
{
    const QPen before = painter.pen();
    painter.setPen(QPen(Qt::lightGray, kLineWidth));
    painter.drawLine(item.bottomLeft(), item.bottomRight());
    // A view paints the next row with the same painter, and what it draws there may use its pen.
    painter.setPen(before);
}

} // namespace

TXSeparatorListDelegate::TXSeparatorListDelegate(int separatorRow, int linePosition,
                                                 QSize separatorSize, QObject *parent)
    : QStyledItemDelegate(parent)
    , linePosition(linePosition)
    , separatorSize(separatorSize)
    , separatorRows({separatorRow})
{ }

void TXSeparatorListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (SeparatorLine::isSeparator(index)) {
        SeparatorLine::draw(*painter, option, linePosition);
    } else if (separatorRows.contains(index.row())) {
        drawLineBelow(*painter, option.rect);
    }
}

QSize TXSeparatorListDelegate::sizeHint(const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    return SeparatorLine::isSeparator(index) ? separatorSize
                                             : QStyledItemDelegate::sizeHint(option, index);
}

void TXSeparatorListDelegate::addSeparatorAtRowIndex(int row)
{
    separatorRows.insert(row);
}

bool TXSeparatorListDelegate::removeSeparatorAtRowIndex(int row)
{
    return separatorRows.remove(row);
}
