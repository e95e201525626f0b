#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QColor>
#include <QDate>
#include <QFont>
#include <QFontMetricsF>
#include <QPixmap>

#include <algorithm>
#include <limits>

using TableTest::cell;
using TableTest::cellAt;
using TableTest::describe;
using TableTest::paddedWidth;
using TableTest::Row;
using TableTest::Rows;
using TableTest::settings;
using TableTest::tableOf;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr double kInfinite = std::numeric_limits<double>::infinity();
const QString kLongText = QStringLiteral("a text that is wider than its cell");

/// The width that a lone cell has when its column fits it.
double optimizedWidth(const TXTableCell &only, const QFont &font = reportTestFont())
{
    TXTable table = tableOf({{only}});
    table.optimizeTableSize(font);
    return cellAt(table, 0, 0).size.width();
}

double neededWidth(const QString &text, const QFont &font = reportTestFont())
{
    return double(float(paddedWidth(text, font)));
}

} // namespace

/// How optimizeTableSize() widens columns and shares them out among their cells.
class TestTXTableOptimizing : public TestBase
{
    Q_OBJECT

private slots:
    void withoutRowsNothingHappens();
    void aWideTextWidensItsCellAndColumn();
    void aTextStandsBetweenTwoBlanksOnEitherSide();
    void aNarrowTextLeavesTheCellsWidth();
    void theColumnsOldWidthDoesNotCount();
    void whatIsMeasured_data();
    void whatIsMeasured();
    void whatIsNotMeasured_data();
    void whatIsNotMeasured();
    void placeholdersInATextAreText();
    void theGivenFontIsTakenWhateverTheCellsWeight();
    void eachColumnIsAsWideAsItsWidestRow();
    void textsInOneColumnOfARowAddUp();
    void theSumStartsAnewWhereTheColumnChanges();
    void widthsInOneColumnDoNotAddUp();
    void shortListsShrink();
    void theSumKeepsWhatThePictureInterrupts();
    void theColumnsWidthIsSharedByTheMarkedNumberOfCells_data();
    void theColumnsWidthIsSharedByTheMarkedNumberOfCells();
    void onlyTheFirstRowWidensTheTable();
    void columnsBeyondTheTableChangeCellsOnly_data();
    void columnsBeyondTheTableChangeCellsOnly();
    void heightsAndAllElseStay();
    void senselessWidths_data();
    void senselessWidths();
    void rowsWithoutCellsAreSteppedOver();
    void rowsThatFitAlreadyStayShared();
    void oneRowThatDoesNotFitIsCopiedAlone();
};

void TestTXTableOptimizing::withoutRowsNothingHappens()
{
    TXTable table(3, false);

    table.optimizeTableSize(reportTestFont());

    QVERIFY(table.getTableCellList().isEmpty());
    QCOMPARE(table.tableWidth(), 90.0F);
}

void TestTXTableOptimizing::aWideTextWidensItsCellAndColumn()
{
    TXTable table(2, false);
    table.addCell(settings(kLongText, {30.0, 20.0}));
    table.addCell(settings("b", {30.0, 20.0}));
    const double needed = neededWidth(kLongText);
    QVERIFY(needed > 30.0);

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(cellAt(table, 0, 0).size, QSizeF(needed, 20.0));
    QCOMPARE(table.columnWidthAtIndex(0), float(needed));
    QCOMPARE(cellAt(table, 0, 1).size, QSizeF(30.0, 20.0));
    QCOMPARE(table.columnWidthAtIndex(1), 30.0F);
}

void TestTXTableOptimizing::aTextStandsBetweenTwoBlanksOnEitherSide()
{
    const double found = optimizedWidth(cell(kLongText, {0.0, 20.0}));

    QCOMPARE(found,
             double(float(
                 TXGraphicsScene::getBoundingRectOfText("  " + kLongText + "  ", reportTestFont())
                     .width())));
    const double bare = QFontMetricsF(reportTestFont()).horizontalAdvance(kLongText);
    const double blank = QFontMetricsF(reportTestFont()).horizontalAdvance(u' ');
    QVERIFY(qAbs(found - bare - 4 * blank) < 0.1);
}

void TestTXTableOptimizing::aNarrowTextLeavesTheCellsWidth()
{
    QCOMPARE(optimizedWidth(cell("i", {200.0, 20.0})), 200.0);
}

void TestTXTableOptimizing::theColumnsOldWidthDoesNotCount()
{
    TXTable table = tableOf({{cell("i", {25.0, 20.0})}});
    table.setColumnWidth(500.0F, 0);

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(cellAt(table, 0, 0).size.width(), 25.0);
    QCOMPARE(table.columnWidthAtIndex(0), 25.0F);
    QCOMPARE(table.columnWidthAtIndex(1), 30.0F);
}

void TestTXTableOptimizing::whatIsMeasured_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addColumn<QString>("text");
    QTest::addRow("text") << QVariant("abc") << "abc";
    QTest::addRow("empty text") << QVariant("") << "";
    QTest::addRow("null text") << QVariant(QString()) << "";
    QTest::addRow("number") << QVariant(-1234567) << "-1234567";
    QTest::addRow("list of one text") << QVariant(QStringList{"abc"}) << "abc";
    QTest::addRow("mnemonic") << QVariant("&abc") << "&abc";
    QTest::addRow("ampersand at the end") << QVariant("abc&") << "abc&";
    QTest::addRow("line break") << QVariant("ab\ncdef") << "ab\ncdef";
    const QString rightToLeft = QStringLiteral(u"\u05e9\u05dc\u05d5\u05dd");
    const QString combining = QStringLiteral(u"e\u0301\u0301");
    const QString astral = QStringLiteral(u"\U0001d504\U0001d505");
    QTest::addRow("right to left") << QVariant(rightToLeft) << rightToLeft;
    QTest::addRow("combining") << QVariant(combining) << combining;
    QTest::addRow("astral") << QVariant(astral) << astral;
}

void TestTXTableOptimizing::whatIsMeasured()
{
    QFETCH(QVariant, element);
    QFETCH(QString, text);
    QVERIFY(neededWidth(text) > 0.0);

    QCOMPARE(optimizedWidth(cell(element, {0.0, 20.0})), neededWidth(text));
}

void TestTXTableOptimizing::whatIsNotMeasured_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addRow("nothing") << QVariant();
    QTest::addRow("picture") << QVariant(QPixmap(300, 300));
    QTest::addRow("null picture") << QVariant(QPixmap());
    QTest::addRow("list") << QVariant(QVariantList{"a", "b"});
    QTest::addRow("point") << QVariant(QPointF(1.0, 2.0));
    QTest::addRow("null date") << QVariant(QDate());
}

void TestTXTableOptimizing::whatIsNotMeasured()
{
    QFETCH(QVariant, element);

    QCOMPARE(optimizedWidth(cell(element, {1.5, 20.0})), 1.5);
}

void TestTXTableOptimizing::placeholdersInATextAreText()
{
    const QString text = QStringLiteral("%1 %2 %L1 %%");

    QCOMPARE(optimizedWidth(cell(text, {0.0, 20.0})), neededWidth(text));
}

void TestTXTableOptimizing::theGivenFontIsTakenWhateverTheCellsWeight()
{
    TXTableCell bold = cell(kLongText, {0.0, 20.0});
    bold.bold = true;
    QFont heavy = reportTestFont();
    heavy.setWeight(QFont::Bold);
    QVERIFY(neededWidth(kLongText, heavy) > neededWidth(kLongText));

    QCOMPARE(optimizedWidth(bold), neededWidth(kLongText));
    QCOMPARE(optimizedWidth(bold, heavy), neededWidth(kLongText, heavy));
    QCOMPARE(optimizedWidth(bold, reportTestFont(20)), neededWidth(kLongText, reportTestFont(20)));
}

void TestTXTableOptimizing::eachColumnIsAsWideAsItsWidestRow()
{
    TXTable table = tableOf({{cell("a", {10.0, 20.0}, 0), cell("b", {77.0, 20.0}, 1)},
                             {cell(kLongText, {10.0, 20.0}, 0), cell("b", {5.0, 20.0}, 1)},
                             {cell("a", {3.0, 20.0}, 0)}});

    table.optimizeTableSize(reportTestFont());

    for (int row = 0; row < 3; ++row) {
        QCOMPARE(cellAt(table, row, 0).size.width(), neededWidth(kLongText));
    }
    QCOMPARE(cellAt(table, 0, 1).size.width(), 77.0);
    QCOMPARE(cellAt(table, 1, 1).size.width(), 77.0);
    QCOMPARE(table.columnWidthAtIndex(0), float(neededWidth(kLongText)));
    QCOMPARE(table.columnWidthAtIndex(1), 77.0F);
}

void TestTXTableOptimizing::textsInOneColumnOfARowAddUp()
{
    TXTable table = tableOf({{cell("abc", {1.0, 20.0}, 1, 2), cell("de", {1.0, 20.0}, 1, 2)}});
    const float sum =
        float(paddedWidth("abc", reportTestFont()) + paddedWidth("de", reportTestFont()));

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.columnWidthAtIndex(1), sum);
    QCOMPARE(cellAt(table, 0, 0).size.width(), double(sum / 2.0F));
    QCOMPARE(cellAt(table, 0, 1).size.width(), double(sum / 2.0F));
}

void TestTXTableOptimizing::theSumStartsAnewWhereTheColumnChanges()
{
    TXTable table = tableOf({{cell("abc", {0.0, 20.0}, 1), cell("abcdefgh", {0.0, 20.0}, 0),
                              cell("de", {0.0, 20.0}, 1), cell("f", {0.0, 20.0}, 1)},
                             {cell("gh", {0.0, 20.0}, 1)}});
    const double afterTheChange =
        paddedWidth("de", reportTestFont()) + paddedWidth("f", reportTestFont());
    const double widest = std::max(afterTheChange, paddedWidth("abc", reportTestFont()));

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.columnWidthAtIndex(1), float(widest));
    QCOMPARE(table.columnWidthAtIndex(0), float(paddedWidth("abcdefgh", reportTestFont())));
}

void TestTXTableOptimizing::widthsInOneColumnDoNotAddUp()
{
    TXTable table = tableOf({{cell("", {40.0, 20.0}, 0, 2), cell("", {60.0, 20.0}, 0, 2)}});

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.columnWidthAtIndex(0), 60.0F);
    QCOMPARE(cellAt(table, 0, 0).size.width(), 30.0);
    QCOMPARE(cellAt(table, 0, 1).size.width(), 30.0);
}

void TestTXTableOptimizing::shortListsShrink()
{
    const QFont tiny = reportTestFont(2);
    TXTable table(2, false);
    table.addCell(settings("", {90.0, 20.0}));
    table.addCell(settings(QStringList{"x", "y", "z"}, {90.0, 20.0}));
    QVERIFY(3 * paddedWidth("x", tiny) < 30.0);

    table.optimizeTableSize(tiny);

    QCOMPARE(table.columnWidthAtIndex(1), 30.0F);
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(cellAt(table, 0, i).size.width(), 10.0);
    }
}

void TestTXTableOptimizing::theSumKeepsWhatThePictureInterrupts()
{
    TXTable table = tableOf({{cell("abc", {0.0, 20.0}, 0), cell(QPixmap(9, 9), {0.0, 20.0}, 0),
                              cell("de", {0.0, 20.0}, 0)}});

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.columnWidthAtIndex(0),
             float(paddedWidth("abc", reportTestFont()) + paddedWidth("de", reportTestFont())));
}

void TestTXTableOptimizing::theColumnsWidthIsSharedByTheMarkedNumberOfCells_data()
{
    QTest::addColumn<int>("nbMergedCell");
    QTest::addColumn<float>("width");
    QTest::addRow("none") << 0 << 100.0F;
    QTest::addRow("one") << 1 << 100.0F;
    QTest::addRow("three") << 3 << 100.0F / 3.0F;
    QTest::addRow("negative") << -2 << -50.0F;
    QTest::addRow("most") << kMost << 100.0F / float(kMost);
    QTest::addRow("least") << kLeast << 100.0F / float(kLeast);
}

void TestTXTableOptimizing::theColumnsWidthIsSharedByTheMarkedNumberOfCells()
{
    QFETCH(int, nbMergedCell);
    QFETCH(float, width);

    // The mark counts, not how many cells there are.
    const double found = optimizedWidth(cell("", {100.0, 20.0}, 0, nbMergedCell));

    QVERIFY2(found == double(width), qPrintable(QString::number(found, 'g', 17)));
}

void TestTXTableOptimizing::onlyTheFirstRowWidensTheTable()
{
    TXTable table = tableOf(
        {{cell("a", {40.0, 20.0}, 0)}, {cell("a", {50.0, 20.0}, 0), cell("b", {60.0, 20.0}, 1)}});

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.columnWidthAtIndex(0), 50.0F);
    QCOMPARE(table.columnWidthAtIndex(1), 30.0F);
    QCOMPARE(cellAt(table, 1, 1).size.width(), 60.0);
}

void TestTXTableOptimizing::columnsBeyondTheTableChangeCellsOnly_data()
{
    QTest::addColumn<int>("realColumn");
    QTest::addRow("first beyond") << 3;
    QTest::addRow("left of the first") << -1;
    QTest::addRow("least") << kLeast;
    QTest::addRow("most") << kMost;
}

void TestTXTableOptimizing::columnsBeyondTheTableChangeCellsOnly()
{
    QFETCH(int, realColumn);
    TXTable table = tableOf({{cell(kLongText, {0.0, 20.0}, realColumn)}});

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(cellAt(table, 0, 0).size.width(), neededWidth(kLongText));
    QCOMPARE(table.tableWidth(), 90.0F);
}

void TestTXTableOptimizing::heightsAndAllElseStay()
{
    TXTableCell special = cell(12, {0.0, 7.25}, 0, 1);
    special.bold = true;
    special.textColor = QColor(Qt::red);
    special.borderLineWidth = 3.5;
    TXTable table = tableOf({{special}});

    table.optimizeTableSize(reportTestFont());

    special.size.setWidth(neededWidth("12"));
    QCOMPARE(describe(table.getTableCellList()), describe(Rows{{special}}));
}

void TestTXTableOptimizing::senselessWidths_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("optimized");
    QTest::addRow("negative") << -50.0 << neededWidth("a");
    QTest::addRow("not a number") << qQNaN() << neededWidth("a");
    QTest::addRow("least") << -kInfinite << neededWidth("a");
    QTest::addRow("infinite") << kInfinite << kInfinite;
    QTest::addRow("beyond float") << 1e300 << kInfinite;
}

void TestTXTableOptimizing::senselessWidths()
{
    QFETCH(double, width);
    QFETCH(double, optimized);

    QCOMPARE(optimizedWidth(cell("a", {width, 20.0})), optimized);
    // Without a text, nothing is above the width of none.
    const double bare = optimizedWidth(cell(QVariant(), {width, 20.0}));
    QCOMPARE(bare, width > 0.0 ? kInfinite : 0.0);
}

void TestTXTableOptimizing::rowsWithoutCellsAreSteppedOver()
{
    TXTable table = tableOf({{}, {cell("a", {50.0, 20.0})}, {}});

    table.optimizeTableSize(reportTestFont());

    // The first row reaches no column, so the table's widths stay.
    QCOMPARE(table.tableWidth(), 90.0F);
    QCOMPARE(cellAt(table, 1, 0).size.width(), 50.0);
    QCOMPARE(table.getTableCellList().size(), 3);
}

void TestTXTableOptimizing::rowsThatFitAlreadyStayShared()
{
    TXTable table = tableOf({{cell("a", {50.0, 20.0})}, {cell(kLongText, {60.0, 20.0})}});
    table.optimizeTableSize(reportTestFont());
    const Rows before = table.getTableCellList();

    table.optimizeTableSize(reportTestFont());

    const Rows after = table.getTableCellList();
    QCOMPARE(after.constData(), before.constData());
}

void TestTXTableOptimizing::oneRowThatDoesNotFitIsCopiedAlone()
{
    const Rows before{
        {cell("a", {50.0, 20.0})}, {cell("b", {40.0, 20.0})}, {cell("c", {50.0, 20.0})}};
    TXTable table = tableOf(before);

    table.optimizeTableSize(reportTestFont());

    const Rows after = table.getTableCellList();
    QCOMPARE(after.at(0).constData(), before.at(0).constData());
    QCOMPARE(after.at(2).constData(), before.at(2).constData());
    QCOMPARE(after.at(1).first().size.width(), 50.0);
    QCOMPARE(before.at(1).first().size.width(), 40.0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableOptimizing>(argc, argv);
}

#include "tst_TXTableOptimizing.moc"
