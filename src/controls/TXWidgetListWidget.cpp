#include "TXWidgetListWidget.h"

#include "LayoutItems.h"
#include "RowFlow.h"
#include "ui_TXWidgetListWidget.h"

#include <QChildEvent>
#include <QEvent>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

/// So many items may be laid out by changes of the list before control goes back to the event loop:
/// a thousand changes of a thousand items are seen at once, any number does not cost the square.
constexpr qsizetype kItemsPerTurn = 1'000'000;

/// Without any hint the cell is (-1, -1), which Qt would warn of.
QSize possibleSize(QSize cell)
{
    return cell.expandedTo({0, 0});
}

QObject *objectBehind(QLayoutItem *item)
{
    QObject *const layout = item->layout();
    return layout ? layout : item->widget();
}

} // namespace

TXWidgetListWidget::TXWidgetListWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXWidgetListWidget>())
    , allowance(kItemsPerTurn)
{
    ui->setupUi(this);
    nameArea();
    ui->horizontalLayout->removeItem(ui->horizontalSpacer);
    ui->horizontalLayout->removeItem(ui->verticalSpacer);
    flow = std::make_unique<RowFlow>(ui->gridLayout, ui->horizontalSpacer, ui->verticalSpacer);
    ui->scrollAreaWidgetContents->installEventFilter(this);
}

TXWidgetListWidget::~TXWidgetListWidget()
{
    // The widgets die after this object, when nobody is there any more to be told of it.
    ui->scrollAreaWidgetContents->removeEventFilter(this);
    for (auto object = itemsOf.keyBegin(); object != itemsOf.keyEnd(); ++object) {
        disconnect(*object, nullptr, this, nullptr);
    }
}

int TXWidgetListWidget::count() const
{
    return int(items.size());
}

int TXWidgetListWidget::indexOf(QWidget *widget)
{
    const auto isIts = [widget](const QLayoutItem *item) {
        return item->widget() == widget;
    };
    const auto found = std::find_if(items.cbegin(), items.cend(), isIts);
    return widget && found != items.cend() ? int(found - items.cbegin()) : -1;
}

int TXWidgetListWidget::indexOf(QLayoutItem *item)
{
    return int(items.indexOf(item));
}

bool TXWidgetListWidget::contains(QWidget *widget)
{
    return indexOf(widget) >= 0;
}

bool TXWidgetListWidget::contains(QLayoutItem *item)
{
    return indexOf(item) >= 0;
}

QWidget *TXWidgetListWidget::widgetAt(int index)
{
    QLayoutItem *item = items.value(index);
    return item ? item->widget() : nullptr;
}

QSpacerItem *TXWidgetListWidget::spacerItemAt(int index)
{
    QLayoutItem *item = items.value(index);
    return item ? item->spacerItem() : nullptr;
}

QList<QLayoutItem *> TXWidgetListWidget::layoutItems() const
{
    return items;
}

void TXWidgetListWidget::append(QWidget *widget)
{
    insert(count(), widget);
}

void TXWidgetListWidget::append(QLayoutItem *item)
{
    insert(count(), item);
}

void TXWidgetListWidget::insert(int index, QWidget *widget)
{
    if (!widget || LayoutItems::isInside(ui->gridLayout, widget)) {
        return;
    }
    widget->setParent(ui->scrollAreaWidgetContents);
    insert(index, new QWidgetItem(widget));
}

void TXWidgetListWidget::insert(int index, QLayoutItem *item)
{
    if (!isTakeable(item)) {
        return;
    }
    const bool isInside = index >= 0 && index < items.size();
    items.insert(isInside ? index : items.size(), item);
    watch(item);
    // Into the grid in any case, which owns all items, also when the pass has to wait.
    flow->placeLast(item);
    rearrange();
}

bool TXWidgetListWidget::removeAt(int index)
{
    if (index < 0 || index >= items.size()) {
        return false;
    }
    QLayoutItem *const item = items.takeAt(index);
    takeOut(item, index);
    drop(item);
    rearrange();
    return true;
}

bool TXWidgetListWidget::removeWidget(QWidget *widget)
{
    return removeAt(indexOf(widget));
}

bool TXWidgetListWidget::removeItem(QLayoutItem *item)
{
    return removeAt(indexOf(item));
}

void TXWidgetListWidget::clear()
{
    flow->empty();
    const QList<QLayoutItem *> removed = std::exchange(items, {});
    for (QLayoutItem *item : removed) {
        drop(item);
    }
    reorganize();
}

void TXWidgetListWidget::reorganize()
{
    if (isInPass) {
        rearrange();
        return;
    }
    const QSignalBlocker blocker(this);
    {
        // Hints and resizing run the widgets' own code, which may change the list.
        const QScopedValueRollback<bool> pass(isInPass, true);
        isPassDue = false;
        const QSize cell = measure();
        fixSizes(cell);
        flow->empty();
        flow->begin(cell, ui->scrollArea->width());
    }
    for (QLayoutItem *item : std::as_const(items)) {
        flow->place(item);
    }
    flow->end();
}

void TXWidgetListWidget::reorganize(QList<QLayoutItem *> newItems)
{
    QSet<QLayoutItem *> kept;
    const auto isUnfit = [this, &kept](QLayoutItem *item) {
        const bool isRepeated = kept.contains(item);
        kept.insert(item);
        return isRepeated || !(objectOf.contains(item) || isTakeable(item));
    };
    newItems.removeIf(isUnfit);
    flow->empty();
    flow->begin(flow->cellSize(), ui->scrollArea->width());
    for (QLayoutItem *item : std::as_const(items)) {
        if (!kept.contains(item)) {
            unwatch(item);
        }
    }
    items = newItems;
    for (QLayoutItem *item : std::as_const(newItems)) {
        if (!objectOf.contains(item)) {
            watch(item);
        }
        flow->placeLast(item);
    }
    reorganize();
    settleLater();
}

QFrame::Shape TXWidgetListWidget::frameShape() const
{
    return ui->scrollArea->frameShape();
}

void TXWidgetListWidget::setFrameShape(QFrame::Shape shape)
{
    ui->scrollArea->setFrameShape(shape);
}

bool TXWidgetListWidget::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ChildRemoved && object == ui->scrollAreaWidgetContents) {
        dropItemsOf(static_cast<QChildEvent *>(event)->child());
    }
    return QWidget::eventFilter(object, event);
}

void TXWidgetListWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameArea();
    }
}

void TXWidgetListWidget::nameArea()
{
    if (ui->scrollArea->accessibleName() == areaName) {
        areaName = tr("Items");
        ui->scrollArea->setAccessibleName(areaName);
    }
}

void TXWidgetListWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    reorganize();
}

void TXWidgetListWidget::dropItemsOf(QObject *object)
{
    const QList<QLayoutItem *> dropped = itemsOf.values(object);
    for (QLayoutItem *item : dropped) {
        items.removeOne(item);
        unwatch(item);
        // Qt deletes the first item of a widget that goes, and a layout is its own item.
        const int place = ui->gridLayout->indexOf(item);
        if (place >= 0) {
            delete ui->gridLayout->takeAt(place);
        }
    }
    if (!dropped.isEmpty()) {
        isPassDue = true;
        settleLater();
    }
}

void TXWidgetListWidget::settle()
{
    isSettlingPosted = false;
    allowance = kItemsPerTurn;
    if (isPassDue) {
        reorganize();
    }
    showNewWidgets();
}

bool TXWidgetListWidget::isTakeable(QLayoutItem *item) const
{
    return item && !objectOf.contains(item) && LayoutItems::fitInto(ui->gridLayout, item);
}

void TXWidgetListWidget::watch(QLayoutItem *item)
{
    QObject *const object = objectBehind(item);
    objectOf.insert(item, object);
    if (!object) {
        return;
    }
    if (!itemsOf.contains(object)) {
        connect(object, SIGNAL(destroyed(QObject *)), this, SLOT(dropItemsOf(QObject *)));
    }
    itemsOf.insert(object, item);
}

void TXWidgetListWidget::unwatch(QLayoutItem *item)
{
    QObject *const object = objectOf.take(item);
    if (!object) {
        return;
    }
    itemsOf.remove(object, item);
    if (!itemsOf.contains(object)) {
        disconnect(object, SIGNAL(destroyed(QObject *)), this, SLOT(dropItemsOf(QObject *)));
    }
}

/// Deletes an item that is in neither list nor grid any more.
void TXWidgetListWidget::drop(QLayoutItem *item)
{
    unwatch(item);
    // A host can find the two spacers in the grid and put them into the list too.
    if (!flow->isEndSpacer(item)) {
        delete item;
    }
}

/// Takes the item out of the grid by its position, which mostly is that in the list.
void TXWidgetListWidget::takeOut(QLayoutItem *item, int index)
{
    const bool isThere = ui->gridLayout->itemAt(index) == item;
    const int place = isThere ? index : ui->gridLayout->indexOf(item);
    if (place >= 0) {
        ui->gridLayout->takeAt(place);
    }
}

/// Lays the list out after a change, now or from the event loop.
void TXWidgetListWidget::rearrange()
{
    settleLater();
    if (!isInPass && allowance >= items.size()) {
        allowance -= items.size();
        reorganize();
    } else {
        isPassDue = true;
    }
}

void TXWidgetListWidget::settleLater()
{
    if (!isSettlingPosted) {
        isSettlingPosted = QMetaObject::invokeMethod(this, "settle", Qt::QueuedConnection);
    }
}

/// The size that holds every widget's hint.
QSize TXWidgetListWidget::measure()
{
    QSize cell(-1, -1);
    for (int i = 0; i < count(); ++i) {
        if (const QWidget *widget = widgetAt(i)) {
            cell = cell.expandedTo(widget->sizeHint());
        }
    }
    // No size can be fixed beyond that, and sums of widths stay within an int.
    return cell.boundedTo({QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX - 1});
}

void TXWidgetListWidget::fixSizes(QSize size)
{
    for (int i = 0; i < count(); ++i) {
        if (QWidget *widget = widgetAt(i)) {
            widget->setFixedSize(possibleSize(size));
        }
    }
}

bool TXWidgetListWidget::isWaitingToBeShown(const QWidget *widget) const
{
    const QWidget *contents = ui->scrollAreaWidgetContents;
    return widget && widget->parentWidget() == contents && contents->isVisible()
        && widget->isHidden() && !widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

/// Shows what has come to a visible list, as Qt's layouts do. Each show() would lay the whole grid
/// out at once; one layout after all of them is enough. What remains is a search of Qt's own among
/// the siblings for each, to be felt from 10,000 new widgets at a time on.
void TXWidgetListWidget::showNewWidgets()
{
    ui->gridLayout->setEnabled(false);
    for (int i = 0; i < count(); ++i) {
        QWidget *const widget = widgetAt(i);
        if (isWaitingToBeShown(widget)) {
            widget->show();
        }
    }
    ui->gridLayout->setEnabled(true);
    ui->gridLayout->activate();
}
