#include "FileDigests.h"
#include "TestBase.h"

#include "ICompletionDelegate.h"
#include "TXStringI18n.h"

#include <QDir>
#include <QFile>
#include <QMutex>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <memory>

#include <sys/stat.h>

namespace {

/// Keeps what is reported, from any thread.
class ReportKeeper : public ICompletionDelegate
{
public:
    void onProgressionUpdated(QList<QString>, float value) override
    {
        const QMutexLocker locker(&mutex);
        values.append(value);
    }
    void onMessageUpdated(QList<QString>, const TXStringI18n &message) override
    {
        std::function<void(const QString &)> call;
        const QString text = message.toString();
        {
            const QMutexLocker locker(&mutex);
            messages.append(text);
            call = onMessage;
        }
        if (call) {
            call(text);
        }
    }
    void onLogAppended(QList<QString>, const TXError &) override { }
    void onMetadataEdited(QList<QString>, QString, QVariant) override { }

    QMutex mutex;
    QList<float> values; // guarded by mutex
    QStringList messages; // guarded by mutex
    std::function<void(const QString &)> onMessage;
};

} // namespace

class TestFileDigests : public TestBase
{
    Q_OBJECT

private slots:
    void filesAreReadOnce_data();
    void filesAreReadOnce();
    void progressIsBelowTheEndUntilTheEnd_data();
    void progressIsBelowTheEndUntilTheEnd();
    void messagesNameTheFiles();
    void longNamesAreCut();
    void emptyFilesAreNoCopies();
    void linksAreNotFollowed();
    void nothingThereEndsTheRun();
    void fileThatVanishesCannotBeRead();
    void pipeInTheFilesPlaceIsNotWaitedFor();
    void fileThatGrowsIsReadAsItWasFound();
    void cancelEndsTheRun();
    void secondStartIsRefusedWhileRunning();
    void canBeStartedAgain();
    void destructionWaitsForTheThreads();

protected:
    void prepare() override;
    void finish() override;

private:
    void write(const QString &name, const QByteArray &content);
    void run(int threads, bool isComplete = true);
    /// Lets the first file's message change the other files, as only one thread reads.
    void atFirstFile(const std::function<void(const QString &other)> &change);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<ReportKeeper> keeper;
    std::unique_ptr<FileDigests> digests;
};

void TestFileDigests::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    keeper = std::make_unique<ReportKeeper>();
    digests = std::make_unique<FileDigests>(keeper.get());
}

void TestFileDigests::finish()
{
    digests.reset();
    keeper.reset();
    folder.reset();
}

void TestFileDigests::write(const QString &name, const QByteArray &content)
{
    const QString path = folder->filePath(name);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void TestFileDigests::run(int threads, bool isComplete)
{
    QSignalSpy finished(digests.get(), SIGNAL(finished(bool)));
    QVERIFY(digests->start({folder->path()}, threads));
    QVERIFY(digests->isRunning());
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toBool(), isComplete);
    QVERIFY(!digests->isRunning());
}

void TestFileDigests::atFirstFile(const std::function<void(const QString &)> &change)
{
    auto isDue = std::make_shared<bool>(true);
    keeper->onMessage = [this, isDue, change](const QString &text) {
        if (!*isDue || !text.startsWith("Reading ")) {
            return;
        }
        *isDue = false;
        const QString name = text == "Reading a" ? "b" : "a";
        change(folder->filePath(name));
    };
}

void TestFileDigests::filesAreReadOnce_data()
{
    QTest::addColumn<int>("threads");
    for (const int threads : {-3, 1, 2, 8, 100}) {
        QTest::addRow("%d threads", threads) << threads;
    }
}

void TestFileDigests::filesAreReadOnce()
{
    QFETCH(int, threads);
    for (qsizetype i = 0; i < 60; ++i) {
        write(QStringLiteral("deep/%1/file%2").arg(i % 3).arg(i),
              QByteArray(i * 5000, char('a' + i)));
    }
    write("deep/.hidden", QByteArray(5000, char('a' + 1)));

    run(threads);

    const FileDigestSums sums = digests->sums();
    QCOMPARE(sums.files, 61);
    QCOMPARE(sums.bytes, qint64(59 * 60 / 2 + 1) * 5000);
    QCOMPARE(sums.copies, 1);
    QCOMPARE(sums.unreadable, 0);
}

void TestFileDigests::progressIsBelowTheEndUntilTheEnd_data()
{
    filesAreReadOnce_data();
}

void TestFileDigests::progressIsBelowTheEndUntilTheEnd()
{
    QFETCH(int, threads);
    for (int i = 0; i < 20; ++i) {
        write(QStringLiteral("file%1").arg(i), QByteArray(200000, char('a' + i)));
    }

    run(threads);

    QCOMPARE(keeper->values.takeFirst(), 0.0F);
    QCOMPARE(keeper->values.takeLast(), 100.0F);
    // At least a report a block of each file.
    QVERIFY(keeper->values.size() >= 80);
    QVERIFY(std::all_of(keeper->values.cbegin(), keeper->values.cend(),
                        [](float value) { return value > 0 && value < 100; }));
}

void TestFileDigests::messagesNameTheFiles()
{
    write("sub/cyan.icc", "1");
    write("sub/magenta.icc", "22");

    run(1);

    QCOMPARE(keeper->messages.takeFirst(), "Looking for files");
    keeper->messages.sort();
    QCOMPARE(keeper->messages, QStringList({"Reading cyan.icc", "Reading magenta.icc"}));
}

void TestFileDigests::longNamesAreCut()
{
    write(QString(200, 'x'), "1");

    run(1);

    QCOMPARE(keeper->messages.last(), "Reading " + QString(24, 'x'));
}

void TestFileDigests::emptyFilesAreNoCopies()
{
    write("a", {});
    write("b", {});

    run(2);

    QCOMPARE(digests->sums().files, 2);
    QCOMPARE(digests->sums().copies, 0);
    QCOMPARE(keeper->values.last(), 100.0F);
}

void TestFileDigests::linksAreNotFollowed()
{
    write("a/file", "1");
    QVERIFY(QFile::link(folder->path(), folder->filePath("a/up")));
    QVERIFY(QFile::link(folder->filePath("a/file"), folder->filePath("a/same")));
    QVERIFY(QFile::link(folder->filePath("gone"), folder->filePath("a/broken")));

    run(2);

    QCOMPARE(digests->sums().files, 1);
}

void TestFileDigests::nothingThereEndsTheRun()
{
    QSignalSpy finished(digests.get(), SIGNAL(finished(bool)));
    QVERIFY(!digests->start({}, 2));

    QVERIFY(digests->start({folder->filePath("nowhere")}, 2));

    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(keeper->values, QList<float>({0, 100}));
    QCOMPARE(digests->sums().files, 0);
}

void TestFileDigests::fileThatVanishesCannotBeRead()
{
    write("a", "11111");
    write("b", "22222");
    atFirstFile([](const QString &other) { QFile::remove(other); });

    run(1);

    QCOMPARE(digests->sums().files, 1);
    QCOMPARE(digests->sums().unreadable, 1);
    QCOMPARE(digests->sums().bytes, 5);
    QCOMPARE(keeper->values.last(), 100.0F);
}

/// Opening a pipe waits for somebody who writes.
void TestFileDigests::pipeInTheFilesPlaceIsNotWaitedFor()
{
    write("a", "11111");
    write("b", "22222");
    atFirstFile([](const QString &other) {
        QFile::remove(other);
        mkfifo(QFile::encodeName(other).constData(), 0600);
    });

    run(1);

    QCOMPARE(digests->sums().files, 1);
    QCOMPARE(digests->sums().unreadable, 1);
}

void TestFileDigests::fileThatGrowsIsReadAsItWasFound()
{
    write("a", "11111");
    write("b", "22222");
    atFirstFile([](const QString &other) {
        QFile file(other);
        QVERIFY(file.open(QIODevice::Append));
        file.write(QByteArray(300000, '3'));
    });

    run(1);

    QCOMPARE(digests->sums().files, 2);
    QCOMPARE(digests->sums().bytes, 10);
}

void TestFileDigests::cancelEndsTheRun()
{
    for (int i = 0; i < 10; ++i) {
        write(QStringLiteral("file%1").arg(i), QByteArray(100000, char('a' + i)));
    }
    keeper->onMessage = [this](const QString &text) {
        if (text.startsWith("Reading ")) {
            digests->cancel();
        }
    };

    run(1, false);

    QCOMPARE(digests->sums().files, 0);
    // The task has ended for whoever shows it.
    QCOMPARE(keeper->values.last(), 100.0F);
}

void TestFileDigests::secondStartIsRefusedWhileRunning()
{
    write("a", "1");
    QSignalSpy finished(digests.get(), SIGNAL(finished(bool)));
    QVERIFY(digests->start({folder->path()}, 1));

    QVERIFY(!digests->start({folder->path()}, 1));

    QTRY_COMPARE(finished.count(), 1);
}

void TestFileDigests::canBeStartedAgain()
{
    write("a", "1");
    run(2);

    run(3);

    // From the start: nothing is a copy of what an earlier run has read.
    QCOMPARE(digests->sums().files, 1);
    QCOMPARE(digests->sums().bytes, 1);
    QCOMPARE(digests->sums().copies, 0);
}

void TestFileDigests::destructionWaitsForTheThreads()
{
    for (int i = 0; i < 50; ++i) {
        write(QStringLiteral("file%1").arg(i), QByteArray(100000, 'x'));
    }
    QSemaphore entered;
    std::atomic_int inside = 0;
    keeper->onMessage = [&](const QString &) {
        ++inside;
        entered.release();
        QDir(folder->path()).entryList();
        --inside;
    };
    QVERIFY(digests->start({folder->path()}, 4));
    entered.acquire(2);

    digests.reset();

    QCOMPARE(inside.load(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestFileDigests>(argc, argv);
}

#include "tst_FileDigests.moc"
