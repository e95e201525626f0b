#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QMutex>
#include <QString>

#include <array>
#include <atomic>
#include <vector>

#include <curl/curl.h>

/// One transfer of libcurl that blocks the thread it runs on and can be ended from any other.
///
/// Make it, set what to transfer on handle(), call perform() once, read the outcome. Already set
/// are: the time-outs and the certificate authorities of TXTransferSettings (read by perform()),
/// certificates always checked, no signals, no proxy of the environment, no connection kept for
/// later. When libcurl says goodbye to the server nothing waits for the answer, so a server that
/// falls silent there costs no time.
///
/// Thread: cancel() and isCancelled() any, while the object lives; everything else one thread at a
/// time.
class TXCORECOMMON_PRIVATE_EXPORT CurlTransfer
{
public:
    CurlTransfer();
    /// Closes what perform() may have left. Returns at once; a look-up of a name that hangs goes on
    /// alone.
    ~CurlTransfer();
    Q_DISABLE_COPY_MOVE(CurlTransfer)

    /// For curl_easy_setopt. Null only without memory; perform() then fails. Leave alone:
    /// time-outs, error buffer, debug and socket functions, the options for certificates.
    [[nodiscard]] CURL *handle() const { return easy; }

    /// User name and password for the server; without a call there is no login. A line of the
    /// server that repeats the password, also in the form of a login command, is not kept.
    void setLogin(const QByteArray &name, const QByteArray &password);

    /// Transfers and returns when it has ended, true when it went well. Ends early within 0.1 s of
    /// cancel(), also one before the start, and of the beginning of the application object's
    /// destruction.
    bool perform();

    /// Ends perform(), now or when it comes, unless the transfer is over already.
    void cancel();

    /// True after cancel(), whatever came of the transfer.
    [[nodiscard]] bool isCancelled() const { return cancelled; }

    /// How perform() ended: libcurl's code, CURLE_OK before; CURLE_ABORTED_BY_CALLBACK when it was
    /// ended early.
    [[nodiscard]] int code() const { return result; }

    /// What libcurl says about the failure in English, often more than the code tells; may be
    /// empty.
    [[nodiscard]] QString detail() const;

    /// The last line that the server sent on the control connection (SMTP, FTP) before the goodbye,
    /// without the line end, at most 500 bytes of it, as plain text; empty when it sent none.
    [[nodiscard]] QString lastServerLine() const;

private:
    static int debug(CURL *easy, curl_infotype type, char *data, size_t size, void *transfer);
    static int opened(void *transfer, curl_socket_t socket, curlsocktype purpose);
    static int close(void *transfer, curl_socket_t socket);

    void setWatching();
    void setFromSettings();
    CURLcode drive();
    CURLcode outcome();
    bool hasToEnd() const;
    void keepServerLine(const QByteArray &line);
    void leaveServer();

    CURL *easy = nullptr;
    CURLM *multi = nullptr;
    CURLcode result = CURLE_OK;
    std::array<char, CURL_ERROR_SIZE> errorText = {};
    QByteArray serverLine;
    bool hasSaidGoodbye = false;
    std::vector<QByteArray> secrets;
    std::atomic_bool cancelled = false;

    /// Guards `sockets`: a socket that is in there is not closed yet.
    QMutex mutex;
    std::vector<curl_socket_t> sockets;
};
