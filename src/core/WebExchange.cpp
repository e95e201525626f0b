#include "WebExchange.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QObject>

namespace {

/// Ends a transfer whose body is too large: a service that talks on and on would fill the memory.
class BodyLimit : public QObject
{
    Q_OBJECT

public:
    explicit BodyLimit(QNetworkReply &limitedReply)
        : reply(limitedReply)
    { }

public slots:
    void check()
    {
        if (reply.bytesAvailable() > WebExchange::kLargestBody) {
            reply.abort();
        }
    }

private:
    QNetworkReply &reply;
};

/// Whether the reply has finished by itself.
bool waitFor(QNetworkReply &reply)
{
    QEventLoop loop;
    BodyLimit limit(reply);
    QObject::connect(&reply, SIGNAL(sslErrors(QList<QSslError>)), &reply, SLOT(ignoreSslErrors()));
    QObject::connect(&reply, SIGNAL(finished()), &loop, SLOT(quit()));
    QObject::connect(&reply, SIGNAL(readyRead()), &limit, SLOT(check()));
    if (!reply.isFinished()) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    // The end of the thread's event loop ends this one too, and half a body is no answer.
    const bool isFinished = reply.isFinished();
    if (!isFinished) {
        reply.abort();
    }
    return isFinished;
}

WebAnswer answerIn(QNetworkReply &reply)
{
    WebAnswer answer;
    answer.error = reply.error();
    answer.isSuccess = answer.error == QNetworkReply::NoError;
    if (answer.isSuccess) {
        answer.body = reply.readAll();
    } else {
        answer.errorText = reply.errorString();
    }
    return answer;
}

/// Sends, waits, and shows the reply with whether it has finished by itself.
template<class Use>
void sendAndUse(const WebExchange::Send &send, const Use &use)
{
    QNetworkAccessManager manager;
    QNetworkReply *reply = send(manager);
    const bool isFinished = waitFor(*reply);
    use(*reply, isFinished);
    reply->deleteLater();
}

} // namespace

WebAnswer WebExchange::run(const Send &send)
{
    WebAnswer answer;
    sendAndUse(send, [&answer](QNetworkReply &reply, bool) { answer = answerIn(reply); });
    return answer;
}

void WebExchange::run(const Send &send, const Receive &receive)
{
    sendAndUse(send, [&receive](QNetworkReply &reply, bool isFinished) {
        if (isFinished) {
            receive(reply);
        }
    });
}

#include "WebExchange.moc"
