#pragma once

#include "TXGUICommonExport.h"

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QUrl>

/// The addresses at which a web server of this computer can be reached, as URLs and as the HTML
/// that a user reads. Holds no state; any thread.
namespace WebAddressList {

/// What a URL takes from the settings of the server.
struct Service
{
    /// HTTPS instead of HTTP.
    bool isSecure = false;
    /// 0 to 65535. The standard port is left out of a URL of its own scheme, and only there.
    int port = 0;
    /// As the user has typed it, in clear: a "%" is a percent sign. White space around it is
    /// dropped, and a slash goes before and behind what is left; none that is there already counts.
    QString path;
};

/// Where the service is reached at this address of the computer.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QUrl url(const QHostAddress &address,
                                                  const Service &service);

/// A line with a link for each IPv4 address, in the order given; those of other protocols are left
/// out. The address of the loopback interface has a note in the language of the moment. Empty for a
/// port above 65535. Nothing of the path is read as markup. Costs the number of addresses times the
/// length of the path.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString html(const QList<QHostAddress> &addresses,
                                                      const Service &service);

} // namespace WebAddressList
