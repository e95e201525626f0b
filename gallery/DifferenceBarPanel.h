#pragma once

#include "ChartComparison.h"
#include "GalleryPanel.h"

#include <array>

class DoubleSpinBoxWithSliderWidget;
class QComboBox;
class QLabel;
class TXDeltaGradientWidget;

/// The differences of the chart's pairs as a bar, with the choice of formula, pairs and limit. The
/// limit goes from 0 to just above the largest of the differences.
class DifferenceBarPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit DifferenceBarPanel(QWidget *parent = nullptr);

    /// The formula that is chosen now.
    [[nodiscard]] DifferenceFormula formula() const;

    /// The limit that is chosen now, for the pairs that are chosen now.
    [[nodiscard]] double limit() const;

signals:
    /// Formula or limit may be others now.
    void choiceChanged();

protected:
    void retranslate() override;

private slots:
    void changeRange();
    void changeLimit(double value);
    void showDifferences();

private:
    [[nodiscard]] QList<PatchPair> pairs() const;
    [[nodiscard]] QString inWords(double number) const;
    [[nodiscard]] double largestLimit() const;
    [[nodiscard]] double &chosenLimit();
    [[nodiscard]] QWidget *makePaper();
    void setUpLayout();

    QLabel *formulaLabel;
    QComboBox *formulaBox;
    QLabel *pairsLabel;
    QComboBox *pairsBox;
    DoubleSpinBoxWithSliderWidget *limitSlider;
    QWidget *paper;
    TXDeltaGradientWidget *bar;
    QLabel *summary;
    // As the user has chosen it for each choice of pairs. The same patch in two sets is hard to
    // tell apart, two patches are not.
    std::array<double, 2> chosenLimits = {1.0, 40.0};
};
