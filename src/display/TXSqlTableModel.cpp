#include "TXSqlTableModel.h"

#include <QScopedValueRollback>
#include <QSqlDatabase>
#include <QSqlDriver>

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
    const bool isDone = QSqlTableModel::select();
    if (!database().driver()->hasFeature(QSqlDriver::QuerySize)) {
        while (canFetchMore(QModelIndex())) {
            fetchMore(QModelIndex());
        }
    }
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
    return statement
        + QStringLiteral(" LIMIT %1 OFFSET %2").arg(rowNumber(limit)).arg(rowNumber(offset));
}
