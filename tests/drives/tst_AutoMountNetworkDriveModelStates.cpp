#include "DriveModelHelpers.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <memory>
#include <thread>

using DriveTest::addDrives;
using DriveTest::makeDrive;
using DriveTest::manager;

namespace {

/// Writes down, in order, what a model tells: "1,0-1,0" for changed cells, "3 b" for a state of a
/// host. Connected by name, as windows are.
class Told : public QObject
{
    Q_OBJECT

public:
    explicit Told(const AutoMountNetworkDriveModel &model)
    {
        connect(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)), this,
                SLOT(writeCells(QModelIndex, QModelIndex)));
        connect(
            &model,
            SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)),
            this, SLOT(writeState(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    }

    QStringList lines;

private slots:
    void writeCells(const QModelIndex &from, const QModelIndex &to)
    {
        lines.append(QStringLiteral("%1,%2-%3,%4")
                         .arg(from.row())
                         .arg(from.column())
                         .arg(to.row())
                         .arg(to.column()));
    }

    void writeState(NetworkDriveConnectionState state, const AutoMountNetworkDrive &drive)
    {
        lines.append(QString::number(state) + u' ' + drive.getUrl().host());
    }
};

} // namespace

class TestAutoMountNetworkDriveModelStates : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { DriveTest::removeAllDrives(); }

private slots:
    void statusCellIsToldBeforeTheState();
    void argumentsAreHandedOnAsTheyCame();
    void stateOfADriveThatIsNotThereIsNotTold();
    void statesOfDrivesThatAreGoneAreNotTold();
    void ofEqualDrivesTheFirstRowIsTold();
    void activationAndStateDoNotHinderTheMatch();
    void unchangedStateIsNotTold();
    void editsTellNoState();
    void everyModelTellsForItself();
    void modelsThatAreGoneHearNothing();
    void stateFromAnotherThreadArrivesInTheModelsThread();
    void driveRemovedBeforeTheQueuedStateArrivesIsNotTold();
    void allLettersAreFound();
};

void TestAutoMountNetworkDriveModelStates::statusCellIsToldBeforeTheState()
{
    addDrives({"a", "b", "c"});
    const AutoMountNetworkDriveModel model;
    const Told told(model);
    manager().setDriveStatus(1, NetworkDriveLetterTaken);
    QCOMPARE(told.lines, QStringList({"1,0-1,0", "3 b"}));
    QVERIFY(model.index(1, 0).data(Qt::ToolTipRole).toString().contains("already used"));
}

void TestAutoMountNetworkDriveModelStates::argumentsAreHandedOnAsTheyCame()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const QSignalSpy spy(
        &model,
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    AutoMountNetworkDrive drive = makeDrive("a");
    drive.setActivated(true);
    drive.setStatus(NetworkDriveReconnectionFailed);
    model.statusNetworkDriveChangedSlot(NetworkDriveConnectionState(1000), drive);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(int(spy.first().at(0).value<NetworkDriveConnectionState>()), 1000);
    const auto told = spy.first().at(1).value<AutoMountNetworkDrive>();
    QVERIFY(told.isActivated());
    QCOMPARE(told.getStatus(), NetworkDriveReconnectionFailed);
    // The manager's own state stays and is what is shown.
    QCOMPARE(manager().getDrive(0).getStatus(), NetworkDriveDisconnected);
}

void TestAutoMountNetworkDriveModelStates::stateOfADriveThatIsNotThereIsNotTold()
{
    AutoMountNetworkDriveModel model;
    const Told told(model);
    model.statusNetworkDriveChangedSlot(NetworkDriveConnected, makeDrive("a"));
    addDrives({"a"});
    model.statusNetworkDriveChangedSlot(NetworkDriveConnected, makeDrive("b"));
    model.statusNetworkDriveChangedSlot(NetworkDriveConnected, makeDrive("a", "Y"));
    model.statusNetworkDriveChangedSlot(NetworkDriveConnected, AutoMountNetworkDrive());
    QCOMPARE(told.lines, QStringList());
}

void TestAutoMountNetworkDriveModelStates::statesOfDrivesThatAreGoneAreNotTold()
{
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    QVERIFY(model.removeRows(0, 1));
    QVERIFY(model.setData(model.index(0, 0), QVariant::fromValue(makeDrive("c"))));
    const Told told(model);
    emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("a"));
    emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("b"));
    QCOMPARE(told.lines, QStringList());
    emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("c"));
    QCOMPARE(told.lines, QStringList({"0,0-0,0", "0 c"}));
}

void TestAutoMountNetworkDriveModelStates::ofEqualDrivesTheFirstRowIsTold()
{
    addDrives({"a", "same", "same", "same"});
    const AutoMountNetworkDriveModel model;
    const Told told(model);
    manager().setDriveStatus(3, NetworkDriveConnected);
    QCOMPARE(told.lines, QStringList({"1,0-1,0", "0 same"}));
}

void TestAutoMountNetworkDriveModelStates::activationAndStateDoNotHinderTheMatch()
{
    AutoMountNetworkDrive drive = makeDrive("a");
    drive.setActivated(true);
    drive.setStatus(NetworkDriveConnected);
    manager().add(drive);
    AutoMountNetworkDriveModel model;
    const Told told(model);
    model.statusNetworkDriveChangedSlot(NetworkDriveLetterTaken, makeDrive("a"));
    QCOMPARE(told.lines, QStringList({"0,0-0,0", "3 a"}));
}

void TestAutoMountNetworkDriveModelStates::unchangedStateIsNotTold()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel model;
    const Told told(model);
    manager().setDriveStatus(0, NetworkDriveDisconnected);
    manager().setDriveStatus(1, NetworkDriveConnected);
    QCOMPARE(told.lines, QStringList());
}

void TestAutoMountNetworkDriveModelStates::editsTellNoState()
{
    addDrives({"a"});
    AutoMountNetworkDriveModel model;
    const Told told(model);
    AutoMountNetworkDrive drive = makeDrive("b");
    drive.setStatus(NetworkDriveConnected);
    QVERIFY(model.setData(model.index(0, 0), QVariant::fromValue(drive)));
    QCOMPARE(told.lines, QStringList("0,0-0,5"));
}

void TestAutoMountNetworkDriveModelStates::everyModelTellsForItself()
{
    addDrives({"a"});
    const AutoMountNetworkDriveModel one;
    const AutoMountNetworkDriveModel other;
    const Told toldByOne(one);
    const Told toldByOther(other);
    manager().setDriveStatus(0, NetworkDriveConnected);
    QCOMPARE(toldByOne.lines, QStringList({"0,0-0,0", "0 a"}));
    QCOMPARE(toldByOther.lines, toldByOne.lines);
}

void TestAutoMountNetworkDriveModelStates::modelsThatAreGoneHearNothing()
{
    addDrives({"a"});
    auto model = std::make_unique<AutoMountNetworkDriveModel>();
    const Told told(*model);
    std::thread([] {
        emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("a"));
    }).join();
    model.reset();
    manager().setDriveStatus(0, NetworkDriveConnected);
    QCoreApplication::processEvents();
    QCOMPARE(told.lines, QStringList());
}

void TestAutoMountNetworkDriveModelStates::stateFromAnotherThreadArrivesInTheModelsThread()
{
    addDrives({"a", "b"});
    const AutoMountNetworkDriveModel model;
    const Told told(model);
    std::thread([] {
        emit manager().statusNetworkDriveChanged(NetworkDriveReconnectionFailed, makeDrive("b"));
    }).join();
    QCOMPARE(told.lines, QStringList());
    QTRY_COMPARE(told.lines, QStringList({"1,0-1,0", "2 b"}));
}

void TestAutoMountNetworkDriveModelStates::driveRemovedBeforeTheQueuedStateArrivesIsNotTold()
{
    addDrives({"a", "b"});
    AutoMountNetworkDriveModel model;
    const Told told(model);
    std::thread([] {
        emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("a"));
        emit manager().statusNetworkDriveChanged(NetworkDriveConnected, makeDrive("b"));
    }).join();
    QVERIFY(model.removeRows(0, 1));
    QTRY_COMPARE(told.lines, QStringList({"0,0-0,0", "0 b"}));
}

void TestAutoMountNetworkDriveModelStates::allLettersAreFound()
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        manager().add(makeDrive("server", QString(QLatin1Char(letter))));
    }
    const AutoMountNetworkDriveModel model;
    for (int row = 0; row < manager().count(); ++row) {
        const Told told(model);
        manager().setDriveStatus(row, NetworkDriveConnected);
        QCOMPARE(told.lines,
                 QStringList({QStringLiteral("%1,0-%1,0").arg(row), QStringLiteral("0 server")}));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveModelStates>(argc, argv);
}

#include "tst_AutoMountNetworkDriveModelStates.moc"
