#include "LocalFtpServer.h"
#include "LocalServer.h"
#include "ProcessTable.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr int kPatienceMilliseconds = 20000;

/// A server that anybody may tell something.
class TalkedToServer : public LocalServer
{
public:
    using LocalServer::LocalServer;
    using LocalServer::tell;
};

} // namespace

class TestLocalServer : public TestBase
{
    Q_OBJECT

private slots:
    void brokenScriptTellsWhyInWords_data();
    void brokenScriptTellsWhyInWords();
    void scriptGetsItsOptionsAndTellsEvents();
    void lateErrorOfTheScriptIsTold();
    void scriptTakesMessagesInTheirOrder();
    void messageIsInForceWhenItIsTaken();
    void messageToAnEndingScriptIsNotTaken();
    void missingFolderIsToldInWords();
    void endWithoutStopIsTold_data();
    void endWithoutStopIsTold();
    void endByStopIsNotTold();
    void failedStartIsNoEnd();
    void stopLeavesNoProcessAndNoFolder();
    void stoppedServerStartsAgain();
    void deletedServerLeavesNoProcess();
    void stubbornScriptIsKilled();
    void serverEndsWithAKilledOwner();

private:
    /// Writes a script that imports serverlink and does what the text says.
    QString write(const QByteArray &text);

    QTemporaryDir scripts;
};

QString TestLocalServer::write(const QByteArray &text)
{
    QFile file(scripts.filePath(QStringLiteral("script.py")));
    if (file.open(QFile::WriteOnly)) {
        file.write("import os, signal, sys, time\nsys.path.append('" TX_LOCAL_SERVERS "')\n"
                   "import serverlink\n"
                   + text);
    }
    return file.fileName();
}

void TestLocalServer::brokenScriptTellsWhyInWords_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");

    QTest::newRow("exception") << QByteArray("raise OSError('the door is stuck')")
                               << "OSError: the door is stuck";
    QTest::newRow("syntax") << QByteArray("serve(") << "SyntaxError";
    QTest::newRow("ends at once") << QByteArray("pass") << "ended before it was ready";
    QTest::newRow("ends by a signal")
        << QByteArray("os.kill(os.getpid(), signal.SIGKILL)") << "ended before it was ready";
    QTest::newRow("no port") << QByteArray(
        "serverlink.begin()\nprint('hello', flush=True)\ntime.sleep(60)")
                             << "told no port but \"hello\"";
    QTest::newRow("port out of range")
        << QByteArray("serverlink.begin()\nprint(65536, flush=True)\ntime.sleep(60)")
        << "told no port but \"65536\"";
}

void TestLocalServer::brokenScriptTellsWhyInWords()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    LocalServer server(write(text));

    QVERIFY(!server.start());

    QVERIFY2(server.error().contains(reason), qPrintable(server.error()));
    QVERIFY(!server.isRunning());
    QCOMPARE(server.port(), 0);
    QVERIFY(server.folder().isEmpty());
}

void TestLocalServer::scriptGetsItsOptionsAndTellsEvents()
{
    LocalServer server(write("options = serverlink.begin()\n"
                             "serverlink.ready(7)\n"
                             "serverlink.log(str(options))\n"
                             "serverlink.log('x' * 2000)\n"
                             "serverlink.report('unknown')\n"
                             "serverlink.silent()\n"
                             "time.sleep(60)\n"));
    QSignalSpy logged(&server, SIGNAL(logged(QString)));
    QSignalSpy silent(&server, SIGNAL(becameSilent()));

    QVERIFY2(server.start(), qPrintable(server.error()));

    QCOMPARE(server.port(), 7);
    QTRY_VERIFY_WITH_TIMEOUT(server.isSilent(), kPatienceMilliseconds);
    QCOMPARE(server.log(), QStringList({"{}", QString(1000, u'x')}));
    QCOMPARE(logged.count(), 2);
    QCOMPARE(silent.count(), 1);
    QCOMPARE(server.error(), QString());
}

void TestLocalServer::lateErrorOfTheScriptIsTold()
{
    LocalServer server(write("serverlink.begin()\n"
                             "serverlink.ready(7)\n"
                             "raise OSError('the roof is on fire')\n"));

    QVERIFY2(server.start(), qPrintable(server.error()));

    QTRY_VERIFY_WITH_TIMEOUT(!server.isRunning(), kPatienceMilliseconds);
    QVERIFY2(server.error().endsWith("the roof is on fire"), qPrintable(server.error()));
    QVERIFY(server.start());
    server.stop();
}

void TestLocalServer::scriptTakesMessagesInTheirOrder()
{
    TalkedToServer server(write("serverlink.begin(lambda message: serverlink.log(str(message)))\n"
                                "serverlink.ready(7)\n"
                                "time.sleep(60)\n"));
    const QString longText(300000, u'x');
    QVERIFY(!server.tell({}));
    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(server.tell({{"first", 1}}));
    QVERIFY(server.tell({{"long", longText}}));
    QVERIFY(server.tell({}));

    QCOMPARE(server.log(), QStringList({"{'first': 1}", "{'long': '" + longText.left(990), "{}"}));
    QCOMPARE(server.error(), QString());
    server.stop();
    QVERIFY(!server.tell({}));
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(server.tell({{"again", true}}));
    QCOMPARE(server.log(), QStringList("{'again': True}"));
}

void TestLocalServer::messageIsInForceWhenItIsTaken()
{
    const QString path = scripts.filePath(QStringLiteral("taken"));
    TalkedToServer server(write("serverlink.begin(lambda message: open(message['path'], 'x'))\n"
                                "serverlink.ready(7)\n"
                                "time.sleep(60)\n"));
    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(server.tell({{"path", path}}));

    QVERIFY(QFile::exists(path));
}

void TestLocalServer::messageToAnEndingScriptIsNotTaken()
{
    TalkedToServer server(write("serverlink.begin(lambda message: message['missing'])\n"
                                "serverlink.ready(7)\n"
                                "time.sleep(60)\n"));
    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(!server.tell({{"here", 1}}));

    QVERIFY(!server.isRunning());
    QVERIFY2(server.error().contains("KeyError: 'missing'"), qPrintable(server.error()));
}

void TestLocalServer::missingFolderIsToldInWords()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");
    LocalFtpServer server;

    const bool isUp = server.start();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(!isUp);
    QVERIFY2(server.error().startsWith("no folder for the server"), qPrintable(server.error()));
}

void TestLocalServer::endWithoutStopIsTold_data()
{
    QTest::addColumn<QByteArray>("lastLine");

    QTest::newRow("ends") << QByteArray("os._exit(0)");
    QTest::newRow("fails") << QByteArray("raise OSError('the roof is on fire')");
    QTest::newRow("is killed") << QByteArray("os.kill(os.getpid(), signal.SIGKILL)");
}

void TestLocalServer::endWithoutStopIsTold()
{
    QFETCH(QByteArray, lastLine);
    LocalServer server(write("serverlink.begin()\n"
                             "serverlink.ready(7)\n"
                             "serverlink.log('the last word')\n"
                             + lastLine));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(ended.count() == 1 || ended.wait(kPatienceMilliseconds));
    QVERIFY(!server.isRunning());
    QCOMPARE(server.log(), QStringList("the last word"));
    server.stop();
    QCoreApplication::processEvents();
    QCOMPARE(ended.count(), 1);
}

void TestLocalServer::endByStopIsNotTold()
{
    LocalFtpServer server;
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));
    QVERIFY2(server.start(), qPrintable(server.error()));

    server.stop();
    QCoreApplication::processEvents();

    QCOMPARE(ended.count(), 0);
}

void TestLocalServer::failedStartIsNoEnd()
{
    LocalServer server(write("pass"));
    QSignalSpy ended(&server, SIGNAL(stoppedByItself()));

    QVERIFY(!server.start());
    QCoreApplication::processEvents();

    QCOMPARE(ended.count(), 0);
}

void TestLocalServer::stopLeavesNoProcessAndNoFolder()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = server.processId();
    const QString folder = server.folder();
    QVERIFY(isAlive(process));
    QVERIFY(QDir(folder).exists());

    server.stop();

    QVERIFY(!isAlive(process));
    QVERIFY(!QDir(folder).exists());
    QVERIFY(!server.isRunning());
    QCOMPARE(server.processId(), 0);
    QVERIFY(server.port() != 0);
    QCOMPARE(server.error(), QString());
    server.stop();
}

void TestLocalServer::stoppedServerStartsAgain()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = server.processId();
    QVERIFY(server.start());
    QCOMPARE(server.processId(), process);

    server.stop();
    QVERIFY2(server.start(), qPrintable(server.error()));

    QVERIFY(server.processId() != process);
    QVERIFY(isAlive(server.processId()));
}

void TestLocalServer::deletedServerLeavesNoProcess()
{
    auto server = std::make_unique<LocalFtpServer>();
    QVERIFY2(server->start(), qPrintable(server->error()));
    const qint64 process = server->processId();

    server.reset();

    QVERIFY(!isAlive(process));
}

void TestLocalServer::stubbornScriptIsKilled()
{
    LocalServer server(write("print(7, flush=True)\n"
                             "time.sleep(60)\n"));
    QVERIFY2(server.start(), qPrintable(server.error()));
    const qint64 process = server.processId();

    server.stop();

    QVERIFY(!isAlive(process));
}

void TestLocalServer::serverEndsWithAKilledOwner()
{
    QProcess owner;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), scripts.path());
    owner.setProcessEnvironment(environment);
    owner.start(QCoreApplication::applicationDirPath() + QStringLiteral("/serverowner"));
    QVERIFY(owner.waitForReadyRead(kPatienceMilliseconds));
    const qint64 process = owner.readLine().trimmed().toLongLong();
    QVERIFY(isAlive(process));

    owner.kill();
    QVERIFY(owner.waitForFinished());

    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(process), kPatienceMilliseconds);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalServer>(argc, argv);
}

#include "tst_LocalServer.moc"
