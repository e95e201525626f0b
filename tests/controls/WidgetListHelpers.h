#pragma once

#include "TXWidgetListWidget.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>

// What the tests of the list of widgets share.

/// A widget with a size hint to set.
class HintedWidget : public QWidget
{
public:
    explicit HintedWidget(const QSize &size, QWidget *parent = nullptr)
        : QWidget(parent)
        , hint(size)
    { }

    [[nodiscard]] QSize sizeHint() const override
    {
        ++asked;
        return hint;
    }

    QSize hint;
    static inline qsizetype asked = 0;
};

/// An item that is neither widget nor spacer nor layout.
class BareItem : public QLayoutItem
{
public:
    BareItem() { ++alive; }
    ~BareItem() override { --alive; }
    BareItem(const BareItem &) = delete;
    BareItem &operator=(const BareItem &) = delete;

    [[nodiscard]] QSize sizeHint() const override { return {500, 500}; }
    [[nodiscard]] QSize minimumSize() const override { return {5, 5}; }
    [[nodiscard]] QSize maximumSize() const override { return {500, 500}; }
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &place) override { rect = place; }
    [[nodiscard]] QRect geometry() const override { return rect; }
    [[nodiscard]] bool isEmpty() const override { return false; }

    QRect rect;
    static inline int alive = 0;
};

/// A spacer that counts its lives.
class CountedSpacer : public QSpacerItem
{
public:
    CountedSpacer()
        : QSpacerItem(3, 3)
    {
        ++alive;
    }
    ~CountedSpacer() override { --alive; }
    CountedSpacer(const CountedSpacer &) = delete;
    CountedSpacer &operator=(const CountedSpacer &) = delete;

    static inline int alive = 0;
};

inline QGridLayout *gridOf(const QWidget &list)
{
    return list.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
}

inline QScrollArea *scrollAreaOf(const QWidget &list)
{
    return list.findChild<QScrollArea *>(QStringLiteral("scrollArea"));
}

inline QWidget *contentsOf(const QWidget &list)
{
    return list.findChild<QWidget *>(QStringLiteral("scrollAreaWidgetContents"));
}

/// Column and row of the item; (-1, -1) when it is not in the grid.
inline QPoint cellOf(const QWidget &list, const QLayoutItem *item)
{
    const QGridLayout *grid = gridOf(list);
    const int index = grid->indexOf(item);
    QPoint cell(-1, -1);
    if (index >= 0) {
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &cell.ry(), &cell.rx(), &rows, &columns);
    }
    return cell;
}

/// Column and row of each item.
inline QList<QPoint> cellsOf(const TXWidgetListWidget &list)
{
    QList<QPoint> cells;
    const QList<QLayoutItem *> items = list.layoutItems();
    for (const QLayoutItem *item : items) {
        cells.append(cellOf(list, item));
    }
    return cells;
}

/// Column and row of each item, with those of the two spacers at the ends behind them.
inline QList<QPoint> allCellsOf(const TXWidgetListWidget &list)
{
    QList<QPoint> cells = cellsOf(list);
    const QGridLayout *grid = gridOf(list);
    for (int i = list.count(); i < grid->count(); ++i) {
        cells.append(cellOf(list, grid->itemAt(i)));
    }
    return cells;
}

/// What allCellsOf() is to be, by plain counting, for a list of widgets and spacers.
inline QList<QPoint> plainCellsOf(const TXWidgetListWidget &list, QSize cell)
{
    QList<QPoint> cells;
    const int step = cell.width() + gridOf(list)->horizontalSpacing();
    const int width = scrollAreaOf(list)->width();
    QPoint place(0, 0);
    int used = 0;
    int largest = 0;
    const QList<QLayoutItem *> items = list.layoutItems();
    for (QLayoutItem *item : items) {
        if (!item->spacerItem()) {
            if (place.x() > 0 && used + step > width) {
                place = {0, place.y() + 1};
                used = 0;
            }
            used += step;
        }
        cells.append(place);
        place.rx() += 1;
        largest = qMax(largest, place.x());
    }
    return cells << QPoint(largest + 1, 0) << QPoint(0, place.y() + 1);
}

/// The size that holds the hints of all widgets of the list.
inline QSize plainSizeOf(TXWidgetListWidget &list)
{
    QSize size(-1, -1);
    for (int i = 0; i < list.count(); ++i) {
        if (const QWidget *widget = list.widgetAt(i)) {
            size = size.expandedTo(widget->sizeHint());
        }
    }
    return size;
}
