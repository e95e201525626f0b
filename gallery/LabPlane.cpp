#include "LabPlane.h"

#include "ChartPatches.h"

#include <QPainter>

#include <algorithm>

namespace {

/// The plane reaches from minus this to this in both directions.
constexpr int kReach = 100;
/// A point of the picture stands for so many units; with more, the edge shows steps on a fine
/// screen.
constexpr int kUnitsPerPoint = 1;
constexpr int kPoints = 2 * kReach / kUnitsPerPoint + 1;
constexpr int kUsualLightness = 50;
constexpr int kMostLightness = 100;
constexpr QSize kUsualPixels(240, 240);
constexpr QSize kLeastPixels(140, 140);
constexpr double kDotRadius = 3.5;

/// Transparent where sRGB has no such colour.
QImage coloursOf(int lightness)
{
    QImage picture(kPoints, kPoints, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    for (int y = 0; y < kPoints; ++y) {
        for (int x = 0; x < kPoints; ++x) {
            const LabColour colour = {double(lightness), double(x * kUnitsPerPoint - kReach),
                                      double(kReach - y * kUnitsPerPoint)};
            if (colour.isOnScreen()) {
                picture.setPixelColor(x, y, colour.toScreen());
            }
        }
    }
    return picture;
}

} // namespace

LabPlane::LabPlane(QWidget *parent)
    : QWidget(parent)
    , colours(coloursOf(kUsualLightness))
{ }

void LabPlane::setLightness(int lightness)
{
    colours = coloursOf(std::clamp(lightness, 0, kMostLightness));
    update();
}

QSize LabPlane::sizeHint() const
{
    return kUsualPixels;
}

QSize LabPlane::minimumSizeHint() const
{
    return kLeastPixels;
}

void LabPlane::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), palette().base());
    painter.drawImage(QRectF(rect()), colours);
    paintAxes(painter);
    paintPatches(painter);
}

QPointF LabPlane::placeOf(double a, double b) const
{
    return {width() * (kReach + a) / (2 * kReach), height() * (kReach - b) / (2 * kReach)};
}

void LabPlane::paintAxes(QPainter &painter) const
{
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(placeOf(-kReach, 0), placeOf(kReach, 0));
    painter.drawLine(placeOf(0, -kReach), placeOf(0, kReach));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

/// Ringed in black and white, so that a dot is seen on each colour.
void LabPlane::paintPatches(QPainter &painter) const
{
    for (const ChartPatch &patch : chartPatches()) {
        const QPointF place = placeOf(patch.newer.a, patch.newer.b);
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(Qt::black);
        painter.drawEllipse(place, kDotRadius + 1, kDotRadius + 1);
        painter.setPen(Qt::NoPen);
        painter.setBrush(patch.newer.toScreen());
        painter.drawEllipse(place, kDotRadius, kDotRadius);
    }
}
