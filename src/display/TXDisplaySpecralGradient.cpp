#include "TXDisplaySpecralGradient.h"

#include <algorithm>

namespace {

constexpr int kAlpha = 130;
constexpr qint64 kStepNanometres = 10;
/// The end of green in red, from where on the closing stop is all there is.
constexpr qint64 kPureRedNanometres = 645;
/// Only wavelengths far below 0 need more, for a gradient that would take gigabytes.
constexpr qint64 kMostSteps = 10000;

/// The share `part` of `whole` as the value of a channel.
int channel(qint64 part, qint64 whole)
{
    return int(float(part) / float(whole) * 255.0);
}

/// The colour of a wavelength below that of pure red, in a spectrum that begins at `start`.
QColor spectralColor(qint64 wavelength, qint64 start)
{
    if (wavelength < 440) {
        return {channel(440 - wavelength, 440 - start), 0, 255, kAlpha};
    }
    if (wavelength < 490) {
        return {0, channel(wavelength - 440, 50), 255, kAlpha};
    }
    if (wavelength < 510) {
        return {0, 255, channel(510 - wavelength, 20), kAlpha};
    }
    if (wavelength < 580) {
        return {channel(wavelength - 510, 70), 255, 0, kAlpha};
    }
    return {255, channel(kPureRedNanometres - wavelength, 65), 0, kAlpha};
}

/// How many wavelengths have a stop of their own.
qint64 countOfSteps(qint64 start, qint64 end)
{
    const qint64 last = std::min(end, kPureRedNanometres);
    return start < last ? (last - start + kStepNanometres - 1) / kStepNanometres : 0;
}

} // namespace

QLinearGradient TXDisplaySpecralGradient(int startWavelength, int endWavelength)
{
    QLinearGradient gradient(0.0, 1.0, 1.0, 1.0);
    gradient.setCoordinateMode(QGradient::StretchToDeviceMode);
    gradient.setColorAt(1.0, QColor(255, 0, 0, kAlpha));

    const qint64 start = startWavelength;
    const qint64 count = countOfSteps(start, endWavelength);
    if (count > kMostSteps) {
        return gradient;
    }
    // Backwards, as Qt looks for the place of a stop from the front. No two are on the same place.
    for (qint64 step = count - 1; step >= 0; --step) {
        const qint64 wavelength = start + step * kStepNanometres;
        const float position = float(wavelength - start) / float(endWavelength - start);
        gradient.setColorAt(double(position), spectralColor(wavelength, start));
    }
    return gradient;
}
