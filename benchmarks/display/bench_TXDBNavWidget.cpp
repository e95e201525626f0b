#include "RatioReporter.h"
#include "TXDBNavWidget.h"
#include "TXSqlTableModel.h"

#include <QSpinBox>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTableView>

// A page of a table of a million rows beside the whole of it in Qt's own model.

namespace {

constexpr int kRows = 1000000;
constexpr qulonglong kPageRows = 100;
constexpr int kPages = kRows / kPageRows;

/// The table, made by the first benchmark that asks for it.
QSqlDatabase measurements()
{
    static const QSqlDatabase database = [] {
        QSqlDatabase added = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        added.setDatabaseName(QStringLiteral(":memory:"));
        added.open();
        QSqlQuery query(added);
        query.exec(QStringLiteral("CREATE TABLE measurements (id INTEGER PRIMARY KEY, name TEXT, "
                                  "lightness REAL)"));
        query.exec(QStringLiteral("INSERT INTO measurements WITH RECURSIVE numbers(n) AS (SELECT 1 "
                                  "UNION ALL SELECT n + 1 FROM numbers WHERE n < %1) "
                                  "SELECT n, 'sample ' || n, n % 1000 / 10.0 FROM numbers")
                       .arg(kRows));
        return added;
    }();
    return database;
}

void failUnless(bool isWell, benchmark::State &state)
{
    if (!isWell) {
        state.SkipWithError("other rows than those of the page");
    }
}

bool showsPage(const QSqlTableModel &model, int page)
{
    return model.rowCount() == int(kPageRows)
        && model.index(0, 0).data().toInt() == (page - 1) * int(kPageRows) + 1;
}

/// From the page's number to its rows in the model.
void selectPage(benchmark::State &state)
{
    const auto page = static_cast<int>(state.range(0));
    TXSqlTableModel model(nullptr, measurements());
    model.setTable(QStringLiteral("measurements"));
    model.limit = kPageRows;
    model.offset = static_cast<qulonglong>(page - 1) * kPageRows;
    for (auto step : state) {
        model.select();
    }
    failUnless(showsPage(model, page), state);
}

/// From nothing to the picture of a table that shows the page.
void openAtPage(benchmark::State &state)
{
    const auto page = static_cast<int>(state.range(0));
    for (auto step : state) {
        TXSqlTableModel model(nullptr, measurements());
        model.setTable(QStringLiteral("measurements"));
        model.limit = kPageRows;
        model.offset = static_cast<qulonglong>(page - 1) * kPageRows;
        TXDBNavWidget navigator;
        navigator.setModel(&model);
        navigator.select();
        QTableView view;
        view.setModel(&model);
        view.show();
        view.grab();
        failUnless(showsPage(model, page), state);
    }
}

/// What a host calls when the table may have changed: the count, and the page anew.
void refreshAndSelect(benchmark::State &state)
{
    const auto page = static_cast<int>(state.range(0));
    TXSqlTableModel model(nullptr, measurements());
    model.setTable(QStringLiteral("measurements"));
    model.limit = kPageRows;
    TXDBNavWidget navigator;
    navigator.setModel(&model);
    navigator.findChild<QSpinBox *>()->setValue(page);
    for (auto step : state) {
        navigator.refresh();
        navigator.select();
    }
    failUnless(showsPage(model, page), state);
}

void fetch(QSqlTableModel &model, int rows)
{
    model.select();
    while (model.rowCount() < rows && model.canFetchMore()) {
        model.fetchMore();
    }
}

/// The whole table in the model.
void selectAll(benchmark::State &state)
{
    for (auto step : state) {
        QSqlTableModel model(nullptr, measurements());
        model.setTable(QStringLiteral("measurements"));
        fetch(model, kRows);
        failUnless(model.rowCount() == kRows, state);
    }
}

/// The table up to the last row of the page, the least that Qt's model can do.
void selectUpToPage(benchmark::State &state)
{
    const auto page = static_cast<int>(state.range(0));
    for (auto step : state) {
        QSqlTableModel model(nullptr, measurements());
        model.setTable(QStringLiteral("measurements"));
        fetch(model, page * int(kPageRows));
        failUnless(model.rowCount() >= page * int(kPageRows), state);
    }
}

/// From nothing to the picture of a table that shows the row of the page.
void openAll(benchmark::State &state)
{
    const auto page = static_cast<int>(state.range(0));
    for (auto step : state) {
        QSqlTableModel model(nullptr, measurements());
        model.setTable(QStringLiteral("measurements"));
        fetch(model, kRows);
        QTableView view;
        view.setModel(&model);
        view.show();
        view.scrollTo(model.index((page - 1) * int(kPageRows), 0), QTableView::PositionAtTop);
        view.grab();
    }
}

void addPages(benchmark::internal::Benchmark *family)
{
    family->Arg(1)->Arg(kPages / 2)->Arg(kPages)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(selectPage)->Name("ShowPage/ours")->Apply(addPages);
BENCHMARK(selectAll)->Name("ShowPage/QSqlTableModel")->Apply(addPages);
BENCHMARK(selectUpToPage)->Name("ShowPage/QSqlTableModel up to the page")->Apply(addPages);

BENCHMARK(refreshAndSelect)->Name("RefreshPage/ours")->Apply(addPages);
BENCHMARK(selectAll)->Name("RefreshPage/QSqlTableModel")->Apply(addPages);

BENCHMARK(openAtPage)->Name("OpenAtPage/ours")->Apply(addPages);
BENCHMARK(openAll)->Name("OpenAtPage/QSqlTableModel")->Apply(addPages);
