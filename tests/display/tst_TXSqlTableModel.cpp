#include "TXSqlTableModel.h"

#include "PagedTableHelpers.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>

#include <limits>
#include <numeric>

using PagedTable::Model;

namespace {

QList<int> range(int first, int last)
{
    QList<int> numbers(last - first + 1);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

} // namespace

class TestTXSqlTableModel : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void startsWithoutPaging();
    void pageIsTheRowsFromTheOffsetOn_data();
    void pageIsTheRowsFromTheOffsetOn();
    void filterAndSortingComeBeforeThePage_data();
    void filterAndSortingComeBeforeThePage();
    void numbersCountFromTheNextSelectOn();
    void selectIsOneResetHoweverItEnds_data();
    void selectIsOneResetHoweverItEnds();
    void viewShowsTheWholePage();
    void filterChangedTellsOtherFilters_data();
    void filterChangedTellsOtherFilters();
    void filterCountsWhenItIsTold_data();
    void filterCountsWhenItIsTold();
    void filterSelectsOnceAndOnlyBehindASelect();
    void withoutATableNothingIsSelected();
    void withoutAConnectionNothingIsSelected();
    void closedConnectionFails();
};

void TestTXSqlTableModel::startsWithoutPaging()
{
    const TXSqlTableModel model;

    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.limit, 0U);
    QVERIFY(model.tableName().isEmpty());
}

void TestTXSqlTableModel::pageIsTheRowsFromTheOffsetOn_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<qulonglong>("limit");
    QTest::addColumn<qulonglong>("offset");
    QTest::addColumn<QList<int>>("ids");
    constexpr qulonglong kMost = std::numeric_limits<qulonglong>::max();
    constexpr qulonglong kMostSigned = std::numeric_limits<qlonglong>::max();
    const std::initializer_list<const char *> names = {"SQLite", "MariaDB"};
    for (const char *name : names) {
        const auto row = [name](const char *what) -> QTestData & {
            return QTest::addRow("%s, %s", name, what) << (name[0] == 'M');
        };
        row("no paging") << 0ULL << 0ULL << range(1, 1000);
        row("no paging, offset") << 0ULL << 500ULL << range(1, 1000);
        row("first page") << 100ULL << 0ULL << range(1, 100);
        row("middle page") << 100ULL << 400ULL << range(401, 500);
        row("last page") << 100ULL << 900ULL << range(901, 1000);
        row("part of a page") << 300ULL << 900ULL << range(901, 1000);
        row("within a page") << 10ULL << 5ULL << range(6, 15);
        row("behind the rows") << 100ULL << 1000ULL << QList<int>();
        row("one row") << 1ULL << 999ULL << QList<int>{1000};
        row("255 rows") << 255ULL << 0ULL << range(1, 255);
        row("256 rows") << 256ULL << 0ULL << range(1, 256);
        row("more than two portions of Qt") << 600ULL << 100ULL << range(101, 700);
        row("as many as signed numbers have") << kMostSigned << 990ULL << range(991, 1000);
        row("as many as there are numbers") << kMost << 990ULL << range(991, 1000);
        row("offset of signed numbers") << 100ULL << kMostSigned << QList<int>();
        row("offset above signed numbers") << 100ULL << kMostSigned + 1 << QList<int>();
        row("all at their ends") << kMost << kMost << QList<int>();
    }
}

void TestTXSqlTableModel::pageIsTheRowsFromTheOffsetOn()
{
    QFETCH(qulonglong, limit);
    QFETCH(qulonglong, offset);
    QFETCH(QList<int>, ids);
    const auto connection = connect(1000);
    Model model(*connection, limit, offset);

    QVERIFY2(model.select(), qPrintable(model.lastError().text()));

    QCOMPARE(model.ids(), ids);
    QVERIFY(!model.canFetchMore(QModelIndex()));
    QCOMPARE(model.limit, limit);
    QCOMPARE(model.offset, offset);
}

void TestTXSqlTableModel::filterAndSortingComeBeforeThePage_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterAndSortingComeBeforeThePage()
{
    const auto connection = connect(1000);
    Model model(*connection, 3, 3);
    model.setFilter(QStringLiteral("lightness = 7 OR lightness = 8"));
    model.setSort(PagedTable::Id, Qt::DescendingOrder);

    QVERIFY(model.select());
    QCOMPARE(model.ids(), QList<int>({807, 708, 707}));

    model.sort(PagedTable::Id, Qt::AscendingOrder);
    QCOMPARE(model.ids(), QList<int>({108, 207, 208}));
}

void TestTXSqlTableModel::numbersCountFromTheNextSelectOn()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    QVERIFY(model.select());

    model.limit = 2;
    model.offset = 4;
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));

    QVERIFY(model.select());
    QCOMPARE(model.ids(), QList<int>({5, 6}));
}

void TestTXSqlTableModel::selectIsOneResetHoweverItEnds_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::selectIsOneResetHoweverItEnds()
{
    const auto connection = connect(2000);
    Model model(*connection, 1500);
    const QSignalSpy begun(&model, &TXSqlTableModel::modelAboutToBeReset);
    const QSignalSpy ended(&model, &TXSqlTableModel::modelReset);
    const QSignalSpy inserted(&model, &TXSqlTableModel::rowsInserted);
    const QSignalSpy removed(&model, &TXSqlTableModel::rowsRemoved);

    QVERIFY(model.select());
    QCOMPARE(begun.count(), 1);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(model.rowCount(), 1500);

    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(begun.count(), 2);
    QCOMPARE(ended.count(), 2);
    QCOMPARE(model.rowCount(), 0);

    model.setTable(QStringLiteral("there is none"));
    QVERIFY(!model.select());
    QCOMPARE(begun.count(), ended.count());
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(removed.count(), 0);
}

void TestTXSqlTableModel::viewShowsTheWholePage()
{
    const auto connection = connect(2000, false);
    Model model(*connection, 700);
    QTableView view;
    view.setModel(&model);
    view.show();

    QVERIFY(model.select());
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 699);

    model.offset = 1900;
    QVERIFY(model.select());
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 99);
    QCOMPARE(view.verticalHeader()->count(), 100);
}

void TestTXSqlTableModel::filterChangedTellsOtherFilters_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterChangedTellsOtherFilters()
{
    const auto connection = connect(10);
    Model model(*connection, 3);
    const QSignalSpy spy(&model, SIGNAL(filterChanged(QString)));

    model.setFilter(QString());
    QCOMPARE(spy.count(), 0);

    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).toString(), QStringLiteral("id > 5"));

    QVERIFY(model.select());
    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(spy.count(), 1);

    model.setFilter(QString());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.last().at(0).toString(), QString());
}

void TestTXSqlTableModel::filterCountsWhenItIsTold_data()
{
    PagedTable::addDatabases();
}

void TestTXSqlTableModel::filterCountsWhenItIsTold()
{
    const auto connection = connect(10);
    Model model(*connection, 3, 1);
    QVERIFY(model.select());
    QString seenFilter;
    QList<int> seenIds;
    QObject::connect(&model, &TXSqlTableModel::filterChanged, &model, [&] {
        seenFilter = model.filter();
        seenIds = model.ids();
    });

    model.setFilter(QStringLiteral("id > 5"));

    QCOMPARE(seenFilter, QStringLiteral("id > 5"));
    QCOMPARE(seenIds, QList<int>({7, 8, 9}));
    QCOMPARE(model.offset, 1U);
}

void TestTXSqlTableModel::filterSelectsOnceAndOnlyBehindASelect()
{
    const auto connection = connect(10, true);
    Model model(*connection, 3);
    forgetStatements();

    model.setFilter(QStringLiteral("id > 5"));
    QCOMPARE(statements("SELECT"), 0);
    QCOMPARE(model.rowCount(), 0);

    QVERIFY(model.select());
    QCOMPARE(statements("SELECT"), 1);
    model.setFilter(QStringLiteral("id > 6"));
    QCOMPARE(statements("SELECT"), 2);
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
}

void TestTXSqlTableModel::withoutATableNothingIsSelected()
{
    const auto connection = connect(10, false);
    TXSqlTableModel model(nullptr, connection->database());
    model.limit = 3;

    QVERIFY(!model.select());
    QVERIFY(model.lastError().isValid());
    QCOMPARE(model.rowCount(), 0);
}

void TestTXSqlTableModel::withoutAConnectionNothingIsSelected()
{
    TXSqlTableModel model;
    model.limit = 3;
    model.setTable(QStringLiteral("samples; DELETE FROM samples"));
    model.setFilter(QStringLiteral("1 = 1; DELETE FROM samples"));

    QVERIFY(!model.select());
    QCOMPARE(model.rowCount(), 0);
}

void TestTXSqlTableModel::closedConnectionFails()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    QVERIFY(model.select());
    connection->database().close();

    QTest::ignoreMessage(QtWarningMsg, "QSqlQuery::exec: database not open");
    QVERIFY(!model.select());
    QCOMPARE(model.rowCount(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSqlTableModel>(argc, argv);
}

#include "tst_TXSqlTableModel.moc"
