#include "Samples.h"

#include <AutoMountManagerMainWindow.h>
#include <AutoMountNetworkDrive.h>
#include <TXAutoMountManager.h>

#include <QUrl>

//! [add]
void addScansDrive(bool activated)
{
    AutoMountNetworkDrive drive{{"NetworkDriveMountPoint", "S:/"}};
    QUrl url("smb://nas.local/scans");
    url.setUserName("mia");
    url.setPassword("s3cret");
    drive.setUrl(url);
    drive.setActivated(activated);

    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    manager->add(drive);
    manager->saveDriveList();
}
//! [add]

//! [start]
void startDrives()
{
    TXAutoMountManager::getInstance()->start();
}
//! [start]

//! [window]
void showDrives(QWidget *parent)
{
    auto *window = new AutoMountManagerMainWindow(parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}
//! [window]
