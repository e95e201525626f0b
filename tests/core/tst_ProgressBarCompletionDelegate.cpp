#include "ProgressBarCompletionDelegate.h"

#include "BracketsTranslator.h"
#include "TXError.h"
#include "TXProgressBar.h"
#include "TestBase.h"

#include <QLabel>
#include <QMetaMethod>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

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

class TestProgressBarCompletionDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void constructorSetsUpTheBar();
    void timerLooksEvery200Milliseconds();
    void firstProgressShowsTheBar();
    void fractionIsDropped_data();
    void fractionIsDropped();
    void hundredHidesAndTells();
    void idleLooksTellEachTime();
    void overwrittenProgressIsNeverShown();
    void finishIsComparedWithTheBarsMaximum();
    void finishIsComparedAsAFloat();
    void strangeNumbersLeaveTheValue_data();
    void strangeNumbersLeaveTheValue();
    void endsOfIntAreTaken();
    void messageIsTranslatedWhenShown();
    void messageAloneShowsNothing();
    void logsAndMetadataDoNothing();
    void pathCountsForNothing();
    void nullBarIsASink();
    void operationsAreReachedThroughTheInterface();
    void slotForTheTimerIsPrivate();

private:
    void report(float progress) { delegate->onProgressionUpdated({}, progress); }

    std::unique_ptr<TXProgressBar> bar;
    std::unique_ptr<ProgressBarCompletionDelegate> delegate;
};

void TestProgressBarCompletionDelegate::prepare()
{
    bar = std::make_unique<TXProgressBar>(nullptr);
    delegate = std::make_unique<ProgressBarCompletionDelegate>(bar.get());
}

void TestProgressBarCompletionDelegate::finish()
{
    delegate.reset();
    bar.reset();
}

void TestProgressBarCompletionDelegate::constructorSetsUpTheBar()
{
    TXProgressBar other;
    other.setRange(5, 7);
    other.setTextVisible(false);
    other.show();
    const ProgressBarCompletionDelegate made(&other);
    QCOMPARE(made.parent(), nullptr);
    QCOMPARE(other.minimum(), 0);
    QCOMPARE(other.maximum(), 100);
    QCOMPARE(other.value(), 100);
    QVERIFY(other.isTextVisible());
    QVERIFY(other.isHidden());
}

void TestProgressBarCompletionDelegate::timerLooksEvery200Milliseconds()
{
    const QTimer *timer = timerOf(*delegate);
    QVERIFY(timer);
    QCOMPARE(timer->interval(), 200);
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    QCOMPARE(finished.count(), 0);
    QTRY_VERIFY(finished.count() >= 2);
    report(40.0F);
    QTRY_VERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 40);
}

void TestProgressBarCompletionDelegate::firstProgressShowsTheBar()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    report(0.0F);
    QVERIFY(bar->isHidden());
    QCOMPARE(bar->value(), 100);
    look(*delegate);
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->value(), 0);
    QCOMPARE(finished.count(), 0);
}

void TestProgressBarCompletionDelegate::fractionIsDropped_data()
{
    QTest::addColumn<float>("progress");
    QTest::addColumn<int>("value");
    QTest::newRow("99.5") << 99.5F << 99;
    QTest::newRow("just below the end") << std::nextafter(100.0F, 0.0F) << 99;
    QTest::newRow("0.999") << 0.999F << 0;
    QTest::newRow("-0.999") << -0.999F << 0;
    QTest::newRow("a little too much") << 100.5F << 100;
}

void TestProgressBarCompletionDelegate::fractionIsDropped()
{
    QFETCH(float, progress);
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    bar->setValue(1);
    report(progress);
    look(*delegate);
    QTEST(bar->value(), "value");
    QVERIFY(bar->isVisible());
    QCOMPARE(finished.count(), 0);
}

void TestProgressBarCompletionDelegate::hundredHidesAndTells()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    report(30.0F);
    look(*delegate);
    report(100.0F);
    QVERIFY(bar->isVisible());
    look(*delegate);
    QVERIFY(bar->isHidden());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(bar->value(), 30); // not set any more
}

void TestProgressBarCompletionDelegate::idleLooksTellEachTime()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    for (int looks = 1; looks <= 4; ++looks) {
        look(*delegate);
        QCOMPARE(finished.count(), looks);
    }
    QVERIFY(bar->isHidden());
}

void TestProgressBarCompletionDelegate::overwrittenProgressIsNeverShown()
{
    const QSignalSpy values(bar->findChild<QProgressBar *>(), SIGNAL(valueChanged(int)));
    for (const float progress : {10.0F, 20.0F, 100.0F, 30.0F}) {
        report(progress);
    }
    look(*delegate);
    QCOMPARE(values, QList<QVariantList>({{30}}));
    for (const float progress : {50.0F, 100.0F}) {
        report(progress);
    }
    look(*delegate);
    QCOMPARE(values.count(), 1);
}

void TestProgressBarCompletionDelegate::finishIsComparedWithTheBarsMaximum()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    bar->setRange(0, 50);
    report(25.0F);
    look(*delegate);
    QCOMPARE(bar->value(), 25);
    report(100.0F); // beyond the range: no end, and no value
    look(*delegate);
    QCOMPARE(bar->value(), 25);
    QVERIFY(bar->isVisible());
    QCOMPARE(finished.count(), 0);
    report(50.0F);
    look(*delegate);
    QVERIFY(bar->isHidden());
    QCOMPARE(finished.count(), 1);
}

void TestProgressBarCompletionDelegate::finishIsComparedAsAFloat()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    bar->setRange(0, 16777217); // which no float has
    report(16777216.0F);
    look(*delegate);
    QCOMPARE(finished.count(), 1);
    bar->setRange(0, std::numeric_limits<int>::max());
    report(2147483648.0F);
    look(*delegate);
    QCOMPARE(finished.count(), 2);
}

void TestProgressBarCompletionDelegate::strangeNumbersLeaveTheValue_data()
{
    QTest::addColumn<float>("progress");
    QTest::newRow("not a number") << std::nanf("");
    QTest::newRow("infinite") << kInfinity;
    QTest::newRow("negative infinite") << -kInfinity;
    QTest::newRow("huge") << 3e38F;
    QTest::newRow("huge negative") << -3e38F;
    QTest::newRow("above the range") << 101.0F;
    QTest::newRow("below the range") << -1.0F;
}

void TestProgressBarCompletionDelegate::strangeNumbersLeaveTheValue()
{
    QFETCH(float, progress);
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    report(40.0F);
    look(*delegate);
    bar->hide();
    report(progress);
    delegate->onMessageUpdated({}, TXStringI18n("Still at it"));
    look(*delegate);
    QCOMPARE(bar->value(), 40);
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->findChild<QLabel *>()->text(), "Still at it");
    QCOMPARE(finished.count(), 0);
}

void TestProgressBarCompletionDelegate::endsOfIntAreTaken()
{
    bar->setRange(std::numeric_limits<int>::min(), 0);
    report(-2147483648.0F);
    look(*delegate);
    QCOMPARE(bar->value(), std::numeric_limits<int>::min());
}

void TestProgressBarCompletionDelegate::messageIsTranslatedWhenShown()
{
    auto *label = bar->findChild<QLabel *>();
    report(10.0F);
    delegate->onMessageUpdated({}, TXStringI18n("Worker", "Reading %1", "", -1).arg("a"));
    look(*delegate);
    QCOMPARE(label->text(), "Reading a");
    BracketsTranslator translator("Worker");
    QCoreApplication::installTranslator(&translator);
    look(*delegate);
    const QString translated = label->text();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(translated, "[Reading a]");
}

void TestProgressBarCompletionDelegate::messageAloneShowsNothing()
{
    delegate->onMessageUpdated({}, TXStringI18n("Reading"));
    look(*delegate);
    QVERIFY(bar->isHidden());
    QCOMPARE(bar->findChild<QLabel *>()->text(), QString());
    report(5.0F); // the message has waited for it
    look(*delegate);
    QCOMPARE(bar->findChild<QLabel *>()->text(), "Reading");
}

void TestProgressBarCompletionDelegate::logsAndMetadataDoNothing()
{
    const QSignalSpy finished(delegate.get(), SIGNAL(taskFinished()));
    delegate->onLogAppended({}, TXError());
    delegate->onMetadataEdited({}, QStringLiteral("progress"), 5);
    look(*delegate);
    QVERIFY(bar->isHidden());
    QCOMPARE(bar->value(), 100);
    QCOMPARE(finished.count(), 1);
}

void TestProgressBarCompletionDelegate::pathCountsForNothing()
{
    const QList<QString> path = {QStringLiteral("outer"), QStringLiteral("inner")};
    delegate->onProgressionUpdated(path, 12.0F);
    delegate->onMessageUpdated({}, TXStringI18n("Reading"));
    look(*delegate);
    QCOMPARE(bar->value(), 12);
    delegate->onProgressionUpdated({}, 100.0F);
    look(*delegate);
    QVERIFY(bar->isHidden());
}

void TestProgressBarCompletionDelegate::nullBarIsASink()
{
    ProgressBarCompletionDelegate sink(nullptr);
    const QSignalSpy finished(&sink, SIGNAL(taskFinished()));
    QVERIFY(timerOf(sink)->isActive());
    look(sink);
    sink.onProgressionUpdated({}, 5.0F);
    sink.onMessageUpdated({}, TXStringI18n("Reading"));
    look(sink);
    sink.onProgressionUpdated({}, 100.0F);
    look(sink);
    QCOMPARE(finished.count(), 0);
}

void TestProgressBarCompletionDelegate::operationsAreReachedThroughTheInterface()
{
    ProgressBarCompletionDelegate *looking = delegate.release();
    ICompletionDelegate *plain = looking;
    plain->onProgressionUpdated({}, 33.0F);
    plain->onMessageUpdated({}, TXStringI18n("Reading"));
    look(*looking);
    QCOMPARE(bar->value(), 33);
    delete plain;
    QCOMPARE(bar->value(), 33);
}

void TestProgressBarCompletionDelegate::slotForTheTimerIsPrivate()
{
    const QMetaObject &meta = *delegate->metaObject();
    const QMetaMethod slot = meta.method(meta.indexOfSlot("updateProgressBar()"));
    QCOMPARE(slot.access(), QMetaMethod::Private);
    QCOMPARE(meta.indexOfMethod("stopTimer()"), -1); // a plain function
}

int main(int argc, char **argv)
{
    return runTest<TestProgressBarCompletionDelegate>(argc, argv);
}

#include "tst_ProgressBarCompletionDelegate.moc"
