#include "LocalMariaDbServer.h"
#include "MariaDbClient.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>

using MariaDb::databaseProcess;
using MariaDb::kPatienceMilliseconds;

namespace {

constexpr char kFailed[] = "no data folder could be made";

/// A server of another script, with the options of a LocalMariaDbServer.
class ScriptedServer : public LocalServer
{
public:
    using LocalServer::LocalServer;

protected:
    [[nodiscard]] QJsonObject options() const override
    {
        return {{QStringLiteral("user"), QStringLiteral("mia")},
                {QStringLiteral("password"), QStringLiteral("s3cret")},
                {QStringLiteral("database"), QStringLiteral("measurements")}};
    }
};

/// The server's script with one of its names changed, in a folder of its own.
class ChangedScript
{
public:
    ChangedScript(const QByteArray &name, const QByteArray &value) { rename(name, value); }

    /// Before the real installer come these lines of shell, which work in the server's folder.
    explicit ChangedScript(const QByteArray &lines)
    {
        const QString program = folder.filePath(QStringLiteral("mariadbd"));
        write(program,
              "#!/bin/sh\ncase \"$*\" in *--bootstrap*)\n" + lines
                  + "\nesac\nexec /usr/sbin/mariadbd \"$@\"\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        rename("SERVER", QFile::encodeName(program));
    }

    [[nodiscard]] QString path() const { return folder.filePath(QStringLiteral("script.py")); }

private:
    void rename(const QByteArray &name, const QByteArray &value) const
    {
        write(path(),
              "import sys\nsys.path.append('" TX_LOCAL_SERVERS "')\n"
              "import mariadbserver\nmariadbserver."
                  + name + " = '" + value + "'\nmariadbserver.serve()\n");
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    QTemporaryDir folder;
};

} // namespace

class TestLocalMariaDbServerFailures : public TestBase
{
    Q_OBJECT

private slots:
    void badSettingsAreToldInWords_data();
    void badSettingsAreToldInWords();
    void endOfTheDatabaseServerIsTold();
    void missingProgramIsToldInWords_data();
    void missingProgramIsToldInWords();
    void installerThatCrashesIsTriedOnceMore_data();
    void installerThatCrashesIsTriedOnceMore();
    void allWordsOfACrashAreKept();
    void killedScriptLeavesNoInstaller();
};

void TestLocalMariaDbServerFailures::badSettingsAreToldInWords_data()
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

void TestLocalMariaDbServerFailures::badSettingsAreToldInWords()
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

void TestLocalMariaDbServerFailures::endOfTheDatabaseServerIsTold()
{
    LocalMariaDbServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    ::kill(static_cast<pid_t>(databaseProcess(server)), SIGKILL);

    QVERIFY(ended.wait(kPatienceMilliseconds));
    QVERIFY2(server.error().startsWith("the database server has ended"),
             qPrintable(server.error()));
}

void TestLocalMariaDbServerFailures::missingProgramIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("system tables") << QByteArray("SYSTEM_TABLES");
    QTest::newRow("server") << QByteArray("SERVER");
}

void TestLocalMariaDbServerFailures::missingProgramIsToldInWords()
{
    QFETCH(QByteArray, program);
    const ChangedScript script(program, "/nowhere/mariadb");
    LocalServer server(script.path());

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains("/nowhere/mariadb is missing"), qPrintable(server.error()));
}

void TestLocalMariaDbServerFailures::installerThatCrashesIsTriedOnceMore_data()
{
    QTest::addColumn<QByteArray>("death");
    QTest::addColumn<bool>("isTriedAgain");
    QTest::newRow("by a signal") << QByteArray("kill -SEGV $$") << true;
    QTest::newRow("with words about a signal") << QByteArray("echo got signal 6; exit 1") << true;
    QTest::newRow("otherwise") << QByteArray("exit 1") << false;
}

// The second time, what the first one left is gone.
void TestLocalMariaDbServerFailures::installerThatCrashesIsTriedOnceMore()
{
    QFETCH(QByteArray, death);
    QFETCH(bool, isTriedAgain);
    const ChangedScript script("[ -e tried ] || { touch tried data/rest; " + death
                               + "; }\n"
                                 "[ ! -e data/rest ] || exit 1");
    ScriptedServer server(script.path());

    QCOMPARE(server.start(), isTriedAgain);

    QCOMPARE(server.error().contains(kFailed), !isTriedAgain);
}

void TestLocalMariaDbServerFailures::allWordsOfACrashAreKept()
{
    const ChangedScript script(
        "echo first; echo '[ERROR] got signal 6'; seq 20; echo last; exit 1");
    ScriptedServer server(script.path());

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains("first\n[ERROR] got signal 6\n1\n2\n"),
             qPrintable(server.error()));
    QVERIFY2(server.error().contains("20\nlast"), qPrintable(server.error()));
    QVERIFY(server.error().contains(kFailed));
}

void TestLocalMariaDbServerFailures::killedScriptLeavesNoInstaller()
{
    const QTemporaryDir folder;
    const QString pidFile = folder.filePath(QStringLiteral("pid"));
    // Sleeps longer than the test would wait.
    const ChangedScript script("echo $$ > '" + QFile::encodeName(pidFile)
                               + "'; kill -KILL $PPID; exec sleep 100");
    ScriptedServer server(script.path());

    QVERIFY(!server.start());

    QFile file(pidFile);
    QVERIFY(file.open(QFile::ReadOnly));
    const qint64 installer = file.readAll().trimmed().toLongLong();
    QVERIFY(installer > 0);
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(installer), kPatienceMilliseconds);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalMariaDbServerFailures>(argc, argv);
}

#include "tst_LocalMariaDbServerFailures.moc"
