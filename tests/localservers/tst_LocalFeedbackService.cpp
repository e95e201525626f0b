#include "LocalFeedbackService.h"

#include "FeedbackServiceClient.h"
#include "TestBase.h"

#include <QHttpMultiPart>
#include <QHttpPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QUrl>

#include <memory>

using Answer = LocalFeedbackService::Answer;
using Client = FeedbackServiceClient;

namespace {

constexpr int kPatienceMilliseconds = Client::kPatienceMilliseconds;

} // namespace

class TestLocalFeedbackService : public TestBase
{
    Q_OBJECT

private slots:
    void noteIsToldAsItCame();
    void contentIsToldByteForByte_data();
    void contentIsToldByteForByte();
    void partsAreToldOneByOne();
    void partsOfAnotherClientAreTheSame();
    void answerIsTheOneThatWasSet_data();
    void answerIsTheOneThatWasSet();
    void answerCountsFromTheNextRequestOn();
    void silentServiceAnswersOnceReleased();
    void silentServiceEndsWithoutAnAnswer();
    void droppedAnswerBreaksOffInItsMiddle();
    void allElseIsNotFound_data();
    void allElseIsNotFound();
    void logSaysNothingOfTheNote();
    void requestsAreKeptByStopAndDroppedByStart();
};

void TestLocalFeedbackService::noteIsToldAsItCame()
{
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    QCOMPARE(service.port(), LocalFeedbackService::kPort);
    Client client;

    QVERIFY(client.send(Client::request(
        "POST /feedback",
        "X-Oddly-SPELT: some value: 1\r\nContent-Type: multipart/form-data; boundary=\"a+b\"\r\n",
        Client::formBody("form-data; name=\"content\"", R"({"Subject":"Colours"})"))));

    QVERIFY(client.ends());
    QCOMPARE(client.status(), QByteArray("HTTP/1.1 200 OK"));
    QCOMPARE(service.requests().size(), 1);
    const LocalFeedbackService::Request told = service.requests()[0];
    QCOMPARE(told.method, QStringLiteral("POST"));
    QCOMPARE(told.path, QStringLiteral("/feedback"));
    QVERIFY(told.headers.contains({"X-Oddly-SPELT", "some value: 1"}));
    QCOMPARE(told.parts.size(), 1);
    QCOMPARE(told.parts[0].disposition, QStringLiteral("form-data; name=\"content\""));
    QCOMPARE(told.parts[0].name, QStringLiteral("content"));
    QVERIFY(!told.parts[0].hasFileName);
    QCOMPARE(told.parts[0].content, QByteArray(R"({"Subject":"Colours"})"));
    QCOMPARE(service.error(), QString());
}

void TestLocalFeedbackService::contentIsToldByteForByte_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray allBytes;
    for (int byte = 0; byte < 256; ++byte) {
        allBytes.append(static_cast<char>(byte));
    }

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("all bytes") << allBytes;
    QTest::newRow("line ends of all kinds") << QByteArray("\r\na\nb\rc\r\n\n\r\r\n");
    QTest::newRow("nearly a boundary") << QByteArray("a\r\n--a+\r\n--a+bc\r\n--a b\r\nb");
    QTest::newRow("UTF-8") << QByteArray("{\"a\":\"\xc3\xa4\xf0\x9f\x8e\xa8\"}");
    QTest::newRow("one long line") << QByteArray(3'000'000, 'x');
    QTest::newRow("many lines") << QByteArray("line\r\n").repeated(100'000);
}

void TestLocalFeedbackService::contentIsToldByteForByte()
{
    QFETCH(QByteArray, content);
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;

    QVERIFY(client.send(Client::note(content)));

    QVERIFY(client.ends());
    QCOMPARE(service.requests().size(), 1);
    QCOMPARE(service.requests()[0].parts.size(), 1);
    QVERIFY(service.requests()[0].parts[0].content == content);
}

void TestLocalFeedbackService::partsAreToldOneByOne()
{
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;
    const QByteArray body = "what stands before the parts\r\n--x\r\n"
                            "content-disposition: form-data; name=\"first\"; filename=\"a.txt\"\r\n"
                            "Content-Type: text/plain\r\n\r\none\r\n--x\r\n"
                            "Content-Disposition: form-data; name=\"gr\xc3\xbc\xc3\x9f\"\r\n\r\n"
                            "two\r\n--x\r\n\r\nthree\r\n--x--\r\nand behind them";

    QVERIFY(client.send(Client::request(
        "POST /feedback", "Content-Type: multipart/form-data; boundary=x\r\n", body)));

    QVERIFY(client.ends());
    QCOMPARE(service.requests().size(), 1);
    const QList<LocalFeedbackService::Part> parts = service.requests()[0].parts;
    QCOMPARE(parts.size(), 3);
    QCOMPARE(parts[0].name, QStringLiteral("first"));
    QVERIFY(parts[0].hasFileName);
    QCOMPARE(parts[0].content, QByteArray("one"));
    QCOMPARE(parts[1].disposition, QString::fromUtf8("form-data; name=\"gr\xc3\xbc\xc3\x9f\""));
    QCOMPARE(parts[1].name, QString::fromUtf8("gr\xc3\xbc\xc3\x9f"));
    QVERIFY(!parts[1].hasFileName);
    QCOMPARE(parts[1].content, QByteArray("two"));
    QCOMPARE(parts[2].disposition, QString());
    QCOMPARE(parts[2].name, QString());
    QCOMPARE(parts[2].content, QByteArray("three"));
    QCOMPARE(service.log(), QStringList("POST /feedback, parts: 3"));
}

void TestLocalFeedbackService::partsOfAnotherClientAreTheSame()
{
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    QHttpMultiPart multiPart(QHttpMultiPart::FormDataType);
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader, "form-data; name=\"content\"");
    part.setBody("{\"a\":\r\n1}");
    multiPart.append(part);
    QNetworkAccessManager manager;

    const std::unique_ptr<QNetworkReply> reply(manager.post(
        QNetworkRequest(QUrl(QStringLiteral("http://127.0.0.1:5050/feedback"))), &multiPart));

    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), kPatienceMilliseconds);
    QCOMPARE(reply->error(), QNetworkReply::NoError);
    QCOMPARE(reply->readAll(), QByteArray("{\"result\": true}"));
    QCOMPARE(service.requests().size(), 1);
    QCOMPARE(service.requests()[0].parts.size(), 1);
    QCOMPARE(service.requests()[0].parts[0].disposition,
             QStringLiteral("form-data; name=\"content\""));
    QCOMPARE(service.requests()[0].parts[0].content, QByteArray("{\"a\":\r\n1}"));
}

void TestLocalFeedbackService::answerIsTheOneThatWasSet_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("accepted") << Answer::Accepted << QByteArray("HTTP/1.1 200 OK")
                              << QByteArray("{\"result\": true}");
    QTest::newRow("refused") << Answer::Refused << QByteArray("HTTP/1.1 200 OK")
                             << QByteArray("{\"result\": false}");
    QTest::newRow("rubbish") << Answer::Rubbish << QByteArray("HTTP/1.1 200 OK")
                             << QByteArray("\xff\xfe{\"result\": tr\0", 16);
}

void TestLocalFeedbackService::answerIsTheOneThatWasSet()
{
    QFETCH(Answer, answer);
    LocalFeedbackService service;
    QCOMPARE(service.answer(), Answer::Accepted);
    service.setAnswer(answer);
    QCOMPARE(service.answer(), answer);
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;

    QVERIFY(client.send(Client::note()));

    QVERIFY(client.ends());
    QTEST(client.status(), "status");
    QTEST(client.body(), "body");
}

void TestLocalFeedbackService::answerCountsFromTheNextRequestOn()
{
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));

    service.setAnswer(Answer::Error);
    Client refused;
    QVERIFY(refused.send(Client::note()));
    QVERIFY(refused.ends());
    service.stop();
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client kept;
    QVERIFY(kept.send(Client::note()));
    QVERIFY(kept.ends());
    service.setAnswer(Answer::Accepted);
    Client accepted;
    QVERIFY(accepted.send(Client::note()));
    QVERIFY(accepted.ends());

    QCOMPARE(refused.status(), QByteArray("HTTP/1.1 500 Internal Server Error"));
    QCOMPARE(kept.status(), QByteArray("HTTP/1.1 500 Internal Server Error"));
    QCOMPARE(accepted.status(), QByteArray("HTTP/1.1 200 OK"));
    QCOMPARE(service.requests().size(), 2);
}

void TestLocalFeedbackService::silentServiceAnswersOnceReleased()
{
    LocalFeedbackService service;
    service.release();
    service.setAnswer(Answer::Silent);
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client first;
    QVERIFY(first.send(Client::note()));
    QTRY_VERIFY_WITH_TIMEOUT(service.isSilent(), kPatienceMilliseconds);
    QCOMPARE(service.requests().size(), 1);

    // Others are served meanwhile, and what counts for them does not wake who waits.
    service.setAnswer(Answer::Refused);
    Client meanwhile;
    QVERIFY(meanwhile.send(Client::note()));
    QVERIFY(meanwhile.ends());
    QCOMPARE(meanwhile.body(), QByteArray("{\"result\": false}"));
    QCOMPARE(first.answer(), QByteArray());
    service.setAnswer(Answer::Silent);
    service.release();
    QVERIFY(first.ends());
    QCOMPARE(first.body(), QByteArray("{\"result\": true}"));
}

void TestLocalFeedbackService::silentServiceEndsWithoutAnAnswer()
{
    LocalFeedbackService service;
    service.setAnswer(Answer::Silent);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QSignalSpy silent(&service, SIGNAL(becameSilent()));
    // Counts for those who wait only.
    service.release();
    Client second;
    QVERIFY(second.send(Client::note()));
    QTRY_COMPARE_WITH_TIMEOUT(silent.count(), 1, kPatienceMilliseconds);
    QCOMPARE(second.answer(), QByteArray());
    service.stop();
    QVERIFY(second.ends());
    QCOMPARE(second.answer(), QByteArray());
}

void TestLocalFeedbackService::droppedAnswerBreaksOffInItsMiddle()
{
    LocalFeedbackService service;
    service.setAnswer(Answer::Dropped);
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;
    QNetworkAccessManager manager;

    QVERIFY(client.send(Client::note()));
    QVERIFY(client.ends());
    const std::unique_ptr<QNetworkReply> reply(manager.post(
        QNetworkRequest(QUrl(QStringLiteral("http://127.0.0.1:5050/feedback"))), QByteArray()));
    QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), kPatienceMilliseconds);

    QVERIFY(client.answer().contains("Content-Length: 16\r\n"));
    QCOMPARE(client.body(), QByteArray("{\"result"));
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
    QCOMPARE(service.error(), QString());
}

void TestLocalFeedbackService::allElseIsNotFound_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("a note") << QByteArray("POST /feedback") << true;
    QTest::newRow("with a query") << QByteArray("POST /feedback?from=here") << true;
    QTest::newRow("read") << QByteArray("GET /feedback") << false;
    QTest::newRow("another method") << QByteArray("PUT /feedback") << false;
    QTest::newRow("a method of nobody") << QByteArray("BREW /feedback") << false;
    QTest::newRow("another path") << QByteArray("POST /feedbacks") << false;
    QTest::newRow("below it") << QByteArray("POST /feedback/") << false;
    QTest::newRow("other letters") << QByteArray("POST /Feedback") << false;
    QTest::newRow("no path") << QByteArray("POST *") << false;
}

void TestLocalFeedbackService::allElseIsNotFound()
{
    QFETCH(QByteArray, start);
    QFETCH(bool, isFound);
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;

    QVERIFY(client.send(Client::request(start, QByteArray(), "body")));

    QVERIFY(client.ends());
    QCOMPARE(client.status(), isFound ? "HTTP/1.1 200 OK" : "HTTP/1.1 404 Not Found");
    QCOMPARE(service.requests().size(), 1);
    QCOMPARE(service.requests()[0].method + u' ' + service.requests()[0].path, start);
    QVERIFY(service.requests()[0].parts.isEmpty());
}

void TestLocalFeedbackService::logSaysNothingOfTheNote()
{
    LocalFeedbackService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    QSignalSpy logged(&service, SIGNAL(logged(QString)));
    QSignalSpy received(&service, SIGNAL(requestReceived()));
    Client client;

    QVERIFY(client.send(Client::note("the content of the note")));

    QTRY_COMPARE_WITH_TIMEOUT(logged.count(), 1, kPatienceMilliseconds);
    QCOMPARE(received.count(), 1);
    QCOMPARE(service.log(), QStringList("POST /feedback, parts: 1"));
    QVERIFY(client.ends());
    QCOMPARE(service.log(), QStringList("POST /feedback, parts: 1"));
    QCOMPARE(service.error(), QString());
}

void TestLocalFeedbackService::requestsAreKeptByStopAndDroppedByStart()
{
    LocalFeedbackService service;
    QVERIFY(service.requests().isEmpty());
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client client;
    QVERIFY(client.send(Client::note("kept")));
    QVERIFY(client.ends());

    // What nobody has asked for until now is there as well.
    service.stop();

    QCOMPARE(service.requests().size(), 1);
    QCOMPARE(service.requests()[0].parts.size(), 1);
    QCOMPARE(service.requests()[0].parts[0].content, QByteArray("kept"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(service.requests().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestLocalFeedbackService>(argc, argv);
}

#include "tst_LocalFeedbackService.moc"
