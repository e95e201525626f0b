#include "TXGraphicsScene.h"

#include "PixelProbe.h"
#include "SceneTestHelpers.h"
#include "TXScalablePixmapItem.h"
#include "TestBase.h"

#include <QColor>
#include <QGraphicsItem>
#include <QPixmap>
#include <QSet>
#include <QTransform>

#include <cmath>

using SceneTestHelpers::exactly;
using SceneTestHelpers::onlyItem;
using SceneTestHelpers::rendered;

namespace {

const QSize kArea(120, 120);

QPixmap filled(const QSize &size, const QColor &colour)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

void drawInRect(TXGraphicsScene &scene, const QPixmap &pixmap, const QRectF &rect,
                quint32 horizontal = 2, quint32 vertical = 2)
{
    scene.drawImageInRect(pixmap, rect, TXHorizontalAlignment(horizontal),
                          TXVerticalAlignment(vertical));
}

} // namespace

class TestTXGraphicsScenePicture : public TestBase
{
    Q_OBJECT

private slots:
    void pictureIsFittedAndResampled();
    void pictureIsPlacedByItsTransform();
    void pictureIsAligned_data();
    void pictureIsAligned();
    void pictureIsSeenWhereItIs_data();
    void pictureIsSeenWhereItIs();
    void nullPixmapDrawsNothing();
    void placeIsNarrowedAndSizeRounded();
    void pixmapsOwnRatioDoesNotCount();
    void resamplingKeepsProportions_data();
    void resamplingKeepsProportions();
    void resamplesOnce();
    void resampledPicturesAreKeptAsLongAsTheScene();
    void resamplesAnewForAnotherSizePictureOrScene();
    void resolutionsOfOnePixelSizeAreOne();
    void picturesDrawnTwiceShareTheirPixels();
    void nullPixmapIsResampledToNull();
    void hugeSizesKeepThePixels();
    void roomWithoutExtentShowsNothing_data();
    void roomWithoutExtentShowsNothing();
};

void TestTXGraphicsScenePicture::pictureIsFittedAndResampled()
{
    TXGraphicsScene scene;

    drawInRect(scene, filled({400, 200}, Qt::red), QRectF(0, 0, 100, 100));

    const auto *item = onlyItem<TXScalablePixmapItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->boundingRect(), QRectF(0, 0, 100, 50));
    QCOMPARE(item->sceneBoundingRect(), QRectF(0, 25, 100, 50));
    QCOMPARE(item->pixmap().size(), QSize(278, 139));
    QCOMPARE(item->transformationMode(), Qt::SmoothTransformation);
    QCOMPARE(item->cacheMode(), QGraphicsItem::NoCache);
    QVERIFY(!item->parentItem());
}

void TestTXGraphicsScenePicture::pictureIsPlacedByItsTransform()
{
    TXGraphicsScene scene;

    drawInRect(scene, filled({400, 200}, Qt::red), QRectF(10, 20, 100, 100));

    const auto *item = onlyItem<TXScalablePixmapItem>(scene);
    QVERIFY(item);
    QCOMPARE(exactly(item->pos()), exactly(QPointF(0, 0)));
    QCOMPARE(item->transform(), QTransform::fromTranslate(10, 45));
}

void TestTXGraphicsScenePicture::pictureIsAligned_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QRectF>("place");

    const QSize landscape(400, 200);
    QTest::addRow("landscape, top") << landscape << 0U << 0U << QRectF(10, 20, 100, 50);
    QTest::addRow("landscape, bottom") << landscape << 1U << 1U << QRectF(10, 70, 100, 50);
    QTest::addRow("landscape, centred") << landscape << 2U << 2U << QRectF(10, 45, 100, 50);
    QTest::addRow("landscape, any other") << landscape << 7U << 7U << QRectF(10, 20, 100, 50);
    const QSize portrait(10, 20);
    QTest::addRow("portrait, left") << portrait << 0U << 0U << QRectF(10, 20, 50, 100);
    QTest::addRow("portrait, right") << portrait << 1U << 1U << QRectF(60, 20, 50, 100);
    QTest::addRow("portrait, centred") << portrait << 2U << 2U << QRectF(35, 20, 50, 100);
    QTest::addRow("portrait, any other") << portrait << 7U << 7U << QRectF(10, 20, 50, 100);
}

void TestTXGraphicsScenePicture::pictureIsAligned()
{
    QFETCH(QSize, pixels);
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(QRectF, place);
    TXGraphicsScene scene;

    drawInRect(scene, filled(pixels, Qt::red), QRectF(10, 20, 100, 100), horizontal, vertical);

    QCOMPARE(onlyItem<TXScalablePixmapItem>(scene)->sceneBoundingRect(), place);
}

void TestTXGraphicsScenePicture::pictureIsSeenWhereItIs_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXGraphicsScenePicture::pictureIsSeenWhereItIs()
{
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    drawInRect(scene, filled({400, 200}, Qt::red), QRectF(10, 10, 100, 100));

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({10, 35}), QColor(Qt::red));
    QCOMPARE(probe.at({109, 84}), QColor(Qt::red));
    QCOMPARE(probe.at({9, 60}), QColor(Qt::white));
    QCOMPARE(probe.at({110, 60}), QColor(Qt::white));
    QCOMPARE(probe.at({60, 34}), QColor(Qt::white));
    QCOMPARE(probe.at({60, 85}), QColor(Qt::white));
}

void TestTXGraphicsScenePicture::nullPixmapDrawsNothing()
{
    TXGraphicsScene scene;

    drawInRect(scene, QPixmap(), QRectF(0, 0, 100, 100));

    QVERIFY(scene.items().isEmpty());
}

void TestTXGraphicsScenePicture::placeIsNarrowedAndSizeRounded()
{
    TXGraphicsScene scene;

    drawInRect(scene, filled({200, 200}, Qt::red), QRectF(0.1, 0.3, 100.5, 100.4), 2, 0);

    const auto *item = onlyItem<TXScalablePixmapItem>(scene);
    QVERIFY(item);
    QCOMPARE(exactly(item->transform().dx()), exactly(0.1F + 0.5F));
    QCOMPARE(exactly(item->transform().dy()), exactly(0.3F));
    QCOMPARE(item->boundingRect(), QRectF(0, 0, 100, 100));
}

void TestTXGraphicsScenePicture::pixmapsOwnRatioDoesNotCount()
{
    TXGraphicsScene scene;
    QPixmap fine = filled({400, 200}, Qt::red);
    fine.setDevicePixelRatio(2.0);

    drawInRect(scene, fine, QRectF(0, 0, 100, 100));

    QCOMPARE(onlyItem<TXScalablePixmapItem>(scene)->sceneBoundingRect(), QRectF(0, 25, 100, 50));
    QCOMPARE(rendered(scene, kArea).at({98, 73}), QColor(Qt::red));
    QCOMPARE(rendered(scene, kArea).at({98, 76}), QColor(Qt::white));
}

void TestTXGraphicsScenePicture::resamplingKeepsProportions_data()
{
    QTest::addColumn<QSize>("points");
    QTest::addColumn<int>("dotsPerInch");
    QTest::addColumn<QSize>("pixels");

    QTest::addRow("same proportions") << QSize(100, 50) << 200 << QSize(278, 139);
    QTest::addRow("more room than needed") << QSize(100, 100) << 200 << QSize(278, 139);
    QTest::addRow("a pixel for a point") << QSize(100, 50) << 72 << QSize(100, 50);
    QTest::addRow("none") << QSize(0, 0) << 200 << QSize(0, 0);
    QTest::addRow("negative") << QSize(-100, -50) << 200 << QSize(0, 0);
}

void TestTXGraphicsScenePicture::resamplingKeepsProportions()
{
    QFETCH(QSize, points);
    QFETCH(int, dotsPerInch);
    QFETCH(QSize, pixels);
    TXGraphicsScene scene;

    const QPixmap scaled =
        scene.scaleToFitResolution(filled({400, 200}, Qt::red), points, dotsPerInch);

    QCOMPARE(scaled.size(), pixels);
}

void TestTXGraphicsScenePicture::resamplesOnce()
{
    TXGraphicsScene scene;
    const QPixmap pixmap = filled({400, 200}, Qt::red);

    const QPixmap first = scene.scaleToFitResolution(pixmap, {100, 50}, 200);
    const QPixmap second = scene.scaleToFitResolution(QPixmap(pixmap), {100, 50}, 200);

    QCOMPARE(second.cacheKey(), first.cacheKey());
    QVERIFY(first.cacheKey() != pixmap.cacheKey());
}

void TestTXGraphicsScenePicture::resampledPicturesAreKeptAsLongAsTheScene()
{
    // 3000 pictures of 111 by 55 pixels, in 70 megabytes.
    constexpr int kOthers = 3000;
    TXGraphicsScene scene;
    const QPixmap pixmap = filled({40, 20}, Qt::red);
    const qint64 first = scene.scaleToFitResolution(pixmap, {40, 20}, 200).cacheKey();
    drawInRect(scene, pixmap, QRectF(0, 0, 40, 20));

    scene.clear();
    for (int i = 0; i < kOthers; ++i) {
        (void)scene.scaleToFitResolution(filled({4, 2}, Qt::blue), {40, 20}, 200);
    }

    QCOMPARE(scene.scaleToFitResolution(pixmap, {40, 20}, 200).cacheKey(), first);
}

void TestTXGraphicsScenePicture::resamplesAnewForAnotherSizePictureOrScene()
{
    TXGraphicsScene scene;
    TXGraphicsScene otherScene;
    const QPixmap pixmap = filled({400, 200}, Qt::red);
    const QPixmap alike = filled({400, 200}, Qt::red);

    const QSet<qint64> keys = {
        scene.scaleToFitResolution(pixmap, {100, 50}, 200).cacheKey(),
        scene.scaleToFitResolution(pixmap, {100, 51}, 200).cacheKey(),
        scene.scaleToFitResolution(pixmap, {100, 50}, 201).cacheKey(),
        scene.scaleToFitResolution(alike, {100, 50}, 200).cacheKey(),
        otherScene.scaleToFitResolution(pixmap, {100, 50}, 200).cacheKey(),
    };

    QCOMPARE(keys.size(), 5);
}

void TestTXGraphicsScenePicture::resolutionsOfOnePixelSizeAreOne()
{
    TXGraphicsScene scene;
    const QPixmap pixmap = filled({400, 200}, Qt::red);

    QCOMPARE(scene.scaleToFitResolution(pixmap, {100, 50}, 144).cacheKey(),
             scene.scaleToFitResolution(pixmap, {200, 100}, 72).cacheKey());
}

void TestTXGraphicsScenePicture::picturesDrawnTwiceShareTheirPixels()
{
    TXGraphicsScene scene;
    const QPixmap pixmap = filled({400, 200}, Qt::red);

    drawInRect(scene, pixmap, QRectF(0, 0, 100, 100));
    drawInRect(scene, pixmap, QRectF(200, 0, 100, 100));

    QCOMPARE(scene.items().size(), 2);
    QCOMPARE(SceneTestHelpers::itemAt<TXScalablePixmapItem>(scene, 0)->pixmap().cacheKey(),
             SceneTestHelpers::itemAt<TXScalablePixmapItem>(scene, 1)->pixmap().cacheKey());
}

void TestTXGraphicsScenePicture::nullPixmapIsResampledToNull()
{
    TXGraphicsScene scene;

    QVERIFY(scene.scaleToFitResolution(QPixmap(), {100, 50}, 200).isNull());
}

void TestTXGraphicsScenePicture::hugeSizesKeepThePixels()
{
    TXGraphicsScene scene;

    drawInRect(scene, filled({40, 20}, Qt::red), QRectF(0, 0, 1e9, 1e9));

    const auto *item = onlyItem<TXScalablePixmapItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->boundingRect().size(), QSizeF(1e9, 5e8));
    QCOMPARE(item->pixmap().size(), QSize(40, 20));
}

void TestTXGraphicsScenePicture::roomWithoutExtentShowsNothing_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addRow("none") << QRectF(10, 10, 0, 0);
    QTest::addRow("flat") << QRectF(10, 10, 100, 0);
    QTest::addRow("too small for a unit") << QRectF(10, 10, 0.4, 0.4);
    QTest::addRow("negative") << QRectF(50, 50, -40, -40);
    QTest::addRow("size not a number") << QRectF(10, 10, NAN, NAN);
}

void TestTXGraphicsScenePicture::roomWithoutExtentShowsNothing()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;

    drawInRect(scene, filled({400, 200}, Qt::red), rect);

    QCOMPARE(rendered(scene, kArea).countColours(QRect(QPoint(0, 0), kArea)), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXGraphicsScenePicture>(argc, argv);
}

#include "tst_TXGraphicsScenePicture.moc"
