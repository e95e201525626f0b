#include "GalleryIcon.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace {

/// Paints in a square from (0, 0) to (1, 1).
void paintDiscs(QPainter &painter)
{
    struct Disc
    {
        QPointF centre;
        QColor colour;
    };
    static const std::array discs = {
        Disc{{0.5, 0.34}, QColor(0x1e, 0xa7, 0xd8)},
        Disc{{0.34, 0.62}, QColor(0xe0, 0x3c, 0x8a)},
        Disc{{0.66, 0.62}, QColor(0xf2, 0xb7, 0x05)},
    };
    constexpr qreal radius = 0.3;
    painter.setPen(Qt::NoPen);
    painter.setOpacity(0.85);
    for (const Disc &disc : discs) {
        painter.setBrush(disc.colour);
        painter.drawEllipse(disc.centre, radius, radius);
    }
}

QPixmap paintIcon(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side, side);
    paintDiscs(painter);
    return pixmap;
}

} // namespace

QIcon galleryIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 28, 32, 48, 56, 64, 96, 128, 256}) {
        icon.addPixmap(paintIcon(side));
    }
    return icon;
}
