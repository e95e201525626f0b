// What disconnects for AutoMountNetworkDrive.

#include "AutoMountNetworkDrive.h"
#include "TXAutoMountManager.h"

void AutoMountNetworkDrive::disconnectExplicitlyNetworkDrive()
{
    TXAutoMountManager::getInstance()->disconnectDrive(*this);
    status = NetworkDriveDisconnected;
}
