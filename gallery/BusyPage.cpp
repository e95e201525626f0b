#include "BusyPage.h"

#include "FolderScanPanel.h"
#include "ReportExportPanel.h"
#include "TaskFinishedPanel.h"
#include "WorkersPanel.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLibraryInfo>
#include <QVBoxLayout>

BusyPage::BusyPage(QWidget *parent)
    : GalleryPage(parent)
    , scanPanel(new FolderScanPanel(this))
    , workersPanel(new WorkersPanel(this))
    , exportPanel(new ReportExportPanel(this))
    , finishedPanel(
          new TaskFinishedPanel({workersPanel->progress(), exportPanel->progress()}, this))
{
    setUpLayout();
    retranslate();
    connect(scanPanel, SIGNAL(resultShown()), this, SLOT(checkReady()));
    connect(workersPanel, SIGNAL(countsShown()), this, SLOT(checkReady()));
}

QString BusyPage::description() const
{
    return tr("A spinner over a list that is being filled, and progress bars that many threads, or "
              "the GUI thread itself, report to while they work.");
}

void BusyPage::fillForPicture()
{
    isPicture = true;
    constexpr int kKindsForPicture = 4;
    exportPanel->setKinds(kKindsForPicture);
    exportPanel->start();
    // Trees that every machine with Qt has, and enough in them to be under way for a while.
    scanPanel->setFolders(QDir::toNativeSeparators(QLibraryInfo::path(QLibraryInfo::PrefixPath)));
    scanPanel->start();
    workersPanel->setFolders(
        QDir::toNativeSeparators(QLibraryInfo::path(QLibraryInfo::LibrariesPath)));
    workersPanel->start();
    isFilling = true;
}

void BusyPage::retranslate()
{
    finishedPanel->setNames({tr("Several workers"), tr("Report export")});
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
    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(exportPanel, 1);
    columns->addWidget(finishedPanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(scanPanel);
    rows->addWidget(workersPanel);
    rows->addLayout(columns);
    rows->addStretch();
}
