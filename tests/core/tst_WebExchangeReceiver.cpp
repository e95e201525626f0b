#include "ClosedPort.h"
#include "LocalUpdateService.h"
#include "TestBase.h"
#include "WebExchange.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QPointer>
#include <QThread>

#include <atomic>
#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 20000;

QUrl urlOf(const LocalUpdateService &service)
{
    return {QStringLiteral("https://%1/download").arg(service.authority())};
}

WebExchange::Send senderTo(const QUrl &url)
{
    return [url](QNetworkAccessManager &manager) {
        return manager.get(QNetworkRequest(url));
    };
}

LocalWebReply replyWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    return reply;
}

} // namespace

/// Exchanges whose reply the caller reads himself.
class TestWebExchangeReceiver : public TestBase
{
    Q_OBJECT

private slots:
    void finishedReplyIsHandedOverUnread();
    void failedReplyIsHandedOver();
    void endlessReplyIsHandedOverAsCancelled();
    void replyGoesAfterItsReceiver();
    void nobodyReceivesAtTheEndOfTheEventLoop();
};

void TestWebExchangeReceiver::finishedReplyIsHandedOverUnread()
{
    LocalUpdateService service;
    service.setDownloadReply(replyWith("{\"result\": true}"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    int calls = 0;
    WebExchange::run(senderTo(urlOf(service)), [&](QNetworkReply &reply) {
        ++calls;
        QVERIFY(reply.isFinished());
        QCOMPARE(reply.error(), QNetworkReply::NoError);
        QCOMPARE(reply.readAll(), QByteArray("{\"result\": true}"));
        QCOMPARE(reply.readAll(), QByteArray());
    });
    QCOMPARE(calls, 1);
}

void TestWebExchangeReceiver::failedReplyIsHandedOver()
{
    QUrl url(QStringLiteral("http://127.0.0.1/"));
    url.setPort(closedPort());
    QList<QNetworkReply::NetworkError> errors;
    WebExchange::run(senderTo(url), [&](QNetworkReply &reply) { errors.append(reply.error()); });
    QCOMPARE(errors, QList<QNetworkReply::NetworkError>{QNetworkReply::ConnectionRefusedError});
}

void TestWebExchangeReceiver::endlessReplyIsHandedOverAsCancelled()
{
    LocalUpdateService service;
    LocalWebReply endless = replyWith("x");
    endless.endless = true;
    service.setDownloadReply(endless);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QList<QNetworkReply::NetworkError> errors;
    WebExchange::run(senderTo(urlOf(service)),
                     [&](QNetworkReply &reply) { errors.append(reply.error()); });
    QCOMPARE(errors, QList<QNetworkReply::NetworkError>{QNetworkReply::OperationCanceledError});
}

void TestWebExchangeReceiver::replyGoesAfterItsReceiver()
{
    LocalUpdateService service;
    service.setDownloadReply(replyWith("x"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    QPointer<QNetworkReply> received;
    bool isThereAtTheEnd = false;
    WebExchange::run(senderTo(urlOf(service)), [&](QNetworkReply &reply) {
        received = &reply;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isThereAtTheEnd = !received.isNull();
    });
    QVERIFY(isThereAtTheEnd);
    QVERIFY(received.isNull());
}

void TestWebExchangeReceiver::nobodyReceivesAtTheEndOfTheEventLoop()
{
    LocalUpdateService service;
    LocalWebReply reply = replyWith("some body");
    reply.holdAfter = 5;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    std::atomic_int calls = 0;
    const std::unique_ptr<QThread> thread(QThread::create(
        [&] { WebExchange::run(senderTo(urlOf(service)), [&](QNetworkReply &) { ++calls; }); }));
    thread->start();
    QTRY_COMPARE_WITH_TIMEOUT(service.requests().size(), 1, kPatienceMilliseconds);

    thread->quit();

    QVERIFY(thread->wait(kPatienceMilliseconds));
    QCOMPARE(calls.load(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestWebExchangeReceiver>(argc, argv);
}

#include "tst_WebExchangeReceiver.moc"
