#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTimer>

#include <functional>

// A host may destroy the bar in a slot of each of its signals.

using Bar = TXSelectionItemWidget;
using Act = std::function<void(Bar &bar)>;
using Attach = std::function<void(Bar &bar, const std::function<void()> &slot)>;

namespace {

template<class Signal>
Attach to(Signal signal)
{
    return [signal](Bar &bar, const std::function<void()> &slot) {
        QObject::connect(&bar, signal, qApp, [slot] { slot(); });
    };
}

void chooseFirstEntry(Bar &bar)
{
    QTimer::singleShot(0, &bar, [menu = menuButton(bar)->menu()] {
        menu->setActiveAction(menu->actions().constFirst());
        QTest::keyPress(menu, Qt::Key_Return);
    });
    // Opens the menu and comes back when it has closed, perhaps without the button.
    QTest::mousePress(menuButton(bar), Qt::LeftButton);
}

void choosePopupRow(Bar &bar, int row)
{
    QComboBox *const box = bar.itemComboBox();
    box->showPopup();
    QAbstractItemView *const view = box->view();
    QTest::keyClick(view, Qt::Key_Home);
    for (int step = 0; step < row; ++step) {
        QTest::keyClick(view, Qt::Key_Down);
    }
    QTest::keyPress(view, Qt::Key_Return);
}

void addRow(const char *name, const Attach &attach, const Act &act)
{
    QTest::newRow(name) << attach << act;
}

} // namespace

class TestTXSelectionItemWidgetDestruction : public TestBase
{
    Q_OBJECT

private slots:
    void barMayBeDestroyedInItsSignal_data();
    void barMayBeDestroyedInItsSignal();
    void barMayBeDestroyedByAChangeOfTheModel_data();
    void barMayBeDestroyedByAChangeOfTheModel();
    void barMayBeDestroyedWhileItTakesAModel_data();
    void barMayBeDestroyedWhileItTakesAModel();
    void nothingIsLeftOfADestroyedBar();
};

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedInItsSignal_data()
{
    QTest::addColumn<Attach>("attach");
    QTest::addColumn<Act>("act");
    const auto click = [](QPushButton *(Bar::*button)()) {
        return [button](Bar &bar) {
            QTest::mouseClick((bar.*button)(), Qt::LeftButton);
        };
    };
    const Attach general = to(qOverload<QAction *>(&Bar::importItemHasBeenRequest));
    const Attach import = to(qOverload<>(&Bar::importItemHasBeenRequest));
    addRow("add", to(&Bar::addNewItemHasBeenRequest), click(&Bar::addNewItemButton));
    addRow("add by menu", to(&Bar::addNewItemHasBeenRequest), chooseFirstEntry);
    addRow("entry of the menu", general, chooseFirstEntry);
    addRow("remove", to(&Bar::removeItemHasBeenRequest), click(&Bar::removeItemButton));
    addRow("duplicate", to(&Bar::duplicateItemHasBeenRequest), click(&Bar::duplicateItemButton));
    addRow("import", import, click(&Bar::importItemButton));
    addRow("export", to(&Bar::exportItemHasBeenRequest), click(&Bar::exportItemButton));
    addRow("edit", to(&Bar::editItemHasBeenRequest), click(&Bar::editItemButton));
    addRow("edit, by key", to(&Bar::editItemHasBeenRequest),
           [](Bar &bar) { QTest::keyClick(bar.editItemButton(), Qt::Key_Space); });
    addRow("save", to(&Bar::saveItemHasBeenRequest), click(&Bar::saveItemButton));
    addRow("name", to(&Bar::itemNameChanged), [](Bar &bar) {
        bar.startItemEdition();
        QTest::keyPress(bar.itemComboBox(), Qt::Key_X, Qt::NoModifier);
    });
    addRow("import by the box", import, [](Bar &bar) { bar.itemComboBox()->setCurrentIndex(4); });
    addRow("import by the list", import, [](Bar &bar) { choosePopupRow(bar, 4); });
    addRow("import by the key", import,
           [](Bar &bar) { QTest::keyPress(bar.itemComboBox(), Qt::Key_End); });
    const Attach changed = to(&Bar::itemSelectionChanged);
    addRow("changed", changed, [](Bar &bar) { bar.itemComboBox()->setCurrentIndex(1); });
    addRow("changed by the list", changed, [](Bar &bar) { choosePopupRow(bar, 2); });
    addRow("changed while editing", changed, [](Bar &bar) {
        bar.startItemEdition();
        bar.itemComboBox()->setCurrentIndex(1);
    });
    addRow("changed to nothing", changed, [](Bar &bar) { bar.selectItem(2); });
    addRow("changed by the slot", changed,
           [](Bar &bar) { call(bar, "currentItemChanged", Q_ARG(int, 2)); });
    addRow("updated", to(&Bar::itemSelectionUpdated),
           [](Bar &bar) { call(bar, "currentItemChanged", Q_ARG(int, 0)); });
}

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedInItsSignal()
{
    QFETCH(Attach, attach);
    QFETCH(Act, act);
    Presets presets;
    QPointer<Bar> bar = new Bar(nullptr);
    bar->setModel(&presets, nullptr, nullptr);
    bar->setVisibleImportButton(true);
    bar->show();
    QVERIFY(QTest::qWaitForWindowActive(bar));
    attach(*bar, [bar] { delete bar.data(); });
    act(*bar);
    QVERIFY(!bar);
}

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedByAChangeOfTheModel_data()
{
    using Change = std::function<void(QStandardItemModel & model)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("row removed") << Change([](QStandardItemModel &model) { model.removeRow(0); });
    QTest::newRow("all removed") << Change(
        [](QStandardItemModel &model) { model.removeRows(0, model.rowCount()); });
    QTest::newRow("tail removed") << Change(
        [](QStandardItemModel &model) { model.removeRows(0, 2); });
    QTest::newRow("reset") << Change([](QStandardItemModel &model) { model.clear(); });
    QTest::newRow("inserted before") << Change([](QStandardItemModel &model) {
        model.insertRow(0, makeItem("New", 9));
        model.removeRow(1);
    });
}

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedByAChangeOfTheModel()
{
    using Change = std::function<void(QStandardItemModel & model)>;
    QFETCH(Change, change);
    for (const bool isLoadOffered : {true, false}) {
        for (const bool isProxied : {true, false}) {
            Presets presets;
            QSortFilterProxyModel proxy;
            QPointer<Bar> bar = new Bar(nullptr);
            bar->setImportViaComboBox(isLoadOffered);
            bar->setModel(&presets, isProxied ? &proxy : nullptr, nullptr);
            to (&Bar::itemSelectionChanged)(*bar, [bar] { delete bar.data(); });
            to (&Bar::itemSelectionUpdated)(*bar, [bar] { delete bar.data(); });
            change(presets);
            QVERIFY(!bar);
        }
    }
}

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedWhileItTakesAModel_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("other model") << Act([](Bar &bar) {
        static QStandardItemModel other;
        bar.setModel(&other, nullptr, nullptr);
    });
    QTest::newRow("proxy") << Act([](Bar &bar) {
        static Presets other;
        static QSortFilterProxyModel proxy;
        bar.setModel(&other, &proxy, nullptr);
    });
    QTest::newRow("without Load") << Act([](Bar &bar) { bar.setImportViaComboBox(false); });
    QTest::newRow("other column") << Act([](Bar &bar) { bar.setModelColumn(7); });
}

void TestTXSelectionItemWidgetDestruction::barMayBeDestroyedWhileItTakesAModel()
{
    QFETCH(Act, act);
    Presets presets;
    QPointer<Bar> bar = new Bar(nullptr);
    bar->setModel(&presets, nullptr, nullptr);
    to (&Bar::itemSelectionChanged)(*bar, [bar] { delete bar.data(); });
    to (&Bar::itemSelectionUpdated)(*bar, [bar] { delete bar.data(); });
    act(*bar);
    QVERIFY(!bar);
}

void TestTXSelectionItemWidgetDestruction::nothingIsLeftOfADestroyedBar()
{
    Presets presets;
    auto *bar = new Bar(nullptr);
    bar->setModel(&presets, nullptr, nullptr);
    const QPointer<QComboBox> box = bar->itemComboBox();
    const QPointer<QAbstractItemModel> entries = box->model();
    to (&Bar::itemSelectionChanged)(*bar, [bar] { delete bar; });
    box->setCurrentIndex(1);
    QVERIFY(box);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!box);
    QVERIFY(!entries);

    auto quiet = std::make_unique<Bar>();
    const QPointer<QComboBox> quietBox = quiet->itemComboBox();
    quiet.reset();
    QVERIFY(!quietBox);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetDestruction>(argc, argv);
}

#include "tst_TXSelectionItemWidgetDestruction.moc"
