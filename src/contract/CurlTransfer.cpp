#include "CurlTransfer.h"

#include "CurlSocket.h"
#include "TXTransferSettings.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace {

constexpr int kWatchMilliseconds = 100;
constexpr qsizetype kServerLineBytes = 500;

void initialiseOnce()
{
    [[maybe_unused]] static const CURLcode done = curl_global_init(CURL_GLOBAL_DEFAULT);
}

/// As a single line without control characters, whatever bytes came.
QString plainText(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        u' ');
    return text.trimmed();
}

/// The password, and the parts of login commands that hold it.
std::vector<QByteArray> formsOfSecret(const QByteArray &name, const QByteArray &password)
{
    if (password.isEmpty()) {
        return {};
    }
    const QByteArray plainLogin = '\0' + name + '\0' + password;
    return {password, password.toBase64(), plainLogin.toBase64()};
}

} // namespace

CurlTransfer::CurlTransfer()
{
    initialiseOnce();
    easy = curl_easy_init();
    multi = curl_multi_init();
    if (!easy || !multi) {
        return;
    }
    setWatching();
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // A thread that looks up a name cannot be ended, so it is not waited for.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 2L);
}

CurlTransfer::~CurlTransfer()
{
    curl_multi_cleanup(multi);
    curl_easy_cleanup(easy);
}

void CurlTransfer::setWatching()
{
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, errorText.data());
    curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, debug);
    curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
    curl_easy_setopt(easy, CURLOPT_SOCKOPTFUNCTION, opened);
    curl_easy_setopt(easy, CURLOPT_SOCKOPTDATA, this);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, close);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, this);
}

void CurlTransfer::setFromSettings()
{
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, long(TXTransferSettings::connectTimeout()));
    curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, long(TXTransferSettings::totalTimeout()));
    const QString authorities = TXTransferSettings::certificateAuthoritiesFile();
    if (!authorities.isEmpty()) {
        curl_easy_setopt(easy, CURLOPT_CAINFO, QFile::encodeName(authorities).constData());
        curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    }
}

void CurlTransfer::setLogin(const QByteArray &name, const QByteArray &password)
{
    curl_easy_setopt(easy, CURLOPT_USERNAME, name.constData());
    curl_easy_setopt(easy, CURLOPT_PASSWORD, password.constData());
    secrets = formsOfSecret(name, password);
}

bool CurlTransfer::perform()
{
    if (!easy || !multi) {
        result = CURLE_OUT_OF_MEMORY;
        return false;
    }
    setFromSettings();
    result = CURLE_FAILED_INIT;
    if (curl_multi_add_handle(multi, easy) == CURLM_OK) {
        result = drive();
        curl_multi_remove_handle(multi, easy);
    }
    return result == CURLE_OK;
}

CURLcode CurlTransfer::drive()
{
    int running = 1;
    while (!hasToEnd()) {
        if (curl_multi_perform(multi, &running) != CURLM_OK) {
            return CURLE_FAILED_INIT;
        }
        if (!running) {
            return outcome();
        }
        curl_multi_poll(multi, nullptr, 0, kWatchMilliseconds, nullptr);
    }
    return CURLE_ABORTED_BY_CALLBACK;
}

CURLcode CurlTransfer::outcome()
{
    int left = 0;
    const CURLMsg *message = curl_multi_info_read(multi, &left);
    const CURLcode code = message ? message->data.result : CURLE_FAILED_INIT;
    // What cancel() does to the sockets looks like a broken connection.
    return code != CURLE_OK && isCancelled() ? CURLE_ABORTED_BY_CALLBACK : code;
}

bool CurlTransfer::hasToEnd() const
{
    return isCancelled() || QCoreApplication::closingDown();
}

void CurlTransfer::cancel()
{
    cancelled = true;
    // libcurl blocks in a few places where waking it up is not enough.
    const QMutexLocker locker(&mutex);
    std::for_each(sockets.begin(), sockets.end(), endBothWays);
    if (multi) {
        curl_multi_wakeup(multi);
    }
}

QString CurlTransfer::detail() const
{
    return plainText(QByteArray(errorText.data()));
}

QString CurlTransfer::lastServerLine() const
{
    return plainText(serverLine);
}

int CurlTransfer::debug(CURL *, curl_infotype type, char *data, size_t size, void *transfer)
{
    const auto text = QByteArray::fromRawData(data, qsizetype(size));
    auto *self = static_cast<CurlTransfer *>(transfer);
    if (type == CURLINFO_HEADER_IN && !self->hasSaidGoodbye) {
        self->keepServerLine(text);
    } else if (type == CURLINFO_HEADER_OUT && text == "QUIT\r\n") {
        self->leaveServer();
    }
    return 0;
}

void CurlTransfer::keepServerLine(const QByteArray &line)
{
    const auto isIn = [&line](const QByteArray &secret) {
        return line.contains(secret);
    };
    if (std::none_of(secrets.begin(), secrets.end(), isIn)) {
        // A copy: the line lies in a buffer of libcurl.
        serverLine = QByteArray(line.constData(), std::min(line.size(), kServerLineBytes));
    } else {
        serverLine.clear();
    }
}

void CurlTransfer::leaveServer()
{
    hasSaidGoodbye = true;
    // libcurl would wait for the answer, in a way that nothing can end, and complain.
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, nullptr);
    const QMutexLocker locker(&mutex);
    std::for_each(sockets.begin(), sockets.end(), endReading);
}

int CurlTransfer::opened(void *transfer, curl_socket_t socket, curlsocktype)
{
    auto *self = static_cast<CurlTransfer *>(transfer);
    keepFromChildren(socket);
    const QMutexLocker locker(&self->mutex);
    self->sockets.push_back(socket);
    return self->isCancelled() ? CURL_SOCKOPT_ERROR : CURL_SOCKOPT_OK;
}

int CurlTransfer::close(void *transfer, curl_socket_t socket)
{
    auto *self = static_cast<CurlTransfer *>(transfer);
    const QMutexLocker locker(&self->mutex);
    std::erase(self->sockets, socket);
    return closeSocket(socket);
}
