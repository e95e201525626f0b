#include "LabPlanePanel.h"

#include "LabPlane.h"
#include "WheelGuard.h"

#include "QSingleItemSquareLayout.h"
#include "RotationLabel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr int kUsualLightness = 60;
constexpr int kMostLightness = 100;
constexpr int kLightnessStep = 5;
constexpr int kMostMargin = 60;
constexpr int kLeastHeight = 240;

} // namespace

LabPlanePanel::LabPlanePanel(QWidget *parent)
    : GalleryPanel(parent)
    , area(new QWidget(this))
    , square(new QSingleItemSquareLayout(area, 0))
    , plane(new LabPlane(area))
    , upLabel(new RotationLabel(this))
    , acrossLabel(new RotationLabel(this))
    , lightnessLabel(new QLabel(this))
    , lightnessBox(new QSpinBox(this))
    , turnLabelText(new QLabel(this))
    , turnBox(new QComboBox(this))
    , marginLabel(new QLabel(this))
    , marginBox(new QSpinBox(this))
    , takeButton(new QPushButton(this))
{
    square->setContentsMargins(0, 0, 0, 0);
    square->addWidget(plane);
    setUpControls();
    setUpLayout();
    retranslate();
    connect(lightnessBox, SIGNAL(valueChanged(int)), this, SLOT(showLightness()));
    connect(turnBox, SIGNAL(currentIndexChanged(int)), this, SLOT(turnLabel()));
    connect(marginBox, SIGNAL(valueChanged(int)), this, SLOT(changeMargin()));
    connect(takeButton, SIGNAL(clicked()), this, SLOT(takeOrPutBack()));
    turnBox->setCurrentIndex(RotationLabel::RotateCounterClockwise);
    plane->setLightness(lightnessBox->value());
}

LabPlanePanel::~LabPlanePanel()
{
    delete takenItem;
}

void LabPlanePanel::retranslate()
{
    setTitle(tr("Square layout and rotated labels"));
    upLabel->setText(tr("b*: blue to yellow"));
    acrossLabel->setText(tr("a*: green to red"));
    giveRoom(upLabel);
    giveRoom(acrossLabel);
    lightnessLabel->setText(tr("Lig&htness:"));
    turnLabelText->setText(tr("&Vertical axis:"));
    turnBox->setItemText(RotationLabel::NoRotation, tr("Upright"));
    turnBox->setItemText(RotationLabel::RotateClockwise, tr("Clockwise"));
    turnBox->setItemText(RotationLabel::RotateCounterClockwise, tr("Counter-clockwise"));
    marginLabel->setText(tr("&Margins:"));
    marginBox->setSuffix(tr(" px"));
    setButtonText(takeButton, takenItem ? tr("Pu&t Back") : tr("&Take Out"));
    plane->setAccessibleName(tr("Colours of lightness %1, with the patches of the chart")
                                 .arg(locale().toString(lightnessBox->value())));
}

void LabPlanePanel::showLightness()
{
    plane->setLightness(lightnessBox->value());
    retranslate();
}

void LabPlanePanel::turnLabel()
{
    upLabel->setRotation(RotationLabel::RotationOption(turnBox->currentIndex()));
    // The label only keeps the rotation.
    giveRoom(upLabel);
    upLabel->updateGeometry();
    upLabel->update();
}

/// The label asks for the height of its font; signs that another font lends may be higher.
void LabPlanePanel::giveRoom(RotationLabel *label)
{
    const QSize upright = label->fontMetrics().size(Qt::TextSingleLine, label->text());
    const bool isTurned = label->rotation() != RotationLabel::NoRotation;
    label->setMinimumSize(isTurned ? upright.transposed() : upright);
}

void LabPlanePanel::changeMargin()
{
    const int margin = marginBox->value();
    square->setContentsMargins(margin, margin, margin, margin);
    layOutAnew();
}

void LabPlanePanel::takeOrPutBack()
{
    if (takenItem) {
        square->addItem(takenItem);
        takenItem = nullptr;
        layOutAnew();
    } else {
        takenItem = square->take();
    }
    plane->setVisible(!takenItem);
    retranslate();
}

/// The layout does nothing for a rectangle that it has received before.
void LabPlanePanel::layOutAnew()
{
    square->setLastReceivedRect({});
    square->setGeometry(area->rect());
}

void LabPlanePanel::setUpControls()
{
    lightnessLabel->setBuddy(lightnessBox);
    lightnessBox->setRange(0, kMostLightness);
    lightnessBox->setSingleStep(kLightnessStep);
    lightnessBox->setValue(kUsualLightness);
    turnLabelText->setBuddy(turnBox);
    turnBox->addItems({{}, {}, {}});
    marginLabel->setBuddy(marginBox);
    marginBox->setRange(0, kMostMargin);
    for (QWidget *control : QList<QWidget *>{lightnessBox, turnBox, marginBox}) {
        WheelGuard::protect(control);
    }
}

void LabPlanePanel::setUpLayout()
{
    area->setMinimumHeight(kLeastHeight);
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (RotationLabel *label : {upLabel, acrossLabel}) {
        label->setAlignment(Qt::AlignCenter);
    }
    auto *plot = new QGridLayout;
    plot->addWidget(upLabel, 0, 0);
    plot->addWidget(area, 0, 1);
    plot->addWidget(acrossLabel, 1, 1);
    plot->setColumnStretch(1, 1);
    plot->setRowStretch(0, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(plot, 1);
    rows->addLayout(makeControlRow());
}

QHBoxLayout *LabPlanePanel::makeControlRow()
{
    auto *grid = new QGridLayout;
    grid->addWidget(lightnessLabel, 0, 0);
    grid->addWidget(lightnessBox, 0, 1);
    grid->addWidget(turnLabelText, 0, 2);
    grid->addWidget(turnBox, 0, 3);
    grid->addWidget(marginLabel, 1, 0);
    grid->addWidget(marginBox, 1, 1);
    grid->addWidget(takeButton, 1, 3);
    auto *row = new QHBoxLayout;
    row->addLayout(grid);
    row->addStretch();
    return row;
}
