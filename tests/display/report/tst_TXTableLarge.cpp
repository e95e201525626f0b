#include "ReportTestFont.h"
#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"
#include "TextSizeCache.h"

using TableTest::Row;
using TableTest::Rows;
using TableTest::settings;

namespace {

constexpr int kColumns = 8;
constexpr int kRows = 125'000;
constexpr int kTexts = 4001;
constexpr float kPageHeight = 700.0F;

/// Texts that recur, but not in the same column.
QString textAt(int number)
{
    return QString::number(number % kTexts);
}

} // namespace

/// A table of a million cells, taken through the whole life of a report.
///
/// A cost that grows with the square of the table would show here as a test that never ends; where
/// such a cost could hide below that, the test counts what was touched instead of the time.
class TestTXTableLarge : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void fillingKeepsTheRowsThatAreThere();
    void allCellsAreThere();
    void heightsOfAllRowsCount();
    void pagesHoldEachRowOnceAndShareIt();
    void optimizingFitsAllRows();
    void optimizingAgainTouchesNothing();
    void mergingTouchesOneRow();

private:
    TXTable table{kColumns, false};
};

void TestTXTableLarge::initTestCase()
{
    auto dictionary = settings(QString(), {5.0, 20.0});
    for (int number = 0; number < kRows * kColumns; ++number) {
        dictionary[QStringLiteral("CellElement")] = textAt(number);
        table.addCell(dictionary);
    }
}

void TestTXTableLarge::cleanupTestCase()
{
    table = TXTable(0, false);
}

void TestTXTableLarge::fillingKeepsTheRowsThatAreThere()
{
    TXTable small(kColumns, false);
    for (int i = 0; i < 10 * kColumns; ++i) {
        small.addCell(settings("a"));
    }
    const void *firstRow = small.getTableCellList().first().constData();

    for (int i = 0; i < 1000 * kColumns; ++i) {
        small.addCell(settings("b"));
    }

    QCOMPARE(static_cast<const void *>(small.getTableCellList().first().constData()), firstRow);
}

void TestTXTableLarge::allCellsAreThere()
{
    const Rows rows = table.getTableCellList();

    QCOMPARE(rows.size(), kRows);
    int number = 0;
    for (const Row &row : rows) {
        QCOMPARE(row.size(), kColumns);
        for (const TXTableCell &cell : row) {
            QCOMPARE(cell.element.toString(), textAt(number));
            ++number;
        }
    }
}

void TestTXTableLarge::heightsOfAllRowsCount()
{
    QCOMPARE(table.tableHeight(), 20.0F * kRows);
    QCOMPARE(table.getNbRowDrawableOnHeight(20.0F * kRows + 2.0F, 0), kRows);
    QCOMPARE(table.getNbRowDrawableOnHeight(20.0F * kRows, kRows / 2), kRows / 2 + 1);
}

void TestTXTableLarge::pagesHoldEachRowOnceAndShareIt()
{
    const Rows rows = table.getTableCellList();
    int first = 0;
    int rowsOnPages = 0;

    while (first < kRows) {
        const int repeated = first > 0 ? 1 : 0;
        const int count = table.getNbRowDrawableOnHeight(kPageHeight, first);
        const Rows page =
            TXTable::copyPartOfTable(table, first, first + count - repeated).getTableCellList();
        for (qsizetype i = repeated; i < page.size(); ++i) {
            QCOMPARE(page.at(i).constData(), rows.at(first + i - repeated).constData());
        }
        rowsOnPages += int(page.size());
        first += int(page.size()) - repeated;
    }

    // 34 rows fit, of which all pages but the first repeat one.
    QCOMPARE(first, kRows);
    QCOMPARE(rowsOnPages, kRows + (kRows - 2) / 33);
}

void TestTXTableLarge::optimizingFitsAllRows()
{
    TextSizeCache::forget();

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(TextSizeCache::textCount(), kTexts);
    float widest = 0.0F;
    for (int number = 0; number < kTexts; ++number) {
        widest =
            qMax(widest, float(TableTest::paddedWidth(QString::number(number), reportTestFont())));
    }
    const Rows rows = table.getTableCellList();
    for (const Row &row : rows) {
        for (const TXTableCell &cell : row) {
            QCOMPARE(cell.size, QSizeF(widest, 20.0));
        }
    }
    QCOMPARE(table.tableWidth(), kColumns * widest);
}

void TestTXTableLarge::optimizingAgainTouchesNothing()
{
    table.optimizeTableSize(reportTestFont());
    const Rows before = table.getTableCellList();

    table.optimizeTableSize(reportTestFont());

    QCOMPARE(table.getTableCellList().constData(), before.constData());
}

void TestTXTableLarge::mergingTouchesOneRow()
{
    const Rows before = table.getTableCellList();

    table.mergeCells(0, kColumns - 1, kRows - 1);

    const Rows after = table.getTableCellList();
    QCOMPARE(after.last().size(), 1);
    int shared = 0;
    for (int row = 0; row < kRows; ++row) {
        shared += after.at(row).constData() == before.at(row).constData() ? 1 : 0;
    }
    QCOMPARE(shared, kRows - 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableLarge>(argc, argv);
}

#include "tst_TXTableLarge.moc"
