#include "LargestFolders.h"
#include "TestBase.h"

#include <QRandomGenerator>

#include <algorithm>
#include <thread>
#include <vector>

class TestLargestFolders : public TestBase
{
    Q_OBJECT

private slots:
    void largestComesFirst();
    void equalOnesKeepTheirOrder();
    void keptAreTheLargestOfMany();
    void namesAreLeftOut();
    void clearingStartsAgain();
    void threadsMayAddTogether();

private:
    static FolderReport report(const QString &path, qint64 bytes)
    {
        FolderReport made;
        made.path = path;
        made.totalBytes = bytes;
        return made;
    }
    static QStringList paths(const LargestFolders &folders)
    {
        QStringList result;
        const auto list = folders.list();
        for (const FolderReport &report : list) {
            result.append(report.path);
        }
        return result;
    }
};

void TestLargestFolders::largestComesFirst()
{
    LargestFolders folders;
    folders.add(report("middle", 20));
    folders.add(report("small", 10));
    folders.add(report("large", 30));

    QCOMPARE(paths(folders), QStringList({"large", "middle", "small"}));
}

void TestLargestFolders::equalOnesKeepTheirOrder()
{
    LargestFolders folders;
    for (int i = 0; i < LargestFolders::kKept + 3; ++i) {
        folders.add(report(QString::number(i), 5));
    }

    QCOMPARE(folders.list().size(), LargestFolders::kKept);
    QCOMPARE(paths(folders).first(), "0");
    QCOMPARE(paths(folders).last(), QString::number(LargestFolders::kKept - 1));
}

void TestLargestFolders::keptAreTheLargestOfMany()
{
    QRandomGenerator random(7);
    LargestFolders folders;
    QList<qint64> sizes;
    for (int i = 0; i < 5000; ++i) {
        sizes.append(random.bounded(1000000));
        folders.add(report(QString::number(i), sizes.last()));
    }
    std::sort(sizes.begin(), sizes.end(), std::greater<>());

    QList<qint64> kept;
    const auto list = folders.list();
    for (const FolderReport &report : list) {
        kept.append(report.totalBytes);
    }
    QCOMPARE(kept, sizes.first(LargestFolders::kKept));
}

void TestLargestFolders::namesAreLeftOut()
{
    FolderReport full = report("full", 1);
    full.folders = {"a", "b"};
    full.addFinding(FolderFinding::EmptyFolder);
    LargestFolders folders;

    folders.add(full);

    QVERIFY(folders.list().first().folders.isEmpty());
    QVERIFY(folders.list().first().findings.isEmpty());
}

void TestLargestFolders::clearingStartsAgain()
{
    LargestFolders folders;
    folders.add(report("old", 1));

    folders.clear();

    QVERIFY(folders.list().isEmpty());
}

void TestLargestFolders::threadsMayAddTogether()
{
    LargestFolders folders;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&folders, i] {
            for (int k = 0; k < 2000; ++k) {
                folders.add(report("x", k * 4 + i));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }

    QCOMPARE(folders.list().size(), LargestFolders::kKept);
    QCOMPARE(folders.list().constFirst().totalBytes, 7999);
    QCOMPARE(folders.list().constLast().totalBytes, 8000 - LargestFolders::kKept);
}

int main(int argc, char **argv)
{
    return runTest<TestLargestFolders>(argc, argv);
}

#include "tst_LargestFolders.moc"
