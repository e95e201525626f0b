#include "ExtraItemProxyComboModel.h"

#include "ExtraItemProxyHelpers.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStringListModel>

using ExtraItemProxyTest::Bar;
using ExtraItemProxyTest::itemRow;
using ExtraItemProxyTest::kFatal;
using ExtraItemProxyTest::shown;

/// The rows, the exchange of the source, and the combo box above them.
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
    void labelsCanBeReplaced();
    void sourceCanBeReplacedAndTakenAway();
    void sameSourceAgainChangesNothing();
    void oldSourceIsNotFollowed();
    void sourceMayBeDestroyed();
    void itsOwnSourceIsIgnored();

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

void TestExtraItemProxyComboModel::labelsCanBeReplaced()
{
    Bar bar({"a"});
    QSignalSpy spy(&bar.proxy, &QAbstractItemModel::dataChanged);

    bar.proxy.setLabels({"Import", "one too many"});
    QCOMPARE(shown(bar.proxy), "a - Import");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).toModelIndex(), bar.proxy.index(2, 0));
    QCOMPARE(spy.first().at(1).toModelIndex(), bar.proxy.index(2, bar.proxy.columnCount() - 1));

    bar.proxy.setLabels({});
    QCOMPARE(shown(bar.proxy), "a - Import");
    QCOMPARE(spy.count(), 1);
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
