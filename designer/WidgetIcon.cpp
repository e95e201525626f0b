#include "WidgetIcon.h"

#include "IconPainter.h"

#include <QPixmap>

namespace {

constexpr double kDisabledOpacity = 0.4;

} // namespace

WidgetIcon::WidgetIcon(void (*picture)(IconPainter &))
    : picture(picture)
{ }

void WidgetIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State)
{
    painter->save();
    painter->setOpacity(mode == QIcon::Disabled ? kDisabledOpacity : 1.0);
    IconPainter pencil(*painter, rect);
    picture(pencil);
    painter->restore();
}

QPixmap WidgetIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return result;
}

// Those that Qt Designer asks for. Any other can be had as well.
QList<QSize> WidgetIcon::availableSizes(QIcon::Mode, QIcon::State)
{
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        sizes.append({side, side});
    }
    return sizes;
}

QIconEngine *WidgetIcon::clone() const
{
    return new WidgetIcon(*this);
}
