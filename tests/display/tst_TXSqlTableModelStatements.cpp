#include "PagedTableHelpers.h"
#include "TXSqlTableModel.h"

#include <QSignalSpy>
#include <QSqlDriver>

using PagedTable::Connection;
using PagedTable::Model;

namespace {

/// As a host for a database without LIMIT writes it.
class HostModel : public TXSqlTableModel
{
public:
    HostModel(const Connection &connection, const QString &statement)
        : TXSqlTableModel(nullptr, connection.database())
        , text(statement)
    {
        setTable(QStringLiteral("samples"));
    }

    QString selectStatement() const override { return text; }

private:
    QString text;
};

} // namespace

class TestTXSqlTableModelStatements : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void hostWritesItsOwnStatement_data();
    void hostWritesItsOwnStatement();
    void statementWithoutColumnsEnds();
    void secondStatementIsRefused_data();
    void secondStatementIsRefused();
    void refusalKeepsTheColumnsAndTheWayBack_data();
    void refusalKeepsTheColumnsAndTheWayBack();
    void semicolonAtTheEndIsRefusedWithAPage_data();
    void semicolonAtTheEndIsRefusedWithAPage();
    void hostsStatementIsRefusedToo_data();
    void hostsStatementIsRefusedToo();
    void semicolonInALiteralPasses_data();
    void semicolonInALiteralPasses();
    void tableNameRunsNothing_data();
    void tableNameRunsNothing();
    void tableWithASemicolonInItsNameIsRead_data();
    void tableWithASemicolonInItsNameIsRead();
    void commentBehindTheFilterKeepsThePage_data();
    void commentBehindTheFilterKeepsThePage();
};

void TestTXSqlTableModelStatements::hostWritesItsOwnStatement_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::hostWritesItsOwnStatement()
{
    const auto connection = connect(10);
    HostModel model(*connection,
                    QStringLiteral("SELECT id, name, lightness FROM samples "
                                   "WHERE id BETWEEN 4 AND 5"));
    model.limit = 1;

    QVERIFY(model.select());
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(0, PagedTable::Id).data().toInt(), 4);
}

// Qt's model of such a statement says for ever that there is more.
void TestTXSqlTableModelStatements::statementWithoutColumnsEnds()
{
    const auto connection = connect(10, false);
    HostModel model(*connection, QStringLiteral("UPDATE samples SET lightness = 0"));

    (void)model.select();

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
}

void TestTXSqlTableModelStatements::secondStatementIsRefused_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::secondStatementIsRefused()
{
    const auto connection = connect(10);
    Model model(*connection);
    const QSignalSpy ended(&model, &TXSqlTableModel::modelReset);
    const QString filter = QStringLiteral("1 = 1; DELETE FROM samples");

    model.setFilter(filter);
    QVERIFY(!model.select());

    QVERIFY2(model.lastError().text().contains(connection->isMariaDb()
                                                   ? QStringLiteral("near 'DELETE FROM samples'")
                                                   : QStringLiteral("multiple statements")),
             qPrintable(model.lastError().text()));
    QCOMPARE(model.lastError().type(), QSqlError::StatementError);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(connection->count(), 10);

    model.limit = 3;
    QVERIFY(!model.select());
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModelStatements::refusalKeepsTheColumnsAndTheWayBack_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::refusalKeepsTheColumnsAndTheWayBack()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    QVERIFY(model.select());
    QVERIFY(model.setData(model.index(0, PagedTable::Name), QStringLiteral("changed")));
    QVERIFY(model.insertRow(1));

    model.setFilter(QStringLiteral("1 = 1; DROP TABLE samples"));
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 3);
    QVERIFY(!model.isDirty());
    QVERIFY(model.lastError().isValid());

    model.setFilter(QString());
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));
    QVERIFY(!model.lastError().isValid());
}

void TestTXSqlTableModelStatements::semicolonAtTheEndIsRefusedWithAPage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::semicolonAtTheEndIsRefusedWithAPage()
{
    const auto connection = connect(10);
    Model model(*connection);
    model.setFilter(QStringLiteral("id > 7;"));
    QVERIFY2(model.select(), qPrintable(model.lastError().text()));
    QCOMPARE(model.ids(), QList<int>({8, 9, 10}));

    model.limit = 3;
    QVERIFY(!model.select());

    QVERIFY(model.lastError().isValid());
    QCOMPARE(model.rowCount(), 0);
}

void TestTXSqlTableModelStatements::hostsStatementIsRefusedToo_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::hostsStatementIsRefusedToo()
{
    const auto connection = connect(10);
    HostModel model(*connection,
                    QStringLiteral("SELECT * FROM samples WHERE id > 5; DELETE FROM samples"));

    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModelStatements::semicolonInALiteralPasses_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::semicolonInALiteralPasses()
{
    const auto connection = connect(10);
    connection->run(
        QStringLiteral("UPDATE samples SET name = 'a; DELETE :x ? it''s' WHERE id = 7"));
    Model model(*connection, 3);

    model.setFilter(QStringLiteral("name = 'a; DELETE :x ? it''s'"));
    QVERIFY2(model.select(), qPrintable(model.lastError().text()));

    QCOMPARE(model.ids(), QList<int>{7});
}

void TestTXSqlTableModelStatements::tableNameRunsNothing_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<QString>("table");
    const QStringList names = {QStringLiteral("samples; DELETE FROM samples"),
                               QStringLiteral("samples`; DELETE FROM samples; -- "),
                               QStringLiteral("`samples`; DELETE FROM samples; -- `"),
                               QStringLiteral("samples\"; DELETE FROM samples; -- "),
                               QStringLiteral("\"samples\"; DELETE FROM samples; --\""),
                               QStringLiteral("'; DELETE FROM samples; -- '"),
                               QStringLiteral(";"),
                               QStringLiteral("(SELECT 1) x; DELETE FROM samples")};
    for (const QString &name : names) {
        QTest::addRow("SQLite, %s", qPrintable(name)) << false << name;
        QTest::addRow("MariaDB, %s", qPrintable(name)) << true << name;
    }
}

void TestTXSqlTableModelStatements::tableNameRunsNothing()
{
    QFETCH(QString, table);
    const auto connection = connect(10);
    TXSqlTableModel model(nullptr, connection->database());

    model.setTable(table);
    QVERIFY(model.lastError().isValid());

    QVERIFY(!model.select());
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(connection->count(), 10);
}

void TestTXSqlTableModelStatements::tableWithASemicolonInItsNameIsRead_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::tableWithASemicolonInItsNameIsRead()
{
    const auto connection = connect(10);
    const QString name = QStringLiteral("a; b");
    const QString quoted =
        connection->database().driver()->escapeIdentifier(name, QSqlDriver::TableName);
    connection->run(QStringLiteral("CREATE TABLE %1 AS SELECT * FROM samples").arg(quoted));
    TXSqlTableModel model(nullptr, connection->database());
    model.limit = 4;

    model.setTable(name);
    QVERIFY2(model.select(), qPrintable(model.lastError().text()));
    QCOMPARE(model.rowCount(), 4);

    connection->run(QStringLiteral("DROP TABLE ") + quoted);
}

void TestTXSqlTableModelStatements::commentBehindTheFilterKeepsThePage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModelStatements::commentBehindTheFilterKeepsThePage()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 1);

    model.setFilter(QStringLiteral("id > 4 -- the light ones; all of them"));
    QVERIFY(model.select());

    QCOMPARE(model.ids(), QList<int>({6, 7, 8}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXSqlTableModelStatements>(argc, argv);
}

#include "tst_TXSqlTableModelStatements.moc"
