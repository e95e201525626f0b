#include "AutoMountManagerTest.h"
#include "NetworkDriveWatch.h"

#include <QProcess>
#include <QSemaphore>
#include <QThread>

#include <memory>

class TestTXAutoMountManagerEnding : public AutoMountManagerTest
{
    Q_OBJECT

private slots:
    void programThatEndsLeavesTheDrives_data();
    void programThatEndsLeavesTheDrives();
    void programThatEndsFinishesWhatItWasAskedFor_data();
    void programThatEndsFinishesWhatItWasAskedFor();
    void programThatEndsInTheMiddleOfConnectingLeavesNothing();
    void programThatEndsDoesNotWaitForServers();
    void threadThatHangsIsLeftAlone();
    void programWithoutApplicationEnds();

private:
    [[nodiscard]] bool runQuitter(const QString &end, const QString &file, const QString &text);
};

bool TestTXAutoMountManagerEnding::runQuitter(const QString &end, const QString &file,
                                              const QString &text)
{
    constexpr int kSurelyMilliseconds = 15'000;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationDirPath() + "/drivequitter", {end, file, text});
    return process.waitForFinished(kSurelyMilliseconds)
        && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

void TestTXAutoMountManagerEnding::programThatEndsLeavesTheDrives_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("by returning from main") << "return";
    QTest::newRow("in the middle") << "exit";
}

void TestTXAutoMountManagerEnding::programThatEndsLeavesTheDrives()
{
    QFETCH(QString, end);
    // The second look comes when the link is there.
    QVERIFY(runQuitter(end, gio->log(), "pictures/\ninfo smb://nas/pictures/\n"));
    QVERIFY(gio->isMounted(kPictures));
    QCOMPARE(NetworkDriveFolder::target('N'), gio->path(kPictures));
    QTRY_VERIFY(!gio->isRunning());

    // The next start takes it over.
    manager()->add(makeDrive("pictures"));
    manager()->start();
    QTRY_COMPARE(stateOf(0), NetworkDriveConnected);
}

void TestTXAutoMountManagerEnding::programThatEndsFinishesWhatItWasAskedFor_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("stopping") << "stop";
    QTest::newRow("taking the drive away") << "remove";
}

void TestTXAutoMountManagerEnding::programThatEndsFinishesWhatItWasAskedFor()
{
    QFETCH(QString, end);
    QVERIFY(runQuitter(end, gio->log(), "pictures/\ninfo smb://nas/pictures/\n"));
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QTRY_VERIFY(!gio->isMounted(kPictures));
    QVERIFY(!gio->surroundings().contains("s3cret"));
}

void TestTXAutoMountManagerEnding::programThatEndsInTheMiddleOfConnectingLeavesNothing()
{
    gio->set("info", kPictures, "nopath");
    QVERIFY(runQuitter("return", gio->log(), "info smb://nas/pictures/\n"));
    QTRY_VERIFY(!gio->isMounted(kPictures));
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

void TestTXAutoMountManagerEnding::programThatEndsDoesNotWaitForServers()
{
    gio->set("mount", kPictures, "hang");
    QVERIFY(runQuitter("return", gio->log(), "mount"));
    QTRY_VERIFY(!gio->isRunning());
    QVERIFY(runQuitter("stop", gio->log(), "mount"));
    QTRY_VERIFY(!gio->isRunning());
}

void TestTXAutoMountManagerEnding::threadThatHangsIsLeftAlone()
{
    QSemaphore goOn;
    QSemaphore gone;
    std::unique_ptr<QThread> thread;
    {
        auto owned = std::make_unique<NetworkDriveWatch>();
        NetworkDriveWatch *const watch = owned.get();
        QObject::connect(
            watch, &QObject::destroyed, watch, [&gone] { gone.release(); }, Qt::DirectConnection);
        const NetworkDriveWorker worker(manager(), std::move(owned));
        thread.reset(watch->thread());
        QMetaObject::invokeMethod(
            watch, [&goOn] { goOn.acquire(); }, Qt::QueuedConnection);
    }
    QCOMPARE(gone.available(), 0);
    goOn.release();
    QVERIFY(gone.tryAcquire(1, 10'000));
    QVERIFY(thread->wait(10'000));
}

void TestTXAutoMountManagerEnding::programWithoutApplicationEnds()
{
    QVERIFY(runQuitter("bare", gio->log(), ""));
    QVERIFY(gio->calls().isEmpty());
}

int main(int argc, char **argv)
{
    NetworkDriveWorker::setTiming(quickTiming());
    return runTest<TestTXAutoMountManagerEnding>(argc, argv);
}

#include "tst_TXAutoMountManagerEnding.moc"
