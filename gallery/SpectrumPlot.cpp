#include "SpectrumPlot.h"

#include "LuminousEfficiency.h"

#include "TXDisplaySpecralGradient.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace {

constexpr QSize kUsualPixels(600, 220);
constexpr QSize kLeastPixels(360, 160);
constexpr double kTextGap = 6;
constexpr double kCurvePixels = 2;
/// Room above the curve, as a share of its height.
constexpr double kHeadroom = 0.08;
constexpr double kLines[] = {0.0, 0.5, 1.0};
constexpr int kTickNanometres = 50;

/// The palette's text colour, weak enough to stay behind a curve.
QColor lineColour(const QPalette &palette)
{
    constexpr int kAlpha = 60;
    QColor colour = palette.color(QPalette::Text);
    colour.setAlpha(kAlpha);
    return colour;
}

int firstTick(int nanometres)
{
    return int(std::ceil(double(nanometres) / kTickNanometres)) * kTickNanometres;
}

} // namespace

SpectrumPlot::SpectrumPlot(QWidget *parent)
    : QWidget(parent)
    , start(LuminousEfficiency::kFirstNanometres)
    , end(LuminousEfficiency::kLastNanometres)
{ }

void SpectrumPlot::setRange(int startNanometres, int endNanometres)
{
    start = startNanometres;
    end = endNanometres;
    update();
}

QSize SpectrumPlot::sizeHint() const
{
    return kUsualPixels;
}

QSize SpectrumPlot::minimumSizeHint() const
{
    return kLeastPixels;
}

void SpectrumPlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient spectrum = TXDisplaySpecralGradient(start, end);
    // The plot is a part of the widget.
    spectrum.setCoordinateMode(QGradient::ObjectMode);
    painter.fillRect(plotArea(), palette().base());
    painter.fillRect(plotArea(), spectrum);
    if (start < end) {
        paintGrid(painter);
        paintWavelengths(painter);
        paintCurve(painter);
    }
}

QRectF SpectrumPlot::plotArea() const
{
    const QFontMetricsF metrics(font());
    const double side = metrics.horizontalAdvance(locale().toString(1.0, 'f', 1)) + kTextGap;
    const double below = metrics.height() + kTextGap;
    return QRectF(rect()).adjusted(side, 0, -side, -below);
}

QPointF SpectrumPlot::placeOf(double nanometres, double value) const
{
    const QRectF area = plotArea();
    return {area.left() + area.width() * (nanometres - start) / (end - start),
            area.bottom() - area.height() * value / (1 + kHeadroom)};
}

void SpectrumPlot::paintGrid(QPainter &painter) const
{
    const QRectF area = plotArea();
    for (const double value : kLines) {
        const double y = placeOf(start, value).y();
        painter.setPen(lineColour(palette()));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(palette().color(QPalette::WindowText));
        const double half = painter.fontMetrics().height() / 2.0;
        const QRectF place(0, y - half, area.left() - kTextGap, 2 * half);
        painter.drawText(place.translated(0, std::min(0.0, area.bottom() - half - y)),
                         Qt::AlignRight | Qt::AlignVCenter, locale().toString(value, 'f', 1));
    }
}

void SpectrumPlot::paintWavelengths(QPainter &painter) const
{
    constexpr double kHalfText = 40;
    const QRectF area = plotArea();
    for (int tick = firstTick(start); tick <= end; tick += kTickNanometres) {
        const double x = placeOf(tick, 0).x();
        painter.setPen(lineColour(palette()));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(palette().color(QPalette::WindowText));
        const QRectF place(x - kHalfText, area.bottom() + kTextGap, 2 * kHalfText,
                           height() - area.bottom() - kTextGap);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop,
                         tr("%1 nm").arg(locale().toString(tick)));
    }
}

void SpectrumPlot::paintCurve(QPainter &painter) const
{
    QPolygonF curve;
    int wavelength = LuminousEfficiency::kFirstNanometres;
    for (const double value : LuminousEfficiency::values()) {
        curve.append(placeOf(wavelength, value));
        wavelength += LuminousEfficiency::kStepNanometres;
    }
    painter.save();
    painter.setClipRect(plotArea());
    painter.setPen(QPen(palette().color(QPalette::Text), kCurvePixels));
    painter.drawPolyline(curve);
    painter.restore();
}
