#include "PadlockSign.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int kHintSide = 56;
constexpr qreal kShackleWidth = 0.09;

/// Paints in a square from (0, 0) to (1, 1).
void paintPadlock(QPainter &painter, const QPalette &palette)
{
    QPainterPath shackle(QPointF(0.31, 0.5));
    shackle.lineTo(0.31, 0.3);
    shackle.arcTo(QRectF(0.31, 0.1, 0.38, 0.4), 180, -180);
    shackle.lineTo(0.69, 0.5);
    painter.strokePath(shackle, QPen(palette.color(QPalette::PlaceholderText), kShackleWidth));

    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(0.18, 0.44, 0.64, 0.5), 0.07, 0.07);

    painter.setBrush(palette.color(QPalette::HighlightedText));
    painter.drawEllipse(QPointF(0.5, 0.64), 0.065, 0.065);
    painter.drawRoundedRect(QRectF(0.47, 0.64, 0.06, 0.17), 0.03, 0.03);
}

} // namespace

PadlockSign::PadlockSign(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PadlockSign::sizeHint() const
{
    return {kHintSide, kHintSide};
}

void PadlockSign::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(width(), height());
    painter.translate((width() - side) / 2.0, (height() - side) / 2.0);
    painter.scale(side, side);
    paintPadlock(painter, palette());
}
