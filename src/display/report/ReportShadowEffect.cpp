#include "ReportShadowEffect.h"

#include "ReportShadow.h"

#include <QPainter>

namespace {

constexpr double kBlurRadiusUnits = 40.0;

/// Qt blurs a picture of the whole item, seen or not; one that is larger than any screen takes
/// seconds and more memory than there is.
constexpr double kLargestPixels = 32e6;

bool isTooLargeForQt(const QRectF &pixels)
{
    return !(pixels.width() * pixels.height() <= kLargestPixels);
}

} // namespace

ReportShadowEffect::ReportShadowEffect(QObject *parent)
    : QGraphicsDropShadowEffect(parent)
{
    setColor(QColor(80, 80, 80, 100));
    setOffset(0, 0);
    setBlurRadius(kBlurRadiusUnits);
    setEnabled(true);
}

void ReportShadowEffect::draw(QPainter *painter)
{
    const QRectF bounds = boundingRectFor(sourceBoundingRect(Qt::DeviceCoordinates));
    if (!ReportShadow::isForPaper(painter) && !isTooLargeForQt(bounds)) {
        QGraphicsDropShadowEffect::draw(painter);
        return;
    }
    ReportShadow::paint(painter, sourceBoundingRect(Qt::DeviceCoordinates),
                        {color(), blurRadius(), offset()},
                        [this](QPainter *source) { drawSource(source); });
    drawSource(painter);
}
