#include "DifferenceBarPanel.h"

#include "DifferenceSpread.h"
#include "PaperPalette.h"
#include "WheelGuard.h"

#include "DoubleSpinBoxWithSliderWidget.h"
#include "TXDeltaGradientWidget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr int kSpinBoxWidth = 84;
constexpr int kLeastBarWidth = 420;
constexpr int kDecimals = 1;
constexpr int kLimitStepsOfOne = 10;
/// Wide enough for its right neighbour to be another group.
constexpr int kGroupGap = 2 * GalleryPanel::kGap;

void setUpLimit(DoubleSpinBoxWithSliderWidget *slider)
{
    slider->setDecimals(kDecimals);
    slider->setSingleStep(1.0 / kLimitStepsOfOne);
    slider->setSpinBoxMinimumWidth(kSpinBoxWidth);
    slider->setSpinBoxMaximumWidth(kSpinBoxWidth);
}

} // namespace

DifferenceBarPanel::DifferenceBarPanel(QWidget *parent)
    : GalleryPanel(parent)
    , formulaLabel(new QLabel(this))
    , formulaBox(new QComboBox(this))
    , pairsLabel(new QLabel(this))
    , pairsBox(new QComboBox(this))
    , limitSlider(new DoubleSpinBoxWithSliderWidget(this))
    , paper(makePaper())
    , bar(new TXDeltaGradientWidget(paper))
    , summary(new QLabel(this))
{
    formulaBox->addItems({QString(), QString()});
    formulaBox->setCurrentIndex(int(DifferenceFormula::Ciede2000));
    pairsBox->addItems({QString(), QString()});
    setUpLimit(limitSlider);
    setUpLayout();
    for (QComboBox *box : {formulaBox, pairsBox}) {
        WheelGuard::protect(box);
    }
    changeRange();
    retranslate();

    connect(formulaBox, SIGNAL(currentIndexChanged(int)), this, SLOT(changeRange()));
    connect(pairsBox, SIGNAL(currentIndexChanged(int)), this, SLOT(changeRange()));
    connect(limitSlider, SIGNAL(valueChanged(double)), this, SLOT(changeLimit(double)));
}

DifferenceFormula DifferenceBarPanel::formula() const
{
    return DifferenceFormula(formulaBox->currentIndex());
}

double DifferenceBarPanel::limit() const
{
    return limitSlider->value();
}

void DifferenceBarPanel::retranslate()
{
    setTitle(tr("Differences of the pairs"));
    formulaLabel->setText(tr("&Formula:"));
    formulaBox->setItemText(0, tr("CIE76"));
    formulaBox->setItemText(1, tr("CIEDE2000"));
    formulaBox->setAccessibleName(tr("Formula"));
    pairsLabel->setText(tr("Pa&irs:"));
    pairsBox->setItemText(0, tr("Same patches"));
    pairsBox->setItemText(1, tr("Different patches"));
    pairsBox->setAccessibleName(tr("Pairs"));
    limitSlider->setDataName(tr("Limit:"));
    bar->setAccessibleName(tr("Differences of the pairs"));
    showDifferences();
}

void DifferenceBarPanel::changeRange()
{
    {
        // What the range does to the limit is no choice of the user: a limit that the differences
        // by one formula do not reach is there again with the other one.
        const QSignalBlocker blocker(limitSlider);
        limitSlider->setMaximumValue(largestLimit());
        limitSlider->setValue(chosenLimit());
    }
    showDifferences();
}

void DifferenceBarPanel::changeLimit(double value)
{
    chosenLimit() = value;
    showDifferences();
}

void DifferenceBarPanel::showDifferences()
{
    const QList<PatchPair> shown = pairs();
    const DifferenceSpread spread = differenceSpread(shown, formula(), limit());
    bar->setAverage(spread.mean, spread.meanPercent);
    bar->setLimit(limit(), spread.limitPercent);
    bar->setMax(spread.largest);
    summary->setText(tr("%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the "
                        "pairs are below it; the largest difference is %6.")
                         .arg(locale().toString(spread.belowLimit), locale().toString(shown.size()),
                              inWords(limit()), inWords(spread.mean), inWords(spread.meanPercent),
                              inWords(spread.largest)));
    emit choiceChanged();
}

QList<PatchPair> DifferenceBarPanel::pairs() const
{
    return pairsBox->currentIndex() == 0
        ? ChartComparison::samePatches()
        : ChartComparison::differentPatches(formula(), PairOrder::ByNumber);
}

QString DifferenceBarPanel::inWords(double number) const
{
    return locale().toString(number, 'f', kDecimals);
}

/// The first step that all differences are below.
double DifferenceBarPanel::largestLimit() const
{
    const double largest = differenceSpread(pairs(), formula(), 0).largest;
    return (std::floor(largest * kLimitStepsOfOne) + 1) / kLimitStepsOfOne;
}

double &DifferenceBarPanel::chosenLimit()
{
    return chosenLimits.at(size_t(pairsBox->currentIndex()));
}

/// A light ground in every palette, since the bar's rows are light too.
QWidget *DifferenceBarPanel::makePaper()
{
    auto *ground = new QWidget(this);
    ground->setPalette(paperPalette());
    ground->setAutoFillBackground(true);
    return ground;
}

void DifferenceBarPanel::setUpLayout()
{
    formulaLabel->setBuddy(formulaBox);
    pairsLabel->setBuddy(pairsBox);
    summary->setWordWrap(true);
    bar->setMinimumWidth(kLeastBarWidth);
    bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *line = new QHBoxLayout;
    line->addWidget(formulaLabel);
    line->addWidget(formulaBox);
    line->addSpacing(kGroupGap);
    line->addWidget(pairsLabel);
    line->addWidget(pairsBox);
    line->addSpacing(kGroupGap);
    line->addWidget(limitSlider, 1);

    auto *inPaper = new QVBoxLayout(paper);
    setMargins(inPaper);
    inPaper->addWidget(bar);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(line);
    rows->addWidget(paper);
    rows->addWidget(summary);
}
