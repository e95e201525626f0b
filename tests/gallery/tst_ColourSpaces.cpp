#include "ColourSpaces.h"
#include "TestBase.h"

#include <cmath>

class TestColourSpaces : public TestBase
{
    Q_OBJECT

private slots:
    void curvesHaveTheirPublishedValues_data();
    void curvesHaveTheirPublishedValues();
    void curvesGoBothWays();
};

void TestColourSpaces::curvesHaveTheirPublishedValues_data()
{
    QTest::addColumn<double>("result");
    QTest::addColumn<double>("expected");

    QTest::newRow("value 0") << ColourSpaces::lightOfValue(0) << 0.0;
    QTest::newRow("value on the line") << ColourSpaces::lightOfValue(0.04) << 0.04 / 12.92;
    QTest::newRow("value on the curve") << ColourSpaces::lightOfValue(0.5) << 0.2140411;
    QTest::newRow("value 1") << ColourSpaces::lightOfValue(1) << 1.0;
    QTest::newRow("share 0") << ColourSpaces::rootOfShare(0) << 16.0 / 116;
    QTest::newRow("share on the line") << ColourSpaces::rootOfShare(0.001) << 0.1457181;
    QTest::newRow("share on the curve") << ColourSpaces::rootOfShare(0.125) << 0.5;
    QTest::newRow("share 1") << ColourSpaces::rootOfShare(1) << 1.0;
}

void TestColourSpaces::curvesHaveTheirPublishedValues()
{
    QFETCH(const double, result);
    QFETCH(const double, expected);

    QVERIFY2(std::abs(result - expected) < 1e-6, qPrintable(QString::number(result, 'g', 9)));
}

void TestColourSpaces::curvesGoBothWays()
{
    for (int i = 0; i <= 1000; ++i) {
        const double x = i / 1000.0;
        const double value = ColourSpaces::valueOfLight(ColourSpaces::lightOfValue(x));
        const double share = ColourSpaces::shareOfRoot(ColourSpaces::rootOfShare(x));
        // The two parts of the curve of sRGB meet within its published digits only.
        QVERIFY2(std::abs(value - x) < 1e-6, qPrintable(QString::number(x)));
        QVERIFY2(std::abs(share - x) < 1e-12, qPrintable(QString::number(x)));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestColourSpaces>(argc, argv);
}

#include "tst_ColourSpaces.moc"
