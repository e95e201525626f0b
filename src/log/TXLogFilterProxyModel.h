#pragma once

#include "TXGUICommonExport.h"
#include "TXLogRowMapping.h"
#include "TXLogRowRules.h"

#include <QPointer>
#include <QProperty>
#include <QSortFilterProxyModel>

#include <memory>
#include <vector>

class QItemSelectionModel;
class TXLogModel;

/// The sorting and filtering proxy of the log window: to everyone who looks at it a
/// QSortFilterProxyModel with the same rows in the same order, ties included, but at home with a
/// million entries.
///
/// The base keeps lists of row numbers that it writes anew at each change, which costs the square
/// of a growing log. This class keeps its own mapping, see TXLogRowMapping: an entry that arrives
/// in the order of the sorting, and the oldest one that goes, cost a constant; one that is sorted
/// into the middle its distance to the nearer end; a change of filter one pass over the rows and
/// one announcement (layoutChanged, with rows that are filtered away leaving the persistent
/// indexes); a change of sorting one stable sort.
///
/// Takes a TXLogModel as its source; with any other it stays empty. Follows what that model does:
/// rows appended at the end, rows dropped at the front, resets. Recursive filtering and what else
/// the base offers beyond filter, sorting and their roles is not answered.
class TXGUICOMMON_PRIVATE_EXPORT TXLogFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit TXLogFilterProxyModel(QObject *parent = nullptr);
    ~TXLogFilterProxyModel() override;

    /// Names the selection of the view that shows this proxy. A view moves from its current row to
    /// a neighbour when that row is announced as removed, so when a filter takes the current row
    /// away, it is removed by an announcement of its own, together with what goes beside it.
    void setSelectionModel(QItemSelectionModel *selectionModel);

    void setSourceModel(QAbstractItemModel *sourceModel) override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// Those of every entry of the log, without the way there; a view asks for each row whenever it
    /// lays out.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // The log cannot be edited through its view.
    bool setHeaderData(int, Qt::Orientation, const QVariant &, int) override { return false; }
    bool insertRows(int, int, const QModelIndex &) override { return false; }
    bool insertColumns(int, int, const QModelIndex &) override { return false; }
    bool removeRows(int, int, const QModelIndex &) override { return false; }
    bool removeColumns(int, int, const QModelIndex &) override { return false; }

protected:
    /// False for every row. The base fills a mapping of its own for each change of filter, from
    /// which it would announce rows; so it stays empty.
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private slots:
    void sourceRowsInserted(const QModelIndex &sourceParent, int first, int last);
    void sourceRowsAboutToBeRemoved(const QModelIndex &sourceParent, int first, int last);
    void sourceRowsRemoved(const QModelIndex &sourceParent, int first, int last);
    void sourceAboutToBeReset();
    void sourceReset();
    void sourceDestroyed();

private:
    using Rows = TXLogRowRules::Rows;

    /// A persistent index, told by what it stands for.
    struct Remembered
    {
        QModelIndex index;
        const TXLogRowMapping *mapping;
        qsizetype sourceRow;
    };

    void followProperties();
    void followSource();

    TXLogRowMapping *topLevel() const;
    TXLogRowMapping *mappingWith(const QModelIndex &proxyIndex) const;
    TXLogRowMapping *mappingBelow(const QModelIndex &proxyParent) const;
    TXLogRowMapping *mappingOf(const QModelIndex &sourceParent, bool mayBeMade) const;
    TXLogRowMapping *belowRow(TXLogRowMapping &mapping, qsizetype sourceRow,
                              const QModelIndex &sourceIndex, bool mayBeMade) const;
    void fill(TXLogRowMapping &mapping, const QModelIndex &sourceParent, int sourceCount) const;
    QModelIndex sourceIndexAbove(const TXLogRowMapping &mapping) const;
    QModelIndex proxyIndexAbove(const TXLogRowMapping &mapping) const;

    void showNewRow(TXLogRowMapping &mapping, int sourceRow, const QModelIndex &sourceParent);
    void filterChanged();
    void sortingChanged();
    void removeRowsAroundCurrentIndex();
    bool isAnyRowAffected(const TXLogRowMapping &mapping) const;
    void filterRows(TXLogRowMapping &mapping, std::vector<std::unique_ptr<TXLogRowMapping>> *gone);
    void sortAllRows(TXLogRowMapping &mapping);
    QList<Remembered> rememberPersistentIndexes() const;
    void restorePersistentIndexes(const QList<Remembered> &remembered);

    QPointer<TXLogModel> log;
    TXLogRowRules rules;
    QPointer<QItemSelectionModel> selection;

    // Made when it is first asked for, as reading is what makes it.
    mutable std::unique_ptr<TXLogRowMapping> top;

    std::vector<QPropertyNotifier> notifiers;
};
