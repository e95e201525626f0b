#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

class QUrl;

/// Tries the connection to an FTP or SFTP server.
///
/// Connecting is not available in this build: every check fails with a code and a text that say so.
///
/// Thread: any; use one object on one thread at a time.
class TXCORECOMMON_EXPORT TXFTP
{
public:
    /// What errorCode() gives; the numbers are those of libcurl.
    enum ErrorCode {
        NoError = 0,
        NotBuiltIn = 4,
        /// The server refused the user name or the password.
        LoginDenied = 67,
    };

    TXFTP();

    /// Connects and logs in as the URL tells, and closes the connection again. Blocks. True when
    /// the server took the login.
    bool check(QUrl url);

    /// Why the last check() failed; NoError before the first and after a successful one.
    [[nodiscard]] int errorCode() const;

    /// The same in translated words, without the password; empty when there is no error.
    [[nodiscard]] QString errorText() const;

private:
    int code = NoError;
};
