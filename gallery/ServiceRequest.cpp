#include "ServiceRequest.h"

#include "JsonText.h"
#include "UpdateQuestion.h"

#include <QCoreApplication>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QVariantMap>

namespace {

constexpr int kFirstStatusOfSuccess = 200;
constexpr int kFirstStatusBeyondSuccess = 300;
constexpr int kMillisecondsOfASecond = 1000;

TXStringI18n message(const char *text)
{
    return {"ServiceRequest", text, nullptr, -1};
}

/// With what the library's update dialog sends.
QUrl addressAt(const QString &authority)
{
    QUrl url(QStringLiteral("https://%1/checkUpdate").arg(authority));
    url.setQuery(UpdateQuestion::query());
    return url;
}

int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isSuccess(int status)
{
    return status >= kFirstStatusOfSuccess && status < kFirstStatusBeyondSuccess;
}

QVariantMap headersOf(const QNetworkReply &reply)
{
    QVariantMap headers;
    const QList<QNetworkReply::RawHeaderPair> &pairs = reply.rawHeaderPairs();
    for (const auto &[name, text] : pairs) {
        headers.insert(QString::fromLatin1(name), QString::fromLatin1(text));
    }
    return headers;
}

} // namespace

ServiceRequest::ServiceRequest(QObject *parent)
    : QObject(parent)
    , manager(new QNetworkAccessManager(this))
{ }

ServiceRequest::~ServiceRequest()
{
    cancel();
}

void ServiceRequest::ask(const QString &authority)
{
    cancel();
    isTooLarge = false;
    askedAddress = addressAt(authority);
    QNetworkRequest request(askedAddress);
    request.setTransferTimeout(silenceLimit);
    // Elsewhere the certificate would count.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    reply = manager->get(request);
    connect(reply, SIGNAL(sslErrors(QList<QSslError>)), reply, SLOT(ignoreSslErrors()));
    connect(reply, SIGNAL(readyRead()), this, SLOT(checkSize()));
    connect(reply, SIGNAL(finished()), this, SLOT(finish()));
}

void ServiceRequest::cancel()
{
    if (reply == nullptr) {
        return;
    }
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
    reply = nullptr;
}

/// A service that talks on and on would fill the memory.
void ServiceRequest::checkSize()
{
    if (reply->bytesAvailable() > kLargestJsonBytes) {
        isTooLarge = true;
        reply->abort();
    }
}

void ServiceRequest::finish()
{
    QNetworkReply *ended = reply;
    reply = nullptr;
    ended->deleteLater();
    take(*ended);
}

void ServiceRequest::take(QNetworkReply &ended)
{
    if (ended.error() != QNetworkReply::NoError || !isSuccess(statusOf(ended))) {
        emit failed(failureOf(ended), {});
        return;
    }
    const JsonReading body = readJsonText(ended.readAll());
    if (!body.error.isEmpty()) {
        emit failed(
            message(QT_TRANSLATE_NOOP("ServiceRequest", "The answer of the service is not shown.")),
            body.error);
        return;
    }
    emit answered(QVariantMap{{QStringLiteral("status"), statusOf(ended)},
                              {QStringLiteral("headers"), headersOf(ended)},
                              {QStringLiteral("body"), body.value}});
}

TXStringI18n ServiceRequest::failureOf(QNetworkReply &ended) const
{
    if (isTooLarge) {
        return message(
            QT_TRANSLATE_NOOP("ServiceRequest", "The answer of the service is too large."));
    }
    switch (ended.error()) {
    case QNetworkReply::ConnectionRefusedError:
        return message(QT_TRANSLATE_NOOP("ServiceRequest", "Nobody listens at %1."))
            .arg(ended.url().authority());
    case QNetworkReply::RemoteHostClosedError:
        return message(QT_TRANSLATE_NOOP(
            "ServiceRequest", "The service has closed the connection before it had answered."));
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return message(QT_TRANSLATE_NOOP("ServiceRequest",
                                         "The service has said nothing for %1 seconds."))
            .arg(QLocale().toString(double(silenceLimit) / kMillisecondsOfASecond));
    default:
        break;
    }
    if (statusOf(ended) != 0) {
        return message(QT_TRANSLATE_NOOP("ServiceRequest",
                                         "The service has answered with HTTP status %1."))
            .arg(QString::number(statusOf(ended)));
    }
    return message(QT_TRANSLATE_NOOP("ServiceRequest", "The service cannot be asked: %1."))
        .arg(ended.errorString());
}
