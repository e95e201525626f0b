#include "ReportShadowEffect.h"

#include "ReportShadow.h"

#include <QPainter>

namespace {
constexpr double kBlurRadiusUnits = 40.0;
}

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
    if (!ReportShadow::isForPaper(painter)) {
        QGraphicsDropShadowEffect::draw(painter);
        return;
    }
    ReportShadow::paint(painter, sourceBoundingRect(Qt::DeviceCoordinates),
                        {color(), blurRadius(), offset()},
                        [this](QPainter *source) { drawSource(source); });
    drawSource(painter);
}
