#include "SelectionPage.h"

#include "ColourPresetCollection.h"
#include "ColourPresetModel.h"
#include "ColourPresetPanel.h"
#include "GalleryPanel.h"
#include "SelectionBarEmissions.h"
#include "SelectionBarOptions.h"
#include "SortedPresetBar.h"
#include "TabOrder.h"

#include "TXError.h"
#include "TXSelectionItemWidget.h"

#include <QGridLayout>

SelectionPage::SelectionPage(QWidget *parent)
    : GalleryPage(parent)
    , collection(std::make_unique<ColourPresetCollection>(ColourPresetCollection::usualFolder()))
    , model(std::make_unique<ColourPresetModel>(*collection))
    , bar(new TXSelectionItemWidget(this))
{
    TXError error;
    collection->load(&error);
    auto *emissions = new SelectionBarEmissions(bar, this);
    sortedBar = new SortedPresetBar(*model, this);
    presets = new ColourPresetPanel(bar, *collection, *model, this);
    presets->setLoadError(error);
    options = new SelectionBarOptions(bar, this);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(GalleryPanel::kGap);
    grid->addWidget(presets, 0, 0, 1, 2);
    grid->addWidget(options, 1, 0);
    grid->addWidget(sortedBar, 1, 1);
    grid->addWidget(emissions, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    setTabOrderOfParts({presets, options, sortedBar, emissions});
    connectPanels();
    sortedBar->showChosen(presets->shownPreset());
}

SelectionPage::~SelectionPage()
{
    // They look at the presets until they are gone.
    qDeleteAll(findChildren<GalleryPanel *>(QString(), Qt::FindDirectChildrenOnly));
}

QString SelectionPage::description() const
{
    return tr("The bar with which a user keeps a collection of presets, each a file of its own: "
              "pick, create, duplicate, rename, import, export, delete.");
}

void SelectionPage::fillForPicture()
{
    bar->startItemEdition();
}

void SelectionPage::followEditing(bool isEditing)
{
    options->setEnabled(!isEditing);
    sortedBar->setEnabled(!isEditing);
}

void SelectionPage::connectPanels()
{
    connect(presets, SIGNAL(shownPresetChanged(QString)), sortedBar, SLOT(showChosen(QString)));
    connect(presets, SIGNAL(editingChanged(bool)), this, SLOT(followEditing(bool)));
    connect(options, SIGNAL(importInBoxChanged(bool)), presets, SLOT(setImportInBox(bool)));
    connect(sortedBar, SIGNAL(chosen(QString)), presets, SLOT(choose(QString)));
    connect(sortedBar, SIGNAL(newWanted()), presets, SLOT(createPreset()));
    connect(sortedBar, SIGNAL(copyWanted()), presets, SLOT(duplicatePreset()));
    connect(sortedBar, SIGNAL(importWanted()), presets, SLOT(importPreset()));
}
