#include "RatioReporter.h"
#include "TXWidgetListWidget.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

// The list of widgets with labels, resized and filled, in a shown window. The argument is the
// number of labels. The peers:
// - A plain grid in a scroll area with the same labels in ten columns, which stay where they are.
// - A plain grid that flows: all labels are taken out and added again in as many columns as fit.

namespace {

constexpr int kColumns = 10;
constexpr int kWidths[] = {700, 900};

QLabel *newLabel(int number)
{
    auto *label = new QLabel(QStringLiteral("Tile %1").arg(number));
    label->setFixedSize(60, 20);
    return label;
}

/// Ours.
class List : public TXWidgetListWidget
{
public:
    void add(int number) { append(newLabel(number)); }
};

/// Labels in ten columns.
class PlainGrid : public QScrollArea
{
public:
    PlainGrid()
    {
        setWidget(new QWidget);
        setWidgetResizable(true);
        grid = new QGridLayout(widget());
    }

    void add(int number)
    {
        grid->addWidget(newLabel(number), number / kColumns, number % kColumns,
                        Qt::AlignLeft | Qt::AlignTop);
    }

protected:
    QGridLayout *grid = nullptr;
};

/// As many columns as fit.
class FlowingGrid : public PlainGrid
{
protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        QList<QWidget *> labels;
        while (QLayoutItem *item = grid->takeAt(0)) {
            labels.append(item->widget());
            delete item;
        }
        const int columns = qMax(1, width() / (60 + grid->horizontalSpacing()));
        for (int i = 0; i < labels.size(); ++i) {
            grid->addWidget(labels.at(i), i / columns, i % columns, Qt::AlignLeft | Qt::AlignTop);
        }
    }
};

template<class Shown>
void fill(Shown &shown, int count)
{
    for (int i = 0; i < count; ++i) {
        shown.add(i);
    }
}

/// Resizes there and back, with all that the event loop does for it.
template<class Shown>
void resize(benchmark::State &state)
{
    Shown shown;
    fill(shown, int(state.range(0)));
    shown.show();
    QApplication::processEvents();
    for (auto step : state) {
        for (const int width : kWidths) {
            shown.resize(width, 500);
            QApplication::processEvents();
        }
    }
}

/// Fills a window before it is shown; making and deleting the labels counts for all. Ours lays all
/// out with each label, and puts that off when it has done so too often.
template<class Shown>
void append(benchmark::State &state)
{
    for (auto step : state) {
        Shown shown;
        fill(shown, int(state.range(0)));
        QApplication::processEvents();
    }
}

/// Fills a window that is shown.
template<class Shown>
void appendShown(benchmark::State &state)
{
    for (auto step : state) {
        Shown shown;
        shown.resize(kWidths[0], 500);
        shown.show();
        QApplication::processEvents();
        fill(shown, int(state.range(0)));
        QApplication::processEvents();
    }
}

void addSizes(benchmark::internal::Benchmark *family)
{
    family->ArgName("widgets")->Arg(125)->Arg(1000)->Arg(8000)->Unit(benchmark::kMillisecond);
}

/// Not as far: Qt lays the grid out again with each widget that appears.
void addFewSizes(benchmark::internal::Benchmark *family)
{
    family->ArgName("widgets")->Arg(125)->Arg(1000)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(resize<List>)->Name("Resize/ours")->Apply(addSizes);
BENCHMARK(resize<PlainGrid>)->Name("Resize/plain grid")->Apply(addSizes);
BENCHMARK(resize<FlowingGrid>)->Name("Resize/plain grid that flows")->Apply(addSizes);
BENCHMARK(append<List>)->Name("Append/ours")->Apply(addSizes);
BENCHMARK(append<PlainGrid>)->Name("Append/plain grid")->Apply(addSizes);
BENCHMARK(appendShown<List>)->Name("AppendShown/ours")->Apply(addSizes);
BENCHMARK(appendShown<PlainGrid>)->Name("AppendShown/plain grid")->Apply(addFewSizes);
