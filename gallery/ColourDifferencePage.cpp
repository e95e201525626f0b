#include "ColourDifferencePage.h"

#include "DifferenceBarPanel.h"
#include "PatchSwatchesPanel.h"
#include "SpectrumPanel.h"

#include <QVBoxLayout>

ColourDifferencePage::ColourDifferencePage(QWidget *parent)
    : GalleryPage(parent)
    , barPanel(new DifferenceBarPanel(this))
    , swatchesPanel(new PatchSwatchesPanel(this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(barPanel);
    rows->addWidget(swatchesPanel);
    rows->addWidget(new SpectrumPanel(this), 1);
    showDifferences();
    connect(barPanel, SIGNAL(choiceChanged()), this, SLOT(showDifferences()));
}

QString ColourDifferencePage::description() const
{
    return tr("How far two sets of colours of a chart are apart: as a bar, as swatches, and the "
              "spectrum behind a curve.");
}

/// The panels set their texts themselves.
void ColourDifferencePage::retranslate() { }

void ColourDifferencePage::showDifferences()
{
    swatchesPanel->showDifferences(barPanel->formula(), barPanel->limit());
}
