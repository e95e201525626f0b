#include "TXImageViewer.h"

#include "ImageViewerEvents.h"
#include "TestBase.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr QSize kViewerSize(400, 300);
constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
/// Not one of those that are named.
constexpr auto kOtherScaling = static_cast<TXImageViewer::Scaling>(7);
constexpr auto kOtherRelation = static_cast<TXImageViewer::Relation>(-3);

QList<QPixmap> pictures(int count, int width, int height)
{
    return {count, picture(width, height)};
}

} // namespace

class TestTXImageViewer : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        viewer = std::make_unique<PaintedViewer>();
        viewer->resize(kViewerSize);
    }
    void finish() override { viewer.reset(); }

private slots:
    void newViewerShowsNothing();
    void enumerationsHaveTheirNumbers();
    void signalsComeInTheirOrder();
    void firstPictureIsFitted();
    void laterPictureKeepsScaleAndPosition();
    void laterPictureOfAnotherSizeIsFittedWhileTheFitHolds();
    void picturesRepeatTheScalingThatHolds_data();
    void picturesRepeatTheScalingThatHolds();
    void picturesOnAnInfiniteScaleAreFitted();
    void hintsFollowFromTheSizes_data();
    void hintsFollowFromTheSizes();
    void scalingWidensTheLimits_data();
    void scalingWidensTheLimits();
    void factorIsHeldToTheLimits_data();
    void factorIsHeldToTheLimits();
    void factorTellsOfTheSameScaleToo();
    void limitsComeInAnyOrder();
    void limitsMoveAScaleOutsideOnly_data();
    void limitsMoveAScaleOutsideOnly();
    void scaleChangedTellsAFloat();
    void sizeRepeatsFitAndShareOnly_data();
    void sizeRepeatsFitAndShareOnly();
    void positionIsKeptAsGiven();
    void settersRepaint_data();
    void settersRepaint();

private:
    std::unique_ptr<PaintedViewer> viewer;
};

void TestTXImageViewer::newViewerShowsNothing()
{
    QCOMPARE(viewer->pixmaps().size(), 0);
    QCOMPARE(viewer->scale(), -1.0);
    QCOMPARE(viewer->position(), QPointF(0.0, 0.0));
    QVERIFY(viewer->testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(viewer->focusPolicy(), Qt::StrongFocus);
    viewer->resize(100, 100);
    QCOMPARE(viewer->scale(), -1.0);
}

void TestTXImageViewer::enumerationsHaveTheirNumbers()
{
    QCOMPARE(int(TXImageViewer::ScaleFit), 0);
    QCOMPARE(int(TXImageViewer::ScaleShare), 1);
    QCOMPARE(int(TXImageViewer::ScaleNatural), 2);
    QCOMPARE(int(TXImageViewer::Absolute), 0);
    QCOMPARE(int(TXImageViewer::Relative), 1);
}

void TestTXImageViewer::signalsComeInTheirOrder()
{
    const QMetaObject &meta = TXImageViewer::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.method(first).methodSignature(),
             "hover(QPointF,Qt::MouseButton,Qt::MouseButtons,Qt::KeyboardModifiers,bool,int,"
             "QPoint)");
    QCOMPARE(meta.method(first + 1).methodSignature(), "scaleChanged(float)");
    QCOMPARE(meta.methodCount(), first + 2);
}

void TestTXImageViewer::firstPictureIsFitted()
{
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setPixmap(picture(800, 100));
    QCOMPARE(viewer->scale(), 0.5);
    QCOMPARE(viewer->pixmaps().size(), 1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), 0.5F);
}

void TestTXImageViewer::laterPictureKeepsScaleAndPosition()
{
    viewer->setPixmap(picture(800, 100));
    viewer->scale(3.0, TXImageViewer::Absolute);
    viewer->setPosition({20.0, 5.0});
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setPixmap(picture(600, 600));
    QCOMPARE(viewer->scale(), 3.0);
    QCOMPARE(viewer->position(), QPointF(20.0, 5.0));
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewer::laterPictureOfAnotherSizeIsFittedWhileTheFitHolds()
{
    viewer->setPixmap(picture(800, 100));
    viewer->setPosition({20.0, 5.0});
    viewer->setPixmap(picture(800, 100));
    QCOMPARE(viewer->scale(), 0.5);
    viewer->setPixmap(picture(200, 150));
    QCOMPARE(viewer->scale(), 2.0);
    QCOMPARE(viewer->position(), QPointF(20.0, 5.0));
}

void TestTXImageViewer::picturesRepeatTheScalingThatHolds_data()
{
    QTest::addColumn<int>("scaling");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("signalsSent");
    QTest::newRow("fit") << 0 << 1.0 << 1;
    QTest::newRow("share") << 1 << 0.25 << 1;
    QTest::newRow("natural") << 2 << 1.0 << 0;
    QTest::newRow("any other") << 7 << 1.0 << 0;
}

void TestTXImageViewer::picturesRepeatTheScalingThatHolds()
{
    QFETCH(const int, scaling);
    QFETCH(const double, scale);
    viewer->setPixmaps(pictures(2, 1000, 1000));
    viewer->scale(TXImageViewer::Scaling(scaling));
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setPixmaps(pictures(4, 100, 100));
    QCOMPARE(viewer->scale(), scale);
    QTEST(int(changed.size()), "signalsSent");
}

void TestTXImageViewer::picturesOnAnInfiniteScaleAreFitted()
{
    viewer->setScaleLimits(1.0, kInfinite);
    viewer->scale(kInfinite, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), kInfinite);
    viewer->setPixmap(picture(200, 150));
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewer::hintsFollowFromTheSizes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("scaling");
    QTest::addColumn<double>("hint");
    QTest::newRow("fit, wide") << 1 << QSize(800, 100) << 0 << 0.5;
    QTest::newRow("fit, high") << 1 << QSize(100, 1200) << 0 << 0.25;
    QTest::newRow("fit, two zones") << 2 << QSize(800, 100) << 0 << 0.25;
    QTest::newRow("fit, three zones") << 3 << QSize(100, 1) << 0 << 400.0 / 3.0 / 100.0;
    QTest::newRow("share, one zone") << 1 << QSize(800, 100) << 1 << 1.0;
    QTest::newRow("share, two zones") << 2 << QSize(800, 100) << 1 << 0.5;
    QTest::newRow("share, three zones") << 3 << QSize(800, 100) << 1 << 400.0 / 3.0 / 400.0;
    QTest::newRow("share, no zone") << 0 << QSize() << 1 << kLargest / 400.0;
    QTest::newRow("fit, no zone") << 0 << QSize() << 0 << kInfinite;
    QTest::newRow("natural") << 2 << QSize(800, 100) << 2 << 1.0;
    QTest::newRow("any other") << 2 << QSize(800, 100) << int(kOtherScaling) << 1.0;
}

void TestTXImageViewer::hintsFollowFromTheSizes()
{
    QFETCH(const int, count);
    QFETCH(const QSize, size);
    QFETCH(const int, scaling);
    QFETCH(const double, hint);
    viewer->setPixmaps(pictures(count, size.width(), size.height()));
    viewer->scale(2.0, TXImageViewer::Absolute);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QCOMPARE(viewer->scaleHint(TXImageViewer::Scaling(scaling)), hint);
    QCOMPARE(viewer->scale(), 2.0);
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewer::scalingWidensTheLimits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("scaling");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("fit of a large picture")
        << QSize(400000, 1) << 0 << 0.0078125 << 16.0 << 0.001 << 0.001 << 16.0;
    QTest::newRow("fit of a small picture")
        << QSize(4, 3) << 0 << 0.0078125 << 16.0 << 100.0 << 0.0078125 << 100.0;
    QTest::newRow("fit within") << QSize(200, 150) << 0 << 0.5 << 4.0 << 2.0 << 0.5 << 4.0;
    QTest::newRow("share below") << QSize(200, 150) << 1 << 2.0 << 4.0 << 1.0 << 1.0 << 4.0;
    QTest::newRow("natural above") << QSize(200, 150) << 2 << 0.25 << 0.5 << 1.0 << 0.25 << 1.0;
}

void TestTXImageViewer::scalingWidensTheLimits()
{
    QFETCH(const QSize, size);
    QFETCH(const int, scaling);
    QFETCH(const double, a);
    QFETCH(const double, b);
    QFETCH(const double, least);
    QFETCH(const double, most);
    viewer->setPixmap(picture(size.width(), size.height()));
    viewer->scale(TXImageViewer::ScaleNatural);
    viewer->setScaleLimits(a, b);
    viewer->scale(TXImageViewer::Scaling(scaling));
    QTEST(viewer->scale(), "scale");
    viewer->scale(0.0, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), least);
    viewer->scale(1e9, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), most);
}

void TestTXImageViewer::factorIsHeldToTheLimits_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("relation");
    QTest::addColumn<double>("scale");
    const int other = int(kOtherRelation);
    QTest::newRow("absolute") << 3.0 << 0 << 3.0;
    QTest::newRow("relative") << 3.0 << 1 << 6.0;
    QTest::newRow("any other is relative") << 3.0 << other << 6.0;
    QTest::newRow("absolute, too large") << 16.5 << 0 << 16.0;
    QTest::newRow("relative, too large") << 8.5 << 1 << 16.0;
    QTest::newRow("absolute, too small") << 0.001 << 0 << 0.0078125;
    QTest::newRow("relative, too small") << 0.001 << 1 << 0.0078125;
    QTest::newRow("at the upper limit") << 8.0 << 1 << 16.0;
    QTest::newRow("nothing") << 0.0 << 0 << 0.0078125;
    QTest::newRow("times nothing") << 0.0 << 1 << 0.0078125;
    QTest::newRow("negative") << -3.0 << 0 << 0.0078125;
    QTest::newRow("times negative") << -3.0 << 1 << 0.0078125;
    QTest::newRow("infinite") << kInfinite << 0 << 16.0;
    QTest::newRow("times infinite") << kInfinite << 1 << 16.0;
    QTest::newRow("minus infinite") << -kInfinite << 0 << 0.0078125;
}

void TestTXImageViewer::factorIsHeldToTheLimits()
{
    QFETCH(const double, factor);
    QFETCH(const int, relation);
    QFETCH(const double, scale);
    viewer->setPixmap(picture(200, 150));
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->scale(factor, TXImageViewer::Relation(relation));
    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), float(scale));
}

void TestTXImageViewer::factorTellsOfTheSameScaleToo()
{
    viewer->setPixmap(picture(200, 150));
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->scale(1.0, TXImageViewer::Relative);
    viewer->scale(TXImageViewer::ScaleFit);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewer::limitsComeInAnyOrder()
{
    viewer->setPixmap(picture(200, 150));
    viewer->setScaleLimits(4.0, 0.5);
    viewer->scale(100.0, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), 4.0);
    viewer->scale(0.01, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), 0.5);
}

void TestTXImageViewer::limitsMoveAScaleOutsideOnly_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("inside") << 1.0 << 3.0 << 2.0 << false;
    QTest::newRow("at the lower limit") << 2.0 << 3.0 << 2.0 << false;
    QTest::newRow("at the upper limit") << 1.0 << 2.0 << 2.0 << false;
    QTest::newRow("below") << 2.5 << 3.0 << 2.5 << true;
    QTest::newRow("above") << 1.0 << 1.5 << 1.5 << true;
    QTest::newRow("above, turned round") << 1.5 << 1.0 << 1.5 << true;
    QTest::newRow("negative") << -1.0 << 16.0 << 2.0 << false;
    QTest::newRow("both negative") << -1.0 << -3.0 << -1.0 << true;
}

void TestTXImageViewer::limitsMoveAScaleOutsideOnly()
{
    QFETCH(const double, a);
    QFETCH(const double, b);
    QFETCH(const bool, isMoved);
    viewer->setPixmap(picture(200, 150));
    viewer->settle();
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setScaleLimits(a, b);
    QTEST(viewer->scale(), "scale");
    QCOMPARE(changed.size(), isMoved ? 1 : 0);
    QCOMPARE(viewer->isRepainted(), isMoved);
}

void TestTXImageViewer::scaleChangedTellsAFloat()
{
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->scale(0.1, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), 0.1);
    QCOMPARE(changed.at(0).at(0).metaType(), QMetaType(QMetaType::Float));
    QCOMPARE(changed.at(0).at(0).toFloat(), 0.1F);
}

void TestTXImageViewer::sizeRepeatsFitAndShareOnly_data()
{
    QTest::addColumn<int>("scaling");
    QTest::addColumn<bool>("isEndedByFactor");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("signalsSent");
    QTest::newRow("fit") << 0 << false << 0.5 << 1;
    QTest::newRow("share") << 1 << false << 0.5 << 1;
    QTest::newRow("natural") << 2 << false << 1.0 << 0;
    QTest::newRow("fit, ended by a factor") << 0 << true << 1.5 << 0;
    QTest::newRow("share, ended by a factor") << 1 << true << 1.5 << 0;
}

void TestTXImageViewer::sizeRepeatsFitAndShareOnly()
{
    QFETCH(const int, scaling);
    QFETCH(const bool, isEndedByFactor);
    viewer->setPixmaps(pictures(2, 200, 150));
    viewer->settle();
    viewer->scale(TXImageViewer::Scaling(scaling));
    if (isEndedByFactor) {
        viewer->scale(1.5, TXImageViewer::Absolute);
    }
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->resize(200, 600);
    QTEST(viewer->scale(), "scale");
    QTEST(int(changed.size()), "signalsSent");
}

void TestTXImageViewer::positionIsKeptAsGiven()
{
    viewer->setPixmap(picture(200, 150));
    viewer->setPosition({-1e6, 12.5});
    QCOMPARE(viewer->position(), QPointF(-1e6, 12.5));
}

void TestTXImageViewer::settersRepaint_data()
{
    using Call = std::function<void(TXImageViewer &)>;
    QTest::addColumn<Call>("call");
    const auto add = [](const char *name, const Call &call) {
        QTest::newRow(name) << call;
    };
    add("pictures", [](TXImageViewer &v) { v.setPixmap(picture(10, 10)); });
    add("factor", [](TXImageViewer &v) { v.scale(1.0, TXImageViewer::Relative); });
    add("scaling", [](TXImageViewer &v) { v.scale(TXImageViewer::ScaleNatural); });
    add("position", [](TXImageViewer &v) { v.setPosition({1.0, 1.0}); });
    add("marker", [](TXImageViewer &v) { v.setMouseMarker(picture(5, 5), {2, 2}); });
    add("overlay", [](TXImageViewer &v) { v.setOverlay({}); });
    add("wheel", [](TXImageViewer &v) { turnWheelBy(v, {0, 120}); });
    add("key", [](TXImageViewer &v) { pressKey(v, Qt::Key_Right); });
}

void TestTXImageViewer::settersRepaint()
{
    QFETCH(const std::function<void(TXImageViewer &)>, call);
    viewer->setPixmap(picture(200, 150));
    viewer->scale(4.0, TXImageViewer::Absolute);
    viewer->settle();
    QVERIFY(!viewer->isRepainted());
    call(*viewer);
    QVERIFY(viewer->isRepainted());
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewer>(argc, argv);
}

#include "tst_TXImageViewer.moc"
