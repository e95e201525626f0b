#pragma once

#include "TXGUICommonExport.h"
#include "TXLogManager.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QSet>
#include <QSharedPointer>

#include <utility>

/// The live log of a TXLogManager as a tree for Qt's item views.
///
/// The model mirrors the items that are announced while it exists; a log that holds items already
/// shows none of them until new ones arrive. Rows are appended at the end and dropped at the front
/// of their parent. Take TXLogWindow for the ready dialog.
///
/// Columns: 0 the date (top-level rows only), 1 the message, 2 the level as 1, 2 or 3, meant for
/// filtering; views hide it. Top-level rows carry the icon of their level in column 1.
///
/// Thread: lives on one thread, as models do, and follows a log that is written on others. Keeps
/// the items that it shows alive, and until clear() also the sub-items of rows that were dropped.
class TXGUICOMMON_EXPORT TXLogModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// The columns, the same below every row.
    enum Column {
        DateColumn, ///< The date, of top-level rows only.
        MessageColumn, ///< The message.
        LevelColumn, ///< The level as 1, 2 or 3.
        ColumnCount ///< How many columns there are.
    };

    /// Follows the manager's present root item; shares the ownership of the manager.
    explicit TXLogModel(QSharedPointer<TXLogManager> manager, QObject *parent = nullptr);

    /// Constant time, in every column of the parent alike.
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    /// The entry that this one stands below; invalid on the top level.
    QModelIndex parent(const QModelIndex &index) const override;
    /// How many entries stand directly below, the same for every column of the parent.
    int rowCount(const QModelIndex &parent = {}) const override;
    /// Always ColumnCount.
    int columnCount(const QModelIndex &parent = {}) const override;

    /// Display, edit and decoration role; every other role is invalid. The display text of a
    /// message is translated anew each time, also when the message holds a stored flat form.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The titles of the first two columns, translated each time, and plain row numbers.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// An entry is enabled and can be selected.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// The index of an item that is shown at any depth below `parent`, invalid when there is none.
    /// The item must be alive, or null. Costs the depth of the item.
    QModelIndex index(TXLogItem *item, int column, const QModelIndex &parent);

    /// The same as the const one. A literal row 0 would fit the search as well without it.
    QModelIndex index(int row, int column, const QModelIndex &parent)
    {
        return std::as_const(*this).index(row, column, parent);
    }

    /// The items in the rows below `parent`, in row order. For proxies that look at all of them;
    /// the list is shared, not copied.
    QList<QSharedPointer<TXLogItem>> itemsBelow(const QModelIndex &parent) const;

public slots:
    /// Empties the log itself, and with it the view.
    void clear();

    /// Has the views ask again. The rows stay as they are.
    void modelReset();

private slots:
    void rowAppended(QSharedPointer<TXLogItem> item);
    void rowDeleted(QSharedPointer<TXLogItem> item);

private:
    using Children = QList<QSharedPointer<TXLogItem>>;

    void mirrorAppended(const QSharedPointer<TXLogItem> &item);
    void mirrorDeleted(const TXLogItem &item);
    TXLogItem *itemOf(const QModelIndex &index) const;
    int rowOf(TXLogItem *item) const;
    bool findParentIndex(const TXLogItem &item, QModelIndex *parentIndex);
    void removeFirstRow(TXLogItem *parentItem, const QModelIndex &parentIndex);
    QVariant levelIcon(const TXLogItem &item) const;
    QVariant text(const QModelIndex &index, const TXLogItem &item, int role) const;

    QSharedPointer<TXLogManager> logManager;
    QHash<TXLogItem *, Children> rows;
    // The manager's root, which stays the same; asking for it costs a reference count each time.
    TXLogItem *root;
    // Held so that a new item never gets the address under which their sub-items still stand.
    Children droppedParents;
    // Parents whose rows are not numbered one after the other, as an item was announced twice.
    QSet<TXLogItem *> unevenParents;
};
