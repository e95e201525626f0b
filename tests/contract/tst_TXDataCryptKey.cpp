#include "TXDataCryptKey.h"

#include "HelperProcess.h"
#include "TXError.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <array>
#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

QByteArray keyIn(const QString &path, TXError *error = nullptr)
{
    TXDataCryptKey key(path);
    const unsigned char *bytes = key.bytes(error);
    return bytes ? QByteArray(reinterpret_cast<const char *>(bytes), TXDataCryptKey::kBytes)
                 : QByteArray();
}

void write(const QString &path, const QByteArray &data)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(data), data.size());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestTXDataCryptKey : public TestBase
{
    Q_OBJECT

private slots:
    void firstUseMakesAPrivateFile();
    void nothingIsTouchedBeforeTheFirstUse();
    void missingFoldersAreMade();
    void secondUseFindsTheSameKey();
    void everyFileHasAnotherKey();
    void keyIsReadOnce();
    void fileThatIsNoKeyIsAnErrorAndStays_data();
    void fileThatIsNoKeyIsAnErrorAndStays();
    void folderInPlaceOfTheFileIsAnError();
    void danglingLinkIsAnErrorAndLeadsNowhere();
    void pipeIsAnErrorAndNobodyWaits();
    void folderThatCannotBeMadeIsAnError();
    void folderThatCannotBeWrittenIsAnError();
    void failureIsTriedAgain();
    void pathWithMarkersIsToldAsItIs();
    void nullErrorIsAccepted();
    void fileThatIsThereIsNeverReplaced();
    void processesThatStartTogetherAgree();
    void threadsThatStartTogetherAgree();
};

void TestTXDataCryptKey::firstUseMakesAPrivateFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    TXError error;

    const QByteArray key = keyIn(path, &error);

    QCOMPARE(key.size(), TXDataCryptKey::kBytes);
    QVERIFY(!error.isValid());
    QCOMPARE(contents(path), key);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("key")));
#ifdef Q_OS_UNIX
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
#endif
}

void TestTXDataCryptKey::nothingIsTouchedBeforeTheFirstUse()
{
    const QTemporaryDir folder;
    const TXDataCryptKey key(folder.filePath(QStringLiteral("sub/key")));

    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestTXDataCryptKey::missingFoldersAreMade()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a/b/c/key"));

    QVERIFY(!keyIn(path).isEmpty());

    QCOMPARE(QFileInfo(folder.filePath(QStringLiteral("a/b/c"))).permissions()
                 & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFile::Permissions());
}

void TestTXDataCryptKey::secondUseFindsTheSameKey()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));

    const QByteArray first = keyIn(path);

    QCOMPARE(keyIn(path), first);
}

void TestTXDataCryptKey::everyFileHasAnotherKey()
{
    const QTemporaryDir folder;

    QVERIFY(keyIn(folder.filePath(QStringLiteral("a")))
            != keyIn(folder.filePath(QStringLiteral("b"))));
}

void TestTXDataCryptKey::keyIsReadOnce()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    TXDataCryptKey key(path);
    const unsigned char *bytes = key.bytes(nullptr);
    QVERIFY(bytes);

    QVERIFY(QFile::remove(path));

    QCOMPARE(key.bytes(nullptr), bytes);
    QVERIFY(!QFile::exists(path));
}

void TestTXDataCryptKey::fileThatIsNoKeyIsAnErrorAndStays_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("one byte short") << QByteArray(TXDataCryptKey::kBytes - 1, 'k');
    QTest::addRow("one byte long") << QByteArray(TXDataCryptKey::kBytes + 1, 'k');
    QTest::addRow("long") << QByteArray(100000, 'k');
}

void TestTXDataCryptKey::fileThatIsNoKeyIsAnErrorAndStays()
{
    QFETCH(QByteArray, data);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    write(path, data);
    TXError error;

    QVERIFY(keyIn(path, &error).isEmpty());

    QCOMPARE(error.domain, QStringLiteral("DataCryptErrorDomain"));
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(),
             QStringLiteral("The key file %1 is damaged: it has %2 bytes instead of 32")
                 .arg(path)
                 .arg(data.size()));
    QCOMPARE(contents(path), data);
}

void TestTXDataCryptKey::folderInPlaceOfTheFileIsAnError()
{
    const QTemporaryDir folder;
    TXError error;

    QVERIFY(keyIn(folder.path(), &error).isEmpty());

    QCOMPARE(error.getLocalizedDescription(),
             QStringLiteral("The key file %1 cannot be read").arg(folder.path()));
    QVERIFY(QFileInfo(folder.path()).isDir());
}

void TestTXDataCryptKey::danglingLinkIsAnErrorAndLeadsNowhere()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    const QString target = folder.filePath(QStringLiteral("target"));
    QVERIFY(QFile::link(target, path));
    TXError error;

    QVERIFY(keyIn(path, &error).isEmpty());

    QVERIFY(error.isValid());
    QVERIFY(!QFile::exists(target));
    QVERIFY(QFileInfo(path).isSymLink());
}

void TestTXDataCryptKey::pipeIsAnErrorAndNobodyWaits()
{
#ifdef Q_OS_UNIX
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    TXError error;

    QVERIFY(keyIn(path, &error).isEmpty());

    QVERIFY(error.isValid());
#endif
}

void TestTXDataCryptKey::folderThatCannotBeMadeIsAnError()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    write(file, "kept");
    TXError error;

    QVERIFY(keyIn(file + QStringLiteral("/sub/key"), &error).isEmpty());

    QCOMPARE(error.domain, QStringLiteral("DataCryptErrorDomain"));
    QCOMPARE(error.getLocalizedDescription(),
             QStringLiteral("The folder %1/sub cannot be made").arg(file));
    QCOMPARE(contents(file), QByteArray("kept"));
}

void TestTXDataCryptKey::folderThatCannotBeWrittenIsAnError()
{
#ifdef Q_OS_LINUX
    // Nobody can make a file there, the administrator neither.
    const QString path = QStringLiteral("/proc/self/key");
    TXError error;

    QVERIFY(keyIn(path, &error).isEmpty());

    QVERIFY(error.getLocalizedDescription().startsWith(
        QStringLiteral("The key file %1 cannot be made: ").arg(path)));
    QVERIFY(!error.getLocalizedDescription().endsWith(QStringLiteral(": ")));
#endif
}

void TestTXDataCryptKey::failureIsTriedAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("key"));
    write(path, QByteArray());
    TXDataCryptKey key(path);
    QVERIFY(!key.bytes(nullptr));

    QVERIFY(QFile::remove(path));

    QVERIFY(key.bytes(nullptr));
}

void TestTXDataCryptKey::pathWithMarkersIsToldAsItIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1 %2 %3"));
    write(path, "x");
    TXError error;

    QVERIFY(keyIn(path, &error).isEmpty());

    QVERIFY(error.getLocalizedDescription().contains(path));
}

void TestTXDataCryptKey::nullErrorIsAccepted()
{
    const QTemporaryDir folder;

    QVERIFY(keyIn(folder.path(), nullptr).isEmpty());
}

void TestTXDataCryptKey::fileThatIsThereIsNeverReplaced()
{
    const QTemporaryDir folder;
    const QString first = folder.filePath(QStringLiteral("first"));
    const QString second = folder.filePath(QStringLiteral("second"));
    write(first, "first");
    write(second, "second");
    QString reason;

    QVERIFY(publishFileUnlessExists(second, first, &reason));

    QCOMPARE(contents(first), QByteArray("first"));
    QVERIFY(!QFile::exists(second));
}

void TestTXDataCryptKey::processesThatStartTogetherAgree()
{
    constexpr int kProcesses = 6;
    constexpr int kRounds = 100;
    const QTemporaryDir folder;
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < kProcesses; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(helperProgram());
        QVERIFY(processes.back()->waitForStarted());
    }

    for (int round = 0; round < kRounds; ++round) {
        const QString path = folder.filePath(QStringLiteral("%1/key").arg(round));
        for (const auto &process : processes) {
            process->write("key " + path.toUtf8() + '\n');
            process->waitForBytesWritten();
        }
        for (const auto &process : processes) {
            while (!process->canReadLine()) {
                QVERIFY(process->waitForReadyRead());
            }
            const QByteArray key = process->readLine().trimmed();
            QCOMPARE(key.size(), 2 * TXDataCryptKey::kBytes);
            QCOMPARE(key, contents(path).toHex());
        }
        QCOMPARE(QDir(QFileInfo(path).path()).count(), 3U);
    }

    for (const auto &process : processes) {
        process->closeWriteChannel();
        QVERIFY(process->waitForFinished());
    }
}

void TestTXDataCryptKey::threadsThatStartTogetherAgree()
{
    constexpr int kThreads = 8;
    constexpr int kRounds = 50;
    const QTemporaryDir folder;
    for (int round = 0; round < kRounds; ++round) {
        TXDataCryptKey shared(folder.filePath(QString::number(round)));
        std::array<QByteArray, kThreads> keys;
        std::vector<std::unique_ptr<QThread>> threads;
        threads.reserve(kThreads);
        for (QByteArray &key : keys) {
            threads.emplace_back(QThread::create([&shared, &key] {
                if (const unsigned char *bytes = shared.bytes(nullptr)) {
                    key = QByteArray(reinterpret_cast<const char *>(bytes), TXDataCryptKey::kBytes);
                }
            }));
        }
        for (const auto &thread : threads) {
            thread->start();
        }
        for (const auto &thread : threads) {
            QVERIFY(thread->wait());
        }
        for (const QByteArray &key : keys) {
            QCOMPARE(key, contents(folder.filePath(QString::number(round))));
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXDataCryptKey>(argc, argv);
}

#include "tst_TXDataCryptKey.moc"
