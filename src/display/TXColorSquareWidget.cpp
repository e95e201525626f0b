#include "TXColorSquareWidget.h"

#include "AccessibleDescription.h"
#include "AccessibleInterfaces.h"
#include "ColorSquareAccessible.h"
#include "ColourName.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Where a square begins along one direction. In float as a difference of any two sizes has room
/// there.
float placed(bool isFirst, bool isLast, bool isCentred, int room, int square)
{
    if (isFirst) {
        return 0.0F;
    }
    if (isLast) {
        return float(double(room) - square);
    }
    return isCentred ? float(room * 0.5 - square * 0.5) : 0.0F;
}

/// What the frame leaves of the square along one direction. A real number has room for what is left
/// of the least hint.
double inner(int room, int square, int penWidth)
{
    return double(std::min(room, square)) - penWidth;
}

/// Qt draws corners of any size, but cannot count with what is not a number.
double drawable(double radius)
{
    return std::isnan(radius) ? 0.0 : radius;
}

} // namespace

TXColorSquareWidget::TXColorSquareWidget(QWidget *parent)
    : QWidget(parent)
{
    AccessibleInterfaces::install<TXColorSquareWidget, ColorSquareAccessible>();
}

void TXColorSquareWidget::setSizeHint(const QSize &size)
{
    if (size != sizeHintValue) {
        sizeHintValue = size;
        update();
    }
}

void TXColorSquareWidget::setBrush(const QBrush &newBrush)
{
    if (newBrush == brush) {
        return;
    }
    brush = newBrush;
    update();
    AccessibleDescription::tellOfChange(*this);
}

void TXColorSquareWidget::setPen(const QPen &newPen)
{
    if (newPen != pen) {
        pen = newPen;
        update();
    }
}

void TXColorSquareWidget::setRadius(double radius)
{
    if (radius != xRadius || radius != yRadius) {
        xRadius = radius;
        yRadius = radius;
        update();
    }
}

void TXColorSquareWidget::setAlignment(Qt::Alignment newAlignment)
{
    if (newAlignment != alignment) {
        alignment = newAlignment;
        update();
    }
}

QSize TXColorSquareWidget::sizeHint() const
{
    return sizeHintValue;
}

QSize TXColorSquareWidget::minimumSizeHint() const
{
    return sizeHintValue;
}

void TXColorSquareWidget::paintEvent(QPaintEvent *)
{
    const QSize square = sizeHint();
    const int penWidth = pen.width();
    const int corner = int(penWidth * 0.5);
    const QRectF rect(corner, corner, inner(width(), square.width(), penWidth),
                      inner(height(), square.height(), penWidth));

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setBrush(brush);
    painter.setPen(pen);
    painter.translate(offset(square));
    painter.drawRoundedRect(rect, drawable(xRadius), drawable(yRadius), Qt::AbsoluteSize);
    painter.restore();
}

void TXColorSquareWidget::applySizeHint(const QSize &size)
{
    setSizeHint(size);
    updateGeometry();
}

QString TXColorSquareWidget::brushInWords() const
{
    switch (brush.style()) {
    case Qt::NoBrush:
        return tr("No colour");
    case Qt::SolidPattern:
        return ColourName::of(brush.color());
    case Qt::LinearGradientPattern:
    case Qt::RadialGradientPattern:
    case Qt::ConicalGradientPattern:
        return tr("Gradient");
    case Qt::TexturePattern:
        return tr("Picture");
    default:
        return tr("Pattern in %1").arg(ColourName::of(brush.color()));
    }
}

QPointF TXColorSquareWidget::offset(const QSize &square) const
{
    const auto has = [this](Qt::AlignmentFlag flag) {
        return alignment.testFlag(flag);
    };
    const float x = placed(has(Qt::AlignLeft), has(Qt::AlignRight), has(Qt::AlignHCenter), width(),
                           square.width());
    const float y = placed(has(Qt::AlignTop), has(Qt::AlignBottom), has(Qt::AlignVCenter), height(),
                           square.height());
    return {double(x), double(y)};
}
