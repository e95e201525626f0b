#include "LabColourDialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int kMargin = 14;
constexpr int kSwatchSide = 92;
constexpr int kSliderWidth = 170;
constexpr int kLightest = 100;
constexpr int kMostChroma = 127;

} // namespace

LabColourDialog::LabColourDialog(QWidget *parent)
    : TXEmbeddableDialog(parent)
    , axes({makeAxis(0, kLightest), makeAxis(-kMostChroma, kMostChroma),
            makeAxis(-kMostChroma, kMostChroma)})
    , swatch(new QFrame(this))
    , note(new QLabel(this))
    , buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    swatch->setFrameShape(QFrame::StyledPanel);
    swatch->setAutoFillBackground(true);
    swatch->setMinimumSize(kSwatchSide, kSwatchSide);
    note->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    for (const Axis &axis : axes) {
        connect(axis.box, SIGNAL(valueChanged(int)), this, SLOT(showColour()));
    }
    connect(buttons, SIGNAL(accepted()), this, SIGNAL(okClicked()));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    retranslate();
    setColour({48, 62, 34});
}

void LabColourDialog::setColour(const LabColour &colour)
{
    axes[0].box->setValue(qRound(colour.lightness));
    axes[1].box->setValue(qRound(colour.a));
    axes[2].box->setValue(qRound(colour.b));
}

LabColour LabColourDialog::colour() const
{
    return {double(axes[0].box->value()), double(axes[1].box->value()),
            double(axes[2].box->value())};
}

void LabColourDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    TXEmbeddableDialog::changeEvent(event);
}

void LabColourDialog::showColour()
{
    const LabColour shown = colour();
    QPalette colours = swatch->palette();
    colours.setColor(QPalette::Window, shown.toScreen());
    swatch->setPalette(colours);
    const QString name = shown.toScreen().name();
    note->setText(shown.isOnScreen() ? tr("On screen %1").arg(name)
                                     : tr("Beyond the screen; shown as %1").arg(name));
}

LabColourDialog::Axis LabColourDialog::makeAxis(int minimum, int maximum)
{
    const Axis axis = {new QLabel(this), new QSlider(Qt::Horizontal, this), new QSpinBox(this)};
    axis.label->setBuddy(axis.box);
    axis.slider->setRange(minimum, maximum);
    axis.slider->setMinimumWidth(kSliderWidth);
    axis.box->setRange(minimum, maximum);
    connect(axis.slider, SIGNAL(valueChanged(int)), axis.box, SLOT(setValue(int)));
    connect(axis.box, SIGNAL(valueChanged(int)), axis.slider, SLOT(setValue(int)));
    return axis;
}

void LabColourDialog::setUpLayout()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->addWidget(swatch, 0, 0, kAxes, 1);
    for (int row = 0; row < kAxes; ++row) {
        const Axis &axis = axes[size_t(row)];
        grid->addWidget(axis.label, row, 1);
        grid->addWidget(axis.slider, row, 2);
        grid->addWidget(axis.box, row, 3);
    }
    grid->setColumnStretch(2, 1);

    auto *lastRow = new QHBoxLayout;
    lastRow->addWidget(note, 1);
    lastRow->addWidget(buttons);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addLayout(grid, 1);
    rows->addLayout(lastRow);
}

void LabColourDialog::retranslate()
{
    setWindowTitle(tr("Mix a Colour"));
    axes[0].label->setText(tr("Li&ghtness L*:"));
    axes[1].label->setText(tr("Gree&n-red a*:"));
    axes[2].label->setText(tr("&Blue-yellow b*:"));
    const std::array<QString, kAxes> names = {tr("Lightness"), tr("Green to red"),
                                              tr("Blue to yellow")};
    for (size_t i = 0; i < kAxes; ++i) {
        axes[i].slider->setAccessibleName(names[i]);
        axes[i].box->setAccessibleName(names[i]);
    }
    showColour();
}
