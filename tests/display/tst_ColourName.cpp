#include "ColourName.h"

#include "TestBase.h"

#include <QColor>

class TestColourName : public TestBase
{
    Q_OBJECT

private slots:
    void onlyAColourThatIsNotOpaqueTellsItsAlpha_data();
    void onlyAColourThatIsNotOpaqueTellsItsAlpha();
};

void TestColourName::onlyAColourThatIsNotOpaqueTellsItsAlpha_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("name");
    QTest::addRow("opaque") << QColor(255, 128, 0) << "#ff8000";
    QTest::addRow("nearly opaque") << QColor(255, 128, 0, 254) << "#feff8000";
    QTest::addRow("half transparent") << QColor(171, 205, 239, 128) << "#80abcdef";
    QTest::addRow("fully transparent") << QColor(Qt::transparent) << "#00000000";
    QTest::addRow("other colour space") << QColor::fromHsv(120, 255, 255) << "#00ff00";
    QTest::addRow("invalid") << QColor() << "#000000";
}

void TestColourName::onlyAColourThatIsNotOpaqueTellsItsAlpha()
{
    QFETCH(QColor, colour);
    QTEST(ColourName::of(colour), "name");
}

int main(int argc, char **argv)
{
    return runTest<TestColourName>(argc, argv);
}

#include "tst_ColourName.moc"
