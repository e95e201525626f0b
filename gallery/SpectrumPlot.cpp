#include "SpectrumPlot.h"

#include "LuminousEfficiency.h"

#include "TXDisplaySpecralGradient.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr QSize kUsualPixels(600, 220);
constexpr QSize kLeastPixels(360, 160);
constexpr double kTextGap = 6;
constexpr double kCurvePixels = 2;
/// Room above the curve, as a share of its height.
constexpr double kHeadroom = 0.08;
constexpr double kLines[] = {0.0, 0.5, 1.0};
constexpr int kTicksNanometres[] = {5, 10, 20, 50, 100};

/// The palette's text colour, weak enough to stay behind a curve.
QColor lineColour(const QPalette &palette)
{
    constexpr int kAlpha = 60;
    QColor colour = palette.color(QPalette::Text);
    colour.setAlpha(kAlpha);
    return colour;
}

int firstTick(int nanometres, int step)
{
    return int(std::ceil(double(nanometres) / step)) * step;
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
    painter.fillRect(plotArea(), palette().base());
    if (start < end) {
        paintSpectrum(painter);
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

QString SpectrumPlot::wavelengthText(int nanometres) const
{
    return tr("%1 nm").arg(locale().toString(nanometres));
}

/// The smallest step whose texts do not run into one another.
int SpectrumPlot::tickNanometres() const
{
    const double needed =
        QFontMetricsF(font()).horizontalAdvance(wavelengthText(end)) + 2 * kTextGap;
    for (const int step : kTicksNanometres) {
        if (placeOf(start + step, 0).x() - placeOf(start, 0).x() >= needed) {
            return step;
        }
    }
    return *std::rbegin(kTicksNanometres);
}

/// Always the whole spectrum, of which the plot shows a part: a gradient for the part alone would
/// end in red wherever it ends.
void SpectrumPlot::paintSpectrum(QPainter &painter) const
{
    constexpr int kFirst = LuminousEfficiency::kFirstNanometres;
    constexpr int kLast = LuminousEfficiency::kLastNanometres;
    QLinearGradient spectrum = TXDisplaySpecralGradient(kFirst, kLast);
    spectrum.setCoordinateMode(QGradient::LogicalMode);
    spectrum.setStart(placeOf(kFirst, 0));
    spectrum.setFinalStop(placeOf(kLast, 0));
    painter.fillRect(plotArea(), spectrum);
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
    const int step = tickNanometres();
    for (int tick = firstTick(start, step); tick <= end; tick += step) {
        const double x = placeOf(tick, 0).x();
        painter.setPen(lineColour(palette()));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(palette().color(QPalette::WindowText));
        const QRectF place(x - kHalfText, area.bottom() + kTextGap, 2 * kHalfText,
                           height() - area.bottom() - kTextGap);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop, wavelengthText(tick));
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
