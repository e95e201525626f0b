#include "SpectrumPanel.h"

#include "LuminousEfficiency.h"
#include "SpectrumPlot.h"
#include "WheelGuard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace {

/// A little beyond what the eye sees.
constexpr int kLeastNanometres = 300;
constexpr int kMostNanometres = 830;
constexpr int kStepNanometres = 10;

QSpinBox *makeBox(int nanometres, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setRange(kLeastNanometres, kMostNanometres);
    box->setSingleStep(kStepNanometres);
    box->setValue(nanometres);
    WheelGuard::protect(box);
    return box;
}

} // namespace

SpectrumPanel::SpectrumPanel(QWidget *parent)
    : GalleryPanel(parent)
    , startLabel(new QLabel(this))
    , startBox(makeBox(LuminousEfficiency::kFirstNanometres, this))
    , endLabel(new QLabel(this))
    , endBox(makeBox(LuminousEfficiency::kLastNanometres, this))
    , plot(new SpectrumPlot(this))
    , note(new QLabel(this))
{
    setUpLayout();
    retranslate();
    for (QSpinBox *box : {startBox, endBox}) {
        connect(box, SIGNAL(valueChanged(int)), this, SLOT(showRange()));
    }
}

void SpectrumPanel::retranslate()
{
    setTitle(tr("Spectrum"));
    startLabel->setText(tr("F&rom:"));
    endLabel->setText(tr("&To:"));
    startBox->setAccessibleName(tr("First wavelength"));
    endBox->setAccessibleName(tr("Last wavelength"));
    for (QSpinBox *box : {startBox, endBox}) {
        box->setSuffix(tr(" nm"));
    }
    note->setText(tr("How strongly the eye sees light of each wavelength: the function y of the "
                     "CIE 1931 standard observer. The spectrum lies behind it."));
    showRange();
}

void SpectrumPanel::showRange()
{
    // There is a step between the two at least.
    startBox->setMaximum(endBox->value() - kStepNanometres);
    endBox->setMinimum(startBox->value() + kStepNanometres);
    plot->setRange(startBox->value(), endBox->value());
    plot->setAccessibleName(
        tr("Luminous efficiency from %1 to %2 nm")
            .arg(locale().toString(startBox->value()), locale().toString(endBox->value())));
}

void SpectrumPanel::setUpLayout()
{
    startLabel->setBuddy(startBox);
    endLabel->setBuddy(endBox);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);

    auto *line = new QHBoxLayout;
    line->addWidget(startLabel);
    line->addWidget(startBox);
    line->addSpacing(kGap);
    line->addWidget(endLabel);
    line->addWidget(endBox);
    line->addSpacing(2 * kGap);
    line->addWidget(note, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(line);
    rows->addWidget(plot, 1);
}
