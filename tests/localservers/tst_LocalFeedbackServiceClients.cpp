#include "FeedbackServiceClient.h"
#include "LocalFeedbackService.h"
#include "TestBase.h"

#include <QDir>

#include <memory>
#include <vector>

using Client = FeedbackServiceClient;

namespace {

constexpr int kPatienceMilliseconds = Client::kPatienceMilliseconds;
constexpr int kLimit = 16 * 1024 * 1024;

QByteArray postOf(const QByteArray &head)
{
    return "POST /feedback HTTP/1.1\r\n" + head + "\r\n";
}

/// A body of form data whose parts are parts in parts, so many deep.
QByteArray nestedBody(int depth)
{
    QByteArray body;
    for (int level = 0; level < depth; ++level) {
        const QByteArray boundary = level == 0 ? "a+b" : "a" + QByteArray::number(level);
        body += "--" + boundary + "\r\nContent-Type: multipart/mixed; boundary=a"
            + QByteArray::number(level + 1) + "\r\n\r\n";
    }
    return body;
}

QByteArray formPost(const QByteArray &body)
{
    return Client::request("POST /feedback",
                           "Content-Type: multipart/form-data; boundary=\"a+b\"\r\n", body);
}

} // namespace

/// What strangers send, and what becomes of the service.
class TestLocalFeedbackServiceClients : public TestBase
{
    Q_OBJECT

private slots:
    void init();
    void badRequestIsRefused_data();
    void badRequestIsRefused();
    void oddBodyIsAnswered_data();
    void oddBodyIsAnswered();
    void bodyOfTheLargestSizeIsTaken();
    void hangingClientsHoldNobodyUp();
    void clientThatBreaksOffIsNotTold();
    void clientThatGoesWhileSilentLeavesNoError();
    void manyNotesAtOnceAreAllTold();
    void cleanup();

private:
    /// Whether a good note still gets its answer, with nothing in the service's error.
    [[nodiscard]] bool isWell();

    std::unique_ptr<LocalFeedbackService> service;
};

void TestLocalFeedbackServiceClients::init()
{
    service = std::make_unique<LocalFeedbackService>();
    QVERIFY2(service->start(), qPrintable(service->error()));
}

void TestLocalFeedbackServiceClients::cleanup()
{
    service.reset();
}

bool TestLocalFeedbackServiceClients::isWell()
{
    Client client;
    return client.send(Client::note()) && client.ends() && client.status() == "HTTP/1.1 200 OK"
        && service->isRunning() && service->error().isEmpty();
}

void TestLocalFeedbackServiceClients::badRequestIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<qsizetype>("told");

    const auto sized = [](const QByteArray &size) {
        return postOf("Content-Length: " + size + "\r\n");
    };
    QTest::newRow("word") << sized("abc") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("negative") << sized("-1") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("sign") << sized("+5") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("underscore") << sized("1_0") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("empty") << sized("") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("two sizes") << postOf("Content-Length: 1\r\nContent-Length: 2\r\n")
                               << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("other digits") << sized("\xb2") << QByteArray("HTTP/1.1 400 ") << qsizetype(1);
    QTest::newRow("above the limit")
        << sized(QByteArray::number(kLimit + 1)) << QByteArray("HTTP/1.1 413 ") << qsizetype(1);
    QTest::newRow("endless size") << sized(QByteArray(5000, '9')) << QByteArray("HTTP/1.1 413 ")
                                  << qsizetype(1);
    QTest::newRow("chunks") << postOf("Transfer-Encoding: chunked\r\n") + "0\r\n\r\n"
                            << QByteArray("HTTP/1.1 411 ") << qsizetype(1);
    QTest::newRow("long line") << "POST /" + QByteArray(70'000, 'x') << QByteArray("HTTP/1.1 414 ")
                               << qsizetype(0);
    QTest::newRow("many headers") << postOf(QByteArray("A: b\r\n").repeated(200))
                                  << QByteArray("HTTP/1.1 431 ") << qsizetype(0);
    QTest::newRow("another version") << QByteArray("POST /feedback HTTP/2.0\r\n\r\n")
                                     << QByteArray("<!DOCTYPE HTML>") << qsizetype(0);
    QTest::newRow("no request") << QByteArray("\x00\xff\x16\x03 what\r\n\r\n", 14)
                                << QByteArray("<!DOCTYPE HTML>") << qsizetype(0);
    QTest::newRow("one word") << QByteArray("POST\r\n\r\n") << QByteArray("<!DOCTYPE HTML>")
                              << qsizetype(0);
}

void TestLocalFeedbackServiceClients::badRequestIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, answer);
    QFETCH(qsizetype, told);
    Client client;

    QVERIFY(client.send(bytes));

    QVERIFY(client.ends());
    QVERIFY2(client.answer().startsWith(answer), client.answer().constData());
    QCOMPARE(service->requests().size(), told);
    QVERIFY(isWell());
}

void TestLocalFeedbackServiceClients::oddBodyIsAnswered_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qsizetype>("parts");
    const auto withDisposition = [](const QByteArray &disposition) {
        return formPost(Client::formBody(disposition, "x"));
    };
    const auto withType = [](const QByteArray &type) {
        return Client::request("POST /feedback", "Content-Type: " + type + "\r\n",
                               Client::formBody("form-data; name=\"content\"", "x"));
    };

    QTest::newRow("no body") << postOf("Connection: close\r\n") << qsizetype(0);
    QTest::newRow("no type") << Client::request("POST /feedback", "", "x") << qsizetype(0);
    QTest::newRow("text") << withType("text/plain") << qsizetype(0);
    QTest::newRow("mixed") << withType("multipart/mixed; boundary=\"a+b\"") << qsizetype(0);
    QTest::newRow("no boundary") << withType("multipart/form-data") << qsizetype(0);
    QTest::newRow("odd type") << withType("\xff;=;\";boundary") << qsizetype(0);
    QTest::newRow("boundary of another")
        << withType("multipart/form-data; boundary=c") << qsizetype(0);
    QTest::newRow("no end") << formPost("--a+b\r\n\r\nx") << qsizetype(1);
    QTest::newRow("empty form") << formPost("") << qsizetype(0);
    QTest::newRow("deep") << formPost(nestedBody(3000)) << qsizetype(0);
    QTest::newRow("less deep") << formPost(nestedBody(3)) << qsizetype(1);
    QTest::newRow("pieces without order")
        << withDisposition("form-data; name*=x; name*0=y") << qsizetype(1);
    QTest::newRow("piece of a huge number")
        << withDisposition("form-data; name*" + QByteArray(5000, '9') + "=x") << qsizetype(1);
    QTest::newRow("odd encoding") << withDisposition("form-data; name*=no\x7f'x'%ff%00")
                                  << qsizetype(1);
    QTest::newRow("null in it") << withDisposition(QByteArray("form-data; name=\"a\0b\"", 22))
                                << qsizetype(1);
}

void TestLocalFeedbackServiceClients::oddBodyIsAnswered()
{
    QFETCH(QByteArray, bytes);
    QFETCH(qsizetype, parts);
    Client client;

    QVERIFY(client.send(bytes));

    QVERIFY(client.ends());
    QCOMPARE(client.status(), QByteArray("HTTP/1.1 200 OK"));
    QCOMPARE(service->requests().size(), 1);
    QCOMPARE(service->requests()[0].parts.size(), parts);
    QVERIFY(isWell());
}

void TestLocalFeedbackServiceClients::bodyOfTheLargestSizeIsTaken()
{
    const QByteArray empty = Client::formBody("form-data; name=\"content\"", QByteArray());
    const QByteArray content(kLimit - empty.size(), 'x');
    Client client;

    QVERIFY(client.send(Client::note(content)));

    QVERIFY(client.ends());
    QCOMPARE(client.status(), QByteArray("HTTP/1.1 200 OK"));
    QCOMPARE(service->requests().size(), 1);
    QVERIFY(service->requests()[0].parts.at(0).content == content);
    // Nothing of it stays in the service's folder.
    QVERIFY(QDir(service->folder()).isEmpty());
}

void TestLocalFeedbackServiceClients::hangingClientsHoldNobodyUp()
{
    Client mute;
    Client inTheHead;
    Client inTheBody;
    QVERIFY(mute.send(""));
    QVERIFY(inTheHead.send("POST /feedback HTTP/1.1\r\nContent-Le"));
    const QByteArray note = Client::note("slow");
    QVERIFY(inTheBody.send(note.chopped(3)));

    QVERIFY(isWell());

    QCOMPARE(service->requests().size(), 1);
    QVERIFY(inTheBody.send(note.right(3)));
    QVERIFY(inTheBody.ends());
    QCOMPARE(inTheBody.status(), QByteArray("HTTP/1.1 200 OK"));
    QCOMPARE(service->requests().size(), 2);
    QCOMPARE(service->requests()[1].parts.at(0).content, QByteArray("slow"));
    service->stop();
    QVERIFY(mute.ends() && inTheHead.ends());
}

void TestLocalFeedbackServiceClients::clientThatBreaksOffIsNotTold()
{
    Client inTheHead;
    Client inTheBody;
    QVERIFY(inTheHead.send("POST /feedback HTTP/1.1\r\nContent-Length: 5\r\n"));
    QVERIFY(inTheBody.send("POST /feedback HTTP/1.1\r\nContent-Length: 5\r\n\r\n12"));

    inTheHead.hangUp();
    inTheBody.hangUp();

    // Each has a thread until it is done with, beside the two that the service always has.
    const QDir threads(QStringLiteral("/proc/%1/task").arg(service->processId()));
    QTRY_COMPARE_WITH_TIMEOUT(threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2,
                              kPatienceMilliseconds);
    QVERIFY(isWell());
    QCOMPARE(service->requests().size(), 1);
}

void TestLocalFeedbackServiceClients::clientThatGoesWhileSilentLeavesNoError()
{
    service->setAnswer(LocalFeedbackService::Answer::Silent);
    Client client;
    QVERIFY(client.send(Client::note()));
    QTRY_VERIFY_WITH_TIMEOUT(service->isSilent(), kPatienceMilliseconds);

    client.hangUp();
    service->setAnswer(LocalFeedbackService::Answer::Accepted);
    service->release();

    const QDir threads(QStringLiteral("/proc/%1/task").arg(service->processId()));
    QTRY_COMPARE_WITH_TIMEOUT(threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2,
                              kPatienceMilliseconds);
    QVERIFY(isWell());
}

void TestLocalFeedbackServiceClients::manyNotesAtOnceAreAllTold()
{
    constexpr int kCount = 50;
    std::vector<std::unique_ptr<Client>> clients;
    clients.reserve(kCount);
    for (int index = 0; index < kCount; ++index) {
        clients.push_back(std::make_unique<Client>());
    }
    for (int index = 0; index < kCount; ++index) {
        QVERIFY(clients[size_t(index)]->send(Client::note("note " + QByteArray::number(index))));
    }

    for (const auto &client : clients) {
        QVERIFY(client->ends());
        QCOMPARE(client->status(), QByteArray("HTTP/1.1 200 OK"));
    }
    QStringList contents;
    for (const LocalFeedbackService::Request &request : service->requests()) {
        contents.append(QString::fromLatin1(request.parts.at(0).content));
    }
    QCOMPARE(contents.size(), kCount);
    QCOMPARE(contents.removeDuplicates(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalFeedbackServiceClients>(argc, argv);
}

#include "tst_LocalFeedbackServiceClients.moc"
