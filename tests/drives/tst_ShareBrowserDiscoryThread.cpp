#include "ShareBrowserDiscoryThread.h"

#include "FindingThread.h"
#include "FindsUnderWay.h"
#include "StandInProgram.h"
#include "TestBase.h"

#include <QSemaphore>
#include <QSignalSpy>

#include <atomic>
#include <memory>

namespace {

/// Searches when it is let go.
class HeldThread : public ShareBrowserDiscoryThread
{
public:
    HeldThread() = default;
    ~HeldThread() override
    {
        letGo.release();
        stop();
    }

    Q_DISABLE_COPY_MOVE(HeldThread)

    QSemaphore letGo;

protected:
    void run() override
    {
        letGo.acquire();
        ShareBrowserDiscoryThread::run();
    }
};

} // namespace

class TestShareBrowserDiscoryThread : public TestBase
{
    Q_OBJECT

private slots:
    void findsComeByQueuedSignalsInOrder();
    void findsComeOnTheOwnersThread();
    void secondStartIsRefusedAndChangesNothing();
    void refusedStartLeavesTheAddress();
    void searchHasThePriorityOfItsOwner();
    void stoppedThreadCanBeStartedAgain();
    void stopBeforeTheStartDoesNothing();
    void stopEndsAProgramThatNeverEnds();
    void callbacksTakeANullContext();
    void callbackTellsTheStopFlag();
    void ownerThatOnlyWaitsLosesNothing();
    void deletingItInASlotOfItsSignalEndsTheSearch();
};

void TestShareBrowserDiscoryThread::findsComeByQueuedSignalsInOrder()
{
    const StandInProgram program(
        QStringLiteral("smbclient"),
        "i=0; while [ $i -lt 5 ]; do echo \"Disk|share $i|\"; i=$((i+1)); done\n");
    QVERIFY(program.isReady());
    ShareBrowserDiscoryThread thread;
    QObject receiver;
    QList<QUrl> shares;
    connect(&thread, &ShareBrowserDiscoryThread::newShare, &receiver,
            [&shares](const QUrl &share) { shares.append(share); });
    QSignalSpy finished(&thread, SIGNAL(finished()));
    QVERIFY(thread.start(QUrl(QStringLiteral("smb://nas"))));
    QVERIFY(shares.isEmpty());
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(shares.size(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(shares.at(i), QUrl(QStringLiteral("smb://nas/share %1").arg(i)));
    }
}

void TestShareBrowserDiscoryThread::findsComeOnTheOwnersThread()
{
    FindingThread thread(3);
    QObject receiver;
    int count = 0;
    bool isHere = true;
    connect(&thread, &ShareBrowserDiscoryThread::newShare, &receiver, [&] {
        ++count;
        isHere = isHere && QThread::currentThread() == qApp->thread();
    });
    QVERIFY(thread.start({}));
    QTRY_COMPARE(count, 3);
    QVERIFY(isHere);
}

void TestShareBrowserDiscoryThread::secondStartIsRefusedAndChangesNothing()
{
    FindingThread thread;
    QSignalSpy started(&thread, SIGNAL(started()));
    QVERIFY(thread.start({}));
    QVERIFY(!thread.start(QUrl(QStringLiteral("smb://other"))));
    QVERIFY(thread.isRunning());
    QVERIFY(!FindingThread::isCancelled(&thread));
    thread.stop();
    QVERIFY(thread.isFinished());
    QTRY_COMPARE(started.count(), 1);
}

void TestShareBrowserDiscoryThread::refusedStartLeavesTheAddress()
{
    const StandInProgram program(QStringLiteral("smbclient"), "echo 'Disk|share|'\n");
    QVERIFY(program.isReady());
    HeldThread thread;
    QList<QUrl> shares;
    connect(&thread, &ShareBrowserDiscoryThread::newShare, this,
            [&shares](const QUrl &share) { shares.append(share); });
    QVERIFY(thread.start(QUrl(QStringLiteral("smb://first"))));
    QVERIFY(!thread.start(QUrl(QStringLiteral("smb://second"))));
    thread.letGo.release();
    QTRY_COMPARE(shares, QList<QUrl>({QUrl("smb://first/share")}));
}

void TestShareBrowserDiscoryThread::searchHasThePriorityOfItsOwner()
{
    HeldThread thread;
    QVERIFY(thread.start(QUrl(QStringLiteral("none:"))));
    QCOMPARE(thread.priority(), QThread::InheritPriority);
    QVERIFY(thread.isRunning());
    thread.letGo.release();
    QVERIFY(thread.wait());
}

void TestShareBrowserDiscoryThread::stoppedThreadCanBeStartedAgain()
{
    FindingThread thread(2 * FindsUnderWay::kMost);
    int count = 0;
    connect(&thread, &ShareBrowserDiscoryThread::newShare, this, [&count] { ++count; });
    QVERIFY(thread.start({}));
    thread.stop();
    QVERIFY(FindingThread::isCancelled(&thread));
    QCoreApplication::processEvents();
    count = 0;
    QVERIFY(thread.start({}));
    QVERIFY(!FindingThread::isCancelled(&thread));
    QTRY_COMPARE(count, 2 * FindsUnderWay::kMost);
}

void TestShareBrowserDiscoryThread::stopBeforeTheStartDoesNothing()
{
    FindingThread thread(1);
    thread.stop();
    QVERIFY(!thread.isRunning());
    QSignalSpy finished(&thread, SIGNAL(finished()));
    QVERIFY(thread.start({}));
    QVERIFY(finished.count() == 1 || finished.wait());
}

void TestShareBrowserDiscoryThread::stopEndsAProgramThatNeverEnds()
{
    const StandInProgram program(QStringLiteral("smbclient"),
                                 "echo 'Disk|first|'\nexec /bin/sleep 1000\n");
    QVERIFY(program.isReady());
    ShareBrowserDiscoryThread thread;
    QSignalSpy finds(&thread, SIGNAL(newShare(QUrl)));
    QVERIFY(thread.start(QUrl(QStringLiteral("smb://nas"))));
    QTRY_COMPARE(finds.count(), 1);
    QVERIFY(thread.isRunning());
    thread.stop();
    QVERIFY(thread.isFinished());
}

void TestShareBrowserDiscoryThread::callbacksTakeANullContext()
{
    FindingThread::found(FindingThread::share(1), nullptr);
    QVERIFY(!FindingThread::isCancelled(nullptr));
}

void TestShareBrowserDiscoryThread::callbackTellsTheStopFlag()
{
    FindingThread thread;
    QVERIFY(!FindingThread::isCancelled(&thread));
    thread.stop();
    QVERIFY(FindingThread::isCancelled(&thread));
}

void TestShareBrowserDiscoryThread::ownerThatOnlyWaitsLosesNothing()
{
    constexpr int kCount = 3 * FindsUnderWay::kMost;
    FindingThread thread(kCount);
    int count = 0;
    connect(&thread, &ShareBrowserDiscoryThread::newShare, this, [&count] { ++count; });
    QVERIFY(thread.start({}));
    QVERIFY(thread.wait());
    QCOMPARE(count, 0);
    QCoreApplication::processEvents();
    QCOMPARE(count, kCount);
}

void TestShareBrowserDiscoryThread::deletingItInASlotOfItsSignalEndsTheSearch()
{
    auto thread = std::make_unique<FindingThread>();
    std::atomic_bool isOver = false;
    bool wasOver = false;
    connect(
        thread.get(), &QThread::finished, this, [&isOver] { isOver = true; }, Qt::DirectConnection);
    QObject receiver;
    int count = 0;
    connect(thread.get(), &ShareBrowserDiscoryThread::newShare, &receiver, [&] {
        ++count;
        thread.reset();
        wasOver = isOver;
    });
    QVERIFY(thread->start({}));
    QTRY_VERIFY(!thread);
    QVERIFY(wasOver);
    // What was under way still arrives, and nothing behind it.
    QCoreApplication::processEvents();
    const int arrived = count;
    QCoreApplication::processEvents();
    QCOMPARE(count, arrived);
}

int main(int argc, char **argv)
{
    return runTest<TestShareBrowserDiscoryThread>(argc, argv);
}

#include "tst_ShareBrowserDiscoryThread.moc"
