#pragma once

#include "TXGUICommonExport.h"

#include <QSqlTableModel>

/// A table of a database of which one page is in memory: rows `offset` to `offset + limit - 1` of
/// those that the filter lets through, in the order of the sorting.
///
/// The page is asked for with LIMIT and OFFSET, which SQLite and MariaDB understand; a host with
/// another database overrides selectStatement(). Take TXDBNavWidget for the user to turn the pages.
///
/// Table name, filter and sorting are parts of SQL statements, as in QSqlTableModel: they come from
/// the program, not from a user.
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

    /// Sets the condition that rows must meet, the part of a statement after WHERE; empty for all
    /// rows. Emits filterChanged() when it is another one. `offset` stays.
    void setFilter(const QString &filter) override;

    /// Gets the page anew, all of its rows. False, with the reason in lastError(), when the
    /// database refuses. Cost: that of the query, and one model reset whatever the size of the
    /// page.
    bool select() override;

    /// Gets one row anew, by its primary key.
    bool selectRow(int row) override;

signals:
    /// The filter has become another one.
    void filterChanged(QString filter);

protected:
    /// The statement of QSqlTableModel, with the page behind it when `limit` is above 0.
    [[nodiscard]] QString selectStatement() const override;

private:
    bool isPaged = true;
};
