#pragma once

#include "TXCoreCommonExport.h"

#include <QAbstractProxyModel>
#include <QList>
#include <QPersistentModelIndex>
#include <QString>
#include <QVariant>

/// Puts fixed entries, such as "Load...", below the rows of a model, for a combo box.
///
/// Rows, from the top:
/// - with the flag set and a source that is empty or missing, one row with a text that stands for
///   "nothing there yet", so that a combo box does not come to rest on a fixed entry;
/// - the top-level rows of the source, as they are;
/// - if there are fixed entries, a separator (the text "separator" under
///   Qt::AccessibleDescriptionRole, neither enabled nor selectable, as QComboBox makes it) and the
///   entries.
///
/// The text of such an extra row stands under Qt::DisplayRole and Qt::EditRole, its value under
/// Qt::UserRole, in every column, so that a combo box may show any column. Extra rows cannot be
/// edited. There are as many columns as in the source, and at least one. The rows are flat: what
/// lies below a row of the source is not shown.
///
/// Every change of the source is followed, and indexes of source rows stay valid. Changes are told
/// in such an order that a combo box never comes to rest on an extra row because a row was removed:
/// - when rows go that could leave it there, the fixed rows are removed before and inserted again
///   after (so indexes of these do not stay valid), and a combo box moves to the row of the source
///   that took its place, or to the last one;
/// - when the last row goes and the flag is set, all rows are removed and the extra ones inserted,
///   and a combo box moves to the text row;
/// - when rows come again, the text row is removed after they have come, and a combo box on it
///   moves to the first of them.
///
/// Mapping an index takes constant time.
///
/// Thread: the thread of the source, normally the GUI thread.
class TXCORECOMMON_EXPORT ExtraItemProxyComboModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// `labels` and `values` are parallel; a label without a value has an invalid one, a value
    /// without a label is ignored. `text` and `value` belong to the row for an empty source, which
    /// is there only with `textWhenEmpty`. Labels and text are shown as they are: pass them
    /// translated.
    ExtraItemProxyComboModel(const QList<QString> &labels, const QList<QVariant> &values,
                             const QString &text, bool textWhenEmpty, const QVariant &value,
                             QObject *parent = nullptr);

    /// Replaces the source; resets the model, or does nothing when the source is the present one.
    /// Null takes it away. The source stays the caller's, and may be destroyed at any time. A
    /// source that is this model, or a proxy over it, is ignored.
    void setSourceModel(QAbstractItemModel *model) override;

    /// Replaces the labels of the fixed entries, as many as there are; further ones are ignored,
    /// and an entry without a new one keeps its own. Emits dataChanged() when they are shown.
    void setLabels(const QList<QString> &newLabels);

    /// Replaces the text of the row for an empty source. Emits dataChanged() when that row is there
    /// and the text is another one.
    void setItemText(const QString &text);

    /// Invalid for an extra row.
    [[nodiscard]] QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    /// Invalid for an index that is not on the top level of the source.
    [[nodiscard]] QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    /// Invalid for a place that is not there.
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    /// Always invalid: the rows are flat.
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    /// The rows of the source and the extra ones; 0 below a row.
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// Those of the source, but at least 1; 0 below a row.
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    /// Whether there are rows.
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    /// What the source tells of its rows. Of an extra one its text under Qt::DisplayRole and
    /// Qt::EditRole and its value under Qt::UserRole, of the separator "separator" under
    /// Qt::AccessibleDescriptionRole.
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    /// Of the source for its rows; false for an extra row.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// The source's header across; plain row numbers downwards.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    /// Those of the source for its rows. An extra one is enabled and can be selected; the separator
    /// neither.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// That of the source for its rows; an extra one is its own.
    [[nodiscard]] QModelIndex buddy(const QModelIndex &index) const override;
    /// Whether the source has more on its top level.
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    /// Lets the source fetch what canFetchMore() tells of.
    void fetchMore(const QModelIndex &parent) override;

private slots:
    void beforeRowsInserted(const QModelIndex &parent, int first, int last);
    void afterRowsInserted(const QModelIndex &parent);
    void beforeRowsRemoved(const QModelIndex &parent, int first, int last);
    void afterRowsRemoved(const QModelIndex &parent);
    void beforeRowsMoved(const QModelIndex &from, int first, int last, const QModelIndex &to,
                         int row);
    void afterRowsMoved(const QModelIndex &from, int first, int last, const QModelIndex &to);
    void beforeColumnsInserted(const QModelIndex &parent, int first, int last);
    void afterColumnsInserted(const QModelIndex &parent);
    void beforeColumnsRemoved(const QModelIndex &parent, int first, int last);
    void afterColumnsRemoved(const QModelIndex &parent, int first, int last);
    void beforeColumnsMoved(const QModelIndex &from, int first, int last, const QModelIndex &to,
                            int column);
    void afterColumnsMoved(const QModelIndex &from, int first, int last, const QModelIndex &to);
    void beforeLayoutChanged(const QList<QPersistentModelIndex> &parents,
                             QAbstractItemModel::LayoutChangeHint hint);
    void afterLayoutChanged(const QList<QPersistentModelIndex> &parents,
                            QAbstractItemModel::LayoutChangeHint hint);
    void beforeReset();
    void afterReset();
    void sourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                           const QList<int> &roles);
    void sourceHeaderChanged(Qt::Orientation orientation, int first, int last);
    void sourceDestroyed();

private:
    enum class Row { None, Text, Source, Separator, Entry };

    [[nodiscard]] Row kindOf(const QModelIndex &index) const;
    [[nodiscard]] int sourceRows() const;
    [[nodiscard]] int sourceColumns() const;
    [[nodiscard]] int firstSourceRow() const;
    [[nodiscard]] int countOfFixedRows() const;
    [[nodiscard]] bool wouldBeItsOwnSource(const QAbstractItemModel *model) const;
    [[nodiscard]] QVariant extraData(const QModelIndex &index, int role) const;
    void followSource();
    void endReset();
    void beginAdding(int first, int last);
    void endAdding();
    void beginTaking(int first, int last);
    void endTaking();
    void tellStandInColumn();

    QList<QString> labels;
    QList<QVariant> values;
    QString text;
    QVariant textValue;
    bool textWhenEmpty = false;
    bool textRowShown = false;
    bool fixedRowsShown = true;
    bool fixedRowsStepAside = false;
    bool standInColumn = false;
    QModelIndexList layoutProxyIndexes;
    QList<QPersistentModelIndex> layoutSourceIndexes;
};
