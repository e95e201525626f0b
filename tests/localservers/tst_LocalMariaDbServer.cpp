#include "LocalMariaDbServer.h"

#include "MariaDbClient.h"
#include "TestBase.h"

#include <QFileInfo>

using MariaDb::Client;
using MariaDb::kAccessDenied;
using MariaDb::kDatabaseDenied;
using MariaDb::kTableDenied;

/// One server runs for all tests, each of which takes tables of its own.
class TestLocalMariaDbServer : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { QVERIFY2(server.start(), qPrintable(server.error())); }

private slots:
    void userMayDoEverythingInTheDatabase();
    void everybodyElseIsRefused_data();
    void everybodyElseIsRefused();
    void userMayNothingElsewhere();
    void statementsAreTheClients();
    void preparedStatementsShowWithTheirValues();
    void statementIsThereBeforeItsAnswer();
    void connectionsAreLogged();
    void temporaryFilesAreItsOwn();

private:
    LocalMariaDbServer server;
};

void TestLocalMariaDbServer::userMayDoEverythingInTheDatabase()
{
    Client client(server);

    QCOMPARE(client.logIn(), 0);

    QCOMPARE(client.run("create table t (a int primary key, b text)"), 0);
    QCOMPARE(client.run("insert into t values (1, 'zoë 😀')"), 0);
    QCOMPARE(client.value("select b from t").toString(), QStringLiteral("zoë 😀"));
    QCOMPARE(client.run("alter table t add c int"), 0);
    QCOMPARE(client.run("create view v as select a from t"), 0);
    QCOMPARE(client.run("drop table t"), 0);
    QCOMPARE(server.error(), QString());
    QVERIFY(server.log().isEmpty());
}

void TestLocalMariaDbServer::everybodyElseIsRefused_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("wrong password") << "mia"
                                    << "secret";
    QTest::newRow("no password") << "mia"
                                 << "";
    QTest::newRow("unknown user") << "eve"
                                  << "s3cret";
    QTest::newRow("superuser") << "root"
                               << "";
    QTest::newRow("nobody") << ""
                            << "";
}

void TestLocalMariaDbServer::everybodyElseIsRefused()
{
    QFETCH(QString, user);
    QFETCH(QString, password);

    if (user.isEmpty()) {
        // The client fills in the name of the system's user.
        QCOMPARE(Client(server).logIn(user, password, QString()), kAccessDenied);
    }
    QCOMPARE(Client(server).logIn(user, password), kAccessDenied);
}

void TestLocalMariaDbServer::userMayNothingElsewhere()
{
    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "mysql"), kDatabaseDenied);
    Client client(server);
    QCOMPARE(client.logIn("mia", "s3cret", QString()), 0);

    QCOMPARE(client.run("create table payroll.t (a int)"), kTableDenied);
    QCOMPARE(client.run("select * from mysql.global_priv"), kTableDenied);
    QCOMPARE(client.run("create database another"), kDatabaseDenied);
    QCOMPARE(client.run("use payroll"), kDatabaseDenied);
}

void TestLocalMariaDbServer::statementsAreTheClients()
{
    LocalMariaDbServer fresh;
    QVERIFY(fresh.statements().isEmpty());
    QVERIFY2(fresh.start(), qPrintable(fresh.error()));
    QCOMPARE(fresh.statements(), QStringList());
    QCOMPARE(fresh.connections(), QStringList());
    Client client(fresh);
    QCOMPARE(client.logIn(), 0);
    const qsizetype before = fresh.statements().size();
    const QStringList statements = {
        "create table t (a text)",
        "insert into t values ('a\nb\r\n\"c\", \\\\ \t,😀')",
        "select a,\n\"x\\n\"\nfrom t -- why",
        "select nonsense from nowhere",
        "select ?",
    };

    for (const QString &statement : statements) {
        client.run(statement);
        QCOMPARE(fresh.statements().last(), statement);
    }

    QCOMPARE(fresh.statements().mid(before), statements);
    QVERIFY(!fresh.statements().join(u'\n').contains("IDENTIFIED"));
    fresh.stop();
    QVERIFY(fresh.statements().isEmpty());
}

void TestLocalMariaDbServer::preparedStatementsShowWithTheirValues()
{
    Client client(server);
    QCOMPARE(client.logIn(), 0);
    QCOMPARE(client.run("create table pairs (a int primary key, b text)"), 0);
    const qsizetype before = server.statements().size();
    QSqlQuery query = client.query();

    QVERIFY(query.prepare("insert into pairs values (?, ?)"));
    QList<bool> isDone;
    for (const int value : {7, 7, 8}) {
        query.addBindValue(value);
        query.addBindValue("o'neil");
        isDone.append(query.exec());
    }

    QCOMPARE(isDone, QList<bool>({true, false, true}));
    QCOMPARE(server.statements().mid(before),
             QStringList({"insert into pairs values (7, 'o\\'neil')",
                          "insert into pairs values (7, 'o\\'neil')",
                          "insert into pairs values (8, 'o\\'neil')"}));
}

void TestLocalMariaDbServer::statementIsThereBeforeItsAnswer()
{
    Client client(server);
    QCOMPARE(client.logIn(), 0);

    QSqlQuery prepared = client.query();
    QVERIFY(prepared.prepare("select ?"));

    for (int i = 1; i < 200; ++i) {
        const QString statement = QStringLiteral("select %1").arg(i);
        QCOMPARE(client.value(statement).toInt(), i);
        QCOMPARE(server.statements().last(), statement);
        prepared.addBindValue(-i);
        QVERIFY(prepared.exec());
        QCOMPARE(server.statements().last(), QStringLiteral("select %1").arg(-i));
    }
}

void TestLocalMariaDbServer::connectionsAreLogged()
{
    const qsizetype before = server.connections().size();

    QCOMPARE(Client(server).logIn(), 0);
    QCOMPARE(Client(server).logIn("mia", "wrong"), kAccessDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);

    QCOMPARE(server.connections().mid(before),
             QStringList({"mia@127.0.0.1 on measurements using TCP/IP",
                          "mia@127.0.0.1 on measurements using TCP/IP",
                          "Access denied for user 'mia'@'127.0.0.1' (using password: YES)",
                          "mia@127.0.0.1 on payroll using TCP/IP"}));
}

void TestLocalMariaDbServer::temporaryFilesAreItsOwn()
{
    Client client(server);
    QCOMPARE(client.logIn(), 0);

    const QString folder = QFileInfo(server.folder()).canonicalFilePath();
    QCOMPARE(client.value("select @@tmpdir").toString(), QString(folder + QStringLiteral("/tmp")));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalMariaDbServer>(argc, argv);
}

#include "tst_LocalMariaDbServer.moc"
