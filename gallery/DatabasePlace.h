#pragma once

#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

/// Where a database lies, and how it is entered.
struct DatabasePlace
{
    QString driver;
    /// Of a server: name of the database. Of SQLite: the file.
    QString name;
    QString host;
    int port = 0;
    QString user;
    /// In clear.
    QString password;
    QString options;

    /// A file of SQLite.
    [[nodiscard]] static DatabasePlace inFile(const QString &path);

    /// The server of a dictionary of TXDatabaseConfigurationWidget. A lost connection is made
    /// again, and connecting takes 15 seconds at most unless the dictionary's options tell another
    /// limit, a number of seconds above 0.
    [[nodiscard]] static DatabasePlace onServer(const QHash<QString, QVariant> &settings);
};

/// A connection to a database, under a name of its own among those of QSqlDatabase, from
/// construction to destruction. Queries and models on it go first. Thread: the one that makes it.
class DatabaseConnection
{
public:
    /// Not opened yet.
    explicit DatabaseConnection(const DatabasePlace &place);
    ~DatabaseConnection();

    DatabaseConnection(const DatabaseConnection &) = delete;
    DatabaseConnection &operator=(const DatabaseConnection &) = delete;

    [[nodiscard]] QSqlDatabase database() const { return QSqlDatabase::database(name, false); }

private:
    QString name;
};
