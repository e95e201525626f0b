#include "ProgressBarCompletionDelegate.h"

#include "TXProgressBar.h"
#include "TestBase.h"

#include <QLabel>
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTimer>

#include <memory>
#include <thread>

// What happens when timer, bar or delegate end, and what a slot on the end of a task may do.

namespace {

QTimer *timerOf(const QObject &delegate)
{
    return delegate.findChild<QTimer *>();
}

/// One look at the values, as the timer brings it about.
void look(QObject &delegate)
{
    QVERIFY(QMetaObject::invokeMethod(&delegate, "updateProgressBar", Qt::DirectConnection));
}

} // namespace

class TestProgressBarCompletionDelegateEnd : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void barMayGoFirst();
    void stopTimerIsForGood();
    void storedAfterStopAndNeverShown();
    void slotMayStopTheTimer();
    void slotMayDeleteTheDelegate_data();
    void slotMayDeleteTheDelegate();
    void slotMayDeleteTheDelegateWithinASecondLook();
    void slotMayDeleteTheDelegateLater();
    void slotMayDeleteTheBar();
    void slotMayReport();
    void lockIsHeldWhileTheEndIsTold();
    void lockIsFreeBetweenLooks();

private:
    void report(float progress) { delegate->onProgressionUpdated({}, progress); }

    std::unique_ptr<TXProgressBar> bar;
    std::unique_ptr<ProgressBarCompletionDelegate> delegate;
};

void TestProgressBarCompletionDelegateEnd::prepare()
{
    bar = std::make_unique<TXProgressBar>(nullptr);
    delegate = std::make_unique<ProgressBarCompletionDelegate>(bar.get());
}

void TestProgressBarCompletionDelegateEnd::finish()
{
    delegate.reset();
    bar.reset();
}

void TestProgressBarCompletionDelegateEnd::barMayGoFirst()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    report(5.0F);
    look(*delegate);
    bar.reset();
    look(*delegate);
    report(100.0F);
    look(*delegate);
    QCOMPARE(finished.count(), 0);
}

void TestProgressBarCompletionDelegateEnd::stopTimerIsForGood()
{
    const QPointer<QTimer> timer = timerOf(*delegate);
    delegate->stopTimer();
    QVERIFY(!timer);
    QVERIFY(delegate->children().isEmpty());
    delegate->stopTimer();
    QVERIFY(delegate->children().isEmpty());
}

void TestProgressBarCompletionDelegateEnd::storedAfterStopAndNeverShown()
{
    report(30.0F);
    look(*delegate);
    delegate->stopTimer();
    report(60.0F);
    delegate->onMessageUpdated({}, TXStringI18n("Late"));
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 30);
    QCOMPARE(bar->findChild<QLabel *>()->text(), QString());
    delegate.reset();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 30);
}

void TestProgressBarCompletionDelegateEnd::slotMayStopTheTimer()
{
    const QPointer<QTimer> timer = timerOf(*delegate);
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this,
            [this] { delegate->stopTimer(); });
    QTRY_VERIFY(!timer); // in the timer's own signal
    QCOMPARE(finished.count(), 1);
    report(5.0F);
}

void TestProgressBarCompletionDelegateEnd::slotMayDeleteTheDelegate_data()
{
    QTest::addColumn<bool>("byTimer");
    QTest::newRow("in the timer's signal") << true;
    QTest::newRow("in a call") << false;
}

void TestProgressBarCompletionDelegateEnd::slotMayDeleteTheDelegate()
{
    QFETCH(bool, byTimer);
    const QPointer<QObject> life = delegate.get();
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this,
            [this] { delegate.reset(); });
    if (!byTimer) {
        look(*life);
    }
    QTRY_VERIFY(!life);
    QVERIFY(bar->isHidden());
}

void TestProgressBarCompletionDelegateEnd::slotMayDeleteTheDelegateWithinASecondLook()
{
    const QPointer<QObject> life = delegate.get();
    int looks = 0;
    // As when a slot opens a dialog, whose event loop runs the timer.
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this, [&] {
        if (++looks < 3) {
            look(*life);
        } else {
            delegate.reset();
        }
    });
    look(*life);
    QVERIFY(!life);
    QCOMPARE(looks, 3);
}

void TestProgressBarCompletionDelegateEnd::slotMayDeleteTheDelegateLater()
{
    const QPointer<ProgressBarCompletionDelegate> life = delegate.release();
    connect(life, SIGNAL(taskFinished()), life, SLOT(deleteLater()));
    QTRY_VERIFY(!life);
}

void TestProgressBarCompletionDelegateEnd::slotMayDeleteTheBar()
{
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this,
            [this] { bar.reset(); });
    look(*delegate);
    QVERIFY(!bar);
    look(*delegate);
}

void TestProgressBarCompletionDelegateEnd::slotMayReport()
{
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this, [this] {
        report(15.0F);
        delegate->onMessageUpdated({}, TXStringI18n("Next"));
    });
    look(*delegate);
    QVERIFY(bar->isHidden());
    look(*delegate);
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 15);
    QCOMPARE(bar->findChild<QLabel *>()->text(), "Next");
}

void TestProgressBarCompletionDelegateEnd::lockIsHeldWhileTheEndIsTold()
{
    QSemaphore begun;
    QSemaphore reported;
    bool wasKeptWaiting = false;
    std::thread worker;
    connect(delegate.get(), &ProgressBarCompletionDelegate::taskFinished, this, [&] {
        worker = std::thread([&] {
            begun.release();
            report(20.0F);
            reported.release();
        });
        begun.acquire();
        constexpr int kLongestWaitMilliseconds = 50;
        wasKeptWaiting = !reported.tryAcquire(1, kLongestWaitMilliseconds);
    });
    look(*delegate);
    worker.join();
    QVERIFY(wasKeptWaiting);
    QVERIFY(reported.tryAcquire());
    look(*delegate);
    QCOMPARE(bar->value(), 20);
}

void TestProgressBarCompletionDelegateEnd::lockIsFreeBetweenLooks()
{
    look(*delegate);
    std::thread([this] { report(20.0F); }).join();
    look(*delegate);
    QCOMPARE(bar->value(), 20);
    std::thread([this] { report(21.0F); }).join();
    look(*delegate);
    QCOMPARE(bar->value(), 21);
}

int main(int argc, char **argv)
{
    return runTest<TestProgressBarCompletionDelegateEnd>(argc, argv);
}

#include "tst_ProgressBarCompletionDelegateEnd.moc"
