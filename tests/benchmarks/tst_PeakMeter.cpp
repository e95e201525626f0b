#include "PeakMeter.h"
#include "TestBase.h"

#include <QByteArray>
#include <QList>

#include <thread>

namespace {

/// What the kernel counts late, and pages that others of the process touch meanwhile.
constexpr qint64 kNoiseBytes = qint64(1024) * 1024;
/// So much that the heap never keeps it: it is given back at once when it is freed.
constexpr qsizetype kBigBytes = qsizetype(40) * 1024 * 1024;
constexpr int kSmallBlocks = 16384;
constexpr int kSmallBytes = 1024;

/// Takes memory, uses each page of it, and frees it.
void useAndFree(qsizetype bytes = kBigBytes)
{
    const QByteArray held(bytes, 'x');
    QCOMPARE(held.back(), 'x');
}

QList<QByteArray> smallBlocks()
{
    QList<QByteArray> blocks;
    blocks.reserve(kSmallBlocks);
    for (int block = 0; block < kSmallBlocks; ++block) {
        blocks.append(QByteArray(kSmallBytes, 'x'));
    }
    return blocks;
}

} // namespace

class TestPeakMeter : public TestBase
{
    Q_OBJECT

private slots:
    void peakCanBeMeasuredHere();
    void whatIsHeldCounts_data();
    void whatIsHeldCounts();
    void whatWasFreedStillCounts();
    void onlyTheFullestMomentCounts();
    void whatWasFreedBeforeDoesNotCount();
    void usingTheFreeHeapAgainCounts();
    void whatIsNeverTouchedDoesNotCount();
    void otherThreadsCount();
    void secondMeterStartsThePeakAnewForTheFirst();
};

// Else the others would prove nothing.
void TestPeakMeter::peakCanBeMeasuredHere()
{
    QVERIFY(PeakMeter().isValid());
}

void TestPeakMeter::whatIsHeldCounts_data()
{
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("blockBytes");
    QTest::addRow("one block of its own mapping") << 1 << int(kBigBytes);
    QTest::addRow("many small blocks") << kSmallBlocks << kSmallBytes;
}

void TestPeakMeter::whatIsHeldCounts()
{
    QFETCH(int, blocks);
    QFETCH(int, blockBytes);
    QList<QByteArray> held;
    held.reserve(blocks);
    const PeakMeter meter;

    for (int block = 0; block < blocks; ++block) {
        held.append(QByteArray(blockBytes, 'x'));
    }

    const qint64 asked = qint64(blocks) * blockBytes;
    const qint64 overhead = qint64(blocks) * 64;
    const qint64 counted = meter.bytes();
    QVERIFY2(counted >= asked - kNoiseBytes, qPrintable(QString::number(counted)));
    QVERIFY2(counted <= asked + overhead + kNoiseBytes, qPrintable(QString::number(counted)));
}

void TestPeakMeter::whatWasFreedStillCounts()
{
    const PeakMeter meter;

    useAndFree();

    QVERIFY2(meter.bytes() >= kBigBytes - kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::onlyTheFullestMomentCounts()
{
    const PeakMeter meter;

    useAndFree();
    useAndFree(kBigBytes / 2);
    useAndFree();

    QVERIFY2(meter.bytes() <= kBigBytes + kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::whatWasFreedBeforeDoesNotCount()
{
    useAndFree();

    const PeakMeter meter;

    QVERIFY2(meter.bytes() <= kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::usingTheFreeHeapAgainCounts()
{
    QList<QByteArray> blocks = smallBlocks();
    // What lies above the others keeps the heap from giving them back by itself.
    blocks.erase(blocks.begin(), blocks.end() - 1);
    const PeakMeter meter;

    const QList<QByteArray> again = smallBlocks();

    QCOMPARE(again.size(), kSmallBlocks);
    const qint64 expected = qint64(kSmallBlocks) * kSmallBytes - kNoiseBytes;
    QVERIFY2(meter.bytes() >= expected, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::whatIsNeverTouchedDoesNotCount()
{
    const PeakMeter meter;

    const QByteArray held(kBigBytes, Qt::Uninitialized);

    QCOMPARE(held.size(), kBigBytes);
    QVERIFY2(meter.bytes() <= kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::otherThreadsCount()
{
    const PeakMeter meter;

    std::thread([] { const QByteArray held(kBigBytes, 'x'); }).join();

    QVERIFY2(meter.bytes() >= kBigBytes - kNoiseBytes, qPrintable(QString::number(meter.bytes())));
}

void TestPeakMeter::secondMeterStartsThePeakAnewForTheFirst()
{
    const PeakMeter first;
    useAndFree();
    QVERIFY(first.bytes() >= kBigBytes - kNoiseBytes);

    const PeakMeter second;

    QVERIFY(second.isValid());
    QVERIFY2(first.bytes() <= kNoiseBytes, qPrintable(QString::number(first.bytes())));
}

int main(int argc, char **argv)
{
    return runTest<TestPeakMeter>(argc, argv);
}

#include "tst_PeakMeter.moc"
