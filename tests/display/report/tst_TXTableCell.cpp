#include "TXTableCell.h"

#include "SceneTestHelpers.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QColor>

using SceneTestHelpers::exactly;
using TableTest::describe;
using TableTest::Settings;

namespace {

Settings settingsWithoutDefaults()
{
    return {{"CellElement", 42},
            {"CellSize", QSizeF(30.25, -7)},
            {"CellTextColor", QColor(1, 2, 3)},
            {"CellTextHorizontalAlign", 0U},
            {"CellTextVerticalAlign", 1U},
            {"CellTextBold", true},
            {"InsideCellColor", QColor(4, 5, 6)},
            {"BorderCellColor", QColor(7, 8, 9, 10)},
            {"BorderCellLineWidth", 1.25},
            {"CellRealColumn", 3},
            {"NbMergedCell", 4}};
}

} // namespace

class TestTXTableCell : public TestBase
{
    Q_OBJECT

private slots:
    void emptyDictionaryGivesTheDefaults();
    void everyKeyIsRead();
    void valuesOfOtherTypesAreConverted();
    void valuesThatCannotBeConvertedFallToNothing();
    void textThatIsNoColourIsNone();
    void singlePrecisionBorderIsKept();
    void copyHoldsTheSame();
};

void TestTXTableCell::emptyDictionaryGivesTheDefaults()
{
    const TXTableCell cell(Settings{});

    QVERIFY(!cell.element.isValid());
    QCOMPARE(cell.size, QSizeF(50, 50));
    QCOMPARE(cell.textColor, QColor(Qt::black));
    QCOMPARE(cell.horizontalAlign, 2U);
    QCOMPARE(cell.verticalAlign, 2U);
    QVERIFY(!cell.bold);
    QCOMPARE(cell.insideColor, QColor(Qt::white));
    QCOMPARE(cell.borderColor, QColor(Qt::black));
    QCOMPARE(exactly(cell.borderLineWidth), QStringLiteral("0.5"));
    QCOMPARE(cell.realColumn, 0);
    QCOMPARE(cell.nbMergedCell, 1);
}

void TestTXTableCell::everyKeyIsRead()
{
    Settings all = settingsWithoutDefaults();
    all.insert("SomethingElse", 5);

    const TXTableCell cell(all);

    QCOMPARE(cell.element, QVariant(42));
    QCOMPARE(cell.size, QSizeF(30.25, -7));
    QCOMPARE(cell.textColor, QColor(1, 2, 3));
    QCOMPARE(cell.horizontalAlign, 0U);
    QCOMPARE(cell.verticalAlign, 1U);
    QVERIFY(cell.bold);
    QCOMPARE(cell.insideColor, QColor(4, 5, 6));
    QCOMPARE(cell.borderColor, QColor(7, 8, 9, 10));
    QCOMPARE(cell.borderLineWidth, 1.25);
    QCOMPARE(cell.realColumn, 3);
    QCOMPARE(cell.nbMergedCell, 4);
}

void TestTXTableCell::valuesOfOtherTypesAreConverted()
{
    const TXTableCell cell({{"CellSize", QSize(30, 20)},
                            {"CellTextColor", QStringLiteral("red")},
                            {"CellTextHorizontalAlign", QStringLiteral("1")},
                            {"CellTextVerticalAlign", -1},
                            {"CellTextBold", QStringLiteral("true")},
                            {"InsideCellColor", QStringLiteral("#8000ff00")},
                            {"BorderCellColor", QByteArray("blue")},
                            {"BorderCellLineWidth", QStringLiteral("0.25")},
                            {"CellRealColumn", 2.6},
                            {"NbMergedCell", QStringLiteral("3")}});

    QCOMPARE(cell.size, QSizeF(30, 20));
    QCOMPARE(cell.textColor, QColor(Qt::red));
    QCOMPARE(cell.horizontalAlign, 1U);
    QCOMPARE(cell.verticalAlign, 4294967295U);
    QVERIFY(cell.bold);
    QCOMPARE(cell.insideColor, QColor(0, 255, 0, 128));
    QCOMPARE(cell.borderColor, QColor(Qt::blue));
    QCOMPARE(cell.borderLineWidth, 0.25);
    QCOMPARE(cell.realColumn, 3);
    QCOMPARE(cell.nbMergedCell, 3);
}

void TestTXTableCell::valuesThatCannotBeConvertedFallToNothing()
{
    const QVariant wrong = QPointF(1, 2);

    const TXTableCell cell({{"CellSize", wrong},
                            {"CellTextColor", wrong},
                            {"CellTextHorizontalAlign", wrong},
                            {"CellTextVerticalAlign", QStringLiteral("top")},
                            {"CellTextBold", wrong},
                            {"InsideCellColor", 7},
                            {"BorderCellColor", QVariant()},
                            {"BorderCellLineWidth", wrong},
                            {"CellRealColumn", wrong},
                            {"NbMergedCell", wrong}});

    QCOMPARE(cell.size, QSizeF(-1, -1));
    QVERIFY(!cell.textColor.isValid());
    QCOMPARE(cell.horizontalAlign, 0U);
    QCOMPARE(cell.verticalAlign, 0U);
    QVERIFY(!cell.bold);
    QVERIFY(!cell.insideColor.isValid());
    QVERIFY(!cell.borderColor.isValid());
    QCOMPARE(cell.borderLineWidth, 0.0);
    QCOMPARE(cell.realColumn, 0);
    QCOMPARE(cell.nbMergedCell, 0);
}

void TestTXTableCell::textThatIsNoColourIsNone()
{
    const TXTableCell cell({{"InsideCellColor", QStringLiteral("no colour")}});

    QVERIFY(!cell.insideColor.isValid());
}

void TestTXTableCell::singlePrecisionBorderIsKept()
{
    const TXTableCell single({{"BorderCellLineWidth", 0.35F}});
    const TXTableCell twice({{"BorderCellLineWidth", 0.35}});

    QCOMPARE(exactly(single.borderLineWidth), QStringLiteral("0.34999999403953552"));
    QCOMPARE(exactly(twice.borderLineWidth), QStringLiteral("0.34999999999999998"));
}

void TestTXTableCell::copyHoldsTheSame()
{
    Settings all = settingsWithoutDefaults();
    // Numbers that a copy by way of a text, or of the other precision, would not keep.
    all.insert("CellSize", QSizeF(30.25, 0.1));
    all.insert("BorderCellLineWidth", 0.35F);
    const TXTableCell cell(all);
    TXTableCell assigned(Settings{});
    const TXTableCell &self = assigned;

    TXTableCell copy(cell);
    assigned = cell;
    assigned = self;

    QCOMPARE(describe(copy), describe(cell));
    QCOMPARE(describe(assigned), describe(cell));
    copy.nbMergedCell += 1;
    QVERIFY(describe(copy) != describe(cell));
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableCell>(argc, argv);
}

#include "tst_TXTableCell.moc"
