#include "TXGraphicsScene.h"

#include "PixelProbe.h"
#include "SceneTestHelpers.h"
#include "TXGraphicsRoundedRectItem.h"
#include "TestBase.h"

#include <QBrush>
#include <QColor>
#include <QGraphicsBlurEffect>
#include <QGraphicsColorizeEffect>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsEllipseItem>
#include <QGraphicsItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QLineF>
#include <QPen>

#include <cmath>
#include <limits>
#include <memory>

using SceneTestHelpers::itemAt;
using SceneTestHelpers::onlyItem;
using SceneTestHelpers::rendered;

namespace {

const QSize kArea(100, 100);
const QRectF kRect(20, 20, 60, 40);
const QPen kPen(QBrush(Qt::blue), 4.0, Qt::DashLine, Qt::RoundCap);
const QBrush kBrush(Qt::red, Qt::Dense4Pattern);

/// Draws one thing of the kind into kRect.
using Draw = void (*)(TXGraphicsScene &, bool shadow);

} // namespace

Q_DECLARE_METATYPE(Draw)

class TestTXGraphicsScene : public TestBase
{
    Q_OBJECT

private slots:
    void rectIsAnItem();
    void ellipseIsAnItem();
    void lineIsAnItem();
    void roundedRectIsAnItem();
    void shadowComesOnRequest_data();
    void shadowComesOnRequest();
    void shapesAreSeen_data();
    void shapesAreSeen();
    void laterThingsAreAbove();
    void shadowFallsToAllSides_data();
    void shadowFallsToAllSides();
    void shadowCanBeGivenToAnyItem();
    void colourEffectTintsTheItem();
    void effectsOnNothingDoNothing();
    void newSizeFitsWithProportionsKept_data();
    void newSizeFitsWithProportionsKept();
    void newSizeNeedsNoScale();
    void parentOwnsTheScene();
};

void TestTXGraphicsScene::rectIsAnItem()
{
    TXGraphicsScene scene;

    scene.drawRect(kRect, kPen, kBrush, false);

    const auto *item = onlyItem<QGraphicsRectItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->type(), int(QGraphicsRectItem::Type));
    QCOMPARE(item->rect(), kRect);
    QCOMPARE(item->pos(), QPointF(0, 0));
    QCOMPARE(item->pen(), kPen);
    QCOMPARE(item->brush(), kBrush);
}

void TestTXGraphicsScene::ellipseIsAnItem()
{
    TXGraphicsScene scene;

    scene.drawEllipse(kRect, kPen, kBrush, false);

    const auto *item = onlyItem<QGraphicsEllipseItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->rect(), kRect);
    QCOMPARE(item->pen(), kPen);
    QCOMPARE(item->brush(), kBrush);
}

void TestTXGraphicsScene::lineIsAnItem()
{
    TXGraphicsScene scene;

    scene.drawLine(QPointF(1, 2), QPointF(3.5, -4), kPen, false);

    const auto *item = onlyItem<QGraphicsLineItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->line(), QLineF(1, 2, 3.5, -4));
    QCOMPARE(item->pen(), kPen);
}

void TestTXGraphicsScene::roundedRectIsAnItem()
{
    TXGraphicsScene scene;

    scene.drawRoundedRect(kRect, 15, 5, kPen, kBrush, false);

    const auto *item = onlyItem<TXGraphicsRoundedRectItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->rect(), kRect);
    QCOMPARE(item->pen(), kPen);
    QCOMPARE(item->brush(), kBrush);
}

void TestTXGraphicsScene::shadowComesOnRequest_data()
{
    QTest::addColumn<Draw>("draw");
    QTest::addRow("line") << Draw([](TXGraphicsScene &scene, bool shadow) {
        scene.drawLine(kRect.topLeft(), kRect.bottomRight(), kPen, shadow);
    });
    QTest::addRow("rect") << Draw(
        [](TXGraphicsScene &scene, bool shadow) { scene.drawRect(kRect, kPen, kBrush, shadow); });
    QTest::addRow("rounded rect") << Draw([](TXGraphicsScene &scene, bool shadow) {
        scene.drawRoundedRect(kRect, 5, 5, kPen, kBrush, shadow);
    });
    QTest::addRow("ellipse") << Draw([](TXGraphicsScene &scene, bool shadow) {
        scene.drawEllipse(kRect, kPen, kBrush, shadow);
    });
}

void TestTXGraphicsScene::shadowComesOnRequest()
{
    QFETCH(Draw, draw);
    TXGraphicsScene scene;

    draw(scene, false);
    QVERIFY(!onlyItem<QGraphicsItem>(scene)->graphicsEffect());

    draw(scene, true);
    const QGraphicsItem *item = itemAt<QGraphicsItem>(scene, 1);
    QVERIFY(item);
    const auto *effect = qobject_cast<QGraphicsDropShadowEffect *>(item->graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->color(), QColor(80, 80, 80, 100));
    QCOMPARE(effect->offset(), QPointF(0, 0));
    QCOMPARE(effect->blurRadius(), 40.0);
    QVERIFY(effect->isEnabled());
}

void TestTXGraphicsScene::shapesAreSeen_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXGraphicsScene::shapesAreSeen()
{
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    scene.drawRect(QRectF(10, 10, 20, 20), QPen(Qt::blue, 2.0), Qt::red, false);
    scene.drawEllipse(QRectF(40, 10, 20, 20), Qt::NoPen, Qt::red, false);
    scene.drawRoundedRect(QRectF(70, 10, 20, 20), 8, 8, Qt::NoPen, Qt::red, false);
    scene.drawLine(QPointF(10, 50), QPointF(90, 50), QPen(Qt::blue, 4.0), false);

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({9, 20}), QColor(Qt::blue));
    QCOMPARE(probe.at({20, 20}), QColor(Qt::red));
    QCOMPARE(probe.at({33, 20}), QColor(Qt::white));
    QCOMPARE(probe.at({50, 20}), QColor(Qt::red));
    QCOMPARE(probe.at({41, 11}), QColor(Qt::white));
    QCOMPARE(probe.at({80, 20}), QColor(Qt::red));
    QCOMPARE(probe.at({71, 11}), QColor(Qt::white));
    QCOMPARE(probe.at({50, 48}), QColor(Qt::blue));
    QCOMPARE(probe.at({50, 51}), QColor(Qt::blue));
    QCOMPARE(probe.at({50, 53}), QColor(Qt::white));
}

void TestTXGraphicsScene::laterThingsAreAbove()
{
    TXGraphicsScene scene;
    scene.drawRect(kRect, Qt::NoPen, Qt::red, false);
    scene.drawEllipse(kRect, Qt::NoPen, Qt::green, false);

    QVERIFY(itemAt<QGraphicsRectItem>(scene, 0));
    QVERIFY(itemAt<QGraphicsEllipseItem>(scene, 1));
    QCOMPARE(rendered(scene, kArea).at({50, 40}), QColor(Qt::green));
}

void TestTXGraphicsScene::shadowFallsToAllSides_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXGraphicsScene::shadowFallsToAllSides()
{
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    scene.drawRect(QRectF(30, 30, 40, 40), Qt::NoPen, Qt::red, true);

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({50, 50}), QColor(Qt::red));
    for (const QPoint &place : {QPoint(27, 50), QPoint(72, 50), QPoint(50, 27), QPoint(50, 72)}) {
        const QColor colour = probe.at(place);
        QVERIFY(colour.red() < 250 && colour.red() > 150);
        QCOMPARE(colour.green(), colour.red());
    }
}

void TestTXGraphicsScene::shadowCanBeGivenToAnyItem()
{
    TXGraphicsScene scene;
    QGraphicsSimpleTextItem *item = scene.addSimpleText(QStringLiteral("a"));
    item->setGraphicsEffect(std::make_unique<QGraphicsBlurEffect>().release());

    scene.addShadowEffectInGraphicsItem(item);

    QVERIFY(qobject_cast<QGraphicsDropShadowEffect *>(item->graphicsEffect()));
}

void TestTXGraphicsScene::colourEffectTintsTheItem()
{
    TXGraphicsScene scene;
    QGraphicsRectItem *item = scene.addRect(kRect, Qt::NoPen, Qt::gray);

    scene.addColorEffectInGraphicsItem(item, QColor(0, 200, 0));

    const auto *effect = qobject_cast<QGraphicsColorizeEffect *>(item->graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->color(), QColor(0, 200, 0));
    QCOMPARE(effect->strength(), 1.0);
    QVERIFY(effect->isEnabled());
    const QColor seen = rendered(scene, kArea).at({50, 40});
    QVERIFY(seen.green() > seen.red() + 50);
    QVERIFY(seen.green() > seen.blue() + 50);
}

void TestTXGraphicsScene::effectsOnNothingDoNothing()
{
    TXGraphicsScene scene;

    scene.addShadowEffectInGraphicsItem(nullptr);
    scene.addColorEffectInGraphicsItem(nullptr, Qt::red);

    QVERIFY(scene.items().isEmpty());
}

void TestTXGraphicsScene::newSizeFitsWithProportionsKept_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<float>("scale");

    QTest::addRow("smaller") << QSize(400, 200) << QSize(100, 100) << QSize(100, 50) << 0.25F;
    QTest::addRow("by height") << QSize(200, 400) << QSize(100, 100) << QSize(50, 100) << 0.25F;
    QTest::addRow("larger") << QSize(10, 5) << QSize(100, 100) << QSize(100, 50) << 10.0F;
    QTest::addRow("truncated") << QSize(4, 3) << QSize(9, 9) << QSize(9, 6) << 2.25F;
    // In double precision it would be 31.
    QTest::addRow("single precision")
        << QSize(7, 7) << QSize(31, 31) << QSize(30, 30) << 31.0F / 7.0F;
    QTest::addRow("negative") << QSize(400, 200) << QSize(-100, -100) << QSize(-200, -100) << -0.5F;
    QTest::addRow("to nothing") << QSize(400, 200) << QSize(0, 0) << QSize(0, 0) << 0.0F;
    const int most = std::numeric_limits<int>::max();
    QTest::addRow("from a line") << QSize(0, 5) << QSize(10, 10) << QSize(0, 10) << 2.0F;
    QTest::addRow("from nothing") << QSize(0, 0) << QSize(10, 10) << QSize(0, 0) << float(INFINITY);
    QTest::addRow("beyond whole numbers")
        << QSize(1, most) << QSize(most, most) << QSize(1, most) << 1.0F;
}

void TestTXGraphicsScene::newSizeFitsWithProportionsKept()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    QFETCH(QSize, size);
    QFETCH(float, scale);
    float found = 0.0F;

    QCOMPARE(TXGraphicsScene::newSizeFromSize(from, to, &found), size);
    QCOMPARE(found, scale);
}

void TestTXGraphicsScene::newSizeNeedsNoScale()
{
    QCOMPARE(TXGraphicsScene::newSizeFromSize({400, 200}, {100, 100}, nullptr), QSize(100, 50));
}

void TestTXGraphicsScene::parentOwnsTheScene()
{
    QObject parent;

    const auto *scene = new TXGraphicsScene(&parent);

    QCOMPARE(scene->parent(), &parent);
    QVERIFY(scene->items().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestTXGraphicsScene>(argc, argv);
}

#include "tst_TXGraphicsScene.moc"
