#include "CurlReason.h"

#include "CurlTransfer.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Sentence
{
    int code;
    /// Whether libcurl's own words tell more, such as the name of the server.
    bool isDetailOfUse;
    const char *text;
};

constexpr std::array kSentences = {
    Sentence{CURLE_UNSUPPORTED_PROTOCOL, true,
             QT_TRANSLATE_NOOP("QObject", "This kind of address is not supported.")},
    Sentence{CURLE_URL_MALFORMAT, true, QT_TRANSLATE_NOOP("QObject", "The address is not valid.")},
    Sentence{CURLE_COULDNT_RESOLVE_HOST, true,
             QT_TRANSLATE_NOOP("QObject", "No server of that name was found.")},
    Sentence{CURLE_COULDNT_CONNECT, true,
             QT_TRANSLATE_NOOP("QObject",
                               "The server cannot be reached, or nothing answers on that port.")},
    Sentence{CURLE_WEIRD_SERVER_REPLY, false,
             QT_TRANSLATE_NOOP("QObject", "The server gave an unexpected answer.")},
    Sentence{CURLE_REMOTE_ACCESS_DENIED, false,
             QT_TRANSLATE_NOOP("QObject", "The server denied access.")},
    Sentence{CURLE_OPERATION_TIMEDOUT, false,
             QT_TRANSLATE_NOOP("QObject", "The server did not answer in time.")},
    Sentence{CURLE_SSL_CONNECT_ERROR, true,
             QT_TRANSLATE_NOOP("QObject",
                               "No encrypted connection could be made. Perhaps the port is not "
                               "for encrypted connections.")},
    Sentence{CURLE_ABORTED_BY_CALLBACK, false,
             QT_TRANSLATE_NOOP("QObject", "The transfer was cancelled.")},
    Sentence{CURLE_GOT_NOTHING, false,
             QT_TRANSLATE_NOOP("QObject", "The server closed the connection.")},
    Sentence{CURLE_SEND_ERROR, false,
             QT_TRANSLATE_NOOP("QObject",
                               "The connection was broken or the server refused what was sent.")},
    Sentence{CURLE_RECV_ERROR, false,
             QT_TRANSLATE_NOOP("QObject", "The connection was broken by the server.")},
    Sentence{CURLE_PEER_FAILED_VERIFICATION, true,
             QT_TRANSLATE_NOOP("QObject",
                               "The identity of the server could not be verified: its certificate "
                               "or key is not trusted or belongs to another server.")},
    Sentence{CURLE_USE_SSL_FAILED, false,
             QT_TRANSLATE_NOOP("QObject", "The server does not offer an encrypted connection.")},
    Sentence{CURLE_LOGIN_DENIED, false,
             QT_TRANSLATE_NOOP("QObject",
                               "The server refused the login. Check user name and password.")},
    Sentence{CURLE_SSL_CACERT_BADFILE, true,
             QT_TRANSLATE_NOOP("QObject",
                               "The file of trusted certificate authorities cannot be read.")},
    Sentence{CURLE_REMOTE_FILE_NOT_FOUND, false,
             QT_TRANSLATE_NOOP("QObject", "The server does not have that file or folder.")},
    Sentence{CURLE_SSH, true,
             QT_TRANSLATE_NOOP("QObject", "The SSH connection to the server failed.")},
};

const Sentence *sentenceOf(int code)
{
    const auto isOfCode = [code](const Sentence &sentence) {
        return sentence.code == code;
    };
    const auto found = std::find_if(kSentences.begin(), kSentences.end(), isOfCode);
    return found == kSentences.end() ? nullptr : &*found;
}

/// "250 ok" before a silence says nothing about the silence; SMTP and FTP agree about the digits.
bool isComplaint(const QString &serverLine)
{
    return !serverLine.isEmpty() && !QStringLiteral("123").contains(serverLine.front());
}

} // namespace

QString curlSentence(int code)
{
    if (code == CURLE_OK) {
        return {};
    }
    const Sentence *sentence = sentenceOf(code);
    return sentence ? QCoreApplication::translate("QObject", sentence->text)
                    : QString::fromUtf8(curl_easy_strerror(CURLcode(code)));
}

QString curlReason(const CurlTransfer &transfer, const QString &sentence)
{
    if (transfer.code() == CURLE_OK) {
        return {};
    }
    QString reason = sentence.isEmpty() ? curlSentence(transfer.code()) : sentence;
    const Sentence *known = sentenceOf(transfer.code());
    const bool isDetailOfUse = sentence.isEmpty() && (!known || known->isDetailOfUse);
    if (isDetailOfUse && !transfer.detail().isEmpty()) {
        reason += u'\n' + transfer.detail();
    }
    if (isComplaint(transfer.lastServerLine())) {
        reason += u'\n'
            + QCoreApplication::translate("QObject", "The server's last message: %1")
                  .arg(transfer.lastServerLine());
    }
    return reason;
}
