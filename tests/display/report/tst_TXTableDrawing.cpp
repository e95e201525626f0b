#include "PixelProbe.h"
#include "ReportTestFont.h"
#include "SceneTestHelpers.h"
#include "TXGraphicsScene.h"
#include "TXScalablePixmapItem.h"
#include "TXTable.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QBrush>
#include <QColor>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QPen>
#include <QPixmap>

using SceneTestHelpers::exactly;
using SceneTestHelpers::rendered;
using TableTest::cell;
using TableTest::describe;
using TableTest::Rows;
using TableTest::settings;
using TableTest::tableOf;

namespace {

QList<QGraphicsItem *> itemsOf(const QGraphicsScene &scene)
{
    return scene.items(Qt::AscendingOrder);
}

/// The rectangles of the scene in the order of drawing.
QList<QRectF> rectsOf(const QGraphicsScene &scene)
{
    QList<QRectF> rects;
    const auto items = itemsOf(scene);
    for (const QGraphicsItem *item : items) {
        if (const auto *rect = qgraphicsitem_cast<const QGraphicsRectItem *>(item)) {
            rects.append(rect->rect());
        }
    }
    return rects;
}

/// What stands on the scene, from the bottom up: "rect", "a text" or "picture".
QStringList kindsOf(const QGraphicsScene &scene)
{
    QStringList kinds;
    const auto items = itemsOf(scene);
    for (const QGraphicsItem *item : items) {
        if (const auto *text = qgraphicsitem_cast<const QGraphicsSimpleTextItem *>(item)) {
            kinds.append(text->text());
        } else if (qgraphicsitem_cast<const QGraphicsRectItem *>(item) != nullptr) {
            kinds.append(QStringLiteral("rect"));
        } else if (dynamic_cast<const TXScalablePixmapItem *>(item) != nullptr) {
            kinds.append(QStringLiteral("picture"));
        }
    }
    return kinds;
}

QPixmap filled(const QColor &colour)
{
    QPixmap pixmap(40, 20);
    pixmap.fill(colour);
    return pixmap;
}

/// Two rows of two cells: 40 and 60 points wide, 20 and 30 points high.
TXTable twoByTwo(bool hasShadow = false)
{
    TXTable table(2, hasShadow);
    table.addCell(settings("a", {40.0, 20.0}));
    table.addCell(settings("b", {60.0, 20.0}));
    table.addCell(settings("c", {40.0, 30.0}));
    table.addCell(settings("d", {60.0, 30.0}));
    table.setColumnWidth(40.0F, 0);
    table.setColumnWidth(60.0F, 1);
    return table;
}

} // namespace

/// The items that a table becomes, and the pixels that they become.
class TestTXTableDrawing : public TestBase
{
    Q_OBJECT

private slots:
    void theFrameStandsOutByTheMargin();
    void theFrameIsAThinBlackLineAroundAWhiteSheet();
    void aTableStandsFivePointsInsideItsFrame();
    void cellsStandSideBySideRowBelowRow();
    void eachCellIsDrawnRectangleFirst();
    void theFirstCellDecidesWhereTheNextRowStarts();
    void rowsAdvanceInSinglePrecisionAndCellsDoNot();
    void theFrameIsMeasuredInSinglePrecision();
    void aRowWithoutCellsTakesTwentyPoints();
    void theGridFollowsTheCellsAndTheFrameTheColumns();
    void onlyTheFrameThrowsAShadow();
    void withoutRowsThereIsAFrameOnly();
    void invisibleCellsAreItemsToo();
    void theFontIsTheCallersInTheCellsWeight();
    void drawingLeavesTheTableAlone();
    void drawingAPieceDrawsItsRows();
    void senselessSizesAreHarmless_data();
    void senselessSizesAreHarmless();
    void pixels_data();
    void pixels();
};

void TestTXTableDrawing::theFrameStandsOutByTheMargin()
{
    TXGraphicsScene scene;
    const TXTable table = twoByTwo();

    table.drawBorderTable(&scene, {10.5, 20.5}, 5.0F);
    table.drawBorderTable(&scene, {0.0, 0.0}, -2.5F);

    QCOMPARE(rectsOf(scene), (QList<QRectF>{{5.5, 15.5, 110.0, 60.0}, {2.5, 2.5, 95.0, 45.0}}));
}

void TestTXTableDrawing::theFrameIsAThinBlackLineAroundAWhiteSheet()
{
    TXGraphicsScene scene;

    twoByTwo().drawBorderTable(&scene, {0.0, 0.0}, 5.0F);

    const auto *frame = qgraphicsitem_cast<QGraphicsRectItem *>(itemsOf(scene).first());
    QVERIFY(frame != nullptr);
    QCOMPARE(frame->pen(), QPen(Qt::black, double(0.1F), Qt::SolidLine));
    QVERIFY(frame->pen().widthF() == double(0.1F));
    QCOMPARE(frame->brush(), QBrush(Qt::white, Qt::SolidPattern));
    QVERIFY(frame->graphicsEffect() == nullptr);
}

void TestTXTableDrawing::aTableStandsFivePointsInsideItsFrame()
{
    TXGraphicsScene scene;

    scene.drawTable(twoByTwo(), {100.0, 200.0}, reportTestFont());

    QCOMPARE(rectsOf(scene).at(0), QRectF(95.0, 195.0, 110.0, 60.0));
    QCOMPARE(rectsOf(scene).at(1), QRectF(100.0, 200.0, 40.0, 20.0));
}

void TestTXTableDrawing::cellsStandSideBySideRowBelowRow()
{
    TXGraphicsScene scene;

    twoByTwo().drawTableWithCell(&scene, {1.5, 2.5}, reportTestFont());

    QCOMPARE(rectsOf(scene),
             (QList<QRectF>{{1.5, 2.5, 40.0, 20.0},
                            {41.5, 2.5, 60.0, 20.0},
                            {1.5, 22.5, 40.0, 30.0},
                            {41.5, 22.5, 60.0, 30.0}}));
}

void TestTXTableDrawing::eachCellIsDrawnRectangleFirst()
{
    TXGraphicsScene scene;
    TXTable table(3, false);
    table.addCell(settings("a"));
    table.addCell(settings(filled(Qt::red)));
    table.addCell(settings(QStringList{"x", "", "z"}, {90.0, 20.0}));
    table.addCell(settings(0));

    scene.drawTable(table, {0.0, 0.0}, reportTestFont());

    QCOMPARE(kindsOf(scene),
             QStringList({"rect", "rect", "a", "rect", "picture", "rect", "x", "rect", "rect", "z",
                          "rect", "0"}));
}

void TestTXTableDrawing::theFirstCellDecidesWhereTheNextRowStarts()
{
    TXGraphicsScene scene;
    const TXTable table =
        tableOf({{cell("", {10.0, 12.5}), cell("", {10.0, 99.0})}, {cell("", {10.0, 5.0})}});

    table.drawTableWithCell(&scene, {0.0, 0.0}, reportTestFont());

    QCOMPARE(
        rectsOf(scene),
        (QList<QRectF>{{0.0, 0.0, 10.0, 12.5}, {10.0, 0.0, 10.0, 99.0}, {0.0, 12.5, 10.0, 5.0}}));
}

void TestTXTableDrawing::rowsAdvanceInSinglePrecisionAndCellsDoNot()
{
    TXGraphicsScene scene;
    const TableTest::Row row{cell("", {0.1, 0.1}), cell("", {0.1, 0.1})};

    tableOf({row, row, row}).drawTableWithCell(&scene, {0.0, 0.0}, reportTestFont());

    const QList<QRectF> rects = rectsOf(scene);
    QCOMPARE(rects.size(), 6);
    const auto placeOf = [&](int rect) {
        return exactly(rects.at(rect).topLeft());
    };
    QCOMPARE(placeOf(1), QStringLiteral("0.10000000000000001, 0"));
    QCOMPARE(placeOf(2), QStringLiteral("0, 0.10000000149011612"));
    QCOMPARE(placeOf(3), QStringLiteral("0.10000000000000001, 0.10000000149011612"));
    // Only each height is narrowed, not their sum.
    QCOMPARE(placeOf(4), QStringLiteral("0, 0.20000000298023224"));
    QCOMPARE(exactly(rects.at(2).height()), QStringLiteral("0.10000000000000001"));
}

void TestTXTableDrawing::theFrameIsMeasuredInSinglePrecision()
{
    TXGraphicsScene scene;
    TXTable table = tableOf({{cell("", {5.0, 0.1})}}, 1);
    table.setColumnWidth(0.1F, 0);

    table.drawBorderTable(&scene, {0.0, 0.0}, 0.0F);
    table.drawBorderTable(&scene, {0.1, 1.0}, 0.1F);

    const QList<QRectF> rects = rectsOf(scene);
    QCOMPARE(rects.size(), 2);
    QCOMPARE(exactly(rects.at(0).width()), QStringLiteral("0.10000000149011612"));
    QCOMPARE(exactly(rects.at(0).height()), QStringLiteral("0.10000000149011612"));
    // The place is not narrowed, but the margin and the sum of the lengths are.
    QCOMPARE(exactly(rects.at(1).topLeft()),
             QStringLiteral("-1.4901161138336505e-09, 0.89999999850988388"));
    QCOMPARE(exactly(rects.at(1).width()), QStringLiteral("0.30000001192092896"));
    QCOMPARE(exactly(rects.at(1).height()), QStringLiteral("0.30000001192092896"));
}

void TestTXTableDrawing::aRowWithoutCellsTakesTwentyPoints()
{
    TXGraphicsScene scene;
    const TXTable table = tableOf({{}, {cell("", {10.0, 5.0})}, {}, {cell("", {10.0, 5.0})}});

    table.drawTableWithCell(&scene, {0.0, 0.0}, reportTestFont());

    QCOMPARE(rectsOf(scene), (QList<QRectF>{{0.0, 20.0, 10.0, 5.0}, {0.0, 45.0, 10.0, 5.0}}));
}

void TestTXTableDrawing::theGridFollowsTheCellsAndTheFrameTheColumns()
{
    TXGraphicsScene scene;
    TXTable table = twoByTwo();

    table.setColumnWidth(500.0F, 0);
    scene.drawTable(table, {5.0, 5.0}, reportTestFont());

    const QList<QRectF> rects = rectsOf(scene);
    QCOMPARE(rects.at(0), QRectF(0.0, 0.0, 570.0, 60.0));
    QCOMPARE(rects.at(1), QRectF(5.0, 5.0, 40.0, 20.0));
    QCOMPARE(rects.at(2), QRectF(45.0, 5.0, 60.0, 20.0));
}

void TestTXTableDrawing::onlyTheFrameThrowsAShadow()
{
    TXGraphicsScene scene;

    scene.drawTable(twoByTwo(true), {0.0, 0.0}, reportTestFont());

    const auto items = itemsOf(scene);
    const auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(items.first()->graphicsEffect());
    if (shadow == nullptr) {
        QFAIL("the frame throws none");
    }
    QVERIFY(shadow->isEnabled());
    QCOMPARE(shadow->color(), QColor(80, 80, 80, 100));
    for (qsizetype i = 1; i < items.size(); ++i) {
        QVERIFY(items.at(i)->graphicsEffect() == nullptr);
    }
}

void TestTXTableDrawing::withoutRowsThereIsAFrameOnly()
{
    TXGraphicsScene scene;

    scene.drawTable(TXTable(2, false), {0.0, 0.0}, reportTestFont());
    scene.drawTable(TXTable(0, false), {0.0, 0.0}, reportTestFont());

    QCOMPARE(rectsOf(scene), (QList<QRectF>{{-5.0, -5.0, 70.0, 10.0}, {-5.0, -5.0, 10.0, 10.0}}));
}

void TestTXTableDrawing::invisibleCellsAreItemsToo()
{
    TXGraphicsScene scene;
    TXTable table(2, false);
    table.addCell(TXTable::invisibleCellHashTemplate());

    table.drawTableWithCell(&scene, {0.0, 0.0}, reportTestFont());

    QCOMPARE(kindsOf(scene), QStringList({"rect"}));
    const auto *rect = qgraphicsitem_cast<QGraphicsRectItem *>(itemsOf(scene).first());
    QCOMPARE(rect->brush().color(), QColor(Qt::transparent));
    QCOMPARE(rect->pen().color(), QColor(Qt::transparent));
    QCOMPARE(rect->pen().widthF(), 0.0);
}

void TestTXTableDrawing::theFontIsTheCallersInTheCellsWeight()
{
    TXGraphicsScene scene;
    TXTable table(2, false);
    table.addCell(settings("a"));
    auto bold = settings("b");
    bold["CellTextBold"] = true;
    table.addCell(bold);

    table.drawTableWithCell(&scene, {0.0, 0.0}, reportTestFont(13));

    const auto items = itemsOf(scene);
    const auto *light = qgraphicsitem_cast<QGraphicsSimpleTextItem *>(items.at(1));
    const auto *heavy = qgraphicsitem_cast<QGraphicsSimpleTextItem *>(items.at(3));
    QCOMPARE(light->font().pixelSize(), 13);
    QCOMPARE(int(light->font().weight()), 400);
    QCOMPARE(heavy->font().pixelSize(), 13);
    QCOMPARE(int(heavy->font().weight()), 700);
}

void TestTXTableDrawing::drawingLeavesTheTableAlone()
{
    TXGraphicsScene scene;
    TXTable table = twoByTwo(true);
    const Rows before = table.getTableCellList();
    const QStringList described = describe(before);

    scene.drawTable(table, {0.0, 0.0}, reportTestFont());

    QCOMPARE(describe(table.getTableCellList()), described);
    QCOMPARE(table.getTableCellList().constData(), before.constData());
    QCOMPARE(table.tableWidth(), 100.0F);
    table.addCell(settings("e"));
    QCOMPARE(TableTest::texts(table).last(), QStringList({"e"}));
}

void TestTXTableDrawing::drawingAPieceDrawsItsRows()
{
    TXGraphicsScene scene;

    scene.drawTable(TXTable::copyPartOfTable(TableTest::numberedRows(9), 5, 7), {0.0, 0.0},
                    reportTestFont());

    QCOMPARE(kindsOf(scene), QStringList({"rect", "rect", "0", "rect", "5", "rect", "6"}));
    QCOMPARE(rectsOf(scene).first(), QRectF(-5.0, -5.0, 100.0, 70.0));
}

void TestTXTableDrawing::senselessSizesAreHarmless_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("rectangles");
    QTest::addRow("zero") << 0.0 << 4;
    QTest::addRow("negative") << -20.0 << 4;
    QTest::addRow("infinite") << qInf() << 0;
    QTest::addRow("minus infinite") << -qInf() << 0;
    QTest::addRow("not a number") << qQNaN() << 0;
    // The frame adds up lengths in single precision, which is too small for this one.
    QTest::addRow("huge") << 1e300 << 3;
}

void TestTXTableDrawing::senselessSizesAreHarmless()
{
    QFETCH(double, length);
    QFETCH(int, rectangles);
    TXGraphicsScene scene;
    TXTable table(2, false);
    table.addCell(settings("a", {length, 20.0}));
    table.addCell(settings(filled(Qt::red), {20.0, length}));
    table.addCell(settings("c", {length, length}));
    table.setColumnWidth(float(length), 0);

    table.drawBorderTable(&scene, {0.0, length}, float(length));
    table.drawTableWithCell(&scene, {length, 0.0}, reportTestFont());

    QCOMPARE(kindsOf(scene).count("rect"), rectangles);
    (void)rendered(scene, {50, 50});
}

void TestTXTableDrawing::pixels_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXTableDrawing::pixels()
{
    QFETCH(qreal, ratio);
    TXTable table(2, false);
    TXTable::initHeaderOfTableWithTitles(table, {QString(), QString()}, true, 20.0F);
    auto coloured = settings(QString(), {30.0, 20.0});
    coloured["InsideCellColor"] = QColor(Qt::green);
    coloured["BorderCellColor"] = QColor(Qt::blue);
    coloured["BorderCellLineWidth"] = 4.0;
    table.addCell(coloured);
    table.addCell(settings(filled(Qt::red), {30.0, 20.0}));
    table.addCell(TXTable::invisibleCellHashTemplate());
    TXGraphicsScene scene;

    scene.drawTable(table, {10.0, 10.0}, reportTestFont());
    const PixelProbe probe = rendered(scene, {100, 120}, ratio, Qt::magenta);

    QVERIFY(probe.isNear({2, 2}, Qt::magenta)); // outside the frame, nothing is painted
    QVERIFY(probe.isNear({7, 7}, Qt::white)); // between frame and cells
    QVERIFY(probe.isNear({25, 20}, Qt::white)); // the inverted title
    QVERIFY(probe.isNear({55, 20}, Qt::black)); // the second title
    QVERIFY(probe.isNear({25, 40}, Qt::green)); // inside of the coloured cell
    QVERIFY(probe.isNear({25, 30}, Qt::blue)); // its border runs along the edge, half inside
    QVERIFY(probe.isNear({25, 28}, Qt::blue)); // and half outside
    QVERIFY(probe.isNear({25, 33}, Qt::green));
    QVERIFY(probe.isNear({55, 40}, Qt::red)); // the picture, 28 by 14, centred
    QVERIFY(probe.isNear({55, 34}, Qt::red));
    QVERIFY(probe.isNear({55, 31}, Qt::white)); // the cell above the picture
    QVERIFY(probe.isNear({35, 75}, Qt::white)); // the frame's sheet shows through
    QVERIFY(probe.isNear({65, 95}, Qt::white)); // below the last cells the frame goes on
    QVERIFY(probe.isNear({90, 40}, Qt::magenta)); // right of the frame
    QVERIFY(probe.isNear({35, 110}, Qt::magenta)); // below the frame
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableDrawing>(argc, argv);
}

#include "tst_TXTableDrawing.moc"
