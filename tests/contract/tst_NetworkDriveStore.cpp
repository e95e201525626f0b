#include "NetworkDriveStore.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

AutoMountNetworkDrive makeDrive(const QString &host, bool activated = false)
{
    AutoMountNetworkDrive drive({});
    drive.setUrl(QUrl("smb://mia:s3cret-Word@" + host + "/share"));
    drive.setExtParameters({{"NetworkDriveMountPoint", "Z:/"},
                            {"NetworkDriveDomain", QString::fromUtf8("büro, \"Ost\"; @home")},
                            {"NetworkDrivePersistent", false},
                            {"Retries", 3},
                            {"a/b\\c", QVariantList{1, "two", QVariantHash{{"three", 3.5}}}}});
    drive.setActivated(activated);
    return drive;
}

QStringList hosts(const QList<AutoMountNetworkDrive> &drives)
{
    QStringList found;
    for (const AutoMountNetworkDrive &drive : drives) {
        found.append(drive.getUrl().host());
    }
    return found;
}

QByteArray bytesOfTheSettings()
{
    QFile file(QSettings().fileName());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// A later run of the program.
QList<AutoMountNetworkDrive> readAfresh()
{
    return NetworkDriveStore().read();
}

bool write(const QList<AutoMountNetworkDrive> &drives)
{
    return NetworkDriveStore().write(drives);
}

} // namespace

class TestNetworkDriveStore : public TestBase
{
    Q_OBJECT

private slots:
    void nothingStoredReadsAsNoDrives();
    void drivesComeBackInOrder_data();
    void drivesComeBackInOrder();
    void nothingOfADriveIsLost();
    void writingIsOnDiskAtOnce();
    void passwordIsNotInTheFile();
    void unreadableEntriesAreLeftOutAndKept_data();
    void unreadableEntriesAreLeftOutAndKept();
    void valueOfAnotherTypeReadsAsUnreadable();
    void otherSettingsAreLeftAlone();
    void fileThatCannotBeWrittenIsTold();
    void cutOffFileGivesNoCrash();
};

void TestNetworkDriveStore::nothingStoredReadsAsNoDrives()
{
    NetworkDriveStore store;
    QVERIFY(store.read().isEmpty());
    QCOMPARE(store.unreadableCount(), 0);
}

void TestNetworkDriveStore::drivesComeBackInOrder_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none") << QStringList();
    QTest::newRow("one") << QStringList{"a"};
    QTest::newRow("several") << QStringList{"c", "a", "b"};
    QTest::newRow("twice the same") << QStringList{"a", "a"};
}

void TestNetworkDriveStore::drivesComeBackInOrder()
{
    QFETCH(QStringList, names);
    QList<AutoMountNetworkDrive> drives;
    for (const QString &name : names) {
        drives.append(makeDrive(name));
    }
    QVERIFY(write({makeDrive("old"), makeDrive("older")}));
    QVERIFY(write(drives));
    QCOMPARE(hosts(readAfresh()), names);
}

void TestNetworkDriveStore::nothingOfADriveIsLost()
{
    QVERIFY(write({makeDrive("server", true), AutoMountNetworkDrive({})}));
    const QList<AutoMountNetworkDrive> drives = readAfresh();
    QCOMPARE(drives.size(), 2);
    QCOMPARE(drives.at(0), makeDrive("server"));
    QCOMPARE(drives.at(0).getUrl().password(), "s3cret-Word");
    QVERIFY(drives.at(0).isActivated());
    QCOMPARE(drives.at(1), AutoMountNetworkDrive({}));
    QVERIFY(!drives.at(1).isActivated());
}

void TestNetworkDriveStore::writingIsOnDiskAtOnce()
{
    QVERIFY(write({makeDrive("server")}));
    QVERIFY(bytesOfTheSettings().contains("server"));
}

void TestNetworkDriveStore::passwordIsNotInTheFile()
{
    QVERIFY(write({makeDrive("server")}));
    const QByteArray bytes = bytesOfTheSettings();
    QVERIFY(bytes.contains("mia"));
    QVERIFY(!bytes.contains("s3cret"));
    QVERIFY(!bytes.contains(QByteArray("s3cret-Word").toBase64()));
    QVERIFY(!bytes.contains(QByteArray("s3cret-Word").toHex()));
}

void TestNetworkDriveStore::unreadableEntriesAreLeftOutAndKept_data()
{
    QTest::addColumn<QString>("damaged");
    QTest::newRow("no JSON") << "garbage";
    QTest::newRow("cut off") << "{\"NetworkDriveActivated\":true,\"NetworkDr";
    QTest::newRow("another JSON") << "[1,2]";
    QTest::newRow("no drive") << "{\"Version\":2}";
    QTest::newRow("null byte") << QString("{\"a\":1}").replace(2, 1, QChar(0));
}

void TestNetworkDriveStore::unreadableEntriesAreLeftOutAndKept()
{
    QFETCH(QString, damaged);
    QVERIFY(write({makeDrive("a"), makeDrive("b")}));
    QStringList stored = QSettings().value("NetworkDrives").toStringList();
    stored.insert(1, damaged);
    QSettings().setValue("NetworkDrives", stored);

    NetworkDriveStore store;
    QCOMPARE(hosts(store.read()), (QStringList{"a", "b"}));
    QCOMPARE(store.unreadableCount(), 1);
    QVERIFY(store.write({makeDrive("c")}));
    QCOMPARE(hosts(readAfresh()), QStringList{"c"});
    QCOMPARE(QSettings().value("NetworkDrives").toStringList().last(), damaged);
}

void TestNetworkDriveStore::valueOfAnotherTypeReadsAsUnreadable()
{
    QSettings().setValue("NetworkDrives", 5);
    NetworkDriveStore store;
    QVERIFY(store.read().isEmpty());
    QCOMPARE(store.unreadableCount(), 1);
}

void TestNetworkDriveStore::otherSettingsAreLeftAlone()
{
    QSettings().setValue("LogLevel", 2);
    QVERIFY(write({makeDrive("a")}));
    QVERIFY(write({}));
    QCOMPARE(QSettings().value("LogLevel"), QVariant(2));
}

void TestNetworkDriveStore::fileThatCannotBeWrittenIsTold()
{
    const QString file = QSettings().fileName();
    QFile::remove(file);
    QVERIFY(QDir().mkpath(file + "/in the way"));
    const bool written = write({makeDrive("a")});
    QVERIFY(QDir(file).removeRecursively());
    QVERIFY(!written);
}

void TestNetworkDriveStore::cutOffFileGivesNoCrash()
{
    QVERIFY(write({makeDrive("a"), makeDrive("b")}));
    const QByteArray whole = bytesOfTheSettings();
    constexpr qsizetype kStep = 7;
    for (qsizetype length = 0; length < whole.size(); length += kStep) {
        QFile file(QSettings().fileName());
        QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
        file.write(whole.left(length));
        file.close();
        QVERIFY(readAfresh().size() <= 2);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestNetworkDriveStore>(argc, argv);
}

#include "tst_NetworkDriveStore.moc"
