#include "ColourPresetForm.h"

#include "GalleryPanel.h"
#include "TXDoubleSpinBoxDisabled.h"
#include "TXSpinBoxDisabled.h"
#include "WheelGuard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int kLabDecimals = 2;
constexpr double kLabStep = 0.5;
constexpr int kInkStep = 10;
constexpr int kSwatchSide = 26;
constexpr int kBoxWidth = 84;

} // namespace

ColourPresetForm::ColourPresetForm(QWidget *parent)
    : QWidget(parent)
    , intentLabel(new QLabel(this))
    , intentBox(new QComboBox(this))
    , compensationBox(new QCheckBox(this))
    , inkLabel(new QLabel(this))
    , inkBox(new TXSpinBoxDisabled(this))
    , paperLabel(new QLabel(this))
    , swatch(new QFrame(this))
    , axes({makeAxis(0, ColourPreset::kLargestLightness),
            makeAxis(-ColourPreset::kLargestChroma, ColourPreset::kLargestChroma),
            makeAxis(-ColourPreset::kLargestChroma, ColourPreset::kLargestChroma)})
{
    intentLabel->setBuddy(intentBox);
    for (const ColourPreset::Intent intent : ColourPreset::kIntents) {
        intentBox->addItem(QString(), int(intent));
    }
    WheelGuard::protect(intentBox);
    inkLabel->setBuddy(inkBox);
    WheelGuard::protect(inkBox);
    inkBox->setRange(0, ColourPreset::kLargestInkPercent);
    inkBox->setSingleStep(kInkStep);
    inkBox->setSuffix(QStringLiteral(" %"));
    swatch->setFrameShape(QFrame::StyledPanel);
    swatch->setAutoFillBackground(true);
    swatch->setFixedSize(kSwatchSide, kSwatchSide);

    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setUpLayout();
    setEditable(false);
    showPreset(nullptr);
}

void ColourPresetForm::showPreset(const ColourPreset *preset)
{
    setVisible(preset != nullptr);
    base = preset ? *preset : ColourPreset();
    intentBox->setCurrentIndex(intentBox->findData(int(base.intent)));
    compensationBox->setChecked(base.hasBlackPointCompensation);
    inkBox->setValue(base.inkLimitPercent);
    const std::array numbers = {base.paperWhite.lightness, base.paperWhite.a, base.paperWhite.b};
    for (size_t i = 0; i < axes.size(); ++i) {
        axes[i].box->setValue(numbers[i]);
        axes[i].shown = axes[i].box->value();
    }
    showPaper();
}

ColourPreset ColourPresetForm::preset() const
{
    ColourPreset preset = base;
    preset.intent = ColourPreset::Intent(intentBox->currentData().toInt());
    preset.hasBlackPointCompensation = compensationBox->isChecked();
    preset.inkLimitPercent = inkBox->value();
    preset.paperWhite = {valueOf(axes[0], base.paperWhite.lightness),
                         valueOf(axes[1], base.paperWhite.a), valueOf(axes[2], base.paperWhite.b)};
    return preset;
}

void ColourPresetForm::setEditable(bool isEditable)
{
    intentBox->setEnabled(isEditable);
    compensationBox->setEnabled(isEditable);
    inkBox->setEnabled(isEditable);
    for (const Axis &axis : axes) {
        axis.box->setEnabled(isEditable);
    }
}

void ColourPresetForm::focusFirstField()
{
    intentBox->setFocus(Qt::OtherFocusReason);
}

void ColourPresetForm::retranslate()
{
    intentLabel->setText(tr("Rendering &intent:"));
    for (int row = 0; row < intentBox->count(); ++row) {
        const auto intent = ColourPreset::Intent(intentBox->itemData(row).toInt());
        intentBox->setItemText(row, ColourPreset::intentName(intent));
    }
    compensationBox->setText(tr("&Black point compensation"));
    inkLabel->setText(tr("In&k limit:"));
    paperLabel->setText(tr("Paper white:"));
    swatch->setToolTip(tr("The paper as a screen shows it"));
    const std::array names = {tr("Lightness of the paper"), tr("Green to red of the paper"),
                              tr("Blue to yellow of the paper")};
    const std::array signs = {QStringLiteral("L*"), QStringLiteral("a*"), QStringLiteral("b*")};
    for (size_t i = 0; i < axes.size(); ++i) {
        axes[i].label->setText(signs[i]);
        axes[i].box->setAccessibleName(names[i]);
    }
}

void ColourPresetForm::showPaper()
{
    QPalette colours = swatch->palette();
    colours.setColor(QPalette::Window, preset().paperWhite.toScreen());
    swatch->setPalette(colours);
}

ColourPresetForm::Axis ColourPresetForm::makeAxis(double minimum, double maximum)
{
    const Axis axis = {new QLabel(this), new TXDoubleSpinBoxDisabled(this)};
    WheelGuard::protect(axis.box);
    axis.box->setDecimals(kLabDecimals);
    axis.box->setRange(minimum, maximum);
    axis.box->setSingleStep(kLabStep);
    connect(axis.box, SIGNAL(valueChanged(double)), this, SLOT(showPaper()));
    return axis;
}

void ColourPresetForm::setUpLayout()
{
    // By themselves they are measured while they are disabled, without their frames and buttons.
    const QSize leastSize(kBoxWidth, intentBox->sizeHint().height());
    inkBox->setMinimumSize(leastSize);
    for (const Axis &axis : axes) {
        axis.box->setMinimumSize(leastSize);
    }

    auto *paperRow = new QHBoxLayout;
    paperRow->addWidget(swatch);
    for (const Axis &axis : axes) {
        paperRow->addSpacing(GalleryPanel::kGap / 2);
        paperRow->addWidget(axis.label);
        paperRow->addWidget(axis.box);
    }
    paperRow->addStretch();

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(GalleryPanel::kGap);
    grid->addWidget(intentLabel, 0, 0);
    grid->addWidget(intentBox, 0, 1);
    grid->addWidget(compensationBox, 0, 2);
    grid->addWidget(inkLabel, 1, 0);
    grid->addWidget(inkBox, 1, 1, Qt::AlignLeft);
    grid->addWidget(paperLabel, 2, 0);
    grid->addLayout(paperRow, 2, 1, 1, 2);
    grid->setColumnStretch(2, 1);
}

double ColourPresetForm::valueOf(const Axis &axis, double original)
{
    return axis.box->value() == axis.shown ? original : axis.box->value();
}
