// What searches the network for AutoMountNetworkDrive.

#include "AutoMountNetworkDrive.h"
#include "NetworkSearch.h"

QList<QUrl> AutoMountNetworkDrive::findHostsOrShareFolders(QUrl url, void (*found)(QUrl, void *),
                                                           bool (*cancelled)(void *), void *context)
{
    const auto report = [found, context](const QUrl &find) {
        if (found) {
            found(find, context);
        }
    };
    const auto isCancelled = [cancelled, context] {
        return cancelled && cancelled(context);
    };
    return NetworkSearch().run(url, report, isCancelled);
}
