#include "WaitElement.h"

#include "PixelProbe.h"
#include "StepDriver.h"
#include "TestBase.h"

#include <QMetaProperty>
#include <QPainter>
#include <QPropertyAnimation>

#include <cmath>
#include <limits>

namespace {

constexpr int kSide = 60;
constexpr QPoint kOrigin(20, 20);
constexpr QSize kSize(30, 10);
constexpr int kRectangle = 2;
constexpr int kEllipse = 1;
constexpr char kAlpha[] = "alphaElement";

/// The element painted with its origin at kOrigin, on white.
PixelProbe painted(WaitElement &element, double ratio = 1.0, const QPen &pen = Qt::NoPen)
{
    const int pixels = int(kSide * ratio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(pen);
    painter.translate(kOrigin);
    element.paint(&painter);
    painter.end();
    return PixelProbe(image);
}

/// Black of that alpha on white.
QColor greyOf(int alpha)
{
    return {255 - alpha, 255 - alpha, 255 - alpha};
}

QPoint inside(int x, int y)
{
    return kOrigin + QPoint(x, y);
}

} // namespace

class TestWaitElement : public TestBase
{
    Q_OBJECT

private slots:
    void propertyIsReadAndWrittenAndTellsNobody();
    void alphaIsTruncated_data();
    void alphaIsTruncated();
    void alphaOfTheColourCountsForNothing();
    void rectangleBeginsAtTheOrigin_data();
    void rectangleBeginsAtTheOrigin();
    void rectangleIsOutlinedInItsColour();
    void ellipseIsAroundTheOrigin_data();
    void ellipseIsAroundTheOrigin();
    void ellipseKeepsThePensOutline();
    void otherShapesPaintNothing_data();
    void otherShapesPaintNothing();
    void painterIsLeftAsItWas();
    void nullPainterIsIgnored();
    void emptyAndNegativeSizesDoNoHarm_data();
    void emptyAndNegativeSizesDoNoHarm();
    void animationIsMadeByTheFirstStart();
    void fadesFrom240To10In800Milliseconds_data();
    void fadesFrom240To10In800Milliseconds();
    void startWhileFadingChangesNothing();
    void startAfterTheEndLightsUpAgain();
    void stopLeavesTheAlpha();
    void callsBeforeTheFirstStartDoNothing();
    void pauseRestsAndResumeGoesOn();
    void resumeStartsNoStoppedOne();
    void fadingElementIsDestroyedCleanly();
};

void TestWaitElement::propertyIsReadAndWrittenAndTellsNobody()
{
    WaitElement element(Qt::black, kSize, 10.75, kRectangle);
    QCOMPARE(element.parent(), nullptr);
    QCOMPARE(element.elementSize(), kSize);
    QCOMPARE(element.property(kAlpha), QVariant(10.75));
    QVERIFY(element.setProperty(kAlpha, -3.5));
    QCOMPARE(element.property(kAlpha), QVariant(-3.5));
    const QMetaObject &meta = *element.metaObject();
    const QMetaProperty property = meta.property(meta.indexOfProperty(kAlpha));
    QCOMPARE(property.metaType(), QMetaType::fromType<double>());
    QVERIFY(property.isReadable() && property.isWritable());
    QVERIFY(!property.hasNotifySignal());
}

void TestWaitElement::alphaIsTruncated_data()
{
    QTest::addColumn<double>("alpha");
    QTest::addColumn<int>("seen");
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("whole") << 100.0 << 100;
    QTest::newRow("just below the next") << 100.99 << 100;
    QTest::newRow("below one") << 0.99 << 0;
    QTest::newRow("opaque") << 255.0 << 255;
    QTest::newRow("a little too much") << 256.0 << 255;
    QTest::newRow("negative") << -1.0 << 0;
    QTest::newRow("huge") << 1e300 << 255;
    QTest::newRow("huge negative") << -1e300 << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 255;
    QTest::newRow("not a number") << std::nan("") << 0;
}

void TestWaitElement::alphaIsTruncated()
{
    QFETCH(double, alpha);
    QFETCH(int, seen);
    WaitElement constructed(Qt::black, kSize, alpha, kRectangle);
    QVERIFY(painted(constructed).isNear(inside(15, 5), greyOf(seen), 0));
    WaitElement written(Qt::black, kSize, 50.0, kRectangle);
    written.setProperty(kAlpha, alpha);
    QVERIFY(painted(written).isNear(inside(15, 5), greyOf(seen), 0));
}

void TestWaitElement::alphaOfTheColourCountsForNothing()
{
    WaitElement element(QColor(255, 0, 0, 3), kSize, 255.0, kRectangle);
    QCOMPARE(painted(element).at(inside(15, 5)), QColor(255, 0, 0));
}

void TestWaitElement::rectangleBeginsAtTheOrigin_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestWaitElement::rectangleBeginsAtTheOrigin()
{
    QFETCH(double, ratio);
    WaitElement element(Qt::black, kSize, 200.0, kRectangle);
    const PixelProbe probe = painted(element, ratio);
    for (const QPoint &place : {inside(2, 2), inside(27, 2), inside(2, 7), inside(27, 7)}) {
        QVERIFY(probe.isNear(place, greyOf(200), 0));
    }
    for (const QPoint &place : {inside(-2, 5), inside(32, 5), inside(15, -2), inside(15, 12)}) {
        QCOMPARE(probe.at(place), QColor(Qt::white));
    }
}

void TestWaitElement::rectangleIsOutlinedInItsColour()
{
    WaitElement element(Qt::black, kSize, 255.0, kRectangle);
    // Without antialiasing an outline of one pixel reaches one pixel further on two sides.
    const PixelProbe probe = painted(element, 1.0, QPen(Qt::red));
    QCOMPARE(probe.at(inside(30, 10)), QColor(Qt::black));
    QCOMPARE(probe.at(inside(0, 0)), QColor(Qt::black));
}

void TestWaitElement::ellipseIsAroundTheOrigin_data()
{
    rectangleBeginsAtTheOrigin_data();
}

void TestWaitElement::ellipseIsAroundTheOrigin()
{
    QFETCH(double, ratio);
    WaitElement element(Qt::black, kSize, 200.0, kEllipse);
    const PixelProbe probe = painted(element, ratio);
    for (const QPoint &place : {inside(0, 0), inside(-13, 0), inside(12, 0), inside(0, -4)}) {
        QVERIFY(probe.isNear(place, greyOf(200), 0));
    }
    for (const QPoint &place : {inside(-13, -4), inside(12, 3), inside(17, 0), inside(0, 7)}) {
        QCOMPARE(probe.at(place), QColor(Qt::white));
    }
}

void TestWaitElement::ellipseKeepsThePensOutline()
{
    WaitElement element(Qt::black, kSize, 255.0, kEllipse);
    const PixelProbe probe = painted(element, 1.0, QPen(Qt::red, 4));
    QCOMPARE(probe.at(inside(0, 5)), QColor(Qt::red));
    QCOMPARE(probe.at(inside(0, 0)), QColor(Qt::black));
}

void TestWaitElement::otherShapesPaintNothing_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("0") << 0;
    QTest::newRow("3") << 3;
    QTest::newRow("-1") << -1;
}

void TestWaitElement::otherShapesPaintNothing()
{
    QFETCH(int, shape);
    WaitElement element(Qt::black, kSize, 255.0, shape);
    const PixelProbe probe = painted(element, 1.0, QPen(Qt::red));
    QCOMPARE(probe.countColours(QRect(0, 0, kSide, kSide)), 1);
}

void TestWaitElement::painterIsLeftAsItWas()
{
    QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    for (const int shape : {kEllipse, kRectangle, 0}) {
        WaitElement element(Qt::black, kSize, 255.0, shape);
        element.paint(&painter);
        QCOMPARE(painter.pen(), QPen(Qt::red));
        QCOMPARE(painter.brush(), QBrush(Qt::green));
    }
}

void TestWaitElement::nullPainterIsIgnored()
{
    WaitElement element(Qt::black, kSize, 77.0, kRectangle);
    element.paint(nullptr);
    QCOMPARE(element.property(kAlpha).toDouble(), 77.0);
}

void TestWaitElement::emptyAndNegativeSizesDoNoHarm_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("empty") << QSize(0, 0);
    QTest::newRow("invalid") << QSize();
    QTest::newRow("negative") << QSize(-20, -10);
}

void TestWaitElement::emptyAndNegativeSizesDoNoHarm()
{
    QFETCH(QSize, size);
    for (const int shape : {kEllipse, kRectangle}) {
        WaitElement element(Qt::black, size, 255.0, shape);
        QCOMPARE(painted(element).at(inside(39, 39)), QColor(Qt::white));
    }
}

void TestWaitElement::animationIsMadeByTheFirstStart()
{
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    QVERIFY(!element.findChild<QPropertyAnimation *>());
    element.startAnimation();
    const auto *animation = element.findChild<QPropertyAnimation *>();
    QVERIFY(animation);
    QCOMPARE(animation->propertyName(), kAlpha);
    QCOMPARE(animation->targetObject(), &element);
    QCOMPARE(animation->duration(), 800);
    QCOMPARE(animation->loopCount(), 1);
    QCOMPARE(animation->startValue(), QVariant(240.0));
    QCOMPARE(animation->endValue(), QVariant(10.0));
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    element.stopAnimation();
    element.startAnimation();
    QCOMPARE(element.findChildren<QPropertyAnimation *>().size(), 1);
}

void TestWaitElement::fadesFrom240To10In800Milliseconds_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<double>("alpha");
    QTest::newRow("start") << 0 << 240.0;
    QTest::newRow("quarter") << 200 << 182.5;
    QTest::newRow("half") << 400 << 125.0;
    QTest::newRow("near the end") << 790 << 12.875;
    QTest::newRow("end") << 800 << 10.0;
}

void TestWaitElement::fadesFrom240To10In800Milliseconds()
{
    QFETCH(int, time);
    QFETCH(double, alpha);
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    element.findChild<QPropertyAnimation *>()->setCurrentTime(time);
    QCOMPARE(element.property(kAlpha).toDouble(), alpha);
    QVERIFY(painted(element).isNear(inside(15, 5), greyOf(int(alpha)), 0));
}

void TestWaitElement::startWhileFadingChangesNothing()
{
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    element.findChild<QPropertyAnimation *>()->setCurrentTime(400);
    element.startAnimation();
    QCOMPARE(element.property(kAlpha).toDouble(), 125.0);
}

void TestWaitElement::startAfterTheEndLightsUpAgain()
{
    StepDriver clock;
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    clock.step(900);
    QCOMPARE(element.property(kAlpha).toDouble(), 10.0);
    QVERIFY(!clock.hasWork());
    element.startAnimation(); // kept when it ended
    QCOMPARE(element.property(kAlpha).toDouble(), 240.0);
}

void TestWaitElement::stopLeavesTheAlpha()
{
    StepDriver clock;
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    clock.step(400);
    element.stopAnimation();
    clock.step(200);
    QCOMPARE(element.property(kAlpha).toDouble(), 125.0);
}

void TestWaitElement::callsBeforeTheFirstStartDoNothing()
{
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.stopAnimation();
    element.pauseAnimation();
    element.resumeAnimation();
    QVERIFY(!element.findChild<QPropertyAnimation *>());
}

void TestWaitElement::pauseRestsAndResumeGoesOn()
{
    StepDriver clock;
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    clock.step(200);
    element.pauseAnimation();
    QVERIFY(!clock.hasWork());
    clock.step(5000);
    QCOMPARE(element.property(kAlpha).toDouble(), 182.5);
    element.resumeAnimation();
    QCOMPARE(element.property(kAlpha).toDouble(), 182.5);
    clock.step(200);
    QCOMPARE(element.property(kAlpha).toDouble(), 125.0);
}

void TestWaitElement::resumeStartsNoStoppedOne()
{
    StepDriver clock;
    WaitElement element(Qt::black, kSize, 10.0, kRectangle);
    element.startAnimation();
    element.pauseAnimation();
    element.stopAnimation();
    element.pauseAnimation(); // Qt warns when a stopped animation is paused
    element.resumeAnimation();
    QVERIFY(!clock.hasWork());
}

void TestWaitElement::fadingElementIsDestroyedCleanly()
{
    StepDriver clock;
    {
        WaitElement element(Qt::black, kSize, 10.0, kRectangle);
        element.startAnimation();
        clock.step(100);
        QVERIFY(clock.hasWork());
    }
    QVERIFY(!clock.hasWork());
    QObject parent;
    auto *owned = new WaitElement(Qt::black, kSize, 10.0, kRectangle);
    owned->setParent(&parent);
    owned->startAnimation();
}

int main(int argc, char **argv)
{
    return runTest<TestWaitElement>(argc, argv);
}

#include "tst_WaitElement.moc"
