#include "SwitchPanel.h"

#include "TXSwitchSlider.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace {

/// A handle is nearly as wide as the switch is high: so it has two clear places.
constexpr int kWidthPerHeight = 2;
constexpr int kPartGap = 7;
/// A higher one would be drawn with square corners: the radii of its style sheet grow faster than
/// what it draws, and a radius above half the height counts for nothing.
constexpr int kLargestHeight = 38;

enum Column {
    CaptionColumn,
    EnabledColumn,
    StateColumn,
    DisabledOffColumn,
    DisabledOnColumn,
    StretchColumn,
};

} // namespace

SwitchPanel::SwitchPanel(QWidget *parent)
    : GalleryPanel(parent)
    , enabledHeading(new QLabel(this))
    , disabledHeading(new QLabel(this))
    , rows({makeRow(20, false), makeRow(30, true), makeRow(kLargestHeight, false)})
    , allButton(new QPushButton(this))
    , clicks(new QLabel(this))
{
    setUpLayout();
    retranslate();
    for (const Row &row : qAsConst(rows)) {
        connect(row.slider, SIGNAL(clicked(bool)), this, SLOT(noteClick(bool)));
    }
    connect(allButton, SIGNAL(clicked()), this, SLOT(turnAllOn()));
}

void SwitchPanel::retranslate()
{
    setTitle(tr("Switch"));
    enabledHeading->setText(tr("Enabled"));
    disabledHeading->setText(tr("Disabled"));
    for (const Row &row : qAsConst(rows)) {
        const QString height = locale().toString(row.height);
        row.caption->setText(tr("%1 pixels").arg(height));
        row.slider->setAccessibleName(tr("Switch of %1 pixels").arg(height));
        row.disabledOff->setAccessibleName(tr("Switch of %1 pixels, disabled").arg(height));
        row.disabledOn->setAccessibleName(tr("Switch of %1 pixels, disabled").arg(height));
    }
    setButtonText(allButton, tr("&Turn All On"));
    showStates();
}

void SwitchPanel::turnAllOn()
{
    for (const Row &row : qAsConst(rows)) {
        row.slider->setChecked(true);
    }
}

void SwitchPanel::noteClick(bool isOn)
{
    const auto *slider = qobject_cast<TXSwitchSlider *>(sender());
    ++clickCount;
    lastState = isOn;
    lastHeight = slider ? slider->height() : 0;
    showStates();
}

void SwitchPanel::showStates()
{
    for (const Row &row : qAsConst(rows)) {
        row.state->setText(row.slider->isChecked() ? tr("on") : tr("off"));
    }
    const QString count = locale().toString(clickCount);
    const QString state = lastState ? tr("on") : tr("off");
    clicks->setText(clickCount == 0 ? tr("clicked: 0")
                                    : tr("clicked: %1, last by %2 pixels: %3")
                                          .arg(count, locale().toString(lastHeight), state));
}

SwitchPanel::Row SwitchPanel::makeRow(int height, bool isOn)
{
    return {height,
            new QLabel(this),
            makeSwitch(height, isOn, true),
            new QLabel(this),
            makeSwitch(height, false, false),
            makeSwitch(height, true, false)};
}

TXSwitchSlider *SwitchPanel::makeSwitch(int height, bool isOn, bool isEnabled)
{
    auto *slider = new TXSwitchSlider(this);
    slider->setFixedSize(kWidthPerHeight * height, height);
    slider->setChecked(isOn);
    slider->setEnabled(isEnabled);
    return slider;
}

void SwitchPanel::setUpLayout()
{
    for (QLabel *heading : {enabledHeading, disabledHeading}) {
        heading->setForegroundRole(QPalette::PlaceholderText);
    }
    auto *grid = new QGridLayout;
    grid->setSpacing(kPartGap);
    grid->addWidget(enabledHeading, 0, EnabledColumn, 1, 2);
    grid->addWidget(disabledHeading, 0, DisabledOffColumn, 1, 2);
    for (int i = 0; i < rows.size(); ++i) {
        addRow(grid, i + 1, rows[i]);
    }
    grid->setColumnStretch(StretchColumn, 1);

    auto *lastRow = new QHBoxLayout;
    lastRow->addWidget(allButton);
    lastRow->addWidget(clicks, 1);

    auto *all = new QVBoxLayout(this);
    setGaps(all);
    all->addLayout(grid);
    all->addStretch();
    all->addLayout(lastRow);
}

void SwitchPanel::addRow(QGridLayout *grid, int gridRow, const Row &row)
{
    grid->addWidget(row.caption, gridRow, CaptionColumn);
    grid->addWidget(row.slider, gridRow, EnabledColumn);
    grid->addWidget(row.state, gridRow, StateColumn);
    grid->addWidget(row.disabledOff, gridRow, DisabledOffColumn);
    grid->addWidget(row.disabledOn, gridRow, DisabledOnColumn);
}
