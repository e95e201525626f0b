#include "TXSeparatorListDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <limits>
#include <memory>

using ItemPainting::differenceOf;
using ItemPainting::optionAt;
using ItemPainting::painted;
using ItemPainting::pictureOf;
using ItemPainting::pixelsOf;
using ItemPainting::plainPictureOf;
using ItemPainting::strokeOf;

namespace {

const QColor kDark = ItemPainting::tellingPalette().color(QPalette::Active, QPalette::Dark);
const QColor kGrey(Qt::lightGray);
constexpr QSize kSize(37, 14);
constexpr int kNoRow = -1;

} // namespace

class TestTXSeparatorListDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void chosenRowHasALineBelow_data() { ItemPainting::addStates(); }
    void chosenRowHasALineBelow();
    void separatorRowHasItsLine_data();
    void separatorRowHasItsLine();
    void separatorThatIsChosenHasItsOwnLineAlone();
    void rowsComeAndGo();
    void emptySetHasNothingToRemove();
    void viewIsNotUpdatedByItself();
    void rowCountsInEveryColumn();
    void rowCountsBelowEveryParent();
    void numberOfNoRowIsTaken_data();
    void numberOfNoRowIsTaken();
    void separatorIsAsLargeAsChosen();
    void painterIsKept();
    void indexOfNoModelHasNoLine();

private:
    QStandardItem &item(int row) { return *model->item(row); }
    [[nodiscard]] QRect greyOf(const QAbstractItemDelegate &delegate, int row) const
    {
        return pixelsOf(painted(delegate, optionAt({4, 4, 80, 20}), model->index(row, 0)), kGrey);
    }

    std::unique_ptr<QStandardItemModel> model;
};

void TestTXSeparatorListDelegate::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    for (const char *text : {"first", "second", "third", "last"}) {
        model->appendRow({new QStandardItem(text), new QStandardItem("0.5")});
    }
}

void TestTXSeparatorListDelegate::chosenRowHasALineBelow()
{
    QFETCH(int, state);
    QFETCH(qreal, ratio);
    QListView view;
    view.setModel(model.get());
    TXSeparatorListDelegate delegate(1, 0, kSize);
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(state, view, item(1));
    const QRect row = view.visualRect(item(1).index());
    const QRect line(row.left(), row.bottom(), row.width(), 1);

    const QImage picture = pictureOf(view, ratio);

    const QRect stroke = strokeOf(line, ratio) & picture.rect();
    QCOMPARE(differenceOf(picture, plainPictureOf(view, ratio)), stroke);
    QCOMPARE(pixelsOf(picture, kGrey), stroke);
}

void TestTXSeparatorListDelegate::separatorRowHasItsLine_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("line");
    QTest::newRow("middle") << 0 << 13;
    QTest::newRow("top") << 1 << 4;
    QTest::newRow("bottom") << 2 << 23;
    QTest::newRow("other") << 3 << 0;
}

void TestTXSeparatorListDelegate::separatorRowHasItsLine()
{
    QFETCH(int, position);
    QFETCH(int, line);
    item(2).setData("separator", Qt::AccessibleDescriptionRole);
    const TXSeparatorListDelegate delegate(kNoRow, position, kSize);
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20});

    const QImage picture = painted(delegate, option, item(2).index());
    const QImage plain = painted(QStyledItemDelegate(), option, item(2).index());

    QCOMPARE(pixelsOf(picture, kDark), QRect(4, line, 80, 1));
    QCOMPARE(differenceOf(picture, plain), QRect(4, line, 80, 1));
}

void TestTXSeparatorListDelegate::separatorThatIsChosenHasItsOwnLineAlone()
{
    item(2).setData("separator", Qt::AccessibleDescriptionRole);
    const TXSeparatorListDelegate delegate(2, 1, kSize);
    const QImage picture = painted(delegate, optionAt({4, 4, 80, 20}), item(2).index());

    QCOMPARE(pixelsOf(picture, kDark), QRect(4, 4, 80, 1));
    QCOMPARE(pixelsOf(picture, kGrey), QRect());
}

void TestTXSeparatorListDelegate::rowsComeAndGo()
{
    TXSeparatorListDelegate delegate(1, 0, kSize);
    const QRect line(4, 23, 80, 1);

    delegate.addSeparatorAtRowIndex(3);
    delegate.addSeparatorAtRowIndex(3);

    QCOMPARE(greyOf(delegate, 0), QRect());
    QCOMPARE(greyOf(delegate, 1), line);
    QCOMPARE(greyOf(delegate, 3), line);
    QVERIFY(delegate.removeSeparatorAtRowIndex(3));
    QVERIFY(!delegate.removeSeparatorAtRowIndex(3));
    QCOMPARE(greyOf(delegate, 3), QRect());
    QCOMPARE(greyOf(delegate, 1), line);
}

void TestTXSeparatorListDelegate::emptySetHasNothingToRemove()
{
    TXSeparatorListDelegate delegate(1, 0, kSize);

    QVERIFY(delegate.removeSeparatorAtRowIndex(1));
    QVERIFY(!delegate.removeSeparatorAtRowIndex(1));
    QVERIFY(!delegate.removeSeparatorAtRowIndex(0));
    QCOMPARE(greyOf(delegate, 1), QRect());
}

void TestTXSeparatorListDelegate::viewIsNotUpdatedByItself()
{
    QListView view;
    view.setModel(model.get());
    TXSeparatorListDelegate delegate(kNoRow, 0, kSize);
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(ItemPainting::Plain, view, item(1));
    const QRect row = view.visualRect(item(1).index());
    QSignalSpy sizes(&delegate, &QAbstractItemDelegate::sizeHintChanged);
    QSignalSpy changes(model.get(), &QAbstractItemModel::dataChanged);

    delegate.addSeparatorAtRowIndex(1);

    QCOMPARE(sizes.size() + changes.size(), 0);
    QCOMPARE(pixelsOf(pictureOf(view, 1.0), kGrey), QRect(0, row.bottom(), row.width(), 1));
}

void TestTXSeparatorListDelegate::rowCountsInEveryColumn()
{
    QTableView view;
    view.setModel(model.get());
    view.setShowGrid(false);
    TXSeparatorListDelegate delegate(1, 0, kSize);
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(ItemPainting::Plain, view, item(1));
    view.setColumnWidth(0, 60);
    view.setColumnWidth(1, 60);
    const QRect cell = view.visualRect(item(1).index());

    QCOMPARE(pixelsOf(pictureOf(view, 1.0), kGrey), QRect(0, cell.bottom(), 120, 1));
}

void TestTXSeparatorListDelegate::rowCountsBelowEveryParent()
{
    for (const char *text : {"inner first", "inner second"}) {
        item(0).appendRow(new QStandardItem(text));
    }
    QTreeView view;
    view.setModel(model.get());
    view.expandAll();
    TXSeparatorListDelegate delegate(1, 0, kSize);
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(ItemPainting::Plain, view, item(1));
    const QRect inner = view.visualRect(item(0).child(1)->index());
    const QRect outer = view.visualRect(item(1).index());

    const QImage picture = pictureOf(view, 1.0);

    QCOMPARE(picture.pixelColor(inner.bottomLeft()), kGrey);
    QCOMPARE(picture.pixelColor(outer.bottomLeft()), kGrey);
    QVERIFY(picture.pixelColor(view.visualRect(item(0).index()).bottomLeft()) != kGrey);
}

void TestTXSeparatorListDelegate::numberOfNoRowIsTaken_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("-1") << -1;
    QTest::newRow("behind the last") << 4;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("most") << std::numeric_limits<int>::max();
}

void TestTXSeparatorListDelegate::numberOfNoRowIsTaken()
{
    QFETCH(int, row);
    TXSeparatorListDelegate delegate(row, 0, kSize);

    for (int i = 0; i < model->rowCount(); ++i) {
        QCOMPARE(greyOf(delegate, i), QRect());
    }
    QVERIFY(delegate.removeSeparatorAtRowIndex(row));
}

void TestTXSeparatorListDelegate::separatorIsAsLargeAsChosen()
{
    item(2).setData("separator", Qt::AccessibleDescriptionRole);
    const TXSeparatorListDelegate delegate(1, 0, kSize);
    const QStyleOptionViewItem option = optionAt({});
    const QModelIndex chosen = item(1).index();

    QCOMPARE(delegate.sizeHint(option, item(2).index()), kSize);
    QCOMPARE(delegate.sizeHint(option, chosen), QStyledItemDelegate().sizeHint(option, chosen));
}

void TestTXSeparatorListDelegate::painterIsKept()
{
    item(2).setData("separator", Qt::AccessibleDescriptionRole);
    const TXSeparatorListDelegate delegate(1, 0, kSize);

    for (int row = 0; row < model->rowCount(); ++row) {
        QVERIFY(
            ItemPainting::keepsPainter(delegate, optionAt({4, 4, 80, 20}), model->index(row, 0)));
    }
}

void TestTXSeparatorListDelegate::indexOfNoModelHasNoLine()
{
    const TXSeparatorListDelegate delegate(0, 0, kSize);
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20}, QStyle::State_Selected);

    QCOMPARE(painted(delegate, option, {}), painted(QStyledItemDelegate(), option, {}));
    QVERIFY(delegate.sizeHint(option, {}) != kSize);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSeparatorListDelegate>(argc, argv);
}

#include "tst_TXSeparatorListDelegate.moc"
