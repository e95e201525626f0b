#include "AllocationMeter.h"
#include "TestBase.h"

namespace {

constexpr qint64 kNoiseBytes = qint64(64) * 1024;
constexpr qsizetype kBigBytes = qsizetype(4) * 1024 * 1024;

} // namespace

class TestAllocationMeter : public TestBase
{
    Q_OBJECT

private slots:
    void whatIsHeldCounts_data();
    void whatIsHeldCounts();
    void whatWasFreedDoesNotCount();
    void freeingOlderBlocksCountsDown();
};

void TestAllocationMeter::whatIsHeldCounts_data()
{
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("blockBytes");
    QTest::addRow("one block of its own mapping") << 1 << 8 * 1024 * 1024;
    QTest::addRow("many small blocks") << 8192 << 1024;
}

void TestAllocationMeter::whatIsHeldCounts()
{
    QFETCH(int, blocks);
    QFETCH(int, blockBytes);
    QList<QByteArray> held;
    held.reserve(blocks);
    const AllocationMeter meter;

    for (int block = 0; block < blocks; ++block) {
        held.append(QByteArray(blockBytes, 'x'));
    }

    const qint64 asked = qint64(blocks) * blockBytes;
    const qint64 overhead = qint64(blocks) * 64;
    QVERIFY2(meter.bytes() >= asked, qPrintable(QString::number(meter.bytes())));
    QVERIFY2(meter.bytes() <= asked + overhead + kNoiseBytes,
             qPrintable(QString::number(meter.bytes())));
}

void TestAllocationMeter::whatWasFreedDoesNotCount()
{
    const AllocationMeter meter;

    QByteArray held(kBigBytes, 'x');
    QVERIFY(meter.bytes() >= held.size());
    held = QByteArray();

    QVERIFY2(qAbs(meter.bytes()) <= kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestAllocationMeter::freeingOlderBlocksCountsDown()
{
    QByteArray held(kBigBytes, 'x');
    const qint64 size = held.size();
    const AllocationMeter meter;

    held = QByteArray();

    QVERIFY2(meter.bytes() <= kNoiseBytes - size, qPrintable(QString::number(meter.bytes())));
}

int main(int argc, char **argv)
{
    return runTest<TestAllocationMeter>(argc, argv);
}

#include "tst_AllocationMeter.moc"
