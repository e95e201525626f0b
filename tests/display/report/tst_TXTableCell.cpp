#include "TXTableCell.h"

#include "SceneTestHelpers.h"
#include "TXGraphicsScene.h"
#include "TXScalablePixmapItem.h"
#include "TestBase.h"

#include <QFontMetricsF>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QPen>

#include <cmath>

using SceneTestHelpers::exactly;
using SceneTestHelpers::font;
using SceneTestHelpers::itemAt;
using SceneTestHelpers::onlyItem;
using SceneTestHelpers::rendered;

namespace {

using Settings = QHash<QString, QVariant>;

const QPointF kTopLeft(10, 20);
const QSize kArea(80, 80);

/// The cell's settings in words, for comparing two cells as a whole.
QString described(const TXTableCell &cell)
{
    QString text;
    QDebug(&text) << cell.element << cell.textColor << cell.horizontalAlign << cell.verticalAlign
                  << cell.bold << cell.insideColor << cell.size << cell.borderColor
                  << cell.borderLineWidth << cell.realColumn << cell.nbMergedCell;
    return text;
}

void draw(TXGraphicsScene &scene, const Settings &settings)
{
    TXTableCell(settings).drawTableCell(&scene, kTopLeft, font(10));
}

QPixmap redPicture()
{
    QPixmap pixmap(400, 200);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class TestTXTableCell : public TestBase
{
    Q_OBJECT

private slots:
    void emptyDictionaryGivesTheDefaults();
    void everyKeyIsRead();
    void valuesOfOtherTypesAreConverted();
    void valuesThatCannotBeConvertedFallToNothing();
    void textThatIsNoColourIsNone();
    void singlePrecisionBorderIsKept();
    void copyHoldsTheSame();
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

void TestTXTableCell::emptyDictionaryGivesTheDefaults()
{
    const TXTableCell cell(Settings{});

    QVERIFY(!cell.element.isValid());
    QCOMPARE(cell.size, QSizeF(50, 50));
    QCOMPARE(cell.textColor, QColor(Qt::black));
    QCOMPARE(cell.horizontalAlign, 2U);
    QCOMPARE(cell.verticalAlign, 2U);
    QVERIFY(!cell.bold);
    QCOMPARE(cell.insideColor, QColor(Qt::white));
    QCOMPARE(cell.borderColor, QColor(Qt::black));
    QCOMPARE(exactly(cell.borderLineWidth), QStringLiteral("0.5"));
    QCOMPARE(cell.realColumn, 0);
    QCOMPARE(cell.nbMergedCell, 1);
}

void TestTXTableCell::everyKeyIsRead()
{
    const TXTableCell cell({{"CellElement", 42},
                            {"CellSize", QSizeF(30.25, -7)},
                            {"CellTextColor", QColor(1, 2, 3)},
                            {"CellTextHorizontalAlign", 0U},
                            {"CellTextVerticalAlign", 1U},
                            {"CellTextBold", true},
                            {"InsideCellColor", QColor(4, 5, 6)},
                            {"BorderCellColor", QColor(7, 8, 9, 10)},
                            {"BorderCellLineWidth", 1.25},
                            {"CellRealColumn", 3},
                            {"NbMergedCell", 4},
                            {"SomethingElse", 5}});

    QCOMPARE(cell.element, QVariant(42));
    QCOMPARE(cell.size, QSizeF(30.25, -7));
    QCOMPARE(cell.textColor, QColor(1, 2, 3));
    QCOMPARE(cell.horizontalAlign, 0U);
    QCOMPARE(cell.verticalAlign, 1U);
    QVERIFY(cell.bold);
    QCOMPARE(cell.insideColor, QColor(4, 5, 6));
    QCOMPARE(cell.borderColor, QColor(7, 8, 9, 10));
    QCOMPARE(cell.borderLineWidth, 1.25);
    QCOMPARE(cell.realColumn, 3);
    QCOMPARE(cell.nbMergedCell, 4);
}

void TestTXTableCell::valuesOfOtherTypesAreConverted()
{
    const TXTableCell cell({{"CellSize", QSize(30, 20)},
                            {"CellTextColor", QStringLiteral("red")},
                            {"CellTextHorizontalAlign", QStringLiteral("1")},
                            {"CellTextVerticalAlign", -1},
                            {"CellTextBold", QStringLiteral("true")},
                            {"InsideCellColor", QStringLiteral("#8000ff00")},
                            {"BorderCellColor", QByteArray("blue")},
                            {"BorderCellLineWidth", QStringLiteral("0.25")},
                            {"CellRealColumn", 2.6},
                            {"NbMergedCell", QStringLiteral("3")}});

    QCOMPARE(cell.size, QSizeF(30, 20));
    QCOMPARE(cell.textColor, QColor(Qt::red));
    QCOMPARE(cell.horizontalAlign, 1U);
    QCOMPARE(cell.verticalAlign, 4294967295U);
    QVERIFY(cell.bold);
    QCOMPARE(cell.insideColor, QColor(0, 255, 0, 128));
    QCOMPARE(cell.borderColor, QVariant(QByteArray("blue")).value<QColor>());
    QCOMPARE(cell.borderLineWidth, 0.25);
    QCOMPARE(cell.realColumn, QVariant(2.6).toInt());
    QCOMPARE(cell.nbMergedCell, 3);
}

void TestTXTableCell::valuesThatCannotBeConvertedFallToNothing()
{
    const QVariant wrong = QPointF(1, 2);

    const TXTableCell cell({{"CellSize", wrong},
                            {"CellTextColor", wrong},
                            {"CellTextHorizontalAlign", wrong},
                            {"CellTextVerticalAlign", QStringLiteral("top")},
                            {"CellTextBold", wrong},
                            {"InsideCellColor", 7},
                            {"BorderCellColor", QVariant()},
                            {"BorderCellLineWidth", wrong},
                            {"CellRealColumn", wrong},
                            {"NbMergedCell", wrong}});

    QCOMPARE(cell.size, QSizeF(-1, -1));
    QVERIFY(!cell.textColor.isValid());
    QCOMPARE(cell.horizontalAlign, 0U);
    QCOMPARE(cell.verticalAlign, 0U);
    QVERIFY(!cell.bold);
    QVERIFY(!cell.insideColor.isValid());
    QVERIFY(!cell.borderColor.isValid());
    QCOMPARE(cell.borderLineWidth, 0.0);
    QCOMPARE(cell.realColumn, 0);
    QCOMPARE(cell.nbMergedCell, 0);
}

void TestTXTableCell::textThatIsNoColourIsNone()
{
    const TXTableCell cell({{"InsideCellColor", QStringLiteral("no colour")}});

    QVERIFY(!cell.insideColor.isValid());
}

void TestTXTableCell::singlePrecisionBorderIsKept()
{
    const TXTableCell single({{"BorderCellLineWidth", 0.35F}});
    const TXTableCell twice({{"BorderCellLineWidth", 0.35}});

    QCOMPARE(exactly(single.borderLineWidth), QStringLiteral("0.34999999403953552"));
    QCOMPARE(exactly(twice.borderLineWidth), QStringLiteral("0.34999999999999998"));
}

void TestTXTableCell::copyHoldsTheSame()
{
    const TXTableCell cell({{"CellElement", QStringLiteral("a")}, {"CellRealColumn", 3}});
    TXTableCell assigned(Settings{});
    const TXTableCell &self = assigned;

    const TXTableCell copy(cell);
    assigned = cell;
    assigned = self;

    QCOMPARE(described(copy), described(cell));
    QCOMPARE(described(assigned), described(cell));
}

void TestTXTableCell::emptyCellIsItsRectangle()
{
    TXGraphicsScene scene;

    draw(scene, {});

    const auto *item = onlyItem<QGraphicsRectItem>(scene);
    QVERIFY(item);
    QCOMPARE(item->rect(), QRectF(10, 20, 50, 50));
    QVERIFY(!item->graphicsEffect());
}

void TestTXTableCell::rectangleHasBorderAndFill()
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

void TestTXTableCell::bordersThatQtRefusesAreOneWide_data()
{
    QTest::addColumn<double>("width");
    QTest::addRow("negative") << -1.0;
    QTest::addRow("huge") << 1e7;
    QTest::addRow("infinite") << double(INFINITY);
}

void TestTXTableCell::bordersThatQtRefusesAreOneWide()
{
    QFETCH(double, width);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QPen::setWidthF: .* out of range"));
    TXGraphicsScene scene;

    draw(scene, {{"BorderCellLineWidth", width}});

    QCOMPARE(onlyItem<QGraphicsRectItem>(scene)->pen().widthF(), 1.0);
}

void TestTXTableCell::elementsWithTextAreDrawn_data()
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

void TestTXTableCell::elementsWithTextAreDrawn()
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

void TestTXTableCell::elementsWithoutTextAreNot_data()
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

void TestTXTableCell::elementsWithoutTextAreNot()
{
    QFETCH(QVariant, element);
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", element}});

    QVERIFY(onlyItem<QGraphicsRectItem>(scene));
}

void TestTXTableCell::textIsAlignedInTheWholeCell_data()
{
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QPointF>("place");

    const QSizeF size = QFontMetricsF(font(10)).size(Qt::TextShowMnemonic, QStringLiteral("abc"));
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

void TestTXTableCell::textIsAlignedInTheWholeCell()
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

void TestTXTableCell::weightIsThatOfTheCell_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("weight");
    for (const int given : {100, 400, 600, 700, 900}) {
        QTest::addRow("%d, bold", given) << given << true << 700;
        QTest::addRow("%d, not bold", given) << given << false << 400;
    }
}

void TestTXTableCell::weightIsThatOfTheCell()
{
    QFETCH(int, given);
    QFETCH(bool, bold);
    QFETCH(int, weight);
    QFont source = font(10);
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

void TestTXTableCell::pictureStandsOffTheBorder()
{
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", redPicture()}, {"CellSize", QSizeF(42, 62)}});

    QCOMPARE(scene.items().size(), 2);
    const auto *item = itemAt<TXScalablePixmapItem>(scene, 1);
    QVERIFY(item);
    QCOMPARE(item->sceneBoundingRect(), QRectF(11, 41, 40, 20));
    QCOMPARE(item->pixmap().size(), QSize(111, 55));
}

void TestTXTableCell::pictureIsCentredWhateverTheAlignment()
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

void TestTXTableCell::nullPictureIsTheRectangle()
{
    TXGraphicsScene scene;

    draw(scene, {{"CellElement", QPixmap()}});

    QVERIFY(onlyItem<QGraphicsRectItem>(scene));
}

void TestTXTableCell::transparentCellCostsAsMuch()
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

void TestTXTableCell::cellIsSeen_data()
{
    SceneTestHelpers::addRatios();
}

void TestTXTableCell::cellIsSeen()
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

void TestTXTableCell::drawingLeavesTheCellAsItIs()
{
    const TXTableCell cell({{"CellElement", QStringLiteral("a")}, {"CellTextBold", true}});
    const QString before = described(cell);
    TXGraphicsScene scene;

    cell.drawTableCell(&scene, kTopLeft, font(10));

    QCOMPARE(described(cell), before);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableCell>(argc, argv);
}

#include "tst_TXTableCell.moc"
