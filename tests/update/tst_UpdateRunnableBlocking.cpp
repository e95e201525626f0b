// The end of a dialog: its thread waits for the check and serves no event meanwhile. In a program
// of its own, so that the first use of TLS in the process happens under this condition too.

#include "UpdateRunnable.h"

#include "ClosedPort.h"
#include "LocalScriptedServer.h"
#include "LocalUpdateService.h"
#include "TXUpdateService.h"
#include "TestBase.h"
#include "UpdateReceiver.h"

#include <QNetworkProxy>
#include <QThreadPool>

#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 30000;

LocalWebReply recordReply()
{
    LocalWebReply reply;
    reply.body = R"({"Version": "2.1"})";
    return reply;
}

/// Starts a check and blocks this thread until it is over; whether it ended.
bool checkWhileBlocked(UpdateReceiver &receiver)
{
    QThreadPool pool;
    auto runnable = std::make_unique<UpdateRunnable>(7);
    receiver.listenTo(*runnable);
    pool.start(runnable.release());
    return pool.waitForDone(kPatienceMilliseconds);
}

} // namespace

class TestUpdateRunnableBlocking : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy());
        TXUpdateService::setAuthority(QString());
    }

private slots:
    void checkEndsWithoutTheGuiThread_data();
    void checkEndsWithoutTheGuiThread();
    void failureEndsWithoutTheGuiThread();
    void proxyNeedsNoGuiThread_data();
    void proxyNeedsNoGuiThread();
    void resultForADeadReceiverIsDropped();
};

void TestUpdateRunnableBlocking::checkEndsWithoutTheGuiThread_data()
{
    QTest::addColumn<QString>("host");
    QTest::newRow("address") << "127.0.0.1";
    QTest::newRow("name") << "localhost";
}

void TestUpdateRunnableBlocking::checkEndsWithoutTheGuiThread()
{
    QFETCH(QString, host);
    LocalUpdateService service;
    service.setCheckReply(recordReply());
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(QStringLiteral("%1:%2").arg(host).arg(service.port()));
    UpdateReceiver receiver;

    QVERIFY(checkWhileBlocked(receiver));

    QCOMPARE(receiver.count, 0);
    QCoreApplication::processEvents();
    QCOMPARE(receiver.count, 1);
    QCOMPARE(receiver.update.value(QStringLiteral("Version")).toString(), QStringLiteral("2.1"));
}

void TestUpdateRunnableBlocking::failureEndsWithoutTheGuiThread()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:%1").arg(closedPort()));
    UpdateReceiver receiver;

    QVERIFY(checkWhileBlocked(receiver));

    QCoreApplication::processEvents();
    QCOMPARE(receiver.count, 1);
    QVERIFY(receiver.lastUpdate.isEmpty());
}

void TestUpdateRunnableBlocking::proxyNeedsNoGuiThread_data()
{
    QTest::addColumn<QNetworkProxy::ProxyType>("type");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("HTTP, closed port") << QNetworkProxy::HttpProxy << QByteArray();
    QTest::newRow("SOCKS, closed port") << QNetworkProxy::Socks5Proxy << QByteArray();
    QTest::newRow("HTTP, wants a password")
        << QNetworkProxy::HttpProxy
        << QByteArray("HTTP/1.1 407 Who?\r\nProxy-Authenticate: Basic realm=\"x\"\r\n"
                      "Content-Length: 0\r\n\r\n");
    QTest::newRow("HTTP, refuses")
        << QNetworkProxy::HttpProxy << QByteArray("HTTP/1.1 403 No\r\nContent-Length: 0\r\n\r\n");
}

void TestUpdateRunnableBlocking::proxyNeedsNoGuiThread()
{
    QFETCH(QNetworkProxy::ProxyType, type);
    QFETCH(QByteArray, answer);
    // The answer follows the first line of the request.
    LocalScriptedServer proxy({QByteArray(), answer, QByteArray(), QByteArray(), QByteArray()});
    if (!answer.isEmpty()) {
        QVERIFY2(proxy.start(), qPrintable(proxy.error()));
    }
    const quint16 port = answer.isEmpty() ? closedPort() : proxy.port();
    QNetworkProxy::setApplicationProxy(QNetworkProxy(type, QStringLiteral("127.0.0.1"), port));
    // Not an address of this computer: those are asked without a proxy.
    TXUpdateService::setAuthority(QStringLiteral("updates.invalid:1"));
    UpdateReceiver receiver;

    QVERIFY(checkWhileBlocked(receiver));

    QCoreApplication::processEvents();
    QCOMPARE(receiver.count, 1);
    QVERIFY(receiver.lastUpdate.isEmpty());
    QCOMPARE(proxy.log().join(u'\n').startsWith(QStringLiteral("CONNECT updates.invalid:1 ")),
             !answer.isEmpty());
}

void TestUpdateRunnableBlocking::resultForADeadReceiverIsDropped()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:%1").arg(closedPort()));
    auto receiver = std::make_unique<UpdateReceiver>();
    QVERIFY(checkWhileBlocked(*receiver));

    receiver.reset();

    QCoreApplication::processEvents();
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateRunnableBlocking>(argc, argv);
}

#include "tst_UpdateRunnableBlocking.moc"
