#include "DifferenceSpread.h"

#include <algorithm>

DifferenceSpread differenceSpread(const QList<PatchPair> &pairs, DifferenceFormula formula,
                                  double limit)
{
    if (pairs.isEmpty()) {
        return {};
    }
    const auto below = [&](double bound) {
        return int(std::count_if(pairs.cbegin(), pairs.cend(),
                                 [=](const PatchPair &pair) { return pair.by(formula) < bound; }));
    };
    const DifferenceStatistics statistics = ChartComparison::statistics(pairs, formula, limit);
    const double onePercent = double(pairs.size()) / 100;
    DifferenceSpread spread;
    spread.mean = statistics.mean;
    spread.meanPercent = below(statistics.mean) / onePercent;
    spread.belowLimit = below(limit);
    spread.limitPercent = spread.belowLimit / onePercent;
    spread.largest = statistics.largest;
    return spread;
}
