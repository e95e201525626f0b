#include "PatchFlowPanel.h"

#include "PatchChip.h"
#include "WheelGuard.h"

#include "TXWidgetListWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayoutItem>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>

#include <array>

namespace {

constexpr int kFirstCount = 72;
constexpr int kFlowHeight = 200;
constexpr std::array kFrames = {QFrame::NoFrame, QFrame::Box, QFrame::Panel, QFrame::StyledPanel};

enum Frame {
    NoFrame,
    BoxFrame,
    PanelFrame,
    StyledFrame,
};

} // namespace

PatchFlowPanel::PatchFlowPanel(QWidget *parent)
    : GalleryPanel(parent)
    , flow(new TXWidgetListWidget(this))
    , countLabel(new QLabel(this))
    , countBox(new QSpinBox(this))
    , positionLabel(new QLabel(this))
    , positionBox(new QSpinBox(this))
    , insertButton(new QPushButton(this))
    , removeButton(new QPushButton(this))
    , emptyButton(new QPushButton(this))
    , frameLabel(new QLabel(this))
    , frameBox(new QComboBox(this))
    , namesBox(new QCheckBox(this))
    , state(new QLabel(this))
{
    setUpControls();
    setUpLayout();
    countBox->setValue(kFirstCount);
    changeCount();
    retranslate();
    connect(countBox, SIGNAL(valueChanged(int)), this, SLOT(changeCount()));
    connect(positionBox, SIGNAL(valueChanged(int)), this, SLOT(showState()));
    connect(insertButton, SIGNAL(clicked()), this, SLOT(insertChip()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeChip()));
    connect(emptyButton, SIGNAL(clicked()), this, SLOT(empty()));
    connect(frameBox, SIGNAL(currentIndexChanged(int)), this, SLOT(changeFrame()));
    connect(namesBox, SIGNAL(toggled(bool)), this, SLOT(showNames()));
}

void PatchFlowPanel::retranslate()
{
    setTitle(tr("Flow of equal cells"));
    flow->findChild<QScrollArea *>()->setAccessibleName(tr("Swatches in rows"));
    countLabel->setText(tr("S&watches:"));
    positionLabel->setText(tr("&Position:"));
    setButtonText(insertButton, tr("&Insert"));
    setButtonText(removeButton, tr("&Remove"));
    setButtonText(emptyButton, tr("&Clear"));
    frameLabel->setText(tr("&Frame:"));
    frameBox->setItemText(NoFrame, tr("None"));
    frameBox->setItemText(BoxFrame, tr("Box"));
    frameBox->setItemText(PanelFrame, tr("Panel"));
    frameBox->setItemText(StyledFrame, tr("Of the style"));
    namesBox->setText(tr("&Names"));
    const auto all = chips();
    for (PatchChip *chip : all) {
        chip->retranslate();
    }
    flow->reorganize();
    showState();
}

/// Many chips come or go in one step: one by one, each would lay out all of them again.
void PatchFlowPanel::changeCount()
{
    QList<QLayoutItem *> items = flow->layoutItems();
    QList<QLayoutItem *> dropped;
    while (items.size() > countBox->value()) {
        dropped.append(items.takeLast());
    }
    QList<PatchChip *> added;
    while (items.size() < countBox->value()) {
        added.append(makeChip());
        items.append(new QWidgetItem(added.last()));
    }
    flow->reorganize(items);
    for (QLayoutItem *item : qAsConst(dropped)) {
        delete item->widget();
        delete item;
    }
    for (PatchChip *chip : qAsConst(added)) {
        chip->show();
    }
    showState();
}

void PatchFlowPanel::insertChip()
{
    PatchChip *chip = makeChip();
    flow->insert(positionBox->value() - 1, chip);
    chip->show();
    showCount();
}

void PatchFlowPanel::removeChip()
{
    QWidget *chip = flow->widgetAt(positionBox->value() - 1);
    if (flow->removeWidget(chip)) {
        delete chip;
    }
    showCount();
}

void PatchFlowPanel::empty()
{
    const auto all = chips();
    flow->clear();
    qDeleteAll(all);
    showCount();
}

void PatchFlowPanel::changeFrame()
{
    flow->setFrameShape(kFrames.at(size_t(frameBox->currentIndex())));
}

/// The longest name decides how wide all cells are.
void PatchFlowPanel::showNames()
{
    const auto all = chips();
    for (PatchChip *chip : all) {
        chip->setNameShown(namesBox->isChecked());
    }
    flow->reorganize();
    showState();
}

void PatchFlowPanel::showState()
{
    const int count = flow->count();
    positionBox->setRange(1, count + 1);
    insertButton->setEnabled(count < countBox->maximum());
    removeButton->setEnabled(positionBox->value() <= count);
    emptyButton->setEnabled(count > 0);
    const QSize cell = count > 0 ? flow->widgetAt(0)->minimumSize() : QSize(0, 0);
    state->setText(count > 0
                       ? tr("%1 × %2 pixels each")
                             .arg(locale().toString(cell.width()), locale().toString(cell.height()))
                       : tr("No swatch"));
}

PatchChip *PatchFlowPanel::makeChip()
{
    auto *contents = flow->findChild<QWidget *>(QStringLiteral("scrollAreaWidgetContents"));
    auto *chip = new PatchChip(PatchTint::at(madeChips), contents);
    chip->setNameShown(namesBox->isChecked());
    ++madeChips;
    return chip;
}

QList<PatchChip *> PatchFlowPanel::chips() const
{
    QList<PatchChip *> all;
    const auto items = flow->layoutItems();
    for (QLayoutItem *item : items) {
        all.append(qobject_cast<PatchChip *>(item->widget()));
    }
    return all;
}

void PatchFlowPanel::setUpControls()
{
    countLabel->setBuddy(countBox);
    countBox->setRange(0, PatchTint::kCount);
    // Else each digit on the way to "600" would lay out as many.
    countBox->setKeyboardTracking(false);
    positionLabel->setBuddy(positionBox);
    positionBox->setMinimum(1);
    frameLabel->setBuddy(frameBox);
    frameBox->addItems({{}, {}, {}, {}});
    frameBox->setCurrentIndex(StyledFrame);
    for (QWidget *control : QList<QWidget *>{countBox, positionBox, frameBox}) {
        WheelGuard::protect(control);
    }
    state->setForegroundRole(QPalette::PlaceholderText);
}

void PatchFlowPanel::setUpLayout()
{
    flow->setFixedHeight(kFlowHeight);
    auto *contentRow = new QHBoxLayout;
    for (QWidget *control : QList<QWidget *>{countLabel, countBox, positionLabel, positionBox,
                                             insertButton, removeButton, emptyButton}) {
        contentRow->addWidget(control);
    }
    contentRow->addStretch();
    auto *lookRow = new QHBoxLayout;
    for (QWidget *control : QList<QWidget *>{frameLabel, frameBox, namesBox}) {
        lookRow->addWidget(control);
    }
    lookRow->addSpacing(kGap);
    lookRow->addWidget(state, 1);
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(flow);
    rows->addLayout(contentRow);
    rows->addLayout(lookRow);
}

void PatchFlowPanel::showCount()
{
    const QSignalBlocker blocker(countBox);
    countBox->setValue(flow->count());
    showState();
}
