#pragma once

#include "ChartComparison.h"

#include <QPageLayout>
#include <QPageSize>

/// What the reader of a chart report chooses.
struct ChartReportOptions
{
    DifferenceFormula formula = DifferenceFormula::Ciede2000;
    /// Differences by the formula that exceed it are marked. Above 0.
    double tolerance = 1.0;
    PairOrder order = PairOrder::LargestFirst;
    QPageSize::PageSizeId paper = QPageSize::A4;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};
