#pragma once

#include "LocalMariaDbServer.h"
#include "TXSqlTableModel.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <algorithm>
#include <memory>

/// What the tests of paged tables share: a table "samples" in a database of each kind.
namespace PagedTable {

enum Column { Id, Name, Lightness };

constexpr char kCount[] = "SELECT COUNT(*)";
constexpr char kSelect[] = "SELECT `id`";

/// A connection of its own, closed and forgotten at its end: to a database in memory, or to a
/// server.
class Connection
{
public:
    explicit Connection(const LocalMariaDbServer *server = nullptr)
        : name(QUuid::createUuid().toString())
    {
        QSqlDatabase added = QSqlDatabase::addDatabase(
            server ? QStringLiteral("QMYSQL") : QStringLiteral("QSQLITE"), name);
        if (server) {
            added.setHostName(QStringLiteral("127.0.0.1"));
            added.setPort(server->port());
        }
        added.setDatabaseName(server ? QStringLiteral("measurements") : QStringLiteral(":memory:"));
        if (!added.open(QStringLiteral("mia"), QStringLiteral("s3cret"))) {
            qWarning("%s", qPrintable(added.lastError().text()));
        }
    }

    ~Connection()
    {
        QSqlDatabase::database(name, false).close();
        QSqlDatabase::removeDatabase(name);
    }

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] QSqlDatabase database() const { return QSqlDatabase::database(name, false); }

    [[nodiscard]] bool isMariaDb() const
    {
        return database().driverName() == QStringLiteral("QMYSQL");
    }

    /// Runs the statement; a failure is a warning, and thereby fails the test.
    void run(const QString &statement) const
    {
        QSqlQuery query(database());
        if (!query.exec(statement)) {
            qWarning("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        }
    }

    /// The first value that the statement yields.
    [[nodiscard]] QVariant value(const QString &statement) const
    {
        QSqlQuery query(statement, database());
        return query.next() ? query.value(0) : QVariant();
    }

    /// Makes "samples" anew: row n has the id n, the name "n" and the lightness n modulo 100.
    void fill(int rows) const
    {
        run(QStringLiteral("DROP TABLE IF EXISTS samples"));
        run(QStringLiteral("CREATE TABLE samples (id INTEGER PRIMARY KEY, name VARCHAR(40), "
                           "lightness INTEGER)"));
        if (rows == 0) {
            return;
        }
        if (isMariaDb()) {
            run(QStringLiteral("SET max_recursive_iterations = 100000000"));
        }
        run(QStringLiteral("INSERT INTO samples WITH RECURSIVE numbers(n) AS (SELECT 1 UNION ALL "
                           "SELECT n + 1 FROM numbers WHERE n < %1) "
                           "SELECT n, n, n % 100 FROM numbers")
                .arg(rows));
    }

    [[nodiscard]] int count() const
    {
        return value(QStringLiteral("SELECT COUNT(*) FROM samples")).toInt();
    }

private:
    QString name;
};

/// Columns and rows of a test that runs on a database of each kind.
inline void addDatabases()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("MariaDB") << true;
}

/// A test with a server, which the first need of it starts.
class Test : public TestBase
{
protected:
    [[nodiscard]] const LocalMariaDbServer *server()
    {
        if (!mariaDb.start()) {
            qWarning("%s", qPrintable(mariaDb.error()));
        }
        return &mariaDb;
    }

    /// A connection to the database that the data row names, with the rows in "samples".
    [[nodiscard]] std::unique_ptr<Connection> connect(int rows)
    {
        return connect(rows, *static_cast<bool *>(QTest::qData("isOnServer", QMetaType::Bool)));
    }

    [[nodiscard]] std::unique_ptr<Connection> connect(int rows, bool isOnServer)
    {
        auto connection = std::make_unique<Connection>(isOnServer ? server() : nullptr);
        connection->fill(rows);
        statementsBefore = isOnServer ? mariaDb.statements().size() : 0;
        return connection;
    }

    /// How many statements with this beginning the server got since connect() or the last
    /// forgetStatements().
    [[nodiscard]] qsizetype statements(const char *beginning) const
    {
        const QStringList all = mariaDb.statements().mid(statementsBefore);
        return std::count_if(all.begin(), all.end(), [beginning](const QString &statement) {
            return statement.startsWith(QLatin1String(beginning));
        });
    }

    void forgetStatements() { statementsBefore = mariaDb.statements().size(); }

private:
    LocalMariaDbServer mariaDb;
    qsizetype statementsBefore = 0;
};

/// A model of "samples", watched by a tester.
class Model : public TXSqlTableModel
{
public:
    explicit Model(const Connection &connection, qulonglong pageRows = 0, qulonglong firstRow = 0)
        : TXSqlTableModel(nullptr, connection.database())
    {
        limit = pageRows;
        offset = firstRow;
        setTable(QStringLiteral("samples"));
    }

    /// The ids of the rows in the order in which they show.
    [[nodiscard]] QList<int> ids() const
    {
        QList<int> result;
        for (int row = 0; row < rowCount(); ++row) {
            result.append(index(row, Id).data().toInt());
        }
        return result;
    }

private:
    QAbstractItemModelTester tester{this, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace PagedTable
