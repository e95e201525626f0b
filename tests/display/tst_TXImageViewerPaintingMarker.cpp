#include "PlainViewer.h"

#include <QCursor>

using ImagePainting::filled;
using ImagePainting::painted;
using ImagePainting::quarters;

// The marker that follows the mouse in all zones.
class TestTXImageViewerPaintingMarker : public TestBase
{
    Q_OBJECT

private slots:
    void markerShowsInAllZones_data();
    void markerShowsInAllZones();
    void negativeHotSpotIsTheMiddle_data();
    void negativeHotSpotIsTheMiddle();
    void markerIsDrawnAtItsUsualSize_data();
    void markerIsDrawnAtItsUsualSize();
    void markerNeedsTheMouseInside_data();
    void markerNeedsTheMouseInside();
    void markerReachesIntoTheNextZone();
    void markerStandsOverTheOverlay();
    void markerIsDrawnOnceForEachPixelOfNarrowZones();
};

namespace {

/// A viewer somewhere in a window that stands somewhere on the screen.
struct Child
{
    Child()
    {
        window.setGeometry(40, 30, 400, 200);
        viewer = new ImagePainting::OpenViewer(&window);
        viewer->setGeometry(21, 33, 300, 100);
        window.show();
    }

    QWidget window;
    ImagePainting::OpenViewer *viewer = nullptr;
};

void putMouse(const TXImageViewer &viewer, const QPoint &place)
{
    QCursor::setPos(viewer.mapToGlobal(place));
    QCOMPARE(QCursor::pos(), viewer.mapToGlobal(place));
}

/// The part of the viewer that the marker has changed.
QRect changed(const QImage &image, const QImage &before)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            area |= image.pixel(x, y) == before.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return area;
}

QPixmap marker(const QSize &size, double ratio = 1.0)
{
    QPixmap pixmap = filled(size, Qt::black);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

void TestTXImageViewerPaintingMarker::markerShowsInAllZones_data()
{
    QTest::addColumn<QPoint>("mouse");
    QTest::addColumn<double>("devicePixelRatio");
    for (const double ratio : {1.0, 2.0}) {
        QTest::addRow("first zone at %g", ratio) << QPoint(60, 40) << ratio;
        QTest::addRow("second zone at %g", ratio) << QPoint(160, 40) << ratio;
        QTest::addRow("third zone at %g", ratio) << QPoint(260, 40) << ratio;
    }
}

void TestTXImageViewerPaintingMarker::markerShowsInAllZones()
{
    QFETCH(QPoint, mouse);
    QFETCH(double, devicePixelRatio);
    const QPixmap picture = filled({80, 80}, Qt::white);
    const Child child;
    child.viewer->setPixmaps({picture, picture, picture});
    child.viewer->setMouseMarker(quarters({8, 8}), {3, 2});
    putMouse(*child.viewer, mouse);

    const PixelProbe probe(*child.viewer, devicePixelRatio);
    for (const int left : {0, 100, 200}) {
        QCOMPARE(probe.at({left + 57, 38}), QColor(Qt::red));
        QCOMPARE(probe.at({left + 60, 41}), QColor(Qt::red));
        QCOMPARE(probe.at({left + 61, 41}), QColor(Qt::green));
        QCOMPARE(probe.at({left + 60, 42}), QColor(Qt::blue));
        QCOMPARE(probe.at({left + 64, 45}), QColor(Qt::yellow));
        QCOMPARE(probe.at({left + 56, 38}), QColor(Qt::white));
        QCOMPARE(probe.at({left + 65, 45}), QColor(Qt::white));
        QCOMPARE(probe.at({left + 57, 46}), QColor(Qt::white));
    }
}

void TestTXImageViewerPaintingMarker::negativeHotSpotIsTheMiddle_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QPoint>("hotSpot");
    QTest::addColumn<QRect>("place");
    const auto add = [](const char *name, QSize size, double ratio, QPoint hotSpot, QRect place) {
        QTest::newRow(name) << size << ratio << hotSpot << place;
    };
    // The mouse stands at 50, 40.
    add("none", {8, 6}, 1.0, {0, 0}, {50, 40, 8, 6});
    add("both", {8, 6}, 1.0, {-1, -1}, {46, 37, 8, 6});
    add("across", {8, 6}, 1.0, {-1, 0}, {46, 40, 8, 6});
    add("down", {8, 6}, 1.0, {0, -1}, {50, 37, 8, 6});
    add("far below zero", {8, 6}, 1.0, {-100, -100}, {46, 37, 8, 6});
    add("odd, rounded down", {9, 7}, 1.0, {-1, -1}, {46, 37, 9, 7});
    add("a pixel", {1, 1}, 1.0, {-1, -1}, {50, 40, 1, 1});
    add("of twice the pixels", {16, 12}, 2.0, {-1, -1}, {46, 37, 8, 6});
    add("of twice the pixels, odd", {18, 14}, 2.0, {-1, -1}, {46, 37, 9, 7});
    add("of twice the pixels, as given", {16, 12}, 2.0, {3, 2}, {47, 38, 8, 6});
}

void TestTXImageViewerPaintingMarker::negativeHotSpotIsTheMiddle()
{
    QFETCH(const QSize, size);
    QFETCH(const double, ratio);
    QFETCH(const QPoint, hotSpot);
    const Child child;
    child.viewer->setPixmaps({filled({90, 90}, Qt::white)});
    child.viewer->resize(100, 100);
    putMouse(*child.viewer, {50, 40});
    const QImage before = painted(*child.viewer);

    child.viewer->setMouseMarker(marker(size, ratio), hotSpot);
    QTEST(changed(painted(*child.viewer), before), "place");
}

void TestTXImageViewerPaintingMarker::markerIsDrawnAtItsUsualSize_data()
{
    QTest::addColumn<double>("markerRatio");
    QTest::addColumn<double>("screenRatio");
    for (const double markerRatio : {1.0, 2.0}) {
        for (const double screenRatio : {1.0, 2.0}) {
            QTest::addRow("%g on %g", markerRatio, screenRatio) << markerRatio << screenRatio;
        }
    }
}

void TestTXImageViewerPaintingMarker::markerIsDrawnAtItsUsualSize()
{
    QFETCH(const double, markerRatio);
    QFETCH(const double, screenRatio);
    const Child child;
    const QPixmap picture = filled({80, 80}, Qt::white);
    child.viewer->setPixmaps({picture, picture, picture});
    child.viewer->setMouseMarker(marker(QSize(8, 8) * markerRatio, markerRatio), {0, 0});
    putMouse(*child.viewer, {150, 40});

    const PixelProbe probe(*child.viewer, screenRatio);
    for (const int left : {0, 100, 200}) {
        QCOMPARE(probe.at({left + 50, 40}), QColor(Qt::black));
        QCOMPARE(probe.at({left + 57, 47}), QColor(Qt::black));
        QCOMPARE(probe.at({left + 58, 47}), QColor(Qt::white));
        QCOMPARE(probe.at({left + 57, 48}), QColor(Qt::white));
        QCOMPARE(probe.at({left + 49, 40}), QColor(Qt::white));
    }
}

void TestTXImageViewerPaintingMarker::markerNeedsTheMouseInside_data()
{
    QTest::addColumn<QPoint>("mouse");
    QTest::addColumn<bool>("isShown");
    // The picture stands from 10 to 89 of each zone.
    QTest::newRow("in the picture") << QPoint(50, 50) << true;
    QTest::newRow("at its top left") << QPoint(10, 10) << true;
    QTest::newRow("in its last pixel but one") << QPoint(88, 88) << true;
    QTest::newRow("in its last column") << QPoint(89, 50) << false;
    QTest::newRow("in its last row") << QPoint(50, 89) << false;
    QTest::newRow("beside the picture") << QPoint(95, 50) << false;
    QTest::newRow("above the picture") << QPoint(150, 3) << false;
    QTest::newRow("beside the viewer") << QPoint(250, 50) << false;
}

void TestTXImageViewerPaintingMarker::markerNeedsTheMouseInside()
{
    QFETCH(QPoint, mouse);
    QFETCH(bool, isShown);
    const QPixmap picture = filled({80, 80}, Qt::white);
    TXImageViewer viewer;
    viewer.resize(200, 100);
    viewer.setPixmaps({picture, picture});
    viewer.scale(1.0, TXImageViewer::Absolute);
    putMouse(viewer, mouse);
    const QImage without = painted(viewer);

    viewer.setMouseMarker(filled({4, 4}, Qt::black), {0, 0});
    QCOMPARE(painted(viewer) != without, isShown);
    viewer.setMouseMarker(QPixmap(), {0, 0});
    QCOMPARE(painted(viewer), without);
}

void TestTXImageViewerPaintingMarker::markerReachesIntoTheNextZone()
{
    const QPixmap picture = filled({100, 100}, Qt::white);
    TXImageViewer viewer;
    viewer.resize(300, 100);
    viewer.setPixmaps({picture, picture, picture});
    viewer.setMouseMarker(filled({20, 4}, Qt::black), {0, 0});
    putMouse(viewer, {190, 50});

    const PixelProbe probe(viewer);
    QCOMPARE(probe.at({5, 52}), QColor(Qt::white));
    QCOMPARE(probe.at({90, 52}), QColor(Qt::black));
    QCOMPARE(probe.at({109, 52}), QColor(Qt::black));
    QCOMPARE(probe.at({110, 52}), QColor(Qt::white));
    QCOMPARE(probe.at({209, 52}), QColor(Qt::black));
    QCOMPARE(probe.at({299, 52}), QColor(Qt::black));
}

void TestTXImageViewerPaintingMarker::markerStandsOverTheOverlay()
{
    TXImageViewer viewer;
    viewer.resize(200, 100);
    viewer.setPixmaps({filled({80, 80}, Qt::white), filled({80, 80}, Qt::white)});
    viewer.setMouseMarker(filled({4, 4}, Qt::black), {0, 0});
    viewer.setOverlay([](QPainter *painter, int, bool, QPointF, double) {
        painter->fillRect(0, 0, 1000, 1000, Qt::red);
    });
    putMouse(viewer, {50, 50});

    const PixelProbe probe(viewer);
    QCOMPARE(probe.at({50, 50}), QColor(Qt::black));
    QCOMPARE(probe.at({150, 50}), QColor(Qt::black));
    QCOMPARE(probe.at({160, 60}), QColor(Qt::red));
}

// Drawing the marker of each zone in each would take seconds.
void TestTXImageViewerPaintingMarker::markerIsDrawnOnceForEachPixelOfNarrowZones()
{
    TXImageViewer viewer;
    viewer.resize(400, 100);
    viewer.setPixmaps(QList<QPixmap>(2000, filled({100, 100}, Qt::white)));
    viewer.scale(1.0, TXImageViewer::Absolute);
    viewer.setMouseMarker(filled({16, 16}, QColor(0, 0, 0, 1)), {8, 8});
    putMouse(viewer, {200, 50});

    // Five zones share a pixel, and 16 pixels' markers reach it.
    const QColor colour = PixelProbe(viewer).at({100, 50});
    QVERIFY2(colour.red() < 255 && colour.red() >= 255 - 18, qPrintable(colour.name()));
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPaintingMarker>(argc, argv);
}

#include "tst_TXImageViewerPaintingMarker.moc"
