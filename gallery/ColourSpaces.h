#pragma once

#include <array>

/// The curves between the colours of a screen and CIELAB, which both directions share.
namespace ColourSpaces {

using Triple = std::array<double, 3>;

/// X, Y and Z of white for the illuminant D50.
inline constexpr Triple kWhiteD50 = {0.96422, 1.0, 0.82521};

/// The light of a value of sRGB, both from 0 to 1.
[[nodiscard]] double lightOfValue(double value);

/// The value of sRGB for this light, both from 0 to 1.
[[nodiscard]] double valueOfLight(double light);

/// What CIELAB takes of X, Y or Z as a share of white: the cube root, in the dark a straight line.
[[nodiscard]] double rootOfShare(double share);

/// The other way round than rootOfShare().
[[nodiscard]] double shareOfRoot(double root);

} // namespace ColourSpaces
