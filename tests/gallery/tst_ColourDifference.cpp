#include "ColourDifference.h"
#include "LabColour.h"
#include "TestBase.h"

#include <cmath>

Q_DECLARE_METATYPE(LabColour)

namespace {

struct PublishedPair
{
    LabColour first;
    LabColour second;
    double difference;
};

constexpr PublishedPair kPublishedPairs[] = {
    // The turn of the blue hues.
    {{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
    {{50, 3.1571, -77.2803}, {50, 0, -82.7485}, 2.8615},
    {{50, 2.8361, -74.02}, {50, 0, -82.7485}, 3.4412},
    {{50, -1.3802, -84.2814}, {50, 0, -82.7485}, 1},
    {{50, -1.1848, -84.8006}, {50, 0, -82.7485}, 1},
    {{50, -0.9009, -85.5211}, {50, 0, -82.7485}, 1},
    // A grey has no hue.
    {{50, 0, 0}, {50, -1, 2}, 2.3669},
    {{50, -1, 2}, {50, 0, 0}, 2.3669},
    // Hues nearly opposite: on either side of half a turn their mean is another.
    {{50, 2.49, -0.001}, {50, -2.49, 0.0009}, 7.1792},
    {{50, 2.49, -0.001}, {50, -2.49, 0.001}, 7.1792},
    {{50, 2.49, -0.001}, {50, -2.49, 0.0011}, 7.2195},
    {{50, 2.49, -0.001}, {50, -2.49, 0.0012}, 7.2195},
    {{50, -0.001, 2.49}, {50, 0.0009, -2.49}, 4.8045},
    {{50, -0.001, 2.49}, {50, 0.001, -2.49}, 4.8045},
    {{50, -0.001, 2.49}, {50, 0.0011, -2.49}, 4.7461},
    {{50, 2.5, 0}, {50, 0, -2.5}, 4.3065},
    // Large differences.
    {{50, 2.5, 0}, {73, 25, -18}, 27.1492},
    {{50, 2.5, 0}, {61, -5, 29}, 22.8977},
    {{50, 2.5, 0}, {56, -27, -3}, 31.903},
    {{50, 2.5, 0}, {58, 24, 15}, 19.4535},
    // Small ones of equal size in all directions.
    {{50, 2.5, 0}, {50, 3.1736, 0.5854}, 1},
    {{50, 2.5, 0}, {50, 3.2972, 0}, 1},
    {{50, 2.5, 0}, {50, 1.8634, 0.5757}, 1},
    {{50, 2.5, 0}, {50, 3.2592, 0.335}, 1},
    // Printed colours.
    {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
    {{63.0109, -31.0961, -5.8663}, {62.8187, -29.7946, -4.0864}, 1.263},
    {{61.2901, 3.7196, -5.3901}, {61.4292, 2.248, -4.962}, 1.8731},
    {{35.0831, -44.1164, 3.7933}, {35.0232, -40.0716, 1.5901}, 1.8645},
    {{22.7233, 20.0904, -46.694}, {23.0331, 14.973, -42.5619}, 2.0373},
    {{36.4612, 47.858, 18.3852}, {36.2715, 50.5065, 21.2231}, 1.4146},
    {{90.8027, -2.0831, 1.441}, {91.1528, -1.6435, 0.0447}, 1.4441},
    {{90.9257, -0.5406, -0.9208}, {88.6381, -0.8985, -0.7239}, 1.5381},
    {{6.7747, -0.2908, -2.4247}, {5.8714, -0.0985, -2.2286}, 0.6377},
    {{2.0776, 0.0795, -1.135}, {0.9033, -0.0636, -0.5514}, 0.9082},
};

} // namespace

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

/// The 34 pairs that Sharma, Wu and Dalal published in 2005, in their order.
void TestColourDifference::ciede2000AgreesWithThePublishedPairs_data()
{
    QTest::addColumn<LabColour>("first");
    QTest::addColumn<LabColour>("second");
    QTest::addColumn<double>("difference");
    int number = 0;
    for (const PublishedPair &pair : kPublishedPairs) {
        QTest::addRow("%d", ++number) << pair.first << pair.second << pair.difference;
    }
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
