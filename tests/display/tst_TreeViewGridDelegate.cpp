#include "TreeViewGridDelegate.h"

#include "ItemPainting.h"
#include "TestBase.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

using ItemPainting::optionAt;
using ItemPainting::painted;
using ItemPainting::pictureOf;
using ItemPainting::strokeOf;

namespace {

const QColor kGrey(Qt::lightGray);

/// The picture with the rectangles, in device-independent pixels, filled with the grey of the grid.
QImage gridded(QImage picture, const QList<QRect> &lines)
{
    for (const QRect &line : lines) {
        const QRect pixels = strokeOf(line, picture.devicePixelRatio()) & picture.rect();
        for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
            for (int x = pixels.left(); x <= pixels.right(); ++x) {
                picture.setPixelColor(x, y, kGrey);
            }
        }
    }
    return picture;
}

} // namespace

class TestTreeViewGridDelegate : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { model.reset(); }

private slots:
    void treeHasAGridBelowItsBranchesToo_data() { ItemPainting::addStates(); }
    void treeHasAGridBelowItsBranchesToo();
    void linesAreInsideTheCellButForTheBranches_data();
    void linesAreInsideTheCellButForTheBranches();
    void bottomLineReaches200UnitsToTheLeft_data();
    void bottomLineReaches200UnitsToTheLeft();
    void painterIsKept();
    void indexOfNoModelHasItsGrid();
    void emptyCellDoesNoHarm();

private:
    std::unique_ptr<QStandardItemModel> model;
};

void TestTreeViewGridDelegate::prepare()
{
    model = std::make_unique<QStandardItemModel>();
    model->appendRow({new QStandardItem("papers"), new QStandardItem("2")});
    for (const char *text : {"coated", "uncoated"}) {
        model->item(0)->appendRow({new QStandardItem(text), new QStandardItem("95.1")});
    }
}

void TestTreeViewGridDelegate::treeHasAGridBelowItsBranchesToo()
{
    QFETCH(int, state);
    QFETCH(qreal, ratio);
    QTreeView view;
    view.setModel(model.get());
    view.setHeaderHidden(true);
    view.expandAll();
    TreeViewGridDelegate delegate;
    view.setItemDelegate(&delegate);
    const ItemPainting::Stage stage(state, view, *model->item(0)->child(1));
    view.header()->resizeSection(0, 120);
    view.header()->resizeSection(1, 60);
    QList<QRect> lines;
    for (QModelIndex row = model->index(0, 0); row.isValid(); row = view.indexBelow(row)) {
        const QRect first = view.visualRect(row);
        const QRect second = view.visualRect(row.siblingAtColumn(1));
        lines += {QRect(0, first.bottom(), second.right() + 1, 1),
                  QRect(first.right(), first.top(), 1, first.height()),
                  QRect(second.right(), second.top(), 1, second.height())};
    }

    const QImage picture = pictureOf(view, ratio);

    QCOMPARE(lines.size(), 9);
    QCOMPARE(picture, gridded(ItemPainting::plainPictureOf(view, ratio), lines));
}

void TestTreeViewGridDelegate::linesAreInsideTheCellButForTheBranches_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void TestTreeViewGridDelegate::linesAreInsideTheCellButForTheBranches()
{
    QFETCH(qreal, ratio);
    const QStyleOptionViewItem option = optionAt({40, 10, 30, 20});
    const QModelIndex index = model->index(0, 0);

    const QImage picture = painted(TreeViewGridDelegate(), option, index, ratio);
    const QImage plain = painted(QStyledItemDelegate(), option, index, ratio);

    QCOMPARE(picture, gridded(plain, {{69, 10, 1, 20}, {0, 29, 70, 1}}));
}

void TestTreeViewGridDelegate::bottomLineReaches200UnitsToTheLeft_data()
{
    linesAreInsideTheCellButForTheBranches_data();
}

void TestTreeViewGridDelegate::bottomLineReaches200UnitsToTheLeft()
{
    QFETCH(qreal, ratio);
    QImage image = ItemPainting::paper({300, 40}, ratio);
    QPainter painter(&image);

    TreeViewGridDelegate().paint(&painter, optionAt({250, 5, 20, 20}), {});
    painter.end();

    QCOMPARE(image,
             gridded(ItemPainting::paper({300, 40}, ratio), {{269, 5, 1, 20}, {50, 24, 220, 1}}));
}

void TestTreeViewGridDelegate::painterIsKept()
{
    QVERIFY(ItemPainting::keepsPainter(TreeViewGridDelegate(), optionAt({4, 4, 80, 20}),
                                       model->index(0, 0)));
}

void TestTreeViewGridDelegate::indexOfNoModelHasItsGrid()
{
    const QStyleOptionViewItem option = optionAt({4, 4, 80, 20}, QStyle::State_Selected);

    const QImage picture = painted(TreeViewGridDelegate(), option, {});

    QCOMPARE(picture,
             gridded(painted(QStyledItemDelegate(), option, {}), {{83, 4, 1, 20}, {0, 23, 84, 1}}));
}

void TestTreeViewGridDelegate::emptyCellDoesNoHarm()
{
    const QImage picture = painted(TreeViewGridDelegate(), optionAt(QRect()), model->index(0, 0));

    QCOMPARE(picture.pixelColor(60, 30), QColor(Qt::white));
}

int main(int argc, char **argv)
{
    return runTest<TestTreeViewGridDelegate>(argc, argv);
}

#include "tst_TreeViewGridDelegate.moc"
