#include "LocalUpdateService.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <memory>
#include <vector>

namespace {

using ReplyPointer = std::unique_ptr<QNetworkReply>;

constexpr int kPatienceMilliseconds = 20000;
constexpr qint64 kMegabyte = 1024 * 1024;

LocalWebReply replyWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    return reply;
}

LocalWebReply replyOfSize(qint64 size)
{
    LocalWebReply reply;
    reply.generatedSize = size;
    return reply;
}

/// One service and clients of it, new for each test.
struct Exchange
{
    LocalUpdateService service;
    QNetworkAccessManager manager;

    [[nodiscard]] ReplyPointer get(const QByteArray &target)
    {
        const QByteArray url = "https://" + service.authority().toLatin1() + target;
        ReplyPointer reply(manager.get(QNetworkRequest(QUrl::fromEncoded(url))));
        reply->ignoreSslErrors();
        return reply;
    }
};

bool finishes(QNetworkReply *reply)
{
    return QTest::qWaitFor([reply]() { return reply->isFinished(); }, kPatienceMilliseconds);
}

int statusOf(const QNetworkReply *reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

class TestLocalUpdateService : public TestBase
{
    Q_OBJECT

private slots:
    void answersByPath_data();
    void answersByPath();
    void requestIsToldAsOnTheWire();
    void requestIsLoggedBeforeTheAnswer();
    void certificateCanBeTrusted();
    void statusAndBodyAreSentAsTheyAre_data();
    void statusAndBodyAreSentAsTheyAre();
    void locationLeadsOn();
    void headAsksForNoBody();
    void bodyOfManyMegabytesArrives();
    void generatedBodyHoldsThePattern_data();
    void generatedBodyHoldsThePattern();
    void bodyWithoutLengthEndsWithTheConnection();
    void cutEndsTheTransferAfterItsPlace_data();
    void cutEndsTheTransferAfterItsPlace();
    void cutBeyondTheBodyDoesNothing();
    void cutFollowsHold();
    void cutWithoutLengthIsTold();
    void piecesComeOneByOne();
    void endlessBodyRepeatsItself_data();
    void endlessBodyRepeatsItself();
    void endlessNothingIsNothing();
    void heldReplyGoesOnWhenReleased_data();
    void heldReplyGoesOnWhenReleased();
    void releaseCountsForRequestsBefore();
    void heldDownloadBlocksNoCheck();
    void manyTransfersRunAtOnce();
    void silentServiceAnswersNothing();
    void replyChangesForTheNextRequest();
    void replyIsKeptByTheNextRun();
    void goneClientLeavesNoError_data();
    void goneClientLeavesNoError();
    void stopEndsARunningTransferAtOnce();
    void missingFolderIsToldInWords();
};

void TestLocalUpdateService::answersByPath_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("check") << QByteArray("/checkUpdate") << 200 << QByteArray("{}");
    QTest::newRow("query") << QByteArray("/checkUpdate?a=/download") << 200 << QByteArray("{}");
    QTest::newRow("download") << QByteArray("/download") << 404 << QByteArray();
    QTest::newRow("below") << QByteArray("/checkUpdate/") << 404 << QByteArray();
    QTest::newRow("other case") << QByteArray("/checkupdate") << 404 << QByteArray();
    QTest::newRow("root") << QByteArray("/") << 404 << QByteArray();
}

void TestLocalUpdateService::answersByPath()
{
    QFETCH(QByteArray, target);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    Exchange exchange;
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get(target);

    QVERIFY(finishes(reply.get()));
    QCOMPARE(statusOf(reply.get()), status);
    QVERIFY(status == 404 || reply->readAll() == body);
    QCOMPARE(exchange.service.log(), QStringList("GET " + QString::fromLatin1(target)));
    QCOMPARE(exchange.service.error(), QString());
}

void TestLocalUpdateService::requestIsToldAsOnTheWire()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    QCOMPARE(service.authority(), QStringLiteral("127.0.0.1:0"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    QCOMPARE(service.authority(), QStringLiteral("127.0.0.1:%1").arg(service.port()));
    QNetworkRequest request(QUrl("https://" + service.authority()
                                 + "/checkUpdate?OS=win64&Status=a%20b%26%C3%A4&Empty=?"));
    request.setRawHeader("X-Oddly-SPELT", "some value: 1");

    const ReplyPointer reply(exchange.manager.get(request));
    reply->ignoreSslErrors();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(service.requests().size(), 1);
    const LocalUpdateService::Request told = service.requests()[0];
    QCOMPARE(told.method, QStringLiteral("GET"));
    QCOMPARE(told.path, QStringLiteral("/checkUpdate"));
    QCOMPARE(told.query, QStringLiteral("OS=win64&Status=a%20b%26%C3%A4&Empty=?"));
    QVERIFY(told.headers.contains({"X-Oddly-SPELT", "some value: 1"}));
    QVERIFY(told.headers.contains({"Host", service.authority()}));
    const ReplyPointer second = exchange.get("/no%2Fthing");
    QVERIFY(finishes(second.get()));
    QCOMPARE(service.requests().size(), 2);
    QCOMPARE(service.requests()[1].path, QStringLiteral("/no%2Fthing"));
    QCOMPARE(service.requests()[1].query, QString());
    service.stop();
    QCOMPARE(service.requests().size(), 2);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(service.requests().isEmpty());
}

void TestLocalUpdateService::requestIsLoggedBeforeTheAnswer()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    LocalWebReply mute;
    mute.isSilent = true;
    service.setCheckReply(mute);
    QVERIFY2(service.start(), qPrintable(service.error()));

    const ReplyPointer reply = exchange.get("/checkUpdate?OS=win64");

    QTRY_COMPARE_WITH_TIMEOUT(service.log(), QStringList("GET /checkUpdate?OS=win64"),
                              kPatienceMilliseconds);
    QCOMPARE(service.requests().size(), 1);
}

void TestLocalUpdateService::certificateCanBeTrusted()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    QCOMPARE(service.certificateFile(), QString());
    QVERIFY2(service.start(), qPrintable(service.error()));
    QNetworkRequest request(QUrl("https://" + service.authority() + "/checkUpdate"));

    const ReplyPointer stranger(exchange.manager.get(request));
    QVERIFY(finishes(stranger.get()));
    QSslConfiguration configuration = request.sslConfiguration();
    QVERIFY(configuration.addCaCertificates(service.certificateFile()));
    request.setSslConfiguration(configuration);
    // A manager keeps what it knows of the host.
    QNetworkAccessManager newManager;
    const ReplyPointer friendly(newManager.get(request));
    QVERIFY(finishes(friendly.get()));

    QCOMPARE(stranger->error(), QNetworkReply::SslHandshakeFailedError);
    QCOMPARE(friendly->error(), QNetworkReply::NoError);
    QCOMPARE(service.requests().size(), 1);
    QCOMPARE(service.error(), QString());
}

void TestLocalUpdateService::statusAndBodyAreSentAsTheyAre_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("nothing") << 200 << QByteArray();
    QTest::newRow("any bytes") << 200 << QByteArray("a\0\r\n\xff", 5);
    QTest::newRow("refusal with a body") << 403 << QByteArray("go away");
    QTest::newRow("broken service") << 500 << QByteArray("{\"Filename\": \"x\"}");
    QTest::newRow("status without a name") << 299 << QByteArray("x");
    QTest::newRow("status without a body") << 204 << QByteArray();
}

void TestLocalUpdateService::statusAndBodyAreSentAsTheyAre()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    Exchange exchange;
    LocalWebReply given = replyWith(body);
    given.status = status;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(statusOf(reply.get()), status);
    QCOMPARE(reply->readAll(), body);
    QCOMPARE(reply->hasRawHeader("Content-Length"), status != 204);
    QVERIFY(!reply->hasRawHeader("Location"));
}

void TestLocalUpdateService::locationLeadsOn()
{
    Exchange exchange;
    LocalWebReply elsewhere;
    elsewhere.status = 302;
    elsewhere.location = "/checkUpdate?from=download";
    exchange.service.setDownloadReply(elsewhere);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("{}"));
    QCOMPARE(exchange.service.log(),
             QStringList({"GET /download", "GET /checkUpdate?from=download"}));
}

void TestLocalUpdateService::headAsksForNoBody()
{
    Exchange exchange;
    exchange.service.setDownloadReply(replyOfSize(5 * kMegabyte));
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));
    QNetworkRequest request(QUrl("https://" + exchange.service.authority() + "/download"));

    const ReplyPointer reply(exchange.manager.head(request));
    reply->ignoreSslErrors();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), 5 * kMegabyte);
    QCOMPARE(reply->readAll(), QByteArray());
    QCOMPARE(exchange.service.requests()[0].method, QStringLiteral("HEAD"));
}

void TestLocalUpdateService::bodyOfManyMegabytesArrives()
{
    Exchange exchange;
    const QByteArray body = QByteArray("0123456789abcde").repeated(1000000);
    exchange.service.setDownloadReply(replyWith(body));
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QVERIFY(reply->readAll() == body);
}

void TestLocalUpdateService::generatedBodyHoldsThePattern_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("nothing") << qint64(0);
    QTest::newRow("one byte") << qint64(1);
    QTest::newRow("one pattern and a byte") << qint64(252);
    QTest::newRow("megabytes") << 10 * kMegabyte + 7;
}

void TestLocalUpdateService::generatedBodyHoldsThePattern()
{
    QFETCH(qint64, size);
    Exchange exchange;
    LocalWebReply given = replyOfSize(size);
    given.body = "not this";
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), size);
    const QByteArray body = reply->readAll();
    QVERIFY(body == LocalUpdateService::generatedBytes(0, size));
    QVERIFY(body.mid(249) == LocalUpdateService::generatedBytes(249, qMax(0LL, size - 249)));
}

void TestLocalUpdateService::bodyWithoutLengthEndsWithTheConnection()
{
    Exchange exchange;
    LocalWebReply given = replyOfSize(3 * kMegabyte + 1);
    given.tellsLength = false;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(!reply->hasRawHeader("Content-Length"));
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, 3 * kMegabyte + 1));
}

void TestLocalUpdateService::cutEndsTheTransferAfterItsPlace_data()
{
    QTest::addColumn<qint64>("place");
    QTest::newRow("before the body") << qint64(0);
    QTest::newRow("first byte") << qint64(1);
    QTest::newRow("middle") << 3 * kMegabyte + 5;
    QTest::newRow("last byte but one") << 5 * kMegabyte - 1;
}

void TestLocalUpdateService::cutEndsTheTransferAfterItsPlace()
{
    QFETCH(qint64, place);
    Exchange exchange;
    LocalWebReply given = replyOfSize(5 * kMegabyte);
    given.cutAfter = place;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
    QCOMPARE(statusOf(reply.get()), 200);
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), 5 * kMegabyte);
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, place));
    QCOMPARE(exchange.service.error(), QString());
}

void TestLocalUpdateService::cutBeyondTheBodyDoesNothing()
{
    Exchange exchange;
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 6;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray("12345"));
}

void TestLocalUpdateService::cutFollowsHold()
{
    Exchange exchange;
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 3;
    given.holdAfter = 3;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 3, kPatienceMilliseconds);
    const ReplyPointer meanwhile = exchange.get("/checkUpdate");
    QVERIFY(finishes(meanwhile.get()));
    QVERIFY(!reply->isFinished());
    exchange.service.release();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
    QCOMPARE(reply->readAll(), QByteArray("123"));
}

void TestLocalUpdateService::cutWithoutLengthIsTold()
{
    Exchange exchange;
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 3;
    given.tellsLength = false;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("123"));
    qInfo() << reply->error() << reply->errorString();
}

void TestLocalUpdateService::piecesComeOneByOne()
{
    constexpr int kPauseMilliseconds = 100;
    Exchange exchange;
    LocalWebReply given = replyWith("abcdefgh");
    given.pieceSize = 3;
    given.pauseMilliseconds = kPauseMilliseconds;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));
    QElapsedTimer clock;
    clock.start();

    const ReplyPointer reply = exchange.get("/download");
    QSignalSpy arrived(reply.get(), SIGNAL(readyRead()));

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("abcdefgh"));
    // Three pieces with two pauses between them; a busy machine may hand over two at once.
    QVERIFY(clock.elapsed() >= 2 * kPauseMilliseconds);
    QVERIFY(arrived.count() <= 3);
}

void TestLocalUpdateService::endlessBodyRepeatsItself_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<qint64>("generatedSize");
    QTest::newRow("short") << QByteArray("0123456") << qint64(-1);
    QTest::newRow("long") << QByteArray("x").repeated(1500000).append("end") << qint64(-1);
    QTest::newRow("generated") << QByteArray() << qint64(300001);
}

void TestLocalUpdateService::endlessBodyRepeatsItself()
{
    QFETCH(QByteArray, body);
    QFETCH(qint64, generatedSize);
    Exchange exchange;
    LocalWebReply given = replyWith(body);
    given.generatedSize = generatedSize;
    given.endless = true;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));
    const QByteArray once =
        generatedSize < 0 ? body : LocalUpdateService::generatedBytes(0, generatedSize);

    const ReplyPointer reply = exchange.get("/download");

    QTRY_VERIFY_WITH_TIMEOUT(reply->bytesAvailable() > 8 * kMegabyte, kPatienceMilliseconds);
    QVERIFY(!reply->isFinished());
    QVERIFY(!reply->hasRawHeader("Content-Length"));
    const QByteArray start = reply->read(8 * kMegabyte);
    const QByteArray expected = once.repeated(8 * kMegabyte / once.size() + 1);
    QVERIFY(start == expected.left(start.size()));
    reply->abort();
}

void TestLocalUpdateService::endlessNothingIsNothing()
{
    Exchange exchange;
    LocalWebReply given;
    given.endless = true;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray());
}

void TestLocalUpdateService::heldReplyGoesOnWhenReleased_data()
{
    QTest::addColumn<qint64>("place");
    QTest::addColumn<bool>("tellsLength");
    QTest::newRow("before the body") << qint64(0) << true;
    QTest::newRow("middle") << kMegabyte + 1 << true;
    QTest::newRow("before the end") << 2 * kMegabyte << false;
}

void TestLocalUpdateService::heldReplyGoesOnWhenReleased()
{
    QFETCH(qint64, place);
    QFETCH(bool, tellsLength);
    Exchange exchange;
    LocalWebReply given = replyOfSize(2 * kMegabyte);
    given.holdAfter = place;
    given.tellsLength = tellsLength;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer reply = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(statusOf(reply.get()), 200, kPatienceMilliseconds);
    QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), place, kPatienceMilliseconds);
    const ReplyPointer meanwhile = exchange.get("/checkUpdate");
    QVERIFY(finishes(meanwhile.get()));
    QCOMPARE(reply->bytesAvailable(), place);
    QVERIFY(!reply->isFinished());
    exchange.service.release();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, 2 * kMegabyte));
}

void TestLocalUpdateService::releaseCountsForRequestsBefore()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    service.release();
    LocalWebReply given = replyWith("12345");
    given.holdAfter = 2;
    service.setDownloadReply(given);
    QVERIFY2(service.start(), qPrintable(service.error()));
    service.release();

    const ReplyPointer first = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(service.log().size(), 1, kPatienceMilliseconds);
    service.release();
    QVERIFY(finishes(first.get()));
    const ReplyPointer second = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(second->bytesAvailable(), 2, kPatienceMilliseconds);
    const ReplyPointer meanwhile = exchange.get("/checkUpdate");
    QVERIFY(finishes(meanwhile.get()));

    QCOMPARE(first->readAll(), QByteArray("12345"));
    QCOMPARE(second->bytesAvailable(), 2);
    QVERIFY(!second->isFinished());
}

void TestLocalUpdateService::heldDownloadBlocksNoCheck()
{
    Exchange exchange;
    LocalWebReply given = replyOfSize(kMegabyte);
    given.holdAfter = 10;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));

    const ReplyPointer download = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(download->bytesAvailable(), 10, kPatienceMilliseconds);
    const ReplyPointer check = exchange.get("/checkUpdate");

    QVERIFY(finishes(check.get()));
    QCOMPARE(check->readAll(), QByteArray("{}"));
    QVERIFY(!download->isFinished());
}

void TestLocalUpdateService::manyTransfersRunAtOnce()
{
    Exchange exchange;
    LocalWebReply given = replyOfSize(kMegabyte);
    given.holdAfter = 10;
    exchange.service.setDownloadReply(given);
    QVERIFY2(exchange.service.start(), qPrintable(exchange.service.error()));
    // A manager takes six connections to a host at most.
    std::vector<ReplyPointer> replies;
    for (int number = 0; number < 6; ++number) {
        replies.push_back(exchange.get("/download?" + QByteArray::number(number)));
    }

    for (const ReplyPointer &reply : replies) {
        QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 10, kPatienceMilliseconds);
    }
    exchange.service.release();

    for (const ReplyPointer &reply : replies) {
        QVERIFY(finishes(reply.get()));
        QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, kMegabyte));
    }
    QCOMPARE(exchange.service.requests().size(), 6);
}

void TestLocalUpdateService::silentServiceAnswersNothing()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    LocalWebReply mute;
    mute.isSilent = true;
    service.setCheckReply(mute);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QSignalSpy silent(&service, SIGNAL(becameSilent()));

    const ReplyPointer reply = exchange.get("/checkUpdate");
    QTRY_VERIFY_WITH_TIMEOUT(service.isSilent(), kPatienceMilliseconds);
    QCOMPARE(silent.count(), 1);
    const ReplyPointer meanwhile = exchange.get("/download");
    QVERIFY(finishes(meanwhile.get()));
    QVERIFY(!reply->isFinished());
    QCOMPARE(statusOf(reply.get()), 0);
    // The client asks again when its connection has ended.
    service.setCheckReply(replyWith("awake"));
    service.release();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("awake"));
    QCOMPARE(service.log(), QStringList({"GET /checkUpdate", "GET /download", "GET /checkUpdate"}));
    QCOMPARE(service.error(), QString());
}

void TestLocalUpdateService::replyChangesForTheNextRequest()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    LocalWebReply held = replyWith("before");
    held.holdAfter = 3;
    service.setCheckReply(held);
    QVERIFY2(service.start(), qPrintable(service.error()));

    const ReplyPointer before = exchange.get("/checkUpdate");
    QTRY_COMPARE_WITH_TIMEOUT(before->bytesAvailable(), 3, kPatienceMilliseconds);
    for (int number = 0; number < 50; ++number) {
        const QByteArray body = QByteArray::number(number).repeated(number);
        service.setCheckReply(replyWith(body));
        const ReplyPointer after = exchange.get("/checkUpdate");
        QVERIFY(finishes(after.get()));
        QCOMPARE(after->readAll(), body);
    }
    service.release();

    QVERIFY(finishes(before.get()));
    QCOMPARE(before->readAll(), QByteArray("before"));
}

void TestLocalUpdateService::replyIsKeptByTheNextRun()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    service.setCheckReply(replyWith("while running"));
    service.stop();
    service.setDownloadReply(replyWith("while stopped"));
    QVERIFY2(service.start(), qPrintable(service.error()));

    const ReplyPointer check = exchange.get("/checkUpdate");
    const ReplyPointer download = exchange.get("/download");

    QVERIFY(finishes(check.get()) && finishes(download.get()));
    QCOMPARE(check->readAll(), QByteArray("while running"));
    QCOMPARE(download->readAll(), QByteArray("while stopped"));
}

void TestLocalUpdateService::goneClientLeavesNoError_data()
{
    QTest::addColumn<qint64>("holdAfter");
    QTest::addColumn<bool>("isSilent");
    QTest::newRow("in mid-transfer") << qint64(-1) << false;
    QTest::newRow("while held") << qint64(5) << false;
    QTest::newRow("while silent") << qint64(-1) << true;
}

void TestLocalUpdateService::goneClientLeavesNoError()
{
    QFETCH(qint64, holdAfter);
    QFETCH(bool, isSilent);
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    LocalWebReply given = replyWith("endless");
    given.endless = true;
    given.holdAfter = holdAfter;
    given.isSilent = isSilent;
    service.setDownloadReply(given);
    QVERIFY2(service.start(), qPrintable(service.error()));

    const ReplyPointer reply = exchange.get("/download");
    QTRY_VERIFY_WITH_TIMEOUT(service.isSilent() || reply->bytesAvailable() > 0,
                             kPatienceMilliseconds);
    reply->abort();
    service.release();
    // Without a client the service would go on for good, so its last thread must have ended.
    const QString threads = QStringLiteral("/proc/%1/task").arg(service.processId());
    QTRY_COMPARE_WITH_TIMEOUT(QDir(threads).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2,
                              kPatienceMilliseconds);

    QCOMPARE(service.error(), QString());
    QVERIFY(service.isRunning());
}

void TestLocalUpdateService::stopEndsARunningTransferAtOnce()
{
    Exchange exchange;
    LocalUpdateService &service = exchange.service;
    LocalWebReply endless = replyWith("endless");
    endless.endless = true;
    service.setDownloadReply(endless);
    LocalWebReply held = replyWith("held");
    held.holdAfter = 2;
    service.setCheckReply(held);
    QVERIFY2(service.start(), qPrintable(service.error()));
    const qint64 process = service.processId();
    const ReplyPointer running = exchange.get("/download");
    const ReplyPointer waiting = exchange.get("/checkUpdate");
    QTRY_VERIFY_WITH_TIMEOUT(running->bytesAvailable() > kMegabyte, kPatienceMilliseconds);
    QTRY_COMPARE_WITH_TIMEOUT(waiting->bytesAvailable(), 2, kPatienceMilliseconds);
    QElapsedTimer clock;
    clock.start();

    service.stop();

    // A process that has to be killed takes three seconds.
    QVERIFY(clock.elapsed() < 2000);
    QVERIFY(!isAlive(process));
    QCOMPARE(service.error(), QString());
    QVERIFY(finishes(running.get()) && finishes(waiting.get()));
    QCOMPARE(waiting->error(), QNetworkReply::RemoteHostClosedError);
}

void TestLocalUpdateService::missingFolderIsToldInWords()
{
    // Nothing can be made there, not even by the superuser.
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    LocalUpdateService service;
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(!service.start());

    QVERIFY2(service.error().startsWith("no folder for the replies"), qPrintable(service.error()));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalUpdateService>(argc, argv);
}

#include "tst_LocalUpdateService.moc"
