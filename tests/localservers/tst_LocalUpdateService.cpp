#include "LocalUpdateService.h"

#include "ProcessTable.h"
#include "TestBase.h"
#include "UpdateServiceClient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSslConfiguration>
#include <QTemporaryDir>

using UpdateServiceClient::Exchange;
using UpdateServiceClient::finishes;
using UpdateServiceClient::kMegabyte;
using UpdateServiceClient::kPatienceMilliseconds;
using UpdateServiceClient::ReplyPointer;
using UpdateServiceClient::replyWith;
using UpdateServiceClient::statusOf;

class TestLocalUpdateService : public TestBase
{
    Q_OBJECT

private slots:
    void requestIsToldAsOnTheWire();
    void requestIsLoggedBeforeTheAnswer();
    void certificateCanBeTrusted();
    void releaseCountsForRequestsBefore();
    void silentServiceAnswersNothing();
    void replyIsKeptByTheNextRun();
    void goneClientLeavesNoError_data();
    void goneClientLeavesNoError();
    void stopEndsARunningTransferAtOnce();
    void bodyThatCannotBeWrittenEndsTheService();
    void missingFolderIsToldInWords();
};

void TestLocalUpdateService::requestIsToldAsOnTheWire()
{
    LocalUpdateService service;
    Exchange exchange(service);
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
    LocalUpdateService service;
    Exchange exchange(service);
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
    LocalUpdateService service;
    Exchange exchange(service);
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

void TestLocalUpdateService::releaseCountsForRequestsBefore()
{
    LocalUpdateService service;
    Exchange exchange(service);
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

void TestLocalUpdateService::silentServiceAnswersNothing()
{
    LocalUpdateService service;
    Exchange exchange(service);
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

void TestLocalUpdateService::replyIsKeptByTheNextRun()
{
    LocalUpdateService service;
    Exchange exchange(service);
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
    LocalUpdateService service;
    Exchange exchange(service);
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
    LocalUpdateService service;
    Exchange exchange(service);
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

void TestLocalUpdateService::bodyThatCannotBeWrittenEndsTheService()
{
    QTemporaryDir parent;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", parent.path().toLocal8Bit());
    LocalUpdateService service;
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(parent.remove());

    service.setCheckReply(replyWith("x"));

    QVERIFY(!service.isRunning());
    QVERIFY2(service.error().contains("FileNotFoundError"), qPrintable(service.error()));
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
