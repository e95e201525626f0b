#include "SpinnerProbe.h"
#include "StepDriver.h"
#include "TestBase.h"
#include "WaitWidget.h"

#include <QPropertyAnimation>
#include <QTabWidget>

#include <memory>

// The time of the animations is the test's: they stand still between its steps.

namespace {

constexpr int kSide = 128;
constexpr int kStepMilliseconds = 84; // a little more than a bar has
constexpr int kLitAlpha = 240;
constexpr int kFadedAlpha = 10;
constexpr char kCurrent[] = "currentElement";

enum Way { Itself, Ancestor, Tab, Window, Minimised };

/// Black after so many milliseconds of fading.
int alphaAfter(int milliseconds)
{
    return int(240.0 - 230.0 * qMin(milliseconds, 800) / 800.0);
}

QPropertyAnimation *rotationOf(const WaitWidget &spinner)
{
    return spinner.findChild<QPropertyAnimation *>();
}

} // namespace

class TestWaitWidgetVisibility : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void barsFadeBehindTheCurrentOne();
    void aboutTenBarsFadeAtAnyTime();
    void secondStartDisturbsNothing();
    void stopFreezesThePicture();
    void startAfterStopBeginsAtTheFirstBar();
    void hiddenSpinnerRests_data();
    void hiddenSpinnerRests();
    void spinnerStartedHiddenGoesWhenShown_data();
    void spinnerStartedHiddenGoesWhenShown();
    void spinnerStoppedHiddenStaysStopped_data();
    void spinnerStoppedHiddenStaysStopped();
    void popUpOverAHiddenWindowGoesWhenShown();
    void popUpOverAMinimisedWindowGoesWhenRestored();
    void picturesOfAHiddenSpinnerSetNothingGoing();
    void spinnerThatMovesToAnotherWindowGoesOn();

private:
    void open();
    void hide(Way way);
    void show(Way way);
    void addWays();
    void step(int times);
    [[nodiscard]] int current() const { return spinner->property(kCurrent).toInt(); }

    std::unique_ptr<StepDriver> clock;
    std::unique_ptr<QTabWidget> window;
    QWidget *frame = nullptr;
    WaitWidget *spinner = nullptr;
};

void TestWaitWidgetVisibility::prepare()
{
    clock = std::make_unique<StepDriver>();
    window = std::make_unique<QTabWidget>();
    window->resize(300, 300);
    auto *page = new QWidget(window.get());
    window->addTab(page, QStringLiteral("Work"));
    window->addTab(new QWidget(window.get()), QStringLiteral("Other"));
    frame = new QWidget(page);
    frame->resize(200, 200);
    spinner = new WaitWidget(frame);
    spinner->resize(kSide, kSide);
    spinner->initWaitWidget();
}

void TestWaitWidgetVisibility::finish()
{
    window.reset();
    clock.reset();
}

void TestWaitWidgetVisibility::open()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestWaitWidgetVisibility::hide(Way way)
{
    switch (way) {
    case Itself:
        spinner->hide();
        break;
    case Ancestor:
        frame->hide();
        break;
    case Tab:
        window->setCurrentIndex(1);
        break;
    case Window:
        window->hide();
        break;
    case Minimised:
        window->showMinimized();
        break;
    }
}

void TestWaitWidgetVisibility::show(Way way)
{
    switch (way) {
    case Itself:
        spinner->show();
        break;
    case Ancestor:
        frame->show();
        break;
    case Tab:
        window->setCurrentIndex(0);
        break;
    case Window:
        window->show();
        break;
    case Minimised:
        window->showNormal();
        break;
    }
}

void TestWaitWidgetVisibility::addWays()
{
    QTest::addColumn<int>("way");
    QTest::newRow("itself") << int(Itself);
    QTest::newRow("an ancestor") << int(Ancestor);
    QTest::newRow("another tab") << int(Tab);
    QTest::newRow("the window") << int(Window);
    QTest::newRow("minimised") << int(Minimised);
}

void TestWaitWidgetVisibility::step(int times)
{
    for (int i = 0; i < times; ++i) {
        clock->step(kStepMilliseconds);
    }
}

void TestWaitWidgetVisibility::barsFadeBehindTheCurrentOne()
{
    open();
    spinner->startAnimation();
    step(5);
    QCOMPARE(current(), 5);
    QList<int> expected(SpinnerProbe::kBars, kFadedAlpha);
    for (int bar = 0; bar <= 5; ++bar) {
        expected[bar] = alphaAfter((5 - bar) * kStepMilliseconds);
    }
    const QList<int> seen = SpinnerProbe(*spinner).alphas();
    QCOMPARE(seen.at(5), kLitAlpha);
    QCOMPARE(seen, expected);
}

void TestWaitWidgetVisibility::aboutTenBarsFadeAtAnyTime()
{
    open();
    spinner->startAnimation();
    step(30);
    for (int i = 0; i < SpinnerProbe::kBars; ++i) {
        step(1);
        const QList<int> seen = SpinnerProbe(*spinner).alphas();
        QCOMPARE(seen.count(kFadedAlpha), 2);
        QCOMPARE(seen.at(current()), kLitAlpha);
    }
}

void TestWaitWidgetVisibility::secondStartDisturbsNothing()
{
    open();
    spinner->startAnimation();
    step(5);
    const QList<int> before = SpinnerProbe(*spinner).alphas();
    spinner->startAnimation();
    QCOMPARE(current(), 5);
    QCOMPARE(SpinnerProbe(*spinner).alphas(), before);
    step(1);
    QCOMPARE(current(), 6);
}

void TestWaitWidgetVisibility::stopFreezesThePicture()
{
    open();
    spinner->startAnimation();
    step(5);
    clock->step(40); // the current bar fades too
    spinner->stopAnimation();
    QVERIFY(!clock->hasWork());
    QVERIFY(spinner->isVisible());
    QCOMPARE(current(), 5);
    step(5);
    QCOMPARE(current(), 5);
    spinner->setProperty(kCurrent, -1);
    const QList<int> seen = SpinnerProbe(*spinner).alphas();
    QCOMPARE(seen.at(5), alphaAfter(40));
    QCOMPARE(seen.at(0), alphaAfter(5 * kStepMilliseconds + 40));
}

void TestWaitWidgetVisibility::startAfterStopBeginsAtTheFirstBar()
{
    open();
    spinner->startAnimation();
    step(5);
    spinner->stopAnimation();
    spinner->startAnimation();
    QCOMPARE(current(), 0);
    step(2);
    QCOMPARE(current(), 2);
}

void TestWaitWidgetVisibility::hiddenSpinnerRests_data()
{
    addWays();
}

void TestWaitWidgetVisibility::hiddenSpinnerRests()
{
    QFETCH(int, way);
    open();
    spinner->startAnimation();
    step(7);
    const QList<int> before = SpinnerProbe(*spinner).alphas();
    hide(Way(way));
    QVERIFY(!clock->hasWork());
    step(20);
    QCOMPARE(current(), 7);

    show(Way(way));
    QVERIFY(clock->hasWork());
    QCOMPARE(current(), 7);
    QCOMPARE(SpinnerProbe(*spinner).alphas(), before);
    step(1);
    QCOMPARE(current(), 8);
    QCOMPARE(SpinnerProbe(*spinner).alphaOf(0), alphaAfter(8 * kStepMilliseconds));
}

void TestWaitWidgetVisibility::spinnerStartedHiddenGoesWhenShown_data()
{
    addWays();
}

void TestWaitWidgetVisibility::spinnerStartedHiddenGoesWhenShown()
{
    QFETCH(int, way);
    open();
    hide(Way(way));
    spinner->startAnimation();
    spinner->startAnimation();
    QVERIFY(!clock->hasWork());
    show(Way(way));
    QVERIFY(clock->hasWork());
    QCOMPARE(current(), 0);
    step(3);
    QCOMPARE(current(), 3);
}

void TestWaitWidgetVisibility::spinnerStoppedHiddenStaysStopped_data()
{
    addWays();
}

void TestWaitWidgetVisibility::spinnerStoppedHiddenStaysStopped()
{
    QFETCH(int, way);
    open();
    spinner->startAnimation();
    step(5);
    hide(Way(way));
    spinner->stopAnimation();
    spinner->setProperty(kCurrent, -1); // or it lights up once more when it is painted
    show(Way(way));
    QVERIFY(!clock->hasWork());
    QCOMPARE(rotationOf(*spinner)->state(), QAbstractAnimation::Stopped);
    const QList<int> seen = SpinnerProbe(*spinner).alphas();
    QCOMPARE(seen.at(4), alphaAfter(kStepMilliseconds));
}

void TestWaitWidgetVisibility::popUpOverAHiddenWindowGoesWhenShown()
{
    const WaitWidget *popped = WaitWidget::popUp(frame, 64);
    QVERIFY(!clock->hasWork());
    QCOMPARE(rotationOf(*popped)->state(), QAbstractAnimation::Paused);
    open();
    QVERIFY(clock->hasWork());
    step(2);
    QCOMPARE(popped->property(kCurrent).toInt(), 2);
}

void TestWaitWidgetVisibility::popUpOverAMinimisedWindowGoesWhenRestored()
{
    open();
    window->showMinimized();
    const WaitWidget *popped = WaitWidget::popUp(frame, 64);
    QVERIFY(!clock->hasWork());
    window->showNormal();
    QVERIFY(clock->hasWork());
    QCOMPARE(rotationOf(*popped)->state(), QAbstractAnimation::Running);
}

void TestWaitWidgetVisibility::picturesOfAHiddenSpinnerSetNothingGoing()
{
    spinner->startAnimation();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(SpinnerProbe(*spinner).alphaOf(0), kLitAlpha);
        QVERIFY(!clock->hasWork());
    }
    step(3);
    QCOMPARE(SpinnerProbe(*spinner).alphaOf(0), kLitAlpha);
}

void TestWaitWidgetVisibility::spinnerThatMovesToAnotherWindowGoesOn()
{
    open();
    spinner->startAnimation();
    step(4);
    QWidget other;
    spinner->setParent(&other);
    QVERIFY(!clock->hasWork());
    spinner->show();
    QVERIFY(!clock->hasWork());
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QCOMPARE(current(), 4);
    step(1);
    QCOMPARE(current(), 5);
}

int main(int argc, char **argv)
{
    return runTest<TestWaitWidgetVisibility>(argc, argv);
}

#include "tst_WaitWidgetVisibility.moc"
