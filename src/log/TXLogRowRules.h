#pragma once

#include <QList>
#include <QRegularExpression>
#include <QVariant>

#include <array>
#include <vector>

class QModelIndex;
class QSortFilterProxyModel;
class TXLogModel;
class TXLogRowMapping;

/// Which rows of a log a proxy shows and in which order, by the filter and the sorting that are set
/// on the proxy: what QSortFilterProxyModel would decide, ties included, for what a log model
/// holds.
///
/// Rows are source rows below one index of the log. Looks at each row once for a filter or a sort.
class TXLogRowRules
{
public:
    using Rows = QList<qsizetype>;

    /// Reads the properties of a proxy, which must live as long.
    explicit TXLogRowRules(const QSortFilterProxyModel &proxy);

    /// The model that all indexes are of; it must be set while any of the rest is called.
    void setLog(const TXLogModel *log);

    /// Reads the filter anew. To be called whenever it was changed on the proxy.
    void readFilter();

    /// Whether the filter lets a row through.
    [[nodiscard]] bool accepts(int sourceRow, const QModelIndex &sourceParent) const;

    /// The same for all rows below an index.
    [[nodiscard]] QList<bool> acceptedRows(const QModelIndex &sourceParent) const;

    /// Sorts rows; those that are equal keep their order.
    void sort(Rows &rows, const QModelIndex &sourceParent) const;

    /// The place of a new row among those that are shown.
    [[nodiscard]] qsizetype placeOf(const TXLogRowMapping &mapping, qsizetype sourceRow,
                                    const QModelIndex &sourceParent) const;

    /// Rows that stay together with rows that come, both in order.
    [[nodiscard]] Rows merge(const Rows &kept, const Rows &added,
                             const QModelIndex &sourceParent) const;

private:
    bool matches(int sourceRow, const QModelIndex &sourceParent) const;
    bool acceptsLevel(int level) const;
    bool isSorting() const;
    bool isEverythingEqual(const QModelIndex &sourceParent) const;
    QVariant sortKey(qsizetype sourceRow, const QModelIndex &sourceParent) const;
    std::vector<QVariant> sortKeys(const Rows &rows, const QModelIndex &sourceParent) const;
    bool isBefore(const QVariant &left, const QVariant &right) const;

    const QSortFilterProxyModel &proxy;
    const TXLogModel *log = nullptr;
    QRegularExpression pattern;

    // Set while the filter looks at nothing but the level: which levels it lets through.
    bool isLevelFilter = false;
    std::array<bool, 4> acceptedLevels{};
};
