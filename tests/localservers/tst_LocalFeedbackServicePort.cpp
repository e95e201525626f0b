#include "FeedbackServiceClient.h"
#include "LocalFeedbackService.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QProcess>
#include <QTcpServer>

#include <iostream>

using Client = FeedbackServiceClient;

namespace {

// Longer than a service waits for its port.
constexpr int kPatienceMilliseconds = 30000;
constexpr char kOwnerArgument[] = "--own-a-service";

const QHostAddress kHost(QHostAddress::LocalHost);

/// Starts a service, tells its process, and waits to be killed.
int ownAService(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    LocalFeedbackService service;
    if (!service.start()) {
        std::cerr << service.error().toStdString() << std::endl;
        return 1;
    }
    std::cout << service.processId() << std::endl;
    return QCoreApplication::exec();
}

/// Listens where the service would, once the tests of others have let go of it.
bool takePort(QTcpServer &server, const QHostAddress &address)
{
    return QTest::qWaitFor([&]() { return server.listen(address, LocalFeedbackService::kPort); },
                           LocalFeedbackService::kPatienceMilliseconds);
}

bool answersANote()
{
    Client client;
    return client.send(Client::note()) && client.ends() && client.status() == "HTTP/1.1 200 OK";
}

} // namespace

class TestLocalFeedbackServicePort : public TestBase
{
    Q_OBJECT

private slots:
    void takenPortIsToldInWords_data();
    void takenPortIsToldInWords();
    void patienceStaysInItsRange();
    void secondServiceWaitsForTheFirst();
    void stopFreesThePort();
    void portIsTakenAgainBehindOpenConnections();
    void killedOwnerFreesThePort();
};

void TestLocalFeedbackServicePort::takenPortIsToldInWords_data()
{
    QTest::addColumn<QHostAddress>("address");

    QTest::newRow("loopback") << kHost;
    QTest::newRow("any address") << QHostAddress(QHostAddress::AnyIPv4);
}

void TestLocalFeedbackServicePort::takenPortIsToldInWords()
{
    QFETCH(QHostAddress, address);
    QTcpServer other;
    QVERIFY2(takePort(other, address), qPrintable(other.errorString()));
    LocalFeedbackService service;
    service.setPatience(200);
    QElapsedTimer clock;
    clock.start();

    QVERIFY(!service.start());

    QVERIFY(clock.elapsed() >= 200);
    QVERIFY(LocalFeedbackService::tellsOfTakenPort(service.error()));
    QVERIFY2(service.error().contains("port 5050 of 127.0.0.1 is taken by another program"),
             qPrintable(service.error()));
    QVERIFY(!service.isRunning());
    QVERIFY(other.isListening());
    other.close();
    service.setPatience(LocalFeedbackService::kPatienceMilliseconds);
    QVERIFY2(service.start(), qPrintable(service.error()));
    QCOMPARE(service.error(), QString());
}

void TestLocalFeedbackServicePort::patienceStaysInItsRange()
{
    QTcpServer other;
    QVERIFY2(takePort(other, kHost), qPrintable(other.errorString()));
    LocalFeedbackService service;
    service.setPatience(-1);
    QElapsedTimer clock;
    clock.start();

    QVERIFY(!service.start());

    QVERIFY(clock.elapsed() < LocalFeedbackService::kPatienceMilliseconds / 2);
    QVERIFY2(service.error().contains("5050"), qPrintable(service.error()));
}

void TestLocalFeedbackServicePort::secondServiceWaitsForTheFirst()
{
    // In a process of its own: a start here blocks.
    QProcess owner;
    owner.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kOwnerArgument)});
    QVERIFY(owner.waitForReadyRead(kPatienceMilliseconds));
    const qint64 first = owner.readLine().trimmed().toLongLong();
    LocalFeedbackService second;
    second.setPatience(100);
    QVERIFY(!second.start());
    QVERIFY(isAlive(first));
    QVERIFY(answersANote());

    // The start blocks, so another program ends the first one meanwhile. The port is not free
    // before.
    second.setPatience(kPatienceMilliseconds);
    QProcess killer;
    killer.start(QStringLiteral("/bin/sh"),
                 {QStringLiteral("-c"), QStringLiteral("sleep 0.3; kill -KILL %1").arg(first)});
    QVERIFY2(second.start(), qPrintable(second.error()));

    QVERIFY(!isAlive(first));
    QVERIFY(answersANote());
    QCOMPARE(second.requests().size(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(killer.state(), QProcess::NotRunning, kPatienceMilliseconds);
    owner.kill();
    QVERIFY(owner.waitForFinished());
}

void TestLocalFeedbackServicePort::stopFreesThePort()
{
    LocalFeedbackService first;
    LocalFeedbackService second;
    QVERIFY2(first.start(), qPrintable(first.error()));
    second.setPatience(0);
    QVERIFY(!second.start());
    second.setPatience(LocalFeedbackService::kPatienceMilliseconds);

    for (int turn = 0; turn < 3; ++turn) {
        QVERIFY(answersANote());
        first.stop();
        QVERIFY2(second.start(), qPrintable(second.error()));
        second.stop();
        QVERIFY2(first.start(), qPrintable(first.error()));
    }
}

void TestLocalFeedbackServicePort::portIsTakenAgainBehindOpenConnections()
{
    LocalFeedbackService service;
    service.setAnswer(LocalFeedbackService::Answer::Silent);
    QVERIFY2(service.start(), qPrintable(service.error()));
    Client waiting;
    QVERIFY(waiting.send(Client::note()));
    QTRY_VERIFY_WITH_TIMEOUT(service.isSilent(), kPatienceMilliseconds);

    // The service ends the connection first, so that the system keeps its end for a minute: longer
    // than a start waits.
    service.stop();
    QVERIFY(waiting.ends());
    service.setAnswer(LocalFeedbackService::Answer::Accepted);

    QVERIFY2(service.start(), qPrintable(service.error()));
    QVERIFY(answersANote());
}

void TestLocalFeedbackServicePort::killedOwnerFreesThePort()
{
    QProcess owner;
    owner.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kOwnerArgument)});
    QVERIFY(owner.waitForReadyRead(kPatienceMilliseconds));
    const qint64 process = owner.readLine().trimmed().toLongLong();
    QVERIFY(isAlive(process));
    QVERIFY(answersANote());

    owner.kill();
    QVERIFY(owner.waitForFinished());
    LocalFeedbackService service;

    QVERIFY2(service.start(), qPrintable(service.error()));
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(process), kPatienceMilliseconds);
    QVERIFY(answersANote());
    QCOMPARE(service.requests().size(), 1);
}

int main(int argc, char **argv)
{
    const bool isOwner = argc > 1 && QByteArray(argv[1]) == kOwnerArgument;
    return isOwner ? ownAService(argc, argv) : runTest<TestLocalFeedbackServicePort>(argc, argv);
}

#include "tst_LocalFeedbackServicePort.moc"
