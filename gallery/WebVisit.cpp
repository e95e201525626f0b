#include "WebVisit.h"

#include "LeftToRight.h"
#include "RegularFile.h"
#include "WebSettings.h"

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslCertificate>
#include <QSslConfiguration>

namespace {

constexpr int kPatienceMilliseconds = 5000;
constexpr qint64 kLargestAnswer = 1 << 20;

QSslConfiguration trusting(const QString &certificate)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(isNoRegularFile(certificate)
                                        ? QList<QSslCertificate>()
                                        : QSslCertificate::fromPath(certificate));
    return configuration;
}

} // namespace

WebVisit::WebVisit(QObject *parent)
    : QObject(parent)
{
    manager.setProxy(QNetworkProxy::NoProxy);
    patience.setSingleShot(true);
    patience.setInterval(kPatienceMilliseconds);
    connect(&patience, SIGNAL(timeout()), this, SLOT(giveUp()));
}

WebVisit::~WebVisit()
{
    drop();
}

void WebVisit::start(const WebSettings &settings)
{
    drop();
    // Of a server that was here before, with another certificate.
    manager.clearConnectionCache();
    QNetworkRequest request(settings.url());
    if (!settings.user.isEmpty()) {
        const QByteArray login = (settings.user + u':' + settings.password).toUtf8();
        request.setRawHeader("Authorization", "Basic " + login.toBase64());
    }
    if (settings.isSecure) {
        request.setSslConfiguration(trusting(settings.certificate));
    }
    reply = manager.get(request);
    // A longer answer is not read on, and the time runs out.
    reply->setReadBufferSize(kLargestAnswer);
    connect(reply, SIGNAL(finished()), this, SLOT(takeAnswer()));
    patience.start();
}

void WebVisit::takeAnswer()
{
    patience.stop();
    QNetworkReply *answer = reply;
    reply = nullptr;
    answer->deleteLater();
    const QString place = leftToRight(answer->url().toString(QUrl::FullyEncoded));
    const QVariant status = answer->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const bool isWhole = answer->error() != QNetworkReply::OperationCanceledError;
    emit ended(status.isValid() && isWhole
                   ? tr("%1: status %2, %3 bytes")
                         .arg(place, status.toString(), QString::number(answer->readAll().size()))
                   : tr("%1: %2").arg(place, answer->errorString()));
}

void WebVisit::giveUp()
{
    reply->abort();
}

void WebVisit::drop()
{
    if (reply) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
        reply = nullptr;
    }
}
