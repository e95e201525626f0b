#include "RatioReporter.h"
#include "TXWidgetUtilities.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

// Keeping the looks of a window with many widgets: beside the calls of Qt that cannot be avoided
// with a dictionary of the same shape, and beside QSettings with a key for each widget, which is
// what is written by hand.

namespace {

using State = QHash<QString, QVariant>;

constexpr int kRowsInGroup = 10;
constexpr int kGroupsInPart = 5;
constexpr int kBytes = 66;

/// A main window with a splitter, and in it parts of a tree and groups of labels and line edits,
/// with about so many widgets in all.
class Window : public QMainWindow
{
public:
    explicit Window(int widgets)
        : model(1, 3)
    {
        setObjectName(QStringLiteral("window"));
        auto *splitter = new QSplitter(this);
        splitter->setObjectName(QStringLiteral("splitter"));
        setCentralWidget(splitter);
        for (int part = 0; findChildren<QWidget *>().size() < widgets; ++part) {
            addPart(splitter, part);
        }
    }

    [[nodiscard]] int widgetCount() const { return int(findChildren<QWidget *>().size()) + 1; }

private:
    void addPart(QSplitter *splitter, int number)
    {
        auto *part = new QWidget(splitter);
        part->setObjectName(QStringLiteral("part%1").arg(number));
        auto *tree = new QTreeView(part);
        tree->setObjectName(QStringLiteral("tree"));
        tree->setModel(&model);
        for (int group = 0; group < kGroupsInPart; ++group) {
            addGroup(part, group);
        }
    }

    static void addGroup(QWidget *part, int number)
    {
        auto *group = new QGroupBox(part);
        group->setObjectName(QStringLiteral("group%1").arg(number));
        for (int row = 0; row < kRowsInGroup; ++row) {
            auto *label = new QLabel(group);
            label->setObjectName(QStringLiteral("label%1").arg(row));
            auto *edit = new QLineEdit(group);
            edit->setObjectName(QStringLiteral("edit%1").arg(row));
        }
    }

    QStandardItemModel model;
};

QWidgetList childWidgets(const QWidget *widget)
{
    QWidgetList children;
    for (QObject *child : widget->children()) {
        if (child->isWidgetType()) {
            children.append(static_cast<QWidget *>(child));
        }
    }
    return children;
}

QByteArray ownState(QWidget *widget)
{
    if (auto *window = qobject_cast<QMainWindow *>(widget)) {
        return window->saveState();
    }
    if (auto *splitter = qobject_cast<QSplitter *>(widget)) {
        return splitter->saveState();
    }
    if (auto *tree = qobject_cast<QTreeView *>(widget)) {
        return tree->header()->saveState();
    }
    return {};
}

// --- Saving
// ---------------------------------------------------------------------------------------

struct Ours
{
    void save(QWidget *window)
    {
        State state;
        TXWidgetUtilities::saveWidgetStateInHash(window, state);
        benchmark::DoNotOptimize(state);
    }
};

/// What Qt has to do in any case: asking all widgets, and a dictionary with constant bytes.
struct BareQt
{
    void save(QWidget *window)
    {
        ask(window);
        State state;
        build(window, &state);
        benchmark::DoNotOptimize(state);
    }

    void ask(QWidget *widget)
    {
        benchmark::DoNotOptimize(widget->saveGeometry());
        benchmark::DoNotOptimize(ownState(widget));
        for (QObject *child : widget->children()) {
            if (child->isWidgetType()) {
                ask(static_cast<QWidget *>(child));
            }
        }
    }

    void build(const QWidget *widget, State *state)
    {
        State entry;
        entry.insert(geometryKey, bytes);
        if (qobject_cast<const QTreeView *>(widget)) {
            entry.insert(headerKey, State{{horizontalKey, bytes}});
        } else if (qobject_cast<const QMainWindow *>(widget)
                   || qobject_cast<const QSplitter *>(widget)) {
            entry.insert(stateKey, bytes);
        }
        State children;
        for (const QObject *child : widget->children()) {
            if (child->isWidgetType()) {
                build(static_cast<const QWidget *>(child), &children);
            }
        }
        if (!children.isEmpty()) {
            entry.insert(childrenKey, children);
        }
        state->insert(widget->objectName(), entry);
    }

    const QString geometryKey = QStringLiteral("geometry");
    const QString stateKey = QStringLiteral("state");
    const QString headerKey = QStringLiteral("headerState");
    const QString horizontalKey = QStringLiteral("horizontalState");
    const QString childrenKey = QStringLiteral("children");
    const QByteArray bytes = QByteArray(kBytes, 'b');
};

/// A key for each widget, in a file.
struct Settings
{
    void save(QWidget *window)
    {
        store.clear();
        saveBelow(window, window->objectName());
        store.sync();
    }

    void saveBelow(QWidget *widget, const QString &path)
    {
        store.setValue(path + QStringLiteral("/geometry"), widget->saveGeometry());
        const QByteArray own = ownState(widget);
        if (!own.isEmpty()) {
            store.setValue(path + QStringLiteral("/state"), own);
        }
        const QWidgetList children = childWidgets(widget);
        for (QWidget *child : children) {
            saveBelow(child, path + u'/' + child->objectName());
        }
    }

    void restoreBelow(QWidget *widget, const QString &path)
    {
        widget->restoreGeometry(store.value(path + QStringLiteral("/geometry")).toByteArray());
        const QByteArray own = store.value(path + QStringLiteral("/state")).toByteArray();
        if (!own.isEmpty()) {
            restoreOwn(widget, own);
        }
        const QWidgetList children = childWidgets(widget);
        for (QWidget *child : children) {
            restoreBelow(child, path + u'/' + child->objectName());
        }
    }

    static void restoreOwn(QWidget *widget, const QByteArray &state)
    {
        if (auto *window = qobject_cast<QMainWindow *>(widget)) {
            window->restoreState(state);
        } else if (auto *splitter = qobject_cast<QSplitter *>(widget)) {
            splitter->restoreState(state);
        } else if (auto *tree = qobject_cast<QTreeView *>(widget)) {
            tree->header()->restoreState(state);
        }
    }

    QTemporaryDir folder;
    QSettings store{folder.filePath(QStringLiteral("state.ini")), QSettings::IniFormat};
};

template<class Way>
void save(benchmark::State &state)
{
    Window window(int(state.range(0)));
    Way way;
    for (auto step : state) {
        way.save(&window);
    }
    state.SetItemsProcessed(state.iterations() * window.widgetCount());
}

// --- Restoring
// ------------------------------------------------------------------------------------

void restoreOurs(benchmark::State &state)
{
    Window window(int(state.range(0)));
    State saved;
    TXWidgetUtilities::saveWidgetStateInHash(&window, saved);
    for (auto step : state) {
        TXWidgetUtilities::restoreWidgetStateInHash(&window, saved);
    }
    state.SetItemsProcessed(state.iterations() * window.widgetCount());
}

/// The same calls of Qt with the bytes at hand, and the look-up of every widget's entry.
void restoreBareQt(benchmark::State &state)
{
    struct Restoring
    {
        void restore(QWidget *widget, const State &entries)
        {
            const State entry = entries.value(widget->objectName()).toHash();
            widget->restoreGeometry(entry.value(QStringLiteral("geometry")).toByteArray());
            const QByteArray own = entry.contains(QStringLiteral("headerState"))
                ? entry.value(QStringLiteral("headerState"))
                      .toHash()
                      .value(QStringLiteral("horizontalState"))
                      .toByteArray()
                : entry.value(QStringLiteral("state")).toByteArray();
            if (!own.isEmpty()) {
                Settings::restoreOwn(widget, own);
            }
            const State below = entry.value(QStringLiteral("children")).toHash();
            const QWidgetList children = childWidgets(widget);
            for (QWidget *child : children) {
                restore(child, below);
            }
        }
    };
    Window window(int(state.range(0)));
    State saved;
    TXWidgetUtilities::saveWidgetStateInHash(&window, saved);
    for (auto step : state) {
        Restoring().restore(&window, saved);
    }
}

void restoreSettings(benchmark::State &state)
{
    Window window(int(state.range(0)));
    Settings settings;
    settings.save(&window);
    for (auto step : state) {
        settings.store.sync();
        settings.restoreBelow(&window, window.objectName());
    }
}

void sizes(benchmark::internal::Benchmark *family)
{
    family->Arg(150)->Arg(1300)->Arg(12500)->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(save<Ours>)->Name("SaveState/ours")->Apply(sizes);
BENCHMARK(save<BareQt>)->Name("SaveState/bare calls and dictionary")->Apply(sizes);
BENCHMARK(save<Settings>)->Name("SaveState/QSettings")->Apply(sizes);

BENCHMARK(restoreOurs)->Name("RestoreState/ours")->Apply(sizes);
BENCHMARK(restoreBareQt)->Name("RestoreState/bare calls and look-ups")->Apply(sizes);
BENCHMARK(restoreSettings)->Name("RestoreState/QSettings")->Apply(sizes);
