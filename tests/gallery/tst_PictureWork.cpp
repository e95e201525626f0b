#include "ChartPicture.h"
#include "PictureWork.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <memory>

class TestPictureWork : public TestBase
{
    Q_OBJECT

private slots:
    void workMayGoWhileItMakesTheChart();
    void chartIsMadeOnceForAll();

private:
    static constexpr int kPatienceMilliseconds = 30'000;

    [[nodiscard]] static bool madeInTime(PictureWork &work)
    {
        QSignalSpy finished(&work, SIGNAL(finished()));
        work.makeChart();
        return finished.wait(kPatienceMilliseconds);
    }
};

/// The first of all: the chart is not there yet.
void TestPictureWork::workMayGoWhileItMakesTheChart()
{
    auto work = std::make_unique<PictureWork>();
    work->makeChart();
    QVERIFY(work->isRunning());
    work.reset();

    // Nothing unfinished was kept.
    PictureWork other;
    QVERIFY(madeInTime(other));
    QCOMPARE(other.result().pictures.size(), 3);
    for (const ComparedPicture &picture : other.result().pictures) {
        QCOMPARE(picture.image.size(), ChartPicture::kSize);
    }
}

void TestPictureWork::chartIsMadeOnceForAll()
{
    auto first = std::make_unique<PictureWork>();
    PictureWork second;
    QVERIFY(madeInTime(*first));
    const PictureSet set = first->result();
    first.reset();

    QVERIFY(madeInTime(second));

    QCOMPARE(second.result().pictures.size(), set.pictures.size());
    for (int i = 0; i < set.pictures.size(); ++i) {
        QCOMPARE(second.result().pictures[i].image.constBits(), set.pictures[i].image.constBits());
    }
    QCOMPARE(second.result().overview.constBits(), set.overview.constBits());
}

int main(int argc, char **argv)
{
    return runTest<TestPictureWork>(argc, argv);
}

#include "tst_PictureWork.moc"
