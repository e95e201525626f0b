#include "DrivesPage.h"

#include "CredentialPanel.h"
#include "DriveManagerPanel.h"
#include "DriveSessionPanel.h"
#include "GalleryPanel.h"
#include "SambaServerPanel.h"
#include "ShareSearchPanel.h"

#include "AutoMountNetworkDriveEditor.h"
#include "CredentialDialog.h"
#include "ShareBrowser.h"
#include "TXAutoMountManager.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QTimer>

namespace {

using Trouble = SambaServerPanel::Trouble;

/// Without what connects drives, or with one that is slow, the picture shows drives whose state is
/// open.
constexpr int kStatesLimitMilliseconds = 8000;

} // namespace

DrivesPage::DrivesPage(QWidget *parent)
    : GalleryPage(parent)
    , serverPanel(new SambaServerPanel(this))
    , managerPanel(new DriveManagerPanel(serverPanel, this))
    , searchPanel(new ShareSearchPanel(serverPanel, this))
    , credentialPanel(new CredentialPanel(this))
    , sessionPanel(new DriveSessionPanel(this))
    , wasFolderThere(QFileInfo::exists(ExampleDrives::linkFolder()))
{
    setUpLayout();
    connect(serverPanel, SIGNAL(runningChanged(bool)), managerPanel, SLOT(setServerRunning(bool)));
    connect(serverPanel, SIGNAL(runningChanged(bool)), searchPanel, SLOT(setServerRunning(bool)));
    connect(searchPanel, SIGNAL(shareChosen(QString)), managerPanel, SLOT(chooseShare(QString)));
}

DrivesPage::~DrivesPage()
{
    // While the server is there and answers.
    serverPanel->setTrouble(Trouble::None);
    managerPanel->drives().removeAllAndWait();
    if (hasStartedManager) {
        TXAutoMountManager::getInstance()->stop();
    }
    if (!wasFolderThere) {
        // Nothing happens while something is in it.
        QDir().rmdir(ExampleDrives::linkFolder());
    }
}

QString DrivesPage::description() const
{
    return tr("Drives of file servers that a program keeps connected. Switch on a real Samba "
              "server on this computer, choose what is to go wrong, add its drives to the list, "
              "and see how they stand.");
}

void DrivesPage::fillForPicture()
{
    serverPanel->setRunning(true);
    credentialPanel->ask();
    // Without a server the picture shows why.
    if (!serverPanel->isRunning()) {
        return;
    }
    isFilling = true;
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    hasStartedManager = hasStartedManager || !manager->isRunning();
    connect(manager,
            SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)),
            this, SLOT(goOnFilling()));
    connect(searchPanel, SIGNAL(searchEnded()), this, SLOT(goOnFilling()));
    QTimer::singleShot(kStatesLimitMilliseconds, this, SLOT(endFilling()));
    manager->start();
    addDrivesForPicture();
    searchPanel->browseServer();
    goOnFilling();
}

QList<GalleryFurtherWindow> DrivesPage::furtherWindows()
{
    QList<GalleryFurtherWindow> windows;
    if (credentialPanel->dialog()) {
        windows.append({QStringLiteral("credentials"), credentialPanel->dialog()});
    }
    if (searchPanel->browser()) {
        windows.append({QStringLiteral("browser"), searchPanel->browser()});
    }
    if (editor) {
        windows.append({QStringLiteral("editor"), editor.get()});
    }
    return windows;
}

void DrivesPage::goOnFilling()
{
    if (!searchPanel->isSearching() && ExampleDrives::undecidedCount() == 0) {
        endFilling();
    }
}

void DrivesPage::endFilling()
{
    if (isFilling) {
        isFilling = false;
        emit becameReady();
    }
}

/// One of each state, where drives can be connected.
void DrivesPage::addDrivesForPicture()
{
    ExampleDrives &drives = managerPanel->drives();
    const QUrl pictures = serverPanel->shareUrl(SambaServerPanel::shares().first());
    const QUrl proofs = serverPanel->shareUrl(SambaServerPanel::shares().last());
    const QString letter = drives.add(pictures);
    drives.addAt(letter, proofs);
    serverPanel->setTrouble(Trouble::UnknownShare);
    drives.add(serverPanel->shareUrl({}));
    serverPanel->setTrouble(Trouble::None);
    drives.add(proofs, false);
    editor = std::make_unique<AutoMountNetworkDriveEditor>(
        TXAutoMountManager::getInstance()->getDrive(0), this);
}

void DrivesPage::setUpLayout()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(GalleryPanel::kGap);
    grid->addWidget(serverPanel, 0, 0, 1, 2);
    grid->addWidget(managerPanel, 1, 0, 1, 2);
    grid->addWidget(searchPanel, 2, 0);
    grid->addWidget(credentialPanel, 3, 0);
    grid->addWidget(sessionPanel, 2, 1, 2, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(3, 1);
}
