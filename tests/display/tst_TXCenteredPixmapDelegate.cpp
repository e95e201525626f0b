#include "TXCenteredPixmapDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QBitmap>
#include <QBrush>
#include <QIcon>
#include <QPixmap>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>

using ItemPainting::inkOf;
using ItemPainting::optionAt;
using ItemPainting::painted;
using ItemPainting::pictureOf;
using ItemPainting::pixelsOf;
using ItemPainting::scaled;
using ItemPainting::tellingPalette;

namespace {

const QColor kInk(10, 120, 30);
const QRect kCell(20, 10, 60, 40);

QPixmap filled(const QSize &size, qreal ratio = 1.0)
{
    QPixmap pixmap(size);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(kInk);
    return pixmap;
}

QBitmap allSet(const QSize &size)
{
    QBitmap bitmap(size);
    bitmap.fill(Qt::color1);
    return bitmap;
}

} // namespace

class TestTXCenteredPixmapDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void cellShowsItsPictureInItsState_data() { ItemPainting::addStates(); }
    void cellShowsItsPictureInItsState();
    void pictureStandsInTheMiddle_data();
    void pictureStandsInTheMiddle();
    void middleAboveTheViewRoundsTowardsZero();
    void largePictureReachesIntoTheNeighbours();
    void densePictureTakesAUnitForAPixel_data();
    void densePictureTakesAUnitForAPixel();
    void valueIsAPictureOrConvertsToOne_data();
    void valueIsAPictureOrConvertsToOne();
    void selectedCellOfNoPictureIsFilled_data();
    void selectedCellOfNoPictureIsFilled();
    void bitmapIsDrawnInTheColourOfTheText_data();
    void bitmapIsDrawnInTheColourOfTheText();
    void nothingElseIsDrawn();
    void painterIsKept();
    void indexOfNoModelIsEmpty();
    void emptyCellDoesNoHarm();

private:
    QStandardItem &item() { return *model->item(1); }
    void setPicture(const QVariant &picture) { item().setData(picture, Qt::DecorationRole); }
    [[nodiscard]] QImage paintedAt(const QRect &cell, QStyle::State state = {}) const
    {
        return painted(TXCenteredPixmapDelegate(), optionAt(cell, state), model->index(1, 0));
    }

    std::unique_ptr<QStandardItemModel> model;
};

void TestTXCenteredPixmapDelegate::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    model->appendRow(new QStandardItem);
    model->appendRow({new QStandardItem("paper"), new QStandardItem("coated")});
    setPicture(filled({10, 6}));
}

void TestTXCenteredPixmapDelegate::cellShowsItsPictureInItsState()
{
    QFETCH(int, state);
    QFETCH(qreal, ratio);
    QTableView view;
    view.setModel(model.get());
    view.setShowGrid(false);
    TXCenteredPixmapDelegate delegate;
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(state, view, item());
    view.setColumnWidth(0, 61);
    view.setRowHeight(0, 20);
    view.setRowHeight(1, 31);
    const bool isSelected = state != ItemPainting::Plain && state != ItemPainting::DisabledRow;
    // The palette that a table hands out stays active in a window that is not.
    const QPalette::ColorGroup group =
        state == ItemPainting::Disabled ? QPalette::Disabled : QPalette::Active;
    const QRect cell = scaled(view.visualRect(item().index()), ratio);

    const QImage picture = pictureOf(view, ratio);

    QCOMPARE(cell.size(), QSize(61, 31) * ratio);
    QCOMPARE(pixelsOf(picture, kInk), scaled({25, 32, 10, 6}, ratio));
    const QColor ground =
        isSelected ? tellingPalette().color(group, QPalette::Highlight) : QColor(Qt::white);
    QCOMPARE(picture.pixelColor(cell.topLeft()), ground);
    QCOMPARE(picture.pixelColor(cell.bottomRight()), ground);
    QCOMPARE(PixelProbe(picture.copy(cell)).countColours(QRect(QPoint(), cell.size() / ratio)), 2);
}

void TestTXCenteredPixmapDelegate::pictureStandsInTheMiddle_data()
{
    QTest::addColumn<QRect>("cell");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    // The middle of 20 to 79 and 10 to 49 is (49, 29), that of 20 to 80 and 10 to 50 is (50, 30).
    const QRect odd(20, 10, 61, 41);
    QTest::newRow("even in even") << kCell << QSize(10, 6) << QRect(44, 26, 10, 6);
    QTest::newRow("odd in even") << kCell << QSize(11, 7) << QRect(44, 26, 11, 7);
    QTest::newRow("even in odd") << odd << QSize(10, 6) << QRect(45, 27, 10, 6);
    QTest::newRow("odd in odd") << odd << QSize(11, 7) << QRect(45, 27, 11, 7);
    QTest::newRow("one pixel") << kCell << QSize(1, 1) << QRect(49, 29, 1, 1);
    QTest::newRow("as large as the cell") << kCell << kCell.size() << QRect(19, 9, 60, 40);
    QTest::newRow("larger than the cell") << kCell << QSize(70, 50) << QRect(14, 4, 70, 50);
    QTest::newRow("larger than the paper") << kCell << QSize(500, 300) << QRect(0, 0, 120, 60);
}

void TestTXCenteredPixmapDelegate::pictureStandsInTheMiddle()
{
    QFETCH(QRect, cell);
    QFETCH(QSize, size);
    setPicture(filled(size));

    const QImage picture = paintedAt(cell);

    QTEST(inkOf(picture), "place");
    QCOMPARE(picture.pixelColor(49, 29), kInk);
}

void TestTXCenteredPixmapDelegate::middleAboveTheViewRoundsTowardsZero()
{
    QImage image = ItemPainting::paper({60, 60});
    QPainter painter(&image);
    painter.translate(30, 30);

    // The middle of -9 to -4 and -8 to -3 is -6.5 and -5.5.
    TXCenteredPixmapDelegate().paint(&painter, optionAt({-9, -8, 6, 6}), item().index());
    painter.end();

    QCOMPARE(inkOf(image), QRect(30 - 6 - 5, 30 - 5 - 3, 10, 6));
}

void TestTXCenteredPixmapDelegate::largePictureReachesIntoTheNeighbours()
{
    QTableView view;
    view.setModel(model.get());
    view.setShowGrid(false);
    TXCenteredPixmapDelegate delegate;
    view.setItemDelegate(&delegate);
    setPicture(filled({60, 20}));
    const ItemPainting::Stage stage(ItemPainting::Plain, view, item());
    view.setColumnWidth(0, 40);
    view.setColumnWidth(1, 100);
    view.setRowHeight(0, 20);
    view.setRowHeight(1, 30);

    QCOMPARE(inkOf(pictureOf(view, 1.0)), QRect(0, 24, 49, 20));
}

void TestTXCenteredPixmapDelegate::densePictureTakesAUnitForAPixel_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("at 1") << 1.0;
    QTest::newRow("at 2") << 2.0;
}

void TestTXCenteredPixmapDelegate::densePictureTakesAUnitForAPixel()
{
    QFETCH(qreal, ratio);
    setPicture(filled({20, 12}, 2.0));

    const QImage picture =
        painted(TXCenteredPixmapDelegate(), optionAt(kCell), item().index(), ratio);

    QCOMPARE(inkOf(picture), scaled({39, 23, 20, 12}, ratio));
}

void TestTXCenteredPixmapDelegate::valueIsAPictureOrConvertsToOne_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QRect>("place");
    const QPixmap pixmap = filled({10, 6});
    const QRect place(44, 26, 10, 6);
    QTest::newRow("pixmap") << QVariant::fromValue(pixmap) << place;
    QTest::newRow("image") << QVariant::fromValue(pixmap.toImage()) << place;
    QTest::newRow("bitmap") << QVariant::fromValue(allSet({10, 6})) << place;
    QTest::newRow("texture") << QVariant::fromValue(QBrush(pixmap)) << place;
    QTest::newRow("null pixmap") << QVariant::fromValue(QPixmap()) << QRect();
    QTest::newRow("null image") << QVariant::fromValue(QImage()) << QRect();
    QTest::newRow("icon") << QVariant::fromValue(QIcon(pixmap)) << QRect();
    QTest::newRow("colour") << QVariant::fromValue(kInk) << QRect();
    QTest::newRow("plain brush") << QVariant::fromValue(QBrush(kInk)) << QRect();
    QTest::newRow("text") << QVariant("paper.png") << QRect();
    QTest::newRow("number") << QVariant(7) << QRect();
    QTest::newRow("nothing") << QVariant() << QRect();
}

void TestTXCenteredPixmapDelegate::valueIsAPictureOrConvertsToOne()
{
    QFETCH(QVariant, value);
    setPicture(value);

    QTEST(inkOf(paintedAt(kCell)), "place");
}

void TestTXCenteredPixmapDelegate::selectedCellOfNoPictureIsFilled_data()
{
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::newRow("active") << QPalette::Active;
    QTest::newRow("inactive") << QPalette::Inactive;
    QTest::newRow("disabled") << QPalette::Disabled;
}

void TestTXCenteredPixmapDelegate::selectedCellOfNoPictureIsFilled()
{
    QFETCH(QPalette::ColorGroup, group);
    setPicture(QVariant());
    QStyleOptionViewItem option = optionAt(kCell, QStyle::State_Selected);
    option.palette.setCurrentColorGroup(group);

    const QImage picture = painted(TXCenteredPixmapDelegate(), option, item().index());

    QCOMPARE(inkOf(picture), kCell);
    QCOMPARE(pixelsOf(picture, option.palette.color(group, QPalette::Highlight)), kCell);
}

void TestTXCenteredPixmapDelegate::bitmapIsDrawnInTheColourOfTheText_data()
{
    selectedCellOfNoPictureIsFilled_data();
}

void TestTXCenteredPixmapDelegate::bitmapIsDrawnInTheColourOfTheText()
{
    QFETCH(QPalette::ColorGroup, group);
    setPicture(allSet({10, 6}));
    QStyleOptionViewItem option = optionAt(kCell);
    option.palette.setCurrentColorGroup(group);

    const QImage picture = painted(TXCenteredPixmapDelegate(), option, item().index());

    QCOMPARE(pixelsOf(picture, option.palette.color(group, QPalette::WindowText)),
             QRect(44, 26, 10, 6));
}

void TestTXCenteredPixmapDelegate::nothingElseIsDrawn()
{
    const QImage bare = paintedAt(kCell);
    item().setText("a text as long as the cell is wide, and longer");
    item().setCheckable(true);
    item().setCheckState(Qt::Checked);
    item().setBackground(Qt::yellow);
    item().setForeground(Qt::red);
    item().setTextAlignment(Qt::AlignRight);

    QCOMPARE(paintedAt(kCell), bare);
    QCOMPARE(inkOf(bare), QRect(44, 26, 10, 6));
}

void TestTXCenteredPixmapDelegate::painterIsKept()
{
    item().setForeground(Qt::red);

    for (const QStyle::State state : {QStyle::State_None, QStyle::State_Selected}) {
        QVERIFY(ItemPainting::keepsPainter(TXCenteredPixmapDelegate(), optionAt(kCell, state),
                                           item().index()));
    }
}

void TestTXCenteredPixmapDelegate::indexOfNoModelIsEmpty()
{
    QCOMPARE(inkOf(painted(TXCenteredPixmapDelegate(), optionAt(kCell), {})), QRect());
}

void TestTXCenteredPixmapDelegate::emptyCellDoesNoHarm()
{
    QCOMPARE(inkOf(paintedAt({30, 30, 0, 0})), QRect(24, 26, 10, 6));
    QCOMPARE(inkOf(paintedAt({30, 30, 0, 0}, QStyle::State_Selected)), QRect(24, 26, 10, 6));
    QCOMPARE(inkOf(paintedAt({60, 30, -20, -10})), QRect(44, 21, 10, 6));
}

int main(int argc, char **argv)
{
    return runTest<TestTXCenteredPixmapDelegate>(argc, argv);
}

#include "tst_TXCenteredPixmapDelegate.moc"
