#include "UpdateRunnable.h"

#include "ClosedPort.h"
#include "LocalCertificate.h"
#include "LocalUpdateService.h"
#include "TXUpdateService.h"
#include "TestBase.h"
#include "UpdateReceiver.h"

#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QSslError>
#include <QThreadPool>
#include <QUrlQuery>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

constexpr int kProduct = 7;
constexpr int kPatienceMilliseconds = 20000;
const QString kStatusKey = QStringLiteral("UpdateStatus");
const QVariantHash kNoData{{QStringLiteral("empty"), QStringLiteral("nodata")}};
const QVariantHash kFailed;
const QByteArray kRecordText = R"({"Version": "2.1", "Revision": 10453})";
const QVariantHash kRecord{{QStringLiteral("Version"), QStringLiteral("2.1")},
                           {QStringLiteral("Revision"), qlonglong(10453)}};

LocalWebReply replyWith(const QByteArray &body, int status = 200)
{
    LocalWebReply reply;
    reply.status = status;
    reply.body = body;
    return reply;
}

LocalWebReply redirectTo(const QByteArray &location)
{
    LocalWebReply reply = replyWith(kRecordText, 302);
    reply.location = location;
    return reply;
}

LocalWebReply cutReply(qint64 place, bool tellsLength)
{
    LocalWebReply reply = replyWith(kRecordText);
    reply.cutAfter = place;
    reply.tellsLength = tellsLength;
    return reply;
}

/// A service whose certificate is for a host that it is not.
class ServiceOfAnotherHost : public LocalUpdateService
{
protected:
    [[nodiscard]] QJsonObject options() const override
    {
        QJsonObject options = LocalUpdateService::options();
        options.insert(QStringLiteral("certificate"), certificate.certificateFile());
        options.insert(QStringLiteral("key"), certificate.keyFile());
        return options;
    }

private:
    LocalCertificate certificate{QStringLiteral("elsewhere.example")};
};

/// What a client has against the certificate of the service.
QList<QSslError::SslError> certificateErrors(const LocalUpdateService &service)
{
    QNetworkAccessManager manager;
    const QUrl url(QStringLiteral("https://%1/").arg(service.authority()));
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(url)));
    QList<QSslError::SslError> found;
    QObject::connect(reply.get(), &QNetworkReply::sslErrors, reply.get(),
                     [&](const QList<QSslError> &errors) {
                         std::transform(errors.begin(), errors.end(), std::back_inserter(found),
                                        [](const QSslError &error) { return error.error(); });
                     });
    QSignalSpy(reply.get(), SIGNAL(finished())).wait(kPatienceMilliseconds);
    return found;
}

} // namespace

class TestUpdateRunnable : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        QVERIFY(pool.waitForDone(kPatienceMilliseconds));
        TXUpdateService::setAuthority(QString());
    }

private slots:
    void initTestCase() { pool.setMaxThreadCount(1); }

    void urlLetterForLetter();
    void urlTellsTheStatusWhenTheKeyIsThere_data();
    void urlTellsTheStatusWhenTheKeyIsThere();
    void statusReachesTheServiceAsItIs();
    void requestIsADefaultOne();
    void answerBecomesARecord_data();
    void answerBecomesARecord();
    void largeDescriptionArrivesWhole();
    void largeNumbersArriveExactly();
    void unreachableServiceIsAFailure_data();
    void unreachableServiceIsAFailure();
    void droppedConnectionIsAFailure();
    void certificateForAnotherHostIsIgnored();
    void selfSignedCertificateIsIgnored();
    void redirectIsFollowed();
    void redirectToPlainHttpIsAFailure();
    void slowServiceIsWaitedFor_data();
    void slowServiceIsWaitedFor();
    void signalComesQueuedToTheReceiversThread();
    void poolDeletesIt();
    void secondCheckQueuesBehindTheFirst();

private:
    void start(UpdateReceiver &receiver, int product = kProduct)
    {
        auto runnable = std::make_unique<UpdateRunnable>(product);
        receiver.listenTo(*runnable);
        pool.start(runnable.release());
    }

    /// Both records of a check, or a mark when there was not one result.
    QVariantHash check()
    {
        UpdateReceiver receiver;
        start(receiver);
        const bool came =
            QTest::qWaitFor([&] { return receiver.count > 0; }, kPatienceMilliseconds);
        const bool isOne = came && pool.waitForDone() && receiver.count == 1
            && receiver.update == receiver.lastUpdate;
        return isOne ? receiver.update : QVariantHash{{QStringLiteral("test"), "no result"}};
    }

    QVariantHash check(LocalUpdateService &service, const LocalWebReply &reply)
    {
        service.setCheckReply(reply);
        if (!service.start()) {
            return {{QStringLiteral("test"), service.error()}};
        }
        TXUpdateService::setAuthority(service.authority());
        return check();
    }

    QThreadPool pool;
};

void TestUpdateRunnable::urlLetterForLetter()
{
    QCOMPARE(UpdateRunnable::checkUrl(-1).toString(QUrl::FullyEncoded),
             QStringLiteral("https://updates.tovra.example/checkUpdate"
                            "?OS=win64&ProductType=-1&Revision=10452"));
    QCOMPARE(UpdateRunnable::checkUrl(12).query(QUrl::FullyEncoded),
             QStringLiteral("OS=win64&ProductType=12&Revision=10452"));
}

void TestUpdateRunnable::urlTellsTheStatusWhenTheKeyIsThere_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("sent");
    QTest::newRow("text") << QVariant("Beta") << "Beta";
    QTest::newRow("empty") << QVariant("") << "";
    QTest::newRow("null") << QVariant() << "";
    QTest::newRow("number") << QVariant(3) << "3";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("dictionary") << QVariant(QVariantHash{{QStringLiteral("a"), 1}}) << "";
    QTest::newRow("signs") << QVariant("a&b=c#d+e%20f g") << "a%26b%3Dc%23d%2Be%2520f%20g";
}

void TestUpdateRunnable::urlTellsTheStatusWhenTheKeyIsThere()
{
    QFETCH(QVariant, value);
    QFETCH(QString, sent);
    QSettings().setValue(kStatusKey, value);
    QVERIFY(QSettings().contains(kStatusKey));

    QCOMPARE(UpdateRunnable::checkUrl(7).query(QUrl::FullyEncoded),
             QString(QStringLiteral("OS=win64&ProductType=7&Revision=10452&Status=") + sent));
    // Only read.
    QCOMPARE(QSettings().value(kStatusKey), value);
}

void TestUpdateRunnable::statusReachesTheServiceAsItIs()
{
    const QString status = QStringLiteral("ß&Revision=1#+%41 %1\r\nX: y").arg(QChar(u'\0'));
    QSettings().setValue(kStatusKey, status);
    LocalUpdateService service;

    QCOMPARE(check(service, replyWith(kRecordText)), kRecord);

    QCOMPARE(service.requests().size(), 1);
    const QUrlQuery query(service.requests().first().query);
    QCOMPARE(query.queryItems().size(), 4);
    QCOMPARE(query.queryItems().last().first, QStringLiteral("Status"));
    QCOMPARE(query.queryItemValue(QStringLiteral("Status"), QUrl::FullyDecoded), status);
}

void TestUpdateRunnable::requestIsADefaultOne()
{
    LocalUpdateService service;
    QCOMPARE(check(service, replyWith(kRecordText)), kRecord);
    QNetworkAccessManager manager;
    const QUrl url(QStringLiteral("https://%1/plain").arg(service.authority()));
    const std::unique_ptr<QNetworkReply> plain(manager.get(QNetworkRequest(url)));
    plain->ignoreSslErrors();
    QVERIFY(QSignalSpy(plain.get(), SIGNAL(finished())).wait(kPatienceMilliseconds));

    const auto requests = service.requests();
    QCOMPARE(requests.size(), 2);
    QCOMPARE(requests.first().method, QStringLiteral("GET"));
    QCOMPARE(requests.first().path, QStringLiteral("/checkUpdate"));
    QCOMPARE(requests.first().query, QStringLiteral("OS=win64&ProductType=7&Revision=10452"));
    QCOMPARE(requests.first().headers, requests.last().headers);
}

void TestUpdateRunnable::answerBecomesARecord_data()
{
    QTest::addColumn<LocalWebReply>("reply");
    QTest::addColumn<QVariantHash>("expected");
    QTest::newRow("record") << replyWith(kRecordText) << kRecord;
    QTest::newRow("record without a told length") << cutReply(-1, false) << kRecord;
    QTest::newRow("record with status 201") << replyWith(kRecordText, 201) << kRecord;
    QTest::newRow("record with the mark")
        << replyWith(R"({"empty": 1, "a": true})")
        << QVariantHash{{QStringLiteral("empty"), qlonglong(1)}, {QStringLiteral("a"), true}};
    QTest::newRow("record with places")
        << replyWith(R"({"Url": "x"})") << QVariantHash{{QStringLiteral("Url"), "x"}};
    for (const char *body :
         {"", " \n", "{}", "[]", "[{\"Revision\": 10453}]", "5", "\"text\"", "null", "true",
          "<html></html>", "{\"Revision\": 10453", "{\"Revision\": 10453} and", "\xff\xfe{}"}) {
        QTest::addRow("body '%s'", body) << replyWith(body) << kNoData;
    }
    QTest::newRow("NUL characters") << replyWith(QByteArray(100, '\0')) << kNoData;
    QTest::newRow("nested without end") << replyWith(QByteArray(1'000'000, '[')) << kNoData;
    QTest::newRow("status 204") << replyWith({}, 204) << kNoData;
    for (const int status : {400, 401, 403, 404, 407, 410, 418, 500, 501, 503, 599}) {
        QTest::addRow("status %d", status) << replyWith(kRecordText, status) << kFailed;
    }
    QTest::newRow("cut at once") << cutReply(0, true) << kFailed;
    QTest::newRow("cut in mid-body") << cutReply(9, true) << kFailed;
    // The end of the connection is the end of such a body, so this is a whole answer.
    QTest::newRow("cut in mid-body without a told length") << cutReply(9, false) << kNoData;
}

void TestUpdateRunnable::answerBecomesARecord()
{
    QFETCH(LocalWebReply, reply);
    QFETCH(QVariantHash, expected);
    LocalUpdateService service;

    QCOMPARE(check(service, reply), expected);

    QVERIFY(!service.requests().isEmpty());
    QCOMPARE(service.error(), QString());
}

void TestUpdateRunnable::largeDescriptionArrivesWhole()
{
    QString description(10 * 1024 * 1024, u'x');
    description += QStringLiteral("\u20ac end");
    LocalUpdateService service;

    const QVariantHash record =
        check(service, replyWith("{\"Description\": \"" + description.toUtf8() + "\"}"));

    QVERIFY(record.value(QStringLiteral("Description")).toString() == description);
}

void TestUpdateRunnable::largeNumbersArriveExactly()
{
    LocalUpdateService service;

    const QVariantHash record = check(
        service, replyWith(R"({"a": 9007199254740993, "b": 18446744073709551615, "c": 1e300})"));

    QCOMPARE(record.value(QStringLiteral("a")), QVariant(9007199254740993LL));
    QCOMPARE(record.value(QStringLiteral("b")), QVariant(18446744073709551615ULL));
    QCOMPARE(record.value(QStringLiteral("c")), QVariant(1e300));
}

void TestUpdateRunnable::unreachableServiceIsAFailure_data()
{
    QTest::addColumn<QString>("authority");
    QTest::newRow("closed port") << QStringLiteral("127.0.0.1:%1").arg(closedPort());
    QTest::newRow("unknown host") << "nohost.invalid";
    QTest::newRow("junk") << "host:99999";
}

void TestUpdateRunnable::unreachableServiceIsAFailure()
{
    QFETCH(QString, authority);
    TXUpdateService::setAuthority(authority);

    QCOMPARE(check(), kFailed);
}

void TestUpdateRunnable::droppedConnectionIsAFailure()
{
    LocalUpdateService service;
    LocalWebReply reply;
    reply.isSilent = true;
    service.setCheckReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    UpdateReceiver receiver;
    start(receiver);
    QTRY_VERIFY_WITH_TIMEOUT(service.isSilent(), kPatienceMilliseconds);
    QCOMPARE(receiver.count, 0);

    service.stop();

    QTRY_COMPARE_WITH_TIMEOUT(receiver.count, 1, kPatienceMilliseconds);
    QCOMPARE(receiver.update, kFailed);
    QCOMPARE(receiver.lastUpdate, kFailed);
}

void TestUpdateRunnable::certificateForAnotherHostIsIgnored()
{
    ServiceOfAnotherHost service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(certificateErrors(service).contains(QSslError::HostNameMismatch));

    QCOMPARE(check(service, replyWith(kRecordText)), kRecord);
}

void TestUpdateRunnable::selfSignedCertificateIsIgnored()
{
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(certificateErrors(service).contains(QSslError::SelfSignedCertificate));

    QCOMPARE(check(service, replyWith(kRecordText)), kRecord);
}

void TestUpdateRunnable::redirectIsFollowed()
{
    LocalUpdateService service;
    service.setDownloadReply(replyWith(R"({"Version": "3"})"));

    QCOMPARE(check(service, redirectTo("/download?x=1")),
             QVariantHash({{QStringLiteral("Version"), QStringLiteral("3")}}));

    QCOMPARE(service.requests().last().query, QStringLiteral("x=1"));
}

void TestUpdateRunnable::redirectToPlainHttpIsAFailure()
{
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    const QString target = QStringLiteral("http://%1/download").arg(service.authority());

    QCOMPARE(check(service, redirectTo(target.toLatin1())), kFailed);

    QCOMPARE(service.requests().size(), 1);
}

void TestUpdateRunnable::slowServiceIsWaitedFor_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("before the body") << 0;
    QTest::newRow("in mid-body") << 9;
}

void TestUpdateRunnable::slowServiceIsWaitedFor()
{
    QFETCH(int, place);
    LocalUpdateService service;
    LocalWebReply reply = replyWith(kRecordText);
    reply.holdAfter = place;
    reply.pieceSize = 1;
    reply.pauseMilliseconds = 1;
    service.setCheckReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    UpdateReceiver receiver;
    start(receiver);
    QTRY_COMPARE_WITH_TIMEOUT(service.requests().size(), 1, kPatienceMilliseconds);
    QCOMPARE(pool.activeThreadCount(), 1);
    QCOMPARE(receiver.count, 0);

    service.release();

    QTRY_COMPARE_WITH_TIMEOUT(receiver.count, 1, kPatienceMilliseconds);
    QCOMPARE(receiver.update, kRecord);
}

void TestUpdateRunnable::signalComesQueuedToTheReceiversThread()
{
    LocalUpdateService service;
    service.setCheckReply(replyWith(kRecordText));
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    UpdateReceiver receiver;
    start(receiver);

    QVERIFY(pool.waitForDone(kPatienceMilliseconds));
    QCOMPARE(receiver.count, 0);

    QCoreApplication::processEvents();
    QCOMPARE(receiver.count, 1);
    QCOMPARE(receiver.thread, QThread::currentThread());
    QCOMPARE(receiver.update, kRecord);
    QCOMPARE(receiver.lastUpdate, kRecord);
}

void TestUpdateRunnable::poolDeletesIt()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:%1").arg(closedPort()));
    auto runnable = std::make_unique<UpdateRunnable>(kProduct);
    QVERIFY(runnable->autoDelete());
    QVERIFY(!runnable->parent());
    const QPointer<UpdateRunnable> watched(runnable.get());
    QThread *runner = nullptr;
    connect(
        runnable.get(), &UpdateRunnable::updateReceived, runnable.get(),
        [&runner] { runner = QThread::currentThread(); }, Qt::DirectConnection);

    pool.start(runnable.release());
    QVERIFY(pool.waitForDone(kPatienceMilliseconds));

    QVERIFY(runner);
    QVERIFY(runner != QThread::currentThread());
    QVERIFY(watched.isNull());
}

void TestUpdateRunnable::secondCheckQueuesBehindTheFirst()
{
    LocalUpdateService service;
    LocalWebReply reply = replyWith(kRecordText);
    reply.holdAfter = 0;
    service.setCheckReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    UpdateReceiver first;
    UpdateReceiver second;
    start(first, 1);
    start(second, 2);
    QTRY_COMPARE_WITH_TIMEOUT(service.requests().size(), 1, kPatienceMilliseconds);
    service.setCheckReply(replyWith(R"({"Version": "3"})"));

    service.release();

    QTRY_COMPARE_WITH_TIMEOUT(second.count, 1, kPatienceMilliseconds);
    QCOMPARE(first.count, 1);
    QCOMPARE(first.update, kRecord);
    QCOMPARE(second.update.value(QStringLiteral("Version")).toString(), QStringLiteral("3"));
    QVERIFY(service.requests().last().query.contains(QStringLiteral("ProductType=2")));
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateRunnable>(argc, argv);
}

#include "tst_UpdateRunnable.moc"
