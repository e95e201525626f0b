#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TXComboSeparatorDrawDelegate.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

class TestTXSelectionItemWidgetSelection : public TestBase
{
    Q_OBJECT

private slots:
    void barWithoutModelHasNothing();
    void setModelSelectsTheFirstItem();
    void emptyCollectionRequestsNothing();
    void collectionThatIsEmptiedRequestsNothing();
    void loadStandsBelowTheItems();
    void loadRequestsAnImportAndNothingElse();
    void loadStaysCurrentUntilAnotherItemIsSelected();
    void withoutLoadTheValueIsLikeAnyOther();
    void itemWithTheValueOfLoadRequestsAnImport_data();
    void itemWithTheValueOfLoadRequestsAnImport();
    void selectItemPassesThroughNothing();
    void selectItemStartsFromNothing();
    void unknownValueLeavesNothingSelected();
    void valuesAreComparedExactly();
    void searchTellsWhetherAnItemExists();
    void separatorIsNoItem();
    void searchAsksTheColumnOfTheNames();
    void sameItemAgainIsAnUpdate();
    void activatingTheCurrentItemIsNoChange();
    void noRowClearsWhatIsRemembered();
    void silentBarFollowsNothing();
    void toolTipIsThatOfTheItem();
    void toolTipIsReadInTheFirstColumn();
    void toolTipStaysWithoutSelection();
    void modelColumnHoldsTheNames();
    void proxyStandsBetween();
    void withoutLoadTheModelIsShownItself();
    void newSeparatorDelegateAtEachUpdate();
    void givenDelegateIsKept();
    void withoutLoadTheDelegateStays();
    void baseNameStandsInTheEmptyBox();
};

void TestTXSelectionItemWidgetSelection::barWithoutModelHasNothing()
{
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    bar.updateComboBoxModel();
    bar.setImportViaComboBox(false);
    bar.setImportViaComboBox(true);
    bar.setModel(nullptr, nullptr, nullptr);
    QCOMPARE(bar.itemComboBox()->count(), 0);
    QCOMPARE(bar.getSelectedItemUserData(), QVariant());
    QCOMPARE(bar.getSelectedItemName(), QString());
    QVERIFY(!bar.existWithItemUserData(1));
    QVERIFY(!bar.existWithItemUserData(QVariant()));
    bar.selectItem(1);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetSelection::setModelSelectsTheFirstItem()
{
    Presets presets;
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(log.take(), QStringList({"changed 1"}));
    QCOMPARE(bar.getSelectedItemName(), "Proof");
    QCOMPARE(bar.getSelectedItemUserData(), 1);
    bar.setModel(nullptr, nullptr, nullptr);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(bar.getSelectedItemName(), "Proof");
}

void TestTXSelectionItemWidgetSelection::emptyCollectionRequestsNothing()
{
    QStandardItemModel empty;
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    bar.setModel(&empty, nullptr, nullptr);
    QCOMPARE(bar.getSelectedItemName(), "Item");
    QCOMPARE(log.take(), QStringList({"changed -2"}));
    bar.updateComboBoxModel();
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetSelection::collectionThatIsEmptiedRequestsNothing()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    presets.removeRows(0, 2);
    QCOMPARE(log.take(), QStringList({"changed 3"}));
    presets.removeRow(0);
    QVERIFY(!log.take().contains("import"));
    QCOMPARE(bar.getSelectedItemUserData(), -2);
    presets.appendRow(makeItem("New", 4));
    QVERIFY(!log.take().contains("import"));
    QCOMPARE(bar.getSelectedItemUserData(), 4);
    presets.clear();
    QVERIFY(!log.take().contains("import"));
    QCOMPARE(bar.getSelectedItemUserData(), -2);
}

void TestTXSelectionItemWidgetSelection::loadStandsBelowTheItems()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Draft", "", "Load"}));
    QCOMPARE(bar.itemComboBox()->itemData(4), -1);
    QCOMPARE(bar.itemComboBox()->itemData(3, Qt::AccessibleDescriptionRole), "separator");
}

void TestTXSelectionItemWidgetSelection::loadRequestsAnImportAndNothingElse()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.itemComboBox()->setCurrentIndex(4);
    QCOMPARE(log.take(), QStringList({"import"}));
}

void TestTXSelectionItemWidgetSelection::loadStaysCurrentUntilAnotherItemIsSelected()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.selectItem(-1);
    QCOMPARE(log.take(), QStringList({"changed nothing", "import"}));
    QCOMPARE(bar.getSelectedItemUserData(), -1);
    QCOMPARE(bar.getSelectedItemName(), "Load");
    call(bar, "currentItemChanged", Q_ARG(int, 4));
    QCOMPARE(log.take(), QStringList({"updated -1"}));
    bar.itemComboBox()->setCurrentIndex(0);
    QCOMPARE(log.take(), QStringList({"changed 1"}));
}

void TestTXSelectionItemWidgetSelection::withoutLoadTheValueIsLikeAnyOther()
{
    QStandardItemModel items;
    items.appendRow(makeItem("Proof", 1));
    items.appendRow(makeItem("Below", -1));
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(false);
    bar.setModel(&items, nullptr, nullptr);
    EmissionLog log(bar);
    bar.itemComboBox()->setCurrentIndex(1);
    QCOMPARE(log.take(), QStringList({"changed -1"}));
}

void TestTXSelectionItemWidgetSelection::itemWithTheValueOfLoadRequestsAnImport_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("integer") << QVariant(-1) << "import";
    QTest::newRow("text") << QVariant("-1") << "import";
    QTest::newRow("long") << QVariant(qlonglong(-1)) << "import";
    QTest::newRow("fraction") << QVariant(-1.2) << "import";
    QTest::newRow("other text") << QVariant("-1a") << "changed -1a";
    QTest::newRow("zero") << QVariant(0) << "changed 0";
}

void TestTXSelectionItemWidgetSelection::itemWithTheValueOfLoadRequestsAnImport()
{
    QFETCH(QVariant, value);
    QFETCH(QString, emitted);
    QStandardItemModel items;
    items.appendRow(makeItem("Proof", 1));
    items.appendRow(makeItem("Mine", value));
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    EmissionLog log(bar);
    bar.itemComboBox()->setCurrentIndex(1);
    QCOMPARE(log.take(), QStringList({emitted}));
}

void TestTXSelectionItemWidgetSelection::selectItemPassesThroughNothing()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.selectItem(2);
    QCOMPARE(log.take(), QStringList({"changed nothing", "changed 2"}));
    bar.selectItem(2);
    QCOMPARE(log.take(), QStringList({"changed nothing", "changed 2"}));
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetSelection::selectItemStartsFromNothing()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.itemComboBox()->setCurrentIndex(-1);
    EmissionLog log(bar);
    bar.selectItem(3);
    QCOMPARE(log.take(), QStringList({"changed 3"}));
}

void TestTXSelectionItemWidgetSelection::unknownValueLeavesNothingSelected()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.selectItem(99);
    QCOMPARE(log.take(), QStringList({"changed nothing"}));
    QCOMPARE(bar.itemComboBox()->currentIndex(), -1);
    bar.selectItem(99);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetSelection::valuesAreComparedExactly()
{
    QStandardItemModel items;
    items.appendRow(makeItem("a", "Coated v3"));
    items.appendRow(makeItem("b", "coated"));
    items.appendRow(makeItem("c", "Coated"));
    items.appendRow(makeItem("d", "Coated"));
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    bar.selectItem("Coated");
    QCOMPARE(bar.getSelectedItemName(), "c");
    bar.selectItem("COATED");
    QCOMPARE(bar.itemComboBox()->currentIndex(), -1);
}

void TestTXSelectionItemWidgetSelection::searchTellsWhetherAnItemExists()
{
    Presets presets;
    presets.appendRow(makeItem("No value", QVariant()));
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    QVERIFY(bar.existWithItemUserData(1));
    QVERIFY(bar.existWithItemUserData(3));
    QVERIFY(bar.existWithItemUserData(-1));
    QVERIFY(bar.existWithItemUserData(QVariant()));
    QVERIFY(!bar.existWithItemUserData(-2));
    QVERIFY(!bar.existWithItemUserData(4));
    QVERIFY(!bar.existWithItemUserData("Proof"));
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetSelection::separatorIsNoItem()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    QVERIFY(!bar.existWithItemUserData(QVariant()));
    bar.selectItem(QVariant());
    QCOMPARE(bar.itemComboBox()->currentIndex(), -1);

    presets.appendRow(makeItem("No value", QVariant()));
    bar.selectItem(QVariant());
    QCOMPARE(bar.getSelectedItemName(), "No value");
}

void TestTXSelectionItemWidgetSelection::searchAsksTheColumnOfTheNames()
{
    QStandardItemModel items;
    items.appendRow({makeItem("key", 1), makeItem("Coated", 10)});
    items.appendRow({makeItem("key", 10), makeItem("Uncoated", 20)});
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    bar.setModelColumn(1);
    bar.selectItem(10);
    QCOMPARE(bar.getSelectedItemName(), "Coated");
    QVERIFY(!bar.existWithItemUserData(1));
    bar.selectItem(-1);
    QCOMPARE(bar.getSelectedItemName(), "Load");
}

void TestTXSelectionItemWidgetSelection::sameItemAgainIsAnUpdate()
{
    QStandardItemModel items;
    items.appendRow(makeItem("Twin", 7));
    items.appendRow(makeItem("Twin", 7));
    items.appendRow(makeItem("Twin", 8));
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    EmissionLog log(bar);
    bar.itemComboBox()->setCurrentIndex(1);
    QCOMPARE(log.take(), QStringList({"updated 7"}));
    bar.itemComboBox()->setCurrentIndex(2);
    QCOMPARE(log.take(), QStringList({"changed 8"}));
}

void TestTXSelectionItemWidgetSelection::activatingTheCurrentItemIsNoChange()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    EmissionLog log(bar);
    bar.itemComboBox()->showPopup();
    QTest::keyClick(bar.itemComboBox()->view(), Qt::Key_Return);
    QTRY_VERIFY(!bar.itemComboBox()->view()->isVisible());
    bar.itemComboBox()->setCurrentIndex(0);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetSelection::noRowClearsWhatIsRemembered()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.itemComboBox()->setCurrentIndex(-1);
    bar.itemComboBox()->setCurrentIndex(0);
    QCOMPARE(log.take(), QStringList({"changed nothing", "changed 1"}));
    call(bar, "currentItemChanged", Q_ARG(int, 0));
    QCOMPARE(log.take(), QStringList({"updated 1"}));
    call(bar, "currentItemChanged", Q_ARG(int, -1));
    call(bar, "currentItemChanged", Q_ARG(int, 0));
    QCOMPARE(log.take(), QStringList({"changed nothing", "changed 1"}));
}

void TestTXSelectionItemWidgetSelection::silentBarFollowsNothing()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.activateChangedSignal(false);
    bar.activateChangedSignal(false);
    presets.clear();
    presets.appendRow(makeItem("New", 5));
    bar.selectItem(-1);
    QCOMPARE(log.take(), QStringList());
    bar.activateChangedSignal(true);
    bar.activateChangedSignal(true);
    bar.selectItem(5);
    QCOMPARE(log.take(), QStringList({"changed nothing", "changed 5"}));
}

void TestTXSelectionItemWidgetSelection::toolTipIsThatOfTheItem()
{
    Presets presets;
    presets.item(1)->setToolTip("<b>Sheet-fed</b> & web");
    TXSelectionItemWidget bar;
    bar.itemComboBox()->setToolTip("set by the host");
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(bar.itemComboBox()->toolTip(), QString());
    bar.selectItem(2);
    QCOMPARE(bar.itemComboBox()->toolTip(), "<b>Sheet-fed</b> & web");
    bar.selectItem(3);
    QCOMPARE(bar.itemComboBox()->toolTip(), QString());
}

void TestTXSelectionItemWidgetSelection::toolTipIsReadInTheFirstColumn()
{
    QStandardItemModel items;
    items.appendRow({makeItem("key", 1), makeItem("Coated", 10)});
    items.appendRow({makeItem("key", 2), makeItem("Uncoated", 20)});
    items.item(1, 0)->setToolTip("first");
    items.item(1, 1)->setToolTip("second");
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    bar.setModelColumn(1);
    bar.selectItem(20);
    QCOMPARE(bar.itemComboBox()->toolTip(), "first");
}

void TestTXSelectionItemWidgetSelection::toolTipStaysWithoutSelection()
{
    Presets presets;
    presets.item(0)->setToolTip("of Proof");
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.selectItem(99);
    QCOMPARE(bar.itemComboBox()->toolTip(), "of Proof");
    bar.selectItem(-1);
    QCOMPARE(bar.itemComboBox()->toolTip(), QString());
}

void TestTXSelectionItemWidgetSelection::modelColumnHoldsTheNames()
{
    QStandardItemModel items;
    items.appendRow({makeItem("key", 1), makeItem("Coated", 10)});
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    bar.setModelColumn(1);
    QCOMPARE(shownNames(bar), QStringList({"Coated", "", "Load"}));
    QCOMPARE(bar.itemComboBox()->modelColumn(), 1);
}

void TestTXSelectionItemWidgetSelection::proxyStandsBetween()
{
    Presets presets;
    QSortFilterProxyModel proxy;
    proxy.setFilterRegularExpression("^P|Load");
    TXSelectionItemWidget bar;
    bar.setModel(&presets, &proxy, nullptr);
    QCOMPARE(bar.itemComboBox()->model(), &proxy);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Load"}));
    bar.selectItem(2);
    QCOMPARE(bar.getSelectedItemName(), "Press");
    QVERIFY(!bar.existWithItemUserData(3));

    bar.setImportViaComboBox(false);
    QCOMPARE(proxy.sourceModel(), &presets);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press"}));
    bar.setImportViaComboBox(true);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Load"}));
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Draft", "", "Load"}));
}

void TestTXSelectionItemWidgetSelection::withoutLoadTheModelIsShownItself()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(false);
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(bar.itemComboBox()->model(), &presets);
    bar.setImportViaComboBox(true);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Draft", "", "Load"}));
}

void TestTXSelectionItemWidgetSelection::newSeparatorDelegateAtEachUpdate()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    const QPointer<QAbstractItemDelegate> first = bar.itemComboBox()->itemDelegate();
    QVERIFY(qobject_cast<TXComboSeparatorDrawDelegate *>(first));
    QCOMPARE(first->parent(), &bar);
    bar.updateComboBoxModel();
    QVERIFY(bar.itemComboBox()->itemDelegate() != first);
    QVERIFY(first);
    QCOMPARE(bar.findChildren<TXComboSeparatorDrawDelegate *>(QString(), Qt::FindDirectChildrenOnly)
                 .size(),
             2);
    QStyleOptionViewItem option;
    option.widget = bar.itemComboBox()->view();
    const QModelIndex separator = bar.itemComboBox()->model()->index(3, 0);
    QCOMPARE(bar.itemComboBox()->itemDelegate()->sizeHint(option, separator), QSize(10, 10));
}

void TestTXSelectionItemWidgetSelection::givenDelegateIsKept()
{
    Presets presets;
    QStyledItemDelegate delegate;
    TXSelectionItemWidget bar;
    for (const bool isOffered : {true, false}) {
        bar.setImportViaComboBox(isOffered);
        bar.setModel(&presets, nullptr, &delegate);
        QCOMPARE(bar.itemComboBox()->itemDelegate(), &delegate);
        bar.updateComboBoxModel();
        QCOMPARE(bar.itemComboBox()->itemDelegate(), &delegate);
    }
    QVERIFY(bar.findChildren<TXComboSeparatorDrawDelegate *>().isEmpty());
}

void TestTXSelectionItemWidgetSelection::withoutLoadTheDelegateStays()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    QAbstractItemDelegate *const first = bar.itemComboBox()->itemDelegate();
    bar.setImportViaComboBox(false);
    bar.updateComboBoxModel();
    QCOMPARE(bar.itemComboBox()->itemDelegate(), first);
}

void TestTXSelectionItemWidgetSelection::baseNameStandsInTheEmptyBox()
{
    QStandardItemModel empty;
    TXSelectionItemWidget bar;
    bar.setItemBasedName(QString());
    bar.setModel(&empty, nullptr, nullptr);
    QCOMPARE(bar.getSelectedItemName(), "Item");
    bar.setItemBasedName("Preset <i>");
    QCOMPARE(bar.getSelectedItemName(), "Preset <i>");
    bar.setItemBasedName(QString());
    QCOMPARE(bar.getSelectedItemName(), "Preset <i>");
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetSelection>(argc, argv);
}

#include "tst_TXSelectionItemWidgetSelection.moc"
