#include "RatioReporter.h"
#include "TXWidgetUtilities.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTreeView>

#include <vector>

#include <malloc.h>

// Saving and restoring the state of a window of panels, each a splitter with a tree and some plain
// widgets. The argument is the number of widgets, with those inside the trees. The peers:
// - The least that could be done: Qt's own calls on a flat list of the same widgets, what they give
//   thrown away, and the same dictionary made of ready bytes.
// - The same dictionary by code that knows this one window, keeping what the calls give.
// - What one would write first: a key of QSettings a widget.

namespace {

using State = QHash<QString, QVariant>;

const QString kGeometry = QStringLiteral("geometry");
const QString kState = QStringLiteral("state");
const QString kHeaderState = QStringLiteral("headerState");
const QString kHorizontalState = QStringLiteral("horizontalState");
const QString kChildren = QStringLiteral("children");

constexpr int kPlainWidgets = 30; // a panel

/// A widget, what Qt's calls give for it, and where it is in the window.
struct Node
{
    QWidget *widget = nullptr;
    QMainWindow *window = nullptr;
    QSplitter *splitter = nullptr;
    QHeaderView *header = nullptr;
    QString name;
    QString path;
    QByteArray geometry;
    QByteArray state;
    QByteArray headerState;
    std::vector<Node> children;
};

class Window
{
public:
    explicit Window(int widgets)
        : model(1, 4)
    {
        // Or the heap shrinks after each round, and whoever comes first pays for new pages.
        mallopt(M_TRIM_THRESHOLD, 1 << 30);
        window.setObjectName(QStringLiteral("window"));
        window.setCentralWidget(&centre);
        for (qsizetype count = 2; count < widgets;) {
            count += 1 + addPanel()->findChildren<QWidget *>().size();
        }
        window.resize(700, 600);
        window.ensurePolished();
        root = describe(&window, QString());
    }

    ~Window() { window.takeCentralWidget(); }

    /// Calls the function with each node of the tree.
    template<class Use>
    void forEach(Use use)
    {
        visit(root, use);
    }

    QMainWindow window;
    Node root;

private:
    QWidget *addPanel()
    {
        auto *panel = new QSplitter(&centre);
        panel->setObjectName(nextName());
        auto *tree = new QTreeView(panel);
        tree->setObjectName(nextName());
        tree->setModel(&model);
        auto *form = new QWidget(panel);
        form->setObjectName(nextName());
        for (int i = 0; i < kPlainWidgets; ++i) {
            auto *field = new QWidget(form);
            field->setObjectName(nextName());
            field->setGeometry(10, 30 + 10 * i, 100, 10);
        }
        return panel;
    }

    QString nextName() { return QStringLiteral("widget%1").arg(++names); }

    Node describe(QWidget *widget, const QString &above)
    {
        Node node;
        node.widget = widget;
        node.name = widget->objectName();
        node.path = QStringLiteral("%1/%2").arg(above, QString::number(++nodes));
        node.geometry = widget->saveGeometry();
        node.window = qobject_cast<QMainWindow *>(widget);
        node.splitter = qobject_cast<QSplitter *>(widget);
        const auto *tree = qobject_cast<QTreeView *>(widget);
        node.header = tree ? tree->header() : nullptr;
        node.state = node.window ? node.window->saveState()
            : node.splitter      ? node.splitter->saveState()
                                 : QByteArray();
        node.headerState = node.header ? node.header->saveState() : QByteArray();
        for (QObject *object : widget->children()) {
            if (auto *child = qobject_cast<QWidget *>(object)) {
                node.children.push_back(describe(child, node.path));
            }
        }
        return node;
    }

    template<class Use>
    void visit(Node &node, Use use)
    {
        use(node);
        for (Node &child : node.children) {
            visit(child, use);
        }
    }

    QStandardItemModel model;
    QWidget centre;
    int names = 0;
    int nodes = 0;
};

void saveByQt(const Node &node)
{
    benchmark::DoNotOptimize(node.widget->saveGeometry());
    if (node.window) {
        benchmark::DoNotOptimize(node.window->saveState());
    } else if (node.splitter) {
        benchmark::DoNotOptimize(node.splitter->saveState());
    } else if (node.header) {
        benchmark::DoNotOptimize(node.header->saveState());
    }
}

void restoreByQt(const Node &node)
{
    node.widget->restoreGeometry(node.geometry);
    if (node.window) {
        node.window->restoreState(node.state);
    } else if (node.splitter) {
        node.splitter->restoreState(node.state);
    } else if (node.header) {
        node.header->restoreState(node.headerState);
    }
}

/// The bytes that a node holds.
struct Ready
{
    static QByteArray geometry(const Node &node) { return node.geometry; }
    static QByteArray state(const Node &node) { return node.state; }
    static QByteArray headerState(const Node &node) { return node.headerState; }
};

/// What Qt gives for a node's widget.
struct Fresh
{
    static QByteArray geometry(const Node &node) { return node.widget->saveGeometry(); }
    static QByteArray state(const Node &node)
    {
        return node.window ? node.window->saveState() : node.splitter->saveState();
    }
    static QByteArray headerState(const Node &node) { return node.header->saveState(); }
};

template<class Bytes>
void build(const Node &node, State *state)
{
    State entry;
    entry.insert(kGeometry, Bytes::geometry(node));
    if (node.window || node.splitter) {
        entry.insert(kState, Bytes::state(node));
    }
    if (node.header) {
        entry.insert(kHeaderState, State{{kHorizontalState, Bytes::headerState(node)}});
    }
    State children;
    for (const Node &child : node.children) {
        build<Bytes>(child, &children);
    }
    if (!children.isEmpty()) {
        entry.insert(kChildren, children);
    }
    state->insert(node.name, entry);
}

/// Finds all that the dictionary holds for the nodes.
void look(const Node &node, const State &state)
{
    const State entry = state.value(node.name).toHash();
    benchmark::DoNotOptimize(entry.value(kGeometry).toByteArray());
    if (node.window || node.splitter) {
        benchmark::DoNotOptimize(entry.value(kState).toByteArray());
    }
    if (node.header) {
        benchmark::DoNotOptimize(
            entry.value(kHeaderState).toHash().value(kHorizontalState).toByteArray());
    }
    if (!node.children.empty()) {
        const State children = entry.value(kChildren).toHash();
        for (const Node &child : node.children) {
            look(child, children);
        }
    }
}

void saveOurs(benchmark::State &state)
{
    Window window(int(state.range(0)));
    for (auto step : state) {
        State saved;
        TXWidgetUtilities::saveWidgetStateInHash(&window.window, saved);
        benchmark::DoNotOptimize(saved);
    }
}

void savePeer(benchmark::State &state)
{
    Window window(int(state.range(0)));
    for (auto step : state) {
        window.forEach(saveByQt);
        State saved;
        build<Ready>(window.root, &saved);
        benchmark::DoNotOptimize(saved);
    }
}

void saveByHand(benchmark::State &state)
{
    Window window(int(state.range(0)));
    for (auto step : state) {
        State saved;
        build<Fresh>(window.root, &saved);
        benchmark::DoNotOptimize(saved);
    }
}

void saveSettings(benchmark::State &state)
{
    Window window(int(state.range(0)));
    const QTemporaryDir folder;
    for (auto step : state) {
        QSettings settings(folder.filePath(QStringLiteral("state.ini")), QSettings::IniFormat);
        window.forEach([&settings](const Node &node) {
            settings.setValue(node.path, node.widget->saveGeometry());
        });
        settings.sync();
    }
}

void restoreOurs(benchmark::State &state)
{
    Window window(int(state.range(0)));
    State saved;
    build<Ready>(window.root, &saved);
    for (auto step : state) {
        TXWidgetUtilities::restoreWidgetStateInHash(&window.window, saved);
    }
}

void restorePeer(benchmark::State &state)
{
    Window window(int(state.range(0)));
    State saved;
    build<Ready>(window.root, &saved);
    for (auto step : state) {
        look(window.root, saved);
        window.forEach(restoreByQt);
    }
}

void restoreSettings(benchmark::State &state)
{
    Window window(int(state.range(0)));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("state.ini"));
    {
        QSettings settings(path, QSettings::IniFormat);
        window.forEach([&settings](const Node &node) {
            settings.setValue(node.path, node.widget->saveGeometry());
        });
    }
    for (auto step : state) {
        QSettings settings(path, QSettings::IniFormat);
        window.forEach([&settings](const Node &node) {
            node.widget->restoreGeometry(settings.value(node.path).toByteArray());
        });
    }
}

void addSizes(benchmark::internal::Benchmark *family)
{
    family->ArgName("widgets")->Arg(150)->Arg(1300)->Arg(12500)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(saveOurs)->Name("Save/ours")->Apply(addSizes);
BENCHMARK(savePeer)->Name("Save/bare calls and dictionary")->Apply(addSizes);
BENCHMARK(saveByHand)->Name("Save/code for this window")->Apply(addSizes);
BENCHMARK(saveSettings)->Name("Save/QSettings")->Apply(addSizes);
BENCHMARK(restoreOurs)->Name("Restore/ours")->Apply(addSizes);
BENCHMARK(restorePeer)->Name("Restore/bare calls and dictionary")->Apply(addSizes);
BENCHMARK(restoreSettings)->Name("Restore/QSettings")->Apply(addSizes);
