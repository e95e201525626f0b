#include "LocalMariaDbServer.h"
#include "LoopbackSocket.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QUuid>

#include <csignal>

namespace {

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

bool isRefused(quint16 port)
{
    const LoopbackSocket socket;
    socket.connectTo(port);
    return !socket.waitForConnected(kPatienceMilliseconds);
}

/// The process of the database server itself, which the script runs.
qint64 databaseProcess(const LocalMariaDbServer &server)
{
    QFile file(server.folder() + QStringLiteral("/server.pid"));
    return file.open(QFile::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
}

/// What of the files below the folder holds the text.
QStringList filesWith(const QByteArray &text, const QString &folder)
{
    QStringList result;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        QFile file(it.next());
        if (file.open(QFile::ReadOnly) && file.readAll().contains(text)) {
            result.append(file.fileName());
        }
    }
    return result;
}

} // namespace

class TestLocalMariaDbServer : public TestBase
{
    Q_OBJECT

private slots:
    void userMayDoEverythingInTheDatabase();
    void everybodyElseIsRefused_data();
    void everybodyElseIsRefused();
    void userMayNothingElsewhere();
    void anyNamesWillDo_data();
    void anyNamesWillDo();
    void namesAreNoPatterns();
    void badSettingsAreToldInWords_data();
    void badSettingsAreToldInWords();
    void statementsAreTheClients();
    void preparedStatementsShowWithTheirValues();
    void statementIsThereBeforeItsAnswer();
    void connectionsAreLogged();
    void passwordStandsNowhere();
    void stopLeavesNoProcessAndAClosedPort();
    void startedAgainServerIsEmpty();
    void twoRunSideBySide();
    void temporaryFilesAreItsOwn();
    void killedScriptLeavesNoDatabaseServer();
    void endOfTheDatabaseServerIsTold();
    void missingProgramIsToldInWords_data();
    void missingProgramIsToldInWords();
    void folderMayHaveAnyName();
};

void TestLocalMariaDbServer::userMayDoEverythingInTheDatabase()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
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
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));

    if (user.isEmpty()) {
        // The client fills in the name of the system's user.
        QCOMPARE(Client(server).logIn(user, password, QString()), kAccessDenied);
    }
    QCOMPARE(Client(server).logIn(user, password), kAccessDenied);
}

void TestLocalMariaDbServer::userMayNothingElsewhere()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "mysql"), kDatabaseDenied);
    Client client(server);
    QCOMPARE(client.logIn("mia", "s3cret", QString()), 0);

    QCOMPARE(client.run("create table payroll.t (a int)"), kTableDenied);
    QCOMPARE(client.run("select * from mysql.global_priv"), kTableDenied);
    QCOMPARE(client.run("create database another"), kDatabaseDenied);
    QCOMPARE(client.run("use payroll"), kDatabaseDenied);
}

void TestLocalMariaDbServer::anyNamesWillDo_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("database");
    QTest::newRow("single quotes") << "o'neil"
                                   << "it's ''"
                                   << "tom's";
    QTest::newRow("double quotes") << "\"m\""
                                   << "\""
                                   << "a \"b\" c";
    QTest::newRow("grave accents") << "`m`"
                                   << "``"
                                   << "a`b``c";
    QTest::newRow("backslashes") << "a\\b\\"
                                 << "\\'\\\\"
                                 << "c\\d\\";
    QTest::newRow("semicolons") << "a;"
                                << "x; -- y;"
                                << "a;b;";
    QTest::newRow("other letters") << "zoë"
                                   << "пароль 😀"
                                   << "Größe_測";
    QTest::newRow("wildcards") << "m%_"
                               << "%_"
                               << "a_b%c";
    QTest::newRow("line end") << "a;\nb"
                              << "c;\n# d"
                              << "e;\nf";
    QTest::newRow("at sign") << "mia@here"
                             << "@"
                             << "m@x";
    QTest::newRow("no password") << "mia"
                                 << ""
                                 << "measurements";
    QTest::newRow("superuser's name") << "root"
                                      << "r00t"
                                      << "Measurements";
}

void TestLocalMariaDbServer::anyNamesWillDo()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, database);
    LocalMariaDbServer server;
    server.setUser(user, password);
    server.setDatabase(database);
    QVERIFY2(server.start(), qPrintable(server.error()));
    Client client(server);

    QCOMPARE(client.logIn(user, password, database), 0);

    QCOMPARE(client.value("select database()").toString(), database);
    QCOMPARE(client.run("create table t (a int)"), 0);
    QCOMPARE(Client(server).logIn(user, password + 'x', database), kAccessDenied);
    QCOMPARE(Client(server).logIn(user, password, "payroll"), kDatabaseDenied);
    QVERIFY(server.statements().contains("create table t (a int)"));
    QCOMPARE(server.error(), QString());
}

void TestLocalMariaDbServer::namesAreNoPatterns()
{
    LocalMariaDbServer server;
    server.setDatabase("p_%");
    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "p_%"), 0);
}

void TestLocalMariaDbServer::badSettingsAreToldInWords_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no user") << ""
                             << "m"
                             << "the user has no name";
    QTest::newRow("long user") << QString(129, u'x') << "m"
                               << "too long for user name";
    QTest::newRow("no database") << "mia"
                                 << ""
                                 << "Incorrect database name";
    QTest::newRow("long database") << "mia" << QString(65, u'x') << "Incorrect database name";
    QTest::newRow("space at the end") << "mia"
                                      << "m "
                                      << "Incorrect database name";
    QTest::newRow("closed database") << "mia"
                                     << "payroll"
                                     << "is the closed one";
    QTest::newRow("server's database") << "mia"
                                       << "mysql"
                                       << "database exists";
}

void TestLocalMariaDbServer::badSettingsAreToldInWords()
{
    QFETCH(QString, user);
    QFETCH(QString, database);
    QFETCH(QString, reason);
    LocalMariaDbServer server;
    server.setUser(user, "s3cret");
    server.setDatabase(database);

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains(reason), qPrintable(server.error()));
    QVERIFY2(!server.error().contains("s3cret"), qPrintable(server.error()));
    QVERIFY(!server.isRunning());
}

void TestLocalMariaDbServer::statementsAreTheClients()
{
    LocalMariaDbServer server;
    QVERIFY(server.statements().isEmpty());
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(server.statements(), QStringList());
    Client client(server);
    QCOMPARE(client.logIn(), 0);
    const qsizetype before = server.statements().size();
    const QStringList statements = {
        "create table t (a text)",
        "insert into t values ('a\nb\r\n\"c\", \\\\ \t,😀')",
        "select a,\n\"x\\n\"\nfrom t -- why",
        "select nonsense from nowhere",
        "select ?",
    };

    for (const QString &statement : statements) {
        client.run(statement);
        QCOMPARE(server.statements().last(), statement);
    }

    QCOMPARE(server.statements().mid(before), statements);
    QVERIFY(!server.statements().join(u'\n').contains("IDENTIFIED"));
    server.stop();
    QVERIFY(server.statements().isEmpty());
}

void TestLocalMariaDbServer::preparedStatementsShowWithTheirValues()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    Client client(server);
    QCOMPARE(client.logIn(), 0);
    QCOMPARE(client.run("create table t (a int primary key, b text)"), 0);
    const qsizetype before = server.statements().size();
    QSqlQuery query = client.query();

    QVERIFY(query.prepare("insert into t values (?, ?)"));
    QList<bool> isDone;
    for (const int value : {7, 7, 8}) {
        query.addBindValue(value);
        query.addBindValue("o'neil");
        isDone.append(query.exec());
    }

    QCOMPARE(isDone, QList<bool>({true, false, true}));
    QCOMPARE(
        server.statements().mid(before),
        QStringList({"insert into t values (7, 'o\\'neil')", "insert into t values (7, 'o\\'neil')",
                     "insert into t values (8, 'o\\'neil')"}));
}

void TestLocalMariaDbServer::statementIsThereBeforeItsAnswer()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
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
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(server.connections(), QStringList());

    QCOMPARE(Client(server).logIn(), 0);
    QCOMPARE(Client(server).logIn("mia", "wrong"), kAccessDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);

    QCOMPARE(server.connections(),
             QStringList({"mia@127.0.0.1 on measurements using TCP/IP",
                          "mia@127.0.0.1 on measurements using TCP/IP",
                          "Access denied for user 'mia'@'127.0.0.1' (using password: YES)",
                          "mia@127.0.0.1 on payroll using TCP/IP"}));
}

void TestLocalMariaDbServer::passwordStandsNowhere()
{
    LocalMariaDbServer server;
    server.setUser("mia", "7hOrnBush");
    QVERIFY2(server.start(), qPrintable(server.error()));
    QCOMPARE(Client(server).logIn("mia", "7hOrnBush"), 0);

    // The user's name is found, so the password would be.
    QVERIFY(!filesWith("measurements", server.folder()).isEmpty());
    QCOMPARE(filesWith("7hOrnBush", server.folder()), QStringList());
    QCOMPARE(filesWith(QByteArray("7hOrnBush").toHex(), server.folder()), QStringList());
    const QFile::Permissions permissions = QFileInfo(server.folder()).permissions();
    QVERIFY(!(permissions & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther)));
    QVERIFY(!server.statements().join(u'\n').contains("7hOrnBush"));
    QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(databaseProcess(server)));
    QVERIFY(commandLine.open(QFile::ReadOnly));
    const QByteArray arguments = commandLine.readAll();
    QVERIFY(arguments.contains("mariadbd"));
    QVERIFY(!arguments.contains("7hOrnBush"));
}

void TestLocalMariaDbServer::stopLeavesNoProcessAndAClosedPort()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = databaseProcess(server);
    QVERIFY(isAlive(process));
    QVERIFY(process != server.processId());
    const QString folder = server.folder();
    Client client(server);
    QCOMPARE(client.logIn(), 0);

    server.stop();

    QVERIFY(isRefused(server.port()));
    QVERIFY(!isAlive(process));
    QVERIFY(!QDir(folder).exists());
    QCOMPARE(server.error(), QString());
    QCOMPARE(Client(server).logIn(), kConnectionRefused);
}

void TestLocalMariaDbServer::startedAgainServerIsEmpty()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    {
        Client client(server);
        QCOMPARE(client.logIn(), 0);
        QCOMPARE(client.run("create table t (a int)"), 0);
    }
    server.stop();
    server.setUser("zoë", "other");

    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(server.statements(), QStringList());
    QCOMPARE(Client(server).logIn(), kAccessDenied);
    Client client(server);
    QCOMPARE(client.logIn("zoë", "other"), 0);
    QCOMPARE(client.run("create table t (a int)"), 0);
}

void TestLocalMariaDbServer::twoRunSideBySide()
{
    LocalMariaDbServer first;
    LocalMariaDbServer second;
    second.setUser("tom", "cat");
    QVERIFY2(first.start(), qPrintable(first.error()));
    QVERIFY2(second.start(), qPrintable(second.error()));
    QVERIFY(first.port() != second.port());

    QCOMPARE(Client(first).logIn(), 0);
    QCOMPARE(Client(second).logIn(), kAccessDenied);
    QCOMPARE(Client(second).logIn("tom", "cat"), 0);
    first.stop();
    QCOMPARE(Client(second).logIn("tom", "cat"), 0);
}

void TestLocalMariaDbServer::temporaryFilesAreItsOwn()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    Client client(server);
    QCOMPARE(client.logIn(), 0);

    const QString folder = QFileInfo(server.folder()).canonicalFilePath();
    QCOMPARE(client.value("select @@tmpdir").toString(), QString(folder + QStringLiteral("/tmp")));
}

void TestLocalMariaDbServer::killedScriptLeavesNoDatabaseServer()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = databaseProcess(server);
    QVERIFY(isAlive(process));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(server.processId()), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(process), kPatienceMilliseconds);
    // Threads of it may live a moment longer than the process.
    QTRY_VERIFY_WITH_TIMEOUT(isRefused(server.port()), kPatienceMilliseconds);
}

void TestLocalMariaDbServer::endOfTheDatabaseServerIsTold()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(databaseProcess(server)), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QVERIFY2(server.error().startsWith("the database server has ended"),
             qPrintable(server.error()));
}

void TestLocalMariaDbServer::missingProgramIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("installer") << QByteArray("INSTALLER");
    QTest::newRow("server") << QByteArray("SERVER");
}

void TestLocalMariaDbServer::missingProgramIsToldInWords()
{
    QFETCH(QByteArray, program);
    const QTemporaryDir scripts;
    QFile script(scripts.filePath(QStringLiteral("script.py")));
    QVERIFY(script.open(QFile::WriteOnly));
    script.write("import sys\nsys.path.append('" TX_LOCAL_SERVERS "')\n"
                 "import mariadbserver\nmariadbserver."
                 + program + " = '/nowhere/mariadb'\nmariadbserver.serve()\n");
    script.close();
    LocalServer server(script.fileName());

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains("/nowhere/mariadb is missing"), qPrintable(server.error()));
}

void TestLocalMariaDbServer::folderMayHaveAnyName()
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath("it's ü $HOME; " + QString(120, u'x'));
    QVERIFY(QDir().mkdir(folder));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(folder));
    LocalMariaDbServer server;

    const bool isUp = server.start();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY2(isUp, qPrintable(server.error()));
    QVERIFY(server.folder().startsWith(folder));
    QCOMPARE(Client(server).logIn(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalMariaDbServer>(argc, argv);
}

#include "tst_LocalMariaDbServer.moc"
