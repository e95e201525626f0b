#include "ItemInk.h"

#include <QBrush>
#include <QModelIndex>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QStyleOptionViewItem>
#include <QVariant>

void ItemInk::apply(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QBrush &text = option.palette.brush(QPalette::Current, QPalette::WindowText);
    painter.setPen(QPen(text, 0.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(index.data(Qt::ForegroundRole).value<QBrush>());
}
