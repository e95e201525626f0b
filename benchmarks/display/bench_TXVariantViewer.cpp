#include "RatioReporter.h"
#include "TXVariantViewer.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QTreeView>

#include <utility>

// The text of a document beside the bare cost of its pieces; the unfolding of a level, and the
// reading of all its entries by an assistive tool, beside Qt's own tree. To read 20,000 entries
// costs what four times 5,000 do, and what the caches of the processor no longer hold of them.

namespace {

constexpr int kNodesPerRecord = 10;

/// A document of about so many nodes: a list of records that hold a few values each.
QVariant document(int nodes)
{
    QVariantList records;
    for (int i = 0; i < nodes / kNodesPerRecord; ++i) {
        const QVariantList place{i * 0.5, i * 0.25, QVariant()};
        records.append(QVariantMap{{QStringLiteral("id"), i},
                                   {QStringLiteral("name"), QStringLiteral("sample <%1>").arg(i)},
                                   {QStringLiteral("place"), place},
                                   {QStringLiteral("isReference"), i % 2 == 0},
                                   {QStringLiteral("note"), QStringLiteral("a & b")}});
    }
    return records;
}

/// A piece of a document's text: markup as it is, or a text to be escaped.
struct Piece
{
    QString text;
    bool isMarkup;
};

/// The pieces of a finished text: what stands between its tags, without the escaping.
QList<Piece> piecesOf(const QString &html)
{
    QList<Piece> pieces;
    qsizetype start = 0;
    while (start < html.size()) {
        const bool isMarkup = html.at(start) == QLatin1Char('<');
        qsizetype end = html.indexOf(QLatin1Char(isMarkup ? '>' : '<'), start);
        end = end < 0 ? html.size() : end + (isMarkup ? 1 : 0);
        QString text = html.mid(start, end - start);
        if (isMarkup && !pieces.isEmpty() && pieces.constLast().isMarkup) {
            pieces.last().text += text;
        } else if (isMarkup) {
            pieces.append({text, true});
        } else {
            text.replace(QLatin1String("&lt;"), QLatin1String("<"));
            text.replace(QLatin1String("&gt;"), QLatin1String(">"));
            text.replace(QLatin1String("&amp;"), QLatin1String("&"));
            pieces.append({text, false});
        }
        start = end;
    }
    return pieces;
}

void failUnless(bool isWell, benchmark::State &state, const char *reason)
{
    if (!isWell) {
        state.SkipWithError(reason);
    }
}

void previewText(benchmark::State &state)
{
    const QVariant value = document(static_cast<int>(state.range(0)));
    qsizetype size = 0;
    for (auto step : state) {
        size = TXVariantViewer::variantToHtml(value, true).size();
        benchmark::DoNotOptimize(size);
    }
    failUnless(size > state.range(0), state, "too short a text");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void escapedPieces(benchmark::State &state)
{
    const QString whole =
        TXVariantViewer::variantToHtml(document(static_cast<int>(state.range(0))), true);
    const QList<Piece> pieces = piecesOf(whole);
    QString html;
    for (auto step : state) {
        html = QString();
        for (const Piece &piece : pieces) {
            html.append(piece.isMarkup ? piece.text : piece.text.toHtmlEscaped());
        }
        benchmark::DoNotOptimize(html.data());
    }
    html.replace(QLatin1String("&quot;"), QLatin1String("\""));
    failUnless(html == whole, state, "other pieces than those of the text");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

QVariantMap level(int entries)
{
    QVariantMap map;
    for (int i = 0; i < entries; ++i) {
        map.insert(QStringLiteral("entry %1").arg(i), QStringLiteral("value %1").arg(i));
    }
    return map;
}

/// All that was asked for is done: layouts are right, all that can be seen is painted.
void finish()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// A viewer of a level under a shown scroll area.
class ShownViewer
{
public:
    explicit ShownViewer(int entries)
        : viewer(new TXVariantViewer(&area))
    {
        area.setWidget(viewer);
        area.setWidgetResizable(true);
        area.resize(600, 600);
        viewer->setValue(level(entries));
        area.show();
        finish();
    }

    void setExpanded(bool isExpanded)
    {
        viewer->setExpanded(isExpanded);
        finish();
    }

    [[nodiscard]] bool isAsHighAs(int entries) const { return viewer->height() > entries * 8; }

private:
    QScrollArea area;
    TXVariantViewer *viewer;
};

void unfold(benchmark::State &state)
{
    const auto entries = static_cast<int>(state.range(0));
    ShownViewer shown(entries);
    for (auto step : state) {
        shown.setExpanded(true);
        state.PauseTiming();
        failUnless(shown.isAsHighAs(entries), state, "not laid out");
        shown.setExpanded(false);
        state.ResumeTiming();
    }
}

void fold(benchmark::State &state)
{
    const auto entries = static_cast<int>(state.range(0));
    ShownViewer shown(entries);
    for (auto step : state) {
        state.PauseTiming();
        shown.setExpanded(true);
        state.ResumeTiming();
        shown.setExpanded(false);
    }
}

/// The same level as a branch of Qt's tree.
class ShownTree
{
public:
    explicit ShownTree(int entries)
    {
        auto *root = new QStandardItem(QStringLiteral("{"));
        const QVariantMap map = level(entries);
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            root->appendRow(
                {new QStandardItem(entry.key()), new QStandardItem(entry.value().toString())});
        }
        model.setColumnCount(2);
        model.appendRow(root);
        view.setModel(&model);
        view.resize(600, 600);
        view.show();
        finish();
    }

    void setExpanded(bool isExpanded)
    {
        view.setExpanded(model.index(0, 0), isExpanded);
        finish();
    }

private:
    QStandardItemModel model;
    QTreeView view;
};

void unfoldTree(benchmark::State &state)
{
    ShownTree shown(static_cast<int>(state.range(0)));
    for (auto step : state) {
        shown.setExpanded(true);
        state.PauseTiming();
        shown.setExpanded(false);
        state.ResumeTiming();
    }
}

void foldTree(benchmark::State &state)
{
    ShownTree shown(static_cast<int>(state.range(0)));
    for (auto step : state) {
        state.PauseTiming();
        shown.setExpanded(true);
        state.ResumeTiming();
        shown.setExpanded(false);
    }
}

QVariantList numbers(int count)
{
    QVariantList values;
    for (int i = 0; i < count; ++i) {
        values.append(i);
    }
    return values;
}

/// Asks for the name of each child and for its place among the others, as screen readers do that go
/// through all. Gives how many of them were where they should be.
int readChildren(const QAccessibleInterface &parent)
{
    const int count = parent.childCount();
    int found = 0;
    for (int i = 0; i < count; ++i) {
        const QAccessibleInterface *child = parent.child(i);
        const bool isNamed = !child->text(QAccessible::Name).isEmpty();
        found += isNamed && parent.indexOfChild(child) == i ? 1 : 0;
    }
    return found;
}

void readEntries(benchmark::State &state)
{
    const auto entries = static_cast<int>(state.range(0));
    TXVariantViewer viewer;
    viewer.setPreview(false);
    viewer.setValue(numbers(entries));
    viewer.expand();
    while (auto *more = viewer.findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        more->click();
        finish();
    }
    const QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(&viewer);
    for (auto step : state) {
        failUnless(readChildren(*tree) == entries, state, "not all read");
    }
    state.SetItemsProcessed(state.iterations() * entries);
}

void readTree(benchmark::State &state)
{
    const auto entries = static_cast<int>(state.range(0));
    QStandardItemModel model;
    for (int i = 0; i < entries; ++i) {
        model.appendRow(new QStandardItem(QString::number(i)));
    }
    QTreeView view;
    view.setModel(&model);
    view.show();
    finish();
    const QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(&view);
    for (auto step : state) {
        // The header is a child, too.
        failUnless(readChildren(*tree) >= entries, state, "not all read");
    }
    state.SetItemsProcessed(state.iterations() * entries);
}

void addDocuments(benchmark::internal::Benchmark *family)
{
    family->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

void addLevels(benchmark::internal::Benchmark *family)
{
    family->Arg(1000)->Arg(2000)->Arg(3000)->Unit(benchmark::kMillisecond);
}

void addLongLists(benchmark::internal::Benchmark *family)
{
    family->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(previewText)->Name("PreviewText/ours")->Apply(addDocuments);
BENCHMARK(escapedPieces)->Name("PreviewText/escaping and appending")->Apply(addDocuments);

BENCHMARK(unfold)->Name("Unfold/ours")->Apply(addLevels);
BENCHMARK(unfoldTree)->Name("Unfold/QTreeView")->Apply(addLevels);

BENCHMARK(fold)->Name("Fold/ours")->Apply(addLevels);
BENCHMARK(foldTree)->Name("Fold/QTreeView")->Apply(addLevels);

BENCHMARK(readEntries)->Name("ReadEntries/ours")->Apply(addLongLists);
BENCHMARK(readTree)->Name("ReadEntries/QTreeView")->Apply(addLongLists);
