#include "TestBase.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

class TestTestBase : public TestBase
{
    Q_OBJECT

private slots:
    void misbehaviourFails_data();
    void misbehaviourFails();
    void settingsStartEmpty_data();
    void settingsStartEmpty();
    void everythingIsWrittenBelowTheTestsOwnHome();
};

void TestTestBase::misbehaviourFails_data()
{
    QTest::addColumn<bool>("passes");
    QTest::addRow("nothingWrong") << true;
    QTest::addRow("connectsAMisspeltSignal") << false;
    QTest::addRow("leavesAWindow") << false;
}

void TestTestBase::misbehaviourFails()
{
    QFETCH(bool, passes);
    QProcess process;
    // A sanitizer would report the window that is left behind on purpose.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);

    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/misbehaving"),
                  {QString::fromLatin1(QTest::currentDataTag())});

    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), passes ? 0 : 1);
}

void TestTestBase::settingsStartEmpty_data()
{
    QTest::addColumn<QString>("key");
    QTest::addRow("first") << QStringLiteral("a");
    QTest::addRow("second") << QStringLiteral("b");
}

void TestTestBase::settingsStartEmpty()
{
    QFETCH(QString, key);
    QVERIFY(QSettings().allKeys().isEmpty());

    QSettings().setValue(key, 1);

    QCOMPARE(QSettings().allKeys(), QStringList(key));
}

void TestTestBase::everythingIsWrittenBelowTheTestsOwnHome()
{
    const QString home = QDir::homePath();

    QVERIFY(home.startsWith(QDir::tempPath()));
    QVERIFY(QSettings().fileName().startsWith(home));
    for (const auto location : {QStandardPaths::AppConfigLocation, QStandardPaths::AppDataLocation,
                                QStandardPaths::CacheLocation, QStandardPaths::RuntimeLocation}) {
        const QString path = QStandardPaths::writableLocation(location);
        QVERIFY2(path.startsWith(home), qPrintable(path));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTestBase>(argc, argv);
}

#include "tst_TestBase.moc"
