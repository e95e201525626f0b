#include "TXFTP.h"

#include "CurlReason.h"
#include "CurlTransfer.h"
#include "TXTransferSettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qsizetype kMostLoginBytes = 65536;

bool isSupported(const QString &scheme)
{
    return scheme == u"ftp" || scheme == u"ftps" || scheme == u"sftp";
}

/// Bytes rather than text: what was percent-encoded need not be UTF-8.
QByteArray userName(const QUrl &url)
{
    return QByteArray::fromPercentEncoding(url.userName(QUrl::FullyEncoded).toLatin1());
}

QByteArray password(const QUrl &url)
{
    return QByteArray::fromPercentEncoding(url.password(QUrl::FullyEncoded).toLatin1());
}

bool hasControlCharacter(const QByteArray &bytes)
{
    constexpr char kFirstPrintable = 0x20;
    constexpr char kDelete = 0x7f;
    return std::any_of(bytes.begin(), bytes.end(),
                       [](char c) { return (c >= 0 && c < kFirstPrintable) || c == kDelete; });
}

struct Fault
{
    int code = TXFTP::NoError;
    QString text;
};

Fault faultOfLogin(const QByteArray &user, const QByteArray &secret)
{
    if (hasControlCharacter(user) || hasControlCharacter(secret)) {
        return {TXFTP::InvalidUrl,
                QCoreApplication::translate(
                    "TXFTP", "The user name or the password contains a control character.")};
    }
    if (user.size() > kMostLoginBytes || secret.size() > kMostLoginBytes) {
        return {TXFTP::InvalidUrl,
                QCoreApplication::translate("TXFTP", "The user name or the password is too long.")};
    }
    return {};
}

/// What keeps the URL from being tried at all. A valid URL has no control character in its host.
Fault faultOf(const QUrl &url)
{
    if (!url.isValid()) {
        return {TXFTP::InvalidUrl,
                QCoreApplication::translate("TXFTP", "The address is not valid.")};
    }
    if (!isSupported(url.scheme())) {
        return {TXFTP::UnsupportedScheme,
                QCoreApplication::translate("TXFTP",
                                            "The address has to begin with ftp, ftps or sftp.")};
    }
    if (url.host().isEmpty()) {
        return {TXFTP::InvalidUrl,
                QCoreApplication::translate("TXFTP", "The address names no server.")};
    }
    if (url.port() == 0) {
        return {
            TXFTP::InvalidUrl,
            QCoreApplication::translate("TXFTP", "The port number has to be between 1 and 65535.")};
    }
    return faultOfLogin(userName(url), password(url));
}

/// Scheme, host and port alone: the login goes another way, and no path is looked at.
QByteArray targetOf(const QUrl &url)
{
    return url.toEncoded(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery
                         | QUrl::RemoveFragment);
}

void prepare(const CurlTransfer &transfer, const QUrl &url)
{
    CURL *handle = transfer.handle();
    curl_easy_setopt(handle, CURLOPT_URL, targetOf(url).constData());
    curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(handle, CURLOPT_SSH_AUTH_TYPES,
                     long(CURLSSH_AUTH_PASSWORD | CURLSSH_AUTH_KEYBOARD));
    const QString knownHosts = TXTransferSettings::knownHostsFile();
    if (!knownHosts.isEmpty()) {
        curl_easy_setopt(handle, CURLOPT_SSH_KNOWNHOSTS, QFile::encodeName(knownHosts).constData());
    }
}

} // namespace

TXFTP::TXFTP() = default;

bool TXFTP::check(QUrl url)
{
    const Fault fault = faultOf(url);
    code = fault.code;
    text = fault.text;
    if (code == NoError) {
        tryConnection(url);
    }
    return code == NoError;
}

void TXFTP::tryConnection(const QUrl &url)
{
    CurlTransfer transfer;
    prepare(transfer, url);
    // Without a name libcurl logs in to FTP as "anonymous"; an empty one would be sent as it is.
    if (!url.userName().isEmpty()) {
        transfer.setLogin(userName(url), password(url));
    }
    transfer.perform();
    code = transfer.code();
    text = curlReason(transfer);
}

int TXFTP::errorCode() const
{
    return code;
}

QString TXFTP::errorText() const
{
    return text;
}
