#include "TXWidgetUtilities.h"

#include "TestBase.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <memory>

// Trees of widgets put together at random: what is saved and restored is compared with the rules
// written down in the plainest way. Qt itself does not give each splitter back what it had before,
// so a restored tree is compared with its twin, and only its geometries with the first looks.

namespace {

using State = QHash<QString, QVariant>;

constexpr int kTrees = 60;
constexpr int kWidgets = 40;
constexpr int kMaximumColumns = 4;

/// The rules without a thought for speed or style.
State plainState(const QWidget *widget)
{
    State entry;
    entry["geometry"] = widget->saveGeometry();
    if (const auto *window = dynamic_cast<const QMainWindow *>(widget)) {
        entry["state"] = window->saveState(0);
    }
    if (const auto *splitter = dynamic_cast<const QSplitter *>(widget)) {
        entry["state"] = splitter->saveState();
    }
    const QHeaderView *header = nullptr;
    if (const auto *table = dynamic_cast<const QTableView *>(widget)) {
        header = table->horizontalHeader();
    }
    if (const auto *tree = dynamic_cast<const QTreeView *>(widget)) {
        header = tree->header();
    }
    bool isKept = false;
    for (int section = 0; header && section < header->count(); ++section) {
        isKept = isKept || header->sectionResizeMode(section) != QHeaderView::Fixed;
    }
    if (isKept) {
        entry["headerState"] = State{{"horizontalState", header->saveState()}};
    }
    State children;
    for (const QObject *child : widget->children()) {
        if (child->isWidgetType()) {
            children.insert(plainState(static_cast<const QWidget *>(child)));
        }
    }
    if (!children.isEmpty()) {
        entry["children"] = children;
    }
    return {{widget->objectName(), entry}};
}

/// The same for restoring. Headers are stored as the horizontal ones only.
void plainRestore(QWidget *widget, const State &state)
{
    const State entry = state.value(widget->objectName()).toHash();
    if (entry.isEmpty()) {
        return;
    }
    widget->restoreGeometry(entry["geometry"].toByteArray());
    if (auto *window = dynamic_cast<QMainWindow *>(widget)) {
        window->restoreState(entry["state"].toByteArray(), 0);
    }
    if (auto *splitter = dynamic_cast<QSplitter *>(widget)) {
        splitter->restoreState(entry["state"].toByteArray());
    }
    const QByteArray header = entry["headerState"].toHash()["horizontalState"].toByteArray();
    if (auto *table = dynamic_cast<QTableView *>(widget)) {
        table->horizontalHeader()->restoreState(header);
    }
    if (auto *tree = dynamic_cast<QTreeView *>(widget)) {
        tree->header()->restoreState(header);
    }
    const QObjectList children = widget->children();
    for (QObject *child : children) {
        if (child->isWidgetType()) {
            plainRestore(static_cast<QWidget *>(child), entry["children"].toHash());
        }
    }
}

QList<QRect> geometries(const QWidget &root)
{
    QList<QRect> found = {root.geometry()};
    const auto below = root.findChildren<QWidget *>();
    for (const QWidget *widget : below) {
        found.append(widget->geometry());
    }
    return found;
}

/// Makes, changes and forgets trees; the same ones for the same seed.
class Forest
{
public:
    explicit Forest(quint32 seed)
        : random(seed)
    { }

    std::unique_ptr<QWidget> plant()
    {
        number = 0;
        std::unique_ptr<QWidget> root(makeWidget(nullptr));
        QWidgetList places = {root.get()};
        while (number < kWidgets) {
            places.append(makeWidget(places.at(random.bounded(int(places.size())))));
        }
        nameParts(*root);
        change(root.get());
        return root;
    }

    /// Gives every widget other looks.
    void change(QWidget *root)
    {
        changeOne(root);
        const auto below = root->findChildren<QWidget *>();
        for (QWidget *widget : below) {
            changeOne(widget);
        }
    }

private:
    QWidget *makeWidget(QWidget *parent)
    {
        QWidget *widget = makeKind(parent);
        widget->setObjectName(QStringLiteral("w%1").arg(++number));
        return widget;
    }

    QWidget *makeKind(QWidget *parent)
    {
        switch (random.bounded(5)) {
        case 0:
            return new QSplitter(parent);
        case 1:
            return makeView(new QTreeView(parent));
        case 2:
            return makeView(new QTableView(parent));
        case 3:
            return new QMainWindow(parent, Qt::Widget);
        default:
            return new QWidget(parent);
        }
    }

    template<class View>
    View *makeView(View *view)
    {
        view->setModel(new QStandardItemModel(3, random.bounded(kMaximumColumns + 1), view));
        QHeaderView *header = headerOf(view);
        for (int section = 0; section < header->count(); ++section) {
            header->setSectionResizeMode(
                section, random.bounded(3) == 0 ? QHeaderView::Interactive : QHeaderView::Fixed);
        }
        return view;
    }

    static QHeaderView *headerOf(QTreeView *view) { return view->header(); }
    static QHeaderView *headerOf(QTableView *view) { return view->horizontalHeader(); }

    /// Qt's own parts of a widget share names with each other, or have none.
    void nameParts(const QWidget &root)
    {
        const auto below = root.findChildren<QWidget *>();
        for (QWidget *widget : below) {
            if (!widget->objectName().startsWith(u'w')) {
                widget->setObjectName(QStringLiteral("part%1").arg(++number));
            }
        }
    }

    void changeOne(QWidget *widget)
    {
        widget->setGeometry(random.bounded(100), 40 + random.bounded(100), 50 + random.bounded(200),
                            50 + random.bounded(200));
        if (auto *header = qobject_cast<QHeaderView *>(widget)) {
            for (int section = 0; section < header->count(); ++section) {
                if (header->sectionResizeMode(section) != QHeaderView::Fixed) {
                    header->resizeSection(section, 40 + random.bounded(100));
                }
            }
        }
    }

    QRandomGenerator random;
    int number = 0;
};

} // namespace

class TestTXWidgetUtilitiesRandom : public TestBase
{
    Q_OBJECT

private slots:
    void savedStateFollowsTheRules();
    void restoredTreeFollowsTheRules();
};

void TestTXWidgetUtilitiesRandom::savedStateFollowsTheRules()
{
    for (quint32 seed = 1; seed <= kTrees; ++seed) {
        const std::unique_ptr<QWidget> tree = Forest(seed).plant();
        State state;
        TXWidgetUtilities::saveWidgetStateInHash(tree.get(), state);
        QVERIFY2(state == plainState(tree.get()), qPrintable(QStringLiteral("seed %1").arg(seed)));
    }
}

void TestTXWidgetUtilitiesRandom::restoredTreeFollowsTheRules()
{
    for (quint32 seed = 1; seed <= kTrees; ++seed) {
        Forest forest(seed);
        Forest twinForest(seed);
        const std::unique_ptr<QWidget> tree = forest.plant();
        const std::unique_ptr<QWidget> twin = twinForest.plant();
        const QList<QRect> before = geometries(*tree);
        State state;
        TXWidgetUtilities::saveWidgetStateInHash(tree.get(), state);

        forest.change(tree.get());
        twinForest.change(twin.get());
        QVERIFY(geometries(*tree) != before);
        TXWidgetUtilities::restoreWidgetStateInHash(tree.get(), state);
        plainRestore(twin.get(), state);
        const QByteArray name = "seed " + QByteArray::number(seed);
        QVERIFY2(plainState(tree.get()) == plainState(twin.get()), name);
        QVERIFY2(geometries(*tree) == before, name);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetUtilitiesRandom>(argc, argv);
}

#include "tst_TXWidgetUtilitiesRandom.moc"
