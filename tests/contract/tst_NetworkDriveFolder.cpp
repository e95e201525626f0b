#include "NetworkDriveFolder.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <climits>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString inFolder(const QString &name)
{
    return NetworkDriveFolder::path() + '/' + name;
}

bool makeFile(const QString &path)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write("x") == 1;
}

/// What readlink tells of a link.
QByteArray rawTarget(const QString &path)
{
    QByteArray text(PATH_MAX, '\0');
    const ssize_t size = ::readlink(QFile::encodeName(path), text.data(), size_t(text.size()));
    return size < 0 ? QByteArray() : text.left(size);
}

QList<QChar> letters(const char *text)
{
    const QString characters = QString::fromLatin1(text);
    return {characters.begin(), characters.end()};
}

} // namespace

class TestNetworkDriveFolder : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { clear(); }
    void finish() override { clear(); }

private slots:
    void folderIsInTheUsersHome();
    void nothingIsThereInTheBeginning();
    void firstLinkMakesTheFolder();
    void targetIsKeptAsItIs_data();
    void targetIsKeptAsItIs();
    void linksAreNotFollowed();
    void onlyEntriesOfOneLetterCount();
    void takenLetterIsNotPlacedAgain_data();
    void takenLetterIsNotPlacedAgain();
    void placingTheSameAgainIsFine();
    void badLettersAndTargetsAreRefused_data();
    void badLettersAndTargetsAreRefused();
    void lowerCaseMeansTheSameLetter();
    void onlyTheRightLinkIsRemoved();
    void entryThatIsNoLinkStays_data();
    void entryThatIsNoLinkStays();
    void somethingElseInPlaceOfTheFolder_data();
    void somethingElseInPlaceOfTheFolder();
    void folderThatCannotBeWritten();
    void homeThatIsNotThere();
    void oneOfManyProcessesGetsALetter();
    void nothingStaysOpen();

private:
    static void clear();
};

void TestNetworkDriveFolder::clear()
{
    const QString path = NetworkDriveFolder::path();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!QFile::remove(path)) {
        QDir(path).removeRecursively();
    }
}

void TestNetworkDriveFolder::folderIsInTheUsersHome()
{
    QCOMPARE(NetworkDriveFolder::path(), QFile::decodeName(qgetenv("HOME")) + "/Network Drives");
}

void TestNetworkDriveFolder::nothingIsThereInTheBeginning()
{
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QCOMPARE(NetworkDriveFolder::target('N'), QString());
    NetworkDriveFolder::remove('N', "/target");
    QVERIFY(!QFileInfo::exists(NetworkDriveFolder::path()));
}

void TestNetworkDriveFolder::firstLinkMakesTheFolder()
{
    QVERIFY(NetworkDriveFolder::place('N', "/target"));
    QCOMPARE(NetworkDriveFolder::letters(), letters("N"));
    QCOMPARE(NetworkDriveFolder::target('N'), "/target");
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
        | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(NetworkDriveFolder::path()) & others));

    NetworkDriveFolder::remove('N', "/target");
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QVERIFY(QFileInfo(NetworkDriveFolder::path()).isDir());
}

void TestNetworkDriveFolder::targetIsKeptAsItIs_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("of a connected share")
        << "/run/user/0/gvfs/smb-share:server=127.0.0.1,port=1445,share=pictures";
    QTest::newRow("relative") << "a/b";
    QTest::newRow("up") << "../a/../b";
    QTest::newRow("slashes") << "//a///b//";
    QTest::newRow("dot") << ".";
    QTest::newRow("blanks") << " a b ";
    QTest::newRow("line break") << "/a\nb";
    QTest::newRow("percent") << "/a%20b%";
    QTest::newRow("colon") << ":/a";
    QTest::newRow("home") << "~/a";
    QTest::newRow("other scripts") << "/Größe/測る/😀";
    QTest::newRow("not composed") << QString("/u") + QChar(0x308);
    QTest::newRow("long") << "/" + QString(4000, 'x');
}

void TestNetworkDriveFolder::targetIsKeptAsItIs()
{
    QFETCH(QString, target);
    QVERIFY(NetworkDriveFolder::place('N', target));
    QCOMPARE(rawTarget(inFolder("N")), target.toUtf8());
    QCOMPARE(NetworkDriveFolder::target('N'), target);
    QVERIFY(NetworkDriveFolder::place('N', target));
    NetworkDriveFolder::remove('N', target);
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

// A link that leads to itself cannot be followed.
void TestNetworkDriveFolder::linksAreNotFollowed()
{
    QVERIFY(NetworkDriveFolder::place('L', "L"));
    QVERIFY(NetworkDriveFolder::place('M', "/no/such/folder"));
    QVERIFY(NetworkDriveFolder::place('N', NetworkDriveFolder::path()));
    QCOMPARE(NetworkDriveFolder::letters(), letters("LMN"));
    QCOMPARE(NetworkDriveFolder::target('L'), "L");
    QVERIFY(NetworkDriveFolder::place('L', "L"));
    NetworkDriveFolder::remove('L', "L");
    QCOMPARE(NetworkDriveFolder::letters(), letters("MN"));
}

void TestNetworkDriveFolder::onlyEntriesOfOneLetterCount()
{
    QVERIFY(NetworkDriveFolder::place('Z', "/target"));
    const QDir folder(NetworkDriveFolder::path());
    QVERIFY(makeFile(inFolder("F")));
    QVERIFY(folder.mkdir("D"));
    QVERIFY(QFile::link("/no/such/folder", inFolder("K")));
    for (const char *odd : {"n", "NN", "N ", " N", "N:", "1", "Ä", "@", "[", ".N", "..."}) {
        QVERIFY(makeFile(inFolder(QString::fromUtf8(odd))));
    }
    QCOMPARE(NetworkDriveFolder::letters(), letters("DFKZ"));
}

void TestNetworkDriveFolder::takenLetterIsNotPlacedAgain_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("elsewhere") << "/a"
                               << "/b";
    QTest::newRow("upper case") << "/a"
                                << "/A";
    QTest::newRow("another spelling") << "/a"
                                      << "/a/";
    QTest::newRow("longer") << "/a"
                            << "/ab";
    QTest::newRow("shorter") << "/ab"
                             << "/a";
    QTest::newRow("nothing") << "/a"
                             << "";
}

void TestNetworkDriveFolder::takenLetterIsNotPlacedAgain()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(NetworkDriveFolder::place('N', first));
    QVERIFY(!NetworkDriveFolder::place('N', second));
    QCOMPARE(NetworkDriveFolder::target('N'), first);
}

void TestNetworkDriveFolder::placingTheSameAgainIsFine()
{
    QVERIFY(NetworkDriveFolder::place('N', "/a"));
    QVERIFY(NetworkDriveFolder::place('N', "/a"));
    QVERIFY(NetworkDriveFolder::place('O', "/a"));
    QCOMPARE(NetworkDriveFolder::letters(), letters("NO"));
}

void TestNetworkDriveFolder::badLettersAndTargetsAreRefused_data()
{
    QTest::addColumn<QChar>("letter");
    QTest::addColumn<QString>("target");
    QTest::newRow("null letter") << QChar() << "/a";
    QTest::newRow("dot") << QChar('.') << "/a";
    QTest::newRow("slash") << QChar('/') << "/a";
    QTest::newRow("digit") << QChar('1') << "/a";
    QTest::newRow("umlaut") << QChar(0xc4) << "/a";
    QTest::newRow("null target") << QChar('N') << QString();
    QTest::newRow("empty target") << QChar('N') << "";
    QTest::newRow("null in the target") << QChar('N') << QString("/a") + QChar(0) + "b";
    QTest::newRow("too long a target") << QChar('N') << QString(5000, 'x');
}

void TestNetworkDriveFolder::badLettersAndTargetsAreRefused()
{
    QFETCH(QChar, letter);
    QFETCH(QString, target);
    QVERIFY(!NetworkDriveFolder::place(letter, target));
    QCOMPARE(NetworkDriveFolder::target(letter), QString());
    NetworkDriveFolder::remove(letter, target);
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

void TestNetworkDriveFolder::lowerCaseMeansTheSameLetter()
{
    QVERIFY(NetworkDriveFolder::place('n', "/a"));
    QCOMPARE(NetworkDriveFolder::letters(), letters("N"));
    QCOMPARE(NetworkDriveFolder::target('n'), "/a");
    NetworkDriveFolder::remove('n', "/a");
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
}

void TestNetworkDriveFolder::onlyTheRightLinkIsRemoved()
{
    QVERIFY(NetworkDriveFolder::place('N', "/a"));
    NetworkDriveFolder::remove('N', "/b");
    NetworkDriveFolder::remove('N', "");
    NetworkDriveFolder::remove('M', "/a");
    QCOMPARE(NetworkDriveFolder::target('N'), "/a");
}

void TestNetworkDriveFolder::entryThatIsNoLinkStays_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("file") << true;
    QTest::newRow("folder") << false;
}

void TestNetworkDriveFolder::entryThatIsNoLinkStays()
{
    QFETCH(bool, isFile);
    QVERIFY(QDir().mkpath(NetworkDriveFolder::path()));
    QVERIFY(isFile ? makeFile(inFolder("N")) : QDir().mkpath(inFolder("N")));
    QCOMPARE(NetworkDriveFolder::target('N'), QString());
    QVERIFY(!NetworkDriveFolder::place('N', "/a"));
    NetworkDriveFolder::remove('N', "/a");
    NetworkDriveFolder::remove('N', "");
    QCOMPARE(NetworkDriveFolder::letters(), letters("N"));
}

void TestNetworkDriveFolder::somethingElseInPlaceOfTheFolder_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("file") << true;
    QTest::newRow("link") << false;
}

void TestNetworkDriveFolder::somethingElseInPlaceOfTheFolder()
{
    QFETCH(bool, isFile);
    const QTemporaryDir elsewhere;
    QVERIFY(QFile::link("/a", elsewhere.filePath("N")));
    QVERIFY(isFile ? makeFile(NetworkDriveFolder::path())
                   : QFile::link(elsewhere.path(), NetworkDriveFolder::path()));

    QVERIFY(!NetworkDriveFolder::place('N', "/a"));
    QVERIFY(!NetworkDriveFolder::place('M', "/a"));
    NetworkDriveFolder::remove('N', "/a");
    QVERIFY(NetworkDriveFolder::letters().isEmpty());
    QCOMPARE(NetworkDriveFolder::target('N'), QString());
    QCOMPARE(rawTarget(elsewhere.filePath("N")), "/a");
    QCOMPARE(QFileInfo(NetworkDriveFolder::path()).isSymLink(), !isFile);
}

// The superuser may write in any folder, so another user looks here.
void TestNetworkDriveFolder::folderThatCannotBeWritten()
{
    constexpr uid_t kNobody = 65534;
    const QFile::Permissions look = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup
        | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(NetworkDriveFolder::place('N', "/a"));
    const QString home = QFileInfo(NetworkDriveFolder::path()).path();
    const QFile::Permissions homePermissions = QFile::permissions(home);
    QVERIFY(QFile::setPermissions(NetworkDriveFolder::path(), look));
    QVERIFY(QFile::setPermissions(home, homePermissions | look));
    const uid_t self = ::geteuid();
    QVERIFY(self != 0 || ::seteuid(kNobody) == 0);
    const bool isPlaced = NetworkDriveFolder::place('M', "/a");
    const bool isStillThere = NetworkDriveFolder::place('N', "/a");
    NetworkDriveFolder::remove('N', "/a");
    const QList<QChar> found = NetworkDriveFolder::letters();
    QVERIFY(self != 0 || ::seteuid(self) == 0);
    QVERIFY(QFile::setPermissions(home, homePermissions));

    QVERIFY(!isPlaced);
    QVERIFY(isStillThere);
    QCOMPARE(found, letters("N"));
}

void TestNetworkDriveFolder::homeThatIsNotThere()
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/no/such/home");
    const bool isPlaced = NetworkDriveFolder::place('N', "/a");
    const QList<QChar> found = NetworkDriveFolder::letters();
    qputenv("HOME", home);
    QVERIFY(!isPlaced);
    QVERIFY(found.isEmpty());
}

void TestNetworkDriveFolder::oneOfManyProcessesGetsALetter()
{
    constexpr int kProcesses = 8;
    constexpr int kRounds = 50;
    for (int round = 0; round < kRounds; ++round) {
        QList<pid_t> processes;
        for (int number = 0; number < kProcesses; ++number) {
            const QString target = QString("/target%1").arg(number);
            const pid_t process = ::fork();
            if (process == 0) {
                ::_exit(NetworkDriveFolder::place('N', target) ? 0 : 1);
            }
            processes.append(process);
        }
        QList<int> winners;
        for (int number = 0; number < kProcesses; ++number) {
            int status = 0;
            QCOMPARE(::waitpid(processes.at(number), &status, 0), processes.at(number));
            QVERIFY(WIFEXITED(status));
            if (WEXITSTATUS(status) == 0) {
                winners.append(number);
            }
        }
        QCOMPARE(winners.size(), 1);
        const QString target = QString("/target%1").arg(winners.first());
        QCOMPARE(NetworkDriveFolder::target('N'), target);
        NetworkDriveFolder::remove('N', target);
        QVERIFY(NetworkDriveFolder::letters().isEmpty());
    }
}

void TestNetworkDriveFolder::nothingStaysOpen()
{
    const auto openFiles = [] {
        return QDir("/proc/self/fd").count();
    };
    QVERIFY(NetworkDriveFolder::place('N', "/a"));
    const uint before = openFiles();
    QCOMPARE(NetworkDriveFolder::letters(), letters("N"));
    QCOMPARE(NetworkDriveFolder::target('N'), "/a");
    NetworkDriveFolder::remove('N', "/a");
    QCOMPARE(openFiles(), before);
}

int main(int argc, char **argv)
{
    return runTest<TestNetworkDriveFolder>(argc, argv);
}

#include "tst_NetworkDriveFolder.moc"
