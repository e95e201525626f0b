#include "TXDisplaySpecralGradient.h"

QLinearGradient TXDisplaySpecralGradient(int startWavelength, int endWavelength)
{
    Q_UNUSED(startWavelength)
    Q_UNUSED(endWavelength)
    constexpr int kAlpha = 130;
    QLinearGradient gradient(0.0, 1.0, 1.0, 1.0);
    gradient.setCoordinateMode(QGradient::StretchToDeviceMode);
    gradient.setColorAt(1.0, QColor(255, 0, 0, kAlpha));
    return gradient;
}
