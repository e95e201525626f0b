#include "QSingleItemSquareLayout.h"

#include "LayoutItems.h"

#include <QWidget>
#include <QWidgetItem>

#include <algorithm>
#include <memory>
#include <utility>

QSingleItemSquareLayout::QSingleItemSquareLayout(QWidget *parent, int spacing)
    : QLayout(parent)
{
    init(spacing);
}

QSingleItemSquareLayout::QSingleItemSquareLayout(int spacing)
{
    init(spacing);
}

QSingleItemSquareLayout::~QSingleItemSquareLayout()
{
    const std::unique_ptr<QLayoutItem> last(std::exchange(item, nullptr));
    release();
}

void QSingleItemSquareLayout::init(int spacing)
{
    item = nullptr;
    lastReceivedRect = QRect();
    rect = QRect();
    setSpacing(spacing);
}

void QSingleItemSquareLayout::add(QLayoutItem *newItem)
{
    if (!item && newItem) {
        replaceItem(newItem);
    }
}

void QSingleItemSquareLayout::addItem(QLayoutItem *newItem)
{
    add(newItem);
}

void QSingleItemSquareLayout::addWidget(QWidget *widget)
{
    if (!item && widget && !LayoutItems::isInside(this, widget)) {
        addChildWidget(widget);
        add(new QWidgetItem(widget));
    }
}

Qt::Orientations QSingleItemSquareLayout::expandingDirections() const
{
    return Qt::Horizontal | Qt::Vertical;
}

bool QSingleItemSquareLayout::hasHeightForWidth() const
{
    return false;
}

QSize QSingleItemSquareLayout::sizeHint() const
{
    return minimumSize();
}

QSize QSingleItemSquareLayout::minimumSize() const
{
    // Qt asks an empty layout too.
    return item ? item->minimumSize() : QSize(0, 0);
}

QRect QSingleItemSquareLayout::geometry() const
{
    return rect;
}

int QSingleItemSquareLayout::count() const
{
    return item ? 1 : 0;
}

QLayoutItem *QSingleItemSquareLayout::itemAt(int index) const
{
    return index == 0 ? item : nullptr;
}

QLayoutItem *QSingleItemSquareLayout::takeAt(int index)
{
    return index == 0 ? take() : nullptr;
}

void QSingleItemSquareLayout::setGeometry(const QRect &newRect)
{
    if (!item) {
        return;
    }
    // A hidden widget does not take the rectangle; it would stand anywhere when it is shown.
    const bool isOverdue = isUnplaced && !item->isEmpty();
    if (areRectsEqual(newRect, lastReceivedRect) && !isOverdue) {
        return;
    }
    isUnplaced = item->isEmpty();
    setLastReceivedRect(newRect);
    const QSize square = calculateProperSize(newRect.size());
    rect = QRect(calculateCenterLocation(newRect.size(), square), square);
    item->setGeometry(rect);
    QLayout::setGeometry(rect);
}

QLayoutItem *QSingleItemSquareLayout::replaceItem(QLayoutItem *newItem)
{
    // Handing out an item that stays here would have it deleted twice.
    if (newItem && (newItem == item || !LayoutItems::fitInto(this, newItem))) {
        return nullptr;
    }
    QLayoutItem *const oldItem = std::exchange(item, newItem);
    release(); // only now: a layout that loses its parent is taken out once more
    adopt();
    isUnplaced = false;
    setGeometry(rect);
    return oldItem;
}

QLayoutItem *QSingleItemSquareLayout::take()
{
    return replaceItem(nullptr);
}

bool QSingleItemSquareLayout::hasItem() const
{
    return item != nullptr;
}

void QSingleItemSquareLayout::setLastReceivedRect(const QRect &newRect)
{
    lastReceivedRect = newRect;
}

QSize QSingleItemSquareLayout::calculateProperSize(QSize size) const
{
    const QMargins margins = contentsMargins();
    const int side = size.width() <= size.height()
        ? size.width() - margins.left() - margins.right()
        : size.height() - margins.top() - margins.bottom();
    return {side, side};
}

QPoint QSingleItemSquareLayout::calculateCenterLocation(QSize from, QSize itemSize) const
{
    const int x = from.width() - from.width() / 2 - itemSize.width() / 2;
    const int y = from.height() - from.height() / 2 - itemSize.height() / 2;
    return {std::max(x, 0), std::max(y, 0)};
}

bool QSingleItemSquareLayout::areRectsEqual(const QRect &first, const QRect &second) const
{
    return first == second;
}

void QSingleItemSquareLayout::dropItem()
{
    itemObject = nullptr;
    delete std::exchange(item, nullptr);
    invalidate();
}

/// Lets go of what stands behind the item.
void QSingleItemSquareLayout::release()
{
    if (!itemObject) {
        return;
    }
    QObject *const object = std::exchange(itemObject, nullptr);
    disconnect(object, nullptr, this, nullptr);
    if (object->parent() == this) {
        object->setParent(nullptr);
    }
}

/// Takes care of what stands behind the item. A layout becomes a child, and as such takes itself
/// out when it is destroyed; a widget need not be a child of our parent widget, and is watched.
void QSingleItemSquareLayout::adopt()
{
    if (!item) {
        return;
    }
    if (QLayout *layout = item->layout()) {
        addChildLayout(layout);
        itemObject = layout;
    } else if (QWidget *widget = item->widget()) {
        connect(widget, SIGNAL(destroyed()), this, SLOT(dropItem()));
        itemObject = widget;
    }
}
