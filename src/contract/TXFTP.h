#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

class QUrl;

/// Tries the connection to an FTP or SFTP server: whether it is there and takes the login. Nothing
/// is transferred, and no folder but the one in which the login ends is asked for.
///
/// Time-outs, trusted certificates and known host keys are those of TXTransferSettings. As long as
/// no file of known hosts is set there, an SFTP server is believed whatever its key.
///
/// Thread: any; use one object on one thread at a time.
class TXCORECOMMON_EXPORT TXFTP
{
public:
    /// Frequent values of errorCode(); the numbers are those of libcurl, and so are all others.
    enum ErrorCode {
        NoError = 0,
        /// The scheme is none of "ftp", "ftps" and "sftp".
        UnsupportedScheme = 1,
        /// The URL cannot be used, see check().
        InvalidUrl = 3,
        /// There is no server of that name.
        HostNotFound = 6,
        /// The server cannot be reached, or nothing listens on the port.
        CannotConnect = 7,
        /// The server did not answer in time.
        TimedOut = 28,
        /// An ftps or sftp server was there but could not agree with us on encryption.
        NoEncryption = 35,
        /// The application object went down during the check.
        Aborted = 42,
        /// The server's certificate is not trusted, or its host key is not the known one.
        NotTrusted = 60,
        /// The server refused the user name or the password.
        LoginDenied = 67,
    };

    TXFTP();

    /// Connects and logs in as the URL tells, and closes the connection again. True when the server
    /// took the login.
    ///
    /// Blocks, for no longer than the time-outs. When the application object goes down meanwhile,
    /// the check ends with Aborted within a quarter of a second, so that a pool thread does not
    /// hold up the end of the program.
    ///
    /// The scheme is "ftp" (in clear, port 21 when the URL has none), "ftps" (TLS from the first
    /// byte on, port 990) or "sftp" (port 22); path, query and fragment do not matter. User name
    /// and password are used percent-decoded. With an empty user name FTP logs in as
    /// "anonymous", whatever the password is, and SFTP with the empty name. SFTP logs in with the
    /// password alone, never with keys or the key agent of the user who runs the program.
    ///
    /// Refused with InvalidUrl, without a connection: a URL that is not valid, names no host, has
    /// port 0, or has a user name or password with an ASCII control character (a line break would
    /// add commands to the session) or of more than 65536 bytes.
    bool check(QUrl url);

    /// Why the last check() failed; NoError before the first and after a successful one.
    [[nodiscard]] int errorCode() const;

    /// The same in words, in the language at the time of the check; the server's own complaint, if
    /// it had one, follows on a line of its own. Never holds the password. Empty when there is no
    /// error.
    [[nodiscard]] QString errorText() const;

private:
    void tryConnection(const QUrl &url);

    int code = NoError;
    QString text;
};
