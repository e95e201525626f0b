#include "TXApplicationInformation.h"

#include "HelperProcess.h"
#include "TestBase.h"

class TestTXApplicationInformation : public TestBase
{
    Q_OBJECT

private slots:
    void displayNameIsTheOneThatTheHostSet();
    void displayNameFallsBackToTheApplicationName();
    void displayNameNeedsNoApplicationObject();
    void productCodeIsZeroUntilItIsSet();

protected:
    void finish() override { QGuiApplication::setApplicationDisplayName(QString()); }
};

void TestTXApplicationInformation::displayNameIsTheOneThatTheHostSet()
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Colour \u00e9"));

    QCOMPARE(currentApplicationDisplayName(), QStringLiteral("Colour \u00e9"));
}

void TestTXApplicationInformation::displayNameFallsBackToTheApplicationName()
{
    QCOMPARE(currentApplicationDisplayName(), QCoreApplication::applicationName());
    QVERIFY(!currentApplicationDisplayName().isEmpty());
}

void TestTXApplicationInformation::displayNameNeedsNoApplicationObject()
{
    QCOMPARE(askHelper("name"), QByteArray("contracthelper"));
    QCOMPARE(askHelper("name", {QStringLiteral("--without-application")}), QByteArray());
}

void TestTXApplicationInformation::productCodeIsZeroUntilItIsSet()
{
    QCOMPARE(baseProd(), 0);

    setBaseProd(5000);

    QCOMPARE(baseProd(), 5000);
    setBaseProd(0);
    QCOMPARE(baseProd(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXApplicationInformation>(argc, argv);
}

#include "tst_TXApplicationInformation.moc"
