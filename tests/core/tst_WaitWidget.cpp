#include "WaitWidget.h"

#include "SpinnerProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QPointer>
#include <QPropertyAnimation>

#include <limits>
#include <memory>

namespace {

constexpr int kSide = 128;
constexpr int kFirstAlpha = 10;
constexpr int kLitAlpha = 240;
constexpr char kCurrent[] = "currentElement";

QPropertyAnimation *rotationOf(const WaitWidget &spinner)
{
    return spinner.findChild<QPropertyAnimation *>();
}

/// Counts the events of one type that an object gets.
class EventCount : public QObject
{
public:
    EventCount(QObject *object, QEvent::Type type)
        : type(type)
    {
        object->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type type;
};

/// A spinner of that size with its bars, without a window.
std::unique_ptr<WaitWidget> spinnerOf(QSize size)
{
    auto spinner = std::make_unique<WaitWidget>(nullptr);
    spinner->resize(size);
    spinner->initWaitWidget();
    spinner->setProperty(kCurrent, -1); // none lights up
    return spinner;
}

} // namespace

class TestWaitWidget : public TestBase
{
    Q_OBJECT

private slots:
    void currentElementIsAPlainValue();
    void twelveFaintBarsStandAround_data();
    void twelveFaintBarsStandAround();
    void barsReachFromAQuarterToHalfOfTheWidth_data();
    void barsReachFromAQuarterToHalfOfTheWidth();
    void heightOnlyMovesTheMiddle();
    void sizeOfTheBarsIsRoundedDown();
    void oddBarsLieEvenlyAboutTheirAxis();
    void sizeIsFixedByTheWidthAtTheCall();
    void secondCallAddsTwelveMore();
    void tinyAndEmptySpinnersDoNoHarm();
    void currentBarLightsUpWithThePainting();
    void currentBarOutsideLightsUpNone_data();
    void currentBarOutsideLightsUpNone();
    void rotationIsMadeByTheFirstStart();
    void endOfTheRotationIsFixedByTheFirstStart();
    void rotationVisitsEachBar_data();
    void rotationVisitsEachBar();
    void eachStepPaintsAtOnce();
    void stopBeforeStartDoesNothing();
    void spinnerWithoutBarsPaintsNothing();
    void popUpIsCentredAndTurns_data();
    void popUpIsCentredAndTurns();
    void popUpReplacesSpinnersAtAnyDepth();
    void popUpLeavesOtherParentsAlone();
    void popUpWithoutAParentIsNothing();
    void turningSpinnerIsDestroyedCleanly();
    void clicksGoToTheParent();
    void assistiveToolsSeeThatItIsBusy();
    void assistiveToolsReadTheHostsName();
};

void TestWaitWidget::currentElementIsAPlainValue()
{
    WaitWidget spinner(nullptr);
    QCOMPARE(spinner.property(kCurrent), QVariant(0));
    for (const int value : {5, -7, 1000000}) {
        QVERIFY(spinner.setProperty(kCurrent, value));
        QCOMPARE(spinner.property(kCurrent), QVariant(value));
    }
    const QMetaObject &meta = *spinner.metaObject();
    QVERIFY(!meta.property(meta.indexOfProperty(kCurrent)).hasNotifySignal());
    spinner.initWaitWidget();
    QCOMPARE(spinner.property(kCurrent), QVariant(0));
    QVERIFY(!rotationOf(spinner));
}

void TestWaitWidget::twelveFaintBarsStandAround_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestWaitWidget::twelveFaintBarsStandAround()
{
    QFETCH(double, ratio);
    const auto spinner = spinnerOf({kSide, kSide});
    const SpinnerProbe probe(*spinner, ratio);
    QCOMPARE(probe.alphas(), QList<int>(SpinnerProbe::kBars, kFirstAlpha));
    for (int bar = 0; bar < SpinnerProbe::kBars; ++bar) {
        QCOMPARE(probe.alphaOf(bar), kFirstAlpha);
        // between this bar and the next
        QCOMPARE(probe.alphaAt(bar, 48.0, 12.0), 0);
    }
}

void TestWaitWidget::barsReachFromAQuarterToHalfOfTheWidth_data()
{
    twelveFaintBarsStandAround_data();
}

void TestWaitWidget::barsReachFromAQuarterToHalfOfTheWidth()
{
    QFETCH(double, ratio);
    const auto spinner = spinnerOf({kSide, kSide});
    const SpinnerProbe probe(*spinner, ratio);
    for (int bar = 0; bar < SpinnerProbe::kBars; ++bar) {
        QCOMPARE(probe.alphaAt(bar, 34.0), kFirstAlpha);
        QCOMPARE(probe.alphaAt(bar, 62.0), kFirstAlpha);
        QCOMPARE(probe.alphaAt(bar, 30.0), 0);
        QCOMPARE(probe.alphaAt(bar, 48.0, 6.5), 0);
        QCOMPARE(probe.alphaAt(bar, 48.0, -6.5), 0);
    }
    // exactly so where a bar lies straight
    QCOMPARE(probe.alphaAt(0, 33.0, -2.5), kFirstAlpha);
    QCOMPARE(probe.alphaAt(0, 33.0, 2.5), kFirstAlpha);
    QCOMPARE(probe.alphaAt(0, 33.0, -5.5), 0);
    QCOMPARE(probe.alphaAt(0, 33.0, 5.5), 0);
}

void TestWaitWidget::heightOnlyMovesTheMiddle()
{
    const auto spinner = spinnerOf({kSide, 300});
    const SpinnerProbe probe(*spinner);
    QCOMPARE(probe.alphas(), QList<int>(SpinnerProbe::kBars, kFirstAlpha));
    QCOMPARE(probe.pixels().at({112, 150}).red(), 255 - kFirstAlpha);
    QCOMPARE(probe.pixels().at({112, 158}), QColor(Qt::white));
    QCOMPARE(probe.alphaAt(3, 66.0), 0); // not longer than in a square
}

void TestWaitWidget::sizeOfTheBarsIsRoundedDown()
{
    // 25.75 becomes 25 long, 6.4375 becomes 6 thick.
    const auto spinner = spinnerOf({103, 200});
    const SpinnerProbe probe(*spinner);
    // Downwards, where the widget leaves room to see the end: from 125.75 to 150.75.
    const auto alphaAt = [&probe](int x, int y) {
        return 255 - probe.pixels().at({x, y}).red();
    };
    QCOMPARE(alphaAt(51, 149), kFirstAlpha);
    QCOMPARE(alphaAt(51, 151), 3); // a quarter of the outline
    QCOMPARE(alphaAt(51, 152), 0);
    // Across, around 51.5 from 48.5 to 54.5 with its outline.
    QVERIFY(alphaAt(48, 140) >= kFirstAlpha);
    QVERIFY(alphaAt(54, 140) >= kFirstAlpha);
    QCOMPARE(alphaAt(47, 140), 0);
    QCOMPARE(alphaAt(55, 140), 0);
}

void TestWaitWidget::oddBarsLieEvenlyAboutTheirAxis()
{
    const auto spinner = spinnerOf({84, 84}); // 5 thick
    const SpinnerProbe probe(*spinner);
    for (int offset = 0; offset < 3; ++offset) {
        QVERIFY(probe.pixels().at({70, 42 + offset}).red() <= 255 - kFirstAlpha);
        QVERIFY(probe.pixels().at({70, 41 - offset}).red() <= 255 - kFirstAlpha);
    }
    QCOMPARE(probe.pixels().at({70, 45}), QColor(Qt::white));
    QCOMPARE(probe.pixels().at({70, 38}), QColor(Qt::white));
}

void TestWaitWidget::sizeIsFixedByTheWidthAtTheCall()
{
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->resize(256, 256);
    const SpinnerProbe probe(*spinner);
    // From the new quarter, as long as before.
    QCOMPARE(probe.alphaAt(0, 62.0), 0);
    QCOMPARE(probe.alphaAt(0, 66.0), kFirstAlpha);
    QCOMPARE(probe.alphaAt(0, 94.0), kFirstAlpha);
    QCOMPARE(probe.alphaAt(0, 98.0), 0);
}

void TestWaitWidget::secondCallAddsTwelveMore()
{
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->initWaitWidget();
    spinner->startAnimation();
    QCOMPARE(rotationOf(*spinner)->endValue(), QVariant(24));
    spinner->setProperty(kCurrent, 1);
    const SpinnerProbe probe(*spinner);
    // The second of 24 stands at 15 degrees, half way between two of twelve.
    const QPointF place = QTransform().rotate(15.0).map(QPointF(48.0, 0.0)) + QPointF(64, 64);
    QCOMPARE(probe.pixels().at(place.toPoint()).red(), 255 - kLitAlpha);
}

void TestWaitWidget::tinyAndEmptySpinnersDoNoHarm()
{
    for (int side = 0; side <= 8; ++side) {
        WaitWidget spinner(nullptr);
        spinner.resize(side, side);
        spinner.initWaitWidget();
        spinner.startAnimation();
        QCOMPARE(spinner.grab().toImage().isNull(), side == 0);
    }
}

void TestWaitWidget::currentBarLightsUpWithThePainting()
{
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->setProperty(kCurrent, 4);
    QList<int> expected(SpinnerProbe::kBars, kFirstAlpha);
    expected[4] = kLitAlpha; // seen in the same painting
    QCOMPARE(SpinnerProbe(*spinner).alphas(), expected);
    spinner->setProperty(kCurrent, 11);
    expected[11] = kLitAlpha;
    QCOMPARE(SpinnerProbe(*spinner).alphas(), expected);
}

void TestWaitWidget::currentBarOutsideLightsUpNone_data()
{
    QTest::addColumn<int>("current");
    QTest::newRow("behind the last") << 12;
    QTest::newRow("before the first") << -1;
    QTest::newRow("huge") << std::numeric_limits<int>::max();
}

void TestWaitWidget::currentBarOutsideLightsUpNone()
{
    QFETCH(int, current);
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->setProperty(kCurrent, current);
    const SpinnerProbe probe(*spinner);
    QCOMPARE(probe.alphas(), QList<int>(SpinnerProbe::kBars, kFirstAlpha));
}

void TestWaitWidget::rotationIsMadeByTheFirstStart()
{
    const auto spinner = spinnerOf({kSide, kSide});
    QVERIFY(!rotationOf(*spinner));
    spinner->startAnimation();
    const QPropertyAnimation *rotation = rotationOf(*spinner);
    QVERIFY(rotation);
    QCOMPARE(rotation->parent(), spinner.get());
    QCOMPARE(rotation->targetObject(), spinner.get());
    QCOMPARE(rotation->propertyName(), kCurrent);
    QCOMPARE(rotation->duration(), 1000);
    QCOMPARE(rotation->loopCount(), -1);
    QCOMPARE(rotation->startValue(), QVariant(0));
    QCOMPARE(rotation->endValue(), QVariant(12));
    spinner->stopAnimation();
    spinner->startAnimation();
    QCOMPARE(spinner->findChildren<QPropertyAnimation *>().size(), 1);
}

void TestWaitWidget::endOfTheRotationIsFixedByTheFirstStart()
{
    WaitWidget spinner(nullptr);
    spinner.startAnimation();
    spinner.resize(kSide, kSide);
    spinner.initWaitWidget();
    spinner.startAnimation();
    QCOMPARE(rotationOf(spinner)->endValue(), QVariant(0));
}

void TestWaitWidget::rotationVisitsEachBar_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<int>("current");
    QTest::newRow("start") << 0 << 0;
    QTest::newRow("end of the first") << 83 << 0;
    QTest::newRow("second") << 84 << 1;
    QTest::newRow("half") << 500 << 6;
    QTest::newRow("last") << 917 << 11;
    QTest::newRow("end of the last") << 999 << 11;
    QTest::newRow("next turn") << 1000 << 0;
    QTest::newRow("much later") << 100084 << 1;
}

void TestWaitWidget::rotationVisitsEachBar()
{
    QFETCH(int, time);
    QFETCH(int, current);
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->startAnimation();
    rotationOf(*spinner)->setCurrentTime(time);
    QCOMPARE(spinner->property(kCurrent).toInt(), current);
    QCOMPARE(SpinnerProbe(*spinner).alphaOf(current), kLitAlpha);
}

void TestWaitWidget::eachStepPaintsAtOnce()
{
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->show();
    QVERIFY(QTest::qWaitForWindowExposed(spinner.get()));
    spinner->startAnimation();
    const EventCount paints(spinner.get(), QEvent::Paint);
    for (int step = 1; step <= 5; ++step) {
        rotationOf(*spinner)->setCurrentTime(100 * step);
        QCOMPARE(paints.count, step); // without the event loop
    }
    rotationOf(*spinner)->setCurrentTime(501); // the same bar
    QCOMPARE(paints.count, 5);
}

void TestWaitWidget::stopBeforeStartDoesNothing()
{
    const auto spinner = spinnerOf({kSide, kSide});
    spinner->stopAnimation();
    QVERIFY(!rotationOf(*spinner));
    WaitWidget plain(nullptr);
    plain.stopAnimation();
    QVERIFY(!rotationOf(plain));
}

void TestWaitWidget::spinnerWithoutBarsPaintsNothing()
{
    WaitWidget spinner(nullptr);
    spinner.resize(kSide, kSide);
    spinner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&spinner));
    spinner.startAnimation();
    QCOMPARE(rotationOf(spinner)->endValue(), QVariant(0));
    QCOMPARE(rotationOf(spinner)->state(), QAbstractAnimation::Running);
    rotationOf(spinner)->setCurrentTime(500);
    QCOMPARE(spinner.property(kCurrent).toInt(), 0);
    QCOMPARE(SpinnerProbe(spinner).pixels().countColours(spinner.rect()), 1);
}

void TestWaitWidget::popUpIsCentredAndTurns_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::addColumn<int>("size");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("even") << QSize(200, 100) << 64 << QRect(68, 18, 64, 64);
    QTest::newRow("odd") << QSize(101, 100) << 64 << QRect(18, 18, 64, 64);
    // Whole division is toward zero.
    QTest::newRow("larger than the parent") << QSize(31, 40) << 64 << QRect(-16, -12, 64, 64);
    QTest::newRow("none") << QSize(200, 100) << 0 << QRect(100, 50, 0, 0);
    QTest::newRow("negative") << QSize(200, 100) << -5 << QRect(100, 50, 0, 0);
}

void TestWaitWidget::popUpIsCentredAndTurns()
{
    QFETCH(QSize, parentSize);
    QFETCH(int, size);
    QWidget parent;
    parent.resize(parentSize);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    WaitWidget *spinner = WaitWidget::popUp(&parent, size);
    QCOMPARE(spinner->parentWidget(), &parent);
    QTEST(spinner->geometry(), "geometry");
    QVERIFY(spinner->isVisible());
    QCOMPARE(rotationOf(*spinner)->state(), QAbstractAnimation::Running);
    QCOMPARE(rotationOf(*spinner)->endValue(), QVariant(12));
}

void TestWaitWidget::popUpReplacesSpinnersAtAnyDepth()
{
    QWidget parent;
    auto *child = new QWidget(&parent);
    const QPointer<WaitWidget> deep = WaitWidget::popUp(child, 32);
    const QPointer<WaitWidget> first = WaitWidget::popUp(&parent, 32);
    const QPointer<WaitWidget> second = WaitWidget::popUp(&parent, 32);
    QVERIFY(deep && first); // not within the call
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!deep && !first);
    QCOMPARE(parent.findChildren<WaitWidget *>(), QList<WaitWidget *>{second.data()});
}

void TestWaitWidget::popUpLeavesOtherParentsAlone()
{
    QWidget parent;
    auto *child = new QWidget(&parent);
    auto *sibling = new QWidget(&parent);
    const QPointer<WaitWidget> above = WaitWidget::popUp(&parent, 32);
    const QPointer<WaitWidget> beside = WaitWidget::popUp(sibling, 32);
    WaitWidget::popUp(child, 32);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(above && beside);
}

void TestWaitWidget::popUpWithoutAParentIsNothing()
{
    QCOMPARE(WaitWidget::popUp(nullptr, 32), nullptr);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestWaitWidget::turningSpinnerIsDestroyedCleanly()
{
    auto parent = std::make_unique<QWidget>();
    parent->resize(kSide, kSide);
    parent->show();
    QVERIFY(QTest::qWaitForWindowExposed(parent.get()));
    const WaitWidget *spinner = WaitWidget::popUp(parent.get(), 64);
    const QPointer<QPropertyAnimation> rotation = rotationOf(*spinner);
    for (const int time : {100, 200, 300}) {
        rotation->setCurrentTime(time);
    }
    delete WaitWidget::popUp(parent.get(), 64);
    parent.reset();
    QVERIFY(!rotation);
}

void TestWaitWidget::clicksGoToTheParent()
{
    QWidget parent;
    parent.resize(kSide, kSide);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    WaitWidget *spinner = WaitWidget::popUp(&parent, 64);
    const EventCount presses(&parent, QEvent::MouseButtonPress);
    QMouseEvent press(QEvent::MouseButtonPress, {5, 5}, spinner->mapToGlobal(QPointF(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(spinner, &press);
    QCOMPARE(presses.count, 1);
}

void TestWaitWidget::assistiveToolsSeeThatItIsBusy()
{
    const auto spinner = spinnerOf({kSide, kSide});
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(spinner.get());
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Animation);
    QCOMPARE(accessible->text(QAccessible::Name), "Busy");
    QVERIFY(!accessible->state().busy);
    spinner->startAnimation();
    QVERIFY(accessible->state().busy);
    spinner->stopAnimation();
    QVERIFY(!accessible->state().busy);
}

void TestWaitWidget::assistiveToolsReadTheHostsName()
{
    WaitWidget spinner(nullptr);
    spinner.setAccessibleName(QStringLiteral("Measuring"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&spinner);
    QCOMPARE(accessible->text(QAccessible::Name), "Measuring");
    QCOMPARE(accessible->text(QAccessible::Description), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestWaitWidget>(argc, argv);
}

#include "tst_WaitWidget.moc"
