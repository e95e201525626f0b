#include "ListsPage.h"

#include "ChartTreePanel.h"
#include "ComboBoxPanel.h"
#include "PatchListPanel.h"
#include "PatchRunsPanel.h"

#include <QHBoxLayout>

ListsPage::ListsPage(QWidget *parent)
    : GalleryPage(parent)
{
    auto *top = new QHBoxLayout;
    top->setSpacing(GalleryPanel::kGap);
    top->addWidget(new ChartTreePanel(this), 1);
    top->addWidget(new PatchListPanel(this), 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(new ComboBoxPanel(this));
    rows->addLayout(top);
    rows->addWidget(new PatchRunsPanel(this));
    rows->addStretch();
}

QString ListsPage::description() const
{
    return tr("What the library draws into lists, tables and trees, and its combo boxes.");
}
