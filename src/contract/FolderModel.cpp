#include "FolderModel.h"

#include "FolderDrag.h"
#include "FolderTree.h"

#include <QAbstractProxyModel>
#include <QMimeData>

#include <limits>

namespace {

/// No folder has this id.
constexpr quintptr kNoFolder = std::numeric_limits<quintptr>::max();

/// Follows an index through the proxies that show `model`.
QModelIndex mappedTo(const QAbstractItemModel *model, QModelIndex index)
{
    while (index.isValid() && index.model() != model) {
        const auto *proxy = qobject_cast<const QAbstractProxyModel *>(index.model());
        index = proxy ? proxy->mapToSource(index) : QModelIndex();
    }
    return index;
}

bool hasRows(const Folder *parent, int row, int count)
{
    return parent && row >= 0 && count > 0 && count <= parent->children.size() - row;
}

bool isAmong(const QList<Folder *> &folders, const Folder *parent)
{
    const QSet<const Folder *> moved(folders.cbegin(), folders.cend());
    while (parent && !moved.contains(parent)) {
        parent = parent->parent;
    }
    return parent != nullptr;
}

/// The first folder at or behind `row` that stays where it is; null means the end.
const Folder *nextThatStays(const Folder *parent, int row, const QList<Folder *> &moved)
{
    const QSet<const Folder *> leaving(moved.cbegin(), moved.cend());
    for (; row >= 0 && row < parent->children.size(); ++row) {
        if (!leaving.contains(parent->children.at(row))) {
            return parent->children.at(row);
        }
    }
    return nullptr;
}

QList<quintptr> idsOf(const QList<Folder *> &folders)
{
    QList<quintptr> ids;
    for (const Folder *folder : folders) {
        ids.append(folder->id);
    }
    return ids;
}

} // namespace

FolderModel::FolderModel(QObject *parent)
    : QAbstractItemModel(parent)
    , tree(std::make_unique<FolderTree>())
    , dragToken(FolderDrag::makeToken())
{ }

FolderModel::~FolderModel() = default;

QModelIndex FolderModel::addFolder(const QString &name, const QModelIndex &parent)
{
    Folder *above = folderOrRoot(parent);
    const QString stored = name.trimmed();
    if (!above || stored.isEmpty() || above->childNames.contains(stored)) {
        return {};
    }
    const int row = int(above->children.size());
    const quintptr aboveId = above->id;
    beginInsertRows(indexOf(above), row, row);
    const quintptr id = tree->append(above, stored)->id;
    endInsertRows();
    if (row == 0) {
        askToExpand(aboveId);
    }
    return indexOf(tree->find(id));
}

bool FolderModel::rename(const QModelIndex &index, const QString &name)
{
    Folder *folder = folderOf(index);
    const QString stored = name.trimmed();
    if (!folder || stored.isEmpty()) {
        return false;
    }
    if (stored == folder->name) {
        return true;
    }
    if (folder->parent->childNames.contains(stored)) {
        return false;
    }
    FolderTree::rename(folder, stored);
    const QModelIndex changed = indexOf(folder);
    emit dataChanged(changed, changed, {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole});
    return true;
}

bool FolderModel::remove(const QModelIndex &index)
{
    const Folder *folder = folderOf(index);
    return folder && removeRows(folder->row, 1, indexOf(folder->parent));
}

bool FolderModel::isExpanded(const QModelIndex &index) const
{
    const Folder *folder = folderOf(index);
    return folder && folder->expanded;
}

void FolderModel::updateExpandState()
{
    for (const quintptr id : qAsConst(unconfirmedExpansions)) {
        if (Folder *folder = tree->find(id)) {
            folder->expanded = false;
        }
    }
    unconfirmedExpansions.clear();

    const QList<quintptr> ids = idsOf(tree->allFolders());
    // By id, since who hears the signals may change the tree.
    for (const quintptr id : ids) {
        const Folder *folder = tree->find(id);
        if (!folder || folder->children.isEmpty()) {
            continue;
        }
        if (folder->expanded) {
            emit itemHasToBeExpanded(indexOf(folder));
        } else {
            emit itemHasToBeCollapsed(indexOf(folder));
        }
    }
}

bool FolderModel::isDropAllowed(const QModelIndex &index, const QMimeData *mimeData,
                                Qt::DropAction action, DropIndicatorPosition position)
{
    if (!mimeData) {
        return false;
    }
    const QList<Folder *> folders = FolderDrag::decode(dragToken, *tree, mimeData);
    if (folders.isEmpty()) {
        return true;
    }
    const Folder *parent = dropParent(index, position);
    return parent && action == Qt::MoveAction && canMoveInto(folders, parent);
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex &parent) const
{
    const Folder *above = folderOrRoot(parent);
    if (column != 0 || !hasRows(above, row, 1)) {
        return {};
    }
    return indexOf(above->children.at(row));
}

QModelIndex FolderModel::parent(const QModelIndex &index) const
{
    const Folder *folder = folderOf(index);
    return folder ? indexOf(folder->parent) : QModelIndex();
}

int FolderModel::rowCount(const QModelIndex &parent) const
{
    const Folder *above = folderOrRoot(parent);
    return above ? int(above->children.size()) : 0;
}

int FolderModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant FolderModel::data(const QModelIndex &index, int role) const
{
    const Folder *folder = folderOf(index);
    const bool isName = role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::ToolTipRole;
    return folder && isName ? QVariant(folder->name) : QVariant();
}

bool FolderModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::EditRole && rename(index, value.toString());
}

Qt::ItemFlags FolderModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled;
    }
    if (!folderOf(index)) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled
        | Qt::ItemIsDropEnabled;
}

bool FolderModel::removeRows(int row, int count, const QModelIndex &parent)
{
    Folder *above = folderOrRoot(parent);
    if (!hasRows(above, row, count)) {
        return false;
    }
    beginRemoveRows(indexOf(above), row, row + count - 1);
    tree->remove(above, row, count);
    endRemoveRows();
    return true;
}

bool FolderModel::moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                           const QModelIndex &destinationParent, int destinationChild)
{
    Folder *from = folderOrRoot(sourceParent);
    Folder *into = folderOrRoot(destinationParent);
    if (!hasRows(from, sourceRow, count) || !into || destinationChild < 0
        || destinationChild > into->children.size()
        || !canMoveInto(from->children.mid(sourceRow, count), into)) {
        return false;
    }
    const int last = sourceRow + count - 1;
    if (!beginMoveRows(indexOf(from), sourceRow, last, indexOf(into), destinationChild)) {
        return false;
    }
    const bool wasEmpty = into->children.isEmpty();
    FolderTree::move(from, sourceRow, count, into, destinationChild);
    const quintptr intoId = into->id;
    endMoveRows();
    if (wasEmpty) {
        askToExpand(intoId);
    }
    return true;
}

QStringList FolderModel::mimeTypes() const
{
    return {FolderDrag::mimeType()};
}

QMimeData *FolderModel::mimeData(const QModelIndexList &indexes) const
{
    QList<Folder *> folders;
    for (const QModelIndex &index : indexes) {
        if (Folder *folder = folderOf(index)) {
            folders.append(folder);
        }
    }
    if (folders.isEmpty()) {
        return nullptr;
    }
    auto data = std::make_unique<QMimeData>();
    data->setData(FolderDrag::mimeType(), FolderDrag::encode(dragToken, folders));
    return data.release();
}

Qt::DropActions FolderModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

bool FolderModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                                  const QModelIndex &parent) const
{
    const QList<Folder *> folders = FolderDrag::decode(dragToken, *tree, data);
    const Folder *into = folderOrRoot(parent);
    return into && !folders.isEmpty() && action == Qt::MoveAction && canMoveInto(folders, into);
}

bool FolderModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                               const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    Folder *into = folderOrRoot(parent);
    const QList<Folder *> folders = FolderDrag::decode(dragToken, *tree, data);
    const Folder *before = nextThatStays(into, row, folders);
    // By id, since who hears of one move may take away what was to move next.
    const quintptr intoId = into->id;
    const quintptr beforeId = before ? before->id : kNoFolder;
    QList<QList<quintptr>> runs;
    for (const QList<Folder *> &run : FolderDrag::toRuns(folders)) {
        runs.append(idsOf(run));
    }
    for (const QList<quintptr> &run : qAsConst(runs)) {
        moveRun(run, intoId, beforeId);
    }
    return false;
}

void FolderModel::itemHasBeenCollasped(const QModelIndex &index)
{
    if (Folder *folder = folderOf(index)) {
        folder->expanded = false;
    }
}

void FolderModel::itemHasBeenExpanded(const QModelIndex &index)
{
    Folder *folder = folderOf(index);
    if (!folder || folder->expanded) {
        return;
    }
    folder->expanded = true;
    // A view that expands everything reports it folder by folder; what it is doing is known only
    // when it calls updateExpandState() or the event loop turns without that.
    if (sender()) {
        if (unconfirmedExpansions.isEmpty()) {
            QMetaObject::invokeMethod(this, "believeExpansions", Qt::QueuedConnection);
        }
        unconfirmedExpansions.append(folder->id);
    }
}

void FolderModel::believeExpansions()
{
    unconfirmedExpansions.clear();
}

Folder *FolderModel::folderOf(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this ? tree->find(index.internalId()) : nullptr;
}

Folder *FolderModel::folderOrRoot(const QModelIndex &index) const
{
    return index.isValid() ? folderOf(index) : tree->root();
}

QModelIndex FolderModel::indexOf(const Folder *folder) const
{
    return folder && folder->parent ? createIndex(folder->row, 0, folder->id) : QModelIndex();
}

Folder *FolderModel::dropParent(const QModelIndex &index, DropIndicatorPosition position) const
{
    if (!index.isValid() || position == OnViewport) {
        return tree->root();
    }
    Folder *folder = folderOf(mappedTo(this, index));
    return folder && position != OnItem ? folder->parent : folder;
}

bool FolderModel::canMoveInto(const QList<Folder *> &folders, const Folder *parent) const
{
    if (isAmong(folders, parent)) {
        return false;
    }
    QSet<QString> arriving;
    for (const Folder *folder : folders) {
        if (folder->parent == parent) {
            continue;
        }
        if (parent->childNames.contains(folder->name) || arriving.contains(folder->name)) {
            return false;
        }
        arriving.insert(folder->name);
    }
    return true;
}

/// Moves siblings that stand side by side. Where one of them is gone by now, none is moved.
void FolderModel::moveRun(const QList<quintptr> &run, quintptr intoId, quintptr beforeId)
{
    const Folder *into = tree->find(intoId);
    const Folder *first = tree->find(run.first());
    if (!into || !first || idsOf(first->parent->children.mid(first->row, run.size())) != run) {
        return;
    }
    const Folder *before = tree->find(beforeId);
    const int row = before && before->parent == into ? before->row : int(into->children.size());
    moveRows(indexOf(first->parent), first->row, int(run.size()), indexOf(into), row);
}

void FolderModel::askToExpand(quintptr id)
{
    const Folder *folder = tree->find(id);
    if (folder && folder->parent && folder->expanded) {
        emit itemHasToBeExpanded(indexOf(folder));
    }
}
