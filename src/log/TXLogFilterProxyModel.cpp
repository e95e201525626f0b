#include "TXLogFilterProxyModel.h"

#include "TXLogItem.h"
#include "TXLogModel.h"

#include <QDateTime>
#include <QItemSelectionModel>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace {

bool isIn(int column)
{
    return column >= 0 && column < TXLogModel::ColumnCount;
}

} // namespace

TXLogFilterProxyModel::TXLogFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
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

bool TXLogFilterProxyModel::setHeaderData(int, Qt::Orientation, const QVariant &, int)
{
    return false;
}

bool TXLogFilterProxyModel::insertRows(int, int, const QModelIndex &)
{
    return false;
}

bool TXLogFilterProxyModel::insertColumns(int, int, const QModelIndex &)
{
    return false;
}

bool TXLogFilterProxyModel::removeRows(int, int, const QModelIndex &)
{
    return false;
}

bool TXLogFilterProxyModel::removeColumns(int, int, const QModelIndex &)
{
    return false;
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

/// A filter on the level has three answers, found once instead of for each row.
void TXLogFilterProxyModel::updateLevelFilter()
{
    isLevelFilter = filterKeyColumn() == TXLogModel::LevelColumn
        && (filterRole() == Qt::DisplayRole || filterRole() == Qt::EditRole);
    const QRegularExpression pattern = filterRegularExpression();
    for (int level = 0; isLevelFilter && level < int(acceptedLevels.size()); ++level) {
        acceptedLevels[size_t(level)] =
            pattern.pattern().isEmpty() || QString::number(level).contains(pattern);
    }
}

bool TXLogFilterProxyModel::accepts(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!isLevelFilter) {
        return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
    }
    const QModelIndex index = log->index(sourceRow, TXLogModel::LevelColumn, sourceParent);
    return acceptsLevel(static_cast<const TXLogItem *>(index.internalPointer())->level);
}

bool TXLogFilterProxyModel::acceptsLevel(int level) const
{
    const bool isNamed = level == TXLogItem::Warning || level == TXLogItem::Error;
    return acceptedLevels[size_t(isNamed ? level : TXLogItem::Information)];
}

/// Which of the source rows below an index the filter lets through.
QList<bool> TXLogFilterProxyModel::acceptedRows(const QModelIndex &sourceParent) const
{
    const auto items = log->itemsBelow(sourceParent);
    QList<bool> accepted;
    accepted.reserve(items.size());
    for (const QSharedPointer<TXLogItem> &item : items) {
        accepted.append(isLevelFilter ? acceptsLevel(item->level)
                                      : accepts(int(accepted.size()), sourceParent));
    }
    return accepted;
}

bool TXLogFilterProxyModel::isSorting() const
{
    return isIn(sortColumn());
}

QVariant TXLogFilterProxyModel::sortKey(qsizetype sourceRow, const QModelIndex &sourceParent) const
{
    return log->data(log->index(int(sourceRow), sortColumn(), sourceParent), sortRole());
}

/// The base's lessThan() for what the log model holds, turned round for a descending order.
bool TXLogFilterProxyModel::isBefore(const QVariant &left, const QVariant &right) const
{
    const QVariant &smaller = sortOrder() == Qt::AscendingOrder ? left : right;
    const QVariant &larger = sortOrder() == Qt::AscendingOrder ? right : left;
    if (!smaller.isValid() || !larger.isValid()) {
        return smaller.isValid();
    }
    switch (smaller.userType()) {
    case QMetaType::Int:
        return smaller.toInt() < larger.toInt();
    case QMetaType::QDateTime:
        return smaller.toDateTime() < larger.toDateTime();
    default:
        return isSortLocaleAware()
            ? smaller.toString().localeAwareCompare(larger.toString()) < 0
            : smaller.toString().compare(larger.toString(), sortCaseSensitivity()) < 0;
    }
}

/// Sub-items have no date, so that sorting by date leaves them as they are.
bool TXLogFilterProxyModel::isEverythingEqual(const QModelIndex &sourceParent) const
{
    return sourceParent.isValid() && sortColumn() == TXLogModel::DateColumn;
}

std::vector<QVariant> TXLogFilterProxyModel::sortKeys(const Rows &rows,
                                                      const QModelIndex &sourceParent) const
{
    std::vector<QVariant> keys;
    keys.reserve(size_t(rows.size()));
    if (sortColumn() == TXLogModel::DateColumn && sortRole() == Qt::DisplayRole) {
        // What sorting mostly asks for, without the way through the model for each row.
        const auto items = log->itemsBelow(sourceParent);
        for (const qsizetype row : rows) {
            keys.push_back(sourceParent.isValid() ? QVariant() : items.at(row)->date);
        }
        return keys;
    }
    for (const qsizetype row : rows) {
        keys.push_back(sortKey(row, sourceParent));
    }
    return keys;
}

/// A stable sort that asks each row for its key once; one pass where the rows are in order.
void TXLogFilterProxyModel::sortRows(Rows &rows, const QModelIndex &sourceParent) const
{
    if (!isSorting()) {
        std::sort(rows.begin(), rows.end());
        return;
    }
    if (isEverythingEqual(sourceParent)) {
        return;
    }
    const std::vector<QVariant> keys = sortKeys(rows, sourceParent);
    const auto isBeforeByKey = [&](size_t left, size_t right) {
        return isBefore(keys[left], keys[right]);
    };
    std::vector<size_t> positions(keys.size());
    std::iota(positions.begin(), positions.end(), size_t(0));
    if (!std::is_sorted(positions.begin(), positions.end(), isBeforeByKey)) {
        std::stable_sort(positions.begin(), positions.end(), isBeforeByKey);
        const Rows unsorted = rows;
        std::transform(positions.begin(), positions.end(), rows.begin(),
                       [&](size_t position) { return unsorted.at(qsizetype(position)); });
    }
}

/// Where a single new row belongs: behind all that it is not before. The ends are looked at first,
/// as new entries mostly belong there.
qsizetype TXLogFilterProxyModel::findPlace(const TXLogRowMapping &mapping, qsizetype sourceRow,
                                           const QModelIndex &sourceParent) const
{
    const bool isByKey = isSorting() && dynamicSortFilter();
    const QVariant key = isByKey ? sortKey(sourceRow, sourceParent) : QVariant();
    const auto isBeforeShown = [&](qsizetype shownRow) {
        const qsizetype other = mapping.sourceRowAt(shownRow);
        return isByKey ? isBefore(key, sortKey(other, sourceParent)) : sourceRow < other;
    };
    qsizetype low = 0;
    qsizetype high = mapping.shownCount();
    if (high == 0 || !isBeforeShown(high - 1)) {
        return high;
    }
    if (isBeforeShown(0)) {
        return 0;
    }
    while (low < high) {
        const qsizetype middle = (low + high) / 2;
        if (isBeforeShown(middle)) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return low;
}

/// Joins rows that stay with rows that come, both in order. Where they are equal the base puts the
/// first that comes behind those that stay, and what directly follows it in front of the next: this
/// does the same.
TXLogFilterProxyModel::Rows TXLogFilterProxyModel::mergeRows(const Rows &kept, const Rows &added,
                                                             const QModelIndex &sourceParent) const
{
    if (kept.isEmpty() || added.isEmpty()) {
        return kept + added;
    }
    const bool isByKey = isSorting() && dynamicSortFilter();
    const auto keptKeys = isByKey ? sortKeys(kept, sourceParent) : std::vector<QVariant>();
    const auto addedKeys = isByKey ? sortKeys(added, sourceParent) : std::vector<QVariant>();
    qsizetype stays = 0;
    qsizetype comes = 0;
    const auto isComingFirst = [&] {
        return isByKey ? isBefore(addedKeys[size_t(comes)], keptKeys[size_t(stays)])
                       : added.at(comes) < kept.at(stays);
    };
    const auto isStayingFirst = [&] {
        return isByKey ? isBefore(keptKeys[size_t(stays)], addedKeys[size_t(comes)])
                       : kept.at(stays) < added.at(comes);
    };
    Rows merged;
    merged.reserve(kept.size() + added.size());
    while (comes < added.size()) {
        while (stays < kept.size() && !isComingFirst()) {
            merged.append(kept.at(stays++));
        }
        merged.append(added.at(comes++));
        while (comes < added.size() && (stays == kept.size() || !isStayingFirst())) {
            merged.append(added.at(comes++));
        }
    }
    return merged + kept.mid(stays);
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
    const QList<bool> accepted = acceptedRows(sourceParent);
    Rows rows;
    rows.reserve(sourceCount);
    for (int row = 0; row < sourceCount; ++row) {
        if (accepted.at(row)) {
            rows.append(row);
        }
    }
    sortRows(rows, sourceParent);
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
    if (!accepts(sourceRow, sourceParent)) {
        return;
    }
    const int place = int(findPlace(mapping, sourceRow, sourceParent));
    beginInsertRows(proxyIndexAbove(mapping), place, place);
    mapping.show(sourceRow, place);
    endInsertRows();
}

void TXLogFilterProxyModel::filterChanged()
{
    updateLevelFilter();
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
        if (!accepts(source.row(), source.parent())) {
            return;
        }
    }
    TXLogRowMapping *mapping = mappingWith(current);
    const QModelIndex sourceParent = sourceIndexAbove(*mapping);
    const auto goes = [&](int row) {
        return !accepts(int(mapping->sourceRowAt(row)), sourceParent);
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
    const QList<bool> accepted = acceptedRows(sourceIndexAbove(mapping));
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
    const QList<bool> accepted = acceptedRows(sourceParent);
    Rows kept = mapping.shownSourceRows();
    kept.removeIf([&](qsizetype row) { return !accepted.at(row); });
    Rows added;
    for (int row = 0; row < mapping.sourceCount(); ++row) {
        if (accepted.at(row) && mapping.shownRowOf(row) < 0) {
            added.append(row);
        }
    }
    if (!added.isEmpty() || kept.size() != mapping.shownCount()) {
        sortRows(added, sourceParent);
        for (TXLogRowMapping *hidden : mapping.showOnly(mergeRows(kept, added, sourceParent))) {
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
    sortRows(sorted, sourceIndexAbove(mapping));
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
