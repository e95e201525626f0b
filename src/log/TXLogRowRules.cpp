#include "TXLogRowRules.h"

#include "TXLogItem.h"
#include "TXLogModel.h"
#include "TXLogRowMapping.h"

#include <QDateTime>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <numeric>

TXLogRowRules::TXLogRowRules(const QSortFilterProxyModel &proxy)
    : proxy(proxy)
{ }

void TXLogRowRules::setLog(const TXLogModel *newLog)
{
    log = newLog;
}

/// A filter on the level has three answers, found once instead of for each row.
void TXLogRowRules::readFilter()
{
    pattern = proxy.filterRegularExpression();
    const int role = proxy.filterRole();
    isLevelFilter = proxy.filterKeyColumn() == TXLogModel::LevelColumn
        && (role == Qt::DisplayRole || role == Qt::EditRole);
    for (int level = 0; isLevelFilter && level < int(acceptedLevels.size()); ++level) {
        acceptedLevels[size_t(level)] =
            pattern.pattern().isEmpty() || QString::number(level).contains(pattern);
    }
}

bool TXLogRowRules::accepts(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!isLevelFilter) {
        return matches(sourceRow, sourceParent);
    }
    const QModelIndex index = log->index(sourceRow, TXLogModel::LevelColumn, sourceParent);
    return acceptsLevel(static_cast<const TXLogItem *>(index.internalPointer())->level);
}

/// The base's filterAcceptsRow(), for any column and role.
bool TXLogRowRules::matches(int sourceRow, const QModelIndex &sourceParent) const
{
    const int column = proxy.filterKeyColumn();
    const auto isMatch = [&](int oneColumn) {
        const QModelIndex index = log->index(sourceRow, oneColumn, sourceParent);
        return log->data(index, proxy.filterRole()).toString().contains(pattern);
    };
    if (pattern.pattern().isEmpty() || column >= TXLogModel::ColumnCount) {
        return true;
    }
    if (column >= 0) {
        return isMatch(column);
    }
    return isMatch(TXLogModel::DateColumn) || isMatch(TXLogModel::MessageColumn)
        || isMatch(TXLogModel::LevelColumn);
}

bool TXLogRowRules::acceptsLevel(int level) const
{
    const bool isNamed = level == TXLogItem::Warning || level == TXLogItem::Error;
    return acceptedLevels[size_t(isNamed ? level : TXLogItem::Information)];
}

/// Which of the source rows below an index the filter lets through.
QList<bool> TXLogRowRules::acceptedRows(const QModelIndex &sourceParent) const
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

bool TXLogRowRules::isSorting() const
{
    return proxy.sortColumn() >= 0 && proxy.sortColumn() < TXLogModel::ColumnCount;
}

QVariant TXLogRowRules::sortKey(qsizetype sourceRow, const QModelIndex &sourceParent) const
{
    return log->data(log->index(int(sourceRow), proxy.sortColumn(), sourceParent),
                     proxy.sortRole());
}

/// The base's lessThan() for what the log model holds, turned round for a descending order.
bool TXLogRowRules::isBefore(const QVariant &left, const QVariant &right) const
{
    const QVariant &smaller = proxy.sortOrder() == Qt::AscendingOrder ? left : right;
    const QVariant &larger = proxy.sortOrder() == Qt::AscendingOrder ? right : left;
    if (!smaller.isValid() || !larger.isValid()) {
        return smaller.isValid();
    }
    switch (smaller.userType()) {
    case QMetaType::Int:
        return smaller.toInt() < larger.toInt();
    case QMetaType::QDateTime:
        return smaller.toDateTime() < larger.toDateTime();
    default:
        return proxy.isSortLocaleAware()
            ? smaller.toString().localeAwareCompare(larger.toString()) < 0
            : smaller.toString().compare(larger.toString(), proxy.sortCaseSensitivity()) < 0;
    }
}

/// Sub-items have no date, so that sorting by date leaves them as they are.
bool TXLogRowRules::isEverythingEqual(const QModelIndex &sourceParent) const
{
    return sourceParent.isValid() && proxy.sortColumn() == TXLogModel::DateColumn;
}

std::vector<QVariant> TXLogRowRules::sortKeys(const Rows &rows,
                                              const QModelIndex &sourceParent) const
{
    std::vector<QVariant> keys;
    keys.reserve(size_t(rows.size()));
    if (proxy.sortColumn() == TXLogModel::DateColumn && proxy.sortRole() == Qt::DisplayRole) {
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
void TXLogRowRules::sort(Rows &rows, const QModelIndex &sourceParent) const
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
qsizetype TXLogRowRules::placeOf(const TXLogRowMapping &mapping, qsizetype sourceRow,
                                 const QModelIndex &sourceParent) const
{
    const bool isByKey = isSorting() && proxy.dynamicSortFilter();
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
TXLogRowRules::Rows TXLogRowRules::merge(const Rows &kept, const Rows &added,
                                         const QModelIndex &sourceParent) const
{
    if (kept.isEmpty() || added.isEmpty()) {
        return kept + added;
    }
    const bool isByKey = isSorting() && proxy.dynamicSortFilter();
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
