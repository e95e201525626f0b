#pragma once

#include "TXGUICommonExport.h"

#include <QString>
#include <QUrl>

/// Where the update service is found. It speaks HTTPS and nothing else.
///
/// A host that wants another service than the one of the build names it at start. The service is
/// read for each request, so a later change counts for the next one.
///
/// Thread: any, at any time, also before there is an application object and while static objects
/// are made.
class TXGUICOMMON_EXPORT TXUpdateService
{
public:
    TXUpdateService() = delete;

    /// Host, and port behind a colon when it is not 443, as in "updates.tovra.example:8443" or
    /// "[::1]:8443". At first the value of the CMake variable TXGUICOMMON_UPDATE_AUTHORITY.
    [[nodiscard]] static QString authority();
    /// Sets the service for all requests from now on. Blanks around it do not count; an empty text
    /// stands for the service of the build.
    ///
    /// Any text is kept. With one that is no host and port ("a/b", "user@host", "host:99999") every
    /// request fails as with an unknown host, and none goes out.
    static void setAuthority(const QString &hostAndPort);

    /// The address of a path of the service, which begins with a slash, parsed in tolerant mode.
    /// Without a host, "https:///path", when authority() is no host and port.
    [[nodiscard]] static QUrl url(const QString &path);
};
