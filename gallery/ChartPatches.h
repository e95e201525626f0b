#pragma once

#include "LabColour.h"

#include <QString>

#include <array>

/// A patch of the well-known chart of 24 colours, with what was published about it.
struct ChartPatch
{
    /// English name, marked for translation in the context "ChartPatches".
    const char *name;
    /// Average of charts made before November 2014.
    LabColour older;
    /// Reference of charts made since November 2014.
    LabColour newer;

    /// The name in the language of the moment.
    [[nodiscard]] QString translatedName() const;
};

constexpr int kChartPatches = 24;
/// How many patches stand side by side on the chart.
constexpr int kChartColumns = 6;
constexpr int kChartRows = kChartPatches / kChartColumns;

/// All patches, row by row from the chart's top left. The colours are CIELAB under D50 for the 2°
/// observer.
const std::array<ChartPatch, kChartPatches> &chartPatches();

/// What the patches of a row of the chart have in common, in the language of the moment. Empty for
/// a row that there is not.
[[nodiscard]] QString chartRowName(int row);
