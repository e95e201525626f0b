#include "NetworkDriveSupply.h"

#include "TXLogItem.h"
#include "TXLogPrint.h"

bool canConnectNetworkDrives()
{
    TXLogPrint(QStringLiteral("Connecting network drives is not available on Windows."),
               TXLogItem::Warning);
    return false;
}
