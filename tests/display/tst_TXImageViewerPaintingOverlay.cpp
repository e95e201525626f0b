#include "PlainViewer.h"

#include <QCursor>
#include <QRegularExpression>

#include <limits>

using ImagePainting::filled;
using ImagePainting::painted;
using ImagePainting::quarters;

// What a host paints over the zones.
class TestTXImageViewerPaintingOverlay : public TestBase
{
    Q_OBJECT

private slots:
    void overlayIsCalledTwiceAZone();
    void overlayStandsInPictureAndViewerPixels();
    void overlayIsCutByItsZone();
    void overlayIsCalledForKeptPictures();
    void overlayKeepsItsStateBetweenItsTwoCalls();
    void overlayLeavesNothingBehind_data();
    void overlayLeavesNothingBehind();
    void overlayMayChangeTheViewer();
    void overlayIsCalledWithTheHeldPosition();
    void endlessScaleReachesTheOverlayButNotItsPainter();
};

namespace {

using Overlay = TXImageViewer::Overlay;

struct Call
{
    int zone;
    bool isInPicture;
    QPointF origin;
    double scale;
    QTransform transform;
    QRectF clip;
    bool isSmooth;
};

Overlay recordingTo(QList<Call> &calls)
{
    return [&calls](QPainter *painter, int zone, bool isInPicture, QPointF origin, double scale) {
        calls.append({zone, isInPicture, origin, scale, painter->worldTransform(),
                      painter->worldTransform().mapRect(painter->clipBoundingRect()),
                      painter->testRenderHint(QPainter::SmoothPixmapTransform)});
    };
}

void showTwo(TXImageViewer &viewer)
{
    viewer.resize(200, 100);
    viewer.setPixmaps({filled({40, 40}, Qt::white), filled({40, 40}, Qt::white)});
    viewer.scale(2.0, TXImageViewer::Absolute);
}

void putMouse(const TXImageViewer &viewer, const QPoint &place)
{
    QCursor::setPos(viewer.mapToGlobal(place));
    QCOMPARE(QCursor::pos(), viewer.mapToGlobal(place));
}

} // namespace

void TestTXImageViewerPaintingOverlay::overlayIsCalledTwiceAZone()
{
    QList<Call> calls;
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.scale(0.5, TXImageViewer::Absolute);
    viewer.setOverlay(recordingTo(calls));

    painted(viewer);
    QCOMPARE(calls.size(), qsizetype(4));
    for (int i = 0; i < 4; ++i) {
        const Call &call = calls[i];
        QCOMPARE(call.zone, i / 2);
        QCOMPARE(call.isInPicture, i % 2 == 0);
        QCOMPARE(call.origin, QPointF(i < 2 ? 40.0 : 140.0, 40.0));
        QCOMPARE(call.scale, 0.5);
        QCOMPARE(call.clip, QRectF(i < 2 ? 0.0 : 100.0, 0.0, 100.0, 100.0));
        QVERIFY(call.isSmooth);
        const QTransform inPicture(0.5, 0.0, 0.0, 0.5, call.origin.x(), call.origin.y());
        QCOMPARE(call.transform, call.isInPicture ? inPicture : QTransform());
    }

    viewer.setOverlay({});
    painted(viewer);
    QCOMPARE(calls.size(), qsizetype(4));
}

void TestTXImageViewerPaintingOverlay::overlayStandsInPictureAndViewerPixels()
{
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.setOverlay([](QPainter *painter, int zone, bool isInPicture, QPointF, double) {
        if (isInPicture) {
            painter->fillRect(10, 10, 5, 5, zone == 0 ? Qt::red : Qt::green);
        } else {
            painter->fillRect(zone * 100 + 50, 80, 4, 4, Qt::blue);
        }
    });

    for (const double ratio : {1.0, 2.0}) {
        const PixelProbe probe(viewer, ratio);
        QCOMPARE(probe.at({30, 30}), QColor(Qt::red));
        QCOMPARE(probe.at({39, 39}), QColor(Qt::red));
        QCOMPARE(probe.at({40, 40}), QColor(Qt::white));
        QCOMPARE(probe.at({130, 30}), QColor(Qt::green));
        QCOMPARE(probe.at({52, 82}), QColor(Qt::blue));
        QCOMPARE(probe.at({152, 82}), QColor(Qt::blue));
    }
}

void TestTXImageViewerPaintingOverlay::overlayIsCutByItsZone()
{
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.setOverlay([](QPainter *painter, int zone, bool isInPicture, QPointF, double) {
        if (!isInPicture) {
            painter->fillRect(0, 0, 1000, 1000, zone == 0 ? Qt::red : Qt::green);
        }
    });

    const PixelProbe probe(viewer);
    QCOMPARE(probe.at({99, 50}), QColor(Qt::red));
    QCOMPARE(probe.at({100, 50}), QColor(Qt::green));
    QCOMPARE(probe.at({199, 99}), QColor(Qt::green));
}

void TestTXImageViewerPaintingOverlay::overlayIsCalledForKeptPictures()
{
    QList<Call> calls;
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.setOverlay(recordingTo(calls));
    painted(viewer);
    const QList<Call> first = std::exchange(calls, {});

    painted(viewer);
    QCOMPARE(calls.size(), first.size());
    for (qsizetype i = 0; i < calls.size(); ++i) {
        QCOMPARE(calls[i].transform, first[i].transform);
        QCOMPARE(calls[i].clip, first[i].clip);
        QCOMPARE(calls[i].isSmooth, first[i].isSmooth);
        QCOMPARE(calls[i].origin, first[i].origin);
    }
}

void TestTXImageViewerPaintingOverlay::overlayKeepsItsStateBetweenItsTwoCalls()
{
    QList<QColor> pens;
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.setOverlay([&pens](QPainter *painter, int zone, bool isInPicture, QPointF, double) {
        pens.append(painter->pen().color());
        if (isInPicture) {
            painter->setPen(zone == 0 ? Qt::red : Qt::green);
        }
    });

    painted(viewer);
    QCOMPARE(pens.size(), qsizetype(4));
    QCOMPARE(pens[1], QColor(Qt::red));
    QCOMPARE(pens[2], pens[0]);
    QCOMPARE(pens[3], QColor(Qt::green));
}

void TestTXImageViewerPaintingOverlay::overlayLeavesNothingBehind_data()
{
    QTest::addColumn<Overlay>("overlay");
    QTest::addColumn<QString>("warning");
    const auto add = [](const char *name, const std::function<void(QPainter *)> &spoil,
                        const char *warning = "") {
        const Overlay overlay = [spoil](QPainter *painter, int, bool, QPointF, double) {
            spoil(painter);
        };
        QTest::newRow(name) << overlay << QString::fromLatin1(warning);
    };
    add("opacity", [](QPainter *painter) { painter->setOpacity(0.0); });
    add("composition mode",
        [](QPainter *painter) { painter->setCompositionMode(QPainter::CompositionMode_Clear); });
    add("transform",
        [](QPainter *painter) { painter->setTransform(QTransform(0, 0, 0, 0, 5, 5)); });
    add("no clip", [](QPainter *painter) { painter->setClipping(false); });
    add("empty clip", [](QPainter *painter) { painter->setClipRect(0, 0, 0, 0); });
    add("window", [](QPainter *painter) { painter->setWindow(0, 0, 3, 3); });
    add("ended", [](QPainter *painter) { painter->end(); });
    add(
        "saved once more", [](QPainter *painter) { painter->save(); },
        "QPainter::end: Painter ended with \\d+ saved states");
}

void TestTXImageViewerPaintingOverlay::overlayLeavesNothingBehind()
{
    QFETCH(Overlay, overlay);
    QFETCH(QString, warning);
    TXImageViewer viewer;
    viewer.resize(200, 100);
    viewer.setPixmaps({quarters({40, 40}), quarters({40, 40})});
    viewer.setMouseMarker(filled({4, 4}, Qt::black), {0, 0});
    putMouse(viewer, {50, 50});
    const QImage wanted = painted(viewer);
    QCOMPARE(wanted.pixelColor(150, 50), QColor(Qt::black));
    QCOMPARE(wanted.pixelColor(160, 60), QColor(Qt::yellow));

    viewer.setOverlay(overlay);
    if (!warning.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    }
    QCOMPARE(painted(viewer), wanted);
}

void TestTXImageViewerPaintingOverlay::overlayMayChangeTheViewer()
{
    int calls = 0;
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.setOverlay([&](QPainter *, int, bool, QPointF, double) {
        ++calls;
        viewer.setOverlay({});
        viewer.setPixmaps({});
        viewer.setPosition({1e6, 1e6});
    });

    const QImage image = painted(viewer);
    QCOMPARE(calls, 4);
    QCOMPARE(image.pixelColor(150, 50), QColor(Qt::white));
    painted(viewer);
    QCOMPARE(calls, 4);
    QVERIFY(viewer.pixmaps().isEmpty());
}

void TestTXImageViewerPaintingOverlay::overlayIsCalledWithTheHeldPosition()
{
    QList<Call> calls;
    TXImageViewer viewer;
    showTwo(viewer);
    viewer.scale(4.0, TXImageViewer::Absolute);
    viewer.setPosition({100.0, -100.0});
    viewer.setOverlay(recordingTo(calls));

    painted(viewer);
    QCOMPARE(viewer.position(), QPointF(7.5, -7.5));
    QCOMPARE(calls[0].origin, QPointF(0.0, -60.0));
    QCOMPARE(calls[2].origin, QPointF(100.0, -60.0));
}

// The scale is what follows from a picture without a size; a painter scaled by it would be of no
// use and could keep Qt busy for ever.
void TestTXImageViewerPaintingOverlay::endlessScaleReachesTheOverlayButNotItsPainter()
{
    QList<Call> calls;
    TXImageViewer viewer;
    viewer.resize(100, 100);
    viewer.setOverlay(recordingTo(calls));
    viewer.setPixmap(QPixmap());
    QCOMPARE(viewer.scale(), std::numeric_limits<double>::infinity());

    painted(viewer);
    QCOMPARE(calls.size(), qsizetype(2));
    QCOMPARE(calls[0].scale, viewer.scale());
    QCOMPARE(calls[0].transform, QTransform::fromTranslate(50.0, 50.0));
    QVERIFY(calls[0].clip.isEmpty());
    QCOMPARE(calls[1].transform, QTransform());
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPaintingOverlay>(argc, argv);
}

#include "tst_TXImageViewerPaintingOverlay.moc"
