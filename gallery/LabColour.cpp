#include "LabColour.h"

#include "ColourSpaces.h"

#include <algorithm>
#include <array>

namespace {

using ColourSpaces::kWhiteD50;
using ColourSpaces::shareOfRoot;
using ColourSpaces::Triple;

/// From XYZ under D50 to linear sRGB under D65, by the Bradford transform.
constexpr std::array<Triple, 3> kScreenOfXyz = {{
    {3.1338561, -1.6168667, -0.4906146},
    {-0.9787684, 1.9161415, 0.0334540},
    {0.0719453, -0.2289914, 1.4052427},
}};

/// How far a channel may lie outside and still be taken for rounding.
constexpr double kRounding = 0.002;

Triple toXyz(const LabColour &colour)
{
    const double middle = (colour.lightness + 16) / 116;
    return {kWhiteD50[0] * shareOfRoot(middle + colour.a / 500), kWhiteD50[1] * shareOfRoot(middle),
            kWhiteD50[2] * shareOfRoot(middle - colour.b / 200)};
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
    return float(ColourSpaces::valueOfLight(std::clamp(linear, 0.0, 1.0)));
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
