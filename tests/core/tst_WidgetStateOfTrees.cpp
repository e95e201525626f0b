#include "TestBase.h"
#include "WidgetStateHelpers.h"

#include <QDockWidget>
#include <QRandomGenerator>

#include <memory>

using WidgetStateTest::kChildren;
using WidgetStateTest::kGeometry;
using WidgetStateTest::kHeaderState;
using WidgetStateTest::kHorizontal;
using WidgetStateTest::kState;
using WidgetStateTest::named;
using WidgetStateTest::restore;
using WidgetStateTest::saved;
using WidgetStateTest::State;
using WidgetStateTest::withoutGeometries;

namespace {

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

} // namespace

class TestWidgetStateOfTrees : public TestBase
{
    Q_OBJECT

private slots:
    void deepNestingIsKept();
    void randomTreesAreSavedByTheRulesAndRestored_data();
    void randomTreesAreSavedByTheRulesAndRestored();
};

void TestWidgetStateOfTrees::deepNestingIsKept()
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

void TestWidgetStateOfTrees::randomTreesAreSavedByTheRulesAndRestored_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestWidgetStateOfTrees::randomTreesAreSavedByTheRulesAndRestored()
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

int main(int argc, char **argv)
{
    return runTest<TestWidgetStateOfTrees>(argc, argv);
}

#include "tst_WidgetStateOfTrees.moc"
