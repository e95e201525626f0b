#include "TreeViewDragAndDrop.h"

#include "FolderModel.h"

#include <QAbstractProxyModel>
#include <QDropEvent>
#include <QMimeData>
#include <QPersistentModelIndex>

#include <algorithm>
#include <cmath>

namespace {

const QString kFormatOfNothing = QStringLiteral("application/vnd.tpk.queue+xml");

/// The nearest whole coordinate, halves away from zero. What lies beyond any widget, or is no
/// number, comes as a place beyond any widget.
int wholeCoordinate(qreal coordinate)
{
    constexpr qreal kFarthest = QWIDGETSIZE_MAX;
    return std::isnan(coordinate) ? QWIDGETSIZE_MAX
                                  : int(std::lround(std::clamp(coordinate, -kFarthest, kFarthest)));
}

QPoint wholePoint(const QPointF &point)
{
    return {wholeCoordinate(point.x()), wholeCoordinate(point.y())};
}

/// A proxy must not be asked for an index of another model: it would take it for one of its own.
bool belongsTo(const QModelIndex &index, const QAbstractItemModel *model)
{
    return !index.isValid() || index.model() == model;
}

} // namespace

TreeViewDragAndDrop::TreeViewDragAndDrop(QWidget *parent)
    : QTreeView(parent)
{ }

void TreeViewDragAndDrop::setDropStrategy(QSharedPointer<IDropAllowedStrategy> strategy)
{
    // The previous one dies last, when it may look at the view again.
    dropStrategy.swap(strategy);
}

void TreeViewDragAndDrop::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    FolderModel *folders = folderModel();
    // The indexes of a model that is no longer shown mean nothing here.
    if (connectedFolders && connectedFolders != folders) {
        disconnectFromFolders(connectedFolders);
    }
    connectedFolders = folders;
    if (folders) {
        connectToFolders(folders);
        QMetaObject::invokeMethod(this, "expandAllItems", Qt::QueuedConnection);
    }
}

QModelIndex TreeViewDragAndDrop::fromProxyIndex(const QModelIndex &index) const
{
    const auto *proxy = qobject_cast<QAbstractProxyModel *>(model());
    if (!proxy) {
        return index;
    }
    return belongsTo(index, proxy) ? proxy->mapToSource(index) : QModelIndex();
}

QModelIndex TreeViewDragAndDrop::toProxyIndex(const QModelIndex &index) const
{
    const auto *proxy = qobject_cast<QAbstractProxyModel *>(model());
    if (!proxy) {
        return index;
    }
    return belongsTo(index, proxy->sourceModel()) ? proxy->mapFromSource(index) : QModelIndex();
}

void TreeViewDragAndDrop::itemHasBeenCollasped(const QModelIndex &index)
{
    emit hasBeenCollapsed(fromProxyIndex(index));
}

void TreeViewDragAndDrop::itemHasBeenExpanded(const QModelIndex &index)
{
    emit hasBeenExpanded(fromProxyIndex(index));
}

void TreeViewDragAndDrop::itemHasToBeCollapsed(const QModelIndex &index)
{
    emit hasToBeCollasped(toProxyIndex(index));
}

void TreeViewDragAndDrop::itemHasToBeExpanded(const QModelIndex &index)
{
    emit hasToBeExpanded(toProxyIndex(index));
}

void TreeViewDragAndDrop::expandAllItems()
{
    const QPointer<TreeViewDragAndDrop> self(this);
    expandAll();
    // Who hears of an expanded folder may have deleted the view.
    if (FolderModel *folders = self ? folderModel() : nullptr) {
        folders->updateExpandState();
    }
}

void TreeViewDragAndDrop::dragMoveEvent(QDragMoveEvent *event)
{
    if (!event) {
        return;
    }
    QTreeView::dragMoveEvent(event);
    if (!event->isAccepted()) {
        return;
    }
    const QModelIndex index = indexAt(wholePoint(event->position()));
    if (!isDropAllowedAt(index, event, dropIndicatorPosition())) {
        event->ignore();
    }
}

void TreeViewDragAndDrop::dropEvent(QDropEvent *event)
{
    if (!indexAt(wholePoint(event->position())).isValid()) {
        return;
    }
    QAbstractItemView::dropEvent(event);
    const QMimeData *data = event->mimeData();
    if (!data) {
        return;
    }
    const QString format = data->formats().value(0, kFormatOfNothing);
    emit itemDataDropped(QString::fromUtf8(data->data(format)), format);
}

void TreeViewDragAndDrop::enterEvent(QEnterEvent *event)
{
    const QPointer<TreeViewDragAndDrop> self(this);
    emit cursorEntreLeaveWidget(true);
    if (self) {
        QWidget::enterEvent(event);
    }
}

void TreeViewDragAndDrop::leaveEvent(QEvent *event)
{
    const QPointer<TreeViewDragAndDrop> self(this);
    emit cursorEntreLeaveWidget(false);
    if (self) {
        QWidget::leaveEvent(event);
    }
}

/// The view's model, or the one below its proxy. A second proxy is not looked through.
FolderModel *TreeViewDragAndDrop::folderModel() const
{
    if (auto *folders = qobject_cast<FolderModel *>(model())) {
        return folders;
    }
    const auto *proxy = qobject_cast<QAbstractProxyModel *>(model());
    return proxy ? qobject_cast<FolderModel *>(proxy->sourceModel()) : nullptr;
}

void TreeViewDragAndDrop::connectToFolders(FolderModel *folders)
{
    connect(this, SIGNAL(collapsed(QModelIndex)), this, SLOT(itemHasBeenCollasped(QModelIndex)));
    connect(this, SIGNAL(expanded(QModelIndex)), this, SLOT(itemHasBeenExpanded(QModelIndex)));
    connect(this, SIGNAL(hasBeenCollapsed(QModelIndex)), folders,
            SLOT(itemHasBeenCollasped(QModelIndex)));
    connect(this, SIGNAL(hasBeenExpanded(QModelIndex)), folders,
            SLOT(itemHasBeenExpanded(QModelIndex)));
    connect(folders, SIGNAL(itemHasToBeCollapsed(QModelIndex)), this,
            SLOT(itemHasToBeCollapsed(QModelIndex)));
    connect(folders, SIGNAL(itemHasToBeExpanded(QModelIndex)), this,
            SLOT(itemHasToBeExpanded(QModelIndex)));
    connect(this, SIGNAL(hasToBeCollasped(QModelIndex)), this, SLOT(collapse(QModelIndex)));
    connect(this, SIGNAL(hasToBeExpanded(QModelIndex)), this, SLOT(expand(QModelIndex)));
}

/// Takes apart what connectToFolders() has connected with the model, however often.
void TreeViewDragAndDrop::disconnectFromFolders(FolderModel *folders)
{
    disconnect(this, SIGNAL(hasBeenCollapsed(QModelIndex)), folders,
               SLOT(itemHasBeenCollasped(QModelIndex)));
    disconnect(this, SIGNAL(hasBeenExpanded(QModelIndex)), folders,
               SLOT(itemHasBeenExpanded(QModelIndex)));
    disconnect(folders, SIGNAL(itemHasToBeCollapsed(QModelIndex)), this,
               SLOT(itemHasToBeCollapsed(QModelIndex)));
    disconnect(folders, SIGNAL(itemHasToBeExpanded(QModelIndex)), this,
               SLOT(itemHasToBeExpanded(QModelIndex)));
}

bool TreeViewDragAndDrop::isDropAllowedAt(const QModelIndex &index, const QDropEvent *event,
                                          DropIndicatorPosition position)
{
    const QPointer<TreeViewDragAndDrop> self(this);
    // Becomes invalid with the model, should that die while a policy is asked.
    const QPersistentModelIndex place(index);
    const auto allows = [&place, event, position](IDropAllowedStrategy *policy) {
        return !policy
            || policy->isDropAllowed(place, event->mimeData(), event->dropAction(), position);
    };
    if (!allows(folderModel()) || !self) {
        return false;
    }
    if (!allows(dynamic_cast<IDropAllowedStrategy *>(model())) || !self) {
        return false;
    }
    // Held here, since the strategy may be replaced while it is asked.
    const QSharedPointer<IDropAllowedStrategy> strategy = dropStrategy;
    return allows(strategy.get()) && self;
}
