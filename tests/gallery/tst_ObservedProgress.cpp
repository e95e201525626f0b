#include "ObservedProgress.h"
#include "PartProgress.h"
#include "TestBase.h"

#include "TXProgressBar.h"
#include "TXStringI18n.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>

#include <memory>
#include <thread>
#include <vector>

/// What goes through to the bar, and what is counted; with PartProgress in front of it.
class TestObservedProgress : public TestBase
{
    Q_OBJECT

private slots:
    void hiddenBarKeepsItsRoom();
    void reportsOfAllThreadsAreCounted();
    void aTaskShowsTheBarUntilItEnds();
    void barIsPaintedFarLessOftenThanThreadsReport();
    void messagesAreNoMarkup();
    void finishIsToldAgainAndAgainUntilTheTimerStops();
    void stoppedTimerShowsNothingNew();
    void renewedDelegateStartsAgain();
    void delegateIsNotRenewedDuringATask();
    void partsMakeUpTheWhole_data();
    void partsMakeUpTheWhole();
    void partMayOutliveTheWhole();
    void partLetsTheProgramBreathe();

protected:
    void prepare() override;
    void finish() override;

private:
    QLabel *label() const { return bar->findChild<QLabel *>(); }

    std::unique_ptr<QWidget> window;
    TXProgressBar *bar = nullptr;
    std::unique_ptr<ObservedProgress> progress;
};

void TestObservedProgress::prepare()
{
    window = std::make_unique<QWidget>();
    window->resize(500, 40);
    bar = new TXProgressBar(window.get());
    bar->setGeometry(0, 0, 500, 24);
    progress = std::make_unique<ObservedProgress>(bar);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestObservedProgress::finish()
{
    progress.reset();
    window.reset();
}

void TestObservedProgress::hiddenBarKeepsItsRoom()
{
    QVERIFY(bar->isHidden());
    QVERIFY(bar->sizePolicy().retainSizeWhenHidden());
}

void TestObservedProgress::reportsOfAllThreadsAreCounted()
{
    progress->startTask();
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
    progress->startTask();
    QCOMPARE(progress->reports(), 0);
}

void TestObservedProgress::aTaskShowsTheBarUntilItEnds()
{
    progress->startTask();
    QVERIFY(progress->isTaskRunning());
    progress->onMessageUpdated({}, TXStringI18n::fromString("ink.icc"));
    progress->onProgressionUpdated({}, 42.5F);
    QTRY_VERIFY(!bar->isHidden());
    QCOMPARE(bar->value(), 42);
    QCOMPARE(label()->text(), "ink.icc");

    progress->onProgressionUpdated({}, 100);
    progress->endTask();
    QTRY_VERIFY(bar->isHidden());
    QVERIFY(!progress->isTaskRunning());
}

void TestObservedProgress::barIsPaintedFarLessOftenThanThreadsReport()
{
    progress->startTask();
    progress->onProgressionUpdated({}, 1);
    QTRY_VERIFY(progress->paintings() > 0);
    for (int i = 0; i < 10000; ++i) {
        progress->onProgressionUpdated({}, float(i % 90));
    }
    progress->onProgressionUpdated({}, 91);
    QTRY_COMPARE(bar->value(), 91);

    QVERIFY(progress->reports() > 10000);
    QVERIFY(progress->paintings() < 1000);
    // Not between tasks.
    progress->endTask();
    const qint64 before = progress->paintings();
    bar->findChild<QProgressBar *>()->repaint();
    QCOMPARE(progress->paintings(), before);
}

void TestObservedProgress::messagesAreNoMarkup()
{
    QCOMPARE(label()->textFormat(), Qt::PlainText);
    const int width = label()->width();
    progress->onMessageUpdated({}, TXStringI18n::fromString("<h1>" + QString(500, 'x')));
    progress->onProgressionUpdated({}, 10);

    QTRY_VERIFY(!bar->isHidden());

    QVERIFY(label()->text().startsWith("<h1>"));
    QVERIFY(label()->width() <= qMax(width, 230));
}

void TestObservedProgress::finishIsToldAgainAndAgainUntilTheTimerStops()
{
    QTRY_VERIFY(progress->finishes() >= 3);

    progress->stopTimer();
    const qint64 before = progress->finishes();

    QVERIFY(!progress->isTimerRunning());
    // Long enough for two looks, if there were any.
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(clock.elapsed() > 450);
    QCOMPARE(progress->finishes(), before);
    progress->stopTimer();
}

void TestObservedProgress::stoppedTimerShowsNothingNew()
{
    progress->stopTimer();
    progress->onProgressionUpdated({}, 20);
    QCoreApplication::processEvents();

    QVERIFY(bar->isHidden());
    QCOMPARE(progress->reports(), 1);
}

void TestObservedProgress::renewedDelegateStartsAgain()
{
    QTRY_VERIFY(progress->finishes() >= 1);
    progress->stopTimer();
    QSignalSpy renewed(progress.get(), SIGNAL(renewed()));

    progress->renew();

    QCOMPARE(renewed.count(), 1);
    QCOMPARE(progress->finishes(), 0);
    QVERIFY(progress->isTimerRunning());
    QTRY_VERIFY(progress->finishes() >= 1);
}

void TestObservedProgress::delegateIsNotRenewedDuringATask()
{
    progress->startTask();
    progress->stopTimer();

    progress->renew();

    QVERIFY(!progress->isTimerRunning());
}

void TestObservedProgress::partsMakeUpTheWhole_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<float>("percent");
    QTest::addColumn<int>("expected");
    QTest::newRow("start") << 0 << 0.0F << 0;
    QTest::newRow("half of the first") << 0 << 50.0F << 12;
    QTest::newRow("end of the first") << 0 << 100.0F << 25;
    QTest::newRow("half of the last") << 3 << 50.0F << 87;
}

void TestObservedProgress::partsMakeUpTheWhole()
{
    QFETCH(int, part);
    QFETCH(float, percent);
    PartProgress shown(progress.get(), part, 4);

    shown.onMessageUpdated({}, TXStringI18n::fromString("Page 2 of 9"));
    shown.onProgressionUpdated({}, percent);

    QTRY_VERIFY(!bar->isHidden());
    QTEST(bar->value(), "expected");
    QCOMPARE(label()->text(), QStringLiteral("Report %1 of 4: Page 2 of 9").arg(part + 1));
    // Only the end of the last part hides the bar.
    PartProgress last(progress.get(), 3, 4);
    last.onProgressionUpdated({}, 100);
    QTRY_VERIFY(bar->isHidden());
}

void TestObservedProgress::partMayOutliveTheWhole()
{
    PartProgress part(progress.get(), 0, 2);
    progress.reset();

    part.onProgressionUpdated({}, 10);
    part.onMessageUpdated({}, TXStringI18n::fromString("x"));

    QVERIFY(bar->isHidden());
}

void TestObservedProgress::partLetsTheProgramBreathe()
{
    PartProgress part(progress.get(), 0, 2);
    bool isHandled = false;
    QMetaObject::invokeMethod(
        this, [&isHandled] { isHandled = true; }, Qt::QueuedConnection);

    part.onProgressionUpdated({}, 10);

    QVERIFY(isHandled);
}

int main(int argc, char **argv)
{
    return runTest<TestObservedProgress>(argc, argv);
}

#include "tst_ObservedProgress.moc"
