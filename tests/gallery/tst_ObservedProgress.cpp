#include "ObservedProgress.h"
#include "TestBase.h"

#include "TXProgressBar.h"
#include "TXStringI18n.h"

#include <QLabel>

#include <memory>
#include <thread>
#include <vector>

/// What goes through to the bar, and what is counted.
class TestObservedProgress : public TestBase
{
    Q_OBJECT

private slots:
    void reportsOfAllThreadsAreCounted();
    void reportsGoOnToTheBar();
    void barIsPaintedFarLessOftenThanThreadsReport();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<TXProgressBar> bar;
    std::unique_ptr<ObservedProgress> progress;
};

void TestObservedProgress::prepare()
{
    bar = std::make_unique<TXProgressBar>(nullptr);
    bar->resize(500, 24);
    progress = std::make_unique<ObservedProgress>(bar.get());
}

void TestObservedProgress::finish()
{
    progress.reset();
    bar.reset();
}

void TestObservedProgress::reportsOfAllThreadsAreCounted()
{
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([this] {
            for (int k = 0; k < 1000; ++k) {
                progress->onProgressionUpdated({}, 50);
                progress->onMessageUpdated({}, TXStringI18n::fromString("x"));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }

    QCOMPARE(progress->reports(), 16000);
    progress->startCounting();
    QCOMPARE(progress->reports(), 0);
}

void TestObservedProgress::reportsGoOnToTheBar()
{
    progress->onMessageUpdated({}, TXStringI18n::fromString("ink.icc"));
    progress->onProgressionUpdated({}, 42.5F);
    QTRY_VERIFY(!bar->isHidden());
    QCOMPARE(bar->value(), 42);
    QCOMPARE(bar->findChild<QLabel *>()->text(), "ink.icc");

    progress->onProgressionUpdated({}, 100);
    QTRY_VERIFY(bar->isHidden());
}

void TestObservedProgress::barIsPaintedFarLessOftenThanThreadsReport()
{
    progress->onProgressionUpdated({}, 1);
    QTRY_VERIFY(progress->paintings() > 0);
    for (int i = 0; i < 10000; ++i) {
        progress->onProgressionUpdated({}, float(i % 90));
    }
    progress->onProgressionUpdated({}, 91);
    QTRY_COMPARE(bar->value(), 91);

    QVERIFY(progress->reports() > 10000);
    QVERIFY(progress->paintings() < 1000);
    progress->startCounting();
    QCOMPARE(progress->paintings(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestObservedProgress>(argc, argv);
}

#include "tst_ObservedProgress.moc"
