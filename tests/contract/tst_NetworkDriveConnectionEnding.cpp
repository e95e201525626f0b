#include "NetworkDriveConnectionTest.h"

class TestNetworkDriveConnectionEnding : public NetworkDriveConnectionTest
{
    Q_OBJECT

private slots:
    void shareOfTheUsersOwnStaysMounted();
    void closingUnlinksAndUnmounts();
    void closingInTheMiddleOfMountingLeavesNothing();
    void closingInTheMiddleOfAMuteMountingEnds();
    void destroyingLeavesAllAsItIs();
    void destroyingInTheMiddleOfClosingUnmounts();
    void destroyingInTheMiddleOfConnectingUnmounts();
    void destroyingKillsWhatRuns();
};

void TestNetworkDriveConnectionEnding::shareOfTheUsersOwnStaysMounted()
{
    gio->mount(kShare);
    make(makeDrive());
    QTRY_COMPARE(connection->state(), NetworkDriveConnected);
    QSignalSpy closed(&*share, SIGNAL(closed()));
    connection->close();
    QCOMPARE(closed.count(), 1);
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    connection.reset();
    share.reset();
    QVERIFY(gio->isMounted(kShare));
    QCOMPARE(gio->count(kUnmount), 0);
}

void TestNetworkDriveConnectionEnding::closingUnlinksAndUnmounts()
{
    make(makeDrive());
    QTRY_COMPARE(connection->state(), NetworkDriveConnected);
    QSignalSpy closed(&*share, SIGNAL(closed()));
    connection->close();
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QCOMPARE(connection->state(), NetworkDriveDisconnected);
    QVERIFY(closed.wait());
    QVERIFY(!gio->isMounted(kShare));
    QVERIFY(share->isIdle());
    QCOMPARE(states(), {NetworkDriveConnected});
}

void TestNetworkDriveConnectionEnding::destroyingLeavesAllAsItIs()
{
    make(makeDrive());
    QTRY_COMPARE(connection->state(), NetworkDriveConnected);
    connection.reset();
    share.reset();
    QCOMPARE(NetworkDriveFolder::target('N'), gio->path(kShare));
    QVERIFY(gio->isMounted(kShare));
    QCOMPARE(gio->count(kUnmount), 0);
}

void TestNetworkDriveConnectionEnding::closingInTheMiddleOfMountingLeavesNothing()
{
    gio->set("mount", kShare, "wait");
    make(makeDrive());
    QTRY_COMPARE(gio->count(kMount), 1);
    QSignalSpy closed(&*share, SIGNAL(closed()));
    connection->close();
    gio->set("mount", kShare, "");
    QVERIFY(closed.wait());
    QCOMPARE(gio->calls(), QStringList({kMount, kUnmount}));
    QVERIFY(!gio->isMounted(kShare));
}

void TestNetworkDriveConnectionEnding::closingInTheMiddleOfAMuteMountingEnds()
{
    gio->set("mount", kShare, "hang");
    NetworkDriveTiming timing = quick();
    timing.abandon = 10;
    make(makeDrive(), timing);
    QTRY_COMPARE(gio->count(kMount), 1);
    QSignalSpy closed(&*share, SIGNAL(closed()));
    connection->close();
    QVERIFY(closed.wait());
    QVERIFY(!gio->isRunning());
}

void TestNetworkDriveConnectionEnding::destroyingInTheMiddleOfClosingUnmounts()
{
    make(makeDrive());
    QTRY_COMPARE(connection->state(), NetworkDriveConnected);
    connection->close();
    connection.reset();
    share.reset();
    QTRY_VERIFY(!gio->isMounted(kShare));
    QVERIFY(!gio->surroundings().contains("s3cret"));
}

void TestNetworkDriveConnectionEnding::destroyingInTheMiddleOfConnectingUnmounts()
{
    gio->set("info", kShare, "wait");
    make(makeDrive());
    QTRY_COMPARE(gio->count(kInfo), 1);
    connection.reset();
    share.reset();
    QTRY_VERIFY(!gio->isMounted(kShare));
}

void TestNetworkDriveConnectionEnding::destroyingKillsWhatRuns()
{
    gio->set("mount", kShare, "hang");
    make(makeDrive());
    QTRY_COMPARE(gio->count(kMount), 1);
    connection.reset();
    share.reset();
    QTRY_VERIFY(!gio->isRunning());
}

int main(int argc, char **argv)
{
    return runTest<TestNetworkDriveConnectionEnding>(argc, argv);
}

#include "tst_NetworkDriveConnectionEnding.moc"
