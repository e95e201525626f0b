#include "RatioReporter.h"
#include "TXSelectionItemWidget.h"

#include <QComboBox>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVariant>

// The bar over 10,000 items, with the entry for an import below them, beside a plain combo box over
// the same items: taking a model, selecting by value, and following the new name of an item.

namespace {

constexpr int kCount = 10000;
const QString kName = QStringLiteral("Coated, sheet-fed %1");

/// Items whose values are the numbers from 0 on.
class Items : public QStandardItemModel
{
public:
    Items()
        : QStandardItemModel(kCount, 1)
    {
        for (int row = 0; row < kCount; ++row) {
            setData(index(row, 0), kName.arg(row));
            setData(index(row, 0), row, Qt::UserRole);
        }
    }
};

/// What both can do.
class Bar
{
public:
    void setModel(QAbstractItemModel *model) { widget.setModel(model, nullptr, nullptr); }
    void select(const QVariant &value) { widget.selectItem(value); }
    [[nodiscard]] QVariant selected() const { return widget.getSelectedItemUserData(); }

private:
    TXSelectionItemWidget widget;
};

/// Selects as a host would that wants each selection told.
class Box
{
public:
    void setModel(QAbstractItemModel *model) { widget.setModel(model); }
    void select(const QVariant &value)
    {
        widget.setCurrentIndex(-1);
        widget.setCurrentIndex(widget.findData(value));
    }
    [[nodiscard]] QVariant selected() const { return widget.currentData(); }

private:
    QComboBox widget;
};

/// A model in turn with an empty one, so that each call has something to do.
template<class Shown>
void setModel(benchmark::State &state)
{
    Items items;
    QStandardItemModel empty;
    Shown shown;
    for (auto step : state) {
        shown.setModel(&items);
        shown.setModel(&empty);
    }
}

/// The bar alone: as setModel(), but with a delegate of the host's, so that no new one is made.
void setModelWithDelegate(benchmark::State &state)
{
    Items items;
    QStandardItemModel empty;
    QStyledItemDelegate delegate;
    TXSelectionItemWidget bar;
    for (auto step : state) {
        bar.setModel(&items, nullptr, &delegate);
        bar.setModel(&empty, nullptr, &delegate);
    }
}

template<class Shown>
void select(benchmark::State &state)
{
    Items items;
    Shown shown;
    shown.setModel(&items);
    const QVariant wanted = int(state.range(0));
    for (auto step : state) {
        shown.select(wanted);
    }
    if (shown.selected() != wanted) {
        state.SkipWithError("not selected");
    }
}

template<class Shown>
void rename(benchmark::State &state)
{
    Items items;
    Shown shown;
    shown.setModel(&items);
    QStandardItem *const item = items.item(int(state.range(0)));
    const QString names[] = {QStringLiteral("Coated"), QStringLiteral("Uncoated")};
    int turn = 0;
    for (auto step : state) {
        item->setText(names[++turn % 2]);
    }
}

} // namespace

BENCHMARK(setModel<Bar>)->Name("SetModel/ours");
BENCHMARK(setModel<Box>)->Name("SetModel/QComboBox");
BENCHMARK(setModelWithDelegate)->Name("SetModelWithDelegate/ours");
BENCHMARK(setModel<Box>)->Name("SetModelWithDelegate/QComboBox");
BENCHMARK(select<Bar>)->Name("Select/ours")->Arg(0)->Arg(kCount - 1);
BENCHMARK(select<Box>)->Name("Select/QComboBox")->Arg(0)->Arg(kCount - 1);
BENCHMARK(rename<Bar>)->Name("Rename/ours")->Arg(0)->Arg(kCount - 1);
BENCHMARK(rename<Box>)->Name("Rename/QComboBox")->Arg(0)->Arg(kCount - 1);
