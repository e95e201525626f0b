#include "BusyPage.h"

#include "FolderScanPanel.h"
#include "WorkersPanel.h"

#include <QDir>
#include <QLibraryInfo>
#include <QVBoxLayout>

BusyPage::BusyPage(QWidget *parent)
    : GalleryPage(parent)
    , scanPanel(new FolderScanPanel(this))
    , workersPanel(new WorkersPanel(this))
{
    setUpLayout();
    connect(scanPanel, SIGNAL(resultShown()), this, SLOT(checkReady()));
    connect(workersPanel, SIGNAL(countsShown()), this, SLOT(checkReady()));
}

QString BusyPage::description() const
{
    return tr("A spinner over a list that is being filled, and a progress bar that many threads "
              "report to while they work.");
}

void BusyPage::fillForPicture()
{
    isPicture = true;
    // Trees that every machine with Qt has, and enough in them to be under way for a while.
    scanPanel->setFolders(QDir::toNativeSeparators(QLibraryInfo::path(QLibraryInfo::PrefixPath)));
    scanPanel->start();
    workersPanel->setFolders(
        QDir::toNativeSeparators(QLibraryInfo::path(QLibraryInfo::LibrariesPath)));
    workersPanel->start();
    isFilling = true;
}

void BusyPage::hideEvent(QHideEvent *event)
{
    if (isPicture) {
        scanPanel->cancel();
        workersPanel->cancel();
    }
    GalleryPage::hideEvent(event);
}

/// A small tree may be done before its work is seen.
void BusyPage::checkReady()
{
    const bool isScanSeen = scanPanel->hasResult() || !scanPanel->isRunning();
    const bool isBarSeen = workersPanel->isBarUnderWay() || !workersPanel->isRunning();
    if (isFilling && isScanSeen && isBarSeen) {
        isFilling = false;
        emit becameReady();
    }
}

void BusyPage::setUpLayout()
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(scanPanel);
    rows->addWidget(workersPanel);
    rows->addStretch();
}
