#pragma once

#include <QSize>

class QGridLayout;
class QLayoutItem;
class QSpacerItem;

/// Lays items of one size into a grid as text is set: from left to right, and in a new row when the
/// width is used up. Behind the last column and below the last row stands a spacer each.
///
/// Items that are placed belong to the grid; the two spacers belong to the grid while they are in
/// it, and else to this object, which must not outlive the grid.
///
/// All but empty() and the destructor takes the same time however many items there are. Rows and
/// columns that a grid once had it keeps; empty, they take no room.
class RowFlow
{
public:
    /// Takes the two spacers over. Nothing is placed yet.
    RowFlow(QGridLayout *targetGrid, QSpacerItem *horizontal, QSpacerItem *vertical);
    /// Deletes the spacers that are not in the grid.
    ~RowFlow();
    RowFlow(const RowFlow &) = delete;
    RowFlow &operator=(const RowFlow &) = delete;

    /// True for the two spacers, which are never placed among the items.
    [[nodiscard]] bool isEndSpacer(const QLayoutItem *item) const;
    /// The size of each cell.
    [[nodiscard]] QSize cellSize() const;

    /// Takes all out of the grid without deleting it.
    void empty();
    /// Goes back to the first cell, to place items of this size in rows of this width in pixels.
    void begin(QSize size, int availableWidth);
    /// Puts the item into the next cell. A spacer takes a column and no width.
    void place(QLayoutItem *item);
    /// Puts the spacers behind what was placed.
    void end();
    /// Puts one more item into the next cell, and the spacers behind it.
    void placeLast(QLayoutItem *item);

private:
    void add(QLayoutItem *item);
    void lift(QSpacerItem *spacer);

    QGridLayout *grid;
    QSpacerItem *horizontalSpacer;
    QSpacerItem *verticalSpacer;
    QSize cell = {-1, -1};
    int width = 0;
    int step = 0;
    int row = 0;
    int column = 0;
    int usedWidth = 0;
    int largestColumn = 0;
};
