#pragma once

#include "TXGUICommonExport.h"

#include <QString>
#include <QUrl>

/// Where the update service is found. It speaks HTTPS and nothing else.
///
/// A host that wants another service than the one of the build names it at start. The service is
/// read for each request, so a later change counts for the next one.
///
/// Thread: any, at any time, also before there is an application object.
class TXGUICOMMON_EXPORT TXUpdateService
{
public:
    TXUpdateService() = delete;

    /// Host, and port behind a colon when it is not 443, as in "updates.tovra.example:8443" or
    /// "[::1]:8443". At first the value of the CMake variable TXGUICOMMON_UPDATE_AUTHORITY.
    static QString authority();
    /// Sets the service for all requests from now on. An empty text stands for that of the build.
    /// A text that is no authority makes every request fail as with an unknown host.
    static void setAuthority(const QString &hostAndPort);

    /// The address of a path of the service, which begins with a slash, parsed in tolerant mode.
    static QUrl url(const QString &path);
};
