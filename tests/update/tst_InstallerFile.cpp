#include "InstallerFile.h"

#include "TestBase.h"
#include "UnfinishedDownloads.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Result = InstallerFile::Result;

constexpr qint64 kAll = InstallerFile::kLargestPiece;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

Result append(InstallerFile &file, QByteArray bytes)
{
    QBuffer source(&bytes);
    source.open(QIODevice::ReadOnly);
    return file.append(source, bytes.size());
}

/// Tells of bytes and gives none.
class EmptySource : public QIODevice
{
public:
    EmptySource() { open(ReadOnly); }
    qint64 bytesAvailable() const override { return 3; }

protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return 0; }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }
};

/// No file of this process grows beyond so many bytes while it lives: as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {size, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }

    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before = {};
};

} // namespace

class TestInstallerFile : public TestBase
{
    Q_OBJECT

private slots:
    void piecesFollowOneAnother();
    void pieceIsBounded();
    void fileIsUnknownAgainOnlyWhenWhole();
    void fileShorterThanExpectedIsNotWhole_data();
    void fileShorterThanExpectedIsNotWhole();
    void downloadWithoutAPieceIsNotWhole();
    void downloadOfNothingIsWholeWithoutAFile();
    void emptyPathTakesNothing();
    void fileOfSomebodyElseIsLeftAlone();
    void deadLinkIsNotFollowed();
    void changedFileTakesNoFurtherPiece_data();
    void changedFileTakesNoFurtherPiece();
    void changedFileIsNotWhole_data();
    void changedFileIsNotWhole();
    void pieceStaysInTheSourceWhenTheFileCannotBeOpened_data();
    void pieceStaysInTheSourceWhenTheFileCannotBeOpened();
    void fileIsRememberedAtEachTryToMakeIt();
    void sourceMayGiveNothing();
    void anyFileIsContinued();
    void anyFileIsMadeWhenThereIsNone();
    void changedAnyFileTakesNoFurtherPiece();
    void continuedUnfinishedFileIsKnownUntilItsEnd();
    void fullDiskLosesTheDownload();
    void downloadGoesOnWithSettingsThatCannotBeWritten();
    void killedProcessLeavesTheFileKnown();

private:
    QString path() const { return folder.filePath(QStringLiteral("installer.bin")); }

    QTemporaryDir folder;

protected:
    void prepare() override
    {
        QVERIFY(QDir(folder.path()).removeRecursively() && QDir().mkpath(folder.path()));
    }
};

void TestInstallerFile::piecesFollowOneAnother()
{
    InstallerFile file(path(), 6);
    QCOMPARE(append(file, "abc"), Result::Written);
    QCOMPARE(append(file, ""), Result::Written);
    QCOMPARE(append(file, "def"), Result::Written);
    QVERIFY(file.finish());
    QCOMPARE(contentOf(path()), QByteArray("abcdef"));
}

void TestInstallerFile::pieceIsBounded()
{
    QByteArray bytes(kAll + 5, 'x');
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadOnly));
    InstallerFile file(path(), bytes.size());
    QCOMPARE(file.append(source, bytes.size()), Result::Written);
    QCOMPARE(source.bytesAvailable(), 5);
    QCOMPARE(file.append(source, -1), Result::Written);
    QCOMPARE(source.bytesAvailable(), 5);
    QCOMPARE(file.append(source, kAll), Result::Written);
    QVERIFY(file.finish());
}

void TestInstallerFile::fileIsUnknownAgainOnlyWhenWhole()
{
    InstallerFile file(path(), 6);
    QVERIFY(!UnfinishedDownloads::contains(path()));
    QCOMPARE(append(file, "abc"), Result::Written);
    QVERIFY(UnfinishedDownloads::contains(path()));
    QCOMPARE(append(file, "def"), Result::Written);
    QVERIFY(UnfinishedDownloads::contains(path()));
    QVERIFY(file.finish());
    QVERIFY(!UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::fileShorterThanExpectedIsNotWhole_data()
{
    QTest::addColumn<qint64>("expected");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("shorter") << qint64(4) << false;
    QTest::newRow("absurd") << std::numeric_limits<qint64>::max() << false;
    QTest::newRow("equal") << qint64(3) << true;
    QTest::newRow("longer") << qint64(2) << true;
    QTest::newRow("unknown") << qint64(0) << true;
    QTest::newRow("negative") << std::numeric_limits<qint64>::min() << true;
}

void TestInstallerFile::fileShorterThanExpectedIsNotWhole()
{
    QFETCH(qint64, expected);
    QFETCH(bool, isWhole);
    InstallerFile file(path(), expected);
    QCOMPARE(append(file, "abc"), Result::Written);
    QCOMPARE(file.finish(), isWhole);
    QCOMPARE(UnfinishedDownloads::contains(path()), !isWhole);
}

void TestInstallerFile::downloadWithoutAPieceIsNotWhole()
{
    InstallerFile file(path(), 1);
    QVERIFY(!file.finish());
    QVERIFY(!QFile::exists(path()));
    QCOMPARE(append(file, "abc"), Result::Failed);
    QVERIFY(!QFile::exists(path()));
}

void TestInstallerFile::downloadOfNothingIsWholeWithoutAFile()
{
    InstallerFile file(path(), 0);
    QVERIFY(file.finish());
    QVERIFY(!QFile::exists(path()));
    QVERIFY(!UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::emptyPathTakesNothing()
{
    InstallerFile file(QString(), 0);
    QCOMPARE(append(file, "abc"), Result::Failed);
    QVERIFY(!file.finish());
}

void TestInstallerFile::fileOfSomebodyElseIsLeftAlone()
{
    write(path(), "theirs");
    InstallerFile file(path(), 0);
    QCOMPARE(append(file, "abc"), Result::Failed);
    QVERIFY(!file.finish());
    QCOMPARE(contentOf(path()), QByteArray("theirs"));
    QVERIFY(!UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::deadLinkIsNotFollowed()
{
    const QString target = folder.filePath(QStringLiteral("target"));
    QVERIFY(QFile::link(target, path()));
    InstallerFile file(path(), 0);
    QCOMPARE(append(file, "abc"), Result::Failed);
    QVERIFY(!QFile::exists(target));
}

void TestInstallerFile::changedFileTakesNoFurtherPiece_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change : {"deleted", "replaced", "cut", "lengthened", "folder"}) {
        QTest::newRow(change) << change;
    }
}

namespace {

void change(const QString &path, const QString &how)
{
    if (how == QLatin1String("lengthened")) {
        QFile file(path);
        QVERIFY(file.open(QFile::Append) && file.write("x") == 1);
        return;
    }
    if (how == QLatin1String("cut")) {
        QVERIFY(QFile::resize(path, 2));
        return;
    }
    // Held open, so that the new file cannot look like the old one.
    QFile old(path);
    QVERIFY(old.open(QFile::ReadOnly));
    const QDateTime birth = old.fileTime(QFile::FileBirthTime);
    QVERIFY(QFile::remove(path));
    if (how == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(path));
    }
    if (how == QLatin1String("replaced")) {
        QTRY_VERIFY(QDateTime::currentDateTime() > birth.addMSecs(20));
        write(path, "xyz");
    }
}

} // namespace

void TestInstallerFile::changedFileTakesNoFurtherPiece()
{
    QFETCH(QString, change);
    InstallerFile file(path(), 0);
    QCOMPARE(append(file, "abc"), Result::Written);
    ::change(path(), change);
    const QByteArray before = contentOf(path());

    const Result expected = change == QLatin1String("folder") ? Result::NotOpened : Result::Failed;
    QCOMPARE(append(file, "def"), expected);
    QCOMPARE(contentOf(path()), before);
    QCOMPARE(QFile::exists(path()), change != QLatin1String("deleted"));
    QVERIFY(!file.finish());
    QVERIFY(UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::changedFileIsNotWhole_data()
{
    changedFileTakesNoFurtherPiece_data();
}

void TestInstallerFile::changedFileIsNotWhole()
{
    QFETCH(QString, change);
    InstallerFile file(path(), 0);
    QCOMPARE(append(file, "abc"), Result::Written);
    ::change(path(), change);
    QVERIFY(!file.finish());
}

void TestInstallerFile::pieceStaysInTheSourceWhenTheFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("path");
    const QString file = QStringLiteral("/installer.bin");
    QTest::newRow("folder missing") << QString(folder.path() + QStringLiteral("/missing") + file);
    QTest::newRow("folder at the path") << QString(folder.path() + QStringLiteral("/dir"));
    QTest::newRow("file in place of the folder")
        << QString(folder.path() + QStringLiteral("/plain") + file);
    QTest::newRow("name too long") << QString(folder.path() + u'/' + QString(300, u'n'));
}

void TestInstallerFile::pieceStaysInTheSourceWhenTheFileCannotBeOpened()
{
    QFETCH(QString, path);
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("dir")));
    write(folder.filePath(QStringLiteral("plain")), "x");
    QByteArray bytes("abc");
    QBuffer source(&bytes);
    QVERIFY(source.open(QIODevice::ReadOnly));

    InstallerFile file(path, 0);
    QCOMPARE(file.append(source, 3), Result::NotOpened);
    QCOMPARE(file.append(source, 3), Result::NotOpened);
    QCOMPARE(source.bytesAvailable(), 3);
    QVERIFY(!file.finish());
    QVERIFY(!UnfinishedDownloads::contains(path));
}

void TestInstallerFile::fileIsRememberedAtEachTryToMakeIt()
{
    const QString later = folder.filePath(QStringLiteral("later/installer.bin"));
    InstallerFile file(later, 0);
    QCOMPARE(append(file, "abc"), Result::NotOpened);
    UnfinishedDownloads::remove(later);
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("later")));
    QCOMPARE(append(file, "abc"), Result::Written);
    QVERIFY(UnfinishedDownloads::contains(later));
}

void TestInstallerFile::sourceMayGiveNothing()
{
    EmptySource empty;
    InstallerFile file(path(), 6);
    QCOMPARE(file.append(empty, 3), Result::NothingRead);
    QCOMPARE(append(file, "abc"), Result::Written);
    QCOMPARE(file.append(empty, 3), Result::NothingRead);
    QCOMPARE(append(file, "def"), Result::Written);
    QVERIFY(file.finish());
    QCOMPARE(contentOf(path()), QByteArray("abcdef"));
}

void TestInstallerFile::anyFileIsContinued()
{
    write(path(), "theirs");
    InstallerFile file(path(), 0, InstallerFile::Beginning::AnyFile);
    QCOMPARE(append(file, "abc"), Result::Written);
    QVERIFY(!UnfinishedDownloads::contains(path()));
    QCOMPARE(append(file, "def"), Result::Written);
    QVERIFY(file.finish());
    QCOMPARE(contentOf(path()), QByteArray("theirsabcdef"));
}

void TestInstallerFile::anyFileIsMadeWhenThereIsNone()
{
    InstallerFile file(path(), 0, InstallerFile::Beginning::AnyFile);
    QCOMPARE(append(file, "abc"), Result::Written);
    QVERIFY(!UnfinishedDownloads::contains(path()));
    QVERIFY(file.finish());
    QCOMPARE(contentOf(path()), QByteArray("abc"));
    InstallerFile nowhere(QString(), 0, InstallerFile::Beginning::AnyFile);
    QCOMPARE(append(nowhere, "abc"), Result::Failed);
}

void TestInstallerFile::changedAnyFileTakesNoFurtherPiece()
{
    write(path(), "theirs");
    InstallerFile file(path(), 0, InstallerFile::Beginning::AnyFile);
    QCOMPARE(append(file, "abc"), Result::Written);
    ::change(path(), QStringLiteral("cut"));
    QCOMPARE(append(file, "def"), Result::Failed);
    QVERIFY(!file.finish());
    QCOMPARE(contentOf(path()), QByteArray("th"));
}

void TestInstallerFile::continuedUnfinishedFileIsKnownUntilItsEnd()
{
    QVERIFY(UnfinishedDownloads::add(path()));
    write(path(), "abc");
    InstallerFile withoutAPiece(path(), 0, InstallerFile::Beginning::AnyFile);
    QVERIFY(withoutAPiece.finish());
    QVERIFY(UnfinishedDownloads::contains(path()));

    InstallerFile file(path(), 0, InstallerFile::Beginning::AnyFile);
    QCOMPARE(append(file, "def"), Result::Written);
    QVERIFY(UnfinishedDownloads::contains(path()));
    QVERIFY(file.finish());
    QVERIFY(!UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::fullDiskLosesTheDownload()
{
    constexpr int kRoom = 100000;
    InstallerFile file(path(), 0);
    QCOMPARE(append(file, QByteArray(kRoom - 10, 'a')), Result::Written);
    {
        const FullDisk disk(kRoom);
        QCOMPARE(append(file, QByteArray(100, 'b')), Result::Failed);
    }
    QCOMPARE(append(file, "c"), Result::Failed);
    QVERIFY(!file.finish());
    QVERIFY(QFileInfo(path()).size() >= kRoom - 10);
    QVERIFY(UnfinishedDownloads::contains(path()));
}

void TestInstallerFile::downloadGoesOnWithSettingsThatCannotBeWritten()
{
    const QString before = QFileInfo(QSettings().fileName()).dir().filePath(QStringLiteral(".."));
    write(folder.filePath(QStringLiteral("plain")), "x");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       folder.filePath(QStringLiteral("plain")));
    InstallerFile file(path(), 0);
    const Result result = append(file, "abc");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QDir::cleanPath(before));

    QCOMPARE(result, Result::Written);
    QCOMPARE(contentOf(path()), QByteArray("abc"));
}

void TestInstallerFile::killedProcessLeavesTheFileKnown()
{
    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        InstallerFile file(path(), 6);
        static_cast<void>(append(file, "abc"));
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(contentOf(path()), QByteArray("abc"));
    QVERIFY(UnfinishedDownloads::contains(path()));
}

int main(int argc, char **argv)
{
    return runTest<TestInstallerFile>(argc, argv);
}

#include "tst_InstallerFile.moc"
