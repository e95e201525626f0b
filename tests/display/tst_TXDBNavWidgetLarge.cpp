#include "NavigatorHelpers.h"
#include "TXDBNavWidget.h"

using PagedTable::Model;
using PagedTable::Navigator;

namespace {

constexpr int kRows = 1000000;

} // namespace

// A table of a million rows, made once for each database.
class TestTXDBNavWidgetLarge : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void pagesAreTheirRows_data();
    void pagesAreTheirRows();
    void filteredAndSortedPages_data();
    void filteredAndSortedPages();
    void pagesOfOneRow_data();
    void pagesOfOneRow();
    void pageAboveTheFormsMaximumWaitsForIt_data();
    void pageAboveTheFormsMaximumWaitsForIt();
    void rowsRemovedWhileTheLastPageShows_data();
    void rowsRemovedWhileTheLastPageShows();
    void cleanupTestCase();

private:
    /// The connection of the data row, with all rows in the table.
    [[nodiscard]] const PagedTable::Connection &filled(bool isOnServer)
    {
        auto &connection = isOnServer ? onServer : inMemory;
        if (!connection) {
            connection = connect(kRows, isOnServer);
        }
        return *connection;
    }

    std::unique_ptr<PagedTable::Connection> inMemory;
    std::unique_ptr<PagedTable::Connection> onServer;
};

void TestTXDBNavWidgetLarge::pagesAreTheirRows_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<int>("page");
    const std::initializer_list<int> pages = {1, 2, 5000, 9999, 10000};
    for (const int page : pages) {
        QTest::addRow("SQLite, page %d", page) << false << page;
        QTest::addRow("MariaDB, page %d", page) << true << page;
    }
}

void TestTXDBNavWidgetLarge::pagesAreTheirRows()
{
    QFETCH(bool, isOnServer);
    QFETCH(int, page);
    Model model(filled(isOnServer), 100);
    Navigator navigator;
    navigator.setModel(&model);
    QCOMPARE(navigator.text(), QStringLiteral("1/10000"));
    QVERIFY(navigator.select());

    navigator.spinBox()->setValue(page);

    QCOMPARE(model.rowCount(), 100);
    QCOMPARE(model.ids().first(), (page - 1) * 100 + 1);
    QCOMPARE(model.ids().last(), page * 100);
    QCOMPARE(model.offset, qulonglong(page - 1) * 100);
}

void TestTXDBNavWidgetLarge::filteredAndSortedPages_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetLarge::filteredAndSortedPages()
{
    QFETCH(bool, isOnServer);
    Model model(filled(isOnServer), 100);
    Navigator navigator;
    navigator.setModel(&model);

    model.setFilter(QStringLiteral("lightness < 10"));
    model.setSort(PagedTable::Id, Qt::DescendingOrder);
    QVERIFY(navigator.select());
    QCOMPARE(navigator.text(), QStringLiteral("1/1000"));
    QCOMPARE(model.ids().first(), 1000000);

    navigator.spinBox()->setValue(1000);
    QCOMPARE(model.rowCount(), 100);
    QCOMPARE(model.ids().last(), 1);
}

void TestTXDBNavWidgetLarge::pagesOfOneRow_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetLarge::pagesOfOneRow()
{
    QFETCH(bool, isOnServer);
    Model model(filled(isOnServer), 1);
    Navigator navigator;

    navigator.setModel(&model);
    QCOMPARE(navigator.text(), QStringLiteral("1/1000000"));
    QCOMPARE(navigator.spinBox()->maximum(), kRows);

    navigator.spinBox()->setValue(kRows);
    QCOMPARE(model.ids(), QList<int>{kRows});
    QCOMPARE(model.offset, qulonglong(kRows - 1));
}

void TestTXDBNavWidgetLarge::pageAboveTheFormsMaximumWaitsForIt_data()
{
    PagedTable::addDatabases();
}

// The form's own maximum is there before the first refresh.
void TestTXDBNavWidgetLarge::pageAboveTheFormsMaximumWaitsForIt()
{
    QFETCH(bool, isOnServer);
    Model model(filled(isOnServer), 1, 500000);
    Navigator navigator;

    navigator.setModel(&model);
    QCOMPARE(navigator.text(), QStringLiteral("99999/1000000"));
    QCOMPARE(model.ids(), QList<int>{99999});

    navigator.setOffset(500000);
    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("500001/1000000"));
    QCOMPARE(model.ids(), QList<int>{500001});
}

void TestTXDBNavWidgetLarge::rowsRemovedWhileTheLastPageShows_data()
{
    PagedTable::addDatabases();
}

// Puts no row back: the last function that reads the tables.
void TestTXDBNavWidgetLarge::rowsRemovedWhileTheLastPageShows()
{
    QFETCH(bool, isOnServer);
    const PagedTable::Connection &connection = filled(isOnServer);
    Model model(connection, 100);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(10000);
    connection.run(QStringLiteral("DELETE FROM samples WHERE id > 500050"));

    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("5001/5001"));
    QCOMPARE(model.rowCount(), 50);
    QCOMPARE(model.ids().last(), 500050);
}

void TestTXDBNavWidgetLarge::cleanupTestCase()
{
    inMemory.reset();
    onServer.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestTXDBNavWidgetLarge>(argc, argv);
}

#include "tst_TXDBNavWidgetLarge.moc"
