#include "TXLogPrint.h"

#include "TXLogManager.h"
#include "TestBase.h"

#include <thread>

class TestTXLogPrint : public TestBase
{
    Q_OBJECT

private slots:
    void linesEnterTheApplicationLog_data();
    void linesEnterTheApplicationLog();
    void applicationLogIsOneForAllThreads();
    void debugLinesGoThroughQtsLoggingOnly();

protected:
    void prepare() override { TXLogManager::applicationLog()->reset(); }
};

void TestTXLogPrint::linesEnterTheApplicationLog_data()
{
    QTest::addColumn<uint>("level");
    QTest::addColumn<int>("shown");
    QTest::addRow("0 reads as information") << 0u << 1;
    QTest::addRow("information") << 1u << 1;
    QTest::addRow("warning") << 2u << 2;
    QTest::addRow("error") << 3u << 3;
    QTest::addRow("other") << 9u << 9;
}

void TestTXLogPrint::linesEnterTheApplicationLog()
{
    QFETCH(uint, level);
    QFETCH(int, shown);

    TXLogPrint(QStringLiteral("There is no Network Drive letter available."), level);
    TXLogManager::applicationLog()->flush();

    const auto lines = TXLogManager::applicationLog()->rootItem()->children;
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first()->level, shown);
    QCOMPARE(lines.first()->message.toString(nullptr),
             QStringLiteral("There is no Network Drive letter available."));
}

void TestTXLogPrint::applicationLogIsOneForAllThreads()
{
    const auto here = TXLogManager::applicationLog();
    QSharedPointer<TXLogManager> there;
    std::thread([&there] { there = TXLogManager::applicationLog(); }).join();

    QCOMPARE(there, here);
    QCOMPARE(here->thread(), qApp->thread());
}

void TestTXLogPrint::debugLinesGoThroughQtsLoggingOnly()
{
    QTest::ignoreMessage(QtDebugMsg, "only for \"developers\"");

    TXLogDebug(QStringLiteral("only for \"developers\""));
    TXLogManager::applicationLog()->flush();

    QVERIFY(TXLogManager::applicationLog()->rootItem()->children.isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogPrint>(argc, argv);
}

#include "tst_TXLogPrint.moc"
