#include "TXGraphicsScene.h"

#include "ReportTestFont.h"
#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QBrush>
#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QTransform>

#include <cmath>

using SceneTestHelpers::rendered;

namespace {

const QSize kArea(100, 100);

/// What a place or a size must not be, and what is merely unusual.
const QList<double> kNumbers = {
    0.0,        -5.0, 1e-320, 1e7, 1e10, 1e38, 1e300, 1.7e308, double(INFINITY), double(-INFINITY),
    double(NAN)};

/// Draws one thing of each kind into the rectangle.
void drawAll(TXGraphicsScene &scene, const QRectF &rect, const QPen &pen = QPen())
{
    QPixmap picture(40, 20);
    picture.fill(Qt::blue);
    const QFont font = reportTestFont(10);
    scene.drawRect(rect, pen, Qt::NoBrush, false);
    scene.drawEllipse(rect, pen, Qt::NoBrush, false);
    scene.drawRoundedRect(rect, 5, 5, pen, Qt::NoBrush, false);
    scene.drawLine(rect.topLeft(), QPointF(rect.width(), rect.height()), pen, false);
    scene.drawText(QStringLiteral("text"), rect.topLeft(), font, Qt::blue);
    for (const quint32 alignment : {0U, 1U, 2U, 7U}) {
        const auto horizontal = TXHorizontalAlignment(alignment);
        const auto vertical = TXVerticalAlignment(alignment);
        scene.drawTextInRect(QStringLiteral("text"), rect, horizontal, vertical, font, Qt::blue,
                             rect.size());
        scene.drawImageInRect(picture, rect, horizontal, vertical);
    }
}

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.right())
        && std::isfinite(rect.bottom());
}

/// Uses the scene in all the ways that make Qt look at its extent and its index.
void use(TXGraphicsScene &scene)
{
    (void)rendered(scene, kArea);
    QCoreApplication::processEvents();
    QImage image(kArea, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    scene.render(&painter);
    painter.end();
    (void)scene.items(QRectF(0, 0, 10, 10));
    (void)scene.itemAt(QPointF(30, 30), QTransform());
    QGraphicsView view(&scene);
    view.resize(kArea);
    view.show();
    (void)view.grab();
}

} // namespace

class TestTXGraphicsSceneBadInput : public TestBase
{
    Q_OBJECT

private slots:
    void unusualNumbersSpoilNothing_data();
    void unusualNumbersSpoilNothing();
    void whatIsInfiniteOrNoNumberAddsNoItem_data();
    void whatIsInfiniteOrNoNumberAddsNoItem();
    void unusualLineWidthsSpoilNothing_data();
    void unusualLineWidthsSpoilNothing();
    void infiniteMarginsDrawNoText();
    void infiniteSizePlacesTextFarAway();
    void coloursThatAreNonePaintBlack();
    void manyItemsSpoilNothing();
    void itemsThatWereNeverShownGoWithoutASearchForEach();
};

void TestTXGraphicsSceneBadInput::unusualNumbersSpoilNothing_data()
{
    QTest::addColumn<QRectF>("rect");
    for (const double number : kNumbers) {
        QTest::addRow("x %g", number) << QRectF(number, 10, 20, 20);
        QTest::addRow("y %g", number) << QRectF(10, number, 20, 20);
        QTest::addRow("width %g", number) << QRectF(10, 10, number, 20);
        QTest::addRow("height %g", number) << QRectF(10, 10, 20, number);
        QTest::addRow("all %g", number) << QRectF(number, number, number, number);
    }
}

void TestTXGraphicsSceneBadInput::unusualNumbersSpoilNothing()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;

    drawAll(scene, rect);
    scene.drawRect(QRectF(20, 20, 60, 60), Qt::NoPen, Qt::green, false);

    use(scene);
    QCOMPARE(rendered(scene, kArea).at({50, 50}), QColor(Qt::green));
    QVERIFY(isFinite(scene.sceneRect()));
    QCOMPARE(scene.items(QPointF(75, 75)).isEmpty(), false);
}

void TestTXGraphicsSceneBadInput::whatIsInfiniteOrNoNumberAddsNoItem_data()
{
    QTest::addColumn<QRectF>("rect");
    for (const double number : {double(INFINITY), double(-INFINITY), double(NAN)}) {
        QTest::addRow("x %g", number) << QRectF(number, 10, 20, 20);
        QTest::addRow("y %g", number) << QRectF(10, number, 20, 20);
        QTest::addRow("all %g", number) << QRectF(number, number, number, number);
    }
}

void TestTXGraphicsSceneBadInput::whatIsInfiniteOrNoNumberAddsNoItem()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;

    drawAll(scene, rect);

    QCOMPARE(scene.items().size(), 0);
}

void TestTXGraphicsSceneBadInput::unusualLineWidthsSpoilNothing_data()
{
    QTest::addColumn<double>("width");
    // Qt itself refuses what is negative or larger.
    for (const double width : {0.0, 1e-320, 32'000.0, double(NAN)}) {
        QTest::addRow("%g", width) << width;
    }
}

void TestTXGraphicsSceneBadInput::unusualLineWidthsSpoilNothing()
{
    QFETCH(double, width);
    TXGraphicsScene scene;
    QPen pen(Qt::blue);
    pen.setWidthF(width);

    drawAll(scene, QRectF(0, 0, 10, 10), pen);
    scene.drawRect(QRectF(20, 20, 60, 60), Qt::NoPen, Qt::green, false);

    use(scene);
    QCOMPARE(rendered(scene, kArea).at({50, 50}), QColor(Qt::green));
    QVERIFY(isFinite(scene.sceneRect()));
}

void TestTXGraphicsSceneBadInput::infiniteMarginsDrawNoText()
{
    TXGraphicsScene scene;
    for (const double margin : {double(INFINITY), double(NAN), 1e300}) {
        scene.drawTextInRect(QStringLiteral("text"), QRectF(0, 0, 50, 50), TXAlignLeft,
                             TXAlignBottom, reportTestFont(10), Qt::blue, QSizeF(margin, margin));
    }

    QCOMPARE(scene.items().size(), 0);
}

void TestTXGraphicsSceneBadInput::infiniteSizePlacesTextFarAway()
{
    TXGraphicsScene scene;

    scene.drawTextInRect(QStringLiteral("text"), QRectF(0, 0, INFINITY, 50), TXAlignRight,
                         TXAlignTop, reportTestFont(10), Qt::blue, QSizeF(2, 2));

    QCOMPARE(scene.items().size(), 1);
    QCOMPARE(scene.items().first()->x(), double(1U << 31));
    use(scene);
}

void TestTXGraphicsSceneBadInput::coloursThatAreNonePaintBlack()
{
    TXGraphicsScene scene;
    scene.drawRect(QRectF(10, 10, 80, 80), QPen(QColor()), QBrush(QColor(), Qt::SolidPattern),
                   false);

    QCOMPARE(rendered(scene, kArea).at({50, 50}), QColor(Qt::black));
}

void TestTXGraphicsSceneBadInput::manyItemsSpoilNothing()
{
    constexpr int kItems = 20'000;
    TXGraphicsScene scene;
    for (int i = 0; i < kItems; ++i) {
        scene.drawText(QStringLiteral("text"), QPointF(i % 100, double(i) / 100),
                       reportTestFont(10), Qt::blue);
    }

    scene.drawRect(QRectF(20, 20, 60, 60), Qt::NoPen, Qt::green, false);

    use(scene);

    QCOMPARE(scene.items().size(), kItems + 1);
    QCOMPARE(rendered(scene, kArea).at({50, 50}), QColor(Qt::green));
    QVERIFY(isFinite(scene.sceneRect()));
}

/// With a search for each this takes minutes, and the time limit of a test function ends it.
void TestTXGraphicsSceneBadInput::itemsThatWereNeverShownGoWithoutASearchForEach()
{
    constexpr int kItems = 800'000;
    int changes = 0;
    {
        TXGraphicsScene scene;
        connect(&scene, &QGraphicsScene::changed, this, [&changes] { ++changes; });
        for (int i = 0; i < kItems; ++i) {
            scene.drawRect(QRectF(i % 1000, double(i) / 1000, 5, 5), Qt::NoPen, Qt::blue, false);
        }
        QCOMPARE(scene.items().size(), kItems);
    }
    // Nobody is called back by a scene that is going.
    QCOMPARE(changes, 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXGraphicsSceneBadInput>(argc, argv);
}

#include "tst_TXGraphicsSceneBadInput.moc"
