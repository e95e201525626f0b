#include "NetworkDriveSupply.h"

bool canConnectNetworkDrives()
{
    return true;
}
