#include "ExtraItemProxyComboModel.h"

#include "ExtraItemProxyHelpers.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>

using ExtraItemProxyTest::Bar;
using ExtraItemProxyTest::itemRow;
using ExtraItemProxyTest::kFatal;
using ExtraItemProxyTest::shown;

namespace {

/// Rows that can be moved, which QStandardItemModel cannot do: a top level and one nested level
/// below its first row.
class MovingModel : public QAbstractItemModel
{
public:
    QStringList top{"a", "b", "c", "d"};
    QStringList nested{"x", "y"};

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        return hasIndex(row, column, parent) ? createIndex(row, column, quintptr(parent.isValid()))
                                             : QModelIndex();
    }
    QModelIndex parent(const QModelIndex &index) const override
    {
        return index.internalId() ? createIndex(int(top.indexOf("a")), 0, quintptr(0))
                                  : QModelIndex();
    }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        if (!parent.isValid()) {
            return int(top.size());
        }
        return isA(parent) ? int(nested.size()) : 0;
    }
    int columnCount(const QModelIndex & = {}) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole) {
            return {};
        }
        return index.internalId() ? nested.at(index.row()) : top.at(index.row());
    }

    void moveTop(int first, int last, int before)
    {
        beginMoveRows({}, first, last, {}, before);
        const QStringList taken = top.mid(first, last - first + 1);
        top.remove(first, taken.size());
        const int place = before > last ? before - int(taken.size()) : before;
        for (int i = 0; i < taken.size(); ++i) {
            top.insert(place + i, taken.at(i));
        }
        endMoveRows();
    }
    void nest(int row)
    {
        beginMoveRows({}, row, row, index(int(top.indexOf("a")), 0), 0);
        nested.prepend(top.takeAt(row));
        endMoveRows();
    }
    void raise(int before)
    {
        beginMoveRows(index(int(top.indexOf("a")), 0), 0, 0, {}, before);
        top.insert(before, nested.takeFirst());
        endMoveRows();
    }
    void moveNested()
    {
        const QModelIndex a = index(int(top.indexOf("a")), 0);
        beginMoveRows(a, 0, 0, a, 2);
        nested.swapItemsAt(0, 1);
        endMoveRows();
    }

private:
    bool isA(const QModelIndex &index) const
    {
        return !index.internalId() && top.at(index.row()) == "a";
    }
};

} // namespace

/// What the proxy makes of the changes of its source.
class TestExtraItemProxyComboModelChanges : public TestBase
{
    Q_OBJECT

private slots:
    void textRowGoesWhenTheSourceIsFilledAndComesBack();
    void textRowNeverComesWithoutTheFlag();
    void dataChangesArePassedOnWithTheirPlaces();
    void headerChangesArePassedOn();
    void persistentIndexesFollowInsertionAndRemoval();
    void persistentIndexesFollowSorting();
    void persistentIndexesFollowMoves();
    void rowsMoveBetweenTopAndBelow();
    void resetIsFollowed();
    void columnsAreFollowed();
    void nestedChangesAreNotPassedOn();
    void manyRandomChangesKeepTheRows();
};

void TestExtraItemProxyComboModelChanges::textRowGoesWhenTheSourceIsFilledAndComesBack()
{
    Bar bar;
    QCOMPARE(shown(bar.proxy), "Item - Load");
    bar.source.appendRow(itemRow("a"));
    QCOMPARE(shown(bar.proxy), "a - Load");
    bar.source.insertRow(0, itemRow("b"));
    QCOMPARE(shown(bar.proxy), "b a - Load");
    bar.source.removeRow(0);
    QCOMPARE(shown(bar.proxy), "a - Load");
    bar.source.removeRow(0);
    QCOMPARE(shown(bar.proxy), "Item - Load");
    bar.source.appendRow(itemRow("c"));
    bar.source.clear();
    QCOMPARE(shown(bar.proxy), "Item - Load");
}

void TestExtraItemProxyComboModelChanges::textRowNeverComesWithoutTheFlag()
{
    QStringListModel source({"a"});
    ExtraItemProxyComboModel proxy({"Load"}, {-1}, "Item", false, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    proxy.setSourceModel(&source);
    const QPersistentModelIndex load = proxy.index(2, 0);
    source.removeRow(0);
    QCOMPARE(shown(proxy), "- Load");
    QCOMPARE(load.row(), 1);
    source.insertRow(0);
    QCOMPARE(load.row(), 2);
}

void TestExtraItemProxyComboModelChanges::dataChangesArePassedOnWithTheirPlaces()
{
    Bar bar({"a", "b", "c"});
    QSignalSpy spy(&bar.proxy, &QAbstractItemModel::dataChanged);
    bar.source.item(1)->setText("new");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).toModelIndex(), bar.proxy.index(1, 0));
    QCOMPARE(spy.first().at(1).toModelIndex(), bar.proxy.index(1, 0));
    QCOMPARE(spy.first().at(2).value<QList<int>>(), (QList<int>{Qt::DisplayRole, Qt::EditRole}));
}

void TestExtraItemProxyComboModelChanges::headerChangesArePassedOn()
{
    Bar bar({"a"});
    const QSignalSpy spy(&bar.proxy, &QAbstractItemModel::headerDataChanged);
    bar.source.setHeaderData(0, Qt::Horizontal, "name");
    QCOMPARE(spy.count(), 1);
    bar.source.setHeaderData(0, Qt::Vertical, "row");
    QCOMPARE(spy.count(), 1);
}

void TestExtraItemProxyComboModelChanges::persistentIndexesFollowInsertionAndRemoval()
{
    Bar bar({"a", "b"});
    const QPersistentModelIndex b = bar.proxy.index(1, 0);
    const QPersistentModelIndex load = bar.proxy.index(3, 0);
    bar.source.insertRow(0, itemRow("new"));
    QCOMPARE(b.row(), 2);
    QCOMPARE(b.data().toString(), "b");
    QCOMPARE(load.data().toString(), "Load");
    bar.source.removeRows(0, 2);
    QCOMPARE(b.row(), 0);
    QVERIFY(!load.isValid());

    Bar empty;
    const QPersistentModelIndex fixed = empty.proxy.index(2, 0);
    empty.source.appendRow(itemRow("a"));
    QCOMPARE(fixed.data().toString(), "Load");
}

void TestExtraItemProxyComboModelChanges::persistentIndexesFollowSorting()
{
    Bar bar({"b", "c", "a"});
    const QPersistentModelIndex b = bar.proxy.index(0, 0);
    const QPersistentModelIndex load = bar.proxy.index(4, 0);
    bar.source.sort(0);
    QCOMPARE(shown(bar.proxy), "a b c - Load");
    QCOMPARE(b.row(), 1);
    QCOMPARE(load.row(), 4);
    bar.proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(shown(bar.proxy), "c b a - Load");
    QCOMPARE(b.data().toString(), "b");
}

void TestExtraItemProxyComboModelChanges::persistentIndexesFollowMoves()
{
    MovingModel source;
    ExtraItemProxyComboModel proxy({"Load"}, {-1}, "Item", true, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    proxy.setSourceModel(&source);
    const QPersistentModelIndex b = proxy.index(1, 0);
    const QSignalSpy moved(&proxy, &QAbstractItemModel::rowsMoved);
    source.moveTop(0, 1, 4);
    QCOMPARE(shown(proxy), "c d a b - Load");
    QCOMPARE(b.row(), 3);
    source.moveTop(3, 3, 0);
    QCOMPARE(b.row(), 0);
    QCOMPARE(moved.count(), 2);
}

void TestExtraItemProxyComboModelChanges::rowsMoveBetweenTopAndBelow()
{
    MovingModel source;
    ExtraItemProxyComboModel proxy({"Load"}, {-1}, "Item", true, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    proxy.setSourceModel(&source);
    source.nest(2);
    QCOMPARE(shown(proxy), "a b d - Load");
    source.raise(1);
    QCOMPARE(shown(proxy), "a c b d - Load");
    const QSignalSpy moved(&proxy, &QAbstractItemModel::rowsMoved);
    source.moveNested();
    QCOMPARE(moved.count(), 0);
}

void TestExtraItemProxyComboModelChanges::resetIsFollowed()
{
    QStringListModel source;
    ExtraItemProxyComboModel proxy({"Load"}, {-1}, "Item", true, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    proxy.setSourceModel(&source);
    source.setStringList({"a", "b"});
    QCOMPARE(shown(proxy), "a b - Load");
    source.setStringList({});
    QCOMPARE(shown(proxy), "Item - Load");
}

void TestExtraItemProxyComboModelChanges::columnsAreFollowed()
{
    Bar bar({"a"});
    bar.source.insertColumn(0);
    QCOMPARE(bar.proxy.columnCount(), 2);
    QCOMPARE(bar.proxy.index(0, 1).data().toString(), "a");
    bar.source.removeColumn(0);
    QCOMPARE(bar.proxy.columnCount(), 1);
    bar.source.removeColumn(0);
    QCOMPARE(bar.source.columnCount(), 0);
    QCOMPARE(bar.proxy.columnCount(), 1);
    QVERIFY(!bar.proxy.index(0, 0).data().isValid());
    QCOMPARE(bar.proxy.index(2, 0).data().toString(), "Load");
    bar.source.setColumnCount(2);
    QCOMPARE(bar.proxy.columnCount(), 2);
}

void TestExtraItemProxyComboModelChanges::nestedChangesAreNotPassedOn()
{
    Bar bar({"a"});
    const QSignalSpy inserted(&bar.proxy, &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(&bar.proxy, &QAbstractItemModel::dataChanged);
    const QSignalSpy removed(&bar.proxy, &QAbstractItemModel::rowsRemoved);
    bar.source.item(0)->appendRow(itemRow("below"));
    bar.source.item(0)->child(0)->setText("changed");
    bar.source.item(0)->removeRow(0);
    QCOMPARE(inserted.count() + removed.count(), 0);
    // The item's own row changes when it gets its first child column.
    for (const QList<QVariant> &arguments : changed) {
        QCOMPARE(arguments.first().toModelIndex(), bar.proxy.index(0, 0));
    }
    QCOMPARE(shown(bar.proxy), "a - Load");
}

void TestExtraItemProxyComboModelChanges::manyRandomChangesKeepTheRows()
{
    Bar bar;
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&bar.proxy);
    QAbstractItemModelTester tester(&sorted, kFatal);
    QComboBox combo;
    combo.setModel(&bar.proxy);
    QRandomGenerator random(7);
    for (int step = 0; step < 400; ++step) {
        const int rows = bar.source.rowCount();
        const int row = int(random.bounded(rows + 1));
        switch (random.bounded(4)) {
        case 0:
            bar.source.removeRows(row, int(random.bounded(rows - row + 1)));
            break;
        case 1:
            bar.source.sort(0, step % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        default:
            bar.source.insertRow(row, itemRow(QString::number(step)));
        }
        const QString expected = bar.source.rowCount() ? shown(bar.source) : "Item";
        QCOMPARE(shown(bar.proxy), expected + " - Load");
        QCOMPARE(shown(sorted), shown(bar.proxy));
        QVERIFY(combo.currentIndex() >= 0);
        QVERIFY(combo.currentText() != "Load" && !combo.currentText().isEmpty());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestExtraItemProxyComboModelChanges>(argc, argv);
}

#include "tst_ExtraItemProxyComboModelChanges.moc"
