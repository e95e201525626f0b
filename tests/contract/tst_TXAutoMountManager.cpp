#include "NetworkDriveStore.h"
#include "TXAutoMountManager.h"
#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>

namespace {

AutoMountNetworkDrive makeDrive(const QString &host)
{
    AutoMountNetworkDrive drive({});
    drive.setUrl(QUrl("smb://mia:s3cret@" + host + "/share"));
    return drive;
}

TXAutoMountManager *manager()
{
    return TXAutoMountManager::getInstance();
}

QString hosts()
{
    QStringList found;
    for (int row = 0; row < manager()->count(); ++row) {
        found.append(manager()->getDrive(row).getUrl().host());
    }
    return found.join(' ');
}

QString lastLogLine()
{
    const auto root = TXLogManager::applicationLog()->rootItem();
    return root->children.isEmpty() ? QString() : root->children.last()->message.toString(nullptr);
}

/// Asks for the manager when there is no application object any longer.
struct AskedLate
{
    ~AskedLate()
    {
        if (QCoreApplication::instance() || !TXAutoMountManager::getInstance()) {
            std::abort();
        }
    }
};

} // namespace

class TestTXAutoMountManager : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        manager()->stop();
        while (manager()->count() > 0) {
            manager()->remove(0);
        }
    }

private slots:
    void listIsReadAtFirstUse();
    void instanceIsOneAndNeverNull();
    void drivesAreAddedReplacedAndRemoved();
    void rowsThatAreNotThereAreIgnored_data();
    void rowsThatAreNotThereAreIgnored();
    void onlySavingStores();
    void startAndStopTellChangesOnly();
    void runningIsNotStored();
    void statusIsToldOnAChangeWithTheDrive();
    void statusReachesStringConnectedSlots();
    void failedSavingIsLogged();
};

// The first, since the process has one manager only.
void TestTXAutoMountManager::listIsReadAtFirstUse()
{
    QVERIFY(manager());
    NetworkDriveStore().write({makeDrive("a"), makeDrive("b")});
    QStringList stored = QSettings().value("NetworkDrives").toStringList();
    QSettings().setValue("NetworkDrives", stored << "damaged");

    QCOMPARE(hosts(), "a b");
    QTRY_VERIFY(lastLogLine().contains("could not be read: 1"));
    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveDisconnected);
    manager()->saveDriveList();
    QCOMPARE(QSettings().value("NetworkDrives").toStringList().last(), "damaged");
}

void TestTXAutoMountManager::instanceIsOneAndNeverNull()
{
    QVERIFY(manager());
    QCOMPARE(TXAutoMountManager::getInstance(), manager());
}

void TestTXAutoMountManager::drivesAreAddedReplacedAndRemoved()
{
    manager()->add(makeDrive("a"));
    manager()->add(AutoMountNetworkDrive({}));
    manager()->add(makeDrive("c"));
    AutoMountNetworkDrive b = makeDrive("b");
    b.setActivated(true);
    manager()->replace(1, b);
    QCOMPARE(hosts(), "a b c");
    QVERIFY(manager()->getDrive(1).isActivated());
    manager()->getDrive(1).setActivated(false);
    QVERIFY(manager()->getDrive(1).isActivated());
    manager()->remove(0);
    QCOMPARE(hosts(), "b c");
}

void TestTXAutoMountManager::rowsThatAreNotThereAreIgnored_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("negative") << -1;
    QTest::newRow("just behind") << 1;
    QTest::newRow("far behind") << INT_MAX;
    QTest::newRow("far before") << INT_MIN;
}

void TestTXAutoMountManager::rowsThatAreNotThereAreIgnored()
{
    QFETCH(int, row);
    manager()->add(makeDrive("a"));
    const QSignalSpy spy(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    manager()->replace(row, makeDrive("x"));
    manager()->remove(row);
    manager()->setDriveStatus(row, NetworkDriveConnected);
    QCOMPARE(hosts(), "a");
    QCOMPARE(manager()->getDrive(row), AutoMountNetworkDrive({}));
    QCOMPARE(spy.count(), 0);
}

void TestTXAutoMountManager::onlySavingStores()
{
    manager()->add(makeDrive("a"));
    QVERIFY(NetworkDriveStore().read().isEmpty());
    manager()->saveDriveList();
    manager()->remove(0);
    const QList<AutoMountNetworkDrive> stored = NetworkDriveStore().read();
    QCOMPARE(stored.size(), 1);
    QCOMPARE(stored.first(), makeDrive("a"));
}

void TestTXAutoMountManager::startAndStopTellChangesOnly()
{
    const QSignalSpy started(manager(), SIGNAL(started()));
    const QSignalSpy stopped(manager(), SIGNAL(stopped()));
    QVERIFY(!manager()->isRunning());
    manager()->stop();
    QCOMPARE(stopped.count(), 0);
    manager()->start();
    QVERIFY(manager()->isRunning());
    manager()->start();
    QCOMPARE(started.count(), 1);
    manager()->stop();
    manager()->stop();
    QVERIFY(!manager()->isRunning());
    QCOMPARE(stopped.count(), 1);
}

void TestTXAutoMountManager::runningIsNotStored()
{
    manager()->start();
    manager()->saveDriveList();
    QSettings settings;
    settings.remove("NetworkDrives");
    QVERIFY(settings.allKeys().isEmpty());
}

void TestTXAutoMountManager::statusIsToldOnAChangeWithTheDrive()
{
    manager()->add(makeDrive("a"));
    manager()->add(makeDrive("b"));
    QSignalSpy spy(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    manager()->setDriveStatus(1, NetworkDriveDisconnected);
    QCOMPARE(spy.count(), 0);
    manager()->setDriveStatus(1, NetworkDriveLetterTaken);
    manager()->setDriveStatus(1, NetworkDriveLetterTaken);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).value<NetworkDriveConnectionState>(), NetworkDriveLetterTaken);
    const auto drive = spy.first().at(1).value<AutoMountNetworkDrive>();
    QCOMPARE(drive, makeDrive("b"));
    QCOMPARE(drive.getStatus(), NetworkDriveLetterTaken);
    QCOMPARE(manager()->getDrive(1).getStatus(), NetworkDriveLetterTaken);
}

/// Hears of a drive through the event loop.
class Listener : public QObject
{
    Q_OBJECT

public:
    QStringList heard;

public slots:
    void statusNetworkDriveChangedSlot(NetworkDriveConnectionState status,
                                       AutoMountNetworkDrive drive)
    {
        heard.append(QString::number(status) + ' ' + drive.getUrl().host());
    }
};

void TestTXAutoMountManager::statusReachesStringConnectedSlots()
{
    Listener listener;
    QVERIFY(connect(
        manager(),
        SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)),
        &listener,
        SLOT(statusNetworkDriveChangedSlot(NetworkDriveConnectionState, AutoMountNetworkDrive)),
        Qt::QueuedConnection));
    manager()->add(makeDrive("a"));
    manager()->setDriveStatus(0, NetworkDriveReconnectionFailed);
    QVERIFY(listener.heard.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(listener.heard, QStringList{"2 a"});
}

void TestTXAutoMountManager::failedSavingIsLogged()
{
    const QString file = QSettings().fileName();
    QFile::remove(file);
    QVERIFY(QDir().mkpath(file + "/in the way"));
    manager()->add(makeDrive("a"));
    manager()->saveDriveList();
    QVERIFY(QDir(file).removeRecursively());
    QTRY_VERIFY(lastLogLine().contains("could not be saved"));
    QVERIFY(!lastLogLine().contains("s3cret"));
}

int main(int argc, char **argv)
{
    if (!TXAutoMountManager::getInstance()) {
        return 1;
    }
    const AskedLate askedLate;
    return runTest<TestTXAutoMountManager>(argc, argv);
}

#include "tst_TXAutoMountManager.moc"
