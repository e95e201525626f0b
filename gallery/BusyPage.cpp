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
    const QString libraries = QLibraryInfo::path(QLibraryInfo::LibrariesPath);
    const QString shared = QLibraryInfo::path(QLibraryInfo::PrefixPath) + QStringLiteral("/share");
    scanPanel->setFolders(QDir::toNativeSeparators(shared + QDir::listSeparator() + libraries));
    workersPanel->setFolders(QDir::toNativeSeparators(libraries));
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

/// A small tree may be done before its work is seen. The scan is the quicker one and begins when
/// the bar is under way, so that both are seen at work.
void BusyPage::checkReady()
{
    const bool isBarSeen = workersPanel->isBarUnderWay() || !workersPanel->isRunning();
    if (!isFilling || !isBarSeen) {
        return;
    }
    if (!isScanStarted) {
        isScanStarted = true;
        scanPanel->start();
    }
    // Starting it has led here once already.
    if (isFilling && (scanPanel->hasResult() || !scanPanel->isRunning())) {
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
