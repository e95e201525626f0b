#include "PrintJobForm.h"

#include "GalleryPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace {

constexpr int kLargestInkPercent = 400;
constexpr int kUsualInkPercent = 320;
constexpr double kUsualTolerance = 2.5;
constexpr double kToleranceStep = 0.1;

/// Goes on from the left column to the right one at the same height.
constexpr int kLeft = 0;
constexpr int kRight = 2;

void setItems(QComboBox *box, const QStringList &texts)
{
    for (int i = 0; i < texts.size(); ++i) {
        if (i == box->count()) {
            box->addItem(texts[i]);
        } else {
            box->setItemText(i, texts[i]);
        }
    }
}

} // namespace

PrintJobForm::PrintJobForm(QWidget *parent)
    : QWidget(parent)
    , paperLabel(new QLabel(this))
    , paperBox(new QComboBox(this))
    , intentLabel(new QLabel(this))
    , intentBox(new QComboBox(this))
    , inkLabel(new QLabel(this))
    , inkBox(new QSpinBox(this))
    , toleranceLabel(new QLabel(this))
    , toleranceBox(new QDoubleSpinBox(this))
    , blackPointBox(new QCheckBox(this))
{
    inkBox->setRange(0, kLargestInkPercent);
    inkBox->setValue(kUsualInkPercent);
    inkBox->setSuffix(QStringLiteral(" %"));
    toleranceBox->setSingleStep(kToleranceStep);
    toleranceBox->setValue(kUsualTolerance);
    blackPointBox->setChecked(true);
    paperLabel->setBuddy(paperBox);
    intentLabel->setBuddy(intentBox);
    inkLabel->setBuddy(inkBox);
    toleranceLabel->setBuddy(toleranceBox);
    setUpLayout();
}

void PrintJobForm::retranslate()
{
    paperLabel->setText(tr("Pape&r:"));
    setItems(paperBox,
             {tr("Coated, 115 g/m²"), tr("Uncoated, 120 g/m²"), tr("Newsprint, 45 g/m²")});
    intentLabel->setText(tr("Rendering &intent:"));
    setItems(intentBox,
             {tr("Relative colorimetric"), tr("Absolute colorimetric"), tr("Perceptual"),
              tr("Saturation")});
    inkLabel->setText(tr("Total i&nk limit:"));
    toleranceLabel->setText(tr("Delta &E tolerance:"));
    blackPointBox->setText(tr("Black point c&ompensation"));
}

void PrintJobForm::setUpLayout()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(GalleryPanel::kGap);
    grid->addWidget(paperLabel, 0, kLeft);
    grid->addWidget(paperBox, 0, kLeft + 1);
    grid->addWidget(intentLabel, 1, kLeft);
    grid->addWidget(intentBox, 1, kLeft + 1);
    grid->addWidget(inkLabel, 0, kRight);
    grid->addWidget(inkBox, 0, kRight + 1);
    grid->addWidget(toleranceLabel, 1, kRight);
    grid->addWidget(toleranceBox, 1, kRight + 1);
    grid->addWidget(blackPointBox, 2, kLeft + 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(kLeft + 1, 1);
    grid->setColumnStretch(kRight + 1, 1);
}
