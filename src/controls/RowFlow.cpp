#include "RowFlow.h"

#include <QGridLayout>
#include <QLayoutItem>

#include <algorithm>

namespace {

constexpr Qt::Alignment kLeftAndTop = Qt::AlignLeft | Qt::AlignTop;

} // namespace

RowFlow::RowFlow(QGridLayout *targetGrid, QSpacerItem *horizontal, QSpacerItem *vertical)
    : grid(targetGrid)
    , horizontalSpacer(horizontal)
    , verticalSpacer(vertical)
{ }

RowFlow::~RowFlow()
{
    lift(verticalSpacer);
    lift(horizontalSpacer);
    delete verticalSpacer;
    delete horizontalSpacer;
}

bool RowFlow::isEndSpacer(const QLayoutItem *item) const
{
    return item == horizontalSpacer || item == verticalSpacer;
}

QSize RowFlow::cellSize() const
{
    return cell;
}

void RowFlow::empty()
{
    while (grid->takeAt(0)) { }
}

void RowFlow::begin(QSize size, int availableWidth)
{
    cell = size;
    width = availableWidth;
    step = cell.width() + grid->horizontalSpacing();
    row = 0;
    column = 0;
    usedWidth = 0;
    largestColumn = 0;
}

void RowFlow::place(QLayoutItem *item)
{
    if (isEndSpacer(item)) {
        return;
    }
    if (item->spacerItem()) {
        grid->addItem(item, row, column);
    } else {
        // The first column takes its item also when the width does not do for one.
        if (column != 0 && step + usedWidth > width) {
            ++row;
            column = 0;
            usedWidth = 0;
        }
        add(item);
        usedWidth += step;
    }
    ++column;
    largestColumn = std::max(largestColumn, column);
}

void RowFlow::end()
{
    grid->addItem(horizontalSpacer, 0, largestColumn + 1, 1, 1, kLeftAndTop);
    grid->addItem(verticalSpacer, row + 1, 0, 1, 1, kLeftAndTop);
}

void RowFlow::placeLast(QLayoutItem *item)
{
    lift(verticalSpacer);
    lift(horizontalSpacer);
    place(item);
    end();
}

void RowFlow::add(QLayoutItem *item)
{
    if (QLayout *layout = item->layout()) {
        grid->addLayout(layout, row, column, kLeftAndTop); // makes it a child, with its widgets
    } else {
        grid->addItem(item, row, column, 1, 1, kLeftAndTop);
    }
}

/// Takes the spacer out of the grid if it is there; it mostly is the last of all.
void RowFlow::lift(QSpacerItem *spacer)
{
    const int last = grid->count() - 1;
    const bool isLast = last >= 0 && grid->itemAt(last) == spacer;
    const int place = isLast ? last : grid->indexOf(spacer);
    if (place >= 0) {
        grid->takeAt(place);
    }
}
