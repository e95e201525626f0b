#include "ChartComparison.h"
#include "ChartPatches.h"
#include "TestBase.h"

#include <QSet>

#include <algorithm>

Q_DECLARE_METATYPE(DifferenceFormula)
Q_DECLARE_METATYPE(PairOrder)

class TestChartComparison : public TestBase
{
    Q_OBJECT

private slots:
    void chartHas24NamedPatches();
    void greysAreGrey();
    void rowsOfTheChartAreNamed();
    void patchIsComparedWithItself();
    void eachTwoPatchesAreComparedOnce_data();
    void eachTwoPatchesAreComparedOnce();
    void orderIsThatOfTheFormula();
    void statisticsOfAFewDifferences();
    void toleranceItselfIsAllowed();
    void nothingHasStatisticsOfZero();
};

void TestChartComparison::chartHas24NamedPatches()
{
    QSet<QString> names;
    for (const ChartPatch &patch : chartPatches()) {
        names.insert(patch.translatedName());
        QVERIFY(patch.older.lightness > 0 && patch.older.lightness < 100);
        QVERIFY(patch.newer.lightness > 0 && patch.newer.lightness < 100);
    }
    QCOMPARE(names.size(), 24);
    QVERIFY(names.contains("Dark skin"));
    QVERIFY(names.contains("Black 2"));
}

void TestChartComparison::greysAreGrey()
{
    double lightness = 100;
    for (size_t i = kChartPatches - kChartColumns; i < kChartPatches; ++i) {
        const ChartPatch &patch = chartPatches()[i];
        QVERIFY(patch.older.lightness < lightness);
        QVERIFY(qAbs(patch.older.a) < 3 && qAbs(patch.older.b) < 3);
        QVERIFY(qAbs(patch.newer.a) < 3 && qAbs(patch.newer.b) < 3);
        lightness = patch.older.lightness;
    }
}

void TestChartComparison::rowsOfTheChartAreNamed()
{
    QSet<QString> names;
    for (int row = 0; row < kChartRows; ++row) {
        names.insert(chartRowName(row));
    }
    QCOMPARE(names.size(), 4);
    QVERIFY(!names.contains(QString()));
    QCOMPARE(chartRowName(-1), QString());
    QCOMPARE(chartRowName(kChartRows), QString());
}

void TestChartComparison::patchIsComparedWithItself()
{
    const QList<PatchPair> pairs = ChartComparison::samePatches();

    QCOMPARE(pairs.size(), 24);
    for (int i = 0; i < pairs.size(); ++i) {
        QCOMPARE(pairs.at(i).older, i);
        QCOMPARE(pairs.at(i).newer, i);
        // The two sets describe charts of one kind: a value in the wrong place would show.
        QVERIFY2(pairs.at(i).cie76 > 0 && pairs.at(i).cie76 < 3, qPrintable(QString::number(i)));
    }
}

void TestChartComparison::eachTwoPatchesAreComparedOnce_data()
{
    QTest::addColumn<PairOrder>("order");
    QTest::newRow("by number") << PairOrder::ByNumber;
    QTest::newRow("largest first") << PairOrder::LargestFirst;
    QTest::newRow("smallest first") << PairOrder::SmallestFirst;
}

void TestChartComparison::eachTwoPatchesAreComparedOnce()
{
    QFETCH(PairOrder, order);

    QSet<int> seen;
    for (const PatchPair &pair :
         ChartComparison::differentPatches(DifferenceFormula::Cie76, order)) {
        QVERIFY(pair.older < pair.newer);
        seen.insert(pair.older * kChartPatches + pair.newer);
    }
    QCOMPARE(seen.size(), 276);
}

void TestChartComparison::orderIsThatOfTheFormula()
{
    for (const auto formula : {DifferenceFormula::Cie76, DifferenceFormula::Ciede2000}) {
        const auto grows = [=](const PatchPair &one, const PatchPair &two) {
            return one.by(formula) < two.by(formula);
        };
        const auto smallest = ChartComparison::differentPatches(formula, PairOrder::SmallestFirst);
        const auto largest = ChartComparison::differentPatches(formula, PairOrder::LargestFirst);
        QVERIFY(std::is_sorted(smallest.cbegin(), smallest.cend(), grows));
        QVERIFY(std::is_sorted(largest.crbegin(), largest.crend(), grows));
    }
}

void TestChartComparison::statisticsOfAFewDifferences()
{
    QList<PatchPair> pairs;
    for (int i = 1; i <= 20; ++i) {
        pairs.prepend({0, 0, double(i), 2.0 * i});
    }

    const auto cie76 = ChartComparison::statistics(pairs, DifferenceFormula::Cie76, 17.5);
    QCOMPARE(cie76.mean, 10.5);
    QCOMPARE(cie76.largest, 20.0);
    QCOMPARE(cie76.percentile95, 19.0);
    QCOMPARE(cie76.aboveTolerance, 3);
    const auto ciede2000 = ChartComparison::statistics(pairs, DifferenceFormula::Ciede2000, 17.5);
    QCOMPARE(ciede2000.mean, 21.0);
    QCOMPARE(ciede2000.aboveTolerance, 12);
}

void TestChartComparison::toleranceItselfIsAllowed()
{
    const QList<PatchPair> pairs = {{0, 0, 1.0, 1.0}};

    QCOMPARE(ChartComparison::statistics(pairs, DifferenceFormula::Cie76, 1.0).aboveTolerance, 0);
}

void TestChartComparison::nothingHasStatisticsOfZero()
{
    const auto none = ChartComparison::statistics({}, DifferenceFormula::Cie76, 1.0);

    QCOMPARE(none.mean, 0.0);
    QCOMPARE(none.largest, 0.0);
    QCOMPARE(none.aboveTolerance, 0);
}

int main(int argc, char **argv)
{
    return runTest<TestChartComparison>(argc, argv);
}

#include "tst_ChartComparison.moc"
