#include "FeedbackTestHelpers.h"
#include "LocalFeedbackService.h"
#include "ReplyWatcher.h"
#include "TestBase.h"

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <utility>

using Answer = LocalFeedbackService::Answer;

namespace {

constexpr int kPatienceMilliseconds = 30000;

/// Holds the port without listening, so that nobody can be found there; null when it is taken.
std::unique_ptr<QTcpSocket> heldPort()
{
    auto socket = std::make_unique<QTcpSocket>();
    const bool isHeld =
        socket->bind(QHostAddress::LocalHost, LocalFeedbackService::kPort,
                     QAbstractSocket::DontShareAddress | QAbstractSocket::ReuseAddressHint);
    return isHeld ? std::move(socket) : nullptr;
}

} // namespace

class TestTXFeedbackWidgetExchange : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void completeAnswerIsARefusal_data();
    void completeAnswerIsARefusal();
    void errorIsToldInWords_data();
    void errorIsToldInWords();
    void closedPortIsToldInWords();
    void errorCodeIsLoggedAfterTheBox();
    void dataThatArrivesAfterTheFirstReadCounts_data();
    void dataThatArrivesAfterTheFirstReadCounts();
    void formMayGoWhenTheNoteIsAccepted();
    void formMayGoWhileAFailureIsTold_data();
    void formMayGoWhileAFailureIsTold();
    void submittingAgainAfterAFailureSendsAgain();
    void submittingWhileAFailureIsToldDoesNothing();
    void proxyOfTheApplicationIsNotUsed();

private:
    std::unique_ptr<LocalFeedbackService> service;
    std::unique_ptr<TXFeedbackWidget> form;
    std::unique_ptr<DialogDriver> driver;
};

void TestTXFeedbackWidgetExchange::prepare()
{
    service = std::make_unique<LocalFeedbackService>();
    QVERIFY2(service->start(), qPrintable(service->error()));
    driver = std::make_unique<DialogDriver>();
    form = std::make_unique<TXFeedbackWidget>();
    form->show();
    fillIn(*form);
}

void TestTXFeedbackWidgetExchange::finish()
{
    form.reset();
    driver.reset();
    service.reset();
}

void TestTXFeedbackWidgetExchange::completeAnswerIsARefusal_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("body");
    QTest::newRow("accepted") << Answer::Accepted << "{\"result\": true}";
    QTest::newRow("refused") << Answer::Refused << "{\"result\": false}";
    QTest::newRow("rubbish") << Answer::Rubbish
                             << QString::fromUtf8(QByteArray("\xff\xfe{\"result\": tr\0", 16));
}

void TestTXFeedbackWidgetExchange::completeAnswerIsARefusal()
{
    QFETCH(Answer, answer);
    QFETCH(QString, body);
    service->setAnswer(answer);
    QSignalSpy accepted(form.get(), SIGNAL(accept()));
    QSignalSpy rejected(form.get(), SIGNAL(reject()));
    expectYes(*driver);
    expectFailure(*driver, kRefusedText);
    const DebugLog log;

    QTest::mouseClick(pushButton(*form, "submitPushButton"), Qt::LeftButton);

    QCOMPARE(service->requests().size(), 1);
    QCOMPARE(log.lines, QStringList{body});
    QCOMPARE(accepted.size() + rejected.size(), 0);
    QVERIFY(form->isVisible());
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetExchange::errorIsToldInWords_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("code");
    QTest::newRow("server error")
        << Answer::Error
        << "Error transferring http://127.0.0.1:5050/feedback - server replied: Internal Server "
           "Error"
        << int(QNetworkReply::InternalServerError);
    QTest::newRow("dropped") << Answer::Dropped << "Connection closed"
                             << int(QNetworkReply::RemoteHostClosedError);
}

void TestTXFeedbackWidgetExchange::errorIsToldInWords()
{
    QFETCH(Answer, answer);
    QFETCH(QString, words);
    QFETCH(int, code);
    service->setAnswer(answer);
    QSignalSpy accepted(form.get(), SIGNAL(accept()));
    expectYes(*driver);
    expectFailure(*driver, kErrorText.arg(words));
    const DebugLog log;

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
    QCOMPARE(log.lines, QStringList{QString::number(code)});
    QCOMPARE(accepted.size(), 0);
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetExchange::closedPortIsToldInWords()
{
    service->stop();
    std::unique_ptr<QTcpSocket> holder;
    QTRY_VERIFY_WITH_TIMEOUT((holder = heldPort()), kPatienceMilliseconds);
    expectYes(*driver);
    expectFailure(*driver, kErrorText.arg(QStringLiteral("Connection refused")));
    const DebugLog log;

    form->treatSubmitClick();

    QCOMPARE(log.lines, QStringList{QString::number(QNetworkReply::ConnectionRefusedError)});
    QVERIFY(isFilledIn(*form));
}

void TestTXFeedbackWidgetExchange::errorCodeIsLoggedAfterTheBox()
{
    service->setAnswer(Answer::Error);
    const DebugLog log;
    expectYes(*driver);
    driver->expectMessageBox([&](QMessageBox &box) {
        QVERIFY(log.lines.isEmpty());
        box.reject();
    });

    form->treatSubmitClick();

    QCOMPARE(log.lines.size(), 1);
}

void TestTXFeedbackWidgetExchange::dataThatArrivesAfterTheFirstReadCounts_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("accepted");
    QTest::newRow("taken") << QByteArray(R"({"result": true, "number": 12})") << 1;
    QTest::newRow("number") << QByteArray(R"({"result": 1})") << 1;
    QTest::newRow("not taken") << QByteArray(R"({"result": false})") << 0;
    QTest::newRow("other case") << QByteArray(R"({"Result": true})") << 0;
    QTest::newRow("object") << QByteArray(R"({"result": {"result": true}})") << 0;
    QTest::newRow("list") << QByteArray(R"([{"result": true}])") << 0;
    QTest::newRow("cut off") << QByteArray(R"({"result": true)") << 0;
    QTest::newRow("two objects") << QByteArray(R"({"result": true}{})") << 0;
}

void TestTXFeedbackWidgetExchange::dataThatArrivesAfterTheFirstReadCounts()
{
    QFETCH(QByteArray, data);
    QFETCH(int, accepted);
    service->setAnswer(Answer::Refused);
    const ReplyWatcher watcher;
    const DebugLog log([&](const QString &) { watcher.putBack(data); });
    QSignalSpy spy(form.get(), SIGNAL(accept()));
    expectYes(*driver);
    if (accepted == 0) {
        expectFailure(*driver, kRefusedText);
    }

    form->treatSubmitClick();

    QCOMPARE(log.lines, QStringList{QStringLiteral("{\"result\": false}")});
    QCOMPARE(spy.size(), accepted);
    QVERIFY(isFilledIn(*form));
    QVERIFY(watcher.isReplyGone());
}

void TestTXFeedbackWidgetExchange::formMayGoWhenTheNoteIsAccepted()
{
    const ReplyWatcher watcher;
    const DebugLog log([&](const QString &) { watcher.putBack("{\"result\": true}"); });
    connect(form.get(), &TXFeedbackWidget::accept, this, [this] { form.reset(); });
    expectYes(*driver);

    form->treatSubmitClick();

    QVERIFY(!form);
}

void TestTXFeedbackWidgetExchange::formMayGoWhileAFailureIsTold_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::newRow("error") << Answer::Error;
    QTest::newRow("refused") << Answer::Refused;
}

void TestTXFeedbackWidgetExchange::formMayGoWhileAFailureIsTold()
{
    QFETCH(Answer, answer);
    service->setAnswer(answer);
    QPointer<QMessageBox> opened;
    expectYes(*driver);
    driver->expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        form.reset();
    });
    const DebugLog log;

    form->treatSubmitClick();

    QVERIFY(!opened);
    QCOMPARE(log.lines.size(), 1);
}

void TestTXFeedbackWidgetExchange::submittingAgainAfterAFailureSendsAgain()
{
    service->setAnswer(Answer::Error);
    const DebugLog log;
    for (int i = 1; i <= 3; ++i) {
        expectYes(*driver);
        driver->expectMessageBox([](QMessageBox &box) { box.reject(); });
        form->treatSubmitClick();
        QCOMPARE(service->requests().size(), i);
    }
}

void TestTXFeedbackWidgetExchange::submittingWhileAFailureIsToldDoesNothing()
{
    const DebugLog log;
    expectYes(*driver);
    driver->expectMessageBox([&](QMessageBox &box) {
        form->treatSubmitClick();
        QVERIFY(box.isVisible());
        box.reject();
    });

    form->treatSubmitClick();

    QCOMPARE(service->requests().size(), 1);
}

void TestTXFeedbackWidgetExchange::proxyOfTheApplicationIsNotUsed()
{
    QTcpServer proxy;
    QVERIFY(proxy.listen(QHostAddress::LocalHost));
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.serverPort()});
    const DebugLog log;
    expectYes(*driver);
    expectFailure(*driver, kRefusedText);

    form->treatSubmitClick();

    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    QCOMPARE(service->requests().size(), 1);
    QVERIFY(!proxy.hasPendingConnections());
}

int main(int argc, char **argv)
{
    return runTest<TestTXFeedbackWidgetExchange>(argc, argv);
}

#include "tst_TXFeedbackWidgetExchange.moc"
