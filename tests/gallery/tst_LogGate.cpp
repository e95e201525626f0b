#include "LogGate.h"
#include "TestBase.h"

#include "TXLogManager.h"

#include <QThread>

#include <atomic>
#include <memory>

class TestLogGate : public TestBase
{
    Q_OBJECT

private slots:
    void entriesArriveInTheLog();
    void workerWaitsUntilTheLogHasTakenEntries();
    void openGateLetsEverythingThrough();
    void resetLogMakesRoom();

protected:
    void prepare() override;
    void finish() override;

private:
    void startWorker(int count);
    bool isWaiting() const { return appended >= LogGate::kMostOnTheWay; }

    QSharedPointer<TXLogManager> log;
    std::unique_ptr<LogGate> gate;
    std::unique_ptr<QThread> worker;
    std::atomic_int appended = 0;
};

void TestLogGate::prepare()
{
    log = QSharedPointer<TXLogManager>::create();
    gate = std::make_unique<LogGate>(log);
    appended = 0;
}

void TestLogGate::finish()
{
    gate->open();
    if (worker) {
        QVERIFY(worker->wait());
    }
    worker.reset();
    gate.reset();
    log.reset();
}

void TestLogGate::startWorker(int count)
{
    worker.reset(QThread::create([this, count] {
        for (int i = 0; i < count; ++i) {
            gate->append(TXLogItem::create(TXLogItem::Information, "entry"));
            ++appended;
        }
    }));
    worker->start();
}

void TestLogGate::entriesArriveInTheLog()
{
    startWorker(3);
    QVERIFY(worker->wait());

    log->flush();

    QCOMPARE(log->rootItem()->children.size(), 3);
}

void TestLogGate::workerWaitsUntilTheLogHasTakenEntries()
{
    constexpr int count = LogGate::kMostOnTheWay * 3;
    startWorker(count);
    // This thread's event loop does not turn: the log takes nothing in.
    while (!isWaiting()) {
        QThread::yieldCurrentThread();
    }
    QCOMPARE(int(appended), LogGate::kMostOnTheWay);
    QVERIFY(!worker->isFinished());

    QTRY_COMPARE(log->rootItem()->children.size(), count);

    QVERIFY(worker->wait());
    QCOMPARE(int(appended), count);
}

void TestLogGate::openGateLetsEverythingThrough()
{
    startWorker(LogGate::kMostOnTheWay * 3);
    while (!isWaiting()) {
        QThread::yieldCurrentThread();
    }

    gate->open();

    QVERIFY(worker->wait());
    log->flush();
    QCOMPARE(log->rootItem()->children.size(), LogGate::kMostOnTheWay * 3);
}

void TestLogGate::resetLogMakesRoom()
{
    startWorker(LogGate::kMostOnTheWay + 1);
    while (!isWaiting()) {
        QThread::yieldCurrentThread();
    }

    log->reset();

    QVERIFY(worker->wait());
    QCOMPARE(int(appended), LogGate::kMostOnTheWay + 1);
}

int main(int argc, char **argv)
{
    return runTest<TestLogGate>(argc, argv);
}

#include "tst_LogGate.moc"
