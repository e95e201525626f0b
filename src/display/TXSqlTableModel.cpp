#include "TXSqlTableModel.h"

#include "SingleStatement.h"

#include <QScopedValueRollback>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <limits>

namespace {

/// Databases count rows in signed numbers.
qulonglong rowNumber(qulonglong number)
{
    return std::min<qulonglong>(number, std::numeric_limits<qlonglong>::max());
}

} // namespace

TXSqlTableModel::TXSqlTableModel(QObject *parent, const QSqlDatabase &database)
    : QSqlTableModel(parent, database)
{ }

void TXSqlTableModel::setTable(const QString &table)
{
    // Qt asks the database for the key of the table, and its escaping leaves back-ticks alone.
    const QString name = database().driver()->escapeIdentifier(table, QSqlDriver::TableName);
    QSqlError reason;
    if (SingleStatement::isSingle(QStringLiteral("SELECT * FROM ") + name, database(), &reason)) {
        QSqlTableModel::setTable(table);
        return;
    }
    QSqlTableModel::setTable(QString());
    setLastError(reason);
}

void TXSqlTableModel::setFilter(const QString &newFilter)
{
    const bool isOther = newFilter != filter();
    QSqlTableModel::setFilter(newFilter);
    if (isOther) {
        emit filterChanged(newFilter);
    }
}

bool TXSqlTableModel::select()
{
    // Within one reset: a view, and a navigator that counts, would follow each portion of rows
    // otherwise.
    beginResetModel();
    const bool isDone = selectPage();
    endResetModel();
    return isDone;
}

bool TXSqlTableModel::selectRow(int row)
{
    // One row is found by its key, wherever its page begins.
    const QScopedValueRollback<bool> unpaged(isPaged, false);
    return QSqlTableModel::selectRow(row);
}

QString TXSqlTableModel::selectStatement() const
{
    const QString statement = QSqlTableModel::selectStatement();
    if (statement.isEmpty() || limit == 0 || !isPaged) {
        return statement;
    }
    // On a line of its own, for a filter that ends with a comment.
    return statement
        + QStringLiteral("\nLIMIT %1 OFFSET %2").arg(rowNumber(limit)).arg(rowNumber(offset));
}

bool TXSqlTableModel::selectPage()
{
    QSqlError reason;
    if (!SingleStatement::isSingle(selectStatement(), database(), &reason)) {
        dropRows();
        setLastError(reason);
        return false;
    }
    const bool isDone = QSqlTableModel::select();
    // A statement of another kind has no columns, and would have more to fetch without end.
    if (columnCount() > 0 && !database().driver()->hasFeature(QSqlDriver::QuerySize)) {
        while (canFetchMore(QModelIndex())) {
            fetchMore(QModelIndex());
        }
    }
    return isDone;
}

void TXSqlTableModel::dropRows()
{
    revertAll();
    const QString statement = database().driver()->sqlStatement(QSqlDriver::SelectStatement,
                                                                tableName(), record(), false);
    setQuery(QSqlQuery(statement + QStringLiteral(" WHERE 1 = 0"), database()));
}
