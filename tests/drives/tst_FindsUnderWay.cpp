#include "FindsUnderWay.h"

#include "TestBase.h"

#include <atomic>
#include <limits>
#include <thread>

namespace {

constexpr int kForeverMilliseconds = std::numeric_limits<int>::max();

/// A thread that sends so many; ends with the object, which the test has to see to.
class Sender
{
public:
    Sender(FindsUnderWay &finds, int count)
        : thread([this, &finds, count] {
            for (int i = 0; i < count; ++i) {
                finds.send();
                ++sent;
            }
        })
    { }
    ~Sender() { thread.join(); }

    Sender(const Sender &) = delete;
    Sender &operator=(const Sender &) = delete;
    Sender(Sender &&) = delete;
    Sender &operator=(Sender &&) = delete;

    std::atomic_int sent = 0;

private:
    std::thread thread;
};

} // namespace

class TestFindsUnderWay : public TestBase
{
    Q_OBJECT

private slots:
    void senderIsHeldBackUntilHalfIsTaken();
    void releaseLetsTheSenderGo();
    void holdBeginsAnew();
    void receiverThatTakesNothingHoldsNobodyBack();
};

void TestFindsUnderWay::senderIsHeldBackUntilHalfIsTaken()
{
    FindsUnderWay finds(kForeverMilliseconds);
    Sender sender(finds, FindsUnderWay::kMost + 1);
    QTRY_COMPARE(sender.sent.load(), FindsUnderWay::kMost);
    for (int i = 0; i < FindsUnderWay::kMost / 2; ++i) {
        QCOMPARE(sender.sent.load(), FindsUnderWay::kMost);
        finds.take();
    }
    QTRY_COMPARE(sender.sent.load(), FindsUnderWay::kMost + 1);
}

void TestFindsUnderWay::releaseLetsTheSenderGo()
{
    FindsUnderWay finds(kForeverMilliseconds);
    Sender sender(finds, 3 * FindsUnderWay::kMost);
    QTRY_COMPARE(sender.sent.load(), FindsUnderWay::kMost);
    finds.release();
    QTRY_COMPARE(sender.sent.load(), 3 * FindsUnderWay::kMost);
}

void TestFindsUnderWay::holdBeginsAnew()
{
    FindsUnderWay finds(kForeverMilliseconds);
    finds.release();
    finds.hold();
    Sender sender(finds, FindsUnderWay::kMost + 1);
    QTRY_COMPARE(sender.sent.load(), FindsUnderWay::kMost);
    finds.release();
}

void TestFindsUnderWay::receiverThatTakesNothingHoldsNobodyBack()
{
    FindsUnderWay finds(1);
    Sender sender(finds, 3 * FindsUnderWay::kMost);
    QTRY_COMPARE(sender.sent.load(), 3 * FindsUnderWay::kMost);
}

int main(int argc, char **argv)
{
    return runTest<TestFindsUnderWay>(argc, argv);
}

#include "tst_FindsUnderWay.moc"
