#include "TXGraphicsRoundedRectItem.h"

#include "PixelProbe.h"
#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QColor>
#include <QCoreApplication>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPen>
#include <QSignalSpy>

#include <array>
#include <cmath>
#include <memory>
#include <new>

using SceneTestHelpers::rendered;

namespace {

const QRectF kRect(10, 10, 40, 40);
const QSize kArea(60, 60);

TXGraphicsRoundedRectItem *addItem(QGraphicsScene &scene, double xRadius, double yRadius)
{
    auto item = std::make_unique<TXGraphicsRoundedRectItem>();
    item->setRoundedRect(kRect, xRadius, yRadius);
    item->setPen(Qt::NoPen);
    item->setBrush(Qt::red);
    scene.addItem(item.get());
    return item.release();
}

} // namespace

class TestTXGraphicsRoundedRectItem : public TestBase
{
    Q_OBJECT

private slots:
    void cornersAreRound_data();
    void cornersAreRound();
    void radiiAreThoseOfTheirDirections();
    void radiiOfZeroGiveSquareCorners();
    void cornersAreSquareBeforeTheFirstRadii();
    void largeRadiiEndAtHalfASide();
    void penDrawsTheOutline();
    void setRoundedRectChangesThePicture();
    void radiiAloneChangeThePicture();
    void senselessRadiiAreHarmless_data();
    void senselessRadiiAreHarmless();
    void parentOwnsTheItem();
};

void TestTXGraphicsRoundedRectItem::cornersAreRound_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXGraphicsRoundedRectItem::cornersAreRound()
{
    QFETCH(qreal, ratio);
    QGraphicsScene scene;
    addItem(scene, 10, 10);

    const PixelProbe probe = rendered(scene, kArea, ratio);

    for (const QPoint &corner : {QPoint(11, 11), QPoint(48, 11), QPoint(11, 48), QPoint(48, 48)}) {
        QCOMPARE(probe.at(corner), QColor(Qt::white));
    }
    for (const QPoint &inside : {QPoint(14, 14), QPoint(20, 11), QPoint(11, 20), QPoint(30, 30)}) {
        QCOMPARE(probe.at(inside), QColor(Qt::red));
    }
}

void TestTXGraphicsRoundedRectItem::radiiAreThoseOfTheirDirections()
{
    QGraphicsScene scene;
    addItem(scene, 20, 4);

    const PixelProbe probe = rendered(scene, kArea);

    QCOMPARE(probe.at({11, 16}), QColor(Qt::red));
    QCOMPARE(probe.at({16, 10}), QColor(Qt::white));
}

void TestTXGraphicsRoundedRectItem::radiiOfZeroGiveSquareCorners()
{
    QGraphicsScene scene;
    addItem(scene, 0, 0);

    QCOMPARE(rendered(scene, kArea).at({10, 10}), QColor(Qt::red));
}

void TestTXGraphicsRoundedRectItem::cornersAreSquareBeforeTheFirstRadii()
{
    // In memory that held large numbers before.
    constexpr auto kNumbers = sizeof(TXGraphicsRoundedRectItem) / sizeof(double) + 1;
    alignas(TXGraphicsRoundedRectItem) std::array<double, kNumbers> memory;
    memory.fill(20);
    QGraphicsScene scene;
    auto *item = new (memory.data()) TXGraphicsRoundedRectItem;
    item->setRect(kRect);
    item->setPen(Qt::NoPen);
    item->setBrush(Qt::red);
    scene.addItem(item);

    const QColor corner = rendered(scene, kArea).at({10, 10});
    item->~TXGraphicsRoundedRectItem();

    QCOMPARE(corner, QColor(Qt::red));
}

void TestTXGraphicsRoundedRectItem::largeRadiiEndAtHalfASide()
{
    QGraphicsScene large;
    addItem(large, 1000, 1000);
    QGraphicsScene half;
    addItem(half, 20, 20);

    QCOMPARE(rendered(large, kArea).image(), rendered(half, kArea).image());
}

void TestTXGraphicsRoundedRectItem::penDrawsTheOutline()
{
    QGraphicsScene scene;
    addItem(scene, 10, 10)->setPen(QPen(Qt::blue, 2.0));

    const PixelProbe probe = rendered(scene, kArea);

    QCOMPARE(probe.at({30, 9}), QColor(Qt::blue));
    QCOMPARE(probe.at({30, 10}), QColor(Qt::blue));
    QCOMPARE(probe.at({30, 12}), QColor(Qt::red));
    QCOMPARE(scene.itemsBoundingRect(), QRectF(9, 9, 42, 42));
}

void TestTXGraphicsRoundedRectItem::setRoundedRectChangesThePicture()
{
    QGraphicsScene scene;
    TXGraphicsRoundedRectItem *item = addItem(scene, 10, 10);

    item->setRoundedRect(QRectF(0, 0, 10, 10), 0, 0);

    const PixelProbe probe = rendered(scene, kArea);
    QCOMPARE(item->rect(), QRectF(0, 0, 10, 10));
    QCOMPARE(probe.at({0, 0}), QColor(Qt::red));
    QCOMPARE(probe.at({30, 30}), QColor(Qt::white));
}

void TestTXGraphicsRoundedRectItem::radiiAloneChangeThePicture()
{
    QGraphicsScene scene;
    TXGraphicsRoundedRectItem *item = addItem(scene, 10, 10);
    QCoreApplication::processEvents();
    QSignalSpy changed(&scene, SIGNAL(changed(QList<QRectF>)));

    item->setRoundedRect(kRect, 0, 0);

    QTRY_VERIFY(!changed.isEmpty());
    QCOMPARE(rendered(scene, kArea).at({10, 10}), QColor(Qt::red));
}

void TestTXGraphicsRoundedRectItem::senselessRadiiAreHarmless_data()
{
    QTest::addColumn<double>("radius");
    QTest::addRow("negative") << -5.0;
    QTest::addRow("huge") << 1e300;
    QTest::addRow("infinite") << double(INFINITY);
    QTest::addRow("minus infinite") << double(-INFINITY);
}

void TestTXGraphicsRoundedRectItem::senselessRadiiAreHarmless()
{
    QFETCH(double, radius);
    QGraphicsScene scene;
    addItem(scene, radius, radius);

    QCOMPARE(rendered(scene, kArea).at({30, 30}), QColor(Qt::red));
}

void TestTXGraphicsRoundedRectItem::parentOwnsTheItem()
{
    QGraphicsScene scene;
    QGraphicsRectItem *parent = scene.addRect(kRect);

    const auto *item = new TXGraphicsRoundedRectItem(parent);

    QCOMPARE(item->parentItem(), parent);
    QCOMPARE(item->scene(), &scene);
}

int main(int argc, char **argv)
{
    return runTest<TestTXGraphicsRoundedRectItem>(argc, argv);
}

#include "tst_TXGraphicsRoundedRectItem.moc"
