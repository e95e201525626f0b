#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QColor>

#include <limits>

using TableTest::cellAt;
using TableTest::describe;
using TableTest::texts;

namespace {

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

/// The settings of header and invisible cells, and the header that titles become.
class TestTXTableHeader : public TestBase
{
    Q_OBJECT

private slots:
    void headerCellsAreWhiteOnBlack();
    void invisibleCellsHoldTheEmptyTextAndNoColour();
    void titlesBecomeHeaderCells();
    void theFirstTitleIsInvertedOnRequest();
    void onlyTheFirstTitleIsInvertedWhateverItIs();
    void titlesFallBackToTheRowHeightOfTheTable_data();
    void titlesFallBackToTheRowHeightOfTheTable();
    void titlesBeyondTheLastColumnHaveNoWidth();
    void aListAsTitleMakesAGroup();
    void aTitleOfNothingIsLeftOut();
};

void TestTXTableHeader::headerCellsAreWhiteOnBlack()
{
    const auto header = TXTable::headerCellHashTemplate();

    QCOMPARE(header.size(), 5);
    QCOMPARE(header.value("CellTextColor"), QVariant(QColor(Qt::white)));
    QCOMPARE(header.value("CellTextBold"), QVariant(true));
    QCOMPARE(header.value("InsideCellColor"), QVariant(QColor(Qt::black)));
    QCOMPARE(header.value("BorderCellColor"), QVariant(QColor(Qt::darkGray)));
    QCOMPARE(header.value("BorderCellLineWidth").typeId(), int(QMetaType::Float));
    QCOMPARE(header.value("BorderCellLineWidth").toFloat(), 0.35F);
    QVERIFY(TXTableCell(header).borderLineWidth == double(0.35F));
}

void TestTXTableHeader::invisibleCellsHoldTheEmptyTextAndNoColour()
{
    const auto invisible = TXTable::invisibleCellHashTemplate();

    QCOMPARE(invisible.size(), 5);
    QCOMPARE(invisible.value("CellElement").typeId(), int(QMetaType::QString));
    QVERIFY(invisible.value("CellElement").toString().isEmpty());
    for (const char *key : {"CellTextColor", "InsideCellColor", "BorderCellColor"}) {
        QCOMPARE(invisible.value(key), QVariant(QColor(Qt::transparent)));
    }
    QCOMPARE(invisible.value("BorderCellLineWidth").typeId(), int(QMetaType::Int));
    QCOMPARE(invisible.value("BorderCellLineWidth").toInt(), 0);
}

void TestTXTableHeader::titlesBecomeHeaderCells()
{
    TXTable table(2, false);
    table.setColumnWidth(45.0F, 1);

    TXTable::initHeaderOfTableWithTitles(table, {"Patch", 76}, false, 12.5F);

    auto expected = TXTable::headerCellHashTemplate();
    expected["CellElement"] = "Patch";
    expected["CellSize"] = QSizeF(30.0, 12.5);
    const TXTableCell first(expected);
    expected["CellElement"] = 76;
    expected["CellSize"] = QSizeF(45.0, 12.5);
    expected["CellRealColumn"] = 1;
    QCOMPARE(describe(table.getTableCellList()),
             describe(TableTest::Rows{{first, TXTableCell(expected)}}));
}

void TestTXTableHeader::theFirstTitleIsInvertedOnRequest()
{
    TXTable table(2, false);

    TXTable::initHeaderOfTableWithTitles(table, {"Patch", "L*"}, true, 20.0F);

    const TXTableCell first = cellAt(table, 0, 0);
    QCOMPARE(first.insideColor, QColor(Qt::white));
    QCOMPARE(first.textColor, QColor(Qt::black));
    QCOMPARE(first.borderColor, QColor(Qt::darkGray));
    QVERIFY(first.bold);
    QCOMPARE(cellAt(table, 0, 1).insideColor, QColor(Qt::black));
    QCOMPARE(cellAt(table, 0, 1).textColor, QColor(Qt::white));
}

void TestTXTableHeader::onlyTheFirstTitleIsInvertedWhateverItIs()
{
    TXTable table(2, false);

    TXTable::initHeaderOfTableWithTitles(table, {QVariant(), "L*"}, true, 20.0F);

    QCOMPARE(texts(table), (QList<QStringList>{{"L*"}}));
    QCOMPARE(cellAt(table, 0, 0).insideColor, QColor(Qt::black));
}

void TestTXTableHeader::titlesFallBackToTheRowHeightOfTheTable_data()
{
    QTest::addColumn<float>("rowHeight");
    QTest::addColumn<double>("height");
    QTest::addRow("zero") << 0.0F << 20.0;
    QTest::addRow("negative") << -1.0F << 20.0;
    QTest::addRow("not a number") << kNotANumber << 20.0;
    QTest::addRow("just above zero") << 0.25F << 0.25;
}

void TestTXTableHeader::titlesFallBackToTheRowHeightOfTheTable()
{
    QFETCH(float, rowHeight);
    QFETCH(double, height);
    TXTable table(1, false);

    TXTable::initHeaderOfTableWithTitles(table, {"L*"}, false, rowHeight);

    QCOMPARE(cellAt(table, 0, 0).size.height(), height);
}

void TestTXTableHeader::titlesBeyondTheLastColumnHaveNoWidth()
{
    TXTable table(1, false);

    TXTable::initHeaderOfTableWithTitles(table, {"a", "b"}, false, 20.0F);

    QCOMPARE(texts(table), (QList<QStringList>{{"a"}, {"b"}}));
    QCOMPARE(cellAt(table, 0, 0).size.width(), 30.0);
    QCOMPARE(cellAt(table, 1, 0).size.width(), 0.0);
}

void TestTXTableHeader::aListAsTitleMakesAGroup()
{
    TXTable table(3, false);
    table.setColumnWidth(90.0F, 1);

    TXTable::initHeaderOfTableWithTitles(table, {"Patch", QStringList{"L*", "a*", "b*"}, "dE"},
                                         false, 20.0F);

    QCOMPARE(texts(table), (QList<QStringList>{{"Patch", "L*", "a*", "b*", "dE"}}));
    QCOMPARE(cellAt(table, 0, 2).size.width(), 30.0);
    QCOMPARE(cellAt(table, 0, 2).realColumn, 1);
    QCOMPARE(cellAt(table, 0, 2).nbMergedCell, 3);
    // The group's own entries must not reach the title after it.
    QCOMPARE(cellAt(table, 0, 4).nbMergedCell, 1);
    QCOMPARE(cellAt(table, 0, 4).realColumn, 2);
}

void TestTXTableHeader::aTitleOfNothingIsLeftOut()
{
    TXTable table(3, false);
    table.setColumnWidth(11.0F, 1);

    TXTable::initHeaderOfTableWithTitles(table, {"a", QVariant(), "c"}, false, 20.0F);

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "c"}}));
    QCOMPARE(cellAt(table, 0, 1).realColumn, 1);
    QCOMPARE(cellAt(table, 0, 1).size.width(), 30.0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableHeader>(argc, argv);
}

#include "tst_TXTableHeader.moc"
