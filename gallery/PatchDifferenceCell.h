#pragma once

#include "ChartComparison.h"

#include <QWidget>

class QLabel;
class TXColorSquareWidget;

/// A patch of the chart in both sets, side by side, with its name and how far the two are apart.
class PatchDifferenceCell final : public QWidget
{
    Q_OBJECT

public:
    /// For a pair of the same patch.
    explicit PatchDifferenceCell(const PatchPair &pair, QWidget *parent = nullptr);

    /// Shows the difference by the formula, and marks it when it reaches the limit.
    void showDifference(DifferenceFormula formula, double limit);

    /// Sets all texts in the language of the moment, but for the difference.
    void retranslate();

protected:
    /// Frames the swatches anew in the colours of another palette, and turns them to each other
    /// after a change of the reading direction.
    void changeEvent(QEvent *event) override;

private:
    /// Each swatch stands at the edge where the other one is, in both reading directions.
    void moveTogether();
    void setFrames();

    PatchPair pair;
    bool isMarked = false;
    QLabel *name;
    TXColorSquareWidget *older;
    TXColorSquareWidget *newer;
    QLabel *difference;
};
