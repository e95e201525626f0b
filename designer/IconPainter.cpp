#include "IconPainter.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPalette>

#include <algorithm>

namespace {

constexpr double kSheetUnits = 24.0;
constexpr double kLineUnits = 1.35;
constexpr double kSoftOpacity = 0.35;
constexpr int kAngleSteps = 16; // a degree, as QPainter counts

} // namespace

IconPainter::IconPainter(QPainter &painter, const QRectF &area)
    : painter(painter)
{
    const double side = std::min(area.width(), area.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center() - QPointF(side, side) / 2);
    painter.scale(side / kSheetUnits, side / kSheetUnits);
}

void IconPainter::box(const QRectF &rect, double radius, Ink filling)
{
    painter.setPen(QPen(colour(Line), kLineUnits));
    painter.setBrush(colour(filling));
    painter.drawRoundedRect(rect, radius, radius);
}

void IconPainter::fill(const QRectF &rect, double radius, Ink ink)
{
    setFilling(ink);
    painter.drawRoundedRect(rect, radius, radius);
}

void IconPainter::blend(const QRectF &rect, Ink left, Ink right)
{
    QLinearGradient gradient(rect.topLeft(), rect.topRight());
    gradient.setColorAt(0.0, colour(left));
    gradient.setColorAt(1.0, colour(right));
    painter.fillRect(rect, gradient);
}

void IconPainter::disc(const QPointF &centre, double radius, Ink ink)
{
    setFilling(ink);
    painter.drawEllipse(centre, radius, radius);
}

void IconPainter::ring(const QRectF &rect, Ink ink)
{
    setLine(ink);
    painter.drawEllipse(rect);
}

void IconPainter::arc(const QRectF &rect, int startDegrees, int spanDegrees, Ink ink)
{
    setLine(ink);
    painter.drawArc(rect, startDegrees * kAngleSteps, spanDegrees * kAngleSteps);
}

void IconPainter::line(const QPolygonF &points, Ink ink)
{
    setLine(ink);
    painter.drawPolyline(points);
}

void IconPainter::shape(const QPolygonF &points, Ink ink)
{
    setFilling(ink);
    painter.drawPolygon(points);
}

void IconPainter::text(const QRectF &rect, const QString &letters, Ink ink)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(int(rect.height()));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colour(ink));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextDontClip, letters);
}

void IconPainter::turn(double degrees)
{
    constexpr double kMiddle = kSheetUnits / 2;
    painter.translate(kMiddle, kMiddle);
    painter.rotate(degrees);
    painter.translate(-kMiddle, -kMiddle);
}

void IconPainter::fade(double opacity)
{
    painter.setOpacity(opacity);
}

QColor IconPainter::colour(Ink ink)
{
    const QPalette palette = QGuiApplication::palette();
    QColor soft = palette.color(QPalette::WindowText);
    soft.setAlphaF(float(kSoftOpacity));
    switch (ink) {
    case Line:
        return palette.color(QPalette::WindowText);
    case Soft:
        return soft;
    case Paper:
        return palette.color(QPalette::Base);
    case Accent:
        return {0x2d, 0x7f, 0xe0};
    case Bright:
        return Qt::white;
    case Green:
        return {0x2f, 0xa0, 0x4f};
    case Orange:
        return {0xee, 0x94, 0x22};
    case Red:
        return {0xc0, 0x3a, 0x35};
    }
    return {};
}

void IconPainter::setLine(Ink ink)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour(ink), kLineUnits, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void IconPainter::setFilling(Ink ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(ink));
}
