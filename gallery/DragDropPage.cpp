#include "DragDropPage.h"

#include "DragDropEmissions.h"
#include "FileDropPanel.h"
#include "FolderDropPanel.h"

#include <QGridLayout>

namespace {

constexpr int kFolderShare = 2;

} // namespace

DragDropPage::DragDropPage(QWidget *parent)
    : GalleryPage(parent)
    , files(new FileDropPanel(this))
{
    auto *folders = new FolderDropPanel(this);
    auto *emissions = new DragDropEmissions(this);
    emissions->listen(files->dropField());
    emissions->listen(folders->orderedView());
    emissions->listen(folders->sortedView());

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(GalleryPanel::kGap);
    grid->addWidget(files, 0, 0);
    grid->addWidget(folders, 0, 1);
    grid->addWidget(emissions, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, kFolderShare);
    grid->setRowStretch(1, 1);
}

QString DragDropPage::description() const
{
    return tr("A field that takes files dropped from here or from any program, and folders that "
              "are sorted by dragging, in two views that stay in step.");
}

void DragDropPage::fillForPicture()
{
    files->fillForPicture();
}
