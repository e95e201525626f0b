#include "SeparatorLine.h"

#include <QModelIndex>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRect>
#include <QString>
#include <QStyleOptionViewItem>
#include <QVariant>

namespace {

int yAt(int linePosition, const QRect &item)
{
    switch (linePosition) {
    case 0:
        return item.center().y();
    case 1:
        return item.top();
    case 2:
        return item.bottom();
    default:
        return 0;
    }
}

} // namespace

bool SeparatorLine::isSeparator(const QModelIndex &index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

QLine SeparatorLine::lineAt(int linePosition, const QRect &item)
{
    const int y = yAt(linePosition, item);
    return {item.left(), y, item.right(), y};
}

void SeparatorLine::draw(QPainter &painter, const QStyleOptionViewItem &option, int linePosition)
{
    const QLine line = lineAt(linePosition, option.rect);
    const QPen before = painter.pen();
    painter.setPen(option.palette.color(QPalette::Active, QPalette::Dark));
    painter.drawLines(&line, 1);
    // A view paints the next row with the same painter, and what it draws there may use its pen.
    painter.setPen(before);
}
