// How the model follows the changes of its source.

#include "ExtraItemProxyComboModel.h"

namespace {

/// Which of our slots hears which signal of the source.
struct Follower
{
    const char *signal;
    const char *slot;
};

// Without blanks QObject finds a name at once. It would write any other anew at each connect, which
// costs three times as much.
// clang-format off
const Follower kFollowers[] = {
    {SIGNAL(rowsAboutToBeInserted(QModelIndex,int,int)),
     SLOT(beforeRowsInserted(QModelIndex,int,int))},
    {SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(afterRowsInserted(QModelIndex))},
    {SIGNAL(rowsAboutToBeRemoved(QModelIndex,int,int)),
     SLOT(beforeRowsRemoved(QModelIndex,int,int))},
    {SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(afterRowsRemoved(QModelIndex))},
    {SIGNAL(rowsAboutToBeMoved(QModelIndex,int,int,QModelIndex,int)),
     SLOT(beforeRowsMoved(QModelIndex,int,int,QModelIndex,int))},
    {SIGNAL(rowsMoved(QModelIndex,int,int,QModelIndex,int)),
     SLOT(afterRowsMoved(QModelIndex,int,int,QModelIndex))},
    {SIGNAL(columnsAboutToBeInserted(QModelIndex,int,int)),
     SLOT(beforeColumnsInserted(QModelIndex,int,int))},
    {SIGNAL(columnsInserted(QModelIndex,int,int)), SLOT(afterColumnsInserted(QModelIndex))},
    {SIGNAL(columnsAboutToBeRemoved(QModelIndex,int,int)),
     SLOT(beforeColumnsRemoved(QModelIndex,int,int))},
    {SIGNAL(columnsRemoved(QModelIndex,int,int)), SLOT(afterColumnsRemoved(QModelIndex,int,int))},
    {SIGNAL(columnsAboutToBeMoved(QModelIndex,int,int,QModelIndex,int)),
     SLOT(beforeColumnsMoved(QModelIndex,int,int,QModelIndex,int))},
    {SIGNAL(columnsMoved(QModelIndex,int,int,QModelIndex,int)),
     SLOT(afterColumnsMoved(QModelIndex,int,int,QModelIndex))},
    {SIGNAL(layoutAboutToBeChanged(QList<QPersistentModelIndex>,QAbstractItemModel::LayoutChangeHint)),
     SLOT(beforeLayoutChanged(QList<QPersistentModelIndex>,QAbstractItemModel::LayoutChangeHint))},
    {SIGNAL(layoutChanged(QList<QPersistentModelIndex>,QAbstractItemModel::LayoutChangeHint)),
     SLOT(afterLayoutChanged(QList<QPersistentModelIndex>,QAbstractItemModel::LayoutChangeHint))},
    {SIGNAL(modelAboutToBeReset()), SLOT(beforeReset())},
    {SIGNAL(modelReset()), SLOT(afterReset())},
    {SIGNAL(dataChanged(QModelIndex,QModelIndex,QList<int>)),
     SLOT(sourceDataChanged(QModelIndex,QModelIndex,QList<int>))},
    {SIGNAL(headerDataChanged(Qt::Orientation,int,int)),
     SLOT(sourceHeaderChanged(Qt::Orientation,int,int))},
    {SIGNAL(destroyed()), SLOT(sourceDestroyed())},
};
// clang-format on

bool concernsTopLevel(const QList<QPersistentModelIndex> &parents)
{
    return parents.isEmpty() || parents.contains(QPersistentModelIndex());
}

} // namespace

void ExtraItemProxyComboModel::followSource()
{
    if (!sourceModel()) {
        return;
    }
    for (const Follower &follower : kFollowers) {
        connect(sourceModel(), follower.signal, this, follower.slot);
    }
}

void ExtraItemProxyComboModel::endReset()
{
    textRowShown = textWhenEmpty && sourceRows() == 0;
    endResetModel();
}

void ExtraItemProxyComboModel::beginAdding(int first, int last)
{
    beginInsertRows({}, first + firstSourceRow(), last + firstSourceRow());
}

void ExtraItemProxyComboModel::endAdding()
{
    endInsertRows();
    if (textRowShown) {
        // Only now, and from above the new rows: so a combo box on the text row moves to the first
        // of them.
        beginRemoveRows({}, 0, 0);
        textRowShown = false;
        endRemoveRows();
    }
}

// A combo box whose row is removed moves to the row that takes its number, or to the last one. So
// that this is never an extra row, the fixed rows stand aside where it could be, and with the
// last row of the source all rows go, for the combo box then moves to the first that comes.
void ExtraItemProxyComboModel::beginTaking(int first, int last)
{
    const int left = sourceRows() - (last - first + 1);
    const bool isTail = last == sourceRows() - 1;
    fixedRowsStepAside = left == 0 ? textWhenEmpty : countOfFixedRows() > 0 && last >= left;
    if (fixedRowsStepAside && isTail) {
        beginRemoveRows({}, first + firstSourceRow(), rowCount() - 1);
        return;
    }
    if (fixedRowsStepAside) {
        beginRemoveRows({}, rowCount() - countOfFixedRows(), rowCount() - 1);
        fixedRowsShown = false;
        endRemoveRows();
    }
    beginRemoveRows({}, first + firstSourceRow(), last + firstSourceRow());
}

void ExtraItemProxyComboModel::endTaking()
{
    fixedRowsShown = !fixedRowsStepAside;
    endRemoveRows();
    if (!fixedRowsStepAside) {
        return;
    }
    const int left = sourceRows();
    const int textRows = left == 0 ? 1 : 0;
    beginInsertRows({}, left, left + textRows + countOfFixedRows() - 1);
    fixedRowsShown = true;
    textRowShown = textRows == 1;
    endInsertRows();
}

void ExtraItemProxyComboModel::beforeRowsInserted(const QModelIndex &parent, int first, int last)
{
    if (!parent.isValid()) {
        beginAdding(first, last);
    }
}

void ExtraItemProxyComboModel::afterRowsInserted(const QModelIndex &parent)
{
    if (!parent.isValid()) {
        endAdding();
    }
}

void ExtraItemProxyComboModel::beforeRowsRemoved(const QModelIndex &parent, int first, int last)
{
    if (!parent.isValid()) {
        beginTaking(first, last);
    }
}

void ExtraItemProxyComboModel::afterRowsRemoved(const QModelIndex &parent)
{
    if (!parent.isValid()) {
        endTaking();
    }
}

void ExtraItemProxyComboModel::beforeRowsMoved(const QModelIndex &from, int first, int last,
                                               const QModelIndex &to, int row)
{
    if (!from.isValid() && !to.isValid()) {
        beginMoveRows({}, first + firstSourceRow(), last + firstSourceRow(), {},
                      row + firstSourceRow());
    } else if (!from.isValid()) {
        beginTaking(first, last);
    } else if (!to.isValid()) {
        beginAdding(row, row + last - first);
    }
}

void ExtraItemProxyComboModel::afterRowsMoved(const QModelIndex &from, int, int,
                                              const QModelIndex &to)
{
    if (!from.isValid() && !to.isValid()) {
        endMoveRows();
    } else if (!from.isValid()) {
        endTaking();
    } else if (!to.isValid()) {
        endAdding();
    }
}

// Column 0 is always there: while the source has no columns it stands in for the first one.
void ExtraItemProxyComboModel::beforeColumnsInserted(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid()) {
        return;
    }
    standInColumn = sourceColumns() == 0;
    if (!standInColumn) {
        beginInsertColumns({}, first, last);
    } else if (last > 0) {
        beginInsertColumns({}, 1, last);
    }
}

void ExtraItemProxyComboModel::afterColumnsInserted(const QModelIndex &parent)
{
    if (parent.isValid()) {
        return;
    }
    if (!standInColumn || sourceColumns() > 1) {
        endInsertColumns();
    }
    tellStandInColumn();
}

void ExtraItemProxyComboModel::beforeColumnsRemoved(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid()) {
        return;
    }
    standInColumn = last - first + 1 == sourceColumns();
    if (!standInColumn) {
        beginRemoveColumns({}, first, last);
    } else if (last > 0) {
        beginRemoveColumns({}, 1, last);
    }
}

void ExtraItemProxyComboModel::afterColumnsRemoved(const QModelIndex &parent, int, int last)
{
    if (parent.isValid()) {
        return;
    }
    if (!standInColumn || last > 0) {
        endRemoveColumns();
    }
    tellStandInColumn();
}

void ExtraItemProxyComboModel::tellStandInColumn()
{
    if (standInColumn && sourceRows() > 0) {
        emit dataChanged(index(firstSourceRow(), 0), index(firstSourceRow() + sourceRows() - 1, 0));
    }
    standInColumn = false;
}

void ExtraItemProxyComboModel::beforeColumnsMoved(const QModelIndex &from, int first, int last,
                                                  const QModelIndex &to, int column)
{
    if (!from.isValid() && !to.isValid()) {
        beginMoveColumns({}, first, last, {}, column);
    } else if (from.isValid() != to.isValid()) {
        beginResetModel();
    }
}

void ExtraItemProxyComboModel::afterColumnsMoved(const QModelIndex &from, int, int,
                                                 const QModelIndex &to)
{
    if (!from.isValid() && !to.isValid()) {
        endMoveColumns();
    } else if (from.isValid() != to.isValid()) {
        endReset();
    }
}

void ExtraItemProxyComboModel::beforeLayoutChanged(const QList<QPersistentModelIndex> &parents,
                                                   QAbstractItemModel::LayoutChangeHint hint)
{
    if (!concernsTopLevel(parents)) {
        return;
    }
    emit layoutAboutToBeChanged({}, hint);
    const QModelIndexList held = persistentIndexList();
    for (const QModelIndex &index : held) {
        if (kindOf(index) == Row::Source) {
            layoutProxyIndexes.append(index);
            layoutSourceIndexes.append(mapToSource(index));
        }
    }
}

void ExtraItemProxyComboModel::afterLayoutChanged(const QList<QPersistentModelIndex> &parents,
                                                  QAbstractItemModel::LayoutChangeHint hint)
{
    if (!concernsTopLevel(parents)) {
        return;
    }
    QModelIndexList moved;
    for (const QPersistentModelIndex &index : qAsConst(layoutSourceIndexes)) {
        moved.append(mapFromSource(index));
    }
    changePersistentIndexList(layoutProxyIndexes, moved);
    layoutProxyIndexes.clear();
    layoutSourceIndexes.clear();
    emit layoutChanged({}, hint);
}

void ExtraItemProxyComboModel::beforeReset()
{
    beginResetModel();
}

void ExtraItemProxyComboModel::afterReset()
{
    endReset();
}

void ExtraItemProxyComboModel::sourceDataChanged(const QModelIndex &topLeft,
                                                 const QModelIndex &bottomRight,
                                                 const QList<int> &roles)
{
    const QModelIndex first = mapFromSource(topLeft);
    const QModelIndex last = bottomRight == topLeft ? first : mapFromSource(bottomRight);
    if (first.isValid() && last.isValid()) {
        emit dataChanged(first, last, roles);
    }
}

void ExtraItemProxyComboModel::sourceHeaderChanged(Qt::Orientation orientation, int first, int last)
{
    if (orientation == Qt::Horizontal) {
        emit headerDataChanged(orientation, first, last);
    }
}

void ExtraItemProxyComboModel::sourceDestroyed()
{
    // The base class has forgotten the source by now.
    beginResetModel();
    endReset();
}
