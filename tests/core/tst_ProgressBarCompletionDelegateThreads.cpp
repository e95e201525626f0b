#include "ProgressBarCompletionDelegate.h"

#include "TXError.h"
#include "TXProgressBar.h"
#include "TestBase.h"

#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>

#include <atomic>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <vector>

// Eight workers that report without a pause while the GUI thread changes all that they report to.

namespace {

constexpr int kWorkers = 8;
constexpr int kRounds = 300;

/// What a host has between its workers and a delegate that it exchanges: nobody is in a call while
/// the delegate is another.
class Post
{
public:
    /// Hands the delegate to the use, if there is one.
    template<class Use>
    void with(Use use)
    {
        std::unique_lock entrance(door);
        const std::shared_lock lock(guard);
        entrance.unlock();
        if (receiver) {
            use(*receiver);
        }
    }

    /// Waits for the calls that go on, and deletes the former delegate.
    void exchange(std::unique_ptr<ProgressBarCompletionDelegate> next)
    {
        const std::lock_guard entrance(door);
        const std::unique_lock lock(guard);
        receiver = std::move(next);
    }

private:
    /// Held by who waits for the guard, so that workers who come without a pause let the other in.
    std::mutex door;
    std::shared_mutex guard;
    std::unique_ptr<ProgressBarCompletionDelegate> receiver;
};

/// Workers that report to what the post holds, until they are destroyed.
class Workers
{
public:
    explicit Workers(Post &post)
    {
        for (int number = 0; number < kWorkers; ++number) {
            threads.emplace_back([this, &post, number] { work(post, number); });
        }
    }

    ~Workers()
    {
        isEnding = true;
        for (std::thread &thread : threads) {
            thread.join();
        }
    }

    Q_DISABLE_COPY_MOVE(Workers)

    /// Returns after so many more turns of workers that had somebody to report to.
    void waitForReports(qint64 more) const
    {
        const qint64 enough = count + more;
        while (count < enough) {
            std::this_thread::yield();
        }
    }

private:
    void work(Post &post, int number)
    {
        const QList<QString> path = {QString::number(number)};
        for (int turn = 0; !isEnding; ++turn) {
            post.with([&](ICompletionDelegate &delegate) {
                const auto progress = float(turn % 99);
                delegate.onProgressionUpdated(path, progress);
                delegate.onMessageUpdated(
                    path, TXStringI18n("Worker %1 at %1").arg(QString::number(number)).arg("x"));
                delegate.onLogAppended(path, TXError());
                delegate.onMetadataEdited(path, QStringLiteral("turn"), turn);
                ++count;
            });
            std::this_thread::yield();
        }
    }

    std::vector<std::thread> threads;
    std::atomic<bool> isEnding = false;
    std::atomic<qint64> count = 0;
};

void look(QObject &delegate)
{
    QVERIFY(QMetaObject::invokeMethod(&delegate, "updateProgressBar", Qt::DirectConnection));
}

} // namespace

class TestProgressBarCompletionDelegateThreads : public TestBase
{
    Q_OBJECT

private slots:
    void reportsNeverTearWhatIsShown();
    void rangeChangesWhileWorkersReport();
    void barsComeAndGoWhileWorkersReport();
    void delegatesComeAndGoWhileWorkersReport();
    void timerEndsWhileWorkersReport();
    void lastReportsOfJoinedWorkersAreShown();
};

void TestProgressBarCompletionDelegateThreads::reportsNeverTearWhatIsShown()
{
    TXProgressBar bar;
    ProgressBarCompletionDelegate delegate(&bar);
    const QRegularExpression whole(QStringLiteral("^Worker [0-7] at [0-7]$"));
    std::atomic<bool> isEnding = false;
    std::vector<std::thread> threads;
    threads.reserve(kWorkers);
    for (int number = 0; number < kWorkers; ++number) {
        threads.emplace_back([&, number] {
            const QString text = QStringLiteral("Worker %1 at %1").arg(number);
            while (!isEnding) {
                delegate.onProgressionUpdated({}, float(number));
                delegate.onMessageUpdated({}, TXStringI18n::fromString(text));
            }
        });
    }
    QList<QString> torn;
    for (int seen = 0; seen < kRounds;) {
        look(delegate);
        const QString text = bar.findChild<QLabel *>()->text();
        seen += text.isEmpty() ? 0 : 1; // none has come yet
        if (!text.isEmpty() && !whole.match(text).hasMatch()) {
            torn.append(text);
        }
    }
    isEnding = true;
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(torn, QList<QString>());
    QVERIFY(bar.value() < kWorkers);
}

void TestProgressBarCompletionDelegateThreads::rangeChangesWhileWorkersReport()
{
    TXProgressBar bar;
    auto owned = std::make_unique<ProgressBarCompletionDelegate>(&bar);
    ProgressBarCompletionDelegate &delegate = *owned;
    const QSignalSpy finished(&delegate, SIGNAL(taskFinished()));
    Post post;
    post.exchange(std::move(owned));
    {
        const Workers workers(post);
        for (int round = 0; round < kRounds || finished.isEmpty(); ++round) {
            bar.setRange(0, round % 99); // which is the end of some report
            workers.waitForReports(1);
            look(delegate);
        }
    }
    bar.setRange(0, 1000);
    look(delegate);
    QVERIFY(bar.isVisible());
    QVERIFY(bar.value() < 99);
}

void TestProgressBarCompletionDelegateThreads::barsComeAndGoWhileWorkersReport()
{
    Post post;
    const Workers workers(post);
    for (int round = 0; round < kRounds; ++round) {
        auto bar = std::make_unique<TXProgressBar>(nullptr);
        auto owned = std::make_unique<ProgressBarCompletionDelegate>(bar.get());
        ProgressBarCompletionDelegate &delegate = *owned;
        post.exchange(std::move(owned));
        workers.waitForReports(1);
        look(delegate);
        QVERIFY(bar->isVisible());
        bar.reset();
        workers.waitForReports(1);
        look(delegate);
        post.exchange(nullptr);
    }
}

void TestProgressBarCompletionDelegateThreads::delegatesComeAndGoWhileWorkersReport()
{
    TXProgressBar bar;
    Post post;
    const Workers workers(post);
    for (int round = 0; round < kRounds; ++round) {
        auto owned = std::make_unique<ProgressBarCompletionDelegate>(&bar);
        ProgressBarCompletionDelegate &delegate = *owned;
        QVERIFY(bar.isHidden());
        post.exchange(std::move(owned));
        workers.waitForReports(1);
        look(delegate);
        QVERIFY(bar.isVisible());
    }
    post.exchange(nullptr);
    QVERIFY(bar.value() < 99);
}

void TestProgressBarCompletionDelegateThreads::timerEndsWhileWorkersReport()
{
    TXProgressBar bar;
    auto owned = std::make_unique<ProgressBarCompletionDelegate>(&bar);
    ProgressBarCompletionDelegate &delegate = *owned;
    Post post;
    post.exchange(std::move(owned));
    const Workers workers(post);
    QTRY_VERIFY(bar.isVisible()); // by the timer
    delegate.stopTimer();
    const int value = bar.value();
    workers.waitForReports(kRounds);
    QCoreApplication::processEvents();
    QCOMPARE(bar.value(), value);
    delegate.stopTimer();
}

void TestProgressBarCompletionDelegateThreads::lastReportsOfJoinedWorkersAreShown()
{
    TXProgressBar bar;
    ProgressBarCompletionDelegate delegate(&bar);
    const QSignalSpy finished(&delegate, SIGNAL(taskFinished()));
    std::vector<std::thread> threads;
    threads.reserve(kWorkers);
    for (int number = 0; number < kWorkers; ++number) {
        threads.emplace_back([&delegate] {
            for (int turn = 0; turn < kRounds; ++turn) {
                delegate.onProgressionUpdated({}, float(turn % 99));
            }
            delegate.onProgressionUpdated({}, 77.25F);
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    look(delegate);
    QVERIFY(bar.isVisible());
    QVERIFY(bar.value() < 99);
    std::thread([&delegate] { delegate.onProgressionUpdated({}, 100.0F); }).join();
    look(delegate);
    QVERIFY(bar.isHidden());
    QCOMPARE(finished.count(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestProgressBarCompletionDelegateThreads>(argc, argv);
}

#include "tst_ProgressBarCompletionDelegateThreads.moc"
