#include "ServiceRequest.h"

#include "ClosedPort.h"
#include "DialogDriver.h"
#include "JsonText.h"
#include "LocalUpdateService.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "UpdateAuthorityChange.h"
#include "UpdateDialogPanel.h"

#include "TXStringI18n.h"

#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>

#include <memory>

Q_DECLARE_METATYPE(LocalWebReply)

/// The request to a real service on this computer.
class TestServiceRequest : public TestBase
{
    Q_OBJECT

private slots:
    void answerIsStatusHeadersAndBody();
    void serviceIsAskedWhatTheDialogAsks();
    void failureIsToldInWords_data();
    void failureIsToldInWords();
    void nobodyListening();
    void silenceEndsAfterItsLimit();
    void serviceThatEndsMeanwhileIsTold();
    void newRequestTakesThePlaceOfTheOld();
    void cancelledRequestSaysNothing();
    void requestMayGoWhileItWaits();

private:
    static constexpr int kPatienceMilliseconds = 30000;

    void prepare() override;
    void finish() override;
    void ask() { request->ask(service->authority()); }
    void answerWith(const QByteArray &body);
    [[nodiscard]] static LocalWebReply silence();
    [[nodiscard]] QString reasonOf(QSignalSpy &failures) const;

    std::unique_ptr<LocalUpdateService> service;
    std::unique_ptr<ServiceRequest> request;
};

void TestServiceRequest::prepare()
{
    service = std::make_unique<LocalUpdateService>();
    QVERIFY2(service->start(), qPrintable(service->error()));
    request = std::make_unique<ServiceRequest>();
}

void TestServiceRequest::finish()
{
    request.reset();
    service.reset();
}

void TestServiceRequest::answerWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    service->setCheckReply(reply);
}

LocalWebReply TestServiceRequest::silence()
{
    LocalWebReply reply;
    reply.isSilent = true;
    return reply;
}

QString TestServiceRequest::reasonOf(QSignalSpy &failures) const
{
    const bool hasCome = !failures.isEmpty() || failures.wait(kPatienceMilliseconds);
    if (!hasCome) {
        return {};
    }
    const QString reason = failures.first().at(0).value<TXStringI18n>().toString();
    return (reason + u' ' + failures.first().at(1).value<TXStringI18n>().toString()).trimmed();
}

void TestServiceRequest::answerIsStatusHeadersAndBody()
{
    const QByteArray text = "{\"Version\": \"2.0\", \"Parts\": [1, null]}";
    answerWith(text);
    QSignalSpy answers(request.get(), SIGNAL(answered(QVariant)));
    QVERIFY(request->address().isEmpty());

    ask();
    QVERIFY(request->isWaiting());
    QVERIFY(answers.wait(kPatienceMilliseconds));

    QVERIFY(!request->isWaiting());
    const QVariantMap answer = answers.first().first().toMap();
    QCOMPARE(answer.keys(), QStringList({"body", "headers", "status"}));
    QCOMPARE(answer["status"], QVariant(200));
    QCOMPARE(answer["headers"].toMap().value("Content-Length"),
             QVariant(QString::number(text.size())));
    const QVariantHash body = answer["body"].toHash();
    QCOMPARE(body["Version"], QVariant("2.0"));
    QCOMPARE(body["Parts"].toList().size(), 2);
    const auto requests = service->requests();
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests.first().path, "/checkUpdate");
    QCOMPARE(requests.first().query, "OS=win64&ProductType=7&Revision=10452");
    QCOMPARE(request->address().authority(), service->authority());
}

void TestServiceRequest::serviceIsAskedWhatTheDialogAsks()
{
    const UpdateAuthorityChange change(service->authority(), nullptr);
    UpdateDialogPanel panel;
    panel.setServiceRunning(true);
    panel.show();
    DialogDriver::click(buttonOf(panel, "Check for Updates"));
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 1, kPatienceMilliseconds);

    ask();
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 2, kPatienceMilliseconds);

    const auto requests = service->requests();
    QVERIFY(!requests.first().query.isEmpty());
    QCOMPARE(requests.last().method, requests.first().method);
    QCOMPARE(requests.last().path, requests.first().path);
    QCOMPARE(requests.last().query, requests.first().query);
    QDir(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)).removeRecursively();
}

void TestServiceRequest::failureIsToldInWords_data()
{
    QTest::addColumn<LocalWebReply>("reply");
    QTest::addColumn<QString>("reason");
    LocalWebReply reply;
    reply.status = 404;
    QTest::newRow("404") << reply << "The service has answered with HTTP status 404.";
    reply.status = 500;
    QTest::newRow("500") << reply << "The service has answered with HTTP status 500.";
    reply.status = 302;
    reply.location = "https://127.0.0.1:1/";
    QTest::newRow("elsewhere") << reply << "The service has answered with HTTP status 302.";
    reply = {};
    reply.body = "<html>";
    QTest::newRow("no JSON")
        << reply
        << "The answer of the service is not shown. It is no JSON (line 1: illegal value).";
    reply.body.clear();
    QTest::newRow("empty") << reply << "The answer of the service is not shown. It is empty.";
    reply.body = "{\"Version\": \"2.0\"}";
    reply.cutAfter = 5;
    QTest::newRow("cut off") << reply
                             << "The service has closed the connection before it had answered.";
    reply = {};
    reply.body = "{\"Version\": \"2.0\"}";
    reply.endless = true;
    QTest::newRow("endless") << reply << "The answer of the service is too large.";
}

void TestServiceRequest::failureIsToldInWords()
{
    QFETCH(LocalWebReply, reply);
    QFETCH(QString, reason);
    service->setCheckReply(reply);
    QSignalSpy answers(request.get(), SIGNAL(answered(QVariant)));
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));

    ask();

    QCOMPARE(reasonOf(failures), reason);
    QVERIFY(answers.isEmpty());
    QVERIFY(!request->isWaiting());
}

void TestServiceRequest::nobodyListening()
{
    const QString nobody = QStringLiteral("127.0.0.1:%1").arg(closedPort());
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));

    request->ask(nobody);

    QCOMPARE(reasonOf(failures), QStringLiteral("Nobody listens at %1.").arg(nobody));
}

void TestServiceRequest::silenceEndsAfterItsLimit()
{
    service->setCheckReply(silence());
    request->setSilenceLimit(500);
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));
    QElapsedTimer clock;
    clock.start();

    ask();

    QVERIFY(failures.wait(kPatienceMilliseconds));
    QVERIFY(clock.elapsed() < ServiceRequest::kSilenceMilliseconds / 2);
    QCOMPARE(reasonOf(failures), "The service has said nothing for 0.5 seconds.");
}

void TestServiceRequest::serviceThatEndsMeanwhileIsTold()
{
    service->setCheckReply(silence());
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));
    ask();
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 1, kPatienceMilliseconds);

    service->stop();

    QVERIFY(!reasonOf(failures).isEmpty());
    QCOMPARE(failures.size(), 1);
    QVERIFY(!request->isWaiting());
}

void TestServiceRequest::newRequestTakesThePlaceOfTheOld()
{
    service->setCheckReply(silence());
    QSignalSpy answers(request.get(), SIGNAL(answered(QVariant)));
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));
    ask();
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 1, kPatienceMilliseconds);

    answerWith("[1]");
    ask();

    QVERIFY(answers.wait(kPatienceMilliseconds));
    QCOMPARE(answers.first().first().toMap().value("body"), QVariant(QVariantList{1LL}));
    QVERIFY(failures.isEmpty());
}

void TestServiceRequest::cancelledRequestSaysNothing()
{
    service->setCheckReply(silence());
    QSignalSpy answers(request.get(), SIGNAL(answered(QVariant)));
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));
    ask();
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 1, kPatienceMilliseconds);

    request->cancel();
    QVERIFY(!request->isWaiting());
    service->release();
    QCoreApplication::processEvents();

    QVERIFY(answers.isEmpty());
    QVERIFY(failures.isEmpty());
}

void TestServiceRequest::requestMayGoWhileItWaits()
{
    service->setCheckReply(silence());
    QSignalSpy failures(request.get(), SIGNAL(failed(TXStringI18n, TXStringI18n)));
    ask();
    QTRY_COMPARE_WITH_TIMEOUT(service->requests().size(), 1, kPatienceMilliseconds);

    request.reset();

    QVERIFY(failures.isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestServiceRequest>(argc, argv);
}

#include "tst_ServiceRequest.moc"
