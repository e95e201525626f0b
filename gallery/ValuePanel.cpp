#include "ValuePanel.h"

#include "PaperArea.h"
#include "ValueExtent.h"
#include "WaitCursor.h"

#include "TXVariantViewer.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Each open level is a widget for each entry: of a value that is large, a part must do.
constexpr qsizetype kMostEntriesToOpen = 1000;
constexpr double kNanosecondsOfAMillisecond = 1e6;

/// Only those in the layout: of the children some may be there from the last time, until they are
/// deleted.
QList<TXVariantViewer *> entriesOf(const TXVariantViewer &viewer)
{
    QList<TXVariantViewer *> entries;
    for (int place = 0; place < viewer.layout()->count(); ++place) {
        QWidget *widget = viewer.layout()->itemAt(place)->widget();
        if (auto *entry = qobject_cast<TXVariantViewer *>(widget)) {
            entries.append(entry);
        }
    }
    return entries;
}

/// Opening makes the entries of an open viewer anew.
void open(TXVariantViewer &viewer)
{
    if (!viewer.isExpanded()) {
        viewer.setExpanded(true);
    }
}

/// What a closed viewer shows. To ask for the value's text would make it once more.
QString lineOf(const TXVariantViewer &viewer)
{
    return viewer.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text();
}

} // namespace

ValuePanel::ValuePanel(QWidget *parent)
    : GalleryPanel(parent)
    , sourceLabel(new QLabel(this))
    , area(new PaperArea(this))
    , viewer(area->viewer())
    , openButton(new QPushButton(this))
    , closeButton(new QPushButton(this))
    , hoverBox(new QCheckBox(this))
    , previewBox(new QCheckBox(this))
    , amountsLabel(new QLabel(this))
{
    hoverBox->setChecked(true);
    viewer->setHoverEffects(true);
    previewBox->setChecked(viewer->hasPreview());
    sourceLabel->setTextFormat(Qt::PlainText);
    sourceLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Long names must not make the page wide.
    sourceLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    amountsLabel->setForegroundRole(QPalette::PlaceholderText);
    turn.setSingleShot(true);
    setUpLayout();
    retranslate();
    connect(hoverBox, SIGNAL(toggled(bool)), viewer, SLOT(setHoverEffects(bool)));
    connect(previewBox, SIGNAL(toggled(bool)), this, SLOT(applyPreview(bool)));
    connect(openButton, SIGNAL(clicked()), this, SLOT(openTwoLevels()));
    connect(closeButton, SIGNAL(clicked()), this, SLOT(foldUp()));
    connect(&turn, SIGNAL(timeout()), this, SLOT(showDuration()));
}

void ValuePanel::setValue(const QVariant &newValue, const TXStringI18n &source)
{
    shownValue = newValue;
    shownSource = source;
    setViewerValue();
    openButton->setEnabled(viewer->isExpandable());
    closeButton->setEnabled(viewer->isExpandable());
    sourceLabel->setText(source.toString());
    sourceLabel->setToolTip(source.toString());
}

void ValuePanel::openTwoLevels()
{
    const WaitCursor cursor;
    begin(Work::Opening);
    open(*viewer);
    qsizetype opened = 0;
    const QList<TXVariantViewer *> entries = entriesOf(*viewer);
    for (TXVariantViewer *entry : entries) {
        if (opened > kMostEntriesToOpen) {
            break;
        }
        open(*entry);
        opened += 1 + entriesOf(*entry).size();
    }
    showAmounts();
}

void ValuePanel::foldUp()
{
    begin(Work::Closing);
    viewer->setExpanded(false);
    showAmounts();
}

void ValuePanel::retranslate()
{
    setTitle(tr("Value"));
    sourceLabel->setText(shownSource.toString());
    sourceLabel->setToolTip(sourceLabel->text());
    viewer->setAccessibleName(tr("Value"));
    hoverBox->setText(tr("&Hover effects"));
    hoverBox->setToolTip(tr("Lights the innermost value under the mouse."));
    previewBox->setText(tr("&Preview"));
    previewBox->setToolTip(tr("Shows what lists and dictionaries hold in their line."));
    setButtonText(openButton, tr("Open &Two Levels"));
    setButtonText(closeButton, tr("&Close"));
    showAmounts();
}

/// The flag counts from the next value on, so the value is set again.
void ValuePanel::applyPreview(bool isWanted)
{
    viewer->setPreview(isWanted);
    setViewerValue();
}

void ValuePanel::showDuration()
{
    // The layouts have done their part by now; what is hidden is not painted.
    area->viewport()->repaint();
    milliseconds = double(clock.nsecsElapsed()) / kNanosecondsOfAMillisecond;
    showAmounts();
    emit shown();
}

void ValuePanel::begin(Work newWork)
{
    work = newWork;
    clock.start();
    turn.start(0);
}

void ValuePanel::setViewerValue()
{
    const WaitCursor cursor;
    begin(Work::Showing);
    viewer->setValue(shownValue);
    valueCount = countValues(shownValue);
    characterCount = countShownCharacters(lineOf(*viewer));
    showAmounts();
}

void ValuePanel::showAmounts()
{
    amountsLabel->setText(
        tr("Values: %1. Characters of the line: %2. %3")
            .arg(locale().toString(valueCount), locale().toString(characterCount), durationText()));
}

QString ValuePanel::durationText() const
{
    const QString time = locale().toString(milliseconds, 'f', 1);
    switch (isAtWork() ? Work::None : work) {
    case Work::None:
        break;
    case Work::Showing:
        return tr("Shown in %1 ms.").arg(time);
    case Work::Opening:
        return tr("Opened in %1 ms.").arg(time);
    case Work::Closing:
        return tr("Closed in %1 ms.").arg(time);
    }
    return {};
}

void ValuePanel::setUpLayout()
{
    auto *switches = new QHBoxLayout;
    switches->setSpacing(kGap);
    switches->addWidget(openButton);
    switches->addWidget(closeButton);
    switches->addSpacing(kGap);
    switches->addWidget(hoverBox);
    switches->addWidget(previewBox);
    switches->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(sourceLabel);
    rows->addWidget(area, 1);
    rows->addLayout(switches);
    rows->addWidget(amountsLabel);
}
