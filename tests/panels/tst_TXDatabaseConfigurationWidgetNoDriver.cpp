#include "TXDatabaseConfigurationWidget.h"

#include "DatabasePanelHelpers.h"
#include "TestBase.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

using DatabaseTest::settingsFor;

/// A machine on which Qt's driver for MySQL is not installed. A program of its own, since Qt looks
/// for its drivers once.
class TestTXDatabaseConfigurationWidgetNoDriver : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void missingDriverCountsAsAFailedTest();
    void internalDatabaseNeedsNoDriver();
};

void TestTXDatabaseConfigurationWidgetNoDriver::initTestCase()
{
    QCoreApplication::setLibraryPaths({});
    QCOMPARE(QSqlDatabase::drivers(), QStringList());
}

void TestTXDatabaseConfigurationWidgetNoDriver::missingDriverCountsAsAFailedTest()
{
    TXDatabaseConfigurationWidget panel;
    panel.load(settingsFor(3306));
    // Qt tells twice: when the driver is wanted and what it has instead.
    for (int test = 0; test < 3; ++test) {
        QTest::ignoreMessage(QtWarningMsg, "QSqlDatabase: QMYSQL driver not loaded");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QSqlDatabase: available drivers:"));
    }

    QVERIFY(!panel.isValid());
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    QVERIFY(panel.save().isEmpty());
    DatabaseTest::child<QPushButton>(panel, "testButton")->click();

    QCOMPARE(DatabaseTest::child<QLabel>(panel, "validLabel")->accessibleName(),
             QStringLiteral("Connection failed"));
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    QCOMPARE(panel.settings().value("Driver"), QVariant("QMYSQL"));
}

void TestTXDatabaseConfigurationWidgetNoDriver::internalDatabaseNeedsNoDriver()
{
    const TXDatabaseConfigurationWidget panel;

    QVERIFY(panel.isValid());
    QVERIFY(!panel.save().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDatabaseConfigurationWidgetNoDriver>(argc, argv);
}

#include "tst_TXDatabaseConfigurationWidgetNoDriver.moc"
