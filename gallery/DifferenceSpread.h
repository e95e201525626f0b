#pragma once

#include "ChartComparison.h"

/// How a list of differences is spread, as a bar of colour differences shows it. Percentages are
/// shares of the list.
struct DifferenceSpread
{
    double mean = 0;
    /// How many are smaller than the mean, in percent.
    double meanPercent = 0;
    /// How many are smaller than the limit.
    int belowLimit = 0;
    /// The same in percent.
    double limitPercent = 0;
    double largest = 0;
};

/// The spread of the pairs by the formula. All 0 for an empty list.
[[nodiscard]] DifferenceSpread differenceSpread(const QList<PatchPair> &pairs,
                                                DifferenceFormula formula, double limit);
