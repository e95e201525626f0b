#include "TestBase.h"
#include "WidgetStateHelpers.h"

#include <QDialog>
#include <QDockWidget>
#include <QListView>
#include <QTableWidget>
#include <QTreeWidget>

#include <algorithm>

using WidgetStateTest::entryAt;
using WidgetStateTest::kChildren;
using WidgetStateTest::keysOf;
using WidgetStateTest::kGeometry;
using WidgetStateTest::kHeaderState;
using WidgetStateTest::kHorizontal;
using WidgetStateTest::kState;
using WidgetStateTest::named;
using WidgetStateTest::restore;
using WidgetStateTest::saved;
using WidgetStateTest::State;
using WidgetStateTest::Window;

namespace {

bool everyValueIsPlain(const State &state)
{
    return std::all_of(state.cbegin(), state.cend(), [](const QVariant &value) {
        return value.typeId() == QMetaType::QByteArray
            || (value.typeId() == QMetaType::QVariantHash && everyValueIsPlain(value.toHash()));
    });
}

} // namespace

Q_DECLARE_METATYPE(QHeaderView::ResizeMode)

class TestWidgetStateSaving : public TestBase
{
    Q_OBJECT

private slots:
    void nullIsNotSaved();
    void entryStandsUnderTheObjectName();
    void entryOfTheSameNameIsReplacedAsAWhole();
    void plainWidgetKeepsItsGeometryOnly();
    void windowSplitterAndTreeMakeThreeLevels();
    void stateOfAMainWindowHasVersionZero();
    void tableKeepsItsHorizontalHeaderOnly_data();
    void tableKeepsItsHorizontalHeaderOnly();
    void tableWithAFixedHorizontalHeaderKeepsNoHeader();
    void oneFreeSectionIsEnough();
    void treeKeepsItsHeader();
    void headerWithoutSectionsIsNotKept();
    void convenienceViewsKeepTheirHeadersToo();
    void otherViewsKeepNoHeader();
    void laterSiblingOfTheSameNameWins();
    void unnamedSiblingsShareOneEntry();
    void objectsThatAreNoWidgetsAreLeftOut();
    void windowsBelowAreChildrenLikeAnyOther();
    void dictionaryHoldsPlainValuesOnly();
};

void TestWidgetStateSaving::nullIsNotSaved()
{
    State state{{QStringLiteral("other"), 1}};
    TXWidgetUtilities::saveWidgetStateInHash(nullptr, state);

    QCOMPARE(state, State({{QStringLiteral("other"), 1}}));
}

void TestWidgetStateSaving::entryStandsUnderTheObjectName()
{
    QWidget first;
    first.setObjectName(QStringLiteral("first"));
    QWidget unnamed;
    State state{{QStringLiteral("other"), 1}};
    TXWidgetUtilities::saveWidgetStateInHash(&first, state);
    TXWidgetUtilities::saveWidgetStateInHash(&unnamed, state);

    QCOMPARE(keysOf(state),
             QSet<QString>({QStringLiteral("other"), QStringLiteral("first"), QString()}));
    QCOMPARE(state.value(QStringLiteral("other")), QVariant(1));
}

void TestWidgetStateSaving::entryOfTheSameNameIsReplacedAsAWhole()
{
    QWidget widget;
    State state{{QString(), State{{QStringLiteral("old"), 1}}}};
    TXWidgetUtilities::saveWidgetStateInHash(&widget, state);

    QCOMPARE(keysOf(entryAt(state, {QString()})), QSet<QString>({kGeometry}));
}

void TestWidgetStateSaving::plainWidgetKeepsItsGeometryOnly()
{
    QWidget widget;
    widget.setGeometry(10, 20, 30, 40);

    QCOMPARE(entryAt(saved(&widget), {QString()}), State({{kGeometry, widget.saveGeometry()}}));
}

void TestWidgetStateSaving::windowSplitterAndTreeMakeThreeLevels()
{
    Window window;
    const State state = saved(&window.window);

    QCOMPARE(state.size(), 1);
    const State outer = entryAt(state, {QStringLiteral("window")});
    QCOMPARE(keysOf(outer), QSet<QString>({kGeometry, kState, kChildren}));
    QCOMPARE(outer.value(kState), QVariant(window.window.saveState(0)));

    const QStringList path{QStringLiteral("window"), QStringLiteral("splitter")};
    const State middle = entryAt(state, path);
    QCOMPARE(keysOf(middle), QSet<QString>({kGeometry, kState, kChildren}));
    QCOMPARE(middle.value(kState), QVariant(window.splitter->saveState()));

    const State inner = entryAt(state, path + QStringList(QStringLiteral("tree")));
    QVERIFY(!inner.contains(kState));
    QCOMPARE(inner.value(kHeaderState),
             QVariant(State{{kHorizontal, window.tree->header()->saveState()}}));
}

void TestWidgetStateSaving::stateOfAMainWindowHasVersionZero()
{
    Window window;
    const State state = saved(&window.window);
    const QByteArray bytes = entryAt(state, {QStringLiteral("window")}).value(kState).toByteArray();

    QVERIFY(window.window.restoreState(bytes, 0));
    QVERIFY(!window.window.restoreState(bytes, 1));

    // And it is asked for with version 0: one of another version is refused.
    QMainWindow other;
    other.setObjectName(QStringLiteral("window"));
    auto *dock = named<QDockWidget>("dock", &other);
    other.addDockWidget(Qt::LeftDockWidgetArea, dock);
    const QByteArray left = other.saveState(1);
    other.addDockWidget(Qt::RightDockWidgetArea, dock);
    restore(&other, {{QStringLiteral("window"), State{{kState, left}}}});
    QCOMPARE(other.dockWidgetArea(dock), Qt::RightDockWidgetArea);
}

void TestWidgetStateSaving::tableKeepsItsHorizontalHeaderOnly_data()
{
    QTest::addColumn<QHeaderView::ResizeMode>("vertical");
    QTest::newRow("free vertical header") << QHeaderView::Interactive;
    QTest::newRow("fixed vertical header") << QHeaderView::Fixed;
}

void TestWidgetStateSaving::tableKeepsItsHorizontalHeaderOnly()
{
    QFETCH(QHeaderView::ResizeMode, vertical);
    QStandardItemModel model(3, 3);
    QTableView table;
    table.setModel(&model);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    table.verticalHeader()->setSectionResizeMode(vertical);

    QCOMPARE(entryAt(saved(&table), {QString()}).value(kHeaderState),
             QVariant(State{{kHorizontal, table.horizontalHeader()->saveState()}}));
}

void TestWidgetStateSaving::tableWithAFixedHorizontalHeaderKeepsNoHeader()
{
    QStandardItemModel model(3, 3);
    QTableView table;
    table.setModel(&model);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Interactive);

    QVERIFY(!entryAt(saved(&table), {QString()}).contains(kHeaderState));
}

void TestWidgetStateSaving::oneFreeSectionIsEnough()
{
    QStandardItemModel model(1, 3);
    QTreeView tree;
    tree.setModel(&model);
    for (int free = 0; free < 3; ++free) {
        tree.header()->setSectionResizeMode(QHeaderView::Fixed);
        QVERIFY(!entryAt(saved(&tree), {QString()}).contains(kHeaderState));
        tree.header()->setSectionResizeMode(free, QHeaderView::ResizeToContents);
        QVERIFY(entryAt(saved(&tree), {QString()}).contains(kHeaderState));
    }
}

void TestWidgetStateSaving::treeKeepsItsHeader()
{
    QStandardItemModel model(1, 2);
    QTreeView tree;
    tree.setModel(&model);

    QCOMPARE(entryAt(saved(&tree), {QString()}).value(kHeaderState),
             QVariant(State{{kHorizontal, tree.header()->saveState()}}));
}

void TestWidgetStateSaving::headerWithoutSectionsIsNotKept()
{
    QStandardItemModel noColumns(3, 0);
    QTreeView tree;
    QTableView table;
    QVERIFY(!entryAt(saved(&tree), {QString()}).contains(kHeaderState));
    QVERIFY(!entryAt(saved(&table), {QString()}).contains(kHeaderState));

    tree.setModel(&noColumns);
    table.setModel(&noColumns);
    QVERIFY(!entryAt(saved(&tree), {QString()}).contains(kHeaderState));
    QVERIFY(!entryAt(saved(&table), {QString()}).contains(kHeaderState));
}

void TestWidgetStateSaving::convenienceViewsKeepTheirHeadersToo()
{
    QTableWidget table(2, 2);
    QTreeWidget tree;
    tree.setColumnCount(2);

    QVERIFY(entryAt(saved(&table), {QString()}).contains(kHeaderState));
    QVERIFY(entryAt(saved(&tree), {QString()}).contains(kHeaderState));
}

void TestWidgetStateSaving::otherViewsKeepNoHeader()
{
    QStandardItemModel model(2, 2);
    QListView list;
    list.setModel(&model);
    QHeaderView header(Qt::Horizontal);
    header.setModel(&model);

    QVERIFY(!entryAt(saved(&list), {QString()}).contains(kHeaderState));
    QVERIFY(!entryAt(saved(&header), {QString()}).contains(kHeaderState));
}

void TestWidgetStateSaving::laterSiblingOfTheSameNameWins()
{
    QWidget parent;
    auto *first = named<QWidget>("twin", &parent);
    auto *second = named<QWidget>("twin", &parent);
    named<QWidget>("inner", first);
    first->setGeometry(1, 2, 30, 40);
    second->setGeometry(5, 6, 70, 80);

    const State children = entryAt(saved(&parent), {QString()}).value(kChildren).toHash();

    QCOMPARE(children,
             State({{QStringLiteral("twin"), State{{kGeometry, second->saveGeometry()}}}}));
    first->raise();
    QCOMPARE(parent.children().constLast(), first);
    QVERIFY(entryAt(saved(&parent), {QString(), QStringLiteral("twin")}).contains(kChildren));
}

void TestWidgetStateSaving::unnamedSiblingsShareOneEntry()
{
    QWidget parent;
    parent.setObjectName(QStringLiteral("parent"));
    new QWidget(&parent);
    auto *last = new QWidget(&parent);
    last->setGeometry(5, 6, 70, 80);

    QCOMPARE(entryAt(saved(&parent), {QStringLiteral("parent")}).value(kChildren).toHash(),
             State({{QString(), State{{kGeometry, last->saveGeometry()}}}}));
}

void TestWidgetStateSaving::objectsThatAreNoWidgetsAreLeftOut()
{
    QWidget parent;
    auto *object = new QObject(&parent);
    object->setObjectName(QStringLiteral("object"));
    QVERIFY(!entryAt(saved(&parent), {QString()}).contains(kChildren));

    named<QWidget>("widget", &parent);
    const State children = entryAt(saved(&parent), {QString()}).value(kChildren).toHash();
    QCOMPARE(children.keys(), QStringList(QStringLiteral("widget")));

    // Nor is an entry of its name of any use to it.
    restore(&parent,
            {{QString(),
              State{{kChildren,
                     State{{QStringLiteral("object"), State{{kGeometry, QByteArray()}}}}}}}});
}

void TestWidgetStateSaving::windowsBelowAreChildrenLikeAnyOther()
{
    QWidget parent;
    auto *dialog = named<QDialog>("dialog", &parent);
    dialog->resize(123, 45);
    const State state = saved(&parent);
    QVERIFY(entryAt(state, {QString(), QStringLiteral("dialog")}).contains(kGeometry));

    dialog->resize(200, 200);
    restore(&parent, state);
    QCOMPARE(dialog->size(), QSize(123, 45));
}

void TestWidgetStateSaving::dictionaryHoldsPlainValuesOnly()
{
    Window window;
    const State state = saved(&window.window);
    QVERIFY(!state.isEmpty());
    QVERIFY(everyValueIsPlain(state));
}

int main(int argc, char **argv)
{
    return runTest<TestWidgetStateSaving>(argc, argv);
}

#include "tst_WidgetStateSaving.moc"
