#include "SingleStatement.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

bool SingleStatement::isSingle(const QString &statement, const QSqlDatabase &database,
                               QSqlError *reason)
{
    if (!statement.contains(QLatin1Char(';')) || !database.isOpen()) {
        return true;
    }
    QSqlQuery query(database);
    const bool isPrepared = query.prepare(statement);
    if (!isPrepared && reason != nullptr) {
        *reason = query.lastError();
    }
    return isPrepared;
}
