#pragma once

#include "TXGUICommonExport.h"

#include <QSqlTableModel>

/// A table of a database of which one page is in memory: rows `offset` to `offset + limit - 1` of
/// those that the filter lets through, in the order of the sorting. Take TXDBNavWidget for the user
/// to turn the pages.
///
/// The page is asked for with LIMIT and OFFSET, which SQLite and MariaDB understand. Both are held
/// to 2^63 - 1. Without a sorting the order of the rows is the database's, which may be another one
/// for each page. A host with another database overrides selectStatement().
///
/// Table name and filter are parts of SQL statements, as in QSqlTableModel: they come from the
/// program, not from a user. They cannot add a second statement behind a semicolon, though: what
/// the database does not take as one statement is refused before it runs, in lastError().
///
/// As in QSqlTableModel, select() drops what was changed and not submitted, and so does whatever
/// selects: turning the page, sorting, another filter.
///
/// Thread: that of the database connection.
class TXGUICOMMON_EXPORT TXSqlTableModel : public QSqlTableModel
{
    Q_OBJECT

public:
    /// The first row of the page, counted from 0. A new value counts from the next select() on.
    qulonglong offset = 0;
    /// Rows of a page; 0 means no paging: select() gets all rows, and `offset` does not count. A
    /// new value counts from the next select() on.
    qulonglong limit = 0;

    /// A model without a table, on the application's default connection unless another one is
    /// given.
    explicit TXSqlTableModel(QObject *parent = nullptr, const QSqlDatabase &database = {});

    /// Sets the table, without rows until the first select(); the filter and the sorting go.
    /// `offset` and `limit` stay. A name with a semicolon that the database does not take as one
    /// name counts as empty: lastError() tells why, and select() fails.
    void setTable(const QString &table) override;

    /// Sets the condition that rows must meet, the part of a statement after WHERE; empty for all
    /// rows. Once rows have been selected, selects the page of the new filter. Emits
    /// filterChanged() thereafter when the filter is another one. `offset` stays. No semicolon
    /// belongs at its end: with a `limit` the page follows there, and the database refuses the
    /// statement.
    void setFilter(const QString &filter) override;

    /// Gets the page anew, all of its rows. False, with the reason in lastError(), when the
    /// database refuses; no rows are left then. One model reset, whatever the size of the page and
    /// however it ends: no rows are inserted or removed. Cost: that of the query, which for most
    /// databases grows with `offset`.
    bool select() override;

    /// Gets one row anew, by its primary key; false when that finds none.
    bool selectRow(int row) override;

signals:
    /// The filter has become another one, and counts already. Not emitted for the filter that it
    /// was, nor by setTable().
    void filterChanged(QString filter);

protected:
    /// The statement of QSqlTableModel, with the page behind it when `limit` is above 0.
    [[nodiscard]] QString selectStatement() const override;

private:
    [[nodiscard]] bool selectPage();
    void dropRows();

    bool isPaged = true;
};
