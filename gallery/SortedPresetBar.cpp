#include "SortedPresetBar.h"

#include "ColourPresetModel.h"

#include "TXSelectionItemWidget.h"

#include <QComboBox>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace {

/// The gallery's own presets can be read whole in the smallest window; longer names in the list.
constexpr int kLeastBoxWidth = 170;

} // namespace

SortedPresetBar::SortedPresetBar(ColourPresetModel &model, QWidget *parent)
    : GalleryPanel(parent)
    , sorted(new QSortFilterProxyModel(this))
    , bar(new TXSelectionItemWidget(this))
    , note(new QLabel(this))
{
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    sorted->setSortLocaleAware(true);
    hideButtons();
    bar->setImportViaComboBox(false);
    bar->setVisibleImportButton(true);
    bar->itemComboBox()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    bar->itemComboBox()->setMinimumWidth(kLeastBoxWidth);
    bar->setModel(&model, sorted, nullptr);
    sorted->sort(0);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(bar);
    rows->addWidget(note);
    rows->addStretch();
    retranslate();
    connect(bar, SIGNAL(itemSelectionChanged(QVariant)), this, SLOT(takeSelection(QVariant)));
    connect(bar, SIGNAL(addNewItemHasBeenRequest()), this, SIGNAL(newWanted()));
    connect(bar, SIGNAL(duplicateItemHasBeenRequest()), this, SIGNAL(copyWanted()));
    connect(bar, SIGNAL(importItemHasBeenRequest()), this, SIGNAL(importWanted()));
}

void SortedPresetBar::showChosen(const QString &id)
{
    bar->activateChangedSignal(false);
    bar->selectItem(id);
    bar->activateChangedSignal(true);
}

void SortedPresetBar::retranslate()
{
    setTitle(tr("Small variant, sorted"));
    bar->setLabelName(tr("By name:"));
    bar->setImportName(tr("Import..."));
    note->setText(tr("The same presets through a sorting proxy. The menu of the button takes the "
                     "place of the others."));
}

void SortedPresetBar::takeSelection(const QVariant &value)
{
    if (value.isValid()) {
        emit chosen(value.toString());
    }
}

void SortedPresetBar::hideButtons()
{
    bar->hideAddNewItemButton();
    bar->hideRemoveButton();
    bar->hideExportButton();
    bar->hideDuplicateItemButton();
    bar->hideSaveItemButton();
    bar->hideEditionItemButton();
    bar->hideImportItemButton();
}
