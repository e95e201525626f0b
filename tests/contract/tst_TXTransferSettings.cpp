#include "TXTransferSettings.h"
#include "TestBase.h"

#include <thread>

class TestTXTransferSettings : public TestBase
{
    Q_OBJECT

private slots:
    void defaultsHoldFromTheBeginning();
    void timeoutsBelowOneAreTheDefaults_data();
    void timeoutsBelowOneAreTheDefaults();
    void filesAreKept();
    void threadsMayReadAndWrite();

protected:
    void finish() override;
};

void TestTXTransferSettings::finish()
{
    TXTransferSettings::setConnectTimeout(0);
    TXTransferSettings::setTotalTimeout(0);
    TXTransferSettings::setCertificateAuthoritiesFile({});
    TXTransferSettings::setKnownHostsFile({});
}

void TestTXTransferSettings::defaultsHoldFromTheBeginning()
{
    QCOMPARE(TXTransferSettings::connectTimeout(), 15000);
    QCOMPARE(TXTransferSettings::totalTimeout(), 60000);
    QCOMPARE(TXTransferSettings::certificateAuthoritiesFile(), QString());
    QCOMPARE(TXTransferSettings::knownHostsFile(), QString());
}

void TestTXTransferSettings::timeoutsBelowOneAreTheDefaults_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("connecting");
    QTest::addColumn<int>("total");
    QTest::newRow("least") << 1 << 1 << 1;
    QTest::newRow("zero") << 0 << 15000 << 60000;
    QTest::newRow("negative") << -5 << 15000 << 60000;
    QTest::newRow("lowest") << INT_MIN << 15000 << 60000;
    QTest::newRow("highest") << INT_MAX << INT_MAX << INT_MAX;
}

void TestTXTransferSettings::timeoutsBelowOneAreTheDefaults()
{
    QFETCH(int, value);
    TXTransferSettings::setConnectTimeout(7);
    TXTransferSettings::setTotalTimeout(8);
    TXTransferSettings::setConnectTimeout(value);
    TXTransferSettings::setTotalTimeout(value);
    QTEST(TXTransferSettings::connectTimeout(), "connecting");
    QTEST(TXTransferSettings::totalTimeout(), "total");
}

void TestTXTransferSettings::filesAreKept()
{
    TXTransferSettings::setCertificateAuthoritiesFile("/a b.pem");
    TXTransferSettings::setKnownHostsFile("/known_hosts");
    QCOMPARE(TXTransferSettings::certificateAuthoritiesFile(), "/a b.pem");
    QCOMPARE(TXTransferSettings::knownHostsFile(), "/known_hosts");
}

void TestTXTransferSettings::threadsMayReadAndWrite()
{
    const QStringList files = {"first", QString(1000, 'x')};
    TXTransferSettings::setKnownHostsFile(files[0]);
    const auto write = [&files] {
        for (int i = 0; i < 10000; ++i) {
            TXTransferSettings::setKnownHostsFile(files[i % 2]);
        }
    };
    std::thread writer(write);
    bool isWhole = true;
    for (int i = 0; i < 10000; ++i) {
        isWhole = isWhole && files.contains(TXTransferSettings::knownHostsFile());
    }
    writer.join();
    QVERIFY(isWhole);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTransferSettings>(argc, argv);
}

#include "tst_TXTransferSettings.moc"
