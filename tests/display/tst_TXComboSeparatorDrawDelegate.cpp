#include "TXComboSeparatorDrawDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QComboBox>
#include <QListView>
#include <QStandardItemModel>

#include <memory>

using ItemPainting::differenceOf;
using ItemPainting::inkOf;
using ItemPainting::optionAt;
using ItemPainting::painted;
using ItemPainting::pictureOf;
using ItemPainting::pixelsOf;
using ItemPainting::strokeOf;
using ItemPainting::tellingPalette;

namespace {

const QColor kDark = tellingPalette().color(QPalette::Active, QPalette::Dark);
constexpr QSize kSize(37, 14);

} // namespace

class TestTXComboSeparatorDrawDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void popupDrawsTheLine_data();
    void popupDrawsTheLine();
    void listDrawsNothingButTheLineAnew_data();
    void listDrawsNothingButTheLineAnew();
    void otherPositionIsAtTheTopOfTheView();
    void separatorIsAsLargeAsChosen();
    void invalidSizeIsHandedOn();
    void capitalIsPaintedAsUsual();
    void textStandsUnderTheLine();
    void painterIsKept();
    void indexOfNoModelIsPaintedAsUsual();

private:
    QStandardItem &separator() { return *model->item(1); }

    std::unique_ptr<QStandardItemModel> model;
};

void TestTXComboSeparatorDrawDelegate::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    for (const char *text : {"first", "", "last"}) {
        model->appendRow(new QStandardItem(text));
    }
    separator().setData("separator", Qt::AccessibleDescriptionRole);
}

void TestTXComboSeparatorDrawDelegate::popupDrawsTheLine_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("line");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("middle at %g", ratio) << 0 << 6 << ratio;
        QTest::addRow("top at %g", ratio) << 1 << 0 << ratio;
        QTest::addRow("bottom at %g", ratio) << 2 << 13 << ratio;
    }
}

void TestTXComboSeparatorDrawDelegate::popupDrawsTheLine()
{
    QFETCH(int, position);
    QFETCH(int, line);
    QFETCH(qreal, ratio);
    QComboBox combo;
    combo.addItems({"first", "last"});
    combo.insertSeparator(1);
    combo.setItemDelegate(new TXComboSeparatorDrawDelegate(position, kSize, &combo));
    combo.view()->setPalette(tellingPalette());
    combo.show();
    combo.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(combo.view()->window()));
    const QRect row = combo.view()->visualRect(combo.model()->index(1, 0));

    const QImage picture = pictureOf(*combo.view(), ratio);

    QCOMPARE(row.height(), kSize.height());
    const QRect expected(row.left(), row.top() + line, row.width(), 1);
    QCOMPARE(pixelsOf(picture, kDark), strokeOf(expected, ratio) & picture.rect());
    combo.hidePopup();
}

void TestTXComboSeparatorDrawDelegate::listDrawsNothingButTheLineAnew_data()
{
    ItemPainting::addStates();
}

void TestTXComboSeparatorDrawDelegate::listDrawsNothingButTheLineAnew()
{
    QFETCH(int, state);
    QFETCH(qreal, ratio);
    QListView view;
    view.setModel(model.get());
    TXComboSeparatorDrawDelegate delegate(0, kSize);
    view.setItemDelegate(&delegate);
    separator().setData(kSize, Qt::SizeHintRole);
    const ItemPainting::Stage stage(state, view, separator());
    const QRect row = view.visualRect(separator().index());
    const QRect line(row.left(), row.center().y(), row.width(), 1);

    const QImage picture = pictureOf(view, ratio);
    const QImage plain = ItemPainting::plainPictureOf(view, ratio);

    const QRect stroke = strokeOf(line, ratio) & picture.rect();
    QCOMPARE(differenceOf(picture, plain), stroke);
    QCOMPARE(pixelsOf(picture, kDark), stroke);
}

void TestTXComboSeparatorDrawDelegate::otherPositionIsAtTheTopOfTheView()
{
    QListView view;
    view.setModel(model.get());
    TXComboSeparatorDrawDelegate delegate(7, kSize);
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(ItemPainting::Plain, view, separator());
    const QRect row = view.visualRect(separator().index());

    QCOMPARE(pixelsOf(pictureOf(view, 1.0), kDark), QRect(row.left(), 0, row.width(), 1));
}

void TestTXComboSeparatorDrawDelegate::separatorIsAsLargeAsChosen()
{
    const TXComboSeparatorDrawDelegate delegate(0, kSize);
    const QStyleOptionViewItem option = optionAt({});
    const QModelIndex other = model->index(0, 0);

    QCOMPARE(delegate.sizeHint(option, separator().index()), kSize);
    QCOMPARE(delegate.sizeHint(option, other), QStyledItemDelegate().sizeHint(option, other));
    QVERIFY(delegate.sizeHint(option, {}) != kSize);
}

void TestTXComboSeparatorDrawDelegate::invalidSizeIsHandedOn()
{
    const TXComboSeparatorDrawDelegate delegate(0, {});

    QCOMPARE(delegate.sizeHint(optionAt({}), separator().index()), QSize());
}

void TestTXComboSeparatorDrawDelegate::capitalIsPaintedAsUsual()
{
    separator().setData("Separator", Qt::AccessibleDescriptionRole);
    const TXComboSeparatorDrawDelegate delegate(0, kSize);
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20});

    QCOMPARE(pixelsOf(painted(delegate, option, separator().index()), kDark), QRect());
    QVERIFY(delegate.sizeHint(option, separator().index()) != kSize);
}

void TestTXComboSeparatorDrawDelegate::textStandsUnderTheLine()
{
    separator().setText("colours of the press");
    const TXComboSeparatorDrawDelegate delegate(0, kSize);
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20});

    const QImage picture = painted(delegate, option, separator().index());
    const QImage plain = painted(QStyledItemDelegate(), option, separator().index());

    QVERIFY(inkOf(plain).height() > 5);
    QCOMPARE(differenceOf(picture, plain), QRect(4, 13, 80, 1));
    QCOMPARE(pixelsOf(picture, kDark), QRect(4, 13, 80, 1));
}

void TestTXComboSeparatorDrawDelegate::painterIsKept()
{
    const TXComboSeparatorDrawDelegate delegate(0, kSize);

    QVERIFY(ItemPainting::keepsPainter(delegate, optionAt({4, 4, 80, 20}), separator().index()));
    QVERIFY(ItemPainting::keepsPainter(delegate, optionAt({4, 4, 80, 20}), model->index(0, 0)));
}

void TestTXComboSeparatorDrawDelegate::indexOfNoModelIsPaintedAsUsual()
{
    const TXComboSeparatorDrawDelegate delegate(0, kSize);
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20}, QStyle::State_Selected);

    QCOMPARE(painted(delegate, option, {}), painted(QStyledItemDelegate(), option, {}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXComboSeparatorDrawDelegate>(argc, argv);
}

#include "tst_TXComboSeparatorDrawDelegate.moc"
