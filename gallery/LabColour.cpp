#include "LabColour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Triple = std::array<double, 3>;

constexpr Triple kWhiteD50 = {0.96422, 1.0, 0.82521};

/// From XYZ under D50 to linear sRGB under D65, by the Bradford transform.
constexpr std::array<Triple, 3> kScreenOfXyz = {{
    {3.1338561, -1.6168667, -0.4906146},
    {-0.9787684, 1.9161415, 0.0334540},
    {0.0719453, -0.2289914, 1.4052427},
}};

/// How far a channel may lie outside and still be taken for rounding.
constexpr double kRounding = 0.002;

double fromCubeRoot(double value)
{
    constexpr double kKnee = 6.0 / 29.0;
    return value > kKnee ? value * value * value : 3 * kKnee * kKnee * (value - 4.0 / 29.0);
}

Triple toXyz(const LabColour &colour)
{
    const double middle = (colour.lightness + 16) / 116;
    return {kWhiteD50[0] * fromCubeRoot(middle + colour.a / 500),
            kWhiteD50[1] * fromCubeRoot(middle),
            kWhiteD50[2] * fromCubeRoot(middle - colour.b / 200)};
}

Triple toLinearScreen(const LabColour &colour)
{
    const Triple xyz = toXyz(colour);
    Triple channels = {};
    for (size_t i = 0; i < channels.size(); ++i) {
        const Triple &row = kScreenOfXyz[i];
        channels[i] = row[0] * xyz[0] + row[1] * xyz[1] + row[2] * xyz[2];
    }
    return channels;
}

float encode(double linear)
{
    const double value = std::clamp(linear, 0.0, 1.0);
    return float(value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055);
}

} // namespace

QColor LabColour::toScreen() const
{
    const Triple channels = toLinearScreen(*this);
    return QColor::fromRgbF(encode(channels[0]), encode(channels[1]), encode(channels[2])).toRgb();
}

bool LabColour::isOnScreen() const
{
    const Triple channels = toLinearScreen(*this);
    return std::all_of(channels.begin(), channels.end(),
                       [](double value) { return value > -kRounding && value < 1 + kRounding; });
}
