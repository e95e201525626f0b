#include "CurlReason.h"
#include "CurlTransfer.h"
#include "ScriptedMailServer.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <QTranslator>

#include <memory>

class TestCurlReason : public TestBase
{
    Q_OBJECT

private slots:
    void codeIsToldInWords_data();
    void codeIsToldInWords();
    void otherCodesAreToldByTheLibrary();
    void successHasNoReason();
    void reasonHoldsSentenceAndDetail();
    void callersSentenceReplacesBoth();
    void serverIsQuotedWhenItComplains_data();
    void serverIsQuotedWhenItComplains();
    void sentencesAreTranslated();
};

void TestCurlReason::codeIsToldInWords_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("words");
    QTest::newRow("protocol") << 1 << "not supported";
    QTest::newRow("address") << 3 << "not valid";
    QTest::newRow("unknown name") << 6 << "No server of that name";
    QTest::newRow("nothing listens") << 7 << "cannot be reached";
    QTest::newRow("odd answer") << 8 << "unexpected answer";
    QTest::newRow("denied") << 9 << "denied access";
    QTest::newRow("time-out") << 28 << "in time";
    QTest::newRow("no TLS") << 35 << "No encrypted connection";
    QTest::newRow("cancelled") << 42 << "cancelled";
    QTest::newRow("closed") << 52 << "closed the connection";
    QTest::newRow("refused") << 55 << "refused what was sent";
    QTest::newRow("broken") << 56 << "broken by the server";
    QTest::newRow("certificate") << 60 << "could not be verified";
    QTest::newRow("no STARTTLS") << 64 << "does not offer an encrypted";
    QTest::newRow("login") << 67 << "refused the login";
    QTest::newRow("authorities") << 77 << "certificate authorities";
    QTest::newRow("no file") << 78 << "does not have that file";
    QTest::newRow("SSH") << 79 << "SSH connection";
}

void TestCurlReason::codeIsToldInWords()
{
    QFETCH(int, code);
    QFETCH(QString, words);
    QVERIFY2(curlSentence(code).contains(words), qPrintable(curlSentence(code)));
    QVERIFY(curlSentence(code).endsWith('.'));
}

void TestCurlReason::otherCodesAreToldByTheLibrary()
{
    for (const int code : {-1, 2, 27, 98, 1000, INT_MAX}) {
        QCOMPARE(curlSentence(code), QString(curl_easy_strerror(CURLcode(code))));
        QVERIFY(!curlSentence(code).isEmpty());
    }
}

void TestCurlReason::successHasNoReason()
{
    const CurlTransfer transfer;
    QCOMPARE(curlSentence(0), QString());
    QCOMPARE(curlReason(transfer), QString());
    QCOMPARE(curlReason(transfer, "caller's"), QString());
}

void TestCurlReason::reasonHoldsSentenceAndDetail()
{
    CurlTransfer transfer;
    curl_easy_setopt(transfer.handle(), CURLOPT_URL, "nonsense://localhost");
    QVERIFY(!transfer.perform());
    const QStringList lines = curlReason(transfer).split('\n');
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], curlSentence(CURLE_UNSUPPORTED_PROTOCOL));
    QVERIFY2(lines[1].contains("nonsense"), qPrintable(lines[1]));
}

void TestCurlReason::callersSentenceReplacesBoth()
{
    CurlTransfer transfer;
    curl_easy_setopt(transfer.handle(), CURLOPT_URL, "nonsense://localhost");
    QVERIFY(!transfer.perform());
    QCOMPARE(curlReason(transfer, "caller's"), "caller's");
}

void TestCurlReason::serverIsQuotedWhenItComplains_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isQuoted");
    QTest::newRow("greeting") << QByteArray("220 hello") << false;
    QTest::newRow("go on") << QByteArray("354 go on") << false;
    QTest::newRow("not now") << QByteArray("421 busy") << true;
    QTest::newRow("never") << QByteArray("554 no") << true;
    QTest::newRow("something else") << QByteArray("HTTP/1.1 400") << true;
}

void TestCurlReason::serverIsQuotedWhenItComplains()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, isQuoted);
    const ScriptedMailServer server({{"", line}, {"EHLO", ScriptedMailServer::kHangUp}});
    CurlTransfer transfer;
    const QByteArray url = "smtp://127.0.0.1:" + QByteArray::number(server.port());
    curl_easy_setopt(transfer.handle(), CURLOPT_URL, url.constData());
    // The server that speaks another language is waited for.
    TXTransferSettings::setConnectTimeout(1000);
    const std::unique_ptr<QThread> worker(QThread::create([&transfer] { transfer.perform(); }));
    worker->start();
    QTRY_VERIFY(worker->isFinished());
    TXTransferSettings::setConnectTimeout(0);
    QVERIFY(transfer.code() != CURLE_OK);
    QCOMPARE(transfer.lastServerLine(), QString::fromLatin1(line));
    QCOMPARE(curlReason(transfer).contains(QString::fromLatin1(line)), isQuoted);
}

void TestCurlReason::sentencesAreTranslated()
{
    class Shouting : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return qstrcmp(context, "QObject") == 0 ? QString(text).toUpper() : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Shouting translator;
    const QString plain = curlSentence(67);
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(curlSentence(67), plain.toUpper());
}

int main(int argc, char **argv)
{
    return runTest<TestCurlReason>(argc, argv);
}

#include "tst_CurlReason.moc"
