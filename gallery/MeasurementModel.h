#pragma once

#include "TXSqlTableModel.h"

/// The table of measurements, shown as people read it: numbers and dates as in their language, each
/// patch with the colour that was measured. Read only but for the removal of rows.
class MeasurementModel final : public TXSqlTableModel
{
    Q_OBJECT

public:
    /// On a database that is open and holds the table; nothing is selected yet. Sorted by number.
    explicit MeasurementModel(const QSqlDatabase &database, QObject *parent = nullptr);

    /// Gets the page anew, with a wait cursor, and tells by selected().
    bool select() override;

    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Whether the database has the rows in the order of this column at hand: the number and the
    /// difference have an index. By another column it would sort the whole table for each page,
    /// which takes seconds with a million rows.
    [[nodiscard]] static bool isSortable(int column);

    /// Gets the page anew in another order. No effect for a column that is not sortable.
    void sort(int column, Qt::SortOrder order) override;

    /// Removes these rows of the page from the database, all or none, and gets the page anew. False
    /// when the database refuses or cannot be reached; lastError() then tells why.
    [[nodiscard]] bool removePageRows(const QList<int> &rows);

    /// Shows the headers in the language of the moment.
    void retranslate();

signals:
    /// The page has been got, or could not be: see lastError(). The statement is the one that the
    /// database has got.
    void selected(bool isDone, const QString &statement, qint64 milliseconds);

private:
    [[nodiscard]] QSqlError connectionError() const;
    [[nodiscard]] QVariant displayed(const QModelIndex &index) const;
    [[nodiscard]] QColor colour(int row) const;
};
