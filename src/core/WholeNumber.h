#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

/// Conversions of real numbers to int that are defined for every number: one beyond the range of
/// int gives the nearest int, not-a-number gives 0.
namespace WholeNumber {

/// Drops the fraction, toward zero.
inline int truncated(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    return int(std::clamp(value, kLeast, kMost));
}

/// The nearest whole number; halves go away from zero.
inline int rounded(double value)
{
    return truncated(std::round(value));
}

} // namespace WholeNumber
