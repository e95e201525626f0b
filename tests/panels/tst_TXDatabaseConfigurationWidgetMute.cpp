#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "FullServer.h"
#include "LocalScriptedServer.h"
#include "SilentServer.h"
#include "TestBase.h"

#include <QElapsedTimer>

#include <memory>
#include <string>

using DatabaseTest::Settings;
using DatabaseTest::settingsFor;

namespace {

constexpr qint64 kAddedMilliseconds = 15000;
constexpr qint64 kOwnMilliseconds = 1000;
/// What a busy machine may take on top, and less than it takes for another time-out.
constexpr qint64 kLateMilliseconds = 8000;

/// A packet of the protocol: its length in three bytes, its number, its content.
QByteArray packet(char number, const QByteArray &content)
{
    return QByteArray(1, char(content.size())) + QByteArray(2, '\0') + number + content;
}

QByteArray greeting()
{
    using namespace std::string_literals;
    const std::string content = "\x0a"
                                "5.5.5-10.11.6-MariaDB\0"
                                "\x01\0\0\0"
                                "abcdefgh\0"
                                "\xfe\xf7\x2d\x02\0\xff\x81\x15\0\0\0\0\0\0\x1d\0\0\0"
                                "abcdefghijkl\0"
                                "mysql_native_password\0"s;
    return packet(0, QByteArray::fromStdString(content));
}

/// "You are in", as the answer to the client's log-in.
QByteArray welcome()
{
    return packet(2, QByteArray("\0\0\0\2\0\0\0", 7));
}

/// Says one thing and nothing more, whatever it hears.
QList<QByteArray> onlyThis(const QByteArray &words)
{
    QList<QByteArray> answers(1000);
    answers.first() = words;
    return answers;
}

} // namespace

/// How long the connection test waits for servers that do not answer. Takes the true times.
class TestTXDatabaseConfigurationWidgetMute : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { panel = std::make_unique<TXDatabaseConfigurationWidget>(); }

    void finish() override
    {
        panel.reset();
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    }

private slots:
    void serverThatNeverAcceptsEndsByTheAddedTimeout();
    void serverThatNeverGreetsEndsByTheAddedTimeout();
    void ownTimeoutIsHonoured_data();
    void ownTimeoutIsHonoured();
    void lastOwnTimeoutCounts();
    void ownReadTimeoutIsHonoured();

private:
    void verifyRefusedAfter(qint64 milliseconds, const Settings &settings);
    static void announceMuteness();

    std::unique_ptr<TXDatabaseConfigurationWidget> panel;
};

void TestTXDatabaseConfigurationWidgetMute::verifyRefusedAfter(qint64 milliseconds,
                                                               const Settings &settings)
{
    panel->load(settings);
    QElapsedTimer timer;
    timer.start();

    QVERIFY(!panel->isValid());

    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed > milliseconds - 100, qPrintable(QString::number(elapsed)));
    QVERIFY2(elapsed < milliseconds + kLateMilliseconds, qPrintable(QString::number(elapsed)));
    QCOMPARE(DatabaseTest::parametersOf(panel->settings()).value("Options"),
             DatabaseTest::parametersOf(settings).value("Options"));
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestTXDatabaseConfigurationWidgetMute::announceMuteness()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "MySQL: Unable to set the client character set to utf8 (\"Server has "
                         "gone away\"). Using 'utf8mb4' instead.");
}

void TestTXDatabaseConfigurationWidgetMute::serverThatNeverAcceptsEndsByTheAddedTimeout()
{
    const FullServer server;
    QVERIFY(server.port() != 0);

    verifyRefusedAfter(kAddedMilliseconds, settingsFor(server.port()));
}

void TestTXDatabaseConfigurationWidgetMute::serverThatNeverGreetsEndsByTheAddedTimeout()
{
    const SilentServer server;
    QVERIFY(server.port() != 0);

    verifyRefusedAfter(kAddedMilliseconds,
                       settingsFor(server.port(), {}, "MYSQL_OPT_CONNECT_TIMEOUT=0"));
}

void TestTXDatabaseConfigurationWidgetMute::ownTimeoutIsHonoured_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("never greets") << QByteArray();
    QTest::newRow("never answers the log-in") << greeting();
    QTest::newRow("greets half") << greeting().left(20);
}

void TestTXDatabaseConfigurationWidgetMute::ownTimeoutIsHonoured()
{
    QFETCH(QByteArray, words);
    LocalScriptedServer server(onlyThis(words));
    QVERIFY2(server.start(), qPrintable(server.error()));

    verifyRefusedAfter(kOwnMilliseconds,
                       settingsFor(server.port(), {}, " MYSQL_OPT_CONNECT_TIMEOUT = 1 "));
}

void TestTXDatabaseConfigurationWidgetMute::lastOwnTimeoutCounts()
{
    const FullServer server;
    QVERIFY(server.port() != 0);

    verifyRefusedAfter(
        kOwnMilliseconds,
        settingsFor(server.port(), {}, "MYSQL_OPT_CONNECT_TIMEOUT=30;MYSQL_OPT_CONNECT_TIMEOUT=1"));
}

void TestTXDatabaseConfigurationWidgetMute::ownReadTimeoutIsHonoured()
{
    LocalScriptedServer server(onlyThis(greeting() + welcome()));
    QVERIFY2(server.start(), qPrintable(server.error()));
    announceMuteness();

    verifyRefusedAfter(kOwnMilliseconds,
                       settingsFor(server.port(), {}, "MYSQL_OPT_READ_TIMEOUT=1"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetMute>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetMute.moc"
