#include "ColourDifference.h"
#include "LabColour.h"
#include "TestBase.h"

#include <cmath>

Q_DECLARE_METATYPE(LabColour)

class TestColourDifference : public TestBase
{
    Q_OBJECT

private slots:
    void ciede2000AgreesWithThePublishedPairs_data();
    void ciede2000AgreesWithThePublishedPairs();
    void cie76IsTheDistance();
    void differenceToItselfIsNone_data();
    void differenceToItselfIsNone();
    void nonsenseGivesNoNumber();
};

/// The pairs that Sharma, Wu and Dalal published in 2005.
void TestColourDifference::ciede2000AgreesWithThePublishedPairs_data()
{
    QTest::addColumn<LabColour>("first");
    QTest::addColumn<LabColour>("second");
    QTest::addColumn<double>("difference");
    const LabColour blue{50, 0, -82.7485};
    // The turn of the blue hues.
    QTest::newRow("1") << LabColour{50, 2.6772, -79.7751} << blue << 2.0425;
    QTest::newRow("2") << LabColour{50, 3.1571, -77.2803} << blue << 2.8615;
    QTest::newRow("3") << LabColour{50, 2.8361, -74.0200} << blue << 3.4412;
    QTest::newRow("4") << LabColour{50, -1.3802, -84.2814} << blue << 1.0000;
    QTest::newRow("5") << LabColour{50, -1.1848, -84.8006} << blue << 1.0000;
    QTest::newRow("6") << LabColour{50, -0.9009, -85.5211} << blue << 1.0000;
    // A grey has no hue.
    QTest::newRow("grey") << LabColour{50, 0, 0} << LabColour{50, -1, 2} << 2.3669;
    // Hues on both sides of 0 degrees.
    QTest::newRow("hue step") << LabColour{50, 2.5, 0} << LabColour{50, 0, -2.5} << 4.3065;
    // Large differences.
    QTest::newRow("large, red") << LabColour{50, 2.5, 0} << LabColour{73, 25, -18} << 27.1492;
    QTest::newRow("large, yellow") << LabColour{50, 2.5, 0} << LabColour{61, -5, 29} << 22.8977;
    QTest::newRow("large, green") << LabColour{50, 2.5, 0} << LabColour{56, -27, -3} << 31.9030;
    QTest::newRow("large, orange") << LabColour{50, 2.5, 0} << LabColour{58, 24, 15} << 19.4535;
    // Pairs of a printed collection.
    QTest::newRow("green") << LabColour{60.2574, -34.0099, 36.2677}
                           << LabColour{60.4626, -34.1751, 39.4387} << 1.2644;
    QTest::newRow("cyan") << LabColour{63.0109, -31.0961, -5.8663}
                          << LabColour{62.8187, -29.7946, -4.0864} << 1.2630;
    QTest::newRow("black") << LabColour{2.0776, 0.0795, -1.1350}
                           << LabColour{0.9033, -0.0636, -0.5514} << 0.9082;
}

void TestColourDifference::ciede2000AgreesWithThePublishedPairs()
{
    QFETCH(LabColour, first);
    QFETCH(LabColour, second);
    QFETCH(double, difference);

    // Published with four decimals; the order does not count.
    QCOMPARE(std::round(1e4 * ColourDifference::ciede2000(first, second)) / 1e4, difference);
    QCOMPARE(std::round(1e4 * ColourDifference::ciede2000(second, first)) / 1e4, difference);
}

void TestColourDifference::cie76IsTheDistance()
{
    QCOMPARE(ColourDifference::cie76({50, 10, -20}, {52, 13, -14}), 7.0);
    QCOMPARE(ColourDifference::cie76({52, 13, -14}, {50, 10, -20}), 7.0);
}

void TestColourDifference::differenceToItselfIsNone_data()
{
    QTest::addColumn<LabColour>("colour");
    QTest::newRow("black") << LabColour{0, 0, 0};
    QTest::newRow("grey") << LabColour{50, 0, 0};
    QTest::newRow("blue") << LabColour{28.37, 15.42, -49.80};
}

void TestColourDifference::differenceToItselfIsNone()
{
    QFETCH(LabColour, colour);

    QCOMPARE(ColourDifference::cie76(colour, colour), 0.0);
    QCOMPARE(ColourDifference::ciede2000(colour, colour), 0.0);
}

void TestColourDifference::nonsenseGivesNoNumber()
{
    const LabColour nonsense{qQNaN(), 0, 0};

    QVERIFY(std::isnan(ColourDifference::cie76(nonsense, {50, 0, 0})));
    QVERIFY(std::isnan(ColourDifference::ciede2000(nonsense, {50, 0, 0})));
}

int main(int argc, char **argv)
{
    return runTest<TestColourDifference>(argc, argv);
}

#include "tst_ColourDifference.moc"
