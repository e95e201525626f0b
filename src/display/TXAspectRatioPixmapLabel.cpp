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
        setFillingMargins(0, marginFor(h - ph * w / pw));
    } else {
        setFillingMargins(marginFor(w - pw * h / ph), 0);
    }
}

QSize TXAspectRatioPixmapLabel::sizeHint() const
{
    return withoutFilling(QLabel::sizeHint());
}

QSize TXAspectRatioPixmapLabel::minimumSizeHint() const
{
    return withoutFilling(QLabel::minimumSizeHint());
}

void TXAspectRatioPixmapLabel::resizeEvent(QResizeEvent *event)
{
    updateMargins();
    QLabel::resizeEvent(event);
}

void TXAspectRatioPixmapLabel::setFillingMargins(int horizontal, int vertical)
{
    // First, as the new margins have the parent's layout ask for the hints.
    fillingMargins = {horizontal, vertical, horizontal, vertical};
    setContentsMargins(fillingMargins);
}

/// A host may have set other margins since; the hint keeps room for what of them is more.
QSize TXAspectRatioPixmapLabel::withoutFilling(const QSize &hint) const
{
    const QMargins now = contentsMargins();
    const int width =
        std::min(now.left(), fillingMargins.left()) + std::min(now.right(), fillingMargins.right());
    const int height =
        std::min(now.top(), fillingMargins.top()) + std::min(now.bottom(), fillingMargins.bottom());
    return hint - QSize(width, height);
}
