#include "TXTableCell.h"

#include "PixelProbe.h"
#include "ReportTestFont.h"
#include "SceneTestHelpers.h"
#include "TXGraphicsScene.h"
#include "TXScalablePixmapItem.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QBrush>
#include <QColor>
#include <QDate>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QImage>
#include <QPen>
#include <QPixmap>
#include <QRegularExpression>

#include <cmath>

using SceneTestHelpers::exactly;
using SceneTestHelpers::itemAt;
using SceneTestHelpers::onlyItem;
using SceneTestHelpers::rendered;
using TableTest::describe;
using TableTest::Settings;

namespace {

const QPointF kTopLeft(10, 20);
const QSize kArea(80, 80);

void draw(TXGraphicsScene &scene, const Settings &settings)
{
    TXTableCell(settings).drawTableCell(&scene, kTopLeft, reportTestFont(10));
}

QPixmap redPicture()
{
    QPixmap pixmap(400, 200);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class TestTXTableCellDrawing : public TestBase
{
    Q_OBJECT

private slots:
    void emptyCellIsItsRectangle();
    void rectangleHasBorderAndFill();
    void bordersThatQtRefusesAreOneWide_data();
    void bordersThatQtRefusesAreOneWide();
    void elementsWithTextAreDrawn_data();
    void elementsWithTextAreDrawn();
    void elementsWithoutTextAreNot_data();
    void elementsWithoutTextAreNot();
    void textIsAlignedInTheWholeCell_data();
    void textIsAlignedInTheWholeCell();
    void weightIsThatOfTheCell_data();
    void weightIsThatOfTheCell();
    void pictureStandsOffTheBorder();
    void pictureIsCentredWhateverTheAlignment();
    void nullPictureIsTheRectangle();
    void transparentCellCostsAsMuch();
    void cellIsSeen_data();
    void cellIsSeen();
    void drawingLeavesTheCellAsItIs();
};

void TestTXTableCellDrawing::emptyCellIsItsRectangle()
{
    TXGraphicsScene scene;

    draw(scene, {});

    const auto *item = onlyItem<QGraphicsRectItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->rect(), QRectF(10, 20, 50, 50));
    QVERIFY(!item->graphicsEffect());
}

void TestTXTableCellDrawing::rectangleHasBorderAndFill()
{
    TXGraphicsScene scene;

    draw(scene,
         {{"CellSize", QSizeF(30.5, 20.25)},
          {"InsideCellColor", QColor(Qt::yellow)},
          {"BorderCellColor", QColor(Qt::green)},
          {"BorderCellLineWidth", 0.35F}});

    QPen pen;
    pen.setWidthF(double(0.35F));
    pen.setColor(Qt::green);
    const auto *item = onlyItem<QGraphicsRectItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->rect(), QRectF(10, 20, 30.5, 20.25));
    QCOMPARE(item->pen(), pen);
    QCOMPARE(item->pen().style(), Qt::SolidLine);
    QCOMPARE(exactly(item->pen().widthF()), exactly(double(0.35F)));
    QCOMPARE(item->brush(), QBrush(Qt::yellow, Qt::SolidPattern));
}

void TestTXTableCellDrawing::bordersThatQtRefusesAreOneWide_data()
{
    QTest::addColumn<double>("width");
    QTest::addRow("negative") << -1.0;
    QTest::addRow("huge") << 1e7;
    QTest::addRow("infinite") << double(INFINITY);
}

void TestTXTableCellDrawing::bordersThatQtRefusesAreOneWide()
{
    QFETCH(double, width);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QPen::setWidthF: .* out of range"));
    TXGraphicsScene scene;

    draw(scene, {{"BorderCellLineWidth", width}});

    QCOMPARE(onlyItem<QGraphicsRectItem>(scene)->pen().widthF(), 1.0);
}

void TestTXTableCellDrawing::elementsWithTextAreDrawn_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addColumn<QString>("text");
    QTest::addRow("text") << QVariant(QStringLiteral("Patch")) << QStringLiteral("Patch");
    QTest::addRow("blank") << QVariant(QStringLiteral(" ")) << QStringLiteral(" ");
    QTest::addRow("zero") << QVariant(0) << QStringLiteral("0");
    QTest::addRow("number") << QVariant(1.5) << QStringLiteral("1.5");
    QTest::addRow("false") << QVariant(false) << QStringLiteral("false");
    QTest::addRow("date") << QVariant(QDate(2024, 2, 29)) << QStringLiteral("2024-02-29");
    QTest::addRow("bytes") << QVariant(QByteArray("raw")) << QStringLiteral("raw");
}

void TestTXTableCellDrawing::elementsWithTextAreDrawn()
{
    QFETCH(QVariant, element);
    QFETCH(QString, text);
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", element}, {"CellTextColor", QColor(Qt::blue)}});

    QCOMPARE(scene.items().size(), 2);
    QVERIFY(itemAt<QGraphicsRectItem>(scene, 0));
    const auto *item = itemAt<QGraphicsSimpleTextItem>(scene, 1);
    QVERIFY(item);
    QCOMPARE(item->text(), text);
    QCOMPARE(item->brush(), QBrush(Qt::blue, Qt::SolidPattern));
}

void TestTXTableCellDrawing::elementsWithoutTextAreNot_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addRow("none") << QVariant();
    QTest::addRow("empty text") << QVariant(QStringLiteral(""));
    QTest::addRow("null text") << QVariant(QString());
    QTest::addRow("no bytes") << QVariant(QByteArray());
    QTest::addRow("invalid date") << QVariant(QDate());
    QTest::addRow("place") << QVariant(QPointF(1, 2));
    QTest::addRow("image") << QVariant(QImage(4, 4, QImage::Format_RGB32));
    QTest::addRow("list of two") << QVariant(QStringList({"a", "b"}));
}

void TestTXTableCellDrawing::elementsWithoutTextAreNot()
{
    QFETCH(QVariant, element);
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", element}});

    QVERIFY(onlyItem<QGraphicsRectItem>(scene));
}

void TestTXTableCellDrawing::textIsAlignedInTheWholeCell_data()
{
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QPointF>("place");

    const QSizeF size =
        QFontMetricsF(reportTestFont(10)).size(Qt::TextShowMnemonic, QStringLiteral("abc"));
    const auto place = [](double x, double y) {
        return QPointF(float(x), float(y));
    };
    QTest::addRow("left top") << 0U << 0U << place(12, 22);
    QTest::addRow("right bottom") << 1U << 1U
                                  << place(10 + (60 - size.width() - 2),
                                           20 + (40 - size.height() - 2));
    QTest::addRow("centred") << 2U << 2U
                             << place(10 + (60 - size.width()) * 0.5,
                                      20 + (40 - size.height()) * 0.5);
    QTest::addRow("any other number") << 9U << 9U << place(10, 20);
}

void TestTXTableCellDrawing::textIsAlignedInTheWholeCell()
{
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(QPointF, place);
    TXGraphicsScene scene;

    draw(scene,
         {{"CellElement", QStringLiteral("abc")},
          {"CellSize", QSizeF(60.9, 40.9)},
          {"CellTextHorizontalAlign", horizontal},
          {"CellTextVerticalAlign", vertical}});

    QCOMPARE(exactly(itemAt<QGraphicsSimpleTextItem>(scene, 1)->pos()), exactly(place));
}

void TestTXTableCellDrawing::weightIsThatOfTheCell_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("weight");
    for (const int given : {100, 400, 600, 700, 900}) {
        QTest::addRow("%d, bold", given) << given << true << 700;
        QTest::addRow("%d, not bold", given) << given << false << 400;
    }
}

void TestTXTableCellDrawing::weightIsThatOfTheCell()
{
    QFETCH(int, given);
    QFETCH(bool, bold);
    QFETCH(int, weight);
    QFont source = reportTestFont(10);
    source.setItalic(true);
    source.setWeight(QFont::Weight(given));
    QFont expected = source;
    expected.setWeight(QFont::Weight(weight));
    TXGraphicsScene scene;

    TXTableCell({{"CellElement", QStringLiteral("a")}, {"CellTextBold", bold}})
        .drawTableCell(&scene, kTopLeft, source);

    const auto *item = itemAt<QGraphicsSimpleTextItem>(scene, 1);
    QVERIFY(item);
    QCOMPARE(int(item->font().weight()), weight);
    QCOMPARE(item->font(), expected);
    QCOMPARE(int(source.weight()), given);
}

void TestTXTableCellDrawing::pictureStandsOffTheBorder()
{
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", redPicture()}, {"CellSize", QSizeF(42, 62)}});

    QCOMPARE(scene.items().size(), 2);
    const auto *item = itemAt<TXScalablePixmapItem>(scene, 1);
    QVERIFY(item);
    QCOMPARE(item->sceneBoundingRect(), QRectF(11, 41, 40, 20));
    QCOMPARE(item->pixmap().size(), QSize(111, 55));
}

void TestTXTableCellDrawing::pictureIsCentredWhateverTheAlignment()
{
    for (const quint32 alignment : {0U, 1U, 2U, 7U}) {
        TXGraphicsScene scene;
        draw(scene,
             {{"CellElement", redPicture()},
              {"CellSize", QSizeF(42, 62)},
              {"CellTextHorizontalAlign", alignment},
              {"CellTextVerticalAlign", alignment}});

        QCOMPARE(itemAt<TXScalablePixmapItem>(scene, 1)->sceneBoundingRect(),
                 QRectF(11, 41, 40, 20));
    }
}

void TestTXTableCellDrawing::nullPictureIsTheRectangle()
{
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", QPixmap()}});

    QVERIFY(onlyItem<QGraphicsRectItem>(scene));
}

void TestTXTableCellDrawing::transparentCellCostsAsMuch()
{
    TXGraphicsScene scene;

    draw(scene,
         {{"CellElement", QStringLiteral("a")},
          {"CellTextColor", QColor(Qt::transparent)},
          {"InsideCellColor", QColor(Qt::transparent)},
          {"BorderCellColor", QColor(Qt::transparent)}});

    QCOMPARE(scene.items().size(), 2);
    QCOMPARE(rendered(scene, kArea).countColours(QRect(QPoint(0, 0), kArea)), 1);
}

void TestTXTableCellDrawing::cellIsSeen_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXTableCellDrawing::cellIsSeen()
{
    QFETCH(qreal, ratio);
    TXGraphicsScene scene;
    draw(scene,
         {{"CellElement", redPicture()},
          {"InsideCellColor", QColor(Qt::yellow)},
          {"BorderCellColor", QColor(Qt::blue)},
          {"BorderCellLineWidth", 2.0}});

    const PixelProbe probe = rendered(scene, kArea, ratio);

    QCOMPARE(probe.at({8, 45}), QColor(Qt::white));
    QCOMPARE(probe.at({9, 45}), QColor(Qt::blue));
    QCOMPARE(probe.at({60, 45}), QColor(Qt::blue));
    QCOMPARE(probe.at({12, 22}), QColor(Qt::yellow));
    QCOMPARE(probe.at({12, 45}), QColor(Qt::red));
    QCOMPARE(probe.at({57, 45}), QColor(Qt::red));
    QCOMPARE(probe.at({35, 31}), QColor(Qt::yellow));
    QCOMPARE(probe.at({35, 34}), QColor(Qt::red));
}

void TestTXTableCellDrawing::drawingLeavesTheCellAsItIs()
{
    TXTableCell cell({{"CellElement", QStringLiteral("a")}, {"CellTextBold", true}});
    const QString before = describe(cell);
    TXGraphicsScene scene;

    cell.drawTableCell(&scene, kTopLeft, reportTestFont(10));

    QCOMPARE(describe(cell), before);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableCellDrawing>(argc, argv);
}

#include "tst_TXTableCellDrawing.moc"
