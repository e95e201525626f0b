#include "TXVariantViewer.h"

#include "FocusFrame.h"
#include "OutOfView.h"
#include "VariantKind.h"

#include <QPainter>

namespace {

constexpr double kDesignFontHeight = 15.0;
constexpr QColor kBracketColour(0x60, 0x60, 0x60);

double scaleOf(const QWidget &widget)
{
    return QFontMetrics(widget.font()).height() / kDesignFontHeight;
}

void fill(QPainter &painter, QPoint topLeft, QPoint bottomRight)
{
    painter.fillRect(QRect(topLeft, bottomRight), kBracketColour);
}

void paintListBracket(QPainter &painter, int h)
{
    fill(painter, {16, 2}, {19, 2});
    fill(painter, {16, 3}, {17, h - 4});
    fill(painter, {16, h - 3}, {19, h - 3});
}

void paintMapBracket(QPainter &painter, int h)
{
    const int m = h / 2;
    fill(painter, {18, 2}, {21, 2});
    fill(painter, {17, 3}, {18, m - 2});
    fill(painter, {16, m - 1}, {18, m - 1});
    fill(painter, {15, m}, {17, m});
    fill(painter, {16, m + 1}, {18, m + 1});
    fill(painter, {17, m + 2}, {18, m + 2 + h - m - 6});
    fill(painter, {18, h - 3}, {21, h - 3});
}

} // namespace

void TXVariantViewer::paintEvent(QPaintEvent *)
{
    const double scale = scaleOf(*this);
    QPainter painter(this);
    painter.save();
    painter.scale(scale, scale);
    paintFoldBox(painter);
    if (expanded) {
        paintBracket(painter);
    }
    painter.restore();
    if (expanded) {
        FocusFrame::paint(painter, *this, QRect(0, 0, kOpenMarginPixels, height()));
    }
}

void TXVariantViewer::paintFoldBox(QPainter &painter) const
{
    const QRect box(QPoint(2, 2), QPoint(11, 11));
    const QLine minus(5, 7, 9, 7);
    const QLine upright(7, 5, 7, 9);
    painter.drawRects(&box, 1);
    painter.drawLines(&minus, 1);
    if (!expanded) {
        painter.drawLines(&upright, 1);
    }
}

void TXVariantViewer::paintBracket(QPainter &painter) const
{
    const int h = static_cast<int>(height() / scaleOf(*this));
    if (VariantKind::isMap(value)) {
        paintMapBracket(painter, h);
    } else {
        paintListBracket(painter, h);
    }
}

void TXVariantViewer::hover()
{
    if (!hoverEffects()) {
        return;
    }
    QPalette lit = palette();
    lit.setBrush(QPalette::All, backgroundRole(), QBrush(Qt::white));
    OutOfView::setPalette(*this, lit);
}

void TXVariantViewer::unhover()
{
    takeParentPalette();
}

void TXVariantViewer::childEntered()
{
    takeParentPalette();
}

void TXVariantViewer::childLeaved()
{
    hover();
}

void TXVariantViewer::enterEvent(QEnterEvent *)
{
    hover();
    if (TXVariantViewer *above = parentViewer()) {
        above->childEntered();
    }
}

void TXVariantViewer::leaveEvent(QEvent *)
{
    takeParentPalette();
    if (TXVariantViewer *above = parentViewer()) {
        above->childLeaved();
    }
}

void TXVariantViewer::takeParentPalette()
{
    if (testAttribute(Qt::WA_SetPalette)) {
        // The parent's palette is what a widget without one of its own shows; a copy of it would
        // stay when the parent gets another.
        OutOfView::setPalette(*this, QPalette());
    }
}
