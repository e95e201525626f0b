#include "TXImageViewer.h"

#include "ImageViewerEvents.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <limits>
#include <memory>

namespace {

constexpr QSize kViewerSize(400, 300);
constexpr double kScale = 2.0;

/// What the signal hover tells.
struct Hover
{
    explicit Hover(const QList<QVariant> &arguments)
        : place(arguments.at(0).toPointF())
        , button(arguments.at(1).value<Qt::MouseButton>())
        , buttons(arguments.at(2).value<Qt::MouseButtons>())
        , modifiers(arguments.at(3).value<Qt::KeyboardModifiers>())
        , isInside(arguments.at(4).toBool())
        , zone(arguments.at(5).toInt())
        , pixel(arguments.at(6).toPoint())
    { }

    QPointF place;
    Qt::MouseButton button;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    bool isInside;
    int zone;
    QPoint pixel;
};

void leave(QWidget &widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class TestTXImageViewerMouse : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        viewer = std::make_unique<PaintedViewer>();
        viewer->resize(kViewerSize);
        viewer->setPixmaps({picture(100, 80), picture(100, 80)});
        viewer->scale(kScale, TXImageViewer::Absolute);
    }
    void finish() override { viewer.reset(); }

private slots:
    void hoverTellsThePixel_data();
    void hoverTellsThePixel();
    void hoverFollowsThePosition();
    void hoverNeedsMoreThanOneRowAndColumn_data();
    void hoverNeedsMoreThanOneRowAndColumn();
    void hoverGoesByTheFirstPicture();
    void everyMouseEventHovers_data();
    void everyMouseEventHovers();
    void leavingHoversOutside();
    void firstOfAllZonesThatHoldThePlaceCounts();
    void noZoneWithoutPictures();
    void dragMovesByWholePixels();
    void dragDividesByTheScale_data();
    void dragDividesByTheScale();
    void hoverComesAfterTheDrag();
    void moveWithoutAPressDragsNothing();
    void anyButtonDrags_data();
    void anyButtonDrags();
    void anyReleaseEndsTheDrag();
    void moveRepaintsForADragOrAMarkerOnly_data();
    void moveRepaintsForADragOrAMarkerOnly();
    void leavingRepaintsForAMarkerOnly();
    void markerIsAskedForBeforeHoverIsTold();
    void slotOfHoverMayDeleteTheViewer_data();
    void slotOfHoverMayDeleteTheViewer();
    void lostReleaseEndsTheDrag_data();
    void lostReleaseEndsTheDrag();
    void hidingLeavesTheHostsCursorAlone();

private:
    std::unique_ptr<PaintedViewer> viewer;
};

void TestTXImageViewerMouse::hoverTellsThePixel_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("zone");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<bool>("isInside");
    const auto add = [](const char *name, QPointF place, int zone, QPoint pixel, bool isInside) {
        QTest::newRow(name) << place << zone << pixel << isInside;
    };
    add("middle", {100.0, 150.0}, 0, {50, 40}, true);
    add("middle of the second", {300.0, 150.0}, 1, {50, 40}, true);
    add("top left", {0.0, 70.0}, 0, {0, 0}, true);
    add("fraction is cut off", {1.0, 71.0}, 0, {0, 0}, true);
    add("fraction is cut off toward zero", {0.0, 69.0}, 0, {0, 0}, true);
    add("above", {0.0, 68.0}, 0, {0, -1}, false);
    add("far above, cut off toward zero", {100.0, 61.0}, 0, {50, -4}, false);
    add("last column but one", {197.0, 150.0}, 0, {98, 40}, true);
    add("last column", {198.0, 150.0}, 0, {99, 40}, false);
    add("last row but one", {100.0, 227.0}, 0, {50, 78}, true);
    add("last row", {100.0, 228.0}, 0, {50, 79}, false);
    add("border of the zones", {200.0, 150.0}, 0, {100, 40}, false);
    add("right of the border", {201.0, 150.0}, 1, {0, 40}, true);
    add("rounded to the border", {200.4, 150.0}, 0, {100, 40}, false);
    add("rounded off the border", {200.5, 150.0}, 1, {0, 40}, true);
    add("rounded up", {101.5, 150.5}, 0, {51, 40}, true);
    add("rounded into the zones", {-0.4, -0.4}, 0, {0, -35}, false);
    add("rounded out of the zones", {-0.5, 150.0}, -1, {0, 0}, false);
    add("top left corner", {0.0, 0.0}, 0, {0, -35}, false);
    add("bottom right corner", {400.0, 300.0}, 1, {100, 115}, false);
    add("right of all", {401.0, 150.0}, -1, {0, 0}, false);
    add("below all", {100.0, 301.0}, -1, {0, 0}, false);
    add("left of all", {-1.0, 150.0}, -1, {0, 0}, false);
}

void TestTXImageViewerMouse::hoverTellsThePixel()
{
    QFETCH(const QPointF, place);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, place);
    QCOMPARE(hovered.size(), 1);
    const Hover hover(hovered.at(0));
    QCOMPARE(hover.place, place);
    QTEST(hover.zone, "zone");
    QTEST(hover.pixel, "pixel");
    QTEST(hover.isInside, "isInside");
}

void TestTXImageViewerMouse::hoverFollowsThePosition()
{
    viewer->setPosition({10.25, -5.0});
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {301.0, 150.0});
    QCOMPARE(Hover(hovered.at(0)).pixel, QPoint(40, 45));
    viewer->setPosition({-49.0, 0.0});
    moveMouse(*viewer, {301.0, 150.0});
    QCOMPARE(Hover(hovered.at(1)).pixel, QPoint(99, 40));
    QVERIFY(!Hover(hovered.at(1)).isInside);
    viewer->setPosition({0.75, 0.0});
    moveMouse(*viewer, {0.0, 150.0});
    QCOMPARE(Hover(hovered.at(2)).pixel, QPoint(0, 40));
    QVERIFY(Hover(hovered.at(2)).isInside);
    viewer->setPosition({2.75, 0.0});
    moveMouse(*viewer, {0.0, 150.0});
    QCOMPARE(Hover(hovered.at(3)).pixel, QPoint(-2, 40));
    QVERIFY(!Hover(hovered.at(3)).isInside);
}

void TestTXImageViewerMouse::hoverNeedsMoreThanOneRowAndColumn_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isInside");
    QTest::newRow("1 x 1") << QSize(1, 1) << false;
    QTest::newRow("2 x 1") << QSize(2, 1) << false;
    QTest::newRow("1 x 2") << QSize(1, 2) << false;
    QTest::newRow("2 x 2") << QSize(2, 2) << true;
}

void TestTXImageViewerMouse::hoverNeedsMoreThanOneRowAndColumn()
{
    QFETCH(const QSize, size);
    viewer->setPixmap(picture(size.width(), size.height()));
    viewer->scale(16.0, TXImageViewer::Absolute);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {192.0, 142.0});
    QCOMPARE(Hover(hovered.at(0)).pixel, QPoint(0, 0));
    QTEST(Hover(hovered.at(0)).isInside, "isInside");
}

void TestTXImageViewerMouse::hoverGoesByTheFirstPicture()
{
    viewer->setPixmaps({picture(100, 80), picture(10, 200), QPixmap()});
    viewer->resize(600, 300);
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    for (const double x : {100.0, 300.0, 500.0}) {
        moveMouse(*viewer, {x, 150.0});
        QCOMPARE(Hover(hovered.last()).pixel, QPoint(50, 40));
        QVERIFY(Hover(hovered.last()).isInside);
    }
    QCOMPARE(Hover(hovered.last()).zone, 2);
}

void TestTXImageViewerMouse::everyMouseEventHovers_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::newRow("press") << QEvent::MouseButtonPress << Qt::LeftButton
                           << Qt::MouseButtons(Qt::LeftButton);
    QTest::newRow("second press") << QEvent::MouseButtonPress << Qt::RightButton
                                  << (Qt::LeftButton | Qt::RightButton);
    QTest::newRow("double click") << QEvent::MouseButtonDblClick << Qt::MiddleButton
                                  << Qt::MouseButtons(Qt::MiddleButton);
    QTest::newRow("move") << QEvent::MouseMove << Qt::NoButton << Qt::MouseButtons();
    QTest::newRow("move with a button")
        << QEvent::MouseMove << Qt::NoButton << Qt::MouseButtons(Qt::RightButton);
    QTest::newRow("release") << QEvent::MouseButtonRelease << Qt::BackButton << Qt::MouseButtons();
}

void TestTXImageViewerMouse::everyMouseEventHovers()
{
    QFETCH(const QEvent::Type, type);
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const Qt::MouseButtons, buttons);
    const Qt::KeyboardModifiers modifiers = Qt::ShiftModifier | Qt::AltModifier;
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    sendMouse(*viewer, type, {300.25, 150.75}, button, buttons, modifiers);
    QCOMPARE(hovered.size(), 1);
    const Hover hover(hovered.at(0));
    QCOMPARE(hover.place, QPointF(300.25, 150.75));
    QCOMPARE(hover.button, button);
    QCOMPARE(hover.buttons, buttons);
    QCOMPARE(hover.modifiers, modifiers);
    QCOMPARE(hover.isInside, true);
    QCOMPARE(hover.zone, 1);
    QCOMPARE(hover.pixel, QPoint(50, 40));
}

void TestTXImageViewerMouse::leavingHoversOutside()
{
    moveMouse(*viewer, {300.0, 150.0});
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    leave(*viewer);
    QCOMPARE(hovered.size(), 1);
    const Hover hover(hovered.at(0));
    QCOMPARE(hover.place, QPointF(0.0, 0.0));
    QCOMPARE(hover.button, Qt::NoButton);
    QCOMPARE(hover.buttons, Qt::MouseButtons());
    QCOMPARE(hover.modifiers, Qt::KeyboardModifiers());
    QCOMPARE(hover.isInside, false);
    QCOMPARE(hover.zone, -1);
    QCOMPARE(hover.pixel, QPoint(0, 0));
}

void TestTXImageViewerMouse::firstOfAllZonesThatHoldThePlaceCounts()
{
    for (const int count : {1, 3, 7, 16, 49, 399, 400, 401, 5000}) {
        viewer->setPixmaps(QList<QPixmap>(count, picture(4, 4)));
        QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
        const double zoneWidth = 400.0 / count;
        for (int x = -1; x <= 401; ++x) {
            int expected = -1;
            for (int i = 0; i < count && expected < 0; ++i) {
                expected =
                    QRectF(i * zoneWidth, 0.0, zoneWidth, 300.0).contains({x * 1.0, 1.0}) ? i : -1;
            }
            moveMouse(*viewer, {x * 1.0, 1.0});
            QCOMPARE(Hover(hovered.last()).zone, expected);
        }
    }
}

void TestTXImageViewerMouse::noZoneWithoutPictures()
{
    viewer->setPixmaps({});
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    moveMouse(*viewer, {100.0, 150.0});
    QCOMPARE(Hover(hovered.at(0)).zone, -1);
    QCOMPARE(Hover(hovered.at(0)).pixel, QPoint(0, 0));
    QVERIFY(!Hover(hovered.at(0)).isInside);
}

void TestTXImageViewerMouse::dragMovesByWholePixels()
{
    viewer->setPosition({1.0, 2.0});
    pressMouse(*viewer, {10.5, 10.4});
    QCOMPARE(viewer->position(), QPointF(1.0, 2.0));
    dragMouse(*viewer, {31.4, 5.6});
    QCOMPARE(viewer->position(), QPointF(11.0, 0.0));
    dragMouse(*viewer, {31.0, 6.0});
    QCOMPARE(viewer->position(), QPointF(11.0, 0.0));
    dragMouse(*viewer, {-1000.0, 7.0});
    QCOMPARE(viewer->position(), QPointF(-504.5, 0.5));
}

void TestTXImageViewerMouse::dragDividesByTheScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("position");
    QTest::newRow("small") << 0.25 << QPointF(80.0, -40.0);
    QTest::newRow("natural") << 1.0 << QPointF(20.0, -10.0);
    QTest::newRow("large") << 16.0 << QPointF(1.25, -0.625);
    QTest::newRow("negative") << -2.0 << QPointF(-10.0, 5.0);
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QPointF(0.0, 0.0);
}

void TestTXImageViewerMouse::dragDividesByTheScale()
{
    QFETCH(const double, scale);
    viewer->setScaleLimits(-4.0, std::numeric_limits<double>::infinity());
    viewer->scale(scale, TXImageViewer::Absolute);
    pressMouse(*viewer, {100.0, 100.0});
    dragMouse(*viewer, {120.0, 90.0});
    QTEST(viewer->position(), "position");
}

void TestTXImageViewerMouse::hoverComesAfterTheDrag()
{
    pressMouse(*viewer, {100.0, 150.0});
    QSignalSpy hovered(viewer.get(), &TXImageViewer::hover);
    dragMouse(*viewer, {120.0, 140.0});
    QCOMPARE(Hover(hovered.at(0)).pixel, QPoint(50, 40));
}

void TestTXImageViewerMouse::moveWithoutAPressDragsNothing()
{
    dragMouse(*viewer, {100.0, 100.0});
    dragMouse(*viewer, {120.0, 100.0});
    QCOMPARE(viewer->position(), QPointF(0.0, 0.0));
    QCOMPARE(viewer->cursor().shape(), Qt::ArrowCursor);
}

void TestTXImageViewerMouse::anyButtonDrags_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void TestTXImageViewerMouse::anyButtonDrags()
{
    QFETCH(const Qt::MouseButton, button);
    sendMouse(*viewer, QEvent::MouseButtonPress, {100.0, 100.0}, button, button);
    QCOMPARE(viewer->cursor().shape(), Qt::ClosedHandCursor);
    sendMouse(*viewer, QEvent::MouseMove, {110.0, 100.0}, Qt::NoButton, button);
    QCOMPARE(viewer->position(), QPointF(5.0, 0.0));
    sendMouse(*viewer, QEvent::MouseButtonRelease, {110.0, 100.0}, button);
    QCOMPARE(viewer->cursor().shape(), Qt::ArrowCursor);
    moveMouse(*viewer, {200.0, 100.0});
    QCOMPARE(viewer->position(), QPointF(5.0, 0.0));
}

void TestTXImageViewerMouse::anyReleaseEndsTheDrag()
{
    const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    pressMouse(*viewer, {100.0, 100.0});
    sendMouse(*viewer, QEvent::MouseButtonPress, {100.0, 100.0}, Qt::RightButton, both);
    sendMouse(*viewer, QEvent::MouseButtonRelease, {100.0, 100.0}, Qt::RightButton, Qt::LeftButton);
    dragMouse(*viewer, {150.0, 100.0});
    QCOMPARE(viewer->position(), QPointF(0.0, 0.0));
}

void TestTXImageViewerMouse::moveRepaintsForADragOrAMarkerOnly_data()
{
    QTest::addColumn<bool>("isDragged");
    QTest::addColumn<bool>("hasMarker");
    QTest::newRow("neither") << false << false;
    QTest::newRow("drag") << true << false;
    QTest::newRow("marker") << false << true;
    QTest::newRow("both") << true << true;
}

void TestTXImageViewerMouse::moveRepaintsForADragOrAMarkerOnly()
{
    QFETCH(const bool, isDragged);
    QFETCH(const bool, hasMarker);
    viewer->setMouseMarker(hasMarker ? picture(5, 5) : QPixmap(), {-1, -1});
    if (isDragged) {
        pressMouse(*viewer, {100.0, 100.0});
    }
    viewer->settle();
    dragMouse(*viewer, {110.0, 100.0});
    QCOMPARE(viewer->isRepainted(), isDragged || hasMarker);
}

void TestTXImageViewerMouse::leavingRepaintsForAMarkerOnly()
{
    for (const bool hasMarker : {false, true}) {
        viewer->setMouseMarker(hasMarker ? picture(5, 5) : QPixmap(), {-1, -1});
        viewer->settle();
        leave(*viewer);
        QCOMPARE(viewer->isRepainted(), hasMarker);
    }
}

// After it there may be no viewer any more.
void TestTXImageViewerMouse::markerIsAskedForBeforeHoverIsTold()
{
    viewer->setMouseMarker(picture(5, 5), {-1, -1});
    viewer->settle();
    bool isRepainted = false;
    connect(viewer.get(), &TXImageViewer::hover, this,
            [&] { isRepainted = viewer->isRepainted(); });
    moveMouse(*viewer, {110.0, 100.0});
    QVERIFY(isRepainted);
}

void TestTXImageViewerMouse::slotOfHoverMayDeleteTheViewer_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("move") << QEvent::MouseMove;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
}

void TestTXImageViewerMouse::slotOfHoverMayDeleteTheViewer()
{
    QFETCH(const QEvent::Type, type);
    viewer->setMouseMarker(picture(5, 5), {-1, -1});
    viewer->settle();
    connect(viewer.get(), &TXImageViewer::hover, this, [this] { viewer.reset(); });
    sendMouse(*viewer, type, {110.0, 100.0}, Qt::LeftButton);
    QVERIFY(!viewer);
}

void TestTXImageViewerMouse::lostReleaseEndsTheDrag_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void TestTXImageViewerMouse::lostReleaseEndsTheDrag()
{
    QFETCH(const bool, isHidden);
    viewer->settle();
    pressMouse(*viewer, {100.0, 100.0});
    if (isHidden) {
        viewer->hide();
        viewer->show();
    } else {
        viewer->setEnabled(false);
        viewer->setEnabled(true);
    }
    QCOMPARE(viewer->cursor().shape(), Qt::ArrowCursor);
    moveMouse(*viewer, {150.0, 100.0});
    QCOMPARE(viewer->position(), QPointF(0.0, 0.0));
}

void TestTXImageViewerMouse::hidingLeavesTheHostsCursorAlone()
{
    viewer->settle();
    viewer->setCursor(Qt::CrossCursor);
    viewer->hide();
    viewer->setEnabled(false);
    QCOMPARE(viewer->cursor().shape(), Qt::CrossCursor);
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerMouse>(argc, argv);
}

#include "tst_TXImageViewerMouse.moc"
