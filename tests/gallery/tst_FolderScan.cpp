#include "FolderScan.h"
#include "TestBase.h"

#include <QMutex>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

class TestFolderScan : public TestBase
{
    Q_OBJECT

private slots:
    void everyFolderIsReportedOnce();
    void countsAreTheSumsOfTheReports();
    void severalFoldersAreOneRun();
    void fileSystemsRootHasALabel();
    void missingFolderIsReportedAndEndsTheRun();
    void folderThatVanishesOnTheWayIsAnError();
    void linkThatLeadsBackUpEndsTheRun();
    void nothingToReadIsRefused();
    void secondStartIsRefusedWhileRunning();
    void canBeStartedAgain();
    void cancelLeavesTheRestOut();
    void destructionWaitsForTheThreads();

protected:
    void prepare() override;
    void finish() override;

private:
    /// Called on the threads of the scan.
    void keep(const FolderReport &report);
    FolderScan::Sink collect();
    void run(FolderScan &scan, const QStringList &paths);
    QStringList sortedLabels();

    std::unique_ptr<QTemporaryDir> folder;
    QMutex mutex;
    QList<FolderReport> reports; // guarded by mutex
};

void TestFolderScan::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkpath("tree/a/deep"));
    QVERIFY(QDir(folder->path()).mkpath("tree/b"));
    QFile file(folder->filePath("tree/a/deep/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("12345");
    QVERIFY(QFile::link(folder->filePath("gone"), folder->filePath("tree/a/link")));
    reports.clear();
}

void TestFolderScan::finish()
{
    folder.reset();
}

void TestFolderScan::keep(const FolderReport &report)
{
    const QMutexLocker locker(&mutex);
    reports.append(report);
}

FolderScan::Sink TestFolderScan::collect()
{
    return [this](const FolderReport &report) {
        keep(report);
    };
}

void TestFolderScan::run(FolderScan &scan, const QStringList &paths)
{
    QSignalSpy finished(&scan, SIGNAL(finished(bool)));
    QVERIFY(scan.start(paths));
    QVERIFY(scan.isRunning());
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toBool(), true);
    QVERIFY(!scan.isRunning());
}

QStringList TestFolderScan::sortedLabels()
{
    const QMutexLocker locker(&mutex);
    QStringList labels;
    for (const FolderReport &report : qAsConst(reports)) {
        labels.append(report.label);
    }
    labels.sort();
    return labels;
}

void TestFolderScan::everyFolderIsReportedOnce()
{
    FolderScan scan(collect());

    run(scan, {folder->filePath("tree")});

    QCOMPARE(sortedLabels(), QStringList({"tree", "tree/a", "tree/a/deep", "tree/b"}));
}

void TestFolderScan::countsAreTheSumsOfTheReports()
{
    FolderScan scan(collect());

    run(scan, {folder->filePath("tree"), folder->filePath("nowhere")});

    const FolderScanCounts counts = scan.counts();
    QCOMPARE(counts.folders, 5);
    QCOMPARE(counts.files, 2);
    QCOMPARE(counts.bytes, 5);
    QCOMPARE(counts.warnings, 1);
    QCOMPARE(counts.errors, 1);
}

void TestFolderScan::severalFoldersAreOneRun()
{
    FolderScan scan(collect());

    run(scan, {folder->filePath("tree/a/deep/"), folder->filePath("tree/../tree/b")});

    QCOMPARE(sortedLabels(), QStringList({"b", "deep"}));
}

void TestFolderScan::fileSystemsRootHasALabel()
{
    FolderScan *running = nullptr;
    FolderScan scan([this, &running](const FolderReport &report) {
        running->cancel();
        keep(report);
    });
    running = &scan;
    QSignalSpy finished(&scan, SIGNAL(finished(bool)));

    QVERIFY(scan.start({QDir::rootPath()}));

    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(sortedLabels(), QStringList(QDir::rootPath()));
}

void TestFolderScan::missingFolderIsReportedAndEndsTheRun()
{
    FolderScan scan(collect());

    run(scan, {folder->filePath("nowhere")});

    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().findings.first().kind, FolderFinding::MissingFolder);
}

void TestFolderScan::folderThatVanishesOnTheWayIsAnError()
{
    const QString vanishing = folder->filePath("tree/b");
    FolderScan scan([this, vanishing](const FolderReport &report) {
        if (report.label == "tree") {
            // Found by now, and not yet read.
            QDir(vanishing).removeRecursively();
        }
        keep(report);
    });

    run(scan, {folder->filePath("tree")});

    QCOMPARE(scan.counts().errors, 1);
    QCOMPARE(sortedLabels().last(), "tree/b");
}

void TestFolderScan::linkThatLeadsBackUpEndsTheRun()
{
    QVERIFY(QFile::link(folder->path(), folder->filePath("tree/b/up")));
    FolderScan scan(collect());

    run(scan, {folder->filePath("tree")});

    QCOMPARE(scan.counts().folders, 4);
}

void TestFolderScan::nothingToReadIsRefused()
{
    FolderScan scan(collect());

    QVERIFY(!scan.start({}));

    QVERIFY(!scan.isRunning());
}

void TestFolderScan::secondStartIsRefusedWhileRunning()
{
    FolderScan scan(collect());
    QSignalSpy finished(&scan, SIGNAL(finished(bool)));
    QVERIFY(scan.start({folder->filePath("tree")}));

    QVERIFY(!scan.start({folder->filePath("tree")}));

    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(scan.counts().folders, 4);
}

void TestFolderScan::canBeStartedAgain()
{
    FolderScan scan(collect());
    run(scan, {folder->filePath("tree")});

    run(scan, {folder->filePath("tree/b")});

    QCOMPARE(scan.counts().folders, 1);
    QCOMPARE(scan.counts().files, 0);
    QCOMPARE(reports.size(), 5);
}

void TestFolderScan::cancelLeavesTheRestOut()
{
    QSemaphore entered;
    QSemaphore mayGoOn;
    FolderScan scan([&](const FolderReport &) {
        entered.release();
        mayGoOn.acquire();
    });
    QSignalSpy finished(&scan, SIGNAL(finished(bool)));
    QVERIFY(scan.start({folder->filePath("tree")}));
    entered.acquire();

    scan.cancel();
    mayGoOn.release();

    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toBool(), false);
    QCOMPARE(scan.counts().folders, 1);
}

void TestFolderScan::destructionWaitsForTheThreads()
{
    QSemaphore entered;
    std::atomic_bool isInside = false;
    auto scan = std::make_unique<FolderScan>([&](const FolderReport &) {
        isInside = true;
        entered.release();
        QDir(folder->path()).entryList();
        isInside = false;
    });
    QVERIFY(scan->start({folder->path()}));
    entered.acquire();

    scan.reset();

    QVERIFY(!isInside);
}

int main(int argc, char **argv)
{
    return runTest<TestFolderScan>(argc, argv);
}

#include "tst_FolderScan.moc"
