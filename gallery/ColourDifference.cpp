#include "ColourDifference.h"

#include "LabColour.h"

#include <QtMath>

#include <cmath>

namespace {

constexpr double kFullCircle = 360;
constexpr double kHalfCircle = 180;

double cosOfDegrees(double degrees)
{
    return std::cos(qDegreesToRadians(degrees));
}

double seventhPower(double value)
{
    return std::pow(value, 7);
}

/// Near 0 for greys, near 1 for strong colours.
double shareOfChroma(double chroma)
{
    const double power = seventhPower(chroma);
    return std::sqrt(power / (power + seventhPower(25)));
}

/// A colour as lightness, chroma and hue, its red-green axis stretched for greys.
struct Polar
{
    double lightness;
    double chroma;
    double hueDegrees;

    Polar(const LabColour &colour, double stretch)
        : lightness(colour.lightness)
        , chroma(std::hypot(colour.a * stretch, colour.b))
        , hueDegrees(hueOf(colour.a * stretch, colour.b))
    { }

    static double hueOf(double a, double b)
    {
        const double degrees = a == 0 && b == 0 ? 0 : qRadiansToDegrees(std::atan2(b, a));
        return degrees < 0 ? degrees + kFullCircle : degrees;
    }

    [[nodiscard]] bool isGrey() const { return chroma == 0; }
};

/// From the first hue to the second by the shorter way; a grey has no hue to differ in.
double hueStep(const Polar &first, const Polar &second)
{
    if (first.isGrey() || second.isGrey()) {
        return 0;
    }
    const double step = second.hueDegrees - first.hueDegrees;
    if (step > kHalfCircle) {
        return step - kFullCircle;
    }
    return step < -kHalfCircle ? step + kFullCircle : step;
}

double meanHue(const Polar &first, const Polar &second)
{
    const double sum = first.hueDegrees + second.hueDegrees;
    if (first.isGrey() || second.isGrey()) {
        return sum;
    }
    if (std::abs(first.hueDegrees - second.hueDegrees) <= kHalfCircle) {
        return sum / 2;
    }
    return sum < kFullCircle ? (sum + kFullCircle) / 2 : (sum - kFullCircle) / 2;
}

double lightnessWeight(double meanLightness)
{
    const double square = (meanLightness - 50) * (meanLightness - 50);
    return 1 + 0.015 * square / std::sqrt(20 + square);
}

double hueWeight(double meanChroma, double hue)
{
    const double factor = 1 - 0.17 * cosOfDegrees(hue - 30) + 0.24 * cosOfDegrees(2 * hue)
        + 0.32 * cosOfDegrees(3 * hue + 6) - 0.20 * cosOfDegrees(4 * hue - 63);
    return 1 + 0.015 * meanChroma * factor;
}

/// Turns chroma against hue in the blue region.
double rotation(double meanChroma, double hue)
{
    const double distance = (hue - 275) / 25;
    const double angleDegrees = 30 * std::exp(-distance * distance);
    return -std::sin(qDegreesToRadians(2 * angleDegrees)) * 2 * shareOfChroma(meanChroma);
}

} // namespace

double ColourDifference::cie76(const LabColour &first, const LabColour &second)
{
    return std::hypot(first.lightness - second.lightness, first.a - second.a, first.b - second.b);
}

double ColourDifference::ciede2000(const LabColour &first, const LabColour &second)
{
    const double plainChroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - shareOfChroma(plainChroma));
    const Polar one(first, stretch);
    const Polar two(second, stretch);

    const double chroma = (one.chroma + two.chroma) / 2;
    const double hue = meanHue(one, two);
    const double hueDistance =
        2 * std::sqrt(one.chroma * two.chroma) * std::sin(qDegreesToRadians(hueStep(one, two) / 2));

    const double lightnessPart =
        (two.lightness - one.lightness) / lightnessWeight((one.lightness + two.lightness) / 2);
    const double chromaPart = (two.chroma - one.chroma) / (1 + 0.045 * chroma);
    const double huePart = hueDistance / hueWeight(chroma, hue);
    return std::sqrt(lightnessPart * lightnessPart + chromaPart * chromaPart + huePart * huePart
                     + rotation(chroma, hue) * chromaPart * huePart);
}
