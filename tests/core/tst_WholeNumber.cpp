#include "WholeNumber.h"

#include "TestBase.h"

#include <cmath>
#include <limits>

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

} // namespace

class TestWholeNumber : public TestBase
{
    Q_OBJECT

private slots:
    void numbersBecomeWhole_data();
    void numbersBecomeWhole();
};

void TestWholeNumber::numbersBecomeWhole_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("truncated");
    QTest::addColumn<int>("rounded");

    QTest::addRow("zero") << 0.0 << 0 << 0;
    QTest::addRow("minus zero") << -0.0 << 0 << 0;
    QTest::addRow("whole") << 7.0 << 7 << 7;
    QTest::addRow("below a half") << 2.49 << 2 << 2;
    QTest::addRow("half") << 2.5 << 2 << 3;
    QTest::addRow("nearly the next") << 2.999 << 2 << 3;
    QTest::addRow("negative, below a half") << -2.49 << -2 << -2;
    QTest::addRow("negative half") << -2.5 << -2 << -3;
    QTest::addRow("negative, nearly the next") << -2.999 << -2 << -3;
    QTest::addRow("just below a half") << std::nextafter(0.5, 0.0) << 0 << 0;
    QTest::addRow("the largest") << double(kMost) << kMost << kMost;
    QTest::addRow("a half below the largest") << kMost - 0.5 << kMost - 1 << kMost;
    QTest::addRow("above the largest") << kMost + 0.75 << kMost << kMost;
    QTest::addRow("the least") << double(kLeast) << kLeast << kLeast;
    QTest::addRow("a half above the least") << kLeast + 0.5 << kLeast + 1 << kLeast;
    QTest::addRow("below the least") << kLeast - 0.75 << kLeast << kLeast;
    QTest::addRow("huge") << 1e300 << kMost << kMost;
    QTest::addRow("huge and negative") << -1e300 << kLeast << kLeast;
    QTest::addRow("infinite") << double(INFINITY) << kMost << kMost;
    QTest::addRow("minus infinite") << double(-INFINITY) << kLeast << kLeast;
    QTest::addRow("not a number") << double(NAN) << 0 << 0;
    QTest::addRow("smallest") << std::numeric_limits<double>::denorm_min() << 0 << 0;
}

void TestWholeNumber::numbersBecomeWhole()
{
    QFETCH(double, number);
    QFETCH(int, truncated);
    QFETCH(int, rounded);

    QCOMPARE(WholeNumber::truncated(number), truncated);
    QCOMPARE(WholeNumber::rounded(number), rounded);
}

int main(int argc, char **argv)
{
    return runTest<TestWholeNumber>(argc, argv);
}

#include "tst_WholeNumber.moc"
