#include "NetworkDriveStore.h"
#include "TestBase.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QSysInfo>

#include <array>
#include <csignal>
#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

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

/// What a program does that saves one list after the other, until it is killed.
[[noreturn]] void saveForEver(const QList<QList<AutoMountNetworkDrive>> &lists, int begun)
{
    while (true) {
        if (::write(begun, "", 1) != 1) {
            ::_exit(1);
        }
        for (const QList<AutoMountNetworkDrive> &list : lists) {
            NetworkDriveStore store;
            store.read();
            store.write(list);
        }
    }
}

/// Lets another process save and kills it this much after its begin.
void saveAndKill(const QList<QList<AutoMountNetworkDrive>> &lists, long microseconds)
{
    std::array<int, 2> pipe = {};
    QCOMPARE(::pipe(pipe.data()), 0);
    const pid_t process = ::fork();
    if (process == 0) {
        saveForEver(lists, pipe[1]);
    }
    char byte = 0;
    QCOMPARE(::read(pipe[0], &byte, 1), ssize_t(1));
    const timespec moment = {0, microseconds * 1000};
    ::nanosleep(&moment, nullptr);
    QCOMPARE(::kill(process, SIGKILL), 0);
    int status = 0;
    QCOMPARE(::waitpid(process, &status, 0), process);
    QVERIFY(WIFSIGNALED(status));
    ::close(pipe[0]);
    ::close(pipe[1]);
}

QString lockOfTheSettings()
{
    return QSettings().fileName() + ".lock";
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
    void passwordIsInNoFileOfTheHome();
    void killedSavingLeavesTheOldListOrTheNewOne();
    void lockOfTheDeadHoldsNobodyUp_data();
    void lockOfTheDeadHoldsNobodyUp();
    void lockOfTheLivingIsKept();
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
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " ";
    QTest::newRow("null") << "null";
    QTest::newRow("text") << "\"NetworkDriveActivated\"";
    QTest::newRow("other case") << "{\"networkdriveactivated\":true}";
    QTest::newRow("two in one") << "{\"NetworkDriveActivated\":true}{}";
    QTest::newRow("deep") << QString(100'000, '[');
    QTest::newRow("not text") << QString(QChar(0xd800));
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

void TestNetworkDriveStore::passwordIsInNoFileOfTheHome()
{
    QVERIFY(write({makeDrive("a"), makeDrive("b")}));
    QVERIFY(write({makeDrive("b")}));
    QDirIterator files(QDir::homePath(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QFile::ReadOnly));
        QVERIFY2(!file.readAll().contains("s3cret"), qPrintable(file.fileName()));
        ++count;
    }
    QVERIFY(count > 0);
}

void TestNetworkDriveStore::killedSavingLeavesTheOldListOrTheNewOne()
{
    constexpr int kRounds = 50;
    constexpr int kLatestMicroseconds = 60'000;
    const QList<AutoMountNetworkDrive> few = {makeDrive("a")};
    const QList<AutoMountNetworkDrive> many = {makeDrive("b"), makeDrive("c"), makeDrive("d")};
    QSettings().setValue("LogLevel", 2);
    int manyCount = 0;
    QRandomGenerator random(1);
    for (int round = 0; round < kRounds; ++round) {
        // Also after a kill.
        QVERIFY(write(few));
        saveAndKill({many, few}, random.bounded(kLatestMicroseconds));
        NetworkDriveStore store;
        const QList<AutoMountNetworkDrive> found = store.read();
        QVERIFY2(found == few || found == many, qPrintable(hosts(found).join(',')));
        QCOMPARE(store.unreadableCount(), 0);
        QCOMPARE(found.first().getUrl().password(), "s3cret-Word");
        QCOMPARE(QSettings().value("LogLevel"), QVariant(2));
        manyCount += found == many ? 1 : 0;
    }
    // Else nothing was seen.
    QVERIFY(manyCount > 0 && manyCount < kRounds);
    QVERIFY(write(few));
}

void TestNetworkDriveStore::lockOfTheDeadHoldsNobodyUp_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("123");
    QTest::newRow("nonsense") << QByteArray("\n\n\n\n\n");
    // No process has a number as high as this.
    QTest::newRow("whole") << "999999999\nsaver\n" + QSysInfo::machineHostName().toUtf8() + "\n";
    QTest::newRow("of another machine") << QByteArray("1\nsaver\nelsewhere\n");
}

void TestNetworkDriveStore::lockOfTheDeadHoldsNobodyUp()
{
    QFETCH(QByteArray, lock);
    // For a machine that does ten other things.
    constexpr int kBusyMilliseconds = 5000;
    QVERIFY(write({makeDrive("a")}));
    QFile file(lockOfTheSettings());
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(lock), lock.size());
    file.close();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(write({makeDrive("b")}));
    QVERIFY(timer.elapsed() < NetworkDriveStore::kPatienceMilliseconds + kBusyMilliseconds);
    QVERIFY(!file.exists());
    QCOMPARE(hosts(readAfresh()), QStringList("b"));
}

void TestNetworkDriveStore::lockOfTheLivingIsKept()
{
    constexpr int kShortMilliseconds = 300;
    QVERIFY(write({makeDrive("a")}));
    QLockFile lock(lockOfTheSettings());
    QVERIFY(lock.lock());
    // Older than any saving lasts.
    QFile file(lockOfTheSettings());
    QVERIFY(file.open(QFile::ReadWrite));
    QVERIFY(
        file.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFile::FileModificationTime));

    QVERIFY(!NetworkDriveStore(kShortMilliseconds).write({makeDrive("b")}));

    QVERIFY(file.exists());
    lock.unlock();
    QCOMPARE(hosts(readAfresh()), QStringList("a"));
    QVERIFY(write({makeDrive("b")}));
}

int main(int argc, char **argv)
{
    return runTest<TestNetworkDriveStore>(argc, argv);
}

#include "tst_NetworkDriveStore.moc"
