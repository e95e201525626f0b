#include "PlainTable.h"
#include "ReportTestFont.h"
#include "TXTable.h"
#include "TableTestHelpers.h"
#include "TestBase.h"

#include <QPixmap>
#include <QRandomGenerator>

#include <array>

using TableTest::describe;
using TableTest::Row;
using TableTest::Rows;
using TableTest::Settings;
using TableTest::tableOf;

namespace {

constexpr int kTables = 1200;

/// A table and the rules in their plainest form, which go through the same.
struct Pair
{
    explicit Pair(int nbColumns)
        : table(nbColumns, false)
        , plain(nbColumns)
    { }

    TXTable table;
    PlainTable plain;
};

/// Makes the same values again for the same seed.
class RandomInput
{
public:
    explicit RandomInput(quint32 seed)
        : generator(seed)
    { }

    /// From the first up to and with the last.
    int number(int first, int last) { return generator.bounded(first, last + 1); }

    double length() { return number(-4, 400) * 0.3; }

    QVariant value()
    {
        switch (number(0, 9)) {
        case 0:
            return number(-9, 9);
        case 1:
            return QString();
        case 2:
            return picture;
        case 3:
            return QStringList{text()};
        case 4:
            return number(0, 1) == 0 ? QVariant() : QVariant(QPointF(1.0, 2.0));
        default:
            return text();
        }
    }

    QVariant element()
    {
        const int kind = number(0, 11);
        if (kind > 2) {
            return value();
        }
        QVariantList list;
        for (int left = number(0, 4); left > 0; --left) {
            list.append(kind == 0 ? QVariant(text()) : value());
        }
        return kind == 0 ? QVariant(list).toStringList() : QVariant(list);
    }

    Settings settings()
    {
        Settings result{{"CellElement", element()}};
        if (number(0, 9) != 0) {
            result["CellSize"] = QSizeF(length(), length());
        }
        if (number(0, 9) == 0) {
            result["CellRealColumn"] = number(-2, 9);
            result["NbMergedCell"] = number(-1, 3);
            result["Unknown"] = number(0, 9);
        }
        return result;
    }

private:
    QString text()
    {
        static const std::array<QString, 6> words{"L*", "a*", "50.25", "Patch %1", "&x", "cyan"};
        return words[size_t(number(0, int(words.size()) - 1))];
    }

    QRandomGenerator generator;
    QPixmap picture{4, 3};
};

/// One change out of all that a table knows.
void change(Pair &pair, RandomInput &random)
{
    const int kind = random.number(0, 39);
    if (kind == 0) {
        pair.table.optimizeTableSize(reportTestFont());
        pair.plain.optimize(reportTestFont());
    } else if (kind <= 3) {
        const int first = random.number(-1, 3);
        const int last = random.number(-1, 6);
        const int row = random.number(-1, int(pair.plain.rows.size()));
        pair.table.mergeCells(first, last, row);
        pair.plain.mergeCells(first, last, row);
    } else {
        const Settings settings = random.settings();
        pair.table.addCell(settings);
        pair.plain.addCell(settings);
    }
}

/// Random tables as reports have them: rows of any height above 0, some without cells.
TXTable randomReport(RandomInput &random)
{
    Rows rows(random.number(0, 60));
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QSizeF size(10.0, random.number(1, 120) * 0.35);
        for (int cell = random.number(0, 8) == 0 ? 0 : random.number(1, 3); cell > 0; --cell) {
            rows[row].append(TableTest::cell(QStringLiteral("row %1").arg(row), size));
        }
    }
    return tableOf(rows);
}

/// The pages of a report, cut as a host cuts them. A row that is too high for any page stands on
/// one of its own.
QList<TXTable> pagesOf(const TXTable &report, float height)
{
    QList<TXTable> pages;
    const int rows = int(report.getTableCellList().size());
    for (int first = 0; first < rows;) {
        const int repeated = qMin(first, report.getNbHeaderRows());
        const int fitting = report.getNbRowDrawableOnHeight(height, first) - repeated;
        const int last = first + qMax(1, fitting);
        pages.append(TXTable::copyPartOfTable(report, first, last));
        first = last;
    }
    return pages;
}

} // namespace

/// Random tables, held against the rules in their plainest form.
class TestTXTableAgainstModel : public TestBase
{
    Q_OBJECT

private slots:
    void tablesAreAsTheRulesSay();
    void measuresAreAsTheRulesSay();
    void piecesAreAsTheRulesSay();
    void pagesLoseAndDoubleNoRow();
};

void TestTXTableAgainstModel::tablesAreAsTheRulesSay()
{
    for (int seed = 0; seed < kTables; ++seed) {
        RandomInput random{quint32(seed)};
        Pair pair(random.number(0, 5));
        for (int changes = random.number(0, 60); changes > 0; --changes) {
            change(pair, random);
        }
        QCOMPARE(describe(pair.table.getTableCellList()), PlainTable::described(pair.plain.rows));
    }
}

void TestTXTableAgainstModel::measuresAreAsTheRulesSay()
{
    for (int seed = 0; seed < kTables; ++seed) {
        RandomInput random{quint32(seed)};
        Pair pair(random.number(0, 5));
        for (int changes = random.number(0, 60); changes > 0; --changes) {
            change(pair, random);
        }
        QVERIFY(pair.table.tableHeight() == pair.plain.height());
        QVERIFY(pair.table.tableWidth() == pair.plain.width());
        for (int column = 0; column < pair.plain.nbColumns; ++column) {
            QVERIFY(pair.table.columnWidthAtIndex(column)
                    == pair.plain.columnWidths[size_t(column)]);
        }
        for (int question = 0; question < 20; ++question) {
            const auto height = float(random.number(-10, 900) * 0.5);
            const int first = random.number(-3, int(pair.plain.rows.size()) + 2);
            QCOMPARE(pair.table.getNbRowDrawableOnHeight(height, first),
                     pair.plain.rowsOnHeight(height, first));
        }
    }
}

void TestTXTableAgainstModel::piecesAreAsTheRulesSay()
{
    for (int seed = 0; seed < kTables; ++seed) {
        RandomInput random{quint32(seed)};
        Pair pair(random.number(0, 5));
        for (int changes = random.number(0, 60); changes > 0; --changes) {
            change(pair, random);
        }
        const int first = random.number(0, int(pair.plain.rows.size()) + 2);
        const int last = first + random.number(0, 12);

        TXTable part = TXTable::copyPartOfTable(pair.table, first, last);

        QCOMPARE(describe(part.getTableCellList()),
                 PlainTable::described(pair.plain.part(first, last)));
        QCOMPARE(part.tableWidth(), pair.table.tableWidth());
    }
}

void TestTXTableAgainstModel::pagesLoseAndDoubleNoRow()
{
    for (int seed = 0; seed < kTables; ++seed) {
        RandomInput random{quint32(seed)};
        const TXTable report = randomReport(random);
        const Rows rows = report.getTableCellList();
        const auto height = float(random.number(1, 300));
        Rows found;

        const QList<TXTable> pages = pagesOf(report, height);

        for (qsizetype page = 0; page < pages.size(); ++page) {
            Rows onPage = pages.at(page).getTableCellList();
            if (page > 0) {
                QCOMPARE(describe(Rows{onPage.takeFirst()}), describe(Rows{rows.first()}));
            }
            QVERIFY(!onPage.isEmpty());
            // More rows than one stand on a page only where they fit.
            QVERIFY(onPage.size() == 1 || pages.at(page).tableHeight() < height);
            found.append(onPage);
        }
        QCOMPARE(describe(found), describe(rows));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXTableAgainstModel>(argc, argv);
}

#include "tst_TXTableAgainstModel.moc"
