#pragma once

#include "TXGUICommonExport.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QString>

#include <functional>

class QNetworkAccessManager;

/// What a web service has answered.
struct WebAnswer
{
    /// Whether the transfer ended without an error of the network, of TLS or of HTTP.
    bool isSuccess = false;

    /// The whole body of a successful answer; empty otherwise.
    QByteArray body;

    /// What went wrong; NoError exactly for a successful answer.
    QNetworkReply::NetworkError error = QNetworkReply::NoError;

    /// The same in words, for the user; empty for a successful answer.
    QString errorText;
};

/// One blocking exchange with a web service.
///
/// Certificate errors are ignored. There is no time-out: the call returns when the reply has
/// finished, however long the service takes. Two things end it early, as an exchange that was
/// cancelled: a body that grows beyond kLargestBody, since it would fill the memory, and the end of
/// the calling thread's event loop, as by QCoreApplication::quit().
///
/// Thread: any; nothing of another thread is needed meanwhile. The caller's events are processed
/// apart from user input, so what called may be gone afterwards.
class TXGUICOMMON_PRIVATE_EXPORT WebExchange
{
public:
    /// The most bytes that a body may have, after decompression.
    static constexpr qint64 kLargestBody = 32LL * 1024 * 1024;

    /// Starts a request by the manager and returns its reply, never null. The manager lives as long
    /// as the call of run() does, and the reply with it: what the request reads from, such as the
    /// parts of a form, may be made a child of the reply.
    using Send = std::function<QNetworkReply *(QNetworkAccessManager &manager)>;

    /// Takes what it wants of a reply that has finished, with or without an error. The reply lives
    /// until the call returns.
    using Receive = std::function<void(QNetworkReply &reply)>;

    WebExchange() = delete;

    /// Sends and waits for the end of the reply.
    [[nodiscard]] static WebAnswer run(const Send &send);

    /// Sends, waits for the end of the reply and hands it over, unread. The end of the thread's
    /// event loop leaves nobody to tell: then `receive` is not called.
    static void run(const Send &send, const Receive &receive);
};
