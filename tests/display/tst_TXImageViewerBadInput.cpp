#include "TXImageViewer.h"

#include "ImageViewerEvents.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kTiniest = std::numeric_limits<double>::denorm_min();
constexpr int kMostInt = std::numeric_limits<int>::max();
constexpr int kLeastInt = std::numeric_limits<int>::min();

/// All that a user may do, at ordinary places and at hostile ones.
void useAll(TXImageViewer &viewer)
{
    for (const double place : {0.0, 50.0, -1e300, 1e300, kInfinite, -kInfinite, kNoNumber}) {
        moveMouse(viewer, {place, 50.0});
        pressMouse(viewer, {50.0, place});
        dragMouse(viewer, {70.0, place});
        dragMouse(viewer, {place, place});
        releaseMouse(viewer, {60.0, 40.0});
    }
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Plus, Qt::Key_Minus}) {
        pressKey(viewer, key);
    }
    turnWheelBy(viewer, {0, 1000000});
    turnWheelBy(viewer, {0, -1000000});
    turnWheelBy(viewer, {0, 0});
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&viewer, &leave);
}

/// Whether what a viewer tells of itself are numbers.
bool isOfNumbers(const TXImageViewer &viewer)
{
    return !std::isnan(viewer.scale()) && !std::isnan(viewer.position().x())
        && !std::isnan(viewer.position().y());
}

} // namespace

class TestTXImageViewerBadInput : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        viewer = std::make_unique<TXImageViewer>();
        viewer->resize(400, 300);
    }
    void finish() override { viewer.reset(); }

private slots:
    void factorThatIsNoNumberDoesNothing_data();
    void factorThatIsNoNumberDoesNothing();
    void limitThatIsNoNumberDoesNothing_data();
    void limitThatIsNoNumberDoesNothing();
    void extremeLimitsHold_data();
    void extremeLimitsHold();
    void limitsMoveTheMissingScaleToo();
    void positionThatIsNoNumberKeepsTheCoordinate();
    void infinitePositionIsKeptAsGiven();
    void emptyListOnANewViewerMakesTheScaleInfinite();
    void firstPictureWithoutASizeMakesTheScaleInfinite();
    void viewerWithoutASizeKeepsItsScaleForAPictureWithoutOne();
    void oneLengthOfNothingGivesAHint_data();
    void oneLengthOfNothingGivesAHint();
    void viewerWithoutASizeIsFittedLater();
    void viewerWithoutASizeHasNoZone_data();
    void viewerWithoutASizeHasNoZone();
    void oddPicturesAreFitted_data();
    void oddPicturesAreFitted();
    void dragAtAScaleOfNothingKeepsNumbers();
    void pixelsBeyondIntAreTheOutermost_data();
    void pixelsBeyondIntAreTheOutermost();
    void everyUseLeavesNumbers_data();
    void everyUseLeavesNumbers();
    void thousandsOfPicturesHaveZones();

private:
    std::unique_ptr<TXImageViewer> viewer;
};

void TestTXImageViewerBadInput::factorThatIsNoNumberDoesNothing_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("scale");
    QTest::addColumn<TXImageViewer::Relation>("relation");
    QTest::newRow("absolute") << kNoNumber << 2.0 << TXImageViewer::Absolute;
    QTest::newRow("relative") << kNoNumber << 2.0 << TXImageViewer::Relative;
    QTest::newRow("infinite times nothing") << kInfinite << 0.0 << TXImageViewer::Relative;
    QTest::newRow("nothing times infinite") << 0.0 << kInfinite << TXImageViewer::Relative;
}

void TestTXImageViewerBadInput::factorThatIsNoNumberDoesNothing()
{
    QFETCH(const double, factor);
    QFETCH(const double, scale);
    QFETCH(const TXImageViewer::Relation, relation);
    viewer->setPixmap(picture(200, 150));
    viewer->setScaleLimits(0.0, kInfinite);
    viewer->scale(scale, TXImageViewer::Absolute);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->scale(factor, relation);
    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(changed.size(), 0);

    viewer->scale(TXImageViewer::ScaleFit);
    viewer->scale(kNoNumber, relation);
    viewer->setPixmap(picture(400, 300));
    QCOMPARE(viewer->scale(), 1.0);
}

void TestTXImageViewerBadInput::limitThatIsNoNumberDoesNothing_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::newRow("first") << kNoNumber << 3.0;
    QTest::newRow("second") << 3.0 << kNoNumber;
    QTest::newRow("both") << kNoNumber << kNoNumber;
}

void TestTXImageViewerBadInput::limitThatIsNoNumberDoesNothing()
{
    QFETCH(const double, a);
    QFETCH(const double, b);
    viewer->setPixmap(picture(200, 150));
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setScaleLimits(a, b);
    QCOMPARE(viewer->scale(), 2.0);
    QCOMPARE(changed.size(), 0);
    viewer->scale(100.0, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), 16.0);
    viewer->scale(0.0, TXImageViewer::Absolute);
    QCOMPARE(viewer->scale(), 0.0078125);
}

void TestTXImageViewerBadInput::extremeLimitsHold_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("scale");
    QTest::newRow("nothing") << 0.0 << 0.0 << 0.0;
    QTest::newRow("infinite") << kInfinite << kInfinite << kInfinite;
    QTest::newRow("minus infinite") << -kInfinite << -kInfinite << -kInfinite;
    QTest::newRow("all") << -kInfinite << kInfinite << 2.0;
    QTest::newRow("largest") << kLargest << kInfinite << kLargest;
    QTest::newRow("tiniest") << 0.0 << kTiniest << kTiniest;
}

void TestTXImageViewerBadInput::extremeLimitsHold()
{
    QFETCH(const double, a);
    QFETCH(const double, b);
    viewer->setPixmap(picture(200, 150));
    viewer->setScaleLimits(a, b);
    QTEST(viewer->scale(), "scale");
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
    viewer->scale(TXImageViewer::ScaleFit);
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewerBadInput::limitsMoveTheMissingScaleToo()
{
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setScaleLimits(-1.0, 16.0);
    QCOMPARE(viewer->scale(), -1.0);
    viewer->setScaleLimits(0.5, 16.0);
    QCOMPARE(viewer->scale(), 0.5);
    QCOMPARE(changed.size(), 1);
    viewer->setPixmap(picture(200, 150));
    QCOMPARE(viewer->scale(), 0.5);
}

void TestTXImageViewerBadInput::positionThatIsNoNumberKeepsTheCoordinate()
{
    viewer->setPosition({3.0, 4.0});
    viewer->setPosition({kNoNumber, 5.0});
    QCOMPARE(viewer->position(), QPointF(3.0, 5.0));
    viewer->setPosition({6.0, kNoNumber});
    QCOMPARE(viewer->position(), QPointF(6.0, 5.0));
}

void TestTXImageViewerBadInput::infinitePositionIsKeptAsGiven()
{
    viewer->setPixmap(picture(2000, 1500));
    viewer->scale(1.0, TXImageViewer::Absolute);
    viewer->setPosition({kInfinite, -kInfinite});
    QCOMPARE(viewer->position().x(), kInfinite);
    QCOMPARE(viewer->position().y(), -kInfinite);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
    pressKey(*viewer, Qt::Key_Right);
    QVERIFY(std::isfinite(viewer->position().x()));
    QVERIFY(std::isfinite(viewer->position().y()));
}

void TestTXImageViewerBadInput::emptyListOnANewViewerMakesTheScaleInfinite()
{
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setPixmaps({});
    QCOMPARE(viewer->scale(), kInfinite);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), std::numeric_limits<float>::infinity());
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
    viewer->setPixmap(picture(200, 150));
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewerBadInput::firstPictureWithoutASizeMakesTheScaleInfinite()
{
    viewer->setPixmaps({QPixmap(), picture(10, 10)});
    QCOMPARE(viewer->scale(), kInfinite);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {100.0, 150.0});
    QCOMPARE(hovered.at(0).at(4).toBool(), false);
    QCOMPARE(hovered.at(0).at(5).toInt(), 0);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
}

void TestTXImageViewerBadInput::viewerWithoutASizeKeepsItsScaleForAPictureWithoutOne()
{
    viewer->resize(0, 0);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    viewer->setPixmap(QPixmap());
    QVERIFY(std::isnan(viewer->scaleHint(TXImageViewer::ScaleFit)));
    QVERIFY(std::isnan(viewer->scaleHint(TXImageViewer::ScaleShare)));
    QCOMPARE(viewer->scale(), -1.0);
    QCOMPARE(changed.size(), 1);
    viewer->scale(2.0, TXImageViewer::Absolute);
    viewer->scale(TXImageViewer::ScaleShare);
    QCOMPARE(viewer->scale(), 2.0);
    viewer->show();
    viewer->resize(400, 300);
    QCOMPARE(viewer->scale(), 1.0);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
}

void TestTXImageViewerBadInput::oneLengthOfNothingGivesAHint_data()
{
    QTest::addColumn<QSize>("viewerSize");
    QTest::addColumn<QPixmap>("pixmap");
    QTest::addColumn<double>("hint");
    QTest::newRow("no width, no picture") << QSize(0, 300) << QPixmap() << kInfinite;
    QTest::newRow("no height, no picture") << QSize(400, 0) << QPixmap() << kInfinite;
    QTest::newRow("no width") << QSize(0, 300) << picture(20, 10) << 0.0;
    QTest::newRow("no height") << QSize(400, 0) << picture(20, 10) << 0.0;
}

void TestTXImageViewerBadInput::oneLengthOfNothingGivesAHint()
{
    QFETCH(const QSize, viewerSize);
    QFETCH(const QPixmap, pixmap);
    viewer->resize(viewerSize);
    viewer->setPixmap(pixmap);
    QTEST(viewer->scaleHint(TXImageViewer::ScaleFit), "hint");
}

void TestTXImageViewerBadInput::viewerWithoutASizeIsFittedLater()
{
    viewer->resize(0, 0);
    viewer->setPixmap(picture(200, 150));
    QCOMPARE(viewer->scale(), 0.0);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
    viewer->show();
    viewer->resize(400, 300);
    QCOMPARE(viewer->scale(), 2.0);
}

void TestTXImageViewerBadInput::viewerWithoutASizeHasNoZone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("no width") << QSize(0, 300);
    QTest::newRow("no height") << QSize(400, 0);
    QTest::newRow("neither") << QSize(0, 0);
}

void TestTXImageViewerBadInput::viewerWithoutASizeHasNoZone()
{
    QFETCH(const QSize, size);
    viewer->resize(size);
    viewer->setPixmap(picture(200, 150));
    viewer->scale(1.0, TXImageViewer::Absolute);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {0.0, 0.0});
    QCOMPARE(hovered.at(0).at(5).toInt(), -1);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
}

void TestTXImageViewerBadInput::oddPicturesAreFitted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("scale");
    QTest::newRow("1 x 1") << QSize(1, 1) << 300.0;
    QTest::newRow("30,000 x 1") << QSize(30000, 1) << 400.0 / 30000.0;
    QTest::newRow("1 x 30,000") << QSize(1, 30000) << 0.01;
}

void TestTXImageViewerBadInput::oddPicturesAreFitted()
{
    QFETCH(const QSize, size);
    viewer->setPixmap(picture(size.width(), size.height()));
    QTEST(viewer->scale(), "scale");
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
}

void TestTXImageViewerBadInput::dragAtAScaleOfNothingKeepsNumbers()
{
    viewer->setPixmap(picture(200, 150));
    viewer->setScaleLimits(0.0, 0.0);
    QCOMPARE(viewer->scale(), 0.0);
    pressMouse(*viewer, {100.0, 100.0});
    for (const double x : {110.0, 90.0}) {
        dragMouse(*viewer, {x, 100.0});
        QCOMPARE(viewer->position().x(), kInfinite);
        QCOMPARE(viewer->position().y(), 0.0);
    }
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {200.0, 150.0});
    QCOMPARE(hovered.at(0).at(4).toBool(), false);
    QCOMPARE(hovered.at(0).at(6).toPoint(), QPoint(0, 0));
}

void TestTXImageViewerBadInput::pixelsBeyondIntAreTheOutermost_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QPoint>("pixel");
    QTest::newRow("huge") << QPointF(1e300, -1e300) << QPoint(kLeastInt, kMostInt);
    QTest::newRow("infinite") << QPointF(-kInfinite, kInfinite) << QPoint(kMostInt, kLeastInt);
}

void TestTXImageViewerBadInput::pixelsBeyondIntAreTheOutermost()
{
    QFETCH(const QPointF, position);
    viewer->setPixmap(picture(200, 150));
    viewer->setPosition(position);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {200.0, 150.0});
    QTEST(hovered.at(0).at(6).toPoint(), "pixel");
    QCOMPARE(hovered.at(0).at(4).toBool(), false);
}

void TestTXImageViewerBadInput::everyUseLeavesNumbers_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale :
         {0.0, kTiniest, 1e-300, 1.0, 1e300, kLargest, kInfinite, -1.0, -1e-300, -kInfinite}) {
        QTest::addRow("%g", scale) << scale;
    }
}

void TestTXImageViewerBadInput::everyUseLeavesNumbers()
{
    QFETCH(const double, scale);
    viewer->setPixmaps({picture(200, 150), QPixmap(), picture(1, 1000)});
    for (const double least : {-kInfinite, 0.0}) {
        viewer->setScaleLimits(least, kInfinite);
        viewer->scale(scale, TXImageViewer::Absolute);
        QCOMPARE(viewer->scale(), std::max(scale, least));
        useAll(*viewer);
        QVERIFY(isOfNumbers(*viewer));
    }
}

void TestTXImageViewerBadInput::thousandsOfPicturesHaveZones()
{
    constexpr int kPictures = 5000;
    viewer->setPixmaps(QList<QPixmap>(kPictures, picture(20, 15)));
    QCOMPARE(viewer->scale(), 400.0 / kPictures / 20.0);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {400.0, 150.0});
    QCOMPARE(hovered.at(0).at(5).toInt(), kPictures - 1);
    useAll(*viewer);
    QVERIFY(isOfNumbers(*viewer));
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerBadInput>(argc, argv);
}

#include "tst_TXImageViewerBadInput.moc"
