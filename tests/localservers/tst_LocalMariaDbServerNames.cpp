#include "LocalMariaDbServer.h"
#include "MariaDbClient.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using MariaDb::Client;
using MariaDb::databaseProcess;
using MariaDb::kAccessDenied;
using MariaDb::kDatabaseDenied;

namespace {

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

class TestLocalMariaDbServerNames : public TestBase
{
    Q_OBJECT

private slots:
    void anyNamesWillDo_data();
    void anyNamesWillDo();
    void namesAreNoPatterns();
    void passwordStandsNowhere();
    void folderMayHaveAnyName();
};

void TestLocalMariaDbServerNames::anyNamesWillDo_data()
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

void TestLocalMariaDbServerNames::anyNamesWillDo()
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

void TestLocalMariaDbServerNames::namesAreNoPatterns()
{
    LocalMariaDbServer server;
    server.setDatabase("p_%");
    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(Client(server).logIn("mia", "s3cret", "payroll"), kDatabaseDenied);
    QCOMPARE(Client(server).logIn("mia", "s3cret", "p_%"), 0);
}

void TestLocalMariaDbServerNames::passwordStandsNowhere()
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

void TestLocalMariaDbServerNames::folderMayHaveAnyName()
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
    return runTest<TestLocalMariaDbServerNames>(argc, argv);
}

#include "tst_LocalMariaDbServerNames.moc"
