#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "TestBase.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QUuid>

#include <memory>

using DatabaseTest::child;
using DatabaseTest::RecordingDriver;
using DatabaseTest::Settings;
using DatabaseTest::settingsFor;

namespace {

const QString kAdded = QStringLiteral(";MYSQL_OPT_RECONNECT=1;MYSQL_OPT_CONNECT_TIMEOUT=15");

} // namespace

/// What the connection test hands to the driver, and what it leaves behind.
class TestTXDatabaseConfigurationWidgetSteps : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        driver = std::make_unique<RecordingDriver>();
        panel = std::make_unique<TXDatabaseConfigurationWidget>();
    }

    void finish() override
    {
        panel.reset();
        QCOMPARE(driver->livingCount, 0);
        driver.reset();
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    }

private slots:
    void driverGetsTheControls();
    void driverGetsTheInitialValues();
    void extraOptionsStandBehindTheUsers_data();
    void extraOptionsStandBehindTheUsers();
    void openConnectionIsClosed_data();
    void openConnectionIsClosed();
    void connectionNamesAreNewEachTime();
    void hostsConnectionsStayRegistered();
    void internalDatabaseOpensNothing();
    void saveAndIsValidOpenOnceEach();
    void waitCursorLeavesNoTrace();
    void eventLoopDoesNotRun();
    void driverThatTestsAgainEnds();

private:
    std::unique_ptr<RecordingDriver> driver;
    std::unique_ptr<TXDatabaseConfigurationWidget> panel;
};

void TestTXDatabaseConfigurationWidgetSteps::driverGetsTheControls()
{
    panel->load(settingsFor(
        3307,
        {QStringLiteral("o'neil;"), QString::fromUtf8("pä;ss=\"😀"), QStringLiteral("a`b;c")}));
    child<QLineEdit>(*panel, "hostEdit")->setText(QStringLiteral(" mill "));

    QVERIFY(panel->isValid());

    QCOMPARE(driver->opened,
             Settings({{"database", QStringLiteral("a`b;c")},
                       {"user", QStringLiteral("o'neil;")},
                       {"password", QString::fromUtf8("pä;ss=\"😀")},
                       {"host", QStringLiteral(" mill ")},
                       {"port", 3307},
                       {"options", kAdded}}));
}

void TestTXDatabaseConfigurationWidgetSteps::driverGetsTheInitialValues()
{
    child<QRadioButton>(*panel, "mysqlDBRadio")->click();

    QVERIFY(panel->isValid());

    QCOMPARE(driver->opened.value("host"), QVariant("127.0.0.1"));
    QCOMPARE(driver->opened.value("port"), QVariant(3306));
    QCOMPARE(driver->opened.value("user"), QVariant("root"));
    QCOMPARE(driver->opened.value("password").toString(), QString());
    QCOMPARE(driver->opened.value("database").toString(), QString());
    QCOMPARE(driver->opened.value("options"), QVariant(kAdded));
}

void TestTXDatabaseConfigurationWidgetSteps::extraOptionsStandBehindTheUsers_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("added");
    QTest::newRow("none") << "" << kAdded;
    QTest::newRow("some") << " A=1; b ;'c;'" << kAdded;
    QTest::newRow("connect time-out") << "MYSQL_OPT_CONNECT_TIMEOUT=1"
                                      << ";MYSQL_OPT_RECONNECT=1";
}

void TestTXDatabaseConfigurationWidgetSteps::extraOptionsStandBehindTheUsers()
{
    QFETCH(QString, options);
    QFETCH(QString, added);
    panel->load(settingsFor(3306, {}, options));

    const Settings saved = panel->save();

    QCOMPARE(driver->opened.value("options"), QVariant(options + added));
    QCOMPARE(DatabaseTest::parametersOf(saved).value("Options"), QVariant(options));
    QCOMPARE(child<QLineEdit>(*panel, "optionsEdit")->text(), options);
}

void TestTXDatabaseConfigurationWidgetSteps::openConnectionIsClosed_data()
{
    QTest::addColumn<bool>("lets");
    QTest::newRow("good") << true;
    QTest::newRow("bad") << false;
}

void TestTXDatabaseConfigurationWidgetSteps::openConnectionIsClosed()
{
    QFETCH(bool, lets);
    driver->lets = lets;
    panel->load(settingsFor(3306));

    QCOMPARE(panel->isValid(), lets);

    QCOMPARE(driver->openCount, 1);
    QCOMPARE(driver->closeCount, lets ? 1 : 0);
    QCOMPARE(driver->livingCount, 0);
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestTXDatabaseConfigurationWidgetSteps::connectionNamesAreNewEachTime()
{
    panel->load(settingsFor(3306));
    QVERIFY(panel->isValid());
    const QStringList first = driver->namesWhileOpen;
    QVERIFY(panel->isValid());
    const QStringList second = driver->namesWhileOpen;

    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 1);
    QVERIFY(first != second);
    QVERIFY(!QUuid(first.first()).isNull());
}

void TestTXDatabaseConfigurationWidgetSteps::hostsConnectionsStayRegistered()
{
    QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"));
    QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), QStringLiteral("mine"));
    panel->load(settingsFor(3306));

    QVERIFY(panel->isValid());

    QCOMPARE(driver->namesWhileOpen.size(), 3);
    QCOMPARE(QSqlDatabase::connectionNames().size(), 2);
    QCOMPARE(driver->livingCount, 2);
    QSqlDatabase::removeDatabase(QStringLiteral("mine"));
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

void TestTXDatabaseConfigurationWidgetSteps::internalDatabaseOpensNothing()
{
    driver->lets = false;
    panel->load(settingsFor(3306));
    panel->load({{QStringLiteral("Driver"), QStringLiteral("QSQLITE")}});

    QVERIFY(panel->isValid());
    QVERIFY(!panel->save().isEmpty());

    QCOMPARE(driver->openCount, 0);
}

void TestTXDatabaseConfigurationWidgetSteps::saveAndIsValidOpenOnceEach()
{
    panel->load(settingsFor(3306));
    QCOMPARE(driver->openCount, 0);
    QVERIFY(!panel->settings().isEmpty());
    QCOMPARE(driver->openCount, 0);

    QVERIFY(!panel->save().isEmpty());
    QCOMPARE(driver->openCount, 1);
    driver->lets = false;
    QVERIFY(panel->save().isEmpty());
    QCOMPARE(driver->openCount, 2);
}

void TestTXDatabaseConfigurationWidgetSteps::waitCursorLeavesNoTrace()
{
    Qt::CursorShape shape = Qt::ArrowCursor;
    driver->whileOpening = [&shape] {
        shape = QApplication::overrideCursor()->shape();
    };
    panel->load(settingsFor(3306));

    QVERIFY(panel->isValid());
    QCOMPARE(shape, Qt::WaitCursor);
    QVERIFY(!QApplication::overrideCursor());

    QApplication::setOverrideCursor(Qt::CrossCursor);
    driver->lets = false;
    QVERIFY(!panel->isValid());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QApplication::restoreOverrideCursor();
}

void TestTXDatabaseConfigurationWidgetSteps::eventLoopDoesNotRun()
{
    bool isRun = false;
    QTimer::singleShot(0, panel.get(), [&isRun] { isRun = true; });
    panel->load(settingsFor(3306));

    QVERIFY(panel->isValid());
    QVERIFY(!isRun);

    QTRY_VERIFY(isRun);
}

void TestTXDatabaseConfigurationWidgetSteps::driverThatTestsAgainEnds()
{
    panel->load(settingsFor(3306));
    bool inner = false;
    driver->whileOpening = [this, &inner] {
        driver->whileOpening = [] {
        };
        inner = panel->isValid();
    };

    QVERIFY(panel->isValid());

    QVERIFY(inner);
    QCOMPARE(driver->openCount, 2);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetSteps>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetSteps.moc"
