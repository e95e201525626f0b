#include "TXLogModel.h"

#include "TXResources.h"

#include <QMutexLocker>
#include <QPixmap>

namespace {

qsizetype countChildren(const TXLogItem &item)
{
    const QMutexLocker locker(&item.mutex);
    return item.children.size();
}

/// Null past the end.
QSharedPointer<TXLogItem> childAt(const TXLogItem &item, qsizetype position)
{
    const QMutexLocker locker(&item.mutex);
    return item.children.value(position);
}

bool isTopLevel(const TXLogItem &item)
{
    return item.parent && !item.parent->parent;
}

} // namespace

TXLogModel::TXLogModel(QSharedPointer<TXLogManager> manager, QObject *parent)
    : QAbstractItemModel(parent)
    , logManager(std::move(manager))
    , root(logManager->rootItem().data())
{
    connect(root, SIGNAL(itemAppended(QSharedPointer<TXLogItem>)), this,
            SLOT(rowAppended(QSharedPointer<TXLogItem>)));
    connect(root, SIGNAL(itemDeleted(QSharedPointer<TXLogItem>)), this,
            SLOT(rowDeleted(QSharedPointer<TXLogItem>)));
    connect(logManager.data(), SIGNAL(hasBeenReset()), this, SLOT(modelReset()));
}

QModelIndex TXLogModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= ColumnCount) {
        return {};
    }
    const auto children = rows.constFind(itemOf(parent));
    if (children == rows.constEnd() || row >= children->size()) {
        return {};
    }
    return createIndex(row, column, children->at(row).data());
}

QModelIndex TXLogModel::parent(const QModelIndex &index) const
{
    const TXLogItem *item = index.isValid() ? itemOf(index) : nullptr;
    if (!item || !item->parent || !item->parent->parent) {
        return {};
    }
    const int row = rowOf(item->parent);
    return row < 0 ? QModelIndex() : createIndex(row, 0, item->parent);
}

int TXLogModel::rowCount(const QModelIndex &parent) const
{
    const auto children = rows.constFind(itemOf(parent));
    return children == rows.constEnd() ? 0 : int(children->size());
}

int TXLogModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant TXLogModel::data(const QModelIndex &index, int role) const
{
    const TXLogItem *item = index.isValid() ? itemOf(index) : nullptr;
    if (!item) {
        return {};
    }
    if (role == Qt::DecorationRole) {
        return index.column() == MessageColumn ? levelIcon(*item) : QVariant();
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return text(index, *item, role);
    }
    return {};
}

QVariant TXLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation != Qt::Horizontal) {
        return QString::number(section);
    }
    switch (section) {
    case DateColumn:
        return tr("Date");
    case MessageColumn:
        return tr("Message");
    default:
        return QString();
    }
}

Qt::ItemFlags TXLogModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

QModelIndex TXLogModel::index(TXLogItem *item, int column, const QModelIndex &parent)
{
    if (!item || column < 0 || column >= ColumnCount) {
        return {};
    }
    const int row = rowOf(item);
    const TXLogItem *searched = itemOf(parent);
    // Up from the item to where the search starts; an item that has lost its sub-items, or is not
    // shown itself, hides what was below it.
    TXLogItem *above = item->parent;
    for (; row >= 0 && above && above != searched; above = above->parent) {
        if (countChildren(*above) == 0 || rowOf(above) < 0) {
            return {};
        }
    }
    return row >= 0 && above ? createIndex(row, column, item) : QModelIndex();
}

QList<QSharedPointer<TXLogItem>> TXLogModel::itemsBelow(const QModelIndex &parent) const
{
    return rows.value(itemOf(parent));
}

void TXLogModel::clear()
{
    beginResetModel();
    root->removeAllChildren();
    rows.clear();
    droppedParents.clear();
    unevenParents.clear();
    endResetModel();
}

void TXLogModel::modelReset()
{
    beginResetModel();
    endResetModel();
}

void TXLogModel::rowAppended(QSharedPointer<TXLogItem> item)
{
    if (item) {
        mirrorAppended(item);
    }
}

void TXLogModel::rowDeleted(QSharedPointer<TXLogItem> item)
{
    if (item) {
        mirrorDeleted(*item);
    }
}

/// Shows the item, if its parent is shown, and then what it brings with it. The children are asked
/// for anew each time, as the log may grow meanwhile.
void TXLogModel::mirrorAppended(const QSharedPointer<TXLogItem> &item)
{
    QModelIndex parentIndex;
    if (findParentIndex(*item, &parentIndex)) {
        Children &siblings = rows[item->parent];
        if (!siblings.isEmpty() && item->number() != siblings.last()->number() + 1) {
            unevenParents.insert(item->parent);
        }
        const int row = int(siblings.size());
        beginInsertRows(parentIndex, row, row);
        siblings.append(item);
        endInsertRows();
    }
    qsizetype position = 0;
    while (const QSharedPointer<TXLogItem> child = childAt(*item, position++)) {
        mirrorAppended(child);
    }
}

/// Drops the first row of the item's parent, whichever item is named, and then looks at what the
/// item had below it in the same way.
void TXLogModel::mirrorDeleted(const TXLogItem &item)
{
    QModelIndex parentIndex;
    if (findParentIndex(item, &parentIndex)) {
        removeFirstRow(item.parent, parentIndex);
    }
    qsizetype position = 0;
    while (const QSharedPointer<TXLogItem> child = childAt(item, position++)) {
        mirrorDeleted(*child);
    }
}

/// The item that stands behind the index; the root for the invalid one.
TXLogItem *TXLogModel::itemOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<TXLogItem *>(index.internalPointer()) : root;
}

/// The row of a shown item, -1 for any other. Rows come at the end and go at the front, so that the
/// running numbers of the items in them are consecutive and tell the row without a search.
int TXLogModel::rowOf(TXLogItem *item) const
{
    const auto siblings = rows.constFind(item->parent);
    if (siblings == rows.constEnd() || siblings->isEmpty()) {
        return -1;
    }
    const auto isItem = [item](const QSharedPointer<TXLogItem> &other) {
        return other == item;
    };
    if (unevenParents.contains(item->parent)) {
        const auto found = std::find_if(siblings->cbegin(), siblings->cend(), isItem);
        return found == siblings->cend() ? -1 : int(found - siblings->cbegin());
    }
    const qint64 row = item->number() - siblings->first()->number();
    const bool isShown = row >= 0 && row < siblings->size() && isItem(siblings->at(row));
    return isShown ? int(row) : -1;
}

/// False when the parent of the item is not shown.
bool TXLogModel::findParentIndex(const TXLogItem &item, QModelIndex *parentIndex)
{
    if (item.parent == root) {
        return true;
    }
    *parentIndex = index(item.parent, 0, QModelIndex());
    return parentIndex->isValid();
}

void TXLogModel::removeFirstRow(TXLogItem *parentItem, const QModelIndex &parentIndex)
{
    const auto siblings = rows.find(parentItem);
    // A log that was filled before the model came drops items that never had a row.
    if (siblings == rows.end() || siblings->isEmpty()) {
        return;
    }
    beginRemoveRows(parentIndex, 0, 0);
    const QSharedPointer<TXLogItem> removed = siblings->takeFirst();
    if (rows.contains(removed.data())) {
        droppedParents.append(removed);
    }
    endRemoveRows();
}

QVariant TXLogModel::levelIcon(const TXLogItem &item) const
{
    if (!isTopLevel(item)) {
        return {};
    }
    switch (item.level) {
    case TXLogItem::Information:
        return TXDisplayLittleInformationBulletStaticImage();
    case TXLogItem::Warning:
        return TXDisplayLittleWarningBulletStaticImage();
    case TXLogItem::Error:
        return TXDisplayLittleErrorBulletStaticImage();
    default:
        return {};
    }
}

QVariant TXLogModel::text(const QModelIndex &index, const TXLogItem &item, int role) const
{
    switch (index.column()) {
    case DateColumn:
        return parent(index).isValid() ? QVariant() : QVariant(item.date);
    case MessageColumn: {
        const QString message = item.message.toString(nullptr);
        // The way there and back translates a message that was stored in its flat form.
        return role == Qt::EditRole ? message : TXStringI18n::fromString(message).toString(nullptr);
    }
    case LevelColumn:
        return item.level == TXLogItem::Warning || item.level == TXLogItem::Error
            ? item.level
            : int(TXLogItem::Information);
    default:
        return {};
    }
}
