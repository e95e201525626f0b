#include "TXAspectRatioPixmapLabel.h"

#include <QPixmap>

TXAspectRatioPixmapLabel::TXAspectRatioPixmapLabel(QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{ }

void TXAspectRatioPixmapLabel::setPixmap(const QPixmap &pixmap)
{
    pixmapWidth = pixmap.width();
    pixmapHeight = pixmap.height();
    updateMargins();
    QLabel::setPixmap(pixmap);
}

void TXAspectRatioPixmapLabel::updateMargins()
{
    if (pixmapWidth < 1 || pixmapHeight < 1 || width() < 1 || height() < 1) {
        return;
    }
    // A product of two sizes of widgets and pictures may pass the range of int.
    const qint64 pw = pixmapWidth;
    const qint64 ph = pixmapHeight;
    const qint64 w = width();
    const qint64 h = height();
    if (ph * w <= pw * h) {
        const int margin = static_cast<int>((h - ph * w / pw) / 2);
        setContentsMargins(0, margin, 0, margin);
    } else {
        const int margin = static_cast<int>((w - pw * h / ph) / 2);
        setContentsMargins(margin, 0, margin, 0);
    }
}

void TXAspectRatioPixmapLabel::resizeEvent(QResizeEvent *event)
{
    updateMargins();
    QLabel::resizeEvent(event);
}
