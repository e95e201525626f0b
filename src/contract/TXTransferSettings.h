#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// What all transfers of the process (mail, FTP, SFTP) have in common. A host that wants other
/// values than the defaults sets them at start.
///
/// A transfer reads them once, when it starts; a later change counts for the next one. Nothing here
/// is stored beyond the process.
///
/// Thread: any, at any time, also before there is an application object.
class TXCORECOMMON_EXPORT TXTransferSettings
{
public:
    /// See connectTimeout().
    static constexpr int kDefaultConnectTimeoutMilliseconds = 15000;
    /// See totalTimeout().
    static constexpr int kDefaultTotalTimeoutMilliseconds = 60000;

    TXTransferSettings() = delete;

    /// How long a transfer may take, in milliseconds, from looking up the server's name until the
    /// server has taken the login (for a mail: until it is ready for the sender). Default 15000.
    static int connectTimeout();
    /// A value below 1 stands for the default.
    static void setConnectTimeout(int milliseconds);

    /// How long a transfer may take as a whole, connecting included, in milliseconds. Default
    /// 60000.
    static int totalTimeout();
    /// A value below 1 stands for the default.
    static void setTotalTimeout(int milliseconds);

    /// Path of a file of certificates in PEM format. A server that speaks TLS has to show a
    /// certificate that one of them has signed, and those of the system no longer count: a host
    /// that wants both puts both into the file. Empty, the default, means those of the system.
    ///
    /// A file that cannot be read lets every TLS connection fail. Certificates cannot be left
    /// unchecked.
    static QString certificateAuthoritiesFile();
    /// Sets the file; it is read when a transfer starts.
    static void setCertificateAuthoritiesFile(const QString &path);

    /// Path of a file of known host keys in OpenSSH format. An SFTP server whose key is not in it
    /// is refused. Empty, the default, means that host keys are not checked.
    static QString knownHostsFile();
    /// Sets the file; it is read when a transfer starts.
    static void setKnownHostsFile(const QString &path);
};
