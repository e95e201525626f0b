#include "TXWidgetUtilities.h"

#include "TestBase.h"

#include <QDateTimeEdit>
#include <QDialog>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSettings>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

using State = QHash<QString, QVariant>;

const QString kGeometry = QStringLiteral("geometry");
const QString kState = QStringLiteral("state");
const QString kHeaderState = QStringLiteral("headerState");
const QString kHorizontal = QStringLiteral("horizontalState");
const QString kVertical = QStringLiteral("verticalState");
const QString kChildren = QStringLiteral("children");

template<class Widget>
Widget *named(const char *name, QWidget *parent = nullptr)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

State saved(QWidget *widget)
{
    State state;
    TXWidgetUtilities::saveWidgetStateInHash(widget, state);
    return state;
}

void restore(QWidget *widget, const State &state)
{
    TXWidgetUtilities::restoreWidgetStateInHash(widget, state);
}

/// The entry of the widget that is reached by these names from the outermost one.
State entryAt(const State &state, const QStringList &names)
{
    State entry = state.value(names.constFirst()).toHash();
    for (const QString &name : names.mid(1)) {
        entry = entry.value(kChildren).toHash().value(name).toHash();
    }
    return entry;
}

QSet<QString> keysOf(const State &state)
{
    const QStringList keys = state.keys();
    return {keys.cbegin(), keys.cend()};
}

/// A window with a splitter with a tree beside a table.
class Window
{
public:
    explicit Window(bool isShown = true)
        : splitter(named<QSplitter>("splitter"))
        , tree(named<QTreeView>("tree"))
        , table(named<QTableView>("table"))
        , model(3, 4)
    {
        window.setObjectName(QStringLiteral("window"));
        window.resize(400, 300);
        window.setCentralWidget(splitter);
        splitter->addWidget(tree);
        splitter->addWidget(table);
        tree->setModel(&model);
        tree->setSortingEnabled(true);
        table->setModel(&model);
        window.setVisible(isShown);
    }

    void change()
    {
        window.resize(500, 350);
        splitter->setSizes({1000, 300});
        tree->header()->resizeSection(1, 44);
        tree->sortByColumn(2, Qt::AscendingOrder);
        table->horizontalHeader()->resizeSection(1, 66);
        table->verticalHeader()->resizeSection(1, 50);
        deliver();
    }

    static void deliver() { QCoreApplication::processEvents(); }

    QMainWindow window;
    QSplitter *splitter;
    QTreeView *tree;
    QTableView *table;
    QStandardItemModel model;
};

bool everyValueIsPlain(const State &state)
{
    return std::all_of(state.cbegin(), state.cend(), [](const QVariant &value) {
        return value.typeId() == QMetaType::QByteArray
            || (value.typeId() == QMetaType::QVariantHash && everyValueIsPlain(value.toHash()));
    });
}

/// Puts a value in the place of each value of the dictionary in turn, at all depths, and hands each
/// changed dictionary on.
void forEachReplaced(const State &state, const std::function<QVariant(const QVariant &)> &change,
                     const std::function<void(const State &)> &use)
{
    for (auto value = state.cbegin(); value != state.cend(); ++value) {
        State changed = state;
        changed.insert(value.key(), change(value.value()));
        use(changed);
        if (value->typeId() == QMetaType::QVariantHash) {
            forEachReplaced(value->toHash(), change, [&](const State &inner) {
                changed.insert(value.key(), inner);
                use(changed);
            });
        }
    }
}

/// What is kept of windows, splitters and headers, without the places of widgets, which layouts
/// have the last word on.
State withoutGeometries(const State &state)
{
    State rest;
    for (auto value = state.cbegin(); value != state.cend(); ++value) {
        if (value->typeId() == QMetaType::QVariantHash) {
            rest.insert(value.key(), withoutGeometries(value->toHash()));
        } else if (value.key() != kGeometry) {
            rest.insert(value.key(), value.value());
        }
    }
    return rest;
}

/// What the rules say of one widget, written down a second time as plainly as can be.
State modelOf(QWidget *widget)
{
    State entry;
    entry[kGeometry] = widget->saveGeometry();
    if (widget->inherits("QMainWindow")) {
        entry[kState] = static_cast<QMainWindow *>(widget)->saveState(0);
    }
    if (widget->inherits("QSplitter")) {
        entry[kState] = static_cast<QSplitter *>(widget)->saveState();
    }
    QHeaderView *header = nullptr;
    if (widget->inherits("QTableView")) {
        header = static_cast<QTableView *>(widget)->horizontalHeader();
    }
    if (widget->inherits("QTreeView")) {
        header = static_cast<QTreeView *>(widget)->header();
    }
    if (header) {
        int free = 0;
        for (int i = 0; i < header->count(); ++i) {
            free += header->sectionResizeMode(i) == QHeaderView::Fixed ? 0 : 1;
        }
        if (free > 0) {
            entry[kHeaderState] = State{{kHorizontal, header->saveState()}};
        }
    }
    State children;
    const auto direct = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : direct) {
        children[child->objectName()] = modelOf(child);
    }
    if (!children.isEmpty()) {
        entry[kChildren] = children;
    }
    return entry;
}

/// Grows trees of widgets, and shakes them.
class RandomTree
{
public:
    explicit RandomTree(quint32 seed)
        : random(seed)
    {
        root = std::unique_ptr<QWidget>(grow(nullptr, 4));
        root->resize(600, 500);
        root->show();
        QCoreApplication::processEvents();
        shake();
    }

    /// Gives all that is kept other values.
    void shake()
    {
        for (QWidget *plain : std::as_const(plains)) {
            // Qt restores nothing to where it would hide a title bar.
            plain->setGeometry(number(200), 30 + number(200), 10 + number(200), 10 + number(200));
        }
        for (QSplitter *splitter : std::as_const(splitters)) {
            QList<int> sizes;
            for (int i = 0; i < splitter->count(); ++i) {
                sizes.append(50 + number(200));
            }
            splitter->setSizes(sizes);
        }
        for (QHeaderView *header : std::as_const(headers)) {
            for (int i = 0; i < header->count(); ++i) {
                header->resizeSection(i, 30 + number(100));
            }
            if (header->count() > 1) {
                header->moveSection(number(header->count()), number(header->count()));
                header->setSortIndicator(number(header->count()), Qt::DescendingOrder);
            }
        }
        QCoreApplication::processEvents();
    }

    /// Where the widgets without a layout are.
    QList<QRect> places() const
    {
        QList<QRect> rects;
        for (const QWidget *plain : plains) {
            rects.append(plain->geometry());
        }
        return rects;
    }

    std::unique_ptr<QWidget> root;

private:
    int number(int below) { return int(random.bounded(below)); }

    QWidget *grow(QWidget *parent, int depth)
    {
        QWidget *widget = make(parent, depth > 0 ? number(5) : 2 + number(3), depth);
        widget->setObjectName(QStringLiteral("widget %1").arg(++count));
        return widget;
    }

    QWidget *make(QWidget *parent, int kind, int depth)
    {
        switch (kind) {
        case 0:
            return makeWindow(parent, depth);
        case 1:
            return makeSplitter(parent, depth);
        case 2:
            return makeTree(parent);
        case 3:
            return makeTable(parent);
        default:
            return makePlain(parent, depth);
        }
    }

    QWidget *makeWindow(QWidget *parent, int depth)
    {
        auto *window = new QMainWindow(parent);
        window->setWindowFlags(Qt::Widget);
        window->setCentralWidget(grow(window, depth - 1));
        auto *dock = new QDockWidget(window);
        dock->setObjectName(QStringLiteral("dock %1").arg(++count));
        dock->setWidget(grow(dock, depth - 1));
        window->addDockWidget(Qt::LeftDockWidgetArea, dock);
        return window;
    }

    QWidget *makeSplitter(QWidget *parent, int depth)
    {
        auto *splitter = new QSplitter(number(2) ? Qt::Vertical : Qt::Horizontal, parent);
        for (int i = 1 + number(3); i > 0; --i) {
            splitter->addWidget(grow(splitter, depth - 1));
        }
        splitters.append(splitter);
        return splitter;
    }

    QWidget *makeTree(QWidget *parent)
    {
        auto *tree = new QTreeView(parent);
        tree->setModel(makeModel(tree));
        mix(tree->header());
        return tree;
    }

    QWidget *makeTable(QWidget *parent)
    {
        auto *table = new QTableView(parent);
        table->setModel(makeModel(table));
        mix(table->horizontalHeader());
        return table;
    }

    QStandardItemModel *makeModel(QWidget *view)
    {
        return new QStandardItemModel(number(3), number(4), view);
    }

    /// A header of fixed sections, of free ones, or of both.
    void mix(QHeaderView *header)
    {
        const int kind = number(3);
        header->setSectionsMovable(true);
        header->setStretchLastSection(false);
        for (int i = 0; i < header->count(); ++i) {
            const bool isFixed = kind == 0 || (kind == 1 && i != header->count() - 1);
            header->setSectionResizeMode(i,
                                         isFixed ? QHeaderView::Fixed : QHeaderView::Interactive);
        }
        if (kind != 0) {
            headers.append(header);
        }
    }

    QWidget *makePlain(QWidget *parent, int depth)
    {
        auto *plain = new QWidget(parent);
        for (int i = depth > 0 ? number(4) : 0; i > 0; --i) {
            QWidget *child = grow(plain, depth - 1);
            plains.append(child);
        }
        return plain;
    }

    QRandomGenerator random;
    int count = 0;
    QList<QWidget *> plains;
    QList<QSplitter *> splitters;
    QList<QHeaderView *> headers;
};

/// Deletes another widget when it is resized.
class Deleter : public QWidget
{
public:
    using QWidget::QWidget;
    QPointer<QWidget> victim;

protected:
    void resizeEvent(QResizeEvent *) override { delete victim; }
};

/// Writes its name down when it is resized.
class Recorder : public QWidget
{
public:
    Recorder(const QString &name, QStringList *log, QWidget *parent)
        : QWidget(parent)
        , log(log)
    {
        setObjectName(name);
    }

protected:
    void resizeEvent(QResizeEvent *) override { log->append(objectName()); }

private:
    QStringList *log;
};

} // namespace

Q_DECLARE_METATYPE(QHeaderView::ResizeMode)

class TestTXWidgetUtilities : public TestBase
{
    Q_OBJECT

private slots:
    void nullIsNotSaved();
    void nullIsNotRestored();
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

    void roundTripBringsEverythingBack();
    void roundTripThroughSettingsBringsEverythingBack();
    void layoutsHaveTheLastWordWhenRestoredBeforeShowing();
    void childAtTheUpperEdgeIsMovedAsAWindowWouldBe();
    void widgetWithoutAnEntryStopsTheDescent();
    void emptyEntryStopsTheDescent();
    void entryWithoutGeometryRestoresTheRest();
    void stateIsForWindowsAndSplittersOnly();
    void headerThatBecameFixedIgnoresItsState();
    void tableTakesAVerticalStateWhenThereIsNoHorizontalOne();
    void verticalHeaderThatBecameFixedIgnoresItsState();
    void horizontalStateKeepsTheVerticalOneOut();
    void fixedHorizontalHeaderKeepsTheVerticalStateOut();
    void treeTakesNoVerticalState();
    void headerStateIsForTablesAndTreesOnly();
    void siblingsOfTheSameNameAllTakeItsEntry();
    void childrenAreRestoredInTheirOrder();
    void siblingMayBeDeletedWhileRestoring();

    void valueOfAnotherTypeDoesNoHarm_data();
    void valueOfAnotherTypeDoesNoHarm();
    void bytesThatAreCutShortDoNoHarm();
    void bytesOfAnotherWidgetDoNoHarm();
    void deepNestingIsKept();
    void randomTreesAreSavedByTheRulesAndRestored_data();
    void randomTreesAreSavedByTheRulesAndRestored();

    void largestLabelDecides();
    void labelsArePolished();
    void largestButtonDecides();
    void buttonsAreMeasuredWithTwoBlanksAtEachSide_data();
    void buttonsAreMeasuredWithTwoBlanksAtEachSide();
    void buttonsAreNotPolished();
    void widthAndHeightMayComeFromDifferentWidgets();
    void emptyListsNeedNoRoom();
    void buttonsGetTheFixedWidth();
    void buttonsGetTheFixedSize();
    void disabledSpinBoxLooksLikeAPlainValue_data();
    void disabledSpinBoxLooksLikeAPlainValue();
    void spinBoxInADisabledParentIsDisabled();
    void nullSpinBoxIsIgnored();
};

void TestTXWidgetUtilities::nullIsNotSaved()
{
    State state{{QStringLiteral("other"), 1}};
    TXWidgetUtilities::saveWidgetStateInHash(nullptr, state);

    QCOMPARE(state, State({{QStringLiteral("other"), 1}}));
}

void TestTXWidgetUtilities::nullIsNotRestored()
{
    restore(nullptr, {});
    restore(nullptr, {{QString(), State{{kGeometry, QByteArray("x")}}}});
}

void TestTXWidgetUtilities::entryStandsUnderTheObjectName()
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

void TestTXWidgetUtilities::entryOfTheSameNameIsReplacedAsAWhole()
{
    QWidget widget;
    State state{{QString(), State{{QStringLiteral("old"), 1}}}};
    TXWidgetUtilities::saveWidgetStateInHash(&widget, state);

    QCOMPARE(keysOf(entryAt(state, {QString()})), QSet<QString>({kGeometry}));
}

void TestTXWidgetUtilities::plainWidgetKeepsItsGeometryOnly()
{
    QWidget widget;
    widget.setGeometry(10, 20, 30, 40);

    QCOMPARE(entryAt(saved(&widget), {QString()}), State({{kGeometry, widget.saveGeometry()}}));
}

void TestTXWidgetUtilities::windowSplitterAndTreeMakeThreeLevels()
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

void TestTXWidgetUtilities::stateOfAMainWindowHasVersionZero()
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

void TestTXWidgetUtilities::tableKeepsItsHorizontalHeaderOnly_data()
{
    QTest::addColumn<QHeaderView::ResizeMode>("vertical");
    QTest::newRow("free vertical header") << QHeaderView::Interactive;
    QTest::newRow("fixed vertical header") << QHeaderView::Fixed;
}

void TestTXWidgetUtilities::tableKeepsItsHorizontalHeaderOnly()
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

void TestTXWidgetUtilities::tableWithAFixedHorizontalHeaderKeepsNoHeader()
{
    QStandardItemModel model(3, 3);
    QTableView table;
    table.setModel(&model);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Interactive);

    QVERIFY(!entryAt(saved(&table), {QString()}).contains(kHeaderState));
}

void TestTXWidgetUtilities::oneFreeSectionIsEnough()
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

void TestTXWidgetUtilities::treeKeepsItsHeader()
{
    QStandardItemModel model(1, 2);
    QTreeView tree;
    tree.setModel(&model);

    QCOMPARE(entryAt(saved(&tree), {QString()}).value(kHeaderState),
             QVariant(State{{kHorizontal, tree.header()->saveState()}}));
}

void TestTXWidgetUtilities::headerWithoutSectionsIsNotKept()
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

void TestTXWidgetUtilities::convenienceViewsKeepTheirHeadersToo()
{
    QTableWidget table(2, 2);
    QTreeWidget tree;
    tree.setColumnCount(2);

    QVERIFY(entryAt(saved(&table), {QString()}).contains(kHeaderState));
    QVERIFY(entryAt(saved(&tree), {QString()}).contains(kHeaderState));
}

void TestTXWidgetUtilities::otherViewsKeepNoHeader()
{
    QStandardItemModel model(2, 2);
    QListView list;
    list.setModel(&model);
    QHeaderView header(Qt::Horizontal);
    header.setModel(&model);

    QVERIFY(!entryAt(saved(&list), {QString()}).contains(kHeaderState));
    QVERIFY(!entryAt(saved(&header), {QString()}).contains(kHeaderState));
}

void TestTXWidgetUtilities::laterSiblingOfTheSameNameWins()
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

void TestTXWidgetUtilities::unnamedSiblingsShareOneEntry()
{
    QWidget parent;
    parent.setObjectName(QStringLiteral("parent"));
    new QWidget(&parent);
    auto *last = new QWidget(&parent);
    last->setGeometry(5, 6, 70, 80);

    QCOMPARE(entryAt(saved(&parent), {QStringLiteral("parent")}).value(kChildren).toHash(),
             State({{QString(), State{{kGeometry, last->saveGeometry()}}}}));
}

void TestTXWidgetUtilities::objectsThatAreNoWidgetsAreLeftOut()
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

void TestTXWidgetUtilities::windowsBelowAreChildrenLikeAnyOther()
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

void TestTXWidgetUtilities::dictionaryHoldsPlainValuesOnly()
{
    Window window;
    const State state = saved(&window.window);
    QVERIFY(!state.isEmpty());
    QVERIFY(everyValueIsPlain(state));
}

void TestTXWidgetUtilities::roundTripBringsEverythingBack()
{
    Window window;
    window.change();
    const State state = saved(&window.window);
    const QList<int> sizes = window.splitter->sizes();

    window.window.resize(300, 200);
    window.splitter->setSizes({100, 1000});
    window.tree->header()->resizeSection(1, 99);
    window.tree->sortByColumn(0, Qt::DescendingOrder);
    window.table->horizontalHeader()->resizeSection(1, 99);
    window.table->verticalHeader()->resizeSection(1, 40);
    Window::deliver();
    QVERIFY(window.splitter->sizes() != sizes);
    restore(&window.window, state);
    Window::deliver();

    QCOMPARE(window.window.size(), QSize(500, 350));
    QCOMPARE(window.splitter->sizes(), sizes);
    QCOMPARE(window.tree->header()->sectionSize(1), 44);
    QCOMPARE(window.tree->header()->sortIndicatorSection(), 2);
    QCOMPARE(window.tree->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    QCOMPARE(window.table->horizontalHeader()->sectionSize(1), 66);
    // The one that is not kept.
    QCOMPARE(window.table->verticalHeader()->sectionSize(1), 40);
}

void TestTXWidgetUtilities::roundTripThroughSettingsBringsEverythingBack()
{
    State state;
    {
        Window window;
        window.change();
        state = saved(&window.window);
        QSettings().setValue(QStringLiteral("state"), state);
    }
    QSettings().sync();
    const State stored = QSettings().value(QStringLiteral("state")).toHash();
    QCOMPARE(stored, state);

    Window another;
    restore(&another.window, stored);
    Window::deliver();
    QCOMPARE(another.window.size(), QSize(500, 350));
    QCOMPARE(another.tree->header()->sectionSize(1), 44);
}

void TestTXWidgetUtilities::layoutsHaveTheLastWordWhenRestoredBeforeShowing()
{
    Window window;
    window.change();
    const State state = saved(&window.window);
    Window another(false);
    restore(&another.window, state);
    another.window.show();
    Window::deliver();

    QCOMPARE(another.window.size(), QSize(500, 350));
    QCOMPARE(another.splitter->sizes(), window.splitter->sizes());
    QCOMPARE(another.tree->geometry(), window.tree->geometry());
    QCOMPARE(another.table->geometry(), window.table->geometry());
    QCOMPARE(another.tree->viewport()->geometry(), window.tree->viewport()->geometry());
    QCOMPARE(another.tree->header()->geometry(), window.tree->header()->geometry());
    QCOMPARE(another.splitter->handle(1)->geometry(), window.splitter->handle(1)->geometry());
}

void TestTXWidgetUtilities::childAtTheUpperEdgeIsMovedAsAWindowWouldBe()
{
    QWidget parent;
    auto *child = named<QWidget>("child", &parent);
    child->setGeometry(5, 0, 50, 60);
    const State state = saved(&parent);
    QVERIFY(child->restoreGeometry(child->saveGeometry()));
    const QRect byQt = child->geometry();
    QVERIFY(byQt.top() > 0);

    child->setGeometry(5, 0, 50, 60);
    restore(&parent, state);
    QCOMPARE(child->geometry(), byQt);
}

void TestTXWidgetUtilities::widgetWithoutAnEntryStopsTheDescent()
{
    QWidget outer;
    auto *middle = named<QWidget>("middle", &outer);
    auto *inner = named<QWidget>("inner", middle);
    inner->resize(50, 60);
    const State state = saved(&outer);
    inner->resize(10, 10);

    outer.setObjectName(QStringLiteral("renamed"));
    restore(&outer, state);
    QCOMPARE(inner->size(), QSize(10, 10));

    outer.setObjectName(QString());
    middle->setObjectName(QStringLiteral("renamed"));
    restore(&outer, state);
    QCOMPARE(inner->size(), QSize(10, 10));

    // The widget's own entry on top helps as little: it is looked for among its siblings.
    State mixed = state;
    mixed.insert(QStringLiteral("inner"),
                 entryAt(state, {QString(), QStringLiteral("middle"), QStringLiteral("inner")}));
    restore(&outer, mixed);
    QCOMPARE(inner->size(), QSize(10, 10));

    middle->setObjectName(QStringLiteral("middle"));
    restore(&outer, mixed);
    QCOMPARE(inner->size(), QSize(50, 60));
}

void TestTXWidgetUtilities::emptyEntryStopsTheDescent()
{
    QWidget outer;
    auto *inner = named<QWidget>("inner", &outer);
    inner->resize(50, 60);
    State state = saved(&outer);
    inner->resize(10, 10);
    state.insert(QString(), State());
    restore(&outer, state);

    QCOMPARE(inner->size(), QSize(10, 10));
}

void TestTXWidgetUtilities::entryWithoutGeometryRestoresTheRest()
{
    QWidget outer;
    outer.resize(200, 100);
    auto *inner = named<QWidget>("inner", &outer);
    inner->resize(50, 60);
    State entry = entryAt(saved(&outer), {QString()});
    entry.remove(kGeometry);
    outer.resize(300, 200);
    inner->resize(10, 10);
    restore(&outer, {{QString(), entry}});

    QCOMPARE(outer.size(), QSize(300, 200));
    QCOMPARE(inner->size(), QSize(50, 60));
}

void TestTXWidgetUtilities::stateIsForWindowsAndSplittersOnly()
{
    Window window;
    State state = saved(&window.window);
    QTableView table;
    table.setModel(&window.model);
    State entry = entryAt(saved(&table), {QString()});
    entry.insert(kState, window.splitter->saveState());
    const State before = withoutGeometries(saved(&table));
    restore(&table, {{QString(), entry}});

    QCOMPARE(withoutGeometries(saved(&table)), before);
}

void TestTXWidgetUtilities::headerThatBecameFixedIgnoresItsState()
{
    Window window;
    window.change();
    const State state = saved(&window.window);
    for (QHeaderView *header : {window.tree->header(), window.table->horizontalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->resizeSection(1, 77);
    }
    restore(&window.window, state);

    QCOMPARE(window.tree->header()->sectionSize(1), 77);
    QCOMPARE(window.table->horizontalHeader()->sectionSize(1), 77);
    QCOMPARE(window.tree->header()->sectionResizeMode(1), QHeaderView::Fixed);
}

void TestTXWidgetUtilities::tableTakesAVerticalStateWhenThereIsNoHorizontalOne()
{
    Window window;
    window.change();
    const QByteArray vertical = window.table->verticalHeader()->saveState();
    window.table->verticalHeader()->resizeSection(1, 40);
    window.table->horizontalHeader()->resizeSection(1, 99);
    restore(window.table,
            {{QStringLiteral("table"), State{{kHeaderState, State{{kVertical, vertical}}}}}});

    QCOMPARE(window.table->verticalHeader()->sectionSize(1), 50);
    QCOMPARE(window.table->horizontalHeader()->sectionSize(1), 99);
}

void TestTXWidgetUtilities::verticalHeaderThatBecameFixedIgnoresItsState()
{
    Window window;
    window.change();
    const QByteArray vertical = window.table->verticalHeader()->saveState();
    window.table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    window.table->verticalHeader()->resizeSection(1, 40);
    restore(window.table,
            {{QStringLiteral("table"), State{{kHeaderState, State{{kVertical, vertical}}}}}});

    QCOMPARE(window.table->verticalHeader()->sectionSize(1), 40);
}

void TestTXWidgetUtilities::horizontalStateKeepsTheVerticalOneOut()
{
    Window window;
    window.change();
    const State headers{{kHorizontal, window.table->horizontalHeader()->saveState()},
                        {kVertical, window.table->verticalHeader()->saveState()}};
    window.table->verticalHeader()->resizeSection(1, 40);
    window.table->horizontalHeader()->resizeSection(1, 99);
    restore(window.table, {{QStringLiteral("table"), State{{kHeaderState, headers}}}});

    QCOMPARE(window.table->horizontalHeader()->sectionSize(1), 66);
    QCOMPARE(window.table->verticalHeader()->sectionSize(1), 40);
}

void TestTXWidgetUtilities::fixedHorizontalHeaderKeepsTheVerticalStateOut()
{
    Window window;
    window.change();
    const State headers{{kHorizontal, window.table->horizontalHeader()->saveState()},
                        {kVertical, window.table->verticalHeader()->saveState()}};
    window.table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    window.table->verticalHeader()->resizeSection(1, 40);
    restore(window.table, {{QStringLiteral("table"), State{{kHeaderState, headers}}}});

    QCOMPARE(window.table->verticalHeader()->sectionSize(1), 40);
}

void TestTXWidgetUtilities::treeTakesNoVerticalState()
{
    Window window;
    window.change();
    const QByteArray header = window.tree->header()->saveState();
    window.tree->header()->resizeSection(1, 99);
    restore(window.tree,
            {{QStringLiteral("tree"), State{{kHeaderState, State{{kVertical, header}}}}}});

    QCOMPARE(window.tree->header()->sectionSize(1), 99);
}

void TestTXWidgetUtilities::headerStateIsForTablesAndTreesOnly()
{
    QStandardItemModel model(1, 2);
    QHeaderView header(Qt::Horizontal);
    header.setModel(&model);
    header.resizeSection(0, 55);
    const QByteArray state = header.saveState();
    header.resizeSection(0, 99);
    auto *child = named<QWidget>("child", &header);
    const State entry{
        {kHeaderState, State{{kHorizontal, state}}},
        {kChildren, State{{QStringLiteral("child"), saved(child).value(child->objectName())}}}};
    child->resize(7, 7);
    restore(&header, {{QString(), entry}});

    QCOMPARE(header.sectionSize(0), 99);
    // Its children are looked at all the same.
    QVERIFY(child->size() != QSize(7, 7));
}

void TestTXWidgetUtilities::siblingsOfTheSameNameAllTakeItsEntry()
{
    QWidget parent;
    auto *first = named<QWidget>("twin", &parent);
    auto *second = named<QWidget>("twin", &parent);
    first->resize(30, 40);
    second->resize(70, 80);
    const State state = saved(&parent);
    restore(&parent, state);

    QCOMPARE(first->size(), QSize(70, 80));
    QCOMPARE(second->size(), QSize(70, 80));
}

void TestTXWidgetUtilities::childrenAreRestoredInTheirOrder()
{
    QStringList log;
    QStringList names;
    QWidget parent;
    for (int i = 20; i > 0; --i) {
        names.append(QString::number(i));
        new Recorder(names.constLast(), &log, &parent);
    }
    parent.show();
    const State state = saved(&parent);
    for (QObject *child : parent.children()) {
        qobject_cast<QWidget *>(child)->resize(1, 1);
    }
    log.clear();
    restore(&parent, state);

    QCOMPARE(log, names);
}

void TestTXWidgetUtilities::siblingMayBeDeletedWhileRestoring()
{
    QWidget parent;
    auto *deleter = new Deleter(&parent);
    deleter->setObjectName(QStringLiteral("deleter"));
    auto *victim = named<QWidget>("victim", &parent);
    auto *last = named<QWidget>("last", &parent);
    last->resize(50, 60);
    parent.show();
    const State state = saved(&parent);
    deleter->resize(10, 10);
    last->resize(10, 10);
    deleter->victim = victim;
    restore(&parent, state);

    QVERIFY(!deleter->victim);
    QCOMPARE(last->size(), QSize(50, 60));
}

void TestTXWidgetUtilities::valueOfAnotherTypeDoesNoHarm_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("truth") << QVariant(true);
    QTest::newRow("number") << QVariant(12);
    QTest::newRow("fraction") << QVariant(1.5);
    QTest::newRow("text") << QVariant(QStringLiteral("geometry"));
    QTest::newRow("megabyte of text") << QVariant(QString(1000000, u'x'));
    QTest::newRow("empty bytes") << QVariant(QByteArray());
    QTest::newRow("megabyte of zeros") << QVariant(QByteArray(1000000, '\0'));
    QTest::newRow("list") << QVariant(QVariantList{1, QByteArray("x")});
    QTest::newRow("texts") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("empty dictionary") << QVariant(State());
    QTest::newRow("dictionary") << QVariant(State{{kGeometry, 1}, {kState, 2}, {kChildren, 3}});
    QTest::newRow("map") << QVariant(QVariantMap{{kGeometry, 1}});
    QTest::newRow("size") << QVariant(QSize(3, 4));
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr);
}

void TestTXWidgetUtilities::valueOfAnotherTypeDoesNoHarm()
{
    QFETCH(QVariant, value);
    Window window;
    const State state = saved(&window.window);
    const State kept = withoutGeometries(state);
    int replaced = 0;
    int changes = 0;
    forEachReplaced(
        state, [&value](const QVariant &) { return value; },
        [&](const State &changed) {
            ++replaced;
            restore(&window.window, changed);
            Window::deliver();
            // What is of no use changes nothing, and the rest is what it was anyway.
            const bool isKept = withoutGeometries(saved(&window.window)) == kept
                && window.window.size() == QSize(400, 300);
            changes += isKept ? 0 : 1;
        });

    QVERIFY(replaced > 20);
    QCOMPARE(changes, 0);
}

void TestTXWidgetUtilities::bytesThatAreCutShortDoNoHarm()
{
    Window window;
    const State state = saved(&window.window);
    for (const int part : {1, 4, 8, 20, 50, 90}) {
        forEachReplaced(
            state,
            [part](const QVariant &value) {
                return value.typeId() == QMetaType::QByteArray
                    ? QVariant(value.toByteArray().left(value.toByteArray().size() * part / 100))
                    : value;
            },
            [&](const State &changed) {
                restore(&window.window, changed);
                Window::deliver();
            });
    }
    restore(&window.window, state);
    Window::deliver();

    QCOMPARE(withoutGeometries(saved(&window.window)), withoutGeometries(state));
}

void TestTXWidgetUtilities::bytesOfAnotherWidgetDoNoHarm()
{
    Window window;
    const State state = saved(&window.window);
    for (const QByteArray &bytes :
         {window.window.saveGeometry(), window.window.saveState(0), window.splitter->saveState(),
          window.tree->header()->saveState(), window.table->verticalHeader()->saveState()}) {
        forEachReplaced(
            state,
            [&bytes](const QVariant &value) {
                return value.typeId() == QMetaType::QByteArray ? QVariant(bytes) : value;
            },
            [&](const State &changed) {
                restore(&window.window, changed);
                Window::deliver();
            });
    }
    restore(&window.window, state);
    Window::deliver();

    QCOMPARE(window.splitter->count(), 2);
    QCOMPARE(window.tree->header()->count(), 4);
}

void TestTXWidgetUtilities::deepNestingIsKept()
{
    constexpr int kDepth = 500;
    QWidget root;
    QWidget *innermost = &root;
    for (int i = 0; i < kDepth; ++i) {
        innermost = named<QWidget>("x", innermost);
    }
    innermost->resize(50, 60);
    const State state = saved(&root);
    innermost->resize(10, 10);
    restore(&root, state);

    QCOMPARE(innermost->size(), QSize(50, 60));
}

void TestTXWidgetUtilities::randomTreesAreSavedByTheRulesAndRestored_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestTXWidgetUtilities::randomTreesAreSavedByTheRulesAndRestored()
{
    QFETCH(quint32, seed);
    RandomTree tree(seed);
    const State before = saved(tree.root.get());
    const QSize size = tree.root->size();
    const QList<QRect> places = tree.places();
    QCOMPARE(before, State({{tree.root->objectName(), modelOf(tree.root.get())}}));

    tree.shake();
    const State shaken = saved(tree.root.get());
    QCOMPARE(shaken, State({{tree.root->objectName(), modelOf(tree.root.get())}}));
    QVERIFY(places.isEmpty() || shaken != before);

    restore(tree.root.get(), before);
    QCoreApplication::processEvents();
    QCOMPARE(withoutGeometries(saved(tree.root.get())), withoutGeometries(before));
    QCOMPARE(tree.root->size(), size);
    QCOMPARE(tree.places(), places);
}

void TestTXWidgetUtilities::largestLabelDecides()
{
    QLabel small(QStringLiteral("x"));
    QLabel wide(QStringLiteral("a wide label"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForLabelList({&small, nullptr, &wide});

    const QFontMetrics metrics(wide.font());
    QCOMPARE(needed, metrics.size(Qt::TextShowMnemonic, wide.text()));
}

void TestTXWidgetUtilities::labelsArePolished()
{
    QLabel label(QStringLiteral("&x"));
    label.setStyleSheet(QStringLiteral("font-size: 40pt"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForLabelList({&label});

    QVERIFY(label.testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(label.font().pointSize(), 40);
    QCOMPARE(needed, QFontMetrics(label.font()).size(Qt::TextShowMnemonic, label.text()));
}

void TestTXWidgetUtilities::largestButtonDecides()
{
    QPushButton small(QStringLiteral("x"));
    QPushButton wide(QStringLiteral("a wide button"));
    const QSize needed =
        TXWidgetUtilities::maxSizeNeededForButtonList({nullptr, &wide, &small, nullptr});

    const QFontMetrics metrics(wide.font());
    QCOMPARE(needed, metrics.size(Qt::TextShowMnemonic, QStringLiteral("  a wide button  ")));
}

void TestTXWidgetUtilities::buttonsAreMeasuredWithTwoBlanksAtEachSide_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("Cancel");
    QTest::newRow("mnemonic") << QStringLiteral("&Cancel");
    QTest::newRow("ampersand") << QStringLiteral("Save && close");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
    QTest::newRow("place marker") << QStringLiteral("%1%1%1");
    QTest::newRow("control characters") << QStringLiteral("\x01\t\x7f");
}

void TestTXWidgetUtilities::buttonsAreMeasuredWithTwoBlanksAtEachSide()
{
    QFETCH(QString, text);
    QPushButton button(text);

    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({&button}),
             QFontMetrics(button.font())
                 .size(Qt::TextShowMnemonic,
                       QStringLiteral("  ") + button.text() + QStringLiteral("  ")));
}

void TestTXWidgetUtilities::buttonsAreNotPolished()
{
    QPushButton button(QStringLiteral("x"));
    button.setStyleSheet(QStringLiteral("font-size: 40pt"));
    const QSize needed = TXWidgetUtilities::maxSizeNeededForButtonList({&button});

    QVERIFY(!button.testAttribute(Qt::WA_WState_Polished));
    button.ensurePolished();
    QVERIFY(TXWidgetUtilities::maxSizeNeededForButtonList({&button}).height() > needed.height());
}

void TestTXWidgetUtilities::widthAndHeightMayComeFromDifferentWidgets()
{
    QPushButton wide(QStringLiteral("a very wide button with little height"));
    QPushButton high(QStringLiteral("1\n2\n3"));
    const QSize ofWide = TXWidgetUtilities::maxSizeNeededForButtonList({&wide});
    const QSize ofHigh = TXWidgetUtilities::maxSizeNeededForButtonList({&high});
    QVERIFY(ofWide.width() > ofHigh.width() && ofWide.height() < ofHigh.height());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({&wide, &high}),
             QSize(ofWide.width(), ofHigh.height()));

    QLabel wideLabel(wide.text());
    QLabel highLabel(high.text());
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({&highLabel, &wideLabel}),
             QSize(TXWidgetUtilities::maxSizeNeededForLabelList({&wideLabel}).width(),
                   TXWidgetUtilities::maxSizeNeededForLabelList({&highLabel}).height()));
}

void TestTXWidgetUtilities::emptyListsNeedNoRoom()
{
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForButtonList({nullptr}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({}), QSize(0, 0));
    QCOMPARE(TXWidgetUtilities::maxSizeNeededForLabelList({nullptr, nullptr}), QSize(0, 0));
    TXWidgetUtilities::setFixedWidthToButtonList({}, 10);
    TXWidgetUtilities::setFixedSizeToButtonList({}, QSize(10, 10));
}

void TestTXWidgetUtilities::buttonsGetTheFixedWidth()
{
    QPushButton first;
    QPushButton second;
    TXWidgetUtilities::setFixedWidthToButtonList({&first, nullptr, &second}, 77);

    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumWidth(), 77);
        QCOMPARE(button->maximumWidth(), 77);
        QCOMPARE(button->minimumHeight(), 0);
        QCOMPARE(button->maximumHeight(), QWIDGETSIZE_MAX);
    }
}

void TestTXWidgetUtilities::buttonsGetTheFixedSize()
{
    QPushButton first;
    QPushButton second;
    TXWidgetUtilities::setFixedSizeToButtonList({nullptr, &first, &second}, QSize(77, 33));

    for (const QPushButton *button : {&first, &second}) {
        QCOMPARE(button->minimumSize(), QSize(77, 33));
        QCOMPARE(button->maximumSize(), QSize(77, 33));
    }
}

void TestTXWidgetUtilities::disabledSpinBoxLooksLikeAPlainValue_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("integer") << 0;
    QTest::newRow("fraction") << 1;
    QTest::newRow("date") << 2;
}

void TestTXWidgetUtilities::disabledSpinBoxLooksLikeAPlainValue()
{
    QFETCH(int, kind);
    std::unique_ptr<QAbstractSpinBox> box;
    switch (kind) {
    case 0:
        box = std::make_unique<QSpinBox>();
        break;
    case 1:
        box = std::make_unique<QDoubleSpinBox>();
        break;
    default:
        box = std::make_unique<QDateTimeEdit>();
    }
    box->setEnabled(false);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QVERIFY(!box->hasFrame());
    QVERIFY(box->isReadOnly());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);

    box->setEnabled(true);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QVERIFY(box->hasFrame());
    QVERIFY(!box->isReadOnly());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);

    // Whatever an enabled box was set to goes.
    box->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    box->setReadOnly(true);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(box.get());
    QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    QVERIFY(!box->isReadOnly());
}

void TestTXWidgetUtilities::spinBoxInADisabledParentIsDisabled()
{
    QWidget parent;
    QSpinBox box(&parent);
    parent.setEnabled(false);
    TXWidgetUtilities::treatWhenSpinBoxDisabled(&box);

    QVERIFY(box.isReadOnly());
}

void TestTXWidgetUtilities::nullSpinBoxIsIgnored()
{
    TXWidgetUtilities::treatWhenSpinBoxDisabled(nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetUtilities>(argc, argv);
}

#include "tst_TXWidgetUtilities.moc"
