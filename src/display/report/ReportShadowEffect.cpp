#include "ReportShadowEffect.h"

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
