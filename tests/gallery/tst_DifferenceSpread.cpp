#include "DifferenceSpread.h"

#include "TestBase.h"

namespace {

/// Pairs with these differences by CIE76, and with ten times as much by CIEDE2000.
QList<PatchPair> pairsOf(const QList<double> &differences)
{
    QList<PatchPair> pairs;
    for (const double difference : differences) {
        pairs.append({0, 0, difference, 10 * difference});
    }
    return pairs;
}

} // namespace

/// What the Colour difference page counts.
class TestDifferenceSpread : public TestBase
{
    Q_OBJECT

private slots:
    void sharesAreCounted_data();
    void sharesAreCounted();
    void formulaDecides();
    void chartIsCountedPairByPair();
};

void TestDifferenceSpread::sharesAreCounted_data()
{
    QTest::addColumn<QList<double>>("differences");
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("mean");
    QTest::addColumn<double>("meanPercent");
    QTest::addColumn<int>("belowLimit");
    QTest::addColumn<double>("limitPercent");
    QTest::addColumn<double>("largest");
    using List = QList<double>;
    QTest::addRow("none") << List() << 1.0 << 0.0 << 0.0 << 0 << 0.0 << 0.0;
    QTest::addRow("one") << List{2} << 3.0 << 2.0 << 0.0 << 1 << 100.0 << 2.0;
    QTest::addRow("several") << List{9, 1, 1, 1} << 2.0 << 3.0 << 75.0 << 3 << 75.0 << 9.0;
    QTest::addRow("equal to the limit")
        << List{1, 2, 3, 4} << 2.0 << 2.5 << 50.0 << 1 << 25.0 << 4.0;
    QTest::addRow("all equal") << List{2, 2} << 2.0 << 2.0 << 0.0 << 0 << 0.0 << 2.0;
    QTest::addRow("all below") << List{1, 2, 3} << 10.0 << 2.0 << 100.0 / 3 << 3 << 100.0 << 3.0;
}

void TestDifferenceSpread::sharesAreCounted()
{
    QFETCH(QList<double>, differences);
    QFETCH(double, limit);
    QFETCH(double, mean);
    QFETCH(double, meanPercent);
    QFETCH(int, belowLimit);
    QFETCH(double, limitPercent);
    QFETCH(double, largest);

    const DifferenceSpread spread =
        differenceSpread(pairsOf(differences), DifferenceFormula::Cie76, limit);

    QCOMPARE(spread.mean, mean);
    QCOMPARE(spread.meanPercent, meanPercent);
    QCOMPARE(spread.belowLimit, belowLimit);
    QCOMPARE(spread.limitPercent, limitPercent);
    QCOMPARE(spread.largest, largest);
}

void TestDifferenceSpread::formulaDecides()
{
    const QList<PatchPair> pairs = pairsOf({1, 2, 3, 6});

    QCOMPARE(differenceSpread(pairs, DifferenceFormula::Cie76, 5).belowLimit, 3);
    QCOMPARE(differenceSpread(pairs, DifferenceFormula::Ciede2000, 5).belowLimit, 0);
    QCOMPARE(differenceSpread(pairs, DifferenceFormula::Ciede2000, 25).belowLimit, 2);
    QCOMPARE(differenceSpread(pairs, DifferenceFormula::Ciede2000, 25).largest, 60.0);
}

void TestDifferenceSpread::chartIsCountedPairByPair()
{
    const QList<PatchPair> pairs = ChartComparison::samePatches();
    QCOMPARE(pairs.size(), 24);
    int below = 0;
    for (const PatchPair &pair : pairs) {
        below += pair.ciede2000 < 1 ? 1 : 0;
    }

    const DifferenceSpread spread = differenceSpread(pairs, DifferenceFormula::Ciede2000, 1);

    QCOMPARE(spread.belowLimit, below);
    QVERIFY(below > 0 && below < 24);
    QCOMPARE(spread.limitPercent, below / 24.0 * 100);
}

int main(int argc, char **argv)
{
    return runTest<TestDifferenceSpread>(argc, argv);
}

#include "tst_DifferenceSpread.moc"
