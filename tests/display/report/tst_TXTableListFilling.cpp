#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QPixmap>

using TableTest::cell;
using TableTest::cellAt;
using TableTest::describe;
using TableTest::filledWith;
using TableTest::Settings;
using TableTest::settings;
using TableTest::texts;

/// What addCell() makes of a list, and where its cursor goes.
class TestTXTableListFilling : public TestBase
{
    Q_OBJECT

private slots:
    void aListSharesOneColumn();
    void aListOfOneTextIsThatText();
    void listsThatAreNoSingleText_data();
    void listsThatAreNoSingleText();
    void anEmptyListMovesTheCursorOnly();
    void emptyListsInEveryColumnLeaveTheFirstCellToOpenARow();
    void aListInTheFirstColumnMakesARowOfEachValue();
    void theRowAfterAFirstColumnListIsFilledAboveItsOpening();
    void aListJoinsAFullRow();
    void aListWithoutASizeHasNegativeSizes();
    void theListsOwnMarksReplaceTheDictionarys();
    void valuesOfAListAreTakenAsTheyAre();
    void fewerRowsThanTheCursorStandsAtLoseNoGroup();
};

void TestTXTableListFilling::aListSharesOneColumn()
{
    TXTable table = filledWith(3, {"a", QVariantList{"x", 2, "z"}, "c", "d"});

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "x", "2", "z", "c"}, {"d"}}));
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(cellAt(table, 0, i).realColumn, 1);
        QCOMPARE(cellAt(table, 0, i).nbMergedCell, 3);
        QCOMPARE(cellAt(table, 0, i).size, QSizeF(30.0, 20.0));
    }
    QCOMPARE(cellAt(table, 0, 4).realColumn, 2);
    QCOMPARE(cellAt(table, 0, 4).nbMergedCell, 1);
    QCOMPARE(cellAt(table, 0, 4).size, QSizeF(90.0, 20.0));
}

void TestTXTableListFilling::aListOfOneTextIsThatText()
{
    // As a plain cell it minds that the row is full, and keeps the list as its element.
    TXTable table = filledWith(1, {"a", QStringList{"b"}});

    QCOMPARE(texts(table), (QList<QStringList>{{"a"}, {"b"}}));
    QCOMPARE(cellAt(table, 1, 0).element, QVariant(QStringList{"b"}));
    QCOMPARE(cellAt(table, 1, 0).nbMergedCell, 1);
}

void TestTXTableListFilling::listsThatAreNoSingleText_data()
{
    QTest::addColumn<QVariant>("list");
    QTest::addRow("one empty text") << QVariant(QStringList{""});
    QTest::addRow("list of values with one") << QVariant(QVariantList{"b"});
}

void TestTXTableListFilling::listsThatAreNoSingleText()
{
    QFETCH(QVariant, list);
    TXTable table = filledWith(1, {"a"});

    table.addCell(settings(list));

    // As a group it joins the full row, and its value is the cell's element.
    QCOMPARE(table.getTableCellList().size(), 1);
    QCOMPARE(cellAt(table, 0, 1).element.typeId(), int(QMetaType::QString));
    QCOMPARE(cellAt(table, 0, 1).realColumn, 1);
}

void TestTXTableListFilling::anEmptyListMovesTheCursorOnly()
{
    for (const QVariant &list : {QVariant(QVariantList()), QVariant(QStringList())}) {
        TXTable table = filledWith(3, {"a", list, "c", "d"});

        QCOMPARE(texts(table), (QList<QStringList>{{"a", "c"}, {"d"}}));
        QCOMPARE(cellAt(table, 0, 1).realColumn, 2);
    }
}

void TestTXTableListFilling::emptyListsInEveryColumnLeaveTheFirstCellToOpenARow()
{
    const QVariant none{QVariantList()};

    const TXTable table = filledWith(2, {none, none, none, none, "a", "b"});

    // As long as there is no row, a cell opens one wherever the cursor stands.
    QCOMPARE(texts(table), (QList<QStringList>{{"a"}, {"b"}}));
    QCOMPARE(cellAt(table, 0, 0).realColumn, 4);
    QCOMPARE(cellAt(table, 1, 0).realColumn, 0);
}

void TestTXTableListFilling::aListInTheFirstColumnMakesARowOfEachValue()
{
    const TXTable table = filledWith(3, {QStringList{"x", "y", "z"}, "b"});

    QCOMPARE(texts(table), (QList<QStringList>{{"x", "b"}, {"y"}, {"z"}}));
    QCOMPARE(cellAt(table, 2, 0).realColumn, 0);
    QCOMPARE(cellAt(table, 2, 0).nbMergedCell, 3);
    QCOMPARE(cellAt(table, 0, 1).realColumn, 1);
}

void TestTXTableListFilling::theRowAfterAFirstColumnListIsFilledAboveItsOpening()
{
    const TXTable table = filledWith(2, {QStringList{"x", "y", "z"}, "b", "c", "d", "e", "f"});

    // The cell that opens a row stands at the end, while the cursor counts rows from the top.
    QCOMPARE(texts(table), (QList<QStringList>{{"x", "b"}, {"y", "d"}, {"z", "f"}, {"c"}, {"e"}}));
}

void TestTXTableListFilling::aListJoinsAFullRow()
{
    const TXTable table = filledWith(2, {"a", "b", QStringList{"x", "y"}, "c"});

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "b", "x", "y"}, {"c"}}));
    QCOMPARE(cellAt(table, 0, 3).realColumn, 2);
}

void TestTXTableListFilling::aListWithoutASizeHasNegativeSizes()
{
    TXTable table = filledWith(2, {"a"});

    table.addCell({{"CellElement", QStringList{"x", "y"}}});
    table.addCell({{"CellElement", "b"}});

    QCOMPARE(cellAt(table, 0, 1).size, QSizeF(-0.5, -1.0));
    QCOMPARE(cellAt(table, 1, 0).size, QSizeF(50.0, 50.0));
}

void TestTXTableListFilling::theListsOwnMarksReplaceTheDictionarys()
{
    Settings dictionary = settings(QStringList{"x", "y"}, {10.0, 20.0});
    dictionary["CellRealColumn"] = 7;
    dictionary["NbMergedCell"] = 9;
    dictionary["CellTextBold"] = true;
    TXTable table = filledWith(2, {"a"});

    table.addCell(dictionary);

    const TXTableCell second = cellAt(table, 0, 2);
    QCOMPARE(second.realColumn, 1);
    QCOMPARE(second.nbMergedCell, 2);
    QVERIFY(second.bold);
}

void TestTXTableListFilling::valuesOfAListAreTakenAsTheyAre()
{
    const QVariantList values{QVariant(), QVariantList{"inner", "list"}, QStringList{"one"},
                              QPixmap(), QPointF(1.0, 2.0)};
    TXTable table = filledWith(2, {"a"});

    table.addCell(settings(values, {100.0, 20.0}));

    QCOMPARE(table.getTableCellList().first().size(), 6);
    for (int i = 0; i < values.size(); ++i) {
        QCOMPARE(describe(cellAt(table, 0, i + 1)),
                 describe(cell(values.at(i), {20.0, 20.0}, 1, 5)));
    }
}

void TestTXTableListFilling::fewerRowsThanTheCursorStandsAtLoseNoGroup()
{
    TXTable table = filledWith(2, {"a", "b", "c", "d", "e"});

    table.setTableCellList({{cell("p")}});
    table.addCell(settings(QStringList{"x", "y", "z"}));

    // Once there are as many rows as the cursor's, they fill as ever.
    QCOMPARE(texts(table), (QList<QStringList>{{"p"}, {"x"}, {"y", "z"}}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableListFilling>(argc, argv);
}

#include "tst_TXTableListFilling.moc"
