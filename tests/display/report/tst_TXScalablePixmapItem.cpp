#include "TXScalablePixmapItem.h"

#include "PixelProbe.h"
#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QColor>
#include <QGraphicsItem>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cmath>
#include <memory>

using SceneTestHelpers::rendered;

namespace {

const QSize kArea(60, 60);

/// Left half red, right half blue.
QPixmap twoColours(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    QPainter painter(&pixmap);
    painter.fillRect(QRect(size.width() / 2, 0, size.width(), size.height()), Qt::blue);
    return pixmap;
}

TXScalablePixmapItem *addItem(QGraphicsScene &scene, const QPixmap &pixmap, QSizeF size)
{
    auto item = std::make_unique<TXScalablePixmapItem>(pixmap, nullptr, size);
    scene.addItem(item.get());
    return item.release();
}

/// Fills a shape of its own choice.
class ShiftedItem : public TXScalablePixmapItem
{
public:
    using TXScalablePixmapItem::TXScalablePixmapItem;

    QRectF boundingRect() const override { return {20, 20, 10, 10}; }
};

} // namespace

class TestTXScalablePixmapItem : public TestBase
{
    Q_OBJECT

private slots:
    void sizeIsNoneByDefault();
    void itemIsNotCached();
    void pictureFillsTheSize_data();
    void pictureFillsTheSize();
    void boundsAreRoundedForPainting();
    void paintingGoesByTheVirtualBounds();
    void paintingIsSmooth();
    void setSizeChangesThePicture();
    void pixmapCanBeReplaced();
    void sizesWithoutExtentShowNothing_data();
    void sizesWithoutExtentShowNothing();
    void negativeLengthsGiveWayToThePixmapsOwn_data();
    void negativeLengthsGiveWayToThePixmapsOwn();
    void nullPixmapShowsNothing();
};

void TestTXScalablePixmapItem::sizeIsNoneByDefault()
{
    const TXScalablePixmapItem item(twoColours({4, 4}));

    QCOMPARE(item.boundingRect(), QRectF(0, 0, -1, -1));
    QCOMPARE(item.pixmap().size(), QSize(4, 4));
}

void TestTXScalablePixmapItem::itemIsNotCached()
{
    const TXScalablePixmapItem item(twoColours({4, 4}), nullptr, QSizeF(10, 10));

    QCOMPARE(item.cacheMode(), QGraphicsItem::NoCache);
    QCOMPARE(item.type(), int(QGraphicsPixmapItem::Type));
}

void TestTXScalablePixmapItem::pictureFillsTheSize_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("fewer pixels, ratio %g", ratio) << QSize(4, 4) << ratio;
        QTest::addRow("more pixels, ratio %g", ratio) << QSize(400, 300) << ratio;
    }
}

void TestTXScalablePixmapItem::pictureFillsTheSize()
{
    QFETCH(QSize, pixels);
    QFETCH(qreal, ratio);
    QGraphicsScene scene;
    addItem(scene, twoColours(pixels), QSizeF(40, 20));

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({1, 1}), QColor(Qt::red));
    QCOMPARE(probe.at({10, 18}), QColor(Qt::red));
    QCOMPARE(probe.at({30, 1}), QColor(Qt::blue));
    QCOMPARE(probe.at({38, 18}), QColor(Qt::blue));
    QCOMPARE(probe.at({41, 10}), QColor(Qt::white));
    QCOMPARE(probe.at({10, 21}), QColor(Qt::white));
}

void TestTXScalablePixmapItem::boundsAreRoundedForPainting()
{
    QGraphicsScene scene;
    QPixmap red(4, 4);
    red.fill(Qt::red);
    const auto *item = addItem(scene, red, QSizeF(10.6, 10.4));

    const PixelProbe probe = rendered(scene, kArea);

    QCOMPARE(item->boundingRect(), QRectF(0, 0, 10.6, 10.4));
    QCOMPARE(probe.at({10, 9}), QColor(Qt::red));
    QCOMPARE(probe.at({9, 10}), QColor(Qt::white));
}

void TestTXScalablePixmapItem::paintingGoesByTheVirtualBounds()
{
    QGraphicsScene scene;
    auto item = std::make_unique<ShiftedItem>(twoColours({4, 4}), nullptr, QSizeF(5, 5));
    scene.addItem(item.release());

    const PixelProbe probe = rendered(scene, kArea);

    QCOMPARE(probe.at({2, 2}), QColor(Qt::white));
    QCOMPARE(probe.at({21, 21}), QColor(Qt::red));
    QCOMPARE(probe.at({28, 28}), QColor(Qt::blue));
}

void TestTXScalablePixmapItem::paintingIsSmooth()
{
    TXScalablePixmapItem item(twoColours({2, 2}), nullptr, QSizeF(40, 40));
    QImage image(kArea, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);

    item.paint(&painter, nullptr, nullptr);

    QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
    QVERIFY(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    painter.end();
    QVERIFY(PixelProbe(image).countColours({0, 0, 40, 1}) > 2);
}

void TestTXScalablePixmapItem::setSizeChangesThePicture()
{
    QGraphicsScene scene;
    TXScalablePixmapItem *item = addItem(scene, twoColours({4, 4}), QSizeF(10, 10));
    (void)rendered(scene, kArea);

    item->setSize(QSizeF(50, 50));

    QCOMPARE(item->boundingRect(), QRectF(0, 0, 50, 50));
    QCOMPARE(rendered(scene, kArea).at({48, 48}), QColor(Qt::blue));
    QCOMPARE(scene.items(QRectF(40, 40, 5, 5), Qt::IntersectsItemBoundingRect).size(), 1);
}

void TestTXScalablePixmapItem::pixmapCanBeReplaced()
{
    QGraphicsScene scene;
    TXScalablePixmapItem *item = addItem(scene, twoColours({4, 4}), QSizeF(10, 10));
    QPixmap green(100, 1);
    green.fill(Qt::green);

    item->setPixmap(green);

    QCOMPARE(item->boundingRect(), QRectF(0, 0, 10, 10));
    QCOMPARE(rendered(scene, kArea).at({8, 8}), QColor(Qt::green));
}

void TestTXScalablePixmapItem::sizesWithoutExtentShowNothing_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addRow("zero") << QSizeF(0, 0);
    QTest::addRow("flat") << QSizeF(10, 0);
    QTest::addRow("infinite") << QSizeF(INFINITY, INFINITY);
    QTest::addRow("not numbers") << QSizeF(NAN, NAN);
    QTest::addRow("beyond whole numbers") << QSizeF(1e300, 1e300);
}

void TestTXScalablePixmapItem::sizesWithoutExtentShowNothing()
{
    QFETCH(QSizeF, size);
    TXScalablePixmapItem item(twoColours({4, 4}), nullptr, size);
    QImage image(kArea, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);

    item.paint(&painter, nullptr, nullptr);
    painter.end();

    QCOMPARE(PixelProbe(image).countColours(QRect(QPoint(0, 0), kArea)), 1);
}

void TestTXScalablePixmapItem::negativeLengthsGiveWayToThePixmapsOwn_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSize>("seen");
    QTest::addRow("default") << QSizeF() << QSize(20, 16);
    QTest::addRow("both") << QSizeF(-30, -40) << QSize(20, 16);
    QTest::addRow("width") << QSizeF(-30, 10) << QSize(20, 10);
    QTest::addRow("height") << QSizeF(8, -30) << QSize(8, 16);
}

void TestTXScalablePixmapItem::negativeLengthsGiveWayToThePixmapsOwn()
{
    QFETCH(QSizeF, size);
    QFETCH(QSize, seen);
    QGraphicsScene scene;
    addItem(scene, twoColours({20, 16}), size)->setPos(30, 40);

    const PixelProbe probe = rendered(scene, kArea);

    const QRect place(QPoint(30, 40), seen);
    QCOMPARE(probe.at(place.topLeft()), QColor(Qt::red));
    QCOMPARE(probe.at(place.bottomRight()), QColor(Qt::blue));
    QCOMPARE(probe.at(place.topLeft() - QPoint(1, 1)), QColor(Qt::white));
    QCOMPARE(probe.at(place.topRight() + QPoint(1, 0)), QColor(Qt::white));
    QCOMPARE(probe.at(place.bottomLeft() + QPoint(0, 1)), QColor(Qt::white));
}

void TestTXScalablePixmapItem::nullPixmapShowsNothing()
{
    QGraphicsScene scene;
    addItem(scene, QPixmap(), QSizeF(10, 10));

    QCOMPARE(rendered(scene, kArea).countColours(QRect(QPoint(0, 0), kArea)), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXScalablePixmapItem>(argc, argv);
}

#include "tst_TXScalablePixmapItem.moc"
