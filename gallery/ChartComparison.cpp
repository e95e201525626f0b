#include "ChartComparison.h"

#include "ChartPatches.h"
#include "ColourDifference.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

PatchPair makePair(int older, int newer)
{
    const LabColour &first = chartPatches()[size_t(older)].older;
    const LabColour &second = chartPatches()[size_t(newer)].newer;
    return {older, newer, ColourDifference::cie76(first, second),
            ColourDifference::ciede2000(first, second)};
}

QList<double> sortedDifferences(const QList<PatchPair> &pairs, DifferenceFormula formula)
{
    QList<double> values;
    values.reserve(pairs.size());
    for (const PatchPair &pair : pairs) {
        values.append(pair.by(formula));
    }
    std::sort(values.begin(), values.end());
    return values;
}

} // namespace

double PatchPair::by(DifferenceFormula formula) const
{
    return formula == DifferenceFormula::Cie76 ? cie76 : ciede2000;
}

QList<PatchPair> ChartComparison::samePatches()
{
    QList<PatchPair> pairs;
    for (int i = 0; i < kChartPatches; ++i) {
        pairs.append(makePair(i, i));
    }
    return pairs;
}

QList<PatchPair> ChartComparison::differentPatches(DifferenceFormula formula, PairOrder order)
{
    QList<PatchPair> pairs;
    for (int older = 0; older < kChartPatches; ++older) {
        for (int newer = older + 1; newer < kChartPatches; ++newer) {
            pairs.append(makePair(older, newer));
        }
    }
    if (order != PairOrder::ByNumber) {
        const bool isLargestFirst = order == PairOrder::LargestFirst;
        const auto comesFirst = [=](const PatchPair &one, const PatchPair &two) {
            return isLargestFirst ? one.by(formula) > two.by(formula)
                                  : one.by(formula) < two.by(formula);
        };
        std::stable_sort(pairs.begin(), pairs.end(), comesFirst);
    }
    return pairs;
}

DifferenceStatistics ChartComparison::statistics(const QList<PatchPair> &pairs,
                                                 DifferenceFormula formula, double tolerance)
{
    if (pairs.isEmpty()) {
        return {};
    }
    const QList<double> values = sortedDifferences(pairs, formula);
    const auto rank = qsizetype(std::ceil(0.95 * double(values.size())));
    const auto firstAbove = std::upper_bound(values.cbegin(), values.cend(), tolerance);
    DifferenceStatistics result;
    result.mean = std::accumulate(values.cbegin(), values.cend(), 0.0) / double(values.size());
    result.largest = values.constLast();
    result.percentile95 = values.at(rank - 1);
    result.aboveTolerance = int(values.cend() - firstAbove);
    return result;
}
