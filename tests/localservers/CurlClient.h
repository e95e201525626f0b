#pragma once

#include "LocalServer.h"

#include <QByteArray>
#include <QString>

#include <curl/curl.h>

#include <memory>

/// A client for the tests of the servers: one easy handle of libcurl with a bounded time.
class CurlClient
{
public:
    explicit CurlClient(const QByteArray &scheme, quint16 port)
    {
        set(CURLOPT_URL, (scheme + "://127.0.0.1:" + QByteArray::number(port)).constData());
        set(CURLOPT_NOSIGNAL, 1L);
        set(CURLOPT_TIMEOUT_MS, 20000L);
    }

    template<class Value>
    void set(CURLoption option, Value value)
    {
        curl_easy_setopt(handle.get(), option, value);
    }

    void logIn(const char *user, const char *password)
    {
        set(CURLOPT_USERNAME, user);
        set(CURLOPT_PASSWORD, password);
    }

    /// Lets run() end with CURLE_ABORTED_BY_CALLBACK once the server has fallen silent.
    void giveUpWhenSilent(LocalServer &server)
    {
        set(CURLOPT_NOPROGRESS, 0L);
        set(CURLOPT_XFERINFOFUNCTION, isSilent);
        set(CURLOPT_XFERINFODATA, static_cast<void *>(&server));
        // Else libcurl waits two minutes for the answer to its goodbye.
        set(CURLOPT_SERVER_RESPONSE_TIMEOUT, 1L);
    }

    [[nodiscard]] int run() { return curl_easy_perform(handle.get()); }

    /// The server's last answer as a number; 0 when there was none.
    [[nodiscard]] long answer()
    {
        long code = 0;
        curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &code);
        return code;
    }

private:
    static int isSilent(void *server, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
    {
        return static_cast<LocalServer *>(server)->isSilent() ? 1 : 0;
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle{curl_easy_init(), curl_easy_cleanup};
};
