#include "ExtraItemProxyComboModel.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>

#include <memory>

namespace {

constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

QList<QStandardItem *> itemRow(const QString &text)
{
    auto item = std::make_unique<QStandardItem>(text);
    item->setData("id " + text);
    item->setData(text.toUpper(), Qt::UserRole);
    return {item.release()};
}

/// What the rows show, extra ones included: "-" is the separator.
QString shown(const QAbstractItemModel &model, int column = 0)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, column);
        const bool separator = index.data(Qt::AccessibleDescriptionRole).toString() == "separator";
        rows.append(separator ? "-" : index.data().toString());
    }
    return rows.join(' ');
}

/// The proxy as the selection bar makes it, over a source with some rows.
struct Bar
{
    explicit Bar(const QStringList &rows = {})
    {
        for (const QString &text : rows) {
            source.appendRow(itemRow(text));
        }
        proxy.setSourceModel(&source);
    }

    QStandardItemModel source;
    ExtraItemProxyComboModel proxy{{"Load"}, {-1}, "Item", true, -2};
    QAbstractItemModelTester tester{&proxy, kFatal};
};

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

class TestExtraItemProxyComboModel : public TestBase
{
    Q_OBJECT

private slots:
    void rowsStandInOrder_data();
    void rowsStandInOrder();
    void extraRowsCarryTheirData();
    void separatorIsAsTheComboBoxMakesIt();
    void labelsAndValuesMayDifferInNumber();
    void sourceRowsAreMappedBothWays();
    void extraRowsAreReadOnlyAndSourceRowsAreNot();
    void extraRowsShowInEveryColumn();

    void textCanBeReplaced();
    void sourceCanBeReplacedAndTakenAway();
    void sameSourceAgainChangesNothing();
    void oldSourceIsNotFollowed();
    void sourceMayBeDestroyed();
    void itsOwnSourceIsIgnored();

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

    void comboBoxStartsOnTheTextRow();
    void comboBoxMovesToTheFirstRowThatComes();
    void comboBoxStaysOnSourceRowsWhenItsRowGoes_data();
    void comboBoxStaysOnSourceRowsWhenItsRowGoes();
    void comboBoxFallsBackToTheTextRow_data();
    void comboBoxFallsBackToTheTextRow();
    void comboBoxKeepsItsRowWhenOthersChange();
    void comboBoxSkipsTheSeparator();
    void comboBoxFindsFixedEntriesByValue();
    void editableComboBoxCannotInsertRows();
    void sortedAndFilteredProxyStandsOnTop();
};

void TestExtraItemProxyComboModel::rowsStandInOrder_data()
{
    QTest::addColumn<QStringList>("source");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("rows");
    const QStringList none;
    const QStringList some{"a", "b"};
    QTest::newRow("source, entry, flag") << some << QStringList{"Load"} << true << "a b - Load";
    QTest::newRow("source, entries") << some << QStringList{"L", "M"} << false << "a b - L M";
    QTest::newRow("source, flag") << some << none << true << "a b";
    QTest::newRow("source") << some << none << false << "a b";
    QTest::newRow("entry, flag") << none << QStringList{"Load"} << true << "Item - Load";
    QTest::newRow("entry") << none << QStringList{"Load"} << false << "- Load";
    QTest::newRow("flag") << none << none << true << "Item";
    QTest::newRow("nothing") << none << none << false << "";
}

void TestExtraItemProxyComboModel::rowsStandInOrder()
{
    QFETCH(QStringList, source);
    QFETCH(QStringList, labels);
    QFETCH(bool, flag);
    QFETCH(QString, rows);
    QStringListModel strings(source);
    ExtraItemProxyComboModel proxy(labels, {1, 2}, "Item", flag, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    if (source.isEmpty()) {
        QCOMPARE(shown(proxy), rows);
    }
    proxy.setSourceModel(&strings);
    QCOMPARE(shown(proxy), rows);
    QCOMPARE(proxy.hasChildren(), !rows.isEmpty());
}

void TestExtraItemProxyComboModel::extraRowsCarryTheirData()
{
    Bar bar;
    const QModelIndex text = bar.proxy.index(0, 0);
    const QModelIndex load = bar.proxy.index(2, 0);
    for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
        QCOMPARE(text.data(role).toString(), "Item");
        QCOMPARE(load.data(role).toString(), "Load");
    }
    QCOMPARE(text.data(Qt::UserRole), QVariant(-2));
    QCOMPARE(load.data(Qt::UserRole), QVariant(-1));
    QVERIFY(!load.data(Qt::ToolTipRole).isValid());
    QVERIFY(!load.data(Qt::AccessibleDescriptionRole).isValid());
    QVERIFY(!bar.proxy.mapToSource(load).isValid());
}

void TestExtraItemProxyComboModel::separatorIsAsTheComboBoxMakesIt()
{
    Bar bar({"a"});
    QComboBox other;
    other.insertSeparator(0);
    const QModelIndex ours = bar.proxy.index(1, 0);
    const QModelIndex theirs = other.model()->index(0, 0);
    QCOMPARE(ours.data(Qt::AccessibleDescriptionRole), theirs.data(Qt::AccessibleDescriptionRole));
    const Qt::ItemFlags chosen = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(ours.flags() & chosen, theirs.flags() & chosen);
    QVERIFY(ours.data().toString().isEmpty());
    QVERIFY(!ours.data(Qt::UserRole).isValid());
}

void TestExtraItemProxyComboModel::labelsAndValuesMayDifferInNumber()
{
    const ExtraItemProxyComboModel fewer({"one", "two"}, {1}, "Item", false, {});
    QCOMPARE(fewer.rowCount(), 3);
    QCOMPARE(fewer.index(1, 0).data(Qt::UserRole), QVariant(1));
    QVERIFY(!fewer.index(2, 0).data(Qt::UserRole).isValid());

    const ExtraItemProxyComboModel more({"one"}, {1, 2}, "Item", false, {});
    QCOMPARE(shown(more), "- one");
}

void TestExtraItemProxyComboModel::sourceRowsAreMappedBothWays()
{
    Bar bar({"a", "b"});
    const QModelIndex source = bar.source.index(1, 0);
    const QModelIndex proxy = bar.proxy.index(1, 0);
    QCOMPARE(bar.proxy.mapToSource(proxy), source);
    QCOMPARE(bar.proxy.mapFromSource(source), proxy);
    QCOMPARE(proxy.data(Qt::UserRole).toString(), "B");

    bar.source.item(0)->appendRow(itemRow("below"));
    QVERIFY(!bar.proxy.mapFromSource(bar.source.index(0, 0, bar.source.index(0, 0))).isValid());
    QVERIFY(!bar.proxy.mapToSource(source).isValid());
    QVERIFY(!bar.proxy.mapFromSource(proxy).isValid());
    QVERIFY(!bar.proxy.data(source).isValid());
    QCOMPARE(bar.proxy.rowCount(bar.proxy.index(0, 0)), 0);
}

void TestExtraItemProxyComboModel::extraRowsAreReadOnlyAndSourceRowsAreNot()
{
    Bar bar({"a"});
    QVERIFY(bar.proxy.setData(bar.proxy.index(0, 0), "new"));
    QCOMPARE(bar.source.item(0)->text(), "new");
    QVERIFY(!bar.proxy.setData(bar.proxy.index(1, 0), "x"));
    QVERIFY(!bar.proxy.setData(bar.proxy.index(2, 0), "x"));
    QVERIFY(!(bar.proxy.index(2, 0).flags() & Qt::ItemIsEditable));
    QCOMPARE(bar.proxy.buddy(bar.proxy.index(2, 0)), bar.proxy.index(2, 0));
    QCOMPARE(shown(bar.proxy), "new - Load");
}

void TestExtraItemProxyComboModel::extraRowsShowInEveryColumn()
{
    Bar bar;
    bar.source.setColumnCount(3);
    QCOMPARE(bar.proxy.columnCount(), 3);
    QCOMPARE(shown(bar.proxy, 2), "Item - Load");
    QCOMPARE(bar.proxy.index(2, 2).data(Qt::UserRole), QVariant(-1));
    bar.source.setHorizontalHeaderLabels({"p", "q", "r"});
    QCOMPARE(bar.proxy.headerData(2, Qt::Horizontal).toString(), "r");
    QCOMPARE(bar.proxy.headerData(2, Qt::Vertical), QVariant(3));
}

void TestExtraItemProxyComboModel::textCanBeReplaced()
{
    Bar bar;
    QSignalSpy spy(&bar.proxy, &QAbstractItemModel::dataChanged);
    bar.proxy.setItemText("Preset");
    QCOMPARE(shown(bar.proxy), "Preset - Load");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).toModelIndex(), bar.proxy.index(0, 0));
    QCOMPARE(spy.first().at(1).toModelIndex(), bar.proxy.index(0, 0));

    bar.proxy.setItemText("Preset");
    QCOMPARE(spy.count(), 1);

    bar.source.appendRow(itemRow("a"));
    bar.proxy.setItemText("Profile");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(shown(bar.proxy), "a - Load");
    bar.source.clear();
    QCOMPARE(shown(bar.proxy), "Profile - Load");
}

void TestExtraItemProxyComboModel::sourceCanBeReplacedAndTakenAway()
{
    Bar bar({"a"});
    QStringListModel other({"x", "y"});
    const QSignalSpy spy(&bar.proxy, &QAbstractItemModel::modelReset);
    bar.proxy.setSourceModel(&other);
    QCOMPARE(shown(bar.proxy), "x y - Load");
    bar.proxy.setSourceModel(nullptr);
    QCOMPARE(shown(bar.proxy), "Item - Load");
    QVERIFY(!bar.proxy.sourceModel());
    bar.proxy.setSourceModel(&bar.source);
    QCOMPARE(shown(bar.proxy), "a - Load");
    QCOMPARE(spy.count(), 3);
}

void TestExtraItemProxyComboModel::sameSourceAgainChangesNothing()
{
    Bar bar({"a"});
    const QSignalSpy reset(&bar.proxy, &QAbstractItemModel::modelReset);
    const QSignalSpy inserted(&bar.proxy, &QAbstractItemModel::rowsInserted);
    bar.proxy.setSourceModel(&bar.source);
    QCOMPARE(reset.count(), 0);
    bar.source.appendRow(itemRow("b"));
    QCOMPARE(inserted.count(), 1);
}

void TestExtraItemProxyComboModel::oldSourceIsNotFollowed()
{
    Bar bar({"a"});
    QStringListModel other({"x"});
    bar.proxy.setSourceModel(&other);
    const QSignalSpy inserted(&bar.proxy, &QAbstractItemModel::rowsInserted);
    bar.source.appendRow(itemRow("b"));
    bar.source.clear();
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(shown(bar.proxy), "x - Load");
}

void TestExtraItemProxyComboModel::sourceMayBeDestroyed()
{
    ExtraItemProxyComboModel proxy({"Load"}, {-1}, "Item", true, -2);
    QAbstractItemModelTester tester(&proxy, kFatal);
    QComboBox combo;
    combo.setModel(&proxy);
    const QSignalSpy reset(&proxy, &QAbstractItemModel::modelReset);
    {
        QStringListModel source({"a", "b"});
        proxy.setSourceModel(&source);
        combo.setCurrentIndex(1);
    }
    QCOMPARE(reset.count(), 2);
    QCOMPARE(shown(proxy), "Item - Load");
    QCOMPARE(combo.currentText(), "Item");

    QStringListModel next({"c"});
    proxy.setSourceModel(&next);
    QCOMPARE(shown(proxy), "c - Load");
}

void TestExtraItemProxyComboModel::itsOwnSourceIsIgnored()
{
    Bar bar({"a"});
    QIdentityProxyModel above;
    above.setSourceModel(&bar.proxy);
    bar.proxy.setSourceModel(&bar.proxy);
    bar.proxy.setSourceModel(&above);
    QCOMPARE(bar.proxy.sourceModel(), &bar.source);
    QCOMPARE(shown(above), "a - Load");
}

void TestExtraItemProxyComboModel::textRowGoesWhenTheSourceIsFilledAndComesBack()
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

void TestExtraItemProxyComboModel::textRowNeverComesWithoutTheFlag()
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

void TestExtraItemProxyComboModel::dataChangesArePassedOnWithTheirPlaces()
{
    Bar bar({"a", "b", "c"});
    QSignalSpy spy(&bar.proxy, &QAbstractItemModel::dataChanged);
    bar.source.item(1)->setText("new");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).toModelIndex(), bar.proxy.index(1, 0));
    QCOMPARE(spy.first().at(1).toModelIndex(), bar.proxy.index(1, 0));
    QCOMPARE(spy.first().at(2).value<QList<int>>(), (QList<int>{Qt::DisplayRole, Qt::EditRole}));
}

void TestExtraItemProxyComboModel::headerChangesArePassedOn()
{
    Bar bar({"a"});
    const QSignalSpy spy(&bar.proxy, &QAbstractItemModel::headerDataChanged);
    bar.source.setHeaderData(0, Qt::Horizontal, "name");
    QCOMPARE(spy.count(), 1);
    bar.source.setHeaderData(0, Qt::Vertical, "row");
    QCOMPARE(spy.count(), 1);
}

void TestExtraItemProxyComboModel::persistentIndexesFollowInsertionAndRemoval()
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

void TestExtraItemProxyComboModel::persistentIndexesFollowSorting()
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

void TestExtraItemProxyComboModel::persistentIndexesFollowMoves()
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

void TestExtraItemProxyComboModel::rowsMoveBetweenTopAndBelow()
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

void TestExtraItemProxyComboModel::resetIsFollowed()
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

void TestExtraItemProxyComboModel::columnsAreFollowed()
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

void TestExtraItemProxyComboModel::nestedChangesAreNotPassedOn()
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

void TestExtraItemProxyComboModel::manyRandomChangesKeepTheRows()
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

void TestExtraItemProxyComboModel::comboBoxStartsOnTheTextRow()
{
    Bar bar;
    QComboBox combo;
    combo.setModel(&bar.proxy);
    QCOMPARE(combo.currentText(), "Item");
    QCOMPARE(combo.currentData(), QVariant(-2));
    bar.proxy.setItemText("Preset");
    QCOMPARE(combo.currentText(), "Preset");
}

void TestExtraItemProxyComboModel::comboBoxMovesToTheFirstRowThatComes()
{
    Bar bar;
    QComboBox combo;
    combo.setModel(&bar.proxy);
    const QSignalSpy spy(&combo, &QComboBox::currentIndexChanged);
    bar.source.invisibleRootItem()->insertRows(
        0, {itemRow("a").first(), itemRow("b").first(), itemRow("c").first()});
    QCOMPARE(combo.currentText(), "a");
    QCOMPARE(spy.count(), 1);
}

void TestExtraItemProxyComboModel::comboBoxStaysOnSourceRowsWhenItsRowGoes_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("becomes");
    QTest::newRow("first of many") << 0 << 0 << 0 << "b";
    QTest::newRow("last") << 4 << 4 << 4 << "d";
    QTest::newRow("last of a removed tail") << 4 << 2 << 4 << "b";
    QTest::newRow("first of a removed tail") << 2 << 2 << 4 << "b";
    QTest::newRow("last of a removed middle") << 3 << 1 << 3 << "e";
    QTest::newRow("first of a removed middle") << 1 << 1 << 3 << "e";
    QTest::newRow("last of a removed head") << 3 << 0 << 3 << "e";
    QTest::newRow("behind the removed") << 4 << 1 << 3 << "e";
    QTest::newRow("above the removed") << 0 << 1 << 4 << "a";
}

void TestExtraItemProxyComboModel::comboBoxStaysOnSourceRowsWhenItsRowGoes()
{
    QFETCH(int, current);
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QString, becomes);
    Bar bar({"a", "b", "c", "d", "e"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    combo.setCurrentIndex(current);
    const QPersistentModelIndex above = bar.proxy.index(0, 0);
    const QPersistentModelIndex below = bar.proxy.index(4, 0);
    QStringList visited;
    connect(&combo, &QComboBox::currentIndexChanged, this,
            [&](int index) { visited.append(combo.itemText(index)); });
    bar.source.removeRows(first, last - first + 1);
    QCOMPARE(combo.currentText(), becomes);
    QVERIFY(visited.isEmpty() || visited == QStringList{becomes});
    QCOMPARE(above.isValid(), first > 0);
    QCOMPARE(below.isValid(), last < 4);
    QCOMPARE(shown(bar.proxy), shown(bar.source) + " - Load");
}

void TestExtraItemProxyComboModel::comboBoxFallsBackToTheTextRow_data()
{
    QTest::addColumn<int>("current");
    QTest::newRow("first row") << 0;
    QTest::newRow("second row") << 1;
    QTest::newRow("last row") << 2;
    QTest::newRow("fixed entry") << 4;
}

void TestExtraItemProxyComboModel::comboBoxFallsBackToTheTextRow()
{
    QFETCH(int, current);
    Bar bar({"a", "b", "c"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    combo.setCurrentIndex(current);
    QStringList visited;
    connect(&combo, &QComboBox::currentIndexChanged, this,
            [&](int index) { visited.append(combo.itemText(index)); });
    bar.source.removeRows(0, 3);
    QCOMPARE(combo.currentText(), "Item");
    QCOMPARE(visited, (QStringList{"", "Item"}));
}

void TestExtraItemProxyComboModel::comboBoxKeepsItsRowWhenOthersChange()
{
    Bar bar({"a", "b", "c"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    combo.setCurrentIndex(1);
    bar.source.insertRow(0, itemRow("new"));
    QCOMPARE(combo.currentText(), "b");
    bar.source.removeRow(3);
    QCOMPARE(combo.currentText(), "b");
    combo.setCurrentIndex(combo.findText("Load"));
    bar.source.removeRow(0);
    QCOMPARE(combo.currentText(), "Load");
}

void TestExtraItemProxyComboModel::comboBoxSkipsTheSeparator()
{
    Bar bar({"a"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentText(), "Load");
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), "a");
}

void TestExtraItemProxyComboModel::comboBoxFindsFixedEntriesByValue()
{
    Bar bar({"a"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    QCOMPARE(combo.findData(-1), 2);
    QCOMPARE(combo.findData("A"), 0);
    QCOMPARE(combo.findData(-2), -1);
    bar.source.clear();
    QCOMPARE(combo.findData(-2), 0);
}

void TestExtraItemProxyComboModel::editableComboBoxCannotInsertRows()
{
    Bar bar({"a"});
    QComboBox combo;
    combo.setModel(&bar.proxy);
    combo.setEditable(true);
    combo.lineEdit()->setText("typed");
    QTest::keyClick(&combo, Qt::Key_Return);
    QCOMPARE(shown(bar.proxy), "a - Load");
}

void TestExtraItemProxyComboModel::sortedAndFilteredProxyStandsOnTop()
{
    Bar bar({"b", "a"});
    QSortFilterProxyModel sorted;
    QAbstractItemModelTester tester(&sorted, kFatal);
    sorted.setSourceModel(&bar.proxy);
    sorted.setFilterFixedString("a");
    QCOMPARE(shown(sorted), "a Load");
    sorted.setFilterFixedString({});
    sorted.sort(0);
    bar.source.appendRow(itemRow("c"));
    QCOMPARE(shown(sorted), "Load a b c -");
    bar.source.clear();
    QCOMPARE(shown(sorted), "Item Load -");
}

int main(int argc, char **argv)
{
    return runTest<TestExtraItemProxyComboModel>(argc, argv);
}

#include "tst_ExtraItemProxyComboModel.moc"
