#include "TXLogFilterProxyModel.h"

#include "TXLogModel.h"

#include <QItemSelectionModel>

#include <algorithm>

namespace {

bool isIn(int column)
{
    return column >= 0 && column < TXLogModel::ColumnCount;
}

} // namespace

TXLogFilterProxyModel::TXLogFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , rules(*this)
{
    followProperties();
}

TXLogFilterProxyModel::~TXLogFilterProxyModel() = default;

void TXLogFilterProxyModel::setSelectionModel(QItemSelectionModel *selectionModel)
{
    selection = selectionModel;
}

void TXLogFilterProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    beginResetModel();
    if (log) {
        disconnect(log, nullptr, this, nullptr);
    }
    log = qobject_cast<TXLogModel *>(sourceModel);
    rules.setLog(log);
    top.reset();
    // Not the base's own, which would connect its mapping to the source.
    QAbstractProxyModel::setSourceModel(log); // NOLINT(bugprone-parent-virtual-call)
    if (log) {
        followSource();
    }
    endResetModel();
}

void TXLogFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    if (dynamicSortFilter() && sortColumn() == column && sortOrder() == order) {
        return;
    }
    // What is equal under the new sorting keeps the order it had under the old one.
    topLevel();
    {
        // For sortColumn() and sortOrder(); the base has no rows that it could sort.
        const QSignalBlocker blocker(this);
        QSortFilterProxyModel::sort(column, order);
    }
    sortingChanged();
}

QModelIndex TXLogFilterProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || !isIn(column)) {
        return {};
    }
    TXLogRowMapping *mapping = mappingBelow(parent);
    const bool isShown = mapping && row < mapping->shownCount();
    return isShown ? createIndex(row, column, mapping->id()) : QModelIndex();
}

QModelIndex TXLogFilterProxyModel::parent(const QModelIndex &child) const
{
    const TXLogRowMapping *mapping = mappingWith(child);
    return mapping ? proxyIndexAbove(*mapping) : QModelIndex();
}

QModelIndex TXLogFilterProxyModel::sibling(int row, int column, const QModelIndex &index) const
{
    const TXLogRowMapping *mapping = mappingWith(index);
    const bool isShown = mapping && row >= 0 && row < mapping->shownCount() && isIn(column);
    return isShown ? createIndex(row, column, mapping->id()) : QModelIndex();
}

int TXLogFilterProxyModel::rowCount(const QModelIndex &parent) const
{
    const TXLogRowMapping *mapping = mappingBelow(parent);
    return mapping ? int(mapping->shownCount()) : 0;
}

int TXLogFilterProxyModel::columnCount(const QModelIndex &) const
{
    return log ? int(TXLogModel::ColumnCount) : 0;
}

bool TXLogFilterProxyModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QModelIndex TXLogFilterProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    const TXLogRowMapping *mapping = mappingWith(proxyIndex);
    return mapping ? log->index(int(mapping->sourceRowAt(proxyIndex.row())), proxyIndex.column(),
                                sourceIndexAbove(*mapping))
                   : QModelIndex();
}

QModelIndex TXLogFilterProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid() || sourceIndex.model() != log) {
        return {};
    }
    TXLogRowMapping *mapping = mappingOf(sourceIndex.parent(), true);
    const qsizetype row = mapping ? mapping->shownRowOf(sourceIndex.row()) : -1;
    return row < 0 ? QModelIndex() : createIndex(int(row), sourceIndex.column(), mapping->id());
}

QVariant TXLogFilterProxyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal) {
        return log && isIn(section) ? log->headerData(section, orientation, role) : QVariant();
    }
    const QModelIndex source = mapToSource(index(section, 0));
    return source.isValid() ? log->headerData(source.row(), orientation, role) : QVariant();
}

Qt::ItemFlags TXLogFilterProxyModel::flags(const QModelIndex &index) const
{
    // The log answers alike for every index that is valid.
    return log ? log->flags(index) : Qt::NoItemFlags;
}

bool TXLogFilterProxyModel::filterAcceptsRow(int, const QModelIndex &) const
{
    return false;
}

void TXLogFilterProxyModel::sourceRowsInserted(const QModelIndex &sourceParent, int first, int last)
{
    TXLogRowMapping *mapping = nullptr;
    if (!sourceParent.isValid()) {
        if (!top) {
            top = std::make_unique<TXLogRowMapping>();
            fill(*top, sourceParent, first);
        }
        mapping = top.get();
    } else {
        TXLogRowMapping *above = mappingOf(sourceParent.parent(), false);
        if (!above) {
            return;
        }
        above->markRowsBelow(sourceParent.row());
        if (above->shownRowOf(sourceParent.row()) < 0) {
            return;
        }
        mapping = above->below(sourceParent.row());
        if (!mapping) {
            mapping = above->makeBelow(sourceParent.row());
            fill(*mapping, sourceParent, first);
        }
    }
    mapping->appendSourceRows(last - first + 1);
    for (int row = first; row <= last; ++row) {
        showNewRow(*mapping, row, sourceParent);
    }
}

void TXLogFilterProxyModel::sourceRowsAboutToBeRemoved(const QModelIndex &sourceParent, int, int)
{
    TXLogRowMapping *mapping = mappingOf(sourceParent, false);
    const int row = mapping ? int(mapping->shownRowOf(0)) : -1;
    if (row >= 0) {
        beginRemoveRows(proxyIndexAbove(*mapping), row, row);
        mapping->hide(row, row);
        endRemoveRows();
    }
}

void TXLogFilterProxyModel::sourceRowsRemoved(const QModelIndex &sourceParent, int, int)
{
    if (TXLogRowMapping *mapping = mappingOf(sourceParent, false)) {
        mapping->dropFirstSourceRow();
    }
}

void TXLogFilterProxyModel::sourceAboutToBeReset()
{
    beginResetModel();
}

void TXLogFilterProxyModel::sourceReset()
{
    top.reset();
    endResetModel();
}

void TXLogFilterProxyModel::sourceDestroyed()
{
    beginResetModel();
    top.reset();
    rules.setLog(nullptr);
    endResetModel();
}

/// The properties of the base have no signals, but can be observed.
void TXLogFilterProxyModel::followProperties()
{
    const auto filter = [this] {
        filterChanged();
    };
    notifiers.push_back(bindableFilterRegularExpression().addNotifier(filter));
    notifiers.push_back(bindableFilterKeyColumn().addNotifier(filter));
    notifiers.push_back(bindableFilterCaseSensitivity().addNotifier(filter));
    notifiers.push_back(bindableFilterRole().addNotifier(filter));

    const auto sorting = [this] {
        sortingChanged();
    };
    notifiers.push_back(bindableSortRole().addNotifier(sorting));
    notifiers.push_back(bindableSortCaseSensitivity().addNotifier(sorting));
    notifiers.push_back(bindableIsSortLocaleAware().addNotifier(sorting));
    notifiers.push_back(bindableDynamicSortFilter().addNotifier([this] {
        if (dynamicSortFilter()) {
            sortingChanged();
        }
    }));
}

void TXLogFilterProxyModel::followSource()
{
    connect(log, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(sourceRowsInserted(QModelIndex, int, int)));
    connect(log, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)), this,
            SLOT(sourceRowsAboutToBeRemoved(QModelIndex, int, int)));
    connect(log, SIGNAL(rowsRemoved(QModelIndex, int, int)), this,
            SLOT(sourceRowsRemoved(QModelIndex, int, int)));
    connect(log, SIGNAL(modelAboutToBeReset()), this, SLOT(sourceAboutToBeReset()));
    connect(log, SIGNAL(modelReset()), this, SLOT(sourceReset()));
    connect(log, SIGNAL(destroyed()), this, SLOT(sourceDestroyed()));
}

TXLogRowMapping *TXLogFilterProxyModel::topLevel() const
{
    if (!top && log) {
        top = std::make_unique<TXLogRowMapping>();
        fill(*top, QModelIndex(), log->rowCount());
    }
    return top.get();
}

/// The mapping that an index of the proxy stands in; null for any other index.
TXLogRowMapping *TXLogFilterProxyModel::mappingWith(const QModelIndex &proxyIndex) const
{
    const bool isOurs = top && proxyIndex.isValid() && proxyIndex.model() == this;
    return isOurs ? top->find(proxyIndex.internalId()) : nullptr;
}

/// The mapping of what is shown below an index of the proxy; null where there is nothing.
TXLogRowMapping *TXLogFilterProxyModel::mappingBelow(const QModelIndex &proxyParent) const
{
    if (!proxyParent.isValid()) {
        return topLevel();
    }
    TXLogRowMapping *mapping = mappingWith(proxyParent);
    if (!mapping) {
        return nullptr;
    }
    const qsizetype sourceRow = mapping->sourceRowAt(proxyParent.row());
    TXLogRowMapping *known = mapping->below(sourceRow);
    if (known || !mapping->mayHaveRowsBelow(sourceRow)) {
        return known;
    }
    return belowRow(*mapping, sourceRow, mapToSource(proxyParent), true);
}

/// The mapping of what is shown below an index of the log; null where that is not shown itself.
TXLogRowMapping *TXLogFilterProxyModel::mappingOf(const QModelIndex &sourceParent,
                                                  bool mayBeMade) const
{
    if (!sourceParent.isValid()) {
        return mayBeMade ? topLevel() : top.get();
    }
    TXLogRowMapping *above = mappingOf(sourceParent.parent(), mayBeMade);
    return above ? belowRow(*above, sourceParent.row(), sourceParent, mayBeMade) : nullptr;
}

TXLogRowMapping *TXLogFilterProxyModel::belowRow(TXLogRowMapping &mapping, qsizetype sourceRow,
                                                 const QModelIndex &sourceIndex,
                                                 bool mayBeMade) const
{
    TXLogRowMapping *known = mapping.below(sourceRow);
    if (known || !mayBeMade || mapping.shownRowOf(sourceRow) < 0) {
        return known;
    }
    const int sourceCount = log->rowCount(sourceIndex);
    if (sourceCount == 0) {
        return nullptr;
    }
    TXLogRowMapping *made = mapping.makeBelow(sourceRow);
    fill(*made, sourceIndex.siblingAtColumn(0), sourceCount);
    return made;
}

/// Fills a new mapping with the first rows below an index of the log.
void TXLogFilterProxyModel::fill(TXLogRowMapping &mapping, const QModelIndex &sourceParent,
                                 int sourceCount) const
{
    const QList<bool> accepted = rules.acceptedRows(sourceParent);
    Rows rows;
    rows.reserve(sourceCount);
    for (int row = 0; row < sourceCount; ++row) {
        if (accepted.at(row)) {
            rows.append(row);
        }
    }
    rules.sort(rows, sourceParent);
    mapping.appendSourceRows(sourceCount);
    mapping.showOnly(rows);
    for (int row = 0; row < sourceCount; ++row) {
        if (log->rowCount(log->index(row, 0, sourceParent)) > 0) {
            mapping.markRowsBelow(row);
        }
    }
}

QModelIndex TXLogFilterProxyModel::sourceIndexAbove(const TXLogRowMapping &mapping) const
{
    const TXLogRowMapping *above = mapping.above();
    return above ? log->index(int(mapping.sourceRowInAbove()), 0, sourceIndexAbove(*above))
                 : QModelIndex();
}

QModelIndex TXLogFilterProxyModel::proxyIndexAbove(const TXLogRowMapping &mapping) const
{
    const TXLogRowMapping *above = mapping.above();
    return above ? createIndex(int(above->shownRowOf(mapping.sourceRowInAbove())), 0, above->id())
                 : QModelIndex();
}

void TXLogFilterProxyModel::showNewRow(TXLogRowMapping &mapping, int sourceRow,
                                       const QModelIndex &sourceParent)
{
    if (!rules.accepts(sourceRow, sourceParent)) {
        return;
    }
    const int place = int(rules.placeOf(mapping, sourceRow, sourceParent));
    beginInsertRows(proxyIndexAbove(mapping), place, place);
    mapping.show(sourceRow, place);
    endInsertRows();
}

void TXLogFilterProxyModel::filterChanged()
{
    rules.readFilter();
    if (!top) {
        return;
    }
    removeRowsAroundCurrentIndex();
    if (!isAnyRowAffected(*top)) {
        return;
    }
    emit layoutAboutToBeChanged();
    const QList<Remembered> remembered = rememberPersistentIndexes();
    std::vector<std::unique_ptr<TXLogRowMapping>> gone;
    filterRows(*top, &gone);
    restorePersistentIndexes(remembered);
    emit layoutChanged();
}

void TXLogFilterProxyModel::sortingChanged()
{
    if (!top) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QList<Remembered> remembered = rememberPersistentIndexes();
    sortAllRows(*top);
    restorePersistentIndexes(remembered);
    emit layoutChanged({}, VerticalSortHint);
}

void TXLogFilterProxyModel::removeRowsAroundCurrentIndex()
{
    const QModelIndex current = selection ? selection->currentIndex() : QModelIndex();
    if (!mappingWith(current)) {
        return;
    }
    // Below an entry that goes itself, nothing has a neighbour to move to.
    for (QModelIndex above = current.parent(); above.isValid(); above = above.parent()) {
        const QModelIndex source = mapToSource(above);
        if (!rules.accepts(source.row(), source.parent())) {
            return;
        }
    }
    TXLogRowMapping *mapping = mappingWith(current);
    const QModelIndex sourceParent = sourceIndexAbove(*mapping);
    const auto goes = [&](int row) {
        return !rules.accepts(int(mapping->sourceRowAt(row)), sourceParent);
    };
    if (!goes(current.row())) {
        return;
    }
    int first = current.row();
    int last = current.row();
    while (first > 0 && goes(first - 1)) {
        --first;
    }
    while (last + 1 < mapping->shownCount() && goes(last + 1)) {
        ++last;
    }
    beginRemoveRows(current.parent(), first, last);
    mapping->hide(first, last);
    endRemoveRows();
}

bool TXLogFilterProxyModel::isAnyRowAffected(const TXLogRowMapping &mapping) const
{
    const QList<bool> accepted = rules.acceptedRows(sourceIndexAbove(mapping));
    for (int row = 0; row < mapping.sourceCount(); ++row) {
        if (accepted.at(row) != (mapping.shownRowOf(row) >= 0)) {
            return true;
        }
    }
    const auto below = mapping.allBelow();
    return std::any_of(below.begin(), below.end(),
                       [this](const TXLogRowMapping *one) { return isAnyRowAffected(*one); });
}

void TXLogFilterProxyModel::filterRows(TXLogRowMapping &mapping,
                                       std::vector<std::unique_ptr<TXLogRowMapping>> *gone)
{
    const QModelIndex sourceParent = sourceIndexAbove(mapping);
    const QList<bool> accepted = rules.acceptedRows(sourceParent);
    Rows kept = mapping.shownSourceRows();
    kept.removeIf([&](qsizetype row) { return !accepted.at(row); });
    Rows added;
    for (int row = 0; row < mapping.sourceCount(); ++row) {
        if (accepted.at(row) && mapping.shownRowOf(row) < 0) {
            added.append(row);
        }
    }
    if (!added.isEmpty() || kept.size() != mapping.shownCount()) {
        rules.sort(added, sourceParent);
        for (TXLogRowMapping *hidden : mapping.showOnly(rules.merge(kept, added, sourceParent))) {
            gone->emplace_back(hidden);
        }
    }
    for (TXLogRowMapping *below : mapping.allBelow()) {
        filterRows(*below, gone);
    }
}

void TXLogFilterProxyModel::sortAllRows(TXLogRowMapping &mapping)
{
    const Rows before = mapping.shownSourceRows();
    Rows sorted = before;
    rules.sort(sorted, sourceIndexAbove(mapping));
    if (sorted != before) {
        mapping.showOnly(sorted);
    }
    for (TXLogRowMapping *below : mapping.allBelow()) {
        sortAllRows(*below);
    }
}

QList<TXLogFilterProxyModel::Remembered> TXLogFilterProxyModel::rememberPersistentIndexes() const
{
    QList<Remembered> remembered;
    const QModelIndexList indexes = persistentIndexList();
    remembered.reserve(indexes.size());
    for (const QModelIndex &index : indexes) {
        if (const TXLogRowMapping *mapping = mappingWith(index)) {
            remembered.append({index, mapping, mapping->sourceRowAt(index.row())});
        }
    }
    return remembered;
}

void TXLogFilterProxyModel::restorePersistentIndexes(const QList<Remembered> &remembered)
{
    QModelIndexList from;
    QModelIndexList to;
    for (const Remembered &one : remembered) {
        const qsizetype row = one.mapping->isInUse() ? one.mapping->shownRowOf(one.sourceRow) : -1;
        from.append(one.index);
        to.append(row < 0 ? QModelIndex()
                          : createIndex(int(row), one.index.column(), one.mapping->id()));
    }
    changePersistentIndexList(from, to);
}
