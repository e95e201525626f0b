#include "PatchChip.h"

#include <QPainter>

namespace {

constexpr QSize kSwatchPixels(40, 30);
constexpr int kTextGap = 3;

} // namespace

PatchChip::PatchChip(const PatchTint &tint, QWidget *parent)
    : QWidget(parent)
    , tint(tint)
    , colour(tint.colour().toScreen())
{
    retranslate();
}

void PatchChip::setNameShown(bool isShown)
{
    isNameShown = isShown;
    update();
}

void PatchChip::retranslate()
{
    name = tint.translatedName();
    setAccessibleName(name);
    setToolTip(name);
    update();
}

QSize PatchChip::sizeHint() const
{
    if (!isNameShown) {
        return kSwatchPixels;
    }
    const QFontMetrics metrics = fontMetrics();
    return {std::max(kSwatchPixels.width(), metrics.horizontalAdvance(name)),
            kSwatchPixels.height() + kTextGap + metrics.height()};
}

void PatchChip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect swatch = rect();
    if (isNameShown) {
        const int textHeight = fontMetrics().height();
        swatch.setHeight(height() - textHeight - kTextGap);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, height() - textHeight, width(), textHeight), Qt::AlignCenter,
                         name);
    }
    painter.fillRect(swatch, colour);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
}
