#include "TXDatabaseConfigurationWidget.h"

#include "ClosedPort.h"
#include "DatabasePanelHelpers.h"
#include "LocalMariaDbServer.h"
#include "LocalScriptedServer.h"
#include "TestBase.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QSqlQuery>

#include <memory>

using DatabaseTest::Account;
using DatabaseTest::child;
using DatabaseTest::Settings;
using DatabaseTest::settingsFor;

/// The connection test against real servers, and against some that are none.
class TestTXDatabaseConfigurationWidgetConnection : public TestBase
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
    void initTestCase();
    void cleanupTestCase();

    void serverLetsInWhoMayComeIn_data();
    void serverLetsInWhoMayComeIn();
    void savedSettingsAreThoseOfTheControls();
    void unreachableServerIsRefused_data();
    void unreachableServerIsRefused();
    void strangeServerIsRefused_data();
    void strangeServerIsRefused();
    void ownOptionsReachTheServer_data();
    void ownOptionsReachTheServer();
    void unknownOptionsAreWarnedOfAndHarmless_data();
    void unknownOptionsAreWarnedOfAndHarmless();
    void anyNamesAreTaken_data();
    void anyNamesAreTaken();
    void panelsTryOneAfterTheOther();
    void connectionsOfTheHostGoOn();
    void serverThatComesBackIsFoundAgain();

private:
    [[nodiscard]] Settings settings(const Account &account = {}, const QString &options = {}) const
    {
        return settingsFor(server.port(), account, options);
    }

    LocalMariaDbServer server;
    std::unique_ptr<TXDatabaseConfigurationWidget> panel;
};

void TestTXDatabaseConfigurationWidgetConnection::initTestCase()
{
    QVERIFY2(server.start(), qPrintable(server.error()));
}

void TestTXDatabaseConfigurationWidgetConnection::cleanupTestCase()
{
    server.stop();
}

void TestTXDatabaseConfigurationWidgetConnection::serverLetsInWhoMayComeIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("database");
    QTest::addColumn<bool>("isGood");
    const auto add = [](const char *tag, const char *user, const char *password,
                        const char *database, bool isGood) {
        QTest::newRow(tag) << QString(user) << QString(password) << QString(database) << isGood;
    };
    add("all right", "mia", "s3cret", "measurements", true);
    add("no database", "mia", "s3cret", "", true);
    add("wrong password", "mia", "secret", "measurements", false);
    add("password in capitals", "mia", "S3CRET", "measurements", false);
    add("no password", "mia", "", "measurements", false);
    add("no such user", "eve", "s3cret", "measurements", false);
    add("no user", "", "", "measurements", false);
    add("superuser", "root", "", "measurements", false);
    add("no such database", "mia", "s3cret", "nowhere", false);
    add("closed database", "mia", "s3cret", "payroll", false);
    add("quote as user", "' or 1=1; --", "s3cret", "measurements", false);
    add("statement as database", "mia", "s3cret", "measurements`; drop database x", false);
    add("semicolons in the password", "mia", "s3cret;x=1", "measurements", false);
}

void TestTXDatabaseConfigurationWidgetConnection::serverLetsInWhoMayComeIn()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, database);
    QFETCH(bool, isGood);
    const qsizetype before = server.connections().size();
    QVERIFY(panel->load(settings({user, password, database})));

    QCOMPARE(panel->isValid(), isGood);

    QVERIFY(server.connections().size() > before);
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    QCOMPARE(panel->save().isEmpty(), !isGood);
    QCOMPARE(panel->settings().size(), 3);
}

void TestTXDatabaseConfigurationWidgetConnection::savedSettingsAreThoseOfTheControls()
{
    panel->load(settings({}, QStringLiteral("CLIENT_COMPRESS=1")));

    const Settings saved = panel->save();

    QCOMPARE(saved.value("Driver"), QVariant("QMYSQL"));
    QCOMPARE(saved.value("Connection"), QVariant("measurements"));
    QCOMPARE(DatabaseTest::passwordOf(saved), QStringLiteral("s3cret"));
    QCOMPARE(DatabaseTest::parametersOf(saved).value("Port"), QVariant(int(server.port())));
    QCOMPARE(DatabaseTest::parametersOf(saved).value("Options"), QVariant("CLIENT_COMPRESS=1"));
}

void TestTXDatabaseConfigurationWidgetConnection::unreachableServerIsRefused_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::newRow("nothing listens") << "127.0.0.1" << int(closedPort());
    QTest::newRow("unknown host") << "nohost.invalid" << 3306;
    QTest::newRow("host that is no name") << "not a host; x=1" << 3306;
    QTest::newRow("name with other letters") << QString::fromUtf8("größe😀.invalid") << 3306;
    QTest::newRow("very long name") << QString(32767, u'h') << 3306;
}

void TestTXDatabaseConfigurationWidgetConnection::unreachableServerIsRefused()
{
    QFETCH(QString, host);
    QFETCH(int, port);
    panel->load(settingsFor(quint16(port)));
    child<QLineEdit>(*panel, "hostEdit")->setText(host);

    QVERIFY(!panel->isValid());
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    QVERIFY(panel->save().isEmpty());
    QCOMPARE(DatabaseTest::parametersOf(panel->settings()).size(), 5);
}

void TestTXDatabaseConfigurationWidgetConnection::strangeServerIsRefused_data()
{
    QTest::addColumn<QList<QByteArray>>("answers");
    QTest::newRow("closes at once") << QList<QByteArray>();
    QTest::newRow("another protocol") << QList<QByteArray>({"HTTP/1.1 400 Bad Request\r\n\r\n"});
    QTest::newRow("half a greeting") << QList<QByteArray>({QByteArray("\x4a\0\0\0\x0a"
                                                                      "5.5.5",
                                                                      10)});
    QTest::newRow("too many connections")
        << QList<QByteArray>({QByteArray("\x17\0\0\0\xff\x10\x04Too many connections", 27)});
    QTest::newRow("zeros") << QList<QByteArray>({QByteArray(100000, '\0')});
    QTest::newRow("ones") << QList<QByteArray>({QByteArray(100000, '\xff')});
}

void TestTXDatabaseConfigurationWidgetConnection::strangeServerIsRefused()
{
    QFETCH(QList<QByteArray>, answers);
    LocalScriptedServer strange(answers);
    QVERIFY2(strange.start(), qPrintable(strange.error()));
    panel->load(settingsFor(strange.port()));

    QVERIFY(!panel->isValid());

    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestTXDatabaseConfigurationWidgetConnection::ownOptionsReachTheServer_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("none") << "" << true;
    QTest::newRow("one") << "CLIENT_COMPRESS=1" << true;
    QTest::newRow("several") << "CLIENT_COMPRESS=1;CLIENT_INTERACTIVE=1" << true;
    QTest::newRow("blanks") << "  CLIENT_COMPRESS = 1 ; CLIENT_INTERACTIVE=1" << true;
    QTest::newRow("empty ones") << ";;;" << true;
    QTest::newRow("time-outs") << "MYSQL_OPT_CONNECT_TIMEOUT=5;MYSQL_OPT_READ_TIMEOUT=5" << true;
    QTest::newRow("no reconnect") << "MYSQL_OPT_RECONNECT=0" << true;
    QTest::newRow("socket that is not there") << "UNIX_SOCKET=/nowhere;x" << false;
}

void TestTXDatabaseConfigurationWidgetConnection::ownOptionsReachTheServer()
{
    QFETCH(QString, options);
    QFETCH(bool, isGood);
    panel->load(settings({}, options));
    if (!isGood) {
        // The driver takes a socket for this name only.
        child<QLineEdit>(*panel, "hostEdit")->setText(QStringLiteral("localhost"));
        QTest::ignoreMessage(QtWarningMsg, "QMYSQLDriver::open: Unknown connect option 'x'");
    }

    QCOMPARE(panel->isValid(), isGood);

    QCOMPARE(DatabaseTest::parametersOf(panel->settings()).value("Options"), QVariant(options));
}

void TestTXDatabaseConfigurationWidgetConnection::unknownOptionsAreWarnedOfAndHarmless_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("warning");
    QTest::newRow("unknown") << "COLOUR=1"
                             << "Unknown connect option 'COLOUR'";
    QTest::newRow("small letters") << "mysql_opt_connect_timeout=1"
                                   << "Unknown connect option 'mysql_opt_connect_timeout'";
    QTest::newRow("no value") << "MYSQL_OPT_CONNECT_TIMEOUT"
                              << "Unknown connect option 'MYSQL_OPT_CONNECT_TIMEOUT'";
    QTest::newRow("equal signs") << "=5"
                                 << "Illegal connect option value '=5'";
    QTest::newRow("quotes") << "'CLIENT_ODBC=1'"
                            << "Illegal connect option value ''CLIENT_ODBC=1''";
    QTest::newRow("blanks alone") << " "
                                  << "Unknown connect option ''";
}

void TestTXDatabaseConfigurationWidgetConnection::unknownOptionsAreWarnedOfAndHarmless()
{
    QFETCH(QString, options);
    QFETCH(QString, warning);
    panel->load(settings({}, options));
    QTest::ignoreMessage(QtWarningMsg, qPrintable("QMYSQLDriver::open: " + warning));

    QVERIFY(panel->isValid());
}

void TestTXDatabaseConfigurationWidgetConnection::anyNamesAreTaken_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("database");
    QTest::newRow("quotes and semicolons") << "o'neil; \"m\""
                                           << ";it's=\"`\\; --"
                                           << "tom's `b`;c=";
    QTest::newRow("other scripts")
        << QString::fromUtf8("zoë мия") << QString::fromUtf8("pä|ß 密碼😀")
        << QString::fromUtf8("Größen 測定");
    QTest::newRow("blanks") << " a b"
                            << "  "
                            << " a b";
    QTest::newRow("no password") << "mia"
                                 << ""
                                 << "measurements";
}

void TestTXDatabaseConfigurationWidgetConnection::anyNamesAreTaken()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, database);
    LocalMariaDbServer other;
    other.setUser(user, password);
    other.setDatabase(database);
    QVERIFY2(other.start(), qPrintable(other.error()));

    panel->load(settingsFor(other.port(), {user, password, database}));
    QVERIFY(panel->isValid());
    panel->load(settingsFor(other.port(), {user, password + u'x', database}));
    QVERIFY(!panel->isValid());
}

void TestTXDatabaseConfigurationWidgetConnection::panelsTryOneAfterTheOther()
{
    TXDatabaseConfigurationWidget second;
    panel->load(settings());
    second.load(settings({QStringLiteral("mia"), QStringLiteral("wrong"), QString()}));

    QVERIFY(panel->isValid());
    QVERIFY(!second.isValid());
    QVERIFY(panel->isValid());
    QVERIFY(panel->isValid());
    QVERIFY(!second.isValid());
}

void TestTXDatabaseConfigurationWidgetConnection::connectionsOfTheHostGoOn()
{
    const QString mine = QStringLiteral("mine");
    {
        QSqlDatabase live = QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), mine);
        live.setHostName(QStringLiteral("127.0.0.1"));
        live.setPort(server.port());
        QVERIFY(live.open(QStringLiteral("mia"), QStringLiteral("s3cret")));
        QSqlDatabase standard = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        standard.setDatabaseName(QStringLiteral(":memory:"));
        QVERIFY(standard.open());
        QSqlQuery query(live);
        QVERIFY(query.exec(QStringLiteral("select 1 union select 2")) && query.next());
        QStringList names = QSqlDatabase::connectionNames();

        panel->load(settings());
        QVERIFY(panel->isValid());
        panel->load(settingsFor(closedPort()));
        QVERIFY(!panel->isValid());

        QStringList after = QSqlDatabase::connectionNames();
        names.sort();
        after.sort();
        QCOMPARE(after, names);
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toInt(), 2);
        QVERIFY(QSqlQuery(live).exec(QStringLiteral("select 3")));
        QVERIFY(QSqlQuery(standard).exec(QStringLiteral("create table t (a int)")));
    }
    QSqlDatabase::removeDatabase(mine);
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

void TestTXDatabaseConfigurationWidgetConnection::serverThatComesBackIsFoundAgain()
{
    server.stop();
    panel->load(settings());
    QVERIFY(!panel->isValid());

    QVERIFY2(server.start(), qPrintable(server.error()));

    panel->load(settings());
    QVERIFY(panel->isValid());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetConnection>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetConnection.moc"
