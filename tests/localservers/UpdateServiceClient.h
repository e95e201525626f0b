#pragma once

#include "LocalUpdateService.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTest>
#include <QUrl>

#include <memory>

/// What the tests of the update service have in common.
namespace UpdateServiceClient {

using ReplyPointer = std::unique_ptr<QNetworkReply>;

constexpr int kPatienceMilliseconds = 20000;
constexpr qint64 kMegabyte = qint64(1024) * 1024;

/// A service's reply with this body.
inline LocalWebReply replyWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    return reply;
}

/// A service's reply with a generated body of so many bytes.
inline LocalWebReply replyOfSize(qint64 size)
{
    LocalWebReply reply;
    reply.generatedSize = size;
    return reply;
}

/// A service, which is not owned, and a client of it.
struct Exchange
{
    explicit Exchange(LocalUpdateService &theService)
        : service(theService)
    { }

    [[nodiscard]] ReplyPointer get(const QByteArray &target)
    {
        const QByteArray url = "https://" + service.authority().toLatin1() + target;
        ReplyPointer reply(manager.get(QNetworkRequest(QUrl::fromEncoded(url))));
        reply->ignoreSslErrors();
        return reply;
    }

    LocalUpdateService &service;
    QNetworkAccessManager manager;
};

/// Waits for the end of the reply.
[[nodiscard]] inline bool finishes(QNetworkReply *reply)
{
    return QTest::qWaitFor([reply]() { return reply->isFinished(); }, kPatienceMilliseconds);
}

/// The HTTP status; 0 before it has come.
[[nodiscard]] inline int statusOf(const QNetworkReply *reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace UpdateServiceClient
