#pragma once

#include <QList>

/// The formula by which a report sorts, marks and draws. All differences are listed by both.
enum class DifferenceFormula { Cie76, Ciede2000 };

/// In which order a report lists the pairs.
enum class PairOrder { ByNumber, LargestFirst, SmallestFirst };

/// Two patches of the chart, as indexes in chartPatches(): one of the older set against one of the
/// newer, and how far apart they are.
struct PatchPair
{
    int older;
    int newer;
    double cie76;
    double ciede2000;

    [[nodiscard]] double by(DifferenceFormula formula) const;
};

/// What a list of differences comes to.
struct DifferenceStatistics
{
    double mean = 0;
    double largest = 0;
    /// The smallest difference that 95 % of all do not exceed.
    double percentile95 = 0;
    /// How many exceed the tolerance.
    int aboveTolerance = 0;
};

/// The two sets of the chart against each other.
namespace ChartComparison {

/// Each patch against itself in the other set, in the chart's order.
[[nodiscard]] QList<PatchPair> samePatches();

/// Each two different patches once, the lower number in the older set: 276 pairs. Pairs that are
/// equally far apart stay in the order of their numbers.
[[nodiscard]] QList<PatchPair> differentPatches(DifferenceFormula formula, PairOrder order);

/// All 0 for an empty list.
[[nodiscard]] DifferenceStatistics statistics(const QList<PatchPair> &pairs,
                                              DifferenceFormula formula, double tolerance);

} // namespace ChartComparison
