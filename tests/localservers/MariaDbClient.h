#pragma once

#include "LocalMariaDbServer.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QUuid>
#include <QVariant>

/// What the tests of the database server have in common.
namespace MariaDb {

constexpr int kPatienceMilliseconds = 20000;
constexpr int kAccessDenied = 1045;
constexpr int kDatabaseDenied = 1044;
constexpr int kTableDenied = 1142;
constexpr int kConnectionRefused = 2002;

/// One connection of a client, closed and forgotten at its end.
class Client
{
public:
    explicit Client(const LocalMariaDbServer &server)
        : name(QUuid::createUuid().toString())
        , database(QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), name))
    {
        database.setHostName(QStringLiteral("127.0.0.1"));
        database.setPort(server.port());
    }

    ~Client()
    {
        database.close();
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
    }

    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    /// 0, or the number of the server's or the client's error.
    int logIn(const QString &user = QStringLiteral("mia"),
              const QString &password = QStringLiteral("s3cret"),
              const QString &databaseName = QStringLiteral("measurements"))
    {
        database.setDatabaseName(databaseName);
        return database.open(user, password) ? 0 : database.lastError().nativeErrorCode().toInt();
    }

    /// 0, or the number of the server's error.
    int run(const QString &statement)
    {
        QSqlQuery query(database);
        return query.exec(statement) ? 0 : query.lastError().nativeErrorCode().toInt();
    }

    /// The first value that the statement yields.
    QVariant value(const QString &statement)
    {
        QSqlQuery query(statement, database);
        return query.next() ? query.value(0) : QVariant();
    }

    QSqlQuery query() const { return QSqlQuery(database); }

private:
    QString name;
    QSqlDatabase database;
};

/// The process of the database server itself, which the script runs.
inline qint64 databaseProcess(const LocalMariaDbServer &server)
{
    QFile file(server.folder() + QStringLiteral("/server.pid"));
    return file.open(QFile::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
}

} // namespace MariaDb
