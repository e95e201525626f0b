#pragma once

#include "TXGUICommonExport.h"

#include <QByteArray>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

/// What a web service has answered.
struct WebAnswer
{
    /// Whether the transfer ended without an error of the network, of TLS or of HTTP.
    bool isSuccess = false;
    /// The whole body of a successful answer; empty otherwise.
    QByteArray body;
};

/// One blocking exchange with a web service.
///
/// Certificate errors are ignored. There is no time-out: the call returns when the reply has
/// finished, however long the service takes. A body that grows beyond kLargestBody bytes is an
/// error, since it would fill the memory otherwise.
///
/// Thread: any; the caller's events are processed meanwhile, apart from user input.
class TXGUICOMMON_PRIVATE_EXPORT WebExchange
{
public:
    static constexpr qint64 kLargestBody = 64 * 1024 * 1024;

    /// Starts a request by the manager, which lives as long as the call does.
    using Send = std::function<QNetworkReply *(QNetworkAccessManager &manager)>;

    WebExchange() = delete;

    /// Sends and waits for the end of the reply.
    [[nodiscard]] static WebAnswer run(const Send &send);
};
