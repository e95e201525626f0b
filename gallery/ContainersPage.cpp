#include "ContainersPage.h"

#include "BoldTitlePanel.h"
#include "FoldingPanel.h"
#include "LabPlanePanel.h"
#include "PatchFlowPanel.h"
#include "PatchSplitPanel.h"

#include <QHBoxLayout>

namespace {

QHBoxLayout *sideBySide(QWidget *left, QWidget *right)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(GalleryPanel::kGap);
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return row;
}

} // namespace

ContainersPage::ContainersPage(QWidget *parent)
    : GalleryPage(parent)
{
    auto *flow = new PatchFlowPanel(this);
    auto *plane = new LabPlanePanel(this);
    auto *splitters = new PatchSplitPanel(this);
    auto *folding = new FoldingPanel(this);
    auto *titles = new BoldTitlePanel(this);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(flow);
    rows->addLayout(sideBySide(plane, splitters));
    rows->addLayout(sideBySide(folding, titles));
    rows->addStretch();
}

QString ContainersPage::description() const
{
    return tr("What holds other widgets: a flow of equal cells, a square, splitters with a grip, "
              "group boxes that fold or have a bold title; and labels that are turned.");
}
