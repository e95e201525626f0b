#include "TXTable.h"
#include "TXTableCell.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QColor>
#include <QDate>
#include <QUrl>

#include <limits>

using TableTest::cell;
using TableTest::cellAt;
using TableTest::describe;
using TableTest::filledWith;
using TableTest::Settings;
using TableTest::settings;
using TableTest::texts;

namespace {

/// A type that the meta-object system knows and cannot turn into text.
struct Measurement
{
    double lightness = 50.0;
};

/// A type with a text of its own.
struct PatchName
{
    QString name;
};

} // namespace

Q_DECLARE_METATYPE(Measurement)
Q_DECLARE_METATYPE(PatchName)

/// What addCell() makes of single values, and where its cursor goes.
class TestTXTableFilling : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sevenCellsMakeRowsOfThreeThreeAndOne();
    void aFullRowIsClosedByTheNextCellOnly();
    void plainCellsKnowTheirColumnWhateverTheDictionarySays();
    void theSettingsReachTheCell();
    void unknownKeysChangeNothing();
    void withoutAnElementNothingHappens();
    void elementsThatMakeOneCell_data();
    void elementsThatMakeOneCell();
    void elementsThatMakeNone_data();
    void elementsThatMakeNone();
    void anEmptyTextMakesACell();
    void withoutColumnsEachCellStandsInARowOfItsOwn_data();
    void withoutColumnsEachCellStandsInARowOfItsOwn();
    void replacingTheCellsLeavesTheCursorWhereItWas();
    void fewerRowsThanTheCursorStandsAtLoseNoCell();
    void noRowsUnderAMovedCursorKeepTheColumn();
    void senselessSizesAreKept();
};

void TestTXTableFilling::initTestCase()
{
    QMetaType::registerConverter<PatchName, QString>(
        [](const PatchName &patch) { return patch.name; });
}

void TestTXTableFilling::sevenCellsMakeRowsOfThreeThreeAndOne()
{
    TXTable table = filledWith(3, {"a", "b", "c", "d", "e", "f", "g"});
    QCOMPARE(texts(table), (QList<QStringList>{{"a", "b", "c"}, {"d", "e", "f"}, {"g"}}));

    // The cursor stands at row 2, column 1.
    table.addCell(settings("h"));

    QCOMPARE(texts(table).last(), QStringList({"g", "h"}));
    QCOMPARE(cellAt(table, 2, 1).realColumn, 1);
}

void TestTXTableFilling::aFullRowIsClosedByTheNextCellOnly()
{
    TXTable table = filledWith(3, {"a", "b", "c"});
    QCOMPARE(table.getTableCellList().size(), 1);

    // A list does not look whether the row is full, so it shows where the cursor stands: at
    // column 3 of row 0.
    table.addCell(settings(QVariantList{"x", "y"}));

    QCOMPARE(texts(table), (QList<QStringList>{{"a", "b", "c", "x", "y"}}));
    QCOMPARE(cellAt(table, 0, 3).realColumn, 3);
}

void TestTXTableFilling::plainCellsKnowTheirColumnWhateverTheDictionarySays()
{
    Settings dictionary = settings("a");
    dictionary["CellRealColumn"] = 7;
    dictionary["NbMergedCell"] = 4;
    TXTable table(2, false);

    for (int i = 0; i < 3; ++i) {
        table.addCell(dictionary);
    }

    QCOMPARE(cellAt(table, 0, 0).realColumn, 0);
    QCOMPARE(cellAt(table, 0, 1).realColumn, 1);
    QCOMPARE(cellAt(table, 1, 0).realColumn, 0);
    QCOMPARE(cellAt(table, 0, 1).nbMergedCell, 4);
}

void TestTXTableFilling::theSettingsReachTheCell()
{
    Settings dictionary = settings("a", {12.5, 7.25});
    dictionary["CellTextColor"] = QColor(Qt::red);
    dictionary["CellTextHorizontalAlign"] = 1;
    dictionary["CellTextBold"] = true;
    dictionary["BorderCellLineWidth"] = 3;
    TXTable table(2, false);

    table.addCell(dictionary);

    QCOMPARE(describe(cellAt(table, 0, 0)), describe(TXTableCell(dictionary)));
}

void TestTXTableFilling::unknownKeysChangeNothing()
{
    Settings dictionary = settings(QStringList{"a", "b"});
    TXTable plain(2, false);
    plain.addCell(settings("first"));
    plain.addCell(dictionary);
    for (int i = 0; i < 100; ++i) {
        dictionary.insert(QStringLiteral("Unknown%1").arg(i), i);
    }
    dictionary.insert("cellelement", "lower case");
    TXTable table(2, false);
    table.addCell(settings("first"));

    table.addCell(dictionary);

    QCOMPARE(describe(table.getTableCellList()), describe(plain.getTableCellList()));
}

void TestTXTableFilling::withoutAnElementNothingHappens()
{
    TXTable table = filledWith(2, {"a"});
    const QStringList before = describe(table.getTableCellList());

    table.addCell({});
    table.addCell({{"CellSize", QSizeF(10.0, 10.0)}});
    table.addCell(settings(QVariant()));

    QCOMPARE(describe(table.getTableCellList()), before);
    table.addCell(settings("b"));
    QCOMPARE(texts(table), (QList<QStringList>{{"a", "b"}}));
}

void TestTXTableFilling::elementsThatMakeOneCell_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addRow("text") << QVariant("a");
    QTest::addRow("blank") << QVariant(" ");
    QTest::addRow("null text") << QVariant(QString());
    QTest::addRow("zero") << QVariant(0);
    QTest::addRow("real") << QVariant(0.5);
    QTest::addRow("false") << QVariant(false);
    QTest::addRow("date") << QVariant(QDate(2026, 1, 31));
    QTest::addRow("bytes") << QVariant(QByteArray("a"));
    QTest::addRow("character") << QVariant(QChar(u'a'));
    QTest::addRow("colour") << QVariant(QColor(Qt::red));
    QTest::addRow("address") << QVariant(QUrl("https://tovra.example"));
    QTest::addRow("picture") << QVariant(QPixmap(2, 2));
    QTest::addRow("null picture") << QVariant(QPixmap());
    QTest::addRow("own type with a text") << QVariant::fromValue(PatchName{"A1"});
    QTest::addRow("list of one text") << QVariant(QStringList{"a"});
}

void TestTXTableFilling::elementsThatMakeOneCell()
{
    QFETCH(QVariant, element);
    TXTable table = filledWith(3, {"first"});

    table.addCell(settings(element, {40.0, 10.0}));
    table.addCell(settings("last"));

    QCOMPARE(table.getTableCellList().size(), 1);
    QCOMPARE(table.getTableCellList().first().size(), 3);
    QCOMPARE(describe(cellAt(table, 0, 1)), describe(cell(element, {40.0, 10.0}, 1)));
}

void TestTXTableFilling::elementsThatMakeNone_data()
{
    QTest::addColumn<QVariant>("element");
    QTest::addRow("null date") << QVariant(QDate());
    QTest::addRow("empty bytes") << QVariant(QByteArray());
    QTest::addRow("point") << QVariant(QPointF(1.0, 2.0));
    QTest::addRow("dictionary") << QVariant(QVariantHash{{"a", 1}});
    QTest::addRow("sorted dictionary") << QVariant(QVariantMap{{"a", 1}});
    QTest::addRow("image") << QVariant(QImage(2, 2, QImage::Format_RGB32));
    QTest::addRow("own type") << QVariant::fromValue(Measurement());
    QTest::addRow("own type with an empty text") << QVariant::fromValue(PatchName());
    QTest::addRow("list of another type") << QVariant::fromValue(QList<int>{1, 2});
}

void TestTXTableFilling::elementsThatMakeNone()
{
    QFETCH(QVariant, element);
    TXTable table = filledWith(3, {"first"});

    table.addCell(settings(element));
    table.addCell(settings("last"));

    QCOMPARE(texts(table), (QList<QStringList>{{"first", "last"}}));
    QCOMPARE(cellAt(table, 0, 1).realColumn, 1);
}

void TestTXTableFilling::anEmptyTextMakesACell()
{
    TXTable table(2, false);

    table.addCell(TXTable::invisibleCellHashTemplate());
    table.addCell(settings("b"));

    QCOMPARE(texts(table), (QList<QStringList>{{"", "b"}}));
    QCOMPARE(cellAt(table, 0, 0).size, QSizeF(50.0, 50.0));
}

void TestTXTableFilling::withoutColumnsEachCellStandsInARowOfItsOwn_data()
{
    QTest::addColumn<int>("nbColumns");
    QTest::addRow("none") << 0;
    QTest::addRow("negative") << -1;
    QTest::addRow("least") << std::numeric_limits<int>::min();
}

void TestTXTableFilling::withoutColumnsEachCellStandsInARowOfItsOwn()
{
    QFETCH(int, nbColumns);

    const TXTable table = filledWith(nbColumns, {"a", "b", "c", QStringList{"x", "y"}, "d"});

    QCOMPARE(texts(table), (QList<QStringList>{{"a"}, {"b"}, {"c", "x", "y"}, {"d"}}));
}

void TestTXTableFilling::replacingTheCellsLeavesTheCursorWhereItWas()
{
    TXTable table = filledWith(2, {"a", "b", "c"});

    table.setTableCellList({{cell("p")}, {cell("q")}, {cell("r")}});
    table.addCell(settings("d"));
    table.addCell(settings("e"));

    QCOMPARE(texts(table), (QList<QStringList>{{"p"}, {"q", "d"}, {"r"}, {"e"}}));
}

void TestTXTableFilling::fewerRowsThanTheCursorStandsAtLoseNoCell()
{
    TXTable table = filledWith(2, {"a", "b", "c", "d", "e"});

    table.setTableCellList({{cell("p")}});
    table.addCell(settings("f"));

    QCOMPARE(texts(table), (QList<QStringList>{{"p"}, {"f"}}));
    QCOMPARE(cellAt(table, 1, 0).realColumn, 1);
}

void TestTXTableFilling::noRowsUnderAMovedCursorKeepTheColumn()
{
    TXTable table = filledWith(3, {"a", "b"});

    table.setTableCellList({});
    table.addCell(settings("c"));

    QCOMPARE(texts(table), (QList<QStringList>{{"c"}}));
    QCOMPARE(cellAt(table, 0, 0).realColumn, 2);
}

void TestTXTableFilling::senselessSizesAreKept()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    TXTable table = filledWith(3, {"a"});

    table.addCell(settings("b", {-infinite, qQNaN()}));
    table.addCell(settings(QStringList{"x", "y"}, {infinite, -3.0}));
    table.addCell(settings(QStringList{}, {infinite, -3.0}));

    QCOMPARE(describe(cellAt(table, 0, 1)), describe(cell("b", {-infinite, qQNaN()}, 1)));
    QCOMPARE(describe(cellAt(table, 0, 3)), describe(cell("y", {infinite, -3.0}, 2, 2)));
    QCOMPARE(table.getTableCellList().first().size(), 4);
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableFilling>(argc, argv);
}

#include "tst_TXTableFilling.moc"
