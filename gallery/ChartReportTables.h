#pragma once

#include "ChartReportOptions.h"

#include "TXAlignment.h"
#include "TXTable.h"

#include <QCoreApplication>
#include <QFont>
#include <QHash>
#include <QList>
#include <QSizeF>
#include <QVariant>

/// Makes the tables of the chart report to fill the width of the paper.
class ChartReportTables
{
    Q_DECLARE_TR_FUNCTIONS(ChartReportTables)

public:
    /// Tables for a content area of this size, in points.
    ChartReportTables(const QSizeF &content, const ChartReportOptions &options);

    /// The font in which the tables are to be drawn.
    [[nodiscard]] const QFont &font() const { return cellFont; }

    /// The 24 patches: number, name, both colours as pictures and as numbers, both differences. A
    /// row above each group of patches names it.
    [[nodiscard]] TXTable patches() const;

    /// All 276 pairs of different patches, the older set against the newer.
    [[nodiscard]] TXTable pairs() const;

private:
    /// A cell's settings, before its element and width.
    using Settings = QHash<QString, QVariant>;

    /// Fills a table row by row and keeps count of where it stands.
    class Filler;

    void addGroupRow(Filler &filler, int chartRow) const;
    void addPatchRow(Filler &filler, const PatchPair &pair) const;
    void addPairRow(Filler &filler, const PatchPair &pair, int number) const;
    void addDifference(Filler &filler, const PatchPair &pair, DifferenceFormula formula,
                       bool isMarkedAboveTolerance) const;

    QSizeF content;
    ChartReportOptions options;
    QFont cellFont;
};
