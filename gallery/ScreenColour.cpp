#include "ScreenColour.h"

#include "ColourSpaces.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using ColourSpaces::kWhiteD50;
using ColourSpaces::Triple;

constexpr int kChannels = 256;
constexpr double kLargestChannel = 255;

/// From linear sRGB under D65 to XYZ under D50, by the Bradford transform.
constexpr std::array<Triple, 3> kXyzOfScreen = {{
    {0.4360747, 0.3850649, 0.1430804},
    {0.2225045, 0.7168786, 0.0606169},
    {0.0139322, 0.0971045, 0.7141733},
}};

std::array<double, kChannels> makeLights()
{
    std::array<double, kChannels> lights = {};
    for (size_t i = 0; i < lights.size(); ++i) {
        lights[i] = ColourSpaces::lightOfValue(double(i) / kLargestChannel);
    }
    return lights;
}

} // namespace

double ScreenColour::lightOf(int channel)
{
    // A picture asks millions of times.
    static const std::array<double, kChannels> lights = makeLights();
    return lights[size_t(std::clamp(channel, 0, kChannels - 1))];
}

int ScreenColour::channelOf(double light)
{
    return int(
        std::lround(kLargestChannel * ColourSpaces::valueOfLight(std::clamp(light, 0.0, 1.0))));
}

LabColour ScreenColour::labOf(QRgb colour)
{
    const Triple lights = {lightOf(qRed(colour)), lightOf(qGreen(colour)), lightOf(qBlue(colour))};
    Triple roots = {};
    for (size_t i = 0; i < roots.size(); ++i) {
        const Triple &row = kXyzOfScreen[i];
        const double value = row[0] * lights[0] + row[1] * lights[1] + row[2] * lights[2];
        roots[i] = ColourSpaces::rootOfShare(value / kWhiteD50[i]);
    }
    return {116 * roots[1] - 16, 500 * (roots[0] - roots[1]), 200 * (roots[1] - roots[2])};
}
