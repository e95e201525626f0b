#include "DatabaseConnectOptions.h"

#include "TestBase.h"

class TestDatabaseConnectOptions : public TestBase
{
    Q_OBJECT

private slots:
    void ownOptionsComeFirstAndStayAsTheyAre_data();
    void ownOptionsComeFirstAndStayAsTheyAre();
    void timeoutOfTheUserCountsAsTheDriverReadsIt_data();
    void timeoutOfTheUserCountsAsTheDriverReadsIt();
    void otherTimeoutsAreTheUsers();
    void otherDriversGetTheirOptionsOnly_data();
    void otherDriversGetTheirOptionsOnly();
    void longOptionsTakeNoSquareOfTime();
};

namespace {

const QString kMySql = QStringLiteral("QMYSQL");
const QString kAllAdded = QStringLiteral(";MYSQL_OPT_RECONNECT=1;MYSQL_OPT_CONNECT_TIMEOUT=15");
const QString kReconnect = QStringLiteral(";MYSQL_OPT_RECONNECT=1");

} // namespace

void TestDatabaseConnectOptions::ownOptionsComeFirstAndStayAsTheyAre_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("none") << "";
    QTest::newRow("one") << "CLIENT_COMPRESS=1";
    QTest::newRow("several") << "CLIENT_COMPRESS=1;CLIENT_INTERACTIVE=1";
    QTest::newRow("blanks") << "  CLIENT_COMPRESS = 1 ; ";
    QTest::newRow("semicolons") << ";;;";
    QTest::newRow("equal signs") << "===;=1;a==b";
    QTest::newRow("quotes") << "'a';\"b;c\";`d`";
    QTest::newRow("other letters") << QString::fromUtf8("größe=1;ключ=😀");
    QTest::newRow("reconnect") << "MYSQL_OPT_RECONNECT=0";
    QTest::newRow("null byte") << QString(QChar(u'\0'));
    QTest::newRow("half a pair") << QString(QChar(0xd83d));
}

void TestDatabaseConnectOptions::ownOptionsComeFirstAndStayAsTheyAre()
{
    QFETCH(QString, options);

    QCOMPARE(DatabaseConnectOptions::forTest(kMySql, options), options + kAllAdded);
}

void TestDatabaseConnectOptions::timeoutOfTheUserCountsAsTheDriverReadsIt_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("isSet");
    const auto add = [](const char *options, bool isSet) {
        QTest::newRow(options) << QString::fromLatin1(options) << isSet;
    };
    add("MYSQL_OPT_CONNECT_TIMEOUT=1", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=+1", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=60", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=2147483647", true);
    add("  MYSQL_OPT_CONNECT_TIMEOUT\t=  1  ", true);
    add("CLIENT_COMPRESS=1;MYSQL_OPT_CONNECT_TIMEOUT=1;CLIENT_ODBC=1", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=0;MYSQL_OPT_CONNECT_TIMEOUT=5", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=5;MYSQL_OPT_CONNECT_TIMEOUT", true);
    add("MYSQL_OPT_CONNECT_TIMEOUT=5;MYSQL_OPT_CONNECT_TIMEOUT=0", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=5;MYSQL_OPT_CONNECT_TIMEOUT=", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=0", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=-1", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=1.5", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=1=1", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=0x1", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=soon", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT='5'", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=4294967295", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT=99999999999999999999", false);
    add("mysql_opt_connect_timeout=5", false);
    add("MYSQL_OPT_CONNECT_TIMEOUTS=5", false);
    add("X MYSQL_OPT_CONNECT_TIMEOUT=5", false);
    add("X=MYSQL_OPT_CONNECT_TIMEOUT=5", false);
    add("MYSQL_OPT_CONNECT_TIMEOUT:5", false);
}

void TestDatabaseConnectOptions::timeoutOfTheUserCountsAsTheDriverReadsIt()
{
    QFETCH(QString, options);
    QFETCH(bool, isSet);

    QCOMPARE(DatabaseConnectOptions::forTest(kMySql, options),
             options + (isSet ? kReconnect : kAllAdded));
}

void TestDatabaseConnectOptions::otherTimeoutsAreTheUsers()
{
    const QString read = QStringLiteral("MYSQL_OPT_READ_TIMEOUT=3");
    const QString both = read + QStringLiteral(";MYSQL_OPT_CONNECT_TIMEOUT=2");

    QCOMPARE(DatabaseConnectOptions::forTest(kMySql, read),
             read + QStringLiteral(";MYSQL_OPT_RECONNECT=1;MYSQL_OPT_CONNECT_TIMEOUT=15"));
    QCOMPARE(DatabaseConnectOptions::forTest(kMySql, both),
             both + QStringLiteral(";MYSQL_OPT_RECONNECT=1"));
}

void TestDatabaseConnectOptions::otherDriversGetTheirOptionsOnly_data()
{
    QTest::addColumn<QString>("driver");
    QTest::newRow("internal") << "QSQLITE";
    QTest::newRow("none") << "";
    QTest::newRow("other case") << "qmysql";
    QTest::newRow("longer") << "QMYSQL3";
}

void TestDatabaseConnectOptions::otherDriversGetTheirOptionsOnly()
{
    QFETCH(QString, driver);

    for (const char *options : {"", "a=1;b", ";"}) {
        QCOMPARE(DatabaseConnectOptions::forTest(driver, options), QString(options));
    }
}

void TestDatabaseConnectOptions::longOptionsTakeNoSquareOfTime()
{
    const QString options = QStringLiteral("a=1;").repeated(250000);

    QCOMPARE(DatabaseConnectOptions::forTest(kMySql, options), options + kAllAdded);
}

int main(int argc, char **argv)
{
    return runTest<TestDatabaseConnectOptions>(argc, argv);
}

#include "tst_DatabaseConnectOptions.moc"
