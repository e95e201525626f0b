#include "WebExchange.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>

WebAnswer WebExchange::run(const Send &send)
{
    QNetworkAccessManager manager;
    QNetworkReply *reply = send(manager);
    QEventLoop loop;
    QObject::connect(reply, SIGNAL(sslErrors(QList<QSslError>)), reply, SLOT(ignoreSslErrors()));
    QObject::connect(reply, SIGNAL(finished()), &loop, SLOT(quit()));
    // A service that talks on and on would fill the memory.
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > kLargestBody) {
            reply->abort();
        }
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);

    WebAnswer answer;
    answer.isSuccess = reply->error() == QNetworkReply::NoError;
    if (answer.isSuccess) {
        answer.body = reply->readAll();
    }
    reply->deleteLater();
    return answer;
}
