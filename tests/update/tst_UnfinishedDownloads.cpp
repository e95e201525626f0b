#include "UnfinishedDownloads.h"

#include "TestBase.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString kGroup = QStringLiteral("UnfinishedDownloads");

int entryCount()
{
    QSettings settings;
    settings.beginGroup(kGroup);
    return static_cast<int>(settings.childKeys().size());
}

/// Makes the only entry so many seconds older.
void age(qint64 seconds)
{
    QSettings settings;
    settings.beginGroup(kGroup);
    const QString key = settings.childKeys().value(0);
    QStringList entry = settings.value(key).toStringList();
    const QDateTime made = QDateTime::fromString(entry.value(1), Qt::ISODate);
    QVERIFY(made.isValid());
    entry[1] = made.addSecs(-seconds).toString(Qt::ISODate);
    settings.setValue(key, entry);
}

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
}

} // namespace

class TestUnfinishedDownloads : public TestBase
{
    Q_OBJECT

private slots:
    void addedFileIsKnownUntilItIsRemoved();
    void addingTwiceKeepsOneEntry();
    void emptyPathIsNeverKnown();
    void fileIsTheSameUnderEverySpelling_data();
    void fileIsTheSameUnderEverySpelling();
    void namesMayHoldAnything_data();
    void namesMayHoldAnything();
    void entryOfAFileAboutToBeMadeStays();
    void oldEntryIsDropped_data();
    void oldEntryIsDropped();
    void fileMadeAtAnotherTimeIsNotMeant_data();
    void fileMadeAtAnotherTimeIsNotMeant();
    void nonsenseInTheSettingsIsDropped();
    void numberInPlaceOfTheGroupDoesNoHarm();
    void otherProcessesDoNotOverwriteEachOther();

private:
    QTemporaryDir folder;
};

void TestUnfinishedDownloads::addedFileIsKnownUntilItIsRemoved()
{
    const QString path = folder.filePath(QStringLiteral("a"));
    QVERIFY(!UnfinishedDownloads::contains(path));
    QVERIFY(UnfinishedDownloads::add(path));
    QVERIFY(UnfinishedDownloads::contains(path));
    QVERIFY(!UnfinishedDownloads::contains(folder.filePath(QStringLiteral("b"))));
    UnfinishedDownloads::remove(folder.filePath(QStringLiteral("b")));
    QVERIFY(UnfinishedDownloads::contains(path));
    UnfinishedDownloads::remove(path);
    QVERIFY(!UnfinishedDownloads::contains(path));
    QCOMPARE(entryCount(), 0);
}

void TestUnfinishedDownloads::addingTwiceKeepsOneEntry()
{
    const QString path = folder.filePath(QStringLiteral("a"));
    QVERIFY(UnfinishedDownloads::add(path));
    QVERIFY(UnfinishedDownloads::add(path));
    QCOMPARE(entryCount(), 1);
}

void TestUnfinishedDownloads::emptyPathIsNeverKnown()
{
    QVERIFY(!UnfinishedDownloads::add(QString()));
    QVERIFY(!UnfinishedDownloads::contains(QString()));
    UnfinishedDownloads::remove(QString());
    QCOMPARE(entryCount(), 0);
}

void TestUnfinishedDownloads::fileIsTheSameUnderEverySpelling_data()
{
    QTest::addColumn<QString>("other");
    QTest::newRow("dots") << folder.filePath(QStringLiteral("real/../real/./a"));
    QTest::newRow("double slash") << folder.filePath(QStringLiteral("real//a"));
    QTest::newRow("folder by a link") << folder.filePath(QStringLiteral("link/a"));
    QTest::newRow("relative") << QStringLiteral("real/a");
}

void TestUnfinishedDownloads::fileIsTheSameUnderEverySpelling()
{
    QFETCH(QString, other);
    QDir(folder.path()).mkdir(QStringLiteral("real"));
    QFile::link(folder.filePath(QStringLiteral("real")), folder.filePath(QStringLiteral("link")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));

    QVERIFY(UnfinishedDownloads::add(folder.filePath(QStringLiteral("real/a"))));
    const bool isKnown = UnfinishedDownloads::contains(other);
    UnfinishedDownloads::remove(other);
    QDir::setCurrent(before);

    QVERIFY(isKnown);
    QCOMPARE(entryCount(), 0);
}

void TestUnfinishedDownloads::namesMayHoldAnything_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("backslash") << QStringLiteral("a\\b");
    QTest::newRow("percent, comma, equals") << QStringLiteral("%20,a=b;c@d");
    QTest::newRow("line break") << QStringLiteral("a\nb");
    QTest::newRow("other scripts") << QStringLiteral("установка 安装");
    QTest::newRow("long") << QString(250, u'x');
}

void TestUnfinishedDownloads::namesMayHoldAnything()
{
    QFETCH(QString, name);
    const QString path = folder.path() + u'/' + name;
    QVERIFY(UnfinishedDownloads::add(path));
    QVERIFY(UnfinishedDownloads::contains(path));
    QVERIFY(!UnfinishedDownloads::contains(path + u'x'));
}

void TestUnfinishedDownloads::entryOfAFileAboutToBeMadeStays()
{
    const QString path = folder.filePath(QStringLiteral("soon"));
    QVERIFY(UnfinishedDownloads::add(path));
    QVERIFY(UnfinishedDownloads::add(folder.filePath(QStringLiteral("other"))));
    QVERIFY(UnfinishedDownloads::contains(path));
}

void TestUnfinishedDownloads::oldEntryIsDropped_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("isDropped");
    constexpr qint64 kKept = UnfinishedDownloads::kKeptSeconds;
    QTest::newRow("nearly old") << kKept - 60 << false << false;
    QTest::newRow("old") << kKept + 5 << false << true;
    QTest::newRow("old, file there") << kKept + 5 << true << true;
    QTest::newRow("from the future") << -kKept - 5 << false << true;
}

void TestUnfinishedDownloads::oldEntryIsDropped()
{
    QFETCH(qint64, seconds);
    QFETCH(bool, hasFile);
    QFETCH(bool, isDropped);
    const QString path = folder.filePath(QStringLiteral("old"));
    QFile::remove(path);
    if (hasFile) {
        touch(path);
    }
    QVERIFY(UnfinishedDownloads::add(path));
    age(seconds);
    QVERIFY(UnfinishedDownloads::add(folder.filePath(QStringLiteral("other"))));
    QCOMPARE(entryCount(), isDropped ? 1 : 2);
}

void TestUnfinishedDownloads::fileMadeAtAnotherTimeIsNotMeant_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<bool>("isMeant");
    constexpr qint64 kApart = UnfinishedDownloads::kApartSeconds;
    QTest::newRow("made together") << qint64(0) << true;
    QTest::newRow("made soon after") << kApart - 30 << true;
    QTest::newRow("made later") << kApart + 5 << false;
    QTest::newRow("made before") << -kApart - 30 << false;
}

void TestUnfinishedDownloads::fileMadeAtAnotherTimeIsNotMeant()
{
    QFETCH(qint64, seconds);
    QFETCH(bool, isMeant);
    const QString path = folder.filePath(QStringLiteral("made"));
    QFile::remove(path);
    QVERIFY(UnfinishedDownloads::add(path));
    age(seconds);
    // Without a file the entry alone counts.
    QVERIFY(UnfinishedDownloads::contains(path));
    touch(path);
    QVERIFY(QFileInfo(path).birthTime().isValid());
    QCOMPARE(UnfinishedDownloads::contains(path), isMeant);
    UnfinishedDownloads::remove(path);
    QCOMPARE(entryCount(), 0);
}

void TestUnfinishedDownloads::nonsenseInTheSettingsIsDropped()
{
    QSettings settings;
    settings.setValue(kGroup + QStringLiteral("/number"), 7);
    settings.setValue(kGroup + QStringLiteral("/bytes"), QByteArray("\0\xff", 2));
    settings.setValue(kGroup + QStringLiteral("/list"), QStringList({"/missing", "no date"}));
    QVERIFY(UnfinishedDownloads::add(folder.filePath(QStringLiteral("a"))));
    QCOMPARE(entryCount(), 1);
}

void TestUnfinishedDownloads::numberInPlaceOfTheGroupDoesNoHarm()
{
    QSettings().setValue(kGroup, 5);
    const QString path = folder.filePath(QStringLiteral("a"));
    QVERIFY(!UnfinishedDownloads::contains(path));
    QVERIFY(UnfinishedDownloads::add(path));
    QVERIFY(UnfinishedDownloads::contains(path));
    QCOMPARE(QSettings().value(kGroup).toInt(), 5);
}

void TestUnfinishedDownloads::otherProcessesDoNotOverwriteEachOther()
{
    const QSettings readBefore;
    QCOMPARE(entryCount(), 0);
    constexpr int kProcesses = 4;
    QList<pid_t> children;
    for (int number = 0; number < kProcesses; ++number) {
        const pid_t child = fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            const QString path = folder.filePath(QString::number(number));
            _exit(UnfinishedDownloads::add(path) ? 0 : 1);
        }
        children.append(child);
    }
    for (const pid_t child : children) {
        int status = -1;
        QCOMPARE(waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }
    for (int number = 0; number < kProcesses; ++number) {
        QVERIFY(UnfinishedDownloads::contains(folder.filePath(QString::number(number))));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestUnfinishedDownloads>(argc, argv);
}

#include "tst_UnfinishedDownloads.moc"
