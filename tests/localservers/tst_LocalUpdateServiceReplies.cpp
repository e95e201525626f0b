#include "CurlClient.h"
#include "LocalUpdateService.h"
#include "TestBase.h"
#include "UpdateServiceClient.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <vector>

using UpdateServiceClient::Exchange;
using UpdateServiceClient::finishes;
using UpdateServiceClient::kMegabyte;
using UpdateServiceClient::kPatienceMilliseconds;
using UpdateServiceClient::replyOfSize;
using UpdateServiceClient::ReplyPointer;
using UpdateServiceClient::replyWith;
using UpdateServiceClient::statusOf;

namespace {

size_t dropBytes(const char *, size_t size, size_t count, void *)
{
    return size * count;
}

} // namespace

/// One service runs for all tests, which find it with the replies of a new one.
class TestLocalUpdateServiceReplies : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        QVERIFY2(service.start(), qPrintable(service.error()));
        // Who was held by the test before.
        service.release();
        service.setCheckReply(replyWith("{}"));
        LocalWebReply missing;
        missing.status = 404;
        service.setDownloadReply(missing);
        logged = service.log().size();
    }

private slots:
    void answersByPath_data();
    void answersByPath();
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
    void cutWithoutLengthResetsTheConnection();
    void piecesComeOneByOne();
    void endlessBodyRepeatsItself_data();
    void endlessBodyRepeatsItself();
    void endlessNothingIsNothing();
    void heldReplyGoesOnWhenReleased_data();
    void heldReplyGoesOnWhenReleased();
    void heldDownloadBlocksNoCheck();
    void manyTransfersRunAtOnce();
    void replyChangesForTheNextRequest();

private:
    LocalUpdateService service;
    // Lines of the log before the test.
    qsizetype logged = 0;
};

void TestLocalUpdateServiceReplies::answersByPath_data()
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

void TestLocalUpdateServiceReplies::answersByPath()
{
    QFETCH(QByteArray, target);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    Exchange exchange(service);

    const ReplyPointer reply = exchange.get(target);

    QVERIFY(finishes(reply.get()));
    QCOMPARE(statusOf(reply.get()), status);
    QVERIFY(status == 404 || reply->readAll() == body);
    QCOMPARE(service.log().mid(logged), QStringList("GET " + QString::fromLatin1(target)));
    QCOMPARE(service.error(), QString());
}

void TestLocalUpdateServiceReplies::statusAndBodyAreSentAsTheyAre_data()
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

void TestLocalUpdateServiceReplies::statusAndBodyAreSentAsTheyAre()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    Exchange exchange(service);
    LocalWebReply given = replyWith(body);
    given.status = status;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(statusOf(reply.get()), status);
    QCOMPARE(reply->readAll(), body);
    QCOMPARE(reply->hasRawHeader("Content-Length"), status != 204);
    QVERIFY(!reply->hasRawHeader("Location"));
}

void TestLocalUpdateServiceReplies::locationLeadsOn()
{
    Exchange exchange(service);
    LocalWebReply elsewhere;
    elsewhere.status = 302;
    elsewhere.location = "/checkUpdate?from=download";
    service.setDownloadReply(elsewhere);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("{}"));
    QCOMPARE(service.log().mid(logged),
             QStringList({"GET /download", "GET /checkUpdate?from=download"}));
}

void TestLocalUpdateServiceReplies::headAsksForNoBody()
{
    Exchange exchange(service);
    service.setDownloadReply(replyOfSize(5 * kMegabyte));
    QNetworkRequest request(QUrl("https://" + service.authority() + "/download"));

    const ReplyPointer reply(exchange.manager.head(request));
    reply->ignoreSslErrors();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), 5 * kMegabyte);
    QCOMPARE(reply->readAll(), QByteArray());
    QCOMPARE(service.requests().last().method, QStringLiteral("HEAD"));
}

void TestLocalUpdateServiceReplies::bodyOfManyMegabytesArrives()
{
    Exchange exchange(service);
    const QByteArray body = QByteArray("0123456789abcde").repeated(1000000);
    service.setDownloadReply(replyWith(body));

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QVERIFY(reply->readAll() == body);
}

void TestLocalUpdateServiceReplies::generatedBodyHoldsThePattern_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("nothing") << qint64(0);
    QTest::newRow("one byte") << qint64(1);
    QTest::newRow("one pattern and a byte") << qint64(252);
    QTest::newRow("megabytes") << 10 * kMegabyte + 7;
}

void TestLocalUpdateServiceReplies::generatedBodyHoldsThePattern()
{
    QFETCH(qint64, size);
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(size);
    given.body = "not this";
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), size);
    const QByteArray body = reply->readAll();
    QVERIFY(body == LocalUpdateService::generatedBytes(0, size));
    QVERIFY(body.mid(249) == LocalUpdateService::generatedBytes(249, qMax(0LL, size - 249)));
}

void TestLocalUpdateServiceReplies::bodyWithoutLengthEndsWithTheConnection()
{
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(3 * kMegabyte + 1);
    given.tellsLength = false;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(!reply->hasRawHeader("Content-Length"));
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, 3 * kMegabyte + 1));
}

void TestLocalUpdateServiceReplies::cutEndsTheTransferAfterItsPlace_data()
{
    QTest::addColumn<qint64>("place");
    QTest::newRow("before the body") << qint64(0);
    QTest::newRow("first byte") << qint64(1);
    QTest::newRow("middle") << 3 * kMegabyte + 5;
    QTest::newRow("last byte but one") << 5 * kMegabyte - 1;
}

void TestLocalUpdateServiceReplies::cutEndsTheTransferAfterItsPlace()
{
    QFETCH(qint64, place);
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(5 * kMegabyte);
    given.cutAfter = place;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
    QCOMPARE(statusOf(reply.get()), 200);
    QCOMPARE(reply->rawHeader("Content-Length").toLongLong(), 5 * kMegabyte);
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, place));
    QCOMPARE(service.error(), QString());
}

void TestLocalUpdateServiceReplies::cutBeyondTheBodyDoesNothing()
{
    Exchange exchange(service);
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 6;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray("12345"));
}

void TestLocalUpdateServiceReplies::cutFollowsHold()
{
    Exchange exchange(service);
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 3;
    given.holdAfter = 3;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 3, kPatienceMilliseconds);
    const ReplyPointer meanwhile = exchange.get("/checkUpdate");
    QVERIFY(finishes(meanwhile.get()));
    QVERIFY(!reply->isFinished());
    service.release();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
    QCOMPARE(reply->readAll(), QByteArray("123"));
}

void TestLocalUpdateServiceReplies::cutWithoutLengthResetsTheConnection()
{
    LocalWebReply given = replyWith("12345");
    given.cutAfter = 3;
    given.tellsLength = false;
    service.setDownloadReply(given);
    // Qt's client takes a reset for the end, too.
    CurlClient client("https", service.port());
    const QByteArray url = "https://" + service.authority().toLatin1() + "/download";
    client.set(CURLOPT_URL, url.constData());
    client.set(CURLOPT_SSL_VERIFYPEER, 0L);
    client.set(CURLOPT_NOBODY, 0L);
    client.set(CURLOPT_WRITEFUNCTION, dropBytes);

    QCOMPARE(client.run(), int(CURLE_RECV_ERROR));
    QCOMPARE(service.error(), QString());
}

void TestLocalUpdateServiceReplies::piecesComeOneByOne()
{
    constexpr int kPauseMilliseconds = 100;
    Exchange exchange(service);
    LocalWebReply given = replyWith("abcdefgh");
    given.pieceSize = 3;
    given.pauseMilliseconds = kPauseMilliseconds;
    service.setDownloadReply(given);
    QElapsedTimer clock;
    clock.start();

    const ReplyPointer reply = exchange.get("/download");
    QSignalSpy arrived(reply.get(), SIGNAL(readyRead()));

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->readAll(), QByteArray("abcdefgh"));
    // Three pieces with two pauses between them; a busy machine may hand over two at once.
    QVERIFY(clock.elapsed() >= 2LL * kPauseMilliseconds);
    QVERIFY(arrived.count() <= 3);
}

void TestLocalUpdateServiceReplies::endlessBodyRepeatsItself_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<qint64>("generatedSize");
    QTest::newRow("short") << QByteArray("0123456") << qint64(-1);
    QTest::newRow("long") << QByteArray("x").repeated(1500000).append("end") << qint64(-1);
    QTest::newRow("generated") << QByteArray() << qint64(300001);
}

void TestLocalUpdateServiceReplies::endlessBodyRepeatsItself()
{
    QFETCH(QByteArray, body);
    QFETCH(qint64, generatedSize);
    Exchange exchange(service);
    LocalWebReply given = replyWith(body);
    given.generatedSize = generatedSize;
    given.endless = true;
    service.setDownloadReply(given);
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

void TestLocalUpdateServiceReplies::endlessNothingIsNothing()
{
    Exchange exchange(service);
    LocalWebReply given;
    given.endless = true;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray());
}

void TestLocalUpdateServiceReplies::heldReplyGoesOnWhenReleased_data()
{
    QTest::addColumn<qint64>("place");
    QTest::addColumn<bool>("tellsLength");
    QTest::newRow("before the body") << qint64(0) << true;
    QTest::newRow("middle") << kMegabyte + 1 << true;
    QTest::newRow("before the end") << 2 * kMegabyte << false;
}

void TestLocalUpdateServiceReplies::heldReplyGoesOnWhenReleased()
{
    QFETCH(qint64, place);
    QFETCH(bool, tellsLength);
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(2 * kMegabyte);
    given.holdAfter = place;
    given.tellsLength = tellsLength;
    service.setDownloadReply(given);

    const ReplyPointer reply = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(statusOf(reply.get()), 200, kPatienceMilliseconds);
    QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), place, kPatienceMilliseconds);
    const ReplyPointer meanwhile = exchange.get("/checkUpdate");
    QVERIFY(finishes(meanwhile.get()));
    QCOMPARE(reply->bytesAvailable(), place);
    QVERIFY(!reply->isFinished());
    service.release();

    QVERIFY(finishes(reply.get()));
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, 2 * kMegabyte));
}

void TestLocalUpdateServiceReplies::heldDownloadBlocksNoCheck()
{
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(kMegabyte);
    given.holdAfter = 10;
    service.setDownloadReply(given);

    const ReplyPointer download = exchange.get("/download");
    QTRY_COMPARE_WITH_TIMEOUT(download->bytesAvailable(), 10, kPatienceMilliseconds);
    const ReplyPointer check = exchange.get("/checkUpdate");

    QVERIFY(finishes(check.get()));
    QCOMPARE(check->readAll(), QByteArray("{}"));
    QVERIFY(!download->isFinished());
}

void TestLocalUpdateServiceReplies::manyTransfersRunAtOnce()
{
    Exchange exchange(service);
    LocalWebReply given = replyOfSize(kMegabyte);
    given.holdAfter = 10;
    service.setDownloadReply(given);
    // A manager takes six connections to a host at most.
    constexpr int kTransfers = 6;
    std::vector<ReplyPointer> replies;
    replies.reserve(kTransfers);
    for (int number = 0; number < kTransfers; ++number) {
        replies.push_back(exchange.get("/download?" + QByteArray::number(number)));
    }

    for (const ReplyPointer &reply : replies) {
        QTRY_COMPARE_WITH_TIMEOUT(reply->bytesAvailable(), 10, kPatienceMilliseconds);
    }
    service.release();

    for (const ReplyPointer &reply : replies) {
        QVERIFY(finishes(reply.get()));
        QVERIFY(reply->readAll() == LocalUpdateService::generatedBytes(0, kMegabyte));
    }
    QCOMPARE(service.log().mid(logged).size(), 6);
}

void TestLocalUpdateServiceReplies::replyChangesForTheNextRequest()
{
    Exchange exchange(service);
    LocalWebReply held = replyWith("before");
    held.holdAfter = 3;
    service.setCheckReply(held);

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

int main(int argc, char **argv)
{
    return runTest<TestLocalUpdateServiceReplies>(argc, argv);
}

#include "tst_LocalUpdateServiceReplies.moc"
