#include "ListsPage.h"

#include "ChartTreePanel.h"
#include "ComboBoxPanel.h"
#include "PatchListPanel.h"
#include "PatchRunsPanel.h"

#include <QHBoxLayout>

ListsPage::ListsPage(QWidget *parent)
    : GalleryPage(parent)
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(new ComboBoxPanel(this));

    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(new ChartTreePanel(this), 1);
    columns->addWidget(new PatchListPanel(this), 1);
    rows->addLayout(columns);
    rows->addWidget(new PatchRunsPanel(this));
    rows->addStretch();
}

QString ListsPage::description() const
{
    return tr("What the library draws into lists, tables and trees, and its combo boxes.");
}
