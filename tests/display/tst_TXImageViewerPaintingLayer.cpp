#include "PlainViewer.h"

#include <QBackingStore>

#include <functional>

using ImagePainting::noise;
using ImagePainting::OpenViewer;
using ImagePainting::painted;
using ImagePainting::PlainViewer;

// What is kept between two paints looks, pixel for pixel, as if it had been drawn anew.
class TestTXImageViewerPaintingLayer : public TestBase
{
    Q_OBJECT

private slots:
    void paintedAgainLooksAsDrawnAnew_data();
    void paintedAgainLooksAsDrawnAnew();
    void partIsPaintedAsDrawnAnew();
    void repaintOfAPartShowsTheWhole();
    void changeOfAPictureIsSeen();
    void movedPicturesLookAsDrawnAnew_data();
    void movedPicturesLookAsDrawnAnew();
    void picturesComeBackAfterHiding();
    void childAtHalfAPixelLooksAsDrawnAnew();
    void changesLetTheKeptPixelsGo_data();
    void changesLetTheKeptPixelsGo();
    void positionBeyondTheEdgeKeepsThePixels();
    void viewerThatWasNeverShownKeepsNothing();
};

namespace {

constexpr quint32 kSeed = 20240607;
constexpr int kStates = 24;

using Change = std::function<void(TXImageViewer &)>;

/// The whole window as it stands on the screen.
QImage onScreen(QWidget &widget)
{
    return dynamic_cast<QImage *>(widget.window()->backingStore()->paintDevice())->copy();
}

QString difference(const QImage &found, const QImage &wanted)
{
    if (found.size() != wanted.size()) {
        return QStringLiteral("other size");
    }
    int count = 0;
    QString first;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x) {
            if (found.pixel(x, y) != wanted.pixel(x, y) && count++ == 0) {
                first = QStringLiteral("%1, %2: %3 for %4")
                            .arg(x)
                            .arg(y)
                            .arg(found.pixel(x, y), 8, 16)
                            .arg(wanted.pixel(x, y), 8, 16);
            }
        }
    }
    return count == 0 ? QString() : QStringLiteral("%1 pixels, first %2").arg(count).arg(first);
}

QList<QPixmap> randomPictures(int count, bool isTransparent, QRandomGenerator &random)
{
    const QSize size(random.bounded(1, 500), random.bounded(1, 500));
    QList<QPixmap> pictures;
    for (int i = 0; i < count; ++i) {
        const QSize other(random.bounded(1, 700), random.bounded(1, 700));
        pictures.append(noise(random.bounded(3) == 0 ? other : size, isTransparent, random));
    }
    return pictures;
}

double randomScale(QRandomGenerator &random)
{
    const double scales[] = {0.5, 1.0, 2.0, 0.25, 1.5, std::exp2(random.bounded(8.0) - 4.0)};
    return scales[random.bounded(int(std::size(scales)))];
}

} // namespace

void TestTXImageViewerPaintingLayer::paintedAgainLooksAsDrawnAnew_data()
{
    QTest::addColumn<double>("devicePixelRatio");
    QTest::addColumn<bool>("isTransparent");
    QTest::addColumn<QString>("styleSheet");
    const QString gradient = QStringLiteral(
        "background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #102030, stop:1 #f0e0d0)");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QTest::addRow("opaque at %g", ratio) << ratio << false << QString();
        QTest::addRow("transparent at %g", ratio) << ratio << true << QString();
        QTest::addRow("transparent over a gradient at %g", ratio) << ratio << true << gradient;
    }
}

void TestTXImageViewerPaintingLayer::paintedAgainLooksAsDrawnAnew()
{
    QFETCH(double, devicePixelRatio);
    QFETCH(bool, isTransparent);
    QFETCH(QString, styleSheet);
    QRandomGenerator random(kSeed);
    OpenViewer viewer;
    viewer.setStyleSheet(styleSheet);
    viewer.setAttribute(Qt::WA_StyledBackground, !styleSheet.isEmpty());
    viewer.setScaleLimits(0.001, 100.0);
    viewer.show();
    int kept = 0;

    for (int i = 0; i < kStates; ++i) {
        const int zones = random.bounded(1, 6);
        viewer.resize(random.bounded(1, 400), random.bounded(1, 300));
        viewer.setPixmaps(randomPictures(zones, isTransparent, random));
        viewer.scale(randomScale(random), TXImageViewer::Absolute);
        viewer.setPosition({random.bounded(300.0) - 150.0, random.bounded(300.0) - 150.0});
        PlainViewer plain(viewer);

        const QImage wanted = painted(plain, devicePixelRatio);
        for (const char *time : {"first", "second", "third"}) {
            const QString found = difference(painted(viewer, devicePixelRatio), wanted);
            QVERIFY2(found.isEmpty(),
                     qPrintable(QStringLiteral("%1, %2 zones in %3 x %4, %5 paint, scale %6")
                                    .arg(found)
                                    .arg(zones)
                                    .arg(viewer.width())
                                    .arg(viewer.height())
                                    .arg(QLatin1String(time))
                                    .arg(viewer.scale())));
        }
        kept += viewer.hasLayer() ? 1 : 0;
    }
    QVERIFY(kept > 0);
}

void TestTXImageViewerPaintingLayer::partIsPaintedAsDrawnAnew()
{
    QRandomGenerator random(kSeed);
    OpenViewer viewer;
    viewer.resize(400, 300);
    viewer.setPixmaps(randomPictures(3, true, random));
    viewer.scale(0.5, TXImageViewer::Absolute);
    viewer.show();
    PlainViewer plain(viewer);
    const QRect part(100, 50, 20, 30);
    painted(viewer);

    QImage found(part.size(), QImage::Format_ARGB32_Premultiplied);
    found.fill(Qt::transparent);
    viewer.render(&found, QPoint(), part);
    QVERIFY(viewer.hasLayer());
    QCOMPARE(difference(found, painted(plain).copy(part)), QString());
}

void TestTXImageViewerPaintingLayer::repaintOfAPartShowsTheWhole()
{
    QRandomGenerator random(kSeed);
    TXImageViewer viewer;
    viewer.resize(400, 300);
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    viewer.setPixmaps(randomPictures(3, true, random));
    viewer.scale(0.7, TXImageViewer::Absolute);
    viewer.repaint();
    const QImage whole = onScreen(viewer);

    viewer.repaint(100, 50, 20, 30);
    viewer.repaint(133, 0, 1, 300);
    QCOMPARE(difference(onScreen(viewer), whole), QString());
    PlainViewer plain(viewer);
    QCOMPARE(difference(whole.convertToFormat(QImage::Format_ARGB32_Premultiplied), painted(plain)),
             QString());
}

void TestTXImageViewerPaintingLayer::changeOfAPictureIsSeen()
{
    TXImageViewer viewer;
    viewer.resize(100, 100);
    QPixmap picture = ImagePainting::filled({10, 10}, Qt::red);
    viewer.setPixmap(picture);
    QCOMPARE(PixelProbe(viewer).at({50, 50}), QColor(Qt::red));

    picture.fill(Qt::blue);
    QCOMPARE(PixelProbe(viewer).at({50, 50}), QColor(Qt::red));
    viewer.setPixmap(picture);
    QCOMPARE(PixelProbe(viewer).at({50, 50}), QColor(Qt::blue));
}

void TestTXImageViewerPaintingLayer::movedPicturesLookAsDrawnAnew_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isTransparent");
    QTest::newRow("smaller") << 0.37 << false;
    QTest::newRow("smaller, transparent") << 0.37 << true;
    QTest::newRow("larger") << 3.3 << false;
    QTest::newRow("larger, transparent") << 3.3 << true;
}

void TestTXImageViewerPaintingLayer::movedPicturesLookAsDrawnAnew()
{
    QFETCH(double, scale);
    QFETCH(bool, isTransparent);
    QRandomGenerator random(kSeed);
    TXImageViewer viewer;
    viewer.resize(400, 300);
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    const QPixmap picture = noise({1500, 1500}, isTransparent, random);
    viewer.setPixmaps({picture, picture, picture});
    viewer.scale(scale, TXImageViewer::Absolute);

    for (int i = 0; i < 8; ++i) {
        const QPointF way(random.bounded(-20, 20), random.bounded(-20, 20));
        viewer.setPosition(viewer.position() + way / scale);
        // From the third paint on the pixels are copied.
        for (int paint = 0; paint < 3; ++paint) {
            viewer.repaint();
            PlainViewer plain(viewer);
            const QImage found =
                onScreen(viewer).convertToFormat(QImage::Format_ARGB32_Premultiplied);
            QCOMPARE(difference(found, painted(plain)), QString());
        }
    }
}

void TestTXImageViewerPaintingLayer::picturesComeBackAfterHiding()
{
    QRandomGenerator random(kSeed);
    TXImageViewer viewer;
    viewer.resize(400, 300);
    viewer.setPixmaps(randomPictures(2, true, random));
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    viewer.repaint();
    viewer.repaint();
    const QImage before = onScreen(viewer);

    viewer.hide();
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    viewer.repaint();
    QCOMPARE(difference(onScreen(viewer), before), QString());
}

// A child at an odd place of a window at ratio 1.5 begins in the middle of a device pixel.
void TestTXImageViewerPaintingLayer::childAtHalfAPixelLooksAsDrawnAnew()
{
    QRandomGenerator random(kSeed);
    QWidget window;
    window.resize(300, 200);
    auto *viewer = new OpenViewer(&window);
    viewer->setGeometry(1, 1, 250, 150);
    viewer->setPixmaps(randomPictures(3, false, random));
    viewer->scale(0.6, TXImageViewer::Absolute);
    QWidget plainWindow;
    plainWindow.resize(300, 200);
    PlainViewer plain(*viewer);
    plain.setParent(&plainWindow);
    plain.setGeometry(1, 1, 250, 150);

    const QImage wanted = painted(plainWindow, 1.5);
    window.show();
    QCOMPARE(difference(painted(window, 1.5), wanted), QString());
    QCOMPARE(difference(painted(window, 1.5), wanted), QString());
    QVERIFY(viewer->hasLayer());
}

void TestTXImageViewerPaintingLayer::changesLetTheKeptPixelsGo_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) {
        QTest::newRow(name) << change;
    };
    add("no pictures", [](TXImageViewer &viewer) { viewer.setPixmaps({}); });
    add("another picture", [](TXImageViewer &viewer) {
        viewer.setPixmap(ImagePainting::filled({3, 3}, Qt::red));
    });
    add("scale", [](TXImageViewer &viewer) { viewer.scale(3.0, TXImageViewer::Absolute); });
    add("limits", [](TXImageViewer &viewer) { viewer.setScaleLimits(0.1, 0.2); });
    add("fit", [](TXImageViewer &viewer) { viewer.scale(TXImageViewer::ScaleFit); });
    add("position", [](TXImageViewer &viewer) { viewer.setPosition({3.0, 0.0}); });
    add("key", [](TXImageViewer &viewer) { QTest::keyClick(&viewer, Qt::Key_Right); });
    add("size", [](TXImageViewer &viewer) { viewer.resize(401, 300); });
    add("no size", [](TXImageViewer &viewer) { viewer.resize(0, 0); });
    add("hidden", [](TXImageViewer &viewer) { viewer.hide(); });
    add("another device pixel ratio", [](TXImageViewer &viewer) { painted(viewer, 2.0); });
    add("painted where nothing is kept", [](TXImageViewer &viewer) {
        QImage image(viewer.size(), QImage::Format_RGB16);
        viewer.render(&image);
    });
}

void TestTXImageViewerPaintingLayer::changesLetTheKeptPixelsGo()
{
    QFETCH(const Change, change);
    OpenViewer viewer;
    viewer.resize(400, 300);
    viewer.setPixmap(ImagePainting::quarters({1000, 800}));
    viewer.scale(0.7, TXImageViewer::Absolute);
    viewer.show();
    painted(viewer);
    painted(viewer);
    QVERIFY(viewer.hasLayer());
    change(viewer);
    QVERIFY(!viewer.hasLayer());
}

// The picture stays where it is.
void TestTXImageViewerPaintingLayer::positionBeyondTheEdgeKeepsThePixels()
{
    OpenViewer viewer;
    viewer.resize(400, 300);
    viewer.setPixmap(ImagePainting::quarters({1000, 100}));
    viewer.show();
    painted(viewer);
    painted(viewer);
    viewer.setPosition({500.0, 100.0});
    viewer.setPixmaps(viewer.pixmaps());
    QVERIFY(viewer.hasLayer());
    painted(viewer);
    QCOMPARE(viewer.position(), QPointF());
    QVERIFY(viewer.hasLayer());
}

void TestTXImageViewerPaintingLayer::viewerThatWasNeverShownKeepsNothing()
{
    OpenViewer viewer;
    viewer.resize(400, 300);
    viewer.setPixmap(ImagePainting::quarters({1000, 100}));
    for (int i = 0; i < 3; ++i) {
        viewer.grab();
        QVERIFY(!viewer.hasLayer());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPaintingLayer>(argc, argv);
}

#include "tst_TXImageViewerPaintingLayer.moc"
