#include "ImageViewerEvents.h"
#include "PlainViewer.h"

using ImagePainting::filled;
using ImagePainting::quarters;

// Where the pictures stand, and what of them is seen.
class TestTXImageViewerPainting : public TestBase
{
    Q_OBJECT

private slots:
    void zonesShowThePicturesSideBySide_data();
    void zonesShowThePicturesSideBySide();
    void allAreLaidOutByTheFirst();
    void zonesOfAPartOfAPixelMeet();
    void pictureIsShownByItsOwnPixels_data();
    void pictureIsShownByItsOwnPixels();
    void nothingIsShownWithoutPictures();
    void nullPictureLeavesItsZoneEmpty();
    void pixelsAreBlendedOnlyBelowTheirSize_data();
    void pixelsAreBlendedOnlyBelowTheirSize();
    void transparentPictureShowsTheBackground();
    void positionMovesThePictures();
    void positionIsHeldWhilePainting_data();
    void positionIsHeldWhilePainting();
    void positionIsKeptWithoutPictures();
    void pixelUnderAMouseAtRestFollowsThePosition();
    void focusFrameStandsAroundAllZones();
};

namespace {

void addRatios()
{
    QTest::addColumn<double>("devicePixelRatio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

} // namespace

void TestTXImageViewerPainting::zonesShowThePicturesSideBySide_data()
{
    addRatios();
}

void TestTXImageViewerPainting::zonesShowThePicturesSideBySide()
{
    QFETCH(double, devicePixelRatio);
    TXImageViewer viewer;
    viewer.resize(200, 100);
    viewer.setPalette(QPalette(Qt::gray));
    viewer.setPixmaps({quarters({40, 20}), filled({40, 20}, Qt::magenta)});
    QCOMPARE(viewer.scale(), 2.5);

    const PixelProbe probe(viewer, devicePixelRatio);
    const QColor background = viewer.palette().color(QPalette::Window);
    QCOMPARE(probe.at({1, 26}), QColor(Qt::red));
    QCOMPARE(probe.at({48, 48}), QColor(Qt::red));
    QCOMPARE(probe.at({52, 48}), QColor(Qt::green));
    QCOMPARE(probe.at({48, 52}), QColor(Qt::blue));
    QCOMPARE(probe.at({98, 73}), QColor(Qt::yellow));
    QCOMPARE(probe.at({50, 23}), background);
    QCOMPARE(probe.at({50, 77}), background);
    QCOMPARE(probe.at({101, 26}), QColor(Qt::magenta));
    QCOMPARE(probe.at({199, 73}), QColor(Qt::magenta));
    QCOMPARE(probe.at({150, 23}), background);
}

// They begin where the first begins; what is larger is cut by its zone.
void TestTXImageViewerPainting::allAreLaidOutByTheFirst()
{
    TXImageViewer viewer;
    viewer.resize(300, 100);
    viewer.setPalette(QPalette(Qt::gray));
    viewer.setPixmaps(
        {filled({40, 40}, Qt::red), filled({400, 400}, Qt::green), filled({10, 10}, Qt::blue)});
    viewer.scale(1.0, TXImageViewer::Absolute);

    const PixelProbe probe(viewer);
    const QColor background = viewer.palette().color(QPalette::Window);
    QCOMPARE(probe.at({30, 30}), QColor(Qt::red));
    QCOMPARE(probe.at({69, 69}), QColor(Qt::red));
    QCOMPARE(probe.at({70, 69}), background);
    QCOMPARE(probe.at({129, 30}), background);
    QCOMPARE(probe.at({130, 30}), QColor(Qt::green));
    QCOMPARE(probe.at({199, 99}), QColor(Qt::green));
    QCOMPARE(probe.at({200, 99}), background);
    QCOMPARE(probe.at({230, 30}), QColor(Qt::blue));
    QCOMPARE(probe.at({239, 39}), QColor(Qt::blue));
    QCOMPARE(probe.at({240, 39}), background);
}

void TestTXImageViewerPainting::zonesOfAPartOfAPixelMeet()
{
    TXImageViewer viewer;
    viewer.resize(400, 20);
    const QList<QColor> colours = {Qt::red, Qt::green, Qt::blue};
    viewer.setPixmaps({filled({400, 400}, colours[0]), filled({400, 400}, colours[1]),
                       filled({400, 400}, colours[2])});
    viewer.scale(1.0, TXImageViewer::Absolute);

    const PixelProbe probe(viewer);
    for (int x = 0; x < 400; ++x) {
        const int zone = x < 133 ? 0 : x < 267 ? 1 : 2;
        QVERIFY2(probe.at({x, 10}) == colours[zone], qPrintable(QString::number(x)));
    }
}

void TestTXImageViewerPainting::pictureIsShownByItsOwnPixels_data()
{
    QTest::addColumn<double>("pictureRatio");
    QTest::addColumn<double>("scale");
    for (const double ratio : {2.0, 1.5, 0.5}) {
        for (const double scale : {0.37, 1.0, 2.5, 999.0, 1001.0, 1500.0, 3000.0}) {
            QTest::addRow("ratio %g, %g times", ratio, scale) << ratio << scale;
        }
    }
}

// Also under the mouse: the pixel that is told is the pixel that is seen.
void TestTXImageViewerPainting::pictureIsShownByItsOwnPixels()
{
    QFETCH(double, pictureRatio);
    QFETCH(double, scale);
    QRandomGenerator random(1);
    const QPixmap picture = ImagePainting::noise({41, 31}, false, random);
    QPixmap dense = picture;
    dense.setDevicePixelRatio(pictureRatio);
    TXImageViewer viewer;
    viewer.setScaleLimits(0.01, 1e6);
    viewer.resize(100, 50);
    viewer.setPixmap(picture);
    viewer.scale(scale, TXImageViewer::Absolute);
    const QImage wanted = ImagePainting::painted(viewer);

    viewer.setPixmap(dense);
    QCOMPARE(ImagePainting::painted(viewer), wanted);
}

void TestTXImageViewerPainting::nothingIsShownWithoutPictures()
{
    TXImageViewer viewer;
    viewer.resize(50, 50);
    QCOMPARE(PixelProbe(viewer).countColours(viewer.rect()), qsizetype(1));
    viewer.setPixmaps({});
    QCOMPARE(PixelProbe(viewer).countColours(viewer.rect()), qsizetype(1));
}

void TestTXImageViewerPainting::nullPictureLeavesItsZoneEmpty()
{
    TXImageViewer viewer;
    viewer.resize(100, 50);
    viewer.setPalette(QPalette(Qt::gray));
    viewer.setPixmaps({filled({10, 10}, Qt::red), QPixmap()});

    const PixelProbe probe(viewer);
    QCOMPARE(probe.at({25, 25}), QColor(Qt::red));
    QCOMPARE(probe.at({75, 25}), viewer.palette().color(QPalette::Window));
}

void TestTXImageViewerPainting::pixelsAreBlendedOnlyBelowTheirSize_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("isBlended");
    QTest::newRow("smaller") << 0.75 << true;
    QTest::newRow("a little smaller") << 0.98 << true;
    QTest::newRow("as they are") << 1.0 << false;
    QTest::newRow("larger") << 1.5 << false;
    QTest::newRow("much larger") << 7.3 << false;
}

void TestTXImageViewerPainting::pixelsAreBlendedOnlyBelowTheirSize()
{
    QFETCH(double, scale);
    QFETCH(bool, isBlended);
    QPixmap checks = filled({300, 300}, Qt::white);
    QPainter painter(&checks);
    painter.fillRect(checks.rect(), QBrush(Qt::black, Qt::Dense4Pattern));
    painter.end();
    TXImageViewer viewer;
    viewer.resize(100, 100);
    viewer.setPixmap(checks);
    viewer.scale(scale, TXImageViewer::Absolute);

    const qsizetype colours = PixelProbe(viewer).countColours(viewer.rect());
    QVERIFY2(isBlended ? colours > 2 : colours == 2, qPrintable(QString::number(colours)));
}

void TestTXImageViewerPainting::transparentPictureShowsTheBackground()
{
    TXImageViewer viewer;
    viewer.resize(40, 40);
    viewer.setPalette(QPalette(QColor(0, 0, 200)));
    QPixmap picture = filled({20, 20}, QColor(255, 0, 0, 128));
    viewer.setPixmap(picture);
    const QColor background = viewer.palette().color(QPalette::Window);

    const PixelProbe probe(viewer);
    const QColor mixed(128 + background.red() * 127 / 255, background.green() * 127 / 255,
                       background.blue() * 127 / 255);
    QVERIFY2(probe.isNear({20, 20}, mixed), qPrintable(probe.at({20, 20}).name()));
}

void TestTXImageViewerPainting::positionMovesThePictures()
{
    TXImageViewer viewer;
    viewer.resize(200, 100);
    const QPixmap picture = quarters({400, 400});
    viewer.setPixmaps({picture, picture});
    viewer.scale(2.0, TXImageViewer::Absolute);
    viewer.setPosition({10.0, -20.0});

    const PixelProbe probe(viewer);
    for (const int left : {0, 100}) {
        QCOMPARE(probe.at({left + 69, 9}), QColor(Qt::red));
        QCOMPARE(probe.at({left + 70, 9}), QColor(Qt::green));
        QCOMPARE(probe.at({left + 69, 10}), QColor(Qt::blue));
        QCOMPARE(probe.at({left + 70, 10}), QColor(Qt::yellow));
    }
}

void TestTXImageViewerPainting::positionIsHeldWhilePainting_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QPointF>("held");
    // Two pictures of 400 x 300 in zones of 100 x 100.
    QTest::newRow("within") << 1.0 << QPointF(-150.0, 100.0) << QPointF(-150.0, 100.0);
    QTest::newRow("beyond") << 1.0 << QPointF(-151.0, 101.0) << QPointF(-150.0, 100.0);
    QTest::newRow("larger") << 4.0 << QPointF(1e9, -1e9) << QPointF(187.5, -137.5);
    QTest::newRow("smaller") << 0.25 << QPointF(7.0, -7.0) << QPointF(0.0, 0.0);
    QTest::newRow("wider only") << 0.3 << QPointF(500.0, 5.0)
                                << QPointF(400.0 - 1000.0 / 3.0, 0.0) / 2;
    QTest::newRow("far beyond") << 1.0 << QPointF(1e300, -1e300) << QPointF(150.0, -100.0);
}

void TestTXImageViewerPainting::positionIsHeldWhilePainting()
{
    QFETCH(double, scale);
    QFETCH(QPointF, position);
    QFETCH(QPointF, held);
    TXImageViewer viewer;
    viewer.resize(200, 100);
    const QPixmap picture = quarters({400, 300});
    viewer.setPixmaps({picture, picture});
    viewer.scale(scale, TXImageViewer::Absolute);

    viewer.setPosition(position);
    QCOMPARE(viewer.position(), position);
    ImagePainting::painted(viewer);
    QCOMPARE(viewer.position(), held);
}

void TestTXImageViewerPainting::positionIsKeptWithoutPictures()
{
    TXImageViewer viewer;
    viewer.resize(200, 100);
    viewer.setPosition({1000.0, 1000.0});
    ImagePainting::painted(viewer);
    QCOMPARE(viewer.position(), QPointF(1000.0, 1000.0));
}

void TestTXImageViewerPainting::pixelUnderAMouseAtRestFollowsThePosition()
{
    ImagePainting::OpenViewer viewer;
    viewer.resize(100, 100);
    viewer.setPixmap(quarters({400, 400}));
    viewer.scale(1.0, TXImageViewer::Absolute);
    moveMouse(viewer, {50.0, 50.0});
    QCOMPARE(viewer.toldPixel(), std::optional(QPoint(200, 200)));

    viewer.setPosition({1000.0, 0.0});
    QCOMPARE(viewer.toldPixel(), std::nullopt);
    ImagePainting::painted(viewer);
    QCOMPARE(viewer.position(), QPointF(150.0, 0.0));
    QCOMPARE(viewer.toldPixel(), std::optional(QPoint(50, 200)));
}

void TestTXImageViewerPainting::focusFrameStandsAroundAllZones()
{
    TXImageViewer viewer;
    viewer.setFocusPolicy(Qt::StrongFocus);
    viewer.resize(200, 100);
    viewer.setPixmaps({filled({100, 100}, Qt::white), filled({100, 100}, Qt::white)});
    viewer.setOverlay([](QPainter *painter, int, bool, const QPointF &, double) {
        painter->setClipRect(0, 0, 1, 1, Qt::ReplaceClip);
        painter->setOpacity(0.0);
    });
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    viewer.activateWindow();
    viewer.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(viewer.hasFocus());
    viewer.setAttribute(Qt::WA_KeyboardFocusChange, false);
    const QImage without = ImagePainting::painted(viewer);

    viewer.setAttribute(Qt::WA_KeyboardFocusChange, true);
    const QImage with = ImagePainting::painted(viewer);
    QVERIFY(with.pixel(0, 50) != without.pixel(0, 50));
    QVERIFY(with.pixel(100, 0) != without.pixel(100, 0));
    QVERIFY(with.pixel(199, 50) != without.pixel(199, 50));
    QVERIFY(with.pixel(100, 99) != without.pixel(100, 99));
    QVERIFY(with.pixel(0, 50) != with.pixel(100, 50));
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPainting>(argc, argv);
}

#include "tst_TXImageViewerPainting.moc"
