#include "TXCenteredPixmapDelegate.h"

#include "ItemInk.h"

#include <QModelIndex>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QVariant>

namespace {

QRectF centered(const QPixmap &pixmap, const QRect &cell)
{
    const QPoint middle = cell.center();
    const qint64 x = qint64(middle.x()) - pixmap.width() / 2;
    const qint64 y = qint64(middle.y()) - pixmap.height() / 2;
    return {double(x), double(y), double(pixmap.width()), double(pixmap.height())};
}

} // namespace

TXCenteredPixmapDelegate::TXCenteredPixmapDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

void TXCenteredPixmapDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const auto pixmap = index.data(Qt::DecorationRole).value<QPixmap>();
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter->fillRect(option.rect,
                          option.palette.brush(QPalette::Current, QPalette::Highlight));
    } else {
        ItemInk::apply(*painter, option, index);
    }
    painter->drawPixmap(centered(pixmap, option.rect), pixmap, QRectF(pixmap.rect()));
    // A view paints the next cell with the same painter, and what it draws there may use its pen.
    painter->restore();
}
