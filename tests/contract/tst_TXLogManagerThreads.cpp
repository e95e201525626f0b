#include "LogManagerHelpers.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <thread>
#include <vector>

using LogManagerTest::Item;
using LogManagerTest::plain;
using LogManagerTest::Protocol;

/// Many threads that write into one log.
class TestTXLogManagerThreads : public TestBase
{
    Q_OBJECT

private slots:
    void manyThreadsLoseNothingAndKeepTheirOrder();
    void threadsMayHangSubItemsUnderEachOthersEntries();
};

void TestTXLogManagerThreads::manyThreadsLoseNothingAndKeepTheirOrder()
{
    constexpr int kThreads = 8;
    constexpr int kEntries = 2000;
    TXLogManager manager;
    Protocol protocol(manager);

    std::vector<std::thread> writers;
    writers.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        writers.emplace_back([&manager, thread] {
            for (int i = 0; i < kEntries; ++i) {
                manager.append(1, plain(QStringLiteral("%1:%2").arg(thread).arg(i)));
            }
        });
    }
    QTRY_COMPARE(protocol.lines.size(), qsizetype(kThreads) * kEntries);
    for (std::thread &writer : writers) {
        writer.join();
    }

    QList<int> next(kThreads, 0);
    for (const QString &line : qAsConst(protocol.lines)) {
        const int thread = line.mid(1).section(u':', 0, 0).toInt();
        const int number = line.section(u':', 1).toInt();
        QCOMPARE(number, next[thread]++);
    }
    for (const QThread *thread : qAsConst(protocol.threads)) {
        QCOMPARE(thread, QThread::currentThread());
    }
}

void TestTXLogManagerThreads::threadsMayHangSubItemsUnderEachOthersEntries()
{
    constexpr int kThreads = 4;
    constexpr int kEntries = 500;
    TXLogManager manager;
    const Item shared = manager.append(1, plain(QStringLiteral("shared")));

    std::vector<std::thread> writers;
    writers.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        writers.emplace_back([&manager, &shared] {
            for (int i = 0; i < kEntries; ++i) {
                manager.append(2, plain(QString::number(i)), shared);
            }
        });
    }
    for (std::thread &writer : writers) {
        writer.join();
    }
    manager.flush();

    QCOMPARE(shared->children.size(), qsizetype(kThreads) * kEntries);
    for (int i = 0; i < shared->children.size(); ++i) {
        QCOMPARE(shared->children.at(i)->number(), qint64(i));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogManagerThreads>(argc, argv);
}

#include "tst_TXLogManagerThreads.moc"
