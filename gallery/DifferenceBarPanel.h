#pragma once

#include "ChartComparison.h"
#include "GalleryPanel.h"

#include <array>

class DoubleSpinBoxWithSliderWidget;
class QComboBox;
class QLabel;
class TXDeltaGradientWidget;

/// The differences of the chart's pairs as a bar, with the choice of formula, pairs and limit.
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
    void changePairs();
    void changeLimit(double value);
    void showDifferences();

private:
    /// What is kept for each choice of pairs.
    struct Choice
    {
        double limit;
        double largestLimit;
    };

    [[nodiscard]] QList<PatchPair> pairs() const;
    [[nodiscard]] QString inWords(double number) const;
    [[nodiscard]] Choice &choice();
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
    // The same patch in two sets is hard to tell apart, two patches are not.
    std::array<Choice, 2> choices = {{{1.0, 5.0}, {40.0, 120.0}}};
};
