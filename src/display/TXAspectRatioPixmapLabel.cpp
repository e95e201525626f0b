#include "TXAspectRatioPixmapLabel.h"

#include <QPixmap>

#include <algorithm>
#include <limits>

namespace {

/// Half of what is too much, on either side.
int marginFor(qint64 tooMuch)
{
    // A QWidget keeps margins as short, and would take larger ones for negative.
    constexpr qint64 kMost = std::numeric_limits<short>::max();
    return static_cast<int>(std::min(tooMuch / 2, kMost));
}

} // namespace

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
        const int margin = marginFor(h - ph * w / pw);
        setContentsMargins(0, margin, 0, margin);
    } else {
        const int margin = marginFor(w - pw * h / ph);
        setContentsMargins(margin, 0, margin, 0);
    }
}

void TXAspectRatioPixmapLabel::resizeEvent(QResizeEvent *event)
{
    updateMargins();
    QLabel::resizeEvent(event);
}
