#include "ClosedPort.h"
#include "CurlTransfer.h"
#include "FullServer.h"
#include "ScriptedMailServer.h"
#include "SilentServer.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <memory>

namespace {

/// Far below the time-outs, far above what a busy machine needs.
constexpr int kAtOnceMilliseconds = 2000;

/// A transfer that goes to the end of the dialogue with a mail server and sends an empty mail.
void prepareMail(CurlTransfer &transfer, quint16 port)
{
    CURL *easy = transfer.handle();
    const QByteArray url = "smtp://127.0.0.1:" + QByteArray::number(port);
    curl_easy_setopt(easy, CURLOPT_URL, url.constData());
    curl_easy_setopt(easy, CURLOPT_MAIL_FROM, "mia@example.org");
    static curl_slist *const receivers = curl_slist_append(nullptr, "bob@example.org");
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, receivers);
    curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
    curl_read_callback nothing = [](char *, size_t, size_t, void *) -> size_t {
        return 0;
    };
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, nothing);
}

/// perform() on a thread of its own, while the test's event loop serves.
class Worker
{
public:
    explicit Worker(CurlTransfer &transfer)
        : transfer(transfer)
        , thread(QThread::create([&transfer] { transfer.perform(); }))
    {
        thread->start();
    }
    ~Worker()
    {
        transfer.cancel();
        thread->wait();
    }
    Q_DISABLE_COPY_MOVE(Worker)

    [[nodiscard]] bool isFinished() const { return thread->isFinished(); }
    bool wait() { return thread->wait(kAtOnceMilliseconds); }

private:
    CurlTransfer &transfer;
    std::unique_ptr<QThread> thread;
};

} // namespace

class TestCurlTransfer : public TestBase
{
    Q_OBJECT

private slots:
    void transferGoesWell();
    void nothingListens();
    void timeOutsAreThoseOfTheSettings_data();
    void timeOutsAreThoseOfTheSettings();
    void cancelEndsItAtOnce_data();
    void cancelEndsItAtOnce();
    void cancelBeforeTheStartCounts();
    void cancelAfterTheEndChangesNothing();
    void silenceAtGoodbyeCostsNoTime_data();
    void silenceAtGoodbyeCostsNoTime();
    void answerToGoodbyeIsNotKept();
    void brokenConnectionIsAFailure();
    void lastLineOfTheServerIsKept();
    void lineWithThePasswordIsNotKept_data();
    void lineWithThePasswordIsNotKept();
    void oddBytesOfTheServerArePlainText();
    void endlessLineOfTheServerEnds();
    void missingAuthoritiesAreAFailure();
    void environmentNamesNoProxy();

protected:
    void prepare() override;
    void finish() override;
};

void TestCurlTransfer::prepare()
{
    TXTransferSettings::setConnectTimeout(30000);
    TXTransferSettings::setTotalTimeout(30000);
}

void TestCurlTransfer::finish()
{
    TXTransferSettings::setConnectTimeout(0);
    TXTransferSettings::setTotalTimeout(0);
    TXTransferSettings::setCertificateAuthoritiesFile({});
}

void TestCurlTransfer::transferGoesWell()
{
    const ScriptedMailServer server;
    CurlTransfer transfer;
    QCOMPARE(transfer.code(), int(CURLE_OK));
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.code(), int(CURLE_OK));
    QVERIFY(!transfer.isCancelled());
    QCOMPARE(transfer.detail(), QString());
    QCOMPARE(transfer.lastServerLine(), "250 taken");
    // Nothing is kept for a next transfer, while this one still exists.
    QTRY_COMPARE(server.clients(), 0);
    QVERIFY(server.hasGot("QUIT"));
}

void TestCurlTransfer::nothingListens()
{
    CurlTransfer transfer;
    prepareMail(transfer, closedPort());
    QVERIFY(!transfer.perform());
    QCOMPARE(transfer.code(), int(CURLE_COULDNT_CONNECT));
    QVERIFY2(transfer.detail().contains("127.0.0.1"), qPrintable(transfer.detail()));
    QCOMPARE(transfer.lastServerLine(), QString());
    QVERIFY(!transfer.isCancelled());
}

void TestCurlTransfer::timeOutsAreThoseOfTheSettings_data()
{
    QTest::addColumn<int>("connecting");
    QTest::addColumn<int>("total");
    QTest::addColumn<bool>("isFull");
    QTest::newRow("never connected") << 300 << 30000 << true;
    QTest::newRow("no greeting") << 300 << 30000 << false;
    QTest::newRow("total") << 30000 << 300 << false;
}

void TestCurlTransfer::timeOutsAreThoseOfTheSettings()
{
    QFETCH(int, connecting);
    QFETCH(int, total);
    QFETCH(bool, isFull);
    const FullServer full;
    const SilentServer silent;
    TXTransferSettings::setConnectTimeout(connecting);
    TXTransferSettings::setTotalTimeout(total);
    CurlTransfer transfer;
    prepareMail(transfer, isFull ? full.port() : silent.port());
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!transfer.perform());
    QCOMPARE(transfer.code(), int(CURLE_OPERATION_TIMEDOUT));
    QVERIFY(timer.elapsed() >= 299);
    QVERIFY(timer.elapsed() < 300 + kAtOnceMilliseconds);
}

void TestCurlTransfer::cancelEndsItAtOnce_data()
{
    QTest::addColumn<QByteArray>("silentCommand");
    for (const char *command : {"EHLO", "MAIL", "RCPT", "DATA", "."}) {
        QTest::newRow(command) << QByteArray(command);
    }
}

void TestCurlTransfer::cancelEndsItAtOnce()
{
    QFETCH(QByteArray, silentCommand);
    const ScriptedMailServer server({{silentCommand, ScriptedMailServer::kSilence}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    Worker worker(transfer);
    QTRY_VERIFY(!server.commands().isEmpty() && server.commands().last().startsWith(silentCommand));
    QVERIFY(!worker.isFinished());
    QElapsedTimer timer;
    timer.start();
    transfer.cancel();
    QVERIFY(worker.wait());
    QVERIFY2(timer.elapsed() < kAtOnceMilliseconds, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(transfer.isCancelled());
    QCOMPARE(transfer.code(), int(CURLE_ABORTED_BY_CALLBACK));
    QTRY_COMPARE(server.clients(), 0);
}

void TestCurlTransfer::cancelBeforeTheStartCounts()
{
    const SilentServer server;
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    transfer.cancel();
    QVERIFY(!transfer.perform());
    QCOMPARE(transfer.code(), int(CURLE_ABORTED_BY_CALLBACK));
    QVERIFY(!server.waitForClient(0));
}

void TestCurlTransfer::cancelAfterTheEndChangesNothing()
{
    CurlTransfer transfer;
    prepareMail(transfer, closedPort());
    QVERIFY(!transfer.perform());
    transfer.cancel();
    QCOMPARE(transfer.code(), int(CURLE_COULDNT_CONNECT));
    QVERIFY(transfer.isCancelled());
}

void TestCurlTransfer::silenceAtGoodbyeCostsNoTime_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("detail");
    QTest::newRow("after success") << QByteArray("250 ok") << int(CURLE_OK) << "";
    QTest::newRow("after failure")
        << QByteArray("550 no") << int(CURLE_SEND_ERROR) << "MAIL failed: 550";
}

void TestCurlTransfer::silenceAtGoodbyeCostsNoTime()
{
    QFETCH(QByteArray, answer);
    const ScriptedMailServer server({{"MAIL", answer}, {"QUIT", ScriptedMailServer::kSilence}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    QElapsedTimer timer;
    timer.start();
    const Worker worker(transfer);
    QTRY_VERIFY_WITH_TIMEOUT(worker.isFinished(), 20000);
    QVERIFY2(timer.elapsed() < kAtOnceMilliseconds, qPrintable(QString::number(timer.elapsed())));
    QTEST(transfer.code(), "code");
    QTRY_VERIFY(server.hasGot("QUIT"));
    QTEST(transfer.detail(), "detail");
}

void TestCurlTransfer::answerToGoodbyeIsNotKept()
{
    // Ahead of the goodbye, so that libcurl surely has it when it looks.
    const ScriptedMailServer server({{"MAIL", "550 no\r\n221 bye"}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.lastServerLine(), "550 no");
}

void TestCurlTransfer::brokenConnectionIsAFailure()
{
    const ScriptedMailServer server({{"DATA", ScriptedMailServer::kHangUp}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QVERIFY2(transfer.code() == CURLE_RECV_ERROR || transfer.code() == CURLE_SEND_ERROR,
             qPrintable(QString::number(transfer.code())));
    QVERIFY(!transfer.isCancelled());
}

void TestCurlTransfer::lastLineOfTheServerIsKept()
{
    const ScriptedMailServer server({{"MAIL", "550-no\r\n550 not you"}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.lastServerLine(), "550 not you");
    QVERIFY(transfer.detail().startsWith("MAIL failed: 550"));
}

void TestCurlTransfer::lineWithThePasswordIsNotKept_data()
{
    QTest::addColumn<QByteArray>("echo");
    QTest::newRow("clear") << QByteArray("s3cret");
    QTest::newRow("as AUTH LOGIN sends it") << QByteArray("s3cret").toBase64();
    QTest::newRow("as AUTH PLAIN sends it") << QByteArray("\0mia\0s3cret", 11).toBase64();
}

void TestCurlTransfer::lineWithThePasswordIsNotKept()
{
    QFETCH(QByteArray, echo);
    const ScriptedMailServer server({{"login", "535 what is '" + echo + "'?"}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    transfer.setLogin("mia", "s3cret");
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.code(), int(CURLE_LOGIN_DENIED));
    QCOMPARE(transfer.lastServerLine(), QString());
    QVERIFY(!transfer.detail().contains(echo));
}

void TestCurlTransfer::oddBytesOfTheServerArePlainText()
{
    const ScriptedMailServer server({{"MAIL", "550 a\tb\x1b[31m \xff \xf0\x9f\x98\x80"}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.lastServerLine(), QStringLiteral("550 a b [31m \ufffd 😀"));
}

void TestCurlTransfer::endlessLineOfTheServerEnds()
{
    const ScriptedMailServer server({{"MAIL", "550 " + QByteArray(10 << 20, 'x')}});
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY_WITH_TIMEOUT(worker.isFinished(), 20000);
    QVERIFY(transfer.code() != CURLE_OK);
    QVERIFY(transfer.lastServerLine().size() <= 500);
}

void TestCurlTransfer::missingAuthoritiesAreAFailure()
{
    const ScriptedMailServer server(
        {{"EHLO", "250-hello\r\n250 STARTTLS"}, {"STARTTLS", "220 go"}});
    TXTransferSettings::setCertificateAuthoritiesFile("/nowhere/authorities.pem");
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    curl_easy_setopt(transfer.handle(), CURLOPT_USE_SSL, long(CURLUSESSL_ALL));
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    QCOMPARE(transfer.code(), int(CURLE_SSL_CACERT_BADFILE));
}

void TestCurlTransfer::environmentNamesNoProxy()
{
    qputenv("ALL_PROXY", "http://127.0.0.1:" + QByteArray::number(closedPort()));
    const ScriptedMailServer server;
    CurlTransfer transfer;
    prepareMail(transfer, server.port());
    const Worker worker(transfer);
    QTRY_VERIFY(worker.isFinished());
    qunsetenv("ALL_PROXY");
    QCOMPARE(transfer.code(), int(CURLE_OK));
}

int main(int argc, char **argv)
{
    return runTest<TestCurlTransfer>(argc, argv);
}

#include "tst_CurlTransfer.moc"
