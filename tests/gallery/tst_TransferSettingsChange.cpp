#include "TestBase.h"
#include "TransferSettingsChange.h"

#include "TXTransferSettings.h"

#include <memory>

class TestTransferSettingsChange : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        TXTransferSettings::setCertificateAuthoritiesFile(QStringLiteral("host.pem"));
        TXTransferSettings::setConnectTimeout(4000);
        TXTransferSettings::setTotalTimeout(9000);
    }

    void finish() override
    {
        TXTransferSettings::setCertificateAuthoritiesFile({});
        TXTransferSettings::setConnectTimeout(0);
        TXTransferSettings::setTotalTimeout(0);
    }

private slots:
    void settingsComeBack();
    void emptyWishChangesNothing();
    void youngestWishCounts();
    void changesMayGoInAnyOrder();

private:
    static QString file() { return TXTransferSettings::certificateAuthoritiesFile(); }
    static QList<int> times()
    {
        return {TXTransferSettings::connectTimeout(), TXTransferSettings::totalTimeout()};
    }
};

void TestTransferSettingsChange::settingsComeBack()
{
    {
        const TransferSettingsChange change({QStringLiteral("own.pem"), 700});
        QCOMPARE(file(), QStringLiteral("own.pem"));
        QCOMPARE(times(), QList<int>({700, 700}));
    }
    QCOMPARE(file(), QStringLiteral("host.pem"));
    QCOMPARE(times(), QList<int>({4000, 9000}));
}

void TestTransferSettingsChange::emptyWishChangesNothing()
{
    const TransferSettingsChange change({});

    QCOMPARE(file(), QStringLiteral("host.pem"));
    QCOMPARE(times(), QList<int>({4000, 9000}));
}

void TestTransferSettingsChange::youngestWishCounts()
{
    const TransferSettingsChange first({QStringLiteral("first.pem"), 700});
    const TransferSettingsChange second({QStringLiteral("second.pem"), 0});

    QCOMPARE(file(), QStringLiteral("second.pem"));
    QCOMPARE(times(), QList<int>({700, 700}));
}

void TestTransferSettingsChange::changesMayGoInAnyOrder()
{
    auto first = std::make_unique<TransferSettingsChange>(
        TransferSettingsWish{QStringLiteral("first.pem"), 700});
    auto second = std::make_unique<TransferSettingsChange>(TransferSettingsWish{QString(), 300});

    first.reset();
    QCOMPARE(file(), QStringLiteral("host.pem"));
    QCOMPARE(times(), QList<int>({300, 300}));

    second.reset();
    QCOMPARE(times(), QList<int>({4000, 9000}));
}

int main(int argc, char **argv)
{
    return runTest<TestTransferSettingsChange>(argc, argv);
}

#include "tst_TransferSettingsChange.moc"
