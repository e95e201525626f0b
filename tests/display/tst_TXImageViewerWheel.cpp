#include "TXImageViewer.h"

#include "ImageViewerEvents.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <limits>
#include <memory>

namespace {

constexpr int kLeastInt = std::numeric_limits<int>::min();
constexpr int kMostInt = std::numeric_limits<int>::max();
constexpr QPoint kIn(0, 120);
constexpr QPoint kOut(0, -120);

/// Hands events over as they are, without what the application does to them on the way.
class OpenViewer : public TXImageViewer
{
public:
    using TXImageViewer::wheelEvent;
};

} // namespace

class TestTXImageViewerWheel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        viewer = std::make_unique<TXImageViewer>();
        viewer->resize(400, 300);
        viewer->setPixmap(picture(200, 150));
        viewer->scale(1.0, TXImageViewer::Absolute);
    }
    void finish() override { viewer.reset(); }

private slots:
    void wheelZoomsByTwo_data();
    void wheelZoomsByTwo();
    void lastStepIsShorterAndToldOf();
    void stepsAtTheLimitsAreToldOf_data();
    void stepsAtTheLimitsAreToldOf();
    void negativeLimitLeavesTheWheelToTheParent();
    void limitOfNothingDoesNotTurnTheWheelOff();
    void negativeLimitDoesNotTurnFactorsOff();
    void turnTooSmallToCountLeavesTheEventAsItCame_data();
    void turnTooSmallToCountLeavesTheEventAsItCame();
    void wheelDoesNotEndFitAndShare_data();
    void wheelDoesNotEndFitAndShare();
    void wheelBeforeTheFirstPictureSetsAScale();
    void wheelDoesNotTakeTheFocus();

private:
    std::unique_ptr<TXImageViewer> viewer;
};

void TestTXImageViewerWheel::wheelZoomsByTwo_data()
{
    QTest::addColumn<QPoint>("angleDelta");
    QTest::addColumn<double>("scale");
    const auto add = [](const char *name, QPoint angleDelta, double scale) {
        QTest::newRow(name) << angleDelta << scale;
    };
    add("away", kIn, 2.0);
    add("toward", kOut, 0.5);
    add("right", {120, 0}, 0.5);
    add("left", {-120, 0}, 0.5);
    add("least step away, rounded up", {0, 4}, 2.0);
    add("least step toward, rounded down", {0, -4}, 0.5);
    add("least step sideways", {4, 0}, 0.5);
    add("least step sideways, other way", {-4, 0}, 0.5);
    add("both ways", {120, 8}, 2.0);
    add("both ways, too little away", {120, 3}, 0.5);
    add("both ways, toward", {120, -120}, 0.5);
    add("several notches", {0, 480}, 2.0);
    add("a million", {0, 1000000}, 2.0);
    add("minus a million", {0, -1000000}, 0.5);
    add("most", {kMostInt, kMostInt}, 2.0);
    add("least", {kLeastInt, kLeastInt}, 0.5);
}

void TestTXImageViewerWheel::wheelZoomsByTwo()
{
    QFETCH(const QPoint, angleDelta);
    QFETCH(const double, scale);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(turnWheelBy(*viewer, angleDelta));
    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), float(scale));
}

void TestTXImageViewerWheel::lastStepIsShorterAndToldOf()
{
    viewer->setScaleLimits(0.75, 3.0);
    viewer->scale(2.0, TXImageViewer::Absolute);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    turnWheelBy(*viewer, kIn);
    QCOMPARE(viewer->scale(), 3.0);
    turnWheelBy(*viewer, kOut);
    QCOMPARE(viewer->scale(), 1.5);
    turnWheelBy(*viewer, kOut);
    QCOMPARE(viewer->scale(), 0.75);
    QCOMPARE(changed.size(), 3);
}

void TestTXImageViewerWheel::stepsAtTheLimitsAreToldOf_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPoint>("angleDelta");
    QTest::newRow("upper") << 16.0 << kIn;
    QTest::newRow("lower") << 0.0078125 << kOut;
}

void TestTXImageViewerWheel::stepsAtTheLimitsAreToldOf()
{
    QFETCH(const double, scale);
    QFETCH(const QPoint, angleDelta);
    viewer->scale(scale, TXImageViewer::Absolute);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(turnWheelBy(*viewer, angleDelta));
    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), float(scale));
}

void TestTXImageViewerWheel::negativeLimitLeavesTheWheelToTheParent()
{
    viewer->setScaleLimits(-1.0, 16.0);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    for (const QPoint &angleDelta : {kIn, kOut, QPoint(120, 0), QPoint(0, 0)}) {
        QVERIFY(!turnWheelBy(*viewer, angleDelta));
    }
    QCOMPARE(viewer->scale(), 1.0);
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewerWheel::limitOfNothingDoesNotTurnTheWheelOff()
{
    viewer->setScaleLimits(0.0, 16.0);
    QVERIFY(turnWheelBy(*viewer, kOut));
    QCOMPARE(viewer->scale(), 0.5);
}

void TestTXImageViewerWheel::negativeLimitDoesNotTurnFactorsOff()
{
    viewer->setScaleLimits(-1.0, 16.0);
    viewer->scale(3.0, TXImageViewer::Relative);
    QCOMPARE(viewer->scale(), 3.0);
    viewer->scale(-0.5, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), -0.5);
    viewer->scale(-2.0, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), -1.0);
    viewer->scale(TXImageViewer::ScaleFit);
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewerWheel::turnTooSmallToCountLeavesTheEventAsItCame_data()
{
    QTest::addColumn<QPoint>("angleDelta");
    QTest::addColumn<bool>("isAccepted");
    for (const QPoint &angleDelta :
         {QPoint(0, 0), QPoint(0, 3), QPoint(0, -3), QPoint(3, 3), QPoint(-3, -3)}) {
        for (const bool isAccepted : {true, false}) {
            QTest::addRow("%d, %d, %s", angleDelta.x(), angleDelta.y(),
                          isAccepted ? "accepted" : "ignored")
                << angleDelta << isAccepted;
        }
    }
}

void TestTXImageViewerWheel::turnTooSmallToCountLeavesTheEventAsItCame()
{
    QFETCH(const QPoint, angleDelta);
    QFETCH(const bool, isAccepted);
    OpenViewer open;
    open.setPixmap(picture(20, 20));
    const double before = open.scale();
    QSignalSpy changed(&open, SIGNAL(scaleChanged(float)));
    QWheelEvent event({}, {}, {}, angleDelta, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    event.setAccepted(isAccepted);
    open.wheelEvent(&event);
    QCOMPARE(event.isAccepted(), isAccepted);
    QCOMPARE(open.scale(), before);
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewerWheel::wheelDoesNotEndFitAndShare_data()
{
    QTest::addColumn<TXImageViewer::Scaling>("scaling");
    QTest::addColumn<double>("scale");
    QTest::newRow("fit") << TXImageViewer::ScaleFit << 4.0;
    QTest::newRow("share") << TXImageViewer::ScaleShare << 1.0;
    QTest::newRow("natural") << TXImageViewer::ScaleNatural << 2.0;
}

void TestTXImageViewerWheel::wheelDoesNotEndFitAndShare()
{
    QFETCH(const TXImageViewer::Scaling, scaling);
    viewer->show();
    viewer->scale(scaling);
    const double before = viewer->scale();
    turnWheelBy(*viewer, kIn);
    QCOMPARE(viewer->scale(), 2.0 * before);
    viewer->resize(800, 600);
    QTEST(viewer->scale(), "scale");
}

void TestTXImageViewerWheel::wheelBeforeTheFirstPictureSetsAScale()
{
    TXImageViewer empty;
    QVERIFY(turnWheelBy(empty, kIn));
    QCOMPARE(empty.scale(), 0.0078125);
    empty.setPixmap(picture(200, 150));
    QCOMPARE(empty.scale(), 0.0078125);
}

void TestTXImageViewerWheel::wheelDoesNotTakeTheFocus()
{
    QVERIFY((viewer->focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerWheel>(argc, argv);
}

#include "tst_TXImageViewerWheel.moc"
