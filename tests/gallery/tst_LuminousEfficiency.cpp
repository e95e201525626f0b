#include "LuminousEfficiency.h"

#include "TestBase.h"

#include <algorithm>
#include <functional>
#include <numeric>

class TestLuminousEfficiency : public TestBase
{
    Q_OBJECT

private slots:
    void peakLiesAt555Nanometres();
    void sumIsThePublishedOne();
    void valuesRiseToThePeakAndFallBehindIt();
};

void TestLuminousEfficiency::peakLiesAt555Nanometres()
{
    const auto &values = LuminousEfficiency::values();
    const auto peak = std::max_element(values.begin(), values.end());

    QCOMPARE(*peak, 1.0);
    QCOMPARE(LuminousEfficiency::kFirstNanometres
                 + LuminousEfficiency::kStepNanometres * int(peak - values.begin()),
             555);
}

/// CIE 15 gives the sum below its table; a wrong digit anywhere changes it.
void TestLuminousEfficiency::sumIsThePublishedOne()
{
    const auto &values = LuminousEfficiency::values();
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);

    QCOMPARE(qRound64(sum * 1e6), 21'371'327);
}

void TestLuminousEfficiency::valuesRiseToThePeakAndFallBehindIt()
{
    const auto &values = LuminousEfficiency::values();
    const auto peak = std::max_element(values.begin(), values.end());

    QVERIFY(std::is_sorted(values.begin(), peak));
    QVERIFY(std::is_sorted(peak, values.end(), std::greater<>()));
}

int main(int argc, char **argv)
{
    return runTest<TestLuminousEfficiency>(argc, argv);
}

#include "tst_LuminousEfficiency.moc"
