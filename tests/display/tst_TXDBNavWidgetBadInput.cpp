#include "NavigatorHelpers.h"
#include "TXDBNavWidget.h"

#include <QHeaderView>
#include <QSqlDriver>
#include <QTableView>

#include <limits>

using PagedTable::Model;
using PagedTable::Navigator;

// A count that fails reads as an empty table, and loses nothing.
class TestTXDBNavWidgetBadInput : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void failedCountIsOnePage_data();
    void failedCountIsOnePage();
    void countRunsOneStatement();
    void semicolonInALiteralIsCounted_data();
    void semicolonInALiteralIsCounted();
    void commentInTheFilterIsCounted_data();
    void commentInTheFilterIsCounted();
    void tableNameStandsInTheCountAsItIs_data();
    void tableNameStandsInTheCountAsItIs();
    void droppedTableIsOnePage_data();
    void droppedTableIsOnePage();
    void closedConnectionIsOnePage();
    void stoppedServerIsOnePage();
    void modelWithoutAConnectionIsOnePage();
    void insertedRowGivesWayWhenItsPageIsGone();
    void largestOffsetIsOnTheLastPage();
    void hostWhoSelectsInReplyIsHeard();
    void hostWhoDropsTheModelInReplyIsHeard();
};

void TestTXDBNavWidgetBadInput::failedCountIsOnePage_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<QString>("filter");
    const QStringList filters = {QStringLiteral("no such column = 1"),
                                 QStringLiteral("nowhere = 1"),
                                 QStringLiteral("name = 'open"),
                                 QStringLiteral("name = \"open"),
                                 QStringLiteral("id = 1)"),
                                 QStringLiteral("1 = 1; DELETE FROM samples"),
                                 QStringLiteral("1 = 1; DROP TABLE samples; --"),
                                 QStringLiteral("1 = 1;; DELETE FROM samples"),
                                 QStringLiteral("'\\\\'; DELETE FROM samples; -- '"),
                                 QStringLiteral("; DELETE FROM samples"),
                                 QStringLiteral("; -- DELETE FROM samples\nDELETE FROM samples"),
                                 QStringLiteral("id = ?"),
                                 QStringLiteral("1 = 1 UNION SELECT id, name FROM samples"),
                                 QStringLiteral("1 = 0 UNION SELECT name FROM nowhere")};
    for (const QString &filter : filters) {
        QTest::addRow("SQLite, %s", qPrintable(filter.simplified())) << false << filter;
        QTest::addRow("MariaDB, %s", qPrintable(filter.simplified())) << true << filter;
    }
}

void TestTXDBNavWidgetBadInput::failedCountIsOnePage()
{
    QFETCH(QString, filter);
    const auto connection = connect(10);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    QCOMPARE(navigator.text(), QStringLiteral("3/4"));

    model.setFilter(filter);

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QVERIFY(model.lastError().isValid());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(connection->count(), 10);

    model.setFilter(QString());
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    QVERIFY(navigator.select());
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));
}

// The model is not asked here: it selects only after a select(). On the server, whose driver would
// run both; that of SQLite refuses by itself.
void TestTXDBNavWidgetBadInput::countRunsOneStatement()
{
    const auto connection = connect(10, true);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);

    model.setFilter(QStringLiteral("1 = 1; DELETE FROM samples"));

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(connection->count(), 10);
}

void TestTXDBNavWidgetBadInput::semicolonInALiteralIsCounted_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetBadInput::semicolonInALiteralIsCounted()
{
    const auto connection = connect(10);
    connection->run(QStringLiteral("UPDATE samples SET name = 'a; :x ? it''s' WHERE id > 3"));
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);

    model.setFilter(QStringLiteral("name = 'a; :x ? it''s'"));

    QCOMPARE(navigator.text(), QStringLiteral("1/3"));
}

void TestTXDBNavWidgetBadInput::commentInTheFilterIsCounted_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetBadInput::commentInTheFilterIsCounted()
{
    const auto connection = connect(10);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);

    model.setFilter(QStringLiteral("id /* why? ; */ > 4 -- the last ones; :all"));

    QCOMPARE(navigator.text(), QStringLiteral("1/2"));
    QVERIFY2(navigator.select(), qPrintable(model.lastError().text()));
    QCOMPARE(model.ids(), QList<int>({5, 6, 7}));
}

void TestTXDBNavWidgetBadInput::tableNameStandsInTheCountAsItIs_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetBadInput::tableNameStandsInTheCountAsItIs()
{
    const auto connection = connect(10);
    const QString name = QStringLiteral("light; samples");
    const QString quoted =
        connection->database().driver()->escapeIdentifier(name, QSqlDriver::TableName);
    connection->run(QStringLiteral("CREATE TABLE %1 AS SELECT * FROM samples").arg(quoted));
    TXSqlTableModel model(nullptr, connection->database());
    model.limit = 3;
    Navigator navigator;

    model.setTable(name);
    navigator.setModel(&model);
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QVERIFY(navigator.select());
    QCOMPARE(model.rowCount(), 3);

    model.setTable(quoted);
    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    QVERIFY2(navigator.select(), qPrintable(model.lastError().text()));
    QCOMPARE(model.rowCount(), 3);

    connection->run(QStringLiteral("DROP TABLE ") + quoted);
}

void TestTXDBNavWidgetBadInput::droppedTableIsOnePage_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidgetBadInput::droppedTableIsOnePage()
{
    const auto connection = connect(10);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(4);
    connection->run(QStringLiteral("DROP TABLE samples"));

    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(navigator.told(), QList<bool>({true, false}));
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.lastError().isValid());
}

void TestTXDBNavWidgetBadInput::closedConnectionIsOnePage()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    connection->database().close();

    // The count warns of nothing.
    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(navigator.told(), QList<bool>({true, false}));
}

void TestTXDBNavWidgetBadInput::stoppedServerIsOnePage()
{
    LocalMariaDbServer brief;
    QVERIFY2(brief.start(), qPrintable(brief.error()));
    const PagedTable::Connection connection(&brief);
    connection.fill(10);
    Model model(connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    brief.stop();

    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QVERIFY(!navigator.select());
    QVERIFY(model.lastError().isValid());
}

void TestTXDBNavWidgetBadInput::modelWithoutAConnectionIsOnePage()
{
    TXSqlTableModel model;
    model.limit = 3;
    model.setTable(QStringLiteral("samples"));
    Navigator navigator;

    navigator.setModel(&model);
    navigator.spinBox()->setValue(2);
    model.setFilter(QStringLiteral("id = 1; DELETE FROM samples"));

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QVERIFY(!navigator.select());
}

// The refresh that the row brings about selects the last page, within the signal of the insertion.
void TestTXDBNavWidgetBadInput::insertedRowGivesWayWhenItsPageIsGone()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    Navigator navigator;
    navigator.setModel(&model);
    QTableView view;
    view.setModel(&model);
    view.show();
    navigator.spinBox()->setValue(4);
    connection->run(QStringLiteral("DELETE FROM samples WHERE id > 5"));

    QVERIFY(model.insertRow(1));
    view.grab();

    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(model.ids(), QList<int>({4, 5}));
    QVERIFY(!model.isDirty());
    QCOMPARE(view.verticalHeader()->count(), 2);
}

void TestTXDBNavWidgetBadInput::largestOffsetIsOnTheLastPage()
{
    const auto connection = connect(10, false);
    Model model(*connection, 1, std::numeric_limits<qulonglong>::max());
    Navigator navigator;

    navigator.setModel(&model);

    QCOMPARE(navigator.text(), QStringLiteral("10/10"));
    QCOMPARE(model.ids(), QList<int>{10});
}

void TestTXDBNavWidgetBadInput::hostWhoSelectsInReplyIsHeard()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    QObject::connect(&navigator, &TXDBNavWidget::severalPages, &model, [&] { model.select(); });

    navigator.setModel(&model);
    navigator.spinBox()->setValue(4);
    connection->run(QStringLiteral("DELETE FROM samples WHERE id > 3"));
    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));
}

// The page that a refresh sets is selected within it; whoever follows may take the model away.
void TestTXDBNavWidgetBadInput::hostWhoDropsTheModelInReplyIsHeard()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(4);
    QObject::connect(&model, &TXSqlTableModel::modelReset, &navigator,
                     [&] { navigator.setModel(nullptr); });
    connection->run(QStringLiteral("DELETE FROM samples WHERE id > 3"));

    navigator.refresh();

    QCOMPARE(navigator.model(), nullptr);
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXDBNavWidgetBadInput>(argc, argv);
}

#include "tst_TXDBNavWidgetBadInput.moc"
