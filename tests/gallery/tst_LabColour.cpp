#include "LabColour.h"
#include "TestBase.h"

class TestLabColour : public TestBase
{
    Q_OBJECT

private slots:
    void knownColours_data();
    void knownColours();
    void coloursBeyondTheScreenAreTold_data();
    void coloursBeyondTheScreenAreTold();
    void nonsenseGivesAColour();
};

void TestLabColour::knownColours_data()
{
    QTest::addColumn<double>("lightness");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<QColor>("screen");
    // The corners of sRGB, with the white adapted to D50.
    QTest::newRow("white") << 100.0 << 0.0 << 0.0 << QColor(255, 255, 255);
    QTest::newRow("black") << 0.0 << 0.0 << 0.0 << QColor(0, 0, 0);
    QTest::newRow("grey") << 50.0 << 0.0 << 0.0 << QColor(119, 119, 119);
    QTest::newRow("red") << 54.29 << 80.80 << 69.89 << QColor(255, 0, 0);
    QTest::newRow("green") << 87.82 << -79.27 << 80.99 << QColor(0, 255, 0);
    QTest::newRow("blue") << 29.57 << 68.29 << -112.03 << QColor(0, 0, 255);
}

void TestLabColour::knownColours()
{
    QFETCH(double, lightness);
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(QColor, screen);

    const QColor made = LabColour{lightness, a, b}.toScreen();

    const int tolerance = 2;
    QVERIFY2(qAbs(made.red() - screen.red()) <= tolerance, qPrintable(made.name()));
    QVERIFY2(qAbs(made.green() - screen.green()) <= tolerance, qPrintable(made.name()));
    QVERIFY2(qAbs(made.blue() - screen.blue()) <= tolerance, qPrintable(made.name()));
}

void TestLabColour::coloursBeyondTheScreenAreTold_data()
{
    QTest::addColumn<double>("lightness");
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<bool>("isOnScreen");
    QTest::newRow("white") << 100.0 << 0.0 << 0.0 << true;
    QTest::newRow("black") << 0.0 << 0.0 << 0.0 << true;
    QTest::newRow("mid red") << 48.0 << 62.0 << 34.0 << true;
    QTest::newRow("printing cyan") << 55.0 << -37.0 << -50.0 << false;
    QTest::newRow("far red") << 50.0 << 127.0 << 0.0 << false;
    QTest::newRow("coloured white") << 100.0 << 0.0 << 90.0 << false;
}

void TestLabColour::coloursBeyondTheScreenAreTold()
{
    QFETCH(double, lightness);
    QFETCH(double, a);
    QFETCH(double, b);

    QTEST((LabColour{lightness, a, b}.isOnScreen()), "isOnScreen");
}

void TestLabColour::nonsenseGivesAColour()
{
    QVERIFY((LabColour{-1e9, 1e9, 1e9}.toScreen().isValid()));
    QVERIFY((!LabColour{qQNaN(), 0, 0}.isOnScreen()));
}

int main(int argc, char **argv)
{
    return runTest<TestLabColour>(argc, argv);
}

#include "tst_LabColour.moc"
