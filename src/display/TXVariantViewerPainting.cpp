#include "TXVariantViewer.h"

#include <QPainter>

namespace {

constexpr double kDesignFontHeight = 15.0;

} // namespace

void TXVariantViewer::paintEvent(QPaintEvent *)
{
    const double scale = QFontMetrics(font()).height() / kDesignFontHeight;
    QPainter painter(this);
    painter.scale(scale, scale);
    painter.drawRect(QRect(QPoint(2, 2), QPoint(11, 11)));
    painter.drawLine(5, 7, 9, 7);
    if (!expanded) {
        painter.drawLine(7, 5, 7, 9);
    }
}

void TXVariantViewer::hover()
{
    if (!hoverEffects()) {
        return;
    }
    QPalette lit = palette();
    lit.setBrush(QPalette::All, backgroundRole(), QBrush(Qt::white));
    setPalette(lit);
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

void TXVariantViewer::takeParentPalette()
{
    if (parentWidget() != nullptr) {
        setPalette(parentWidget()->palette());
    }
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
