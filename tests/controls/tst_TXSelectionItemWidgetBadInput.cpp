#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TXComboSeparatorDrawDelegate.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include <functional>
#include <limits>
#include <memory>

class TestTXSelectionItemWidgetBadInput : public TestBase
{
    Q_OBJECT

private slots:
    void modelChangesWhileTheBarEdits_data();
    void modelChangesWhileTheBarEdits();
    void modelDestroyedBeforeTheBar_data();
    void modelDestroyedBeforeTheBar();
    void proxyDestroyedBeforeTheBar();
    void delegateDestroyedBeforeTheBar();
    void destroyedModelIsNotShownAgain();
    void modelReplacedInASlot();
    void modelReplacedWhileTheProxyTakesItsSource();
    void modelDestroyedInASlot_data();
    void modelDestroyedInASlot();
    void selectionChangedInASlot();
    void rowsReplacedInASlotOfSelectItem();
    void itemsWithoutValues();
    void tenThousandEntries();
    void markupStaysAsItIs();
    void proxyThatIsItsOwnModelIsLeftOut();
    void columnOutOfRangeShowsNothing_data();
    void columnOutOfRangeShowsNothing();
    void sortedProxyKeepsSelection();
    void rowsOutOfRangeAreNoItems();
};

using Change = std::function<void(std::unique_ptr<QStandardItemModel> &model)>;

void TestTXSelectionItemWidgetBadInput::modelChangesWhileTheBarEdits_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isPopupOpen");
    for (const bool isPopupOpen : {false, true}) {
        const char *state = isPopupOpen ? "open" : "editing";
        QTest::addRow("shrinks, %s", state)
            << Change([](auto &model) { model->removeRows(1, 2); }) << isPopupOpen;
        QTest::addRow("is emptied, %s", state)
            << Change([](auto &model) { model->removeRows(0, 3); }) << isPopupOpen;
        QTest::addRow("is reset, %s", state)
            << Change([](auto &model) { model->clear(); }) << isPopupOpen;
        QTest::addRow("is filled anew, %s", state) << Change([](auto &model) {
            model->clear();
            model->appendRow(makeItem("New", 9));
        }) << isPopupOpen;
        QTest::addRow("loses its columns, %s", state)
            << Change([](auto &model) { model->setColumnCount(0); }) << isPopupOpen;
        QTest::addRow("vanishes, %s", state)
            << Change([](auto &model) { model.reset(); }) << isPopupOpen;
    }
}

void TestTXSelectionItemWidgetBadInput::modelChangesWhileTheBarEdits()
{
    QFETCH(Change, change);
    QFETCH(bool, isPopupOpen);
    for (const bool isLoadOffered : {true, false}) {
        std::unique_ptr<QStandardItemModel> model = std::make_unique<Presets>();
        TXSelectionItemWidget bar;
        bar.setImportViaComboBox(isLoadOffered);
        bar.setModel(model.get(), nullptr, nullptr);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        bar.startItemEdition();
        QTest::keyClicks(bar.itemComboBox(), "x");
        if (isPopupOpen) {
            bar.itemComboBox()->showPopup();
        }
        EmissionLog log(bar);
        change(model);
        QVERIFY(!log.take().contains("import"));
        if (isPopupOpen && !model && !isLoadOffered) {
            // What a list of Qt's says when it is shown and its model goes.
            QTest::ignoreMessage(QtWarningMsg,
                                 "QItemSelectionModel: Selecting when no model has "
                                 "been set will result in a no-op.");
        }
        QCoreApplication::processEvents();
        QVERIFY(bar.itemComboBox()->isEditable());
        QTest::keyClicks(bar.itemComboBox(), "y");
        QCOMPARE(log.take().size(), 1);
        bar.itemComboBox()->hidePopup();
        bar.endItemEdition();
        bar.selectItem(1);
        QCOMPARE(bar.existWithItemUserData(-1), isLoadOffered);
    }
}

void TestTXSelectionItemWidgetBadInput::modelDestroyedBeforeTheBar_data()
{
    QTest::addColumn<bool>("isLoadOffered");
    QTest::addColumn<bool>("isProxied");
    QTest::newRow("plain") << false << false;
    QTest::newRow("with Load") << true << false;
    QTest::newRow("proxy") << false << true;
    QTest::newRow("proxy with Load") << true << true;
}

void TestTXSelectionItemWidgetBadInput::modelDestroyedBeforeTheBar()
{
    QFETCH(bool, isLoadOffered);
    QFETCH(bool, isProxied);
    auto presets = std::make_unique<Presets>();
    QSortFilterProxyModel proxy;
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(isLoadOffered);
    bar.setModel(presets.get(), isProxied ? &proxy : nullptr, nullptr);
    EmissionLog log(bar);
    presets.reset();
    QVERIFY(!log.take().contains("import"));
    QVERIFY(!bar.existWithItemUserData(1));
    bar.selectItem(2);
    bar.updateComboBoxModel();
    bar.startItemEdition();
    bar.endItemEdition();
    bar.grab();

    Presets others;
    bar.setModel(&others, nullptr, nullptr);
    bar.selectItem(2);
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetBadInput::proxyDestroyedBeforeTheBar()
{
    Presets presets;
    for (const bool isLoadOffered : {true, false}) {
        auto proxy = std::make_unique<QSortFilterProxyModel>();
        TXSelectionItemWidget bar;
        bar.setImportViaComboBox(isLoadOffered);
        bar.setModel(&presets, proxy.get(), nullptr);
        EmissionLog log(bar);
        proxy.reset();
        QCOMPARE(bar.itemComboBox()->count(), 0);
        QVERIFY(!log.take().contains("import"));
        bar.updateComboBoxModel();
        QCOMPARE(shownNames(bar).mid(0, 3), QStringList({"Proof", "Press", "Draft"}));
    }
}

void TestTXSelectionItemWidgetBadInput::delegateDestroyedBeforeTheBar()
{
    Presets presets;
    auto delegate = std::make_unique<QStyledItemDelegate>();
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, delegate.get());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    bar.itemComboBox()->showPopup();
    delegate.reset();
    QCoreApplication::processEvents();
    bar.itemComboBox()->view()->grab();
    bar.itemComboBox()->hidePopup();
    bar.updateComboBoxModel();
    QVERIFY(qobject_cast<TXComboSeparatorDrawDelegate *>(bar.itemComboBox()->itemDelegate()));
}

void TestTXSelectionItemWidgetBadInput::destroyedModelIsNotShownAgain()
{
    TXSelectionItemWidget bar;
    {
        Presets presets;
        bar.setModel(&presets, nullptr, nullptr);
    }
    QCOMPARE(shownNames(bar), QStringList({"Item", "", "Load"}));
    bar.setImportViaComboBox(false);
    bar.setImportViaComboBox(true);
    QCOMPARE(shownNames(bar), QStringList({"Item", "", "Load"}));
}

void TestTXSelectionItemWidgetBadInput::modelReplacedInASlot()
{
    Presets presets;
    QStandardItemModel others;
    others.appendRow(makeItem("Other", 20));
    TXSelectionItemWidget bar;
    bool isReplaced = false;
    connect(&bar, &TXSelectionItemWidget::itemSelectionChanged, &bar, [&] {
        if (!isReplaced) {
            isReplaced = true;
            bar.setImportViaComboBox(false);
            bar.setModel(&others, nullptr, nullptr);
        }
    });
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(shownNames(bar), QStringList({"Other"}));
    QCOMPARE(bar.itemComboBox()->model(), &others);
    bar.updateComboBoxModel();
    QCOMPARE(shownNames(bar), QStringList({"Other"}));

    isReplaced = false;
    bar.setModel(&presets, nullptr, nullptr);
    QCOMPARE(bar.itemComboBox()->model(), &others);
}

void TestTXSelectionItemWidgetBadInput::modelReplacedWhileTheProxyTakesItsSource()
{
    Presets presets;
    Presets more;
    QStandardItemModel others;
    others.appendRow(makeItem("Other", 20));
    QSortFilterProxyModel proxy;
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(false);
    bar.setModel(&presets, &proxy, nullptr);
    bar.selectItem(3);
    bool isReplaced = false;
    connect(&bar, &TXSelectionItemWidget::itemSelectionChanged, &bar, [&] {
        if (!isReplaced) {
            isReplaced = true;
            bar.setModel(&others, nullptr, nullptr);
        }
    });
    bar.setModel(&more, &proxy, nullptr);
    QVERIFY(isReplaced);
    QCOMPARE(bar.itemComboBox()->model(), &others);
}

void TestTXSelectionItemWidgetBadInput::modelDestroyedInASlot_data()
{
    modelDestroyedBeforeTheBar_data();
}

void TestTXSelectionItemWidgetBadInput::modelDestroyedInASlot()
{
    QFETCH(bool, isLoadOffered);
    QFETCH(bool, isProxied);
    auto presets = std::make_unique<Presets>();
    QSortFilterProxyModel proxy;
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(isLoadOffered);
    connect(&bar, &TXSelectionItemWidget::itemSelectionChanged, &bar, [&] { presets.reset(); });
    bar.setModel(presets.get(), isProxied ? &proxy : nullptr, nullptr);
    QVERIFY(!presets);
    QVERIFY(!bar.existWithItemUserData(1));
    bar.updateComboBoxModel();
    bar.grab();
}

void TestTXSelectionItemWidgetBadInput::selectionChangedInASlot()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    connect(&bar, &TXSelectionItemWidget::itemSelectionChanged, &bar, [&](const QVariant &value) {
        if (!value.isValid()) {
            bar.itemComboBox()->setCurrentIndex(0);
        }
    });
    bar.selectItem(3);
    QCOMPARE(bar.getSelectedItemUserData(), 3);
    bar.selectItem(99);
    QCOMPARE(bar.getSelectedItemUserData(), 1);
}

void TestTXSelectionItemWidgetBadInput::rowsReplacedInASlotOfSelectItem()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    QVariant wanted = 3;
    connect(&bar, &TXSelectionItemWidget::itemSelectionChanged, &bar, [&](const QVariant &value) {
        if (!value.isValid()) {
            wanted.clear();
            presets.insertRow(0, makeItem("New", 9));
        }
    });
    bar.selectItem(wanted);
    QCOMPARE(bar.getSelectedItemUserData(), 3);
    QCOMPARE(bar.getSelectedItemName(), "Draft");
}

void TestTXSelectionItemWidgetBadInput::itemsWithoutValues()
{
    QStringListModel names({"one", "two", "two"});
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    bar.setModel(&names, nullptr, nullptr);
    QCOMPARE(log.take(), QStringList({"changed nothing"}));
    bar.itemComboBox()->setCurrentIndex(1);
    QCOMPARE(log.take(), QStringList({"changed nothing"}));
    bar.itemComboBox()->setCurrentIndex(2);
    QCOMPARE(log.take(), QStringList({"updated nothing"}));
    bar.selectItem(QVariant());
    QCOMPARE(bar.getSelectedItemName(), "one");
}

void TestTXSelectionItemWidgetBadInput::tenThousandEntries()
{
    QStandardItemModel items;
    for (int number = 0; number < 10000; ++number) {
        items.appendRow(makeItem(QString("Preset %1").arg(number), number));
    }
    TXSelectionItemWidget bar;
    bar.setModel(&items, nullptr, nullptr);
    for (const int number : {0, 5000, 9999}) {
        bar.selectItem(number);
        QCOMPARE(bar.getSelectedItemName(), QString("Preset %1").arg(number));
        QCOMPARE(bar.itemComboBox()->currentIndex(), number);
    }
    QCOMPARE(bar.itemComboBox()->count(), 10002);
    bar.selectItem(-1);
    QCOMPARE(bar.itemComboBox()->currentIndex(), 10001);
}

void TestTXSelectionItemWidgetBadInput::markupStaysAsItIs()
{
    const QString markup = "<b>bold</b> &amp; \"x\" <img src='file:///nowhere'>\n2";
    QStandardItemModel items;
    items.appendRow(makeItem(markup, markup));
    items.item(0)->setToolTip(markup);
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    bar.setModel(&items, nullptr, nullptr);
    QCOMPARE(bar.getSelectedItemName(), markup);
    QCOMPARE(bar.itemComboBox()->toolTip(), markup);
    QCOMPARE(log.take(), QStringList({"changed " + markup}));
    bar.selectItem(markup);
    QCOMPARE(bar.getSelectedItemUserData(), markup);
}

void TestTXSelectionItemWidgetBadInput::proxyThatIsItsOwnModelIsLeftOut()
{
    Presets presets;
    for (const bool isLoadOffered : {true, false}) {
        QSortFilterProxyModel proxy;
        QSortFilterProxyModel above;
        proxy.setSourceModel(&presets);
        above.setSourceModel(&proxy);
        TXSelectionItemWidget bar;
        bar.setImportViaComboBox(isLoadOffered);
        bar.setModel(&proxy, &proxy, nullptr);
        QCOMPARE(shownNames(bar).mid(0, 3), QStringList({"Proof", "Press", "Draft"}));
        bar.setModel(&above, &proxy, nullptr);
        QCOMPARE(shownNames(bar).mid(0, 3), QStringList({"Proof", "Press", "Draft"}));
    }
}

void TestTXSelectionItemWidgetBadInput::columnOutOfRangeShowsNothing_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("negative") << -1;
    QTest::newRow("one too many") << 1;
    QTest::newRow("huge") << std::numeric_limits<int>::max();
}

void TestTXSelectionItemWidgetBadInput::columnOutOfRangeShowsNothing()
{
    QFETCH(int, column);
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    EmissionLog log(bar);
    bar.setModelColumn(column);
    QCOMPARE(log.take(), QStringList({"changed nothing"}));
    QVERIFY(!bar.existWithItemUserData(1));
    QVERIFY(!bar.existWithItemUserData(QVariant()));
    bar.selectItem(1);
    QCOMPARE(bar.getSelectedItemName(), QString());
    bar.setModelColumn(0);
    bar.selectItem(1);
    QCOMPARE(bar.getSelectedItemName(), "Proof");
}

void TestTXSelectionItemWidgetBadInput::sortedProxyKeepsSelection()
{
    Presets presets;
    QSortFilterProxyModel proxy;
    TXSelectionItemWidget bar;
    bar.setImportViaComboBox(false);
    bar.setModel(&presets, &proxy, nullptr);
    bar.selectItem(2);
    EmissionLog log(bar);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(shownNames(bar), QStringList({"Proof", "Press", "Draft"}));
    proxy.sort(0);
    QCOMPARE(shownNames(bar), QStringList({"Draft", "Press", "Proof"}));
    QCOMPARE(bar.getSelectedItemUserData(), 2);
    presets.appendRow(makeItem("Archive", 5));
    QCOMPARE(bar.getSelectedItemUserData(), 2);
    proxy.setFilterFixedString("Draft");
    QCOMPARE(shownNames(bar), QStringList({"Draft"}));
    QCOMPARE(bar.getSelectedItemUserData(), 3);
}

void TestTXSelectionItemWidgetBadInput::rowsOutOfRangeAreNoItems()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.selectItem(99);
    EmissionLog log(bar);
    for (const int row : {-2, 5, std::numeric_limits<int>::max()}) {
        call(bar, "currentItemChanged", Q_ARG(int, row));
        QCOMPARE(log.take(), QStringList({"updated nothing"}));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetBadInput>(argc, argv);
}

#include "tst_TXSelectionItemWidgetBadInput.moc"
