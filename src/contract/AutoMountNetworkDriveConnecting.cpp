// What reaches out to the network for AutoMountNetworkDrive. There is nothing yet that searches or
// mounts, and this says so.

#include "AutoMountNetworkDrive.h"
#include "TXLogItem.h"
#include "TXLogPrint.h"

void AutoMountNetworkDrive::disconnectExplicitlyNetworkDrive()
{
    status = NetworkDriveDisconnected;
}

QList<QUrl> AutoMountNetworkDrive::findHostsOrShareFolders(QUrl, void (*)(QUrl, void *),
                                                           bool (*cancelled)(void *), void *context)
{
    if (cancelled && cancelled(context)) {
        return {};
    }
    TXLogPrint(QStringLiteral("Searching the network for drives is not available yet."),
               TXLogItem::Warning);
    return {};
}
