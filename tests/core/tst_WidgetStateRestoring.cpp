#include "TestBase.h"
#include "WidgetStateHelpers.h"

#include <QPointer>
#include <QSettings>

using WidgetStateTest::entryAt;
using WidgetStateTest::kChildren;
using WidgetStateTest::kGeometry;
using WidgetStateTest::kHeaderState;
using WidgetStateTest::kHorizontal;
using WidgetStateTest::kState;
using WidgetStateTest::kVertical;
using WidgetStateTest::named;
using WidgetStateTest::restore;
using WidgetStateTest::saved;
using WidgetStateTest::State;
using WidgetStateTest::Window;
using WidgetStateTest::withoutGeometries;

namespace {

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

class TestWidgetStateRestoring : public TestBase
{
    Q_OBJECT

private slots:
    void nullIsNotRestored();
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
};

void TestWidgetStateRestoring::nullIsNotRestored()
{
    restore(nullptr, {});
    restore(nullptr, {{QString(), State{{kGeometry, QByteArray("x")}}}});
}

void TestWidgetStateRestoring::roundTripBringsEverythingBack()
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

void TestWidgetStateRestoring::roundTripThroughSettingsBringsEverythingBack()
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

void TestWidgetStateRestoring::layoutsHaveTheLastWordWhenRestoredBeforeShowing()
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

void TestWidgetStateRestoring::childAtTheUpperEdgeIsMovedAsAWindowWouldBe()
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

void TestWidgetStateRestoring::widgetWithoutAnEntryStopsTheDescent()
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

void TestWidgetStateRestoring::emptyEntryStopsTheDescent()
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

void TestWidgetStateRestoring::entryWithoutGeometryRestoresTheRest()
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

void TestWidgetStateRestoring::stateIsForWindowsAndSplittersOnly()
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

void TestWidgetStateRestoring::headerThatBecameFixedIgnoresItsState()
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

void TestWidgetStateRestoring::tableTakesAVerticalStateWhenThereIsNoHorizontalOne()
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

void TestWidgetStateRestoring::verticalHeaderThatBecameFixedIgnoresItsState()
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

void TestWidgetStateRestoring::horizontalStateKeepsTheVerticalOneOut()
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

void TestWidgetStateRestoring::fixedHorizontalHeaderKeepsTheVerticalStateOut()
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

void TestWidgetStateRestoring::treeTakesNoVerticalState()
{
    Window window;
    window.change();
    const QByteArray header = window.tree->header()->saveState();
    window.tree->header()->resizeSection(1, 99);
    restore(window.tree,
            {{QStringLiteral("tree"), State{{kHeaderState, State{{kVertical, header}}}}}});

    QCOMPARE(window.tree->header()->sectionSize(1), 99);
}

void TestWidgetStateRestoring::headerStateIsForTablesAndTreesOnly()
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

void TestWidgetStateRestoring::siblingsOfTheSameNameAllTakeItsEntry()
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

void TestWidgetStateRestoring::childrenAreRestoredInTheirOrder()
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

void TestWidgetStateRestoring::siblingMayBeDeletedWhileRestoring()
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

int main(int argc, char **argv)
{
    return runTest<TestWidgetStateRestoring>(argc, argv);
}

#include "tst_WidgetStateRestoring.moc"
