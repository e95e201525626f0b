#pragma once

#include "ChartComparison.h"
#include "GalleryPanel.h"

#include <QList>

class PatchDifferenceCell;
class QLabel;

/// The chart as swatches, the two sets side by side in each patch.
class PatchSwatchesPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PatchSwatchesPanel(QWidget *parent = nullptr);

    /// Shows the differences by the formula, and marks those that reach the limit.
    void showDifferences(DifferenceFormula formula, double limit);

protected:
    void retranslate() override;

private:
    QList<PatchDifferenceCell *> cells;
    QLabel *note;
    DifferenceFormula shownFormula = DifferenceFormula::Ciede2000;
    double shownLimit = 0;
};
