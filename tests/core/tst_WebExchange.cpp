#include "WebExchange.h"

#include "ClosedPort.h"
#include "LocalUpdateService.h"
#include "TestBase.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QFile>
#include <QHttpMultiPart>
#include <QHttpPart>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QPointer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 20000;
constexpr qint64 kMegabyte = 1024 * 1024;
/// What a transfer may take beside the body: buffers on the way, and what a sanitizer holds back of
/// the memory that was freed.
constexpr qint64 kAllowance = 448 * kMegabyte;

QUrl urlOf(const LocalUpdateService &service)
{
    return QUrl(QStringLiteral("https://%1/download").arg(service.authority()));
}

WebAnswer get(const QUrl &url)
{
    return WebExchange::run(
        [&](QNetworkAccessManager &manager) { return manager.get(QNetworkRequest(url)); });
}

LocalWebReply replyOfSize(qint64 size)
{
    LocalWebReply reply;
    reply.generatedSize = size;
    return reply;
}

/// From now on peakMemory() tells of what comes.
bool forgetPeakMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
}

/// The most memory that this process had, in bytes.
qint64 peakMemory()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = file.readAll();
    const QByteArray field = text.mid(text.indexOf("VmHWM:") + 6);
    return field.left(field.indexOf("kB")).trimmed().toLongLong() * 1024;
}

/// A server without TLS on this thread, that answers the first request once that holds a text.
class PlainServer : public QTcpServer
{
public:
    PlainServer(const QByteArray &expectedEnd, const QByteArray &preparedAnswer)
        : end(expectedEnd)
        , answer(preparedAnswer)
    {
        connect(this, &QTcpServer::newConnection, this, &PlainServer::serve);
        listen(QHostAddress::LocalHost);
    }

    [[nodiscard]] QUrl url() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/feedback").arg(serverPort()));
    }

    QByteArray request;

private:
    void serve()
    {
        QTcpSocket *socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            request += socket->readAll();
            if (request.contains(end)) {
                socket->write(answer);
                socket->disconnectFromHost();
            }
        });
    }

    QByteArray end;
    QByteArray answer;
};

QByteArray okWith(const QByteArray &body, const QByteArray &header = {})
{
    return "HTTP/1.1 200 OK\r\n" + header + "Content-Length: " + QByteArray::number(body.size())
        + "\r\n\r\n" + body;
}

/// A body of so many equal bytes as HTTP knows it under "deflate".
QByteArray deflated(qsizetype size)
{
    constexpr qsizetype kLengthOfQt = 4;
    return qCompress(QByteArray(size, 'x')).mid(kLengthOfQt);
}

/// A dispatcher that knows posted events only, and tells by which flags they were processed.
class FlagsRecorder : public QAbstractEventDispatcher
{
public:
    explicit FlagsRecorder(QList<QEventLoop::ProcessEventsFlags> &list)
        : seen(list)
    { }

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override
    {
        seen.append(flags);
        QCoreApplication::sendPostedEvents();
        return true;
    }

    void registerSocketNotifier(QSocketNotifier *) override { }
    void unregisterSocketNotifier(QSocketNotifier *) override { }
    void registerTimer(int, qint64, Qt::TimerType, QObject *) override { }
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject *) override { return false; }
    [[nodiscard]] QList<TimerInfo> registeredTimers(QObject *) const override { return {}; }
    int remainingTime(int) override { return -1; }
    void wakeUp() override { }
    void interrupt() override { }

private:
    QList<QEventLoop::ProcessEventsFlags> &seen;
};

} // namespace

class TestWebExchange : public TestBase
{
    Q_OBJECT

private slots:
    void endlessBodyIsCancelledInBoundedMemory_data();
    void endlessBodyIsCancelledInBoundedMemory();
    void largestBodyArrivesWhole();
    void compressedBodyIsUnpacked();
    void compressedBombIsAnError();
    void successGivesTheWholeBody();
    void emptyBodyIsASuccess();
    void failureGivesErrorAndWordsButNoBody_data();
    void failureGivesErrorAndWordsButNoBody();
    void formIsPosted();
    void managerAndReplyAreGoneAfterwards();
    void finishedReplyIsNotWaitedFor();
    void otherEventsAreProcessedMeanwhile();
    void userInputIsHeldBackMeanwhile();
    void endOfTheEventLoopIsNoAnswer();
    void exchangesOnSeveralThreadsDoNotMeet();
};

void TestWebExchange::endlessBodyIsCancelledInBoundedMemory_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<qint64>("pieceSize");
    QTest::addColumn<qint64>("generatedSize");
    QTest::newRow("endless in small pieces") << 200 << qint64(4096) << qint64(-1);
    QTest::newRow("endless with an error") << 404 << qint64(0) << qint64(-1);
    QTest::newRow("size told") << 200 << qint64(0) << 1024 * 1024 * kMegabyte;
}

void TestWebExchange::endlessBodyIsCancelledInBoundedMemory()
{
    QFETCH(int, status);
    QFETCH(qint64, pieceSize);
    QFETCH(qint64, generatedSize);
    LocalUpdateService service;
    LocalWebReply reply = replyOfSize(generatedSize);
    reply.status = status;
    reply.body = "x";
    reply.endless = generatedSize < 0;
    reply.pieceSize = pieceSize;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(forgetPeakMemory());
    const qint64 before = peakMemory();

    const WebAnswer answer = get(urlOf(service));

    QVERIFY(!answer.isSuccess);
    QCOMPARE(answer.error, QNetworkReply::OperationCanceledError);
    QVERIFY(answer.body.isEmpty());
    QVERIFY(before > 0);
    const qint64 growth = peakMemory() - before;
    QVERIFY2(growth < WebExchange::kLargestBody + kAllowance, qPrintable(QString::number(growth)));
}

void TestWebExchange::largestBodyArrivesWhole()
{
    LocalUpdateService service;
    service.setDownloadReply(replyOfSize(WebExchange::kLargestBody));
    QVERIFY2(service.start(), qPrintable(service.error()));

    const WebAnswer answer = get(urlOf(service));

    QVERIFY(answer.isSuccess);
    QCOMPARE(qint64(answer.body.size()), WebExchange::kLargestBody);
    constexpr qsizetype kEnd = 1000;
    QCOMPARE(answer.body.last(kEnd),
             LocalUpdateService::generatedBytes(WebExchange::kLargestBody - kEnd, kEnd));
}

void TestWebExchange::compressedBodyIsUnpacked()
{
    PlainServer server("\r\n\r\n", okWith(deflated(kMegabyte), "Content-Encoding: deflate\r\n"));

    const WebAnswer answer = get(server.url());

    QVERIFY2(answer.isSuccess, qPrintable(answer.errorText));
    QCOMPARE(answer.body, QByteArray(kMegabyte, 'x'));
}

void TestWebExchange::compressedBombIsAnError()
{
    const QByteArray bomb = deflated(8 * WebExchange::kLargestBody);
    QVERIFY(bomb.size() < kMegabyte);
    PlainServer server("\r\n\r\n", okWith(bomb, "Content-Encoding: deflate\r\n"));

    const WebAnswer answer = get(server.url());

    QVERIFY(!answer.isSuccess);
    QVERIFY(answer.body.isEmpty());
}

void TestWebExchange::successGivesTheWholeBody()
{
    LocalUpdateService service;
    LocalWebReply reply = replyOfSize(3 * kMegabyte + 1);
    reply.pieceSize = 100'000;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));

    const WebAnswer answer = get(urlOf(service));

    QVERIFY(answer.isSuccess);
    QCOMPARE(answer.error, QNetworkReply::NoError);
    QCOMPARE(answer.errorText, QString());
    QCOMPARE(answer.body, LocalUpdateService::generatedBytes(0, 3 * kMegabyte + 1));
}

void TestWebExchange::emptyBodyIsASuccess()
{
    LocalUpdateService service;
    service.setDownloadReply(LocalWebReply());
    QVERIFY2(service.start(), qPrintable(service.error()));

    const WebAnswer answer = get(urlOf(service));

    QVERIFY(answer.isSuccess);
    QVERIFY(answer.body.isEmpty());
}

void TestWebExchange::failureGivesErrorAndWordsButNoBody_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<qint64>("cutAfter");
    QTest::addColumn<QNetworkReply::NetworkError>("error");
    QTest::newRow("not found") << 404 << qint64(-1) << QNetworkReply::ContentNotFoundError;
    QTest::newRow("server error") << 500 << qint64(-1) << QNetworkReply::InternalServerError;
    QTest::newRow("cut off") << 200 << qint64(5) << QNetworkReply::RemoteHostClosedError;
    QTest::newRow("closed port") << 0 << qint64(-1) << QNetworkReply::ConnectionRefusedError;
}

void TestWebExchange::failureGivesErrorAndWordsButNoBody()
{
    QFETCH(int, status);
    QFETCH(qint64, cutAfter);
    QFETCH(QNetworkReply::NetworkError, error);
    LocalUpdateService service;
    LocalWebReply reply;
    reply.status = status == 0 ? 200 : status;
    reply.body = "some body";
    reply.cutAfter = cutAfter;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QUrl url = urlOf(service);
    if (status == 0) {
        url.setPort(closedPort());
    }

    const WebAnswer answer = get(url);

    QVERIFY(!answer.isSuccess);
    QCOMPARE(answer.error, error);
    QVERIFY(!answer.errorText.isEmpty());
    QVERIFY(answer.body.isEmpty());
}

void TestWebExchange::formIsPosted()
{
    PlainServer server("--\r\n", okWith("{\"result\": true}"));
    QPointer<QHttpMultiPart> sent;

    const WebAnswer answer = WebExchange::run([&](QNetworkAccessManager &manager) {
        auto form = std::make_unique<QHttpMultiPart>(QHttpMultiPart::FormDataType);
        QHttpPart part;
        part.setHeader(QNetworkRequest::ContentDispositionHeader,
                       QStringLiteral("form-data; name=\"content\""));
        part.setBody("{\"text\": \"hello\"}");
        form->append(part);
        QNetworkReply *reply = manager.post(QNetworkRequest(server.url()), form.get());
        form->setParent(reply);
        sent = form.release();
        return reply;
    });

    QVERIFY2(answer.isSuccess, qPrintable(answer.errorText));
    QCOMPARE(answer.body, QByteArray("{\"result\": true}"));
    QVERIFY(server.request.startsWith("POST /feedback "));
    QVERIFY(
        server.request.contains("form-data; name=\"content\"\r\n\r\n{\"text\": \"hello\"}\r\n"));
    QVERIFY(sent.isNull());
}

void TestWebExchange::managerAndReplyAreGoneAfterwards()
{
    QPointer<QNetworkAccessManager> usedManager;
    QPointer<QNetworkReply> usedReply;
    PlainServer server("\r\n\r\n", okWith("x"));

    const WebAnswer answer = WebExchange::run([&](QNetworkAccessManager &manager) {
        usedManager = &manager;
        usedReply = manager.get(QNetworkRequest(server.url()));
        return usedReply.data();
    });

    QVERIFY(answer.isSuccess);
    QVERIFY(usedManager.isNull());
    QVERIFY(usedReply.isNull());
}

void TestWebExchange::finishedReplyIsNotWaitedFor()
{
    const WebAnswer answer = WebExchange::run([](QNetworkAccessManager &manager) {
        QNetworkReply *reply = manager.get(QNetworkRequest(QUrl(QStringLiteral("https://h/"))));
        reply->abort();
        return reply;
    });

    QCOMPARE(answer.error, QNetworkReply::OperationCanceledError);
}

void TestWebExchange::otherEventsAreProcessedMeanwhile()
{
    LocalUpdateService service;
    LocalWebReply reply = replyOfSize(10);
    reply.holdAfter = 5;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    // Nothing but this thread's own timer lets the exchange end.
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        if (!service.requests().isEmpty()) {
            service.release();
        }
    });
    timer.start(1);

    QVERIFY(get(urlOf(service)).isSuccess);
}

void TestWebExchange::userInputIsHeldBackMeanwhile()
{
    QList<QEventLoop::ProcessEventsFlags> flags;
    WebAnswer answer;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { answer = get(QUrl(QStringLiteral("https:///"))); }));
    thread->setEventDispatcher(std::make_unique<FlagsRecorder>(flags).release());
    thread->start();

    QVERIFY(thread->wait(kPatienceMilliseconds));
    QCOMPARE(answer.error, QNetworkReply::HostNotFoundError);
    QVERIFY(!flags.isEmpty());
    QVERIFY(std::all_of(flags.cbegin(), flags.cend(), [](QEventLoop::ProcessEventsFlags used) {
        return used.testFlag(QEventLoop::ExcludeUserInputEvents);
    }));
}

void TestWebExchange::endOfTheEventLoopIsNoAnswer()
{
    LocalUpdateService service;
    LocalWebReply reply = replyOfSize(10);
    reply.holdAfter = 5;
    service.setDownloadReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    WebAnswer answer;
    answer.isSuccess = true;
    const std::unique_ptr<QThread> thread(QThread::create([&] { answer = get(urlOf(service)); }));
    thread->start();
    QTRY_COMPARE_WITH_TIMEOUT(service.requests().size(), 1, kPatienceMilliseconds);

    thread->quit();

    QVERIFY(thread->wait(kPatienceMilliseconds));
    QVERIFY(!answer.isSuccess);
    QCOMPARE(answer.error, QNetworkReply::OperationCanceledError);
    QVERIFY(answer.body.isEmpty());
}

void TestWebExchange::exchangesOnSeveralThreadsDoNotMeet()
{
    LocalUpdateService service;
    service.setDownloadReply(replyOfSize(kMegabyte));
    QVERIFY2(service.start(), qPrintable(service.error()));
    WebAnswer other;
    const std::unique_ptr<QThread> thread(QThread::create([&] { other = get(urlOf(service)); }));
    thread->start();

    const WebAnswer answer = get(urlOf(service));

    QVERIFY(thread->wait(kPatienceMilliseconds));
    QCOMPARE(answer.body, LocalUpdateService::generatedBytes(0, kMegabyte));
    QCOMPARE(other.body, answer.body);
}

int main(int argc, char **argv)
{
    return runTest<TestWebExchange>(argc, argv);
}

#include "tst_WebExchange.moc"
