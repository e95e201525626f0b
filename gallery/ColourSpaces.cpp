#include "ColourSpaces.h"

#include <cmath>

namespace {

/// The root at which the straight line meets the cube root, by definition with its slope.
constexpr double kKnee = 6.0 / 29.0;
constexpr double kSlope = 3 * kKnee * kKnee;
constexpr double kDarkRoot = 4.0 / 29.0;

} // namespace

double ColourSpaces::lightOfValue(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double ColourSpaces::valueOfLight(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

double ColourSpaces::rootOfShare(double share)
{
    return share > kKnee * kKnee * kKnee ? std::cbrt(share) : share / kSlope + kDarkRoot;
}

double ColourSpaces::shareOfRoot(double root)
{
    return root > kKnee ? root * root * root : kSlope * (root - kDarkRoot);
}
