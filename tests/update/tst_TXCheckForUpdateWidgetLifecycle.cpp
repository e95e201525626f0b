#include "DialogDriver.h"
#include "LocalUpdateService.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <atomic>
#include <future>
#include <memory>
#include <thread>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::part;
using UpdateDialogTools::useNoService;

namespace {

LocalWebReply replyWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    return reply;
}

int checksOf(LocalUpdateService &service)
{
    return int(service.requests().size());
}

/// A service that holds its answers until the test lets them go, on a thread of its own, so that it
/// can do so while the thread of the test is blocked.
class HoldingService
{
public:
    HoldingService()
        : worker([this] { serve(); })
    {
        TXUpdateService::setAuthority(authority.get_future().get());
    }

    ~HoldingService()
    {
        letGo();
        worker.join();
    }

    /// Waits until a request has arrived.
    void waitForRequest() { arrived.get_future().wait(); }

    void letGo()
    {
        if (!isLetGo.exchange(true)) {
            releasing.set_value();
        }
    }

    [[nodiscard]] bool hasReleased() const { return isReleased; }

private:
    void serve()
    {
        LocalUpdateService service;
        LocalWebReply reply = replyWith("{\"Revision\": 20000}");
        reply.holdAfter = 0;
        service.setCheckReply(reply);
        const bool isRunning = service.start();
        authority.set_value(service.authority());
        while (isRunning && service.requests().isEmpty()) {
            std::this_thread::yield();
        }
        arrived.set_value();
        releasing.get_future().wait();
        // A round trip to the service, while which nothing has been let go.
        const bool hasRequest = !service.requests().isEmpty();
        isReleased = hasRequest;
        service.release();
        service.stop();
    }

    std::promise<QString> authority;
    std::promise<void> arrived;
    std::promise<void> releasing;
    std::atomic<bool> isLetGo = false;
    std::atomic<bool> isReleased = false;
    std::thread worker;
};

} // namespace

class TestTXCheckForUpdateWidgetLifecycle : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
        Dialog::setGlobalDetails(QString(), -1);
    }

private slots:
    void eachShowingAsksTheServiceOnce_data();
    void eachShowingAsksTheServiceOnce();
    void execShowsTheAnswer();
    void showingDuringATransferStartsNothing();
    void hidingStartsNothing();
    void checksQueueAndEachAnswerCounts();
    void answersOfTheServiceLeadTo_data();
    void answersOfTheServiceLeadTo();
    void windowButtonOnlyHidesDuringATransfer();
    void destructionWaitsForARunningCheck();
    void mayBeDestroyedByItsOwnSignal_data();
    void mayBeDestroyedByItsOwnSignal();
    void instanceIsTheFirstWithDetails();
    void dialogWithoutDetailsIsNoInstance();
    void firstDetailsBecomeTheGlobalOnes();
    void globalDetailsReachOnlyLaterDialogs();
    void productTypeIsSentToTheService();
};

void TestTXCheckForUpdateWidgetLifecycle::eachShowingAsksTheServiceOnce_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::newRow("show") << QByteArray("show");
    QTest::newRow("check") << QByteArray("checkUpdate");
    QTest::newRow("open") << QByteArray("open");
}

void TestTXCheckForUpdateWidgetLifecycle::eachShowingAsksTheServiceOnce()
{
    QFETCH(QByteArray, call);
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog dialog(QStringLiteral("Patch Reader"), 7, false);
    for (int showing = 1; showing <= 3; ++showing) {
        QVERIFY(QMetaObject::invokeMethod(&dialog, call.constData()));
        QCOMPARE(dialog.state(), Dialog::Checking);
        QVERIFY(dialog.isVisible());
        QTRY_COMPARE(dialog.state(), Dialog::UpToDate);
        QCOMPARE(checksOf(service), showing);
        dialog.hide();
    }
}

void TestTXCheckForUpdateWidgetLifecycle::execShowsTheAnswer()
{
    LocalUpdateService service;
    service.setCheckReply(replyWith("{\"Revision\": 20000, \"ProductName\": \"Patch Reader\"}"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog dialog;
    connect(&dialog, &Dialog::updateRefreshed, &dialog,
            [&] { DialogDriver::click(part<QPushButton>(dialog, "cancelButton")); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(part<QLabel>(dialog, "updateNameLabel")->text(), "Patch Reader");
    QCOMPARE(checksOf(service), 1);
}

void TestTXCheckForUpdateWidgetLifecycle::showingDuringATransferStartsNothing()
{
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    {
        Dialog dialog;
        dialog.updateState(Dialog::Downloading);
        QSignalSpy changed(&dialog, &Dialog::stateChanged);
        dialog.show();
        dialog.checkUpdate();
        dialog.tryCheckUpdate();
        dialog.hide();
        dialog.show();
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.state(), Dialog::Downloading);
        QCOMPARE(changed.size(), 0);
    }
    // The dialog has waited for its checks.
    QCOMPARE(checksOf(service), 0);
}

void TestTXCheckForUpdateWidgetLifecycle::hidingStartsNothing()
{
    Dialog dialog;
    dialog.updateState(Dialog::UpToDate);
    QSignalSpy changed(&dialog, &Dialog::stateChanged);
    dialog.hide();
    dialog.setVisible(false);
    QCOMPARE(dialog.state(), Dialog::UpToDate);
    QCOMPARE(changed.size(), 0);
}

void TestTXCheckForUpdateWidgetLifecycle::checksQueueAndEachAnswerCounts()
{
    LocalUpdateService service;
    LocalWebReply held = replyWith("{\"Revision\": 1}");
    held.holdAfter = 0;
    service.setCheckReply(held);
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog dialog;
    QSignalSpy refreshed(&dialog, &Dialog::updateRefreshed);
    dialog.tryCheckUpdate();
    dialog.tryCheckUpdate();
    dialog.tryCheckUpdate();
    for (int check = 1; check <= 3; ++check) {
        QTRY_COMPARE(checksOf(service), check);
        QCOMPARE(refreshed.size(), check - 1);
        service.release();
        QTRY_COMPARE(refreshed.size(), check);
    }
    QCOMPARE(dialog.state(), Dialog::UpToDate);
}

void TestTXCheckForUpdateWidgetLifecycle::answersOfTheServiceLeadTo_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    QTest::newRow("nothing") << 200 << QByteArray() << Dialog::UpToDate;
    QTest::newRow("empty object") << 200 << QByteArray("{}") << Dialog::UpToDate;
    QTest::newRow("no JSON") << 200 << QByteArray("<html>") << Dialog::UpToDate;
    QTest::newRow("no object") << 200 << QByteArray("[1]") << Dialog::UpToDate;
    QTest::newRow("newer") << 200 << QByteArray("{\"Revision\":10453}") << Dialog::UpdateAvailable;
    QTest::newRow("newer as text")
        << 200 << QByteArray("{\"Revision\":\"10453\"}") << Dialog::UpdateAvailable;
    QTest::newRow("huge") << 200 << QByteArray("{\"Revision\":1e300}") << Dialog::UpToDate;
    QTest::newRow("not found") << 404 << QByteArray("{\"Revision\":10453}") << Dialog::ServiceError;
    QTest::newRow("broken") << 500 << QByteArray() << Dialog::ServiceError;
}

void TestTXCheckForUpdateWidgetLifecycle::answersOfTheServiceLeadTo()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(TXCheckForUpdateWidget::State, state);
    LocalUpdateService service;
    LocalWebReply reply = replyWith(body);
    reply.status = status;
    service.setCheckReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog dialog;
    dialog.tryCheckUpdate();
    QTRY_VERIFY(dialog.state() != Dialog::Checking);
    QCOMPARE(dialog.state(), state);
}

void TestTXCheckForUpdateWidgetLifecycle::windowButtonOnlyHidesDuringATransfer()
{
    Dialog dialog;
    dialog.updateState(Dialog::Downloading);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.close());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.state(), Dialog::Downloading);
    dialog.updateState(Dialog::ReadyToInstall);
    QVERIFY(dialog.isVisible());
}

void TestTXCheckForUpdateWidgetLifecycle::destructionWaitsForARunningCheck()
{
    HoldingService service;
    auto dialog = std::make_unique<Dialog>(QStringLiteral("Patch Reader"), 7, false);
    dialog->tryCheckUpdate();
    service.waitForRequest();
    service.letGo();
    dialog.reset();
    QVERIFY(service.hasReleased());
    QVERIFY(!Dialog::instance());
}

void TestTXCheckForUpdateWidgetLifecycle::mayBeDestroyedByItsOwnSignal_data()
{
    QTest::addColumn<QByteArray>("call");
    for (const char *call : {"show", "open", "checkUpdate", "tryCheckUpdate"}) {
        QTest::newRow(call) << QByteArray(call);
    }
}

void TestTXCheckForUpdateWidgetLifecycle::mayBeDestroyedByItsOwnSignal()
{
    QFETCH(QByteArray, call);
    const QPointer<Dialog> dialog(new Dialog);
    dialog->updateState(Dialog::UpToDate);
    connect(dialog, &Dialog::stateChanged, this, [&] { delete dialog; });
    QVERIFY(QMetaObject::invokeMethod(dialog, call.constData()));
    QVERIFY(!dialog);
}

void TestTXCheckForUpdateWidgetLifecycle::instanceIsTheFirstWithDetails()
{
    QVERIFY(!Dialog::instance());
    auto first = std::make_unique<Dialog>(QStringLiteral("A"), 1, false);
    auto second = std::make_unique<Dialog>(QStringLiteral("B"), 2, false);
    QCOMPARE(Dialog::instance(), first.get());
    second.reset();
    QCOMPARE(Dialog::instance(), first.get());
    second = std::make_unique<Dialog>(QStringLiteral("C"), 3, false);
    first.reset();
    // Nobody takes its place but a new one.
    QVERIFY(!Dialog::instance());
    const Dialog third(QStringLiteral("D"), 4, false);
    QCOMPARE(Dialog::instance(), &third);
}

void TestTXCheckForUpdateWidgetLifecycle::dialogWithoutDetailsIsNoInstance()
{
    Dialog dialog;
    dialog.setDetails(QStringLiteral("A"), 1);
    QVERIFY(!Dialog::instance());
}

void TestTXCheckForUpdateWidgetLifecycle::firstDetailsBecomeTheGlobalOnes()
{
    const Dialog first(QStringLiteral("A"), 1, false);
    const Dialog second(QStringLiteral("B"), 2, false);
    Dialog third;
    third.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(third, "updateNameLabel")->text(), "A is up to date.");
    third.setDetails(QStringLiteral("C"), 3);
    third.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(third, "updateNameLabel")->text(), "C is up to date.");
    Dialog fourth;
    fourth.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(fourth, "updateNameLabel")->text(), "A is up to date.");
}

void TestTXCheckForUpdateWidgetLifecycle::globalDetailsReachOnlyLaterDialogs()
{
    Dialog before;
    Dialog::setGlobalDetails(QStringLiteral("A"), 1);
    Dialog after;
    before.updateState(Dialog::UpToDate);
    after.updateState(Dialog::UpToDate);
    QCOMPARE(part<QLabel>(before, "updateNameLabel")->text(), " is up to date.");
    QCOMPARE(part<QLabel>(after, "updateNameLabel")->text(), "A is up to date.");
}

void TestTXCheckForUpdateWidgetLifecycle::productTypeIsSentToTheService()
{
    LocalUpdateService service;
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog unknown;
    unknown.tryCheckUpdate();
    QTRY_COMPARE(unknown.state(), Dialog::UpToDate);
    Dialog known(QStringLiteral("A"), 42, false);
    known.tryCheckUpdate();
    QTRY_COMPARE(known.state(), Dialog::UpToDate);
    QVERIFY(service.requests()[0].query.contains(u"ProductType=-1&"));
    QVERIFY(service.requests()[1].query.contains(u"ProductType=42&"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetLifecycle>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetLifecycle.moc"
