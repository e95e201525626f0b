#include "ClosedPort.h"
#include "DatabaseConnectOptions.h"
#include "DatabasePlace.h"
#include "LocalMariaDbServer.h"
#include "MeasurementMaker.h"
#include "MeasurementModel.h"
#include "MeasurementStatements.h"
#include "SilentServer.h"
#include "TestBase.h"

#include "TXDataCrypt.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QLocale>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

using Ending = MeasurementMaker::Ending;

namespace {

constexpr int kPatienceMilliseconds = 30000;

QVariant answer(const QSqlDatabase &database, const QString &statement)
{
    QSqlQuery query(statement, database);
    return query.next() ? query.value(0) : QVariant();
}

} // namespace

/// The table of measurements in both kinds of database, and the model that shows it.
class TestMeasurementMaker : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { folder.reset(); }

private slots:
    void tableHasItsRowsInBothDatabases_data();
    void tableHasItsRowsInBothDatabases();
    void differenceIsThatOfTheColours();
    void nextRunReplacesTheTable();
    void cancelledRunLeavesNoTable();
    void failureIsToldInWords();
    void failureLeavesNoPartOfATable();
    void cancelledWhileConnectingIsCancelled();
    void makerMayGoDuringARun();
    void serverIsEnteredByTheSettings();
    void connectingEndsAsItDoesInAConnectionTest_data();
    void connectingEndsAsItDoesInAConnectionTest();
    void modelShowsRowsAsPeopleReadThem();
    void removalTakesTheRowsFromTheDatabase();
    void refusedRemovalTakesNone();
    void refusedCommitTakesNone();
    void removalWithoutAConnectionIsRefusedInWords();
    void otherColumnsAreNotSorted();
    void filterIsMadeOfANumber();

private:
    [[nodiscard]] DatabasePlace place() const
    {
        return DatabasePlace::inFile(folder->filePath(QStringLiteral("table.sqlite")));
    }
    void make(MeasurementMaker &maker, const DatabasePlace &where, int batches)
    {
        QSignalSpy finished(&maker, SIGNAL(finished()));
        maker.start(where, batches);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, kPatienceMilliseconds);
        QVERIFY(!maker.isRunning());
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestMeasurementMaker::tableHasItsRowsInBothDatabases_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("MariaDB") << true;
}

void TestMeasurementMaker::tableHasItsRowsInBothDatabases()
{
    QFETCH(bool, isOnServer);
    LocalMariaDbServer server;
    DatabasePlace where = place();
    if (isOnServer) {
        QVERIFY2(server.start(), qPrintable(server.error()));
        where = {"QMYSQL", "measurements", "127.0.0.1", server.port(), "mia", "s3cret", {}};
    }
    MeasurementMaker maker;
    QSignalSpy progressed(&maker, SIGNAL(progressed(int)));

    make(maker, where, 3);

    QVERIFY2(maker.ending() == Ending::Made, qPrintable(maker.error()));
    QVERIFY(maker.milliseconds() > 0);
    // One for each batch and one for the index.
    QCOMPARE(progressed.count(), 4);
    QVERIFY(progressed.at(2).first().toInt() < 100);
    QCOMPARE(progressed.last().first().toInt(), 100);
    const DatabaseConnection connection(where);
    QSqlDatabase database = connection.database();
    QVERIFY(database.open());
    const QString table = measurementTable();
    QCOMPARE(answer(database, "SELECT COUNT(*) FROM " + table).toInt(), 3 * kMeasurementBatchRows);
    QCOMPARE(answer(database, "SELECT MAX(id) FROM " + table).toInt(),
             3 * kMeasurementBatchRows - 1);
    QCOMPARE(answer(database, "SELECT COUNT(DISTINCT patch) FROM " + table).toInt(), 24);
    QCOMPARE(answer(database, "SELECT patch FROM " + table + " WHERE id = 24").toString(),
             "Dark skin");
}

void TestMeasurementMaker::differenceIsThatOfTheColours()
{
    MeasurementMaker maker;
    make(maker, place(), 2);
    const DatabaseConnection connection(place());
    QSqlDatabase database = connection.database();
    QVERIFY(database.open());

    QSqlQuery query("SELECT lightness - 37.54, a - 14.37, b - 14.92, delta_e FROM "
                        + measurementTable() + " WHERE patch = 'Dark skin'",
                    database);

    int rows = 0;
    for (; query.next(); ++rows) {
        const double l = query.value(0).toDouble();
        const double a = query.value(1).toDouble();
        const double b = query.value(2).toDouble();
        const double difference = std::sqrt(l * l + a * a + b * b);
        QVERIFY(std::abs(difference - query.value(3).toDouble()) < 0.02);
    }
    QVERIFY(rows > 800);
}

void TestMeasurementMaker::nextRunReplacesTheTable()
{
    MeasurementMaker maker;
    make(maker, place(), 2);
    make(maker, place(), 1);

    QVERIFY(maker.ending() == Ending::Made);
    const DatabaseConnection connection(place());
    QSqlDatabase database = connection.database();
    QVERIFY(database.open());
    QCOMPARE(answer(database, "SELECT COUNT(*) FROM " + measurementTable()).toInt(),
             kMeasurementBatchRows);
}

void TestMeasurementMaker::cancelledRunLeavesNoTable()
{
    MeasurementMaker maker;
    QSignalSpy progressed(&maker, SIGNAL(progressed(int)));
    QSignalSpy finished(&maker, SIGNAL(finished()));
    maker.start(place(), 1000);
    QVERIFY(progressed.wait(kPatienceMilliseconds));

    maker.cancel();

    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, kPatienceMilliseconds);
    QVERIFY(maker.ending() == Ending::Cancelled);
    const DatabaseConnection connection(place());
    QSqlDatabase database = connection.database();
    QVERIFY(database.open());
    QVERIFY(database.tables().isEmpty());
}

void TestMeasurementMaker::failureIsToldInWords()
{
    MeasurementMaker maker;

    make(maker, DatabasePlace::inFile(folder->filePath("none/table.sqlite")), 1);

    QVERIFY(maker.ending() == Ending::Failed);
    QVERIFY(!maker.error().isEmpty());
}

void TestMeasurementMaker::failureLeavesNoPartOfATable()
{
    {
        const DatabaseConnection connection(place());
        QVERIFY(connection.database().open());
        QSqlQuery query(connection.database());
        QVERIFY(query.exec("CREATE TABLE other (id INTEGER)"));
        // The name that the index is to have.
        QVERIFY(query.exec("CREATE INDEX txgallery_delta_e ON other (id)"));
    }
    MeasurementMaker maker;

    make(maker, place(), 1);

    QVERIFY(maker.ending() == Ending::Failed);
    QVERIFY2(maker.error().contains("already exists"), qPrintable(maker.error()));
    const DatabaseConnection connection(place());
    QSqlDatabase database = connection.database();
    QVERIFY(database.open());
    QCOMPARE(database.tables(), QStringList("other"));
}

void TestMeasurementMaker::cancelledWhileConnectingIsCancelled()
{
    const SilentServer silent;
    MeasurementMaker maker;
    QSignalSpy finished(&maker, SIGNAL(finished()));
    maker.start({"QMYSQL", "measurements", "127.0.0.1", silent.port(), "mia", "s3cret",
                 "MYSQL_OPT_CONNECT_TIMEOUT=1"},
                1);

    QVERIFY(!maker.isCancelling());
    maker.cancel();
    QVERIFY(maker.isCancelling());

    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, kPatienceMilliseconds);
    QVERIFY(maker.ending() == Ending::Cancelled);
    QCOMPARE(maker.error(), QString());
    QVERIFY(!maker.isCancelling());
}

void TestMeasurementMaker::makerMayGoDuringARun()
{
    const QStringList before = QSqlDatabase::connectionNames();
    auto maker = std::make_unique<MeasurementMaker>();
    QSignalSpy progressed(maker.get(), SIGNAL(progressed(int)));
    maker->start(place(), 1000);
    QVERIFY(progressed.wait(kPatienceMilliseconds));

    maker.reset();

    QCOMPARE(QSqlDatabase::connectionNames(), before);
}

void TestMeasurementMaker::serverIsEnteredByTheSettings()
{
    const QByteArray cipher = TXDataCrypt::encrypt("s3cret", nullptr);
    const QHash<QString, QVariant> parameters = {
        {"Host", "127.0.0.1"},
        {"Port", closedPort()},
        {"User", "mia"},
        {"Password", QString::fromLatin1(cipher)},
        {"Options", "MYSQL_OPT_CONNECT_TIMEOUT=2"},
    };

    const DatabasePlace where = DatabasePlace::onServer(
        {{"Driver", "QMYSQL"}, {"Connection", "measurements"}, {"Parameters", parameters}});

    QCOMPARE(where.password, "s3cret");
    QCOMPARE(where.port, int(closedPort()));
    QCOMPARE(where.options, "MYSQL_OPT_CONNECT_TIMEOUT=2;MYSQL_OPT_RECONNECT=1");
    MeasurementMaker maker;
    make(maker, where, 1);
    QVERIFY(maker.ending() == Ending::Failed);
    QVERIFY(!maker.error().isEmpty());
    QVERIFY(!maker.error().contains("s3cret"));
}

void TestMeasurementMaker::connectingEndsAsItDoesInAConnectionTest_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("none") << "";
    QTest::newRow("another") << "CLIENT_COMPRESS";
    QTest::newRow("two seconds") << "MYSQL_OPT_CONNECT_TIMEOUT=2";
    QTest::newRow("no limit") << "MYSQL_OPT_CONNECT_TIMEOUT=0";
    QTest::newRow("no limit in the end")
        << "MYSQL_OPT_CONNECT_TIMEOUT=2;MYSQL_OPT_CONNECT_TIMEOUT=0";
    QTest::newRow("a limit in the end")
        << "MYSQL_OPT_CONNECT_TIMEOUT=0; MYSQL_OPT_CONNECT_TIMEOUT = 2";
    QTest::newRow("below zero") << "MYSQL_OPT_CONNECT_TIMEOUT=-1";
    QTest::newRow("no number") << "MYSQL_OPT_CONNECT_TIMEOUT=soon";
    QTest::newRow("no value") << "MYSQL_OPT_CONNECT_TIMEOUT";
    QTest::newRow("other case") << "mysql_opt_connect_timeout=2";
}

void TestMeasurementMaker::connectingEndsAsItDoesInAConnectionTest()
{
    QFETCH(QString, options);

    const QHash<QString, QVariant> parameters = {{"Options", options}};
    const DatabasePlace where =
        DatabasePlace::onServer({{"Driver", "QMYSQL"}, {"Parameters", parameters}});

    QCOMPARE(where.options, DatabaseConnectOptions::forTest("QMYSQL", options));
}

void TestMeasurementMaker::modelShowsRowsAsPeopleReadThem()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    MeasurementModel model(connection.database());
    const QAbstractItemModelTester tester(&model);
    QSignalSpy selected(&model, SIGNAL(selected(bool, QString, qint64)));
    model.limit = 100;
    model.offset = 1200;

    QVERIFY(model.select());

    QCOMPARE(model.rowCount(), 100);
    QCOMPARE(model.index(0, 0).data().toString(), "1,200");
    QCOMPARE(model.index(0, 1).data().toString(), "Dark skin");
    QVERIFY(model.index(0, 1).data(Qt::DecorationRole).value<QColor>().isValid());
    QVERIFY(!model.index(0, 2).data(Qt::DecorationRole).isValid());
    const QLocale before;
    // 1200 half minutes after six o'clock.
    const QDateTime date(QDate(2025, 1, 1), QTime(16, 0), Qt::UTC);
    QCOMPARE(model.index(0, 6).data().toString(),
             QLocale().toString(date.date(), QLocale::ShortFormat) + " 16:00:00");
    QVERIFY(model.index(1, 6).data().toString().contains(":00:30"));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QString inEnglish = model.index(1, 6).data().toString();
    QLocale::setDefault(QLocale(QLocale::German));
    const QString inGerman = model.index(1, 6).data().toString();
    QLocale::setDefault(before);
    QCOMPARE(inEnglish, "1/1/25 4:00:30 PM");
    QCOMPARE(inGerman, "01.01.25 16:00:30");
    QCOMPARE(model.headerData(5, Qt::Horizontal).toString(), "\u0394E");
    QVERIFY(!(model.flags(model.index(0, 0)) & Qt::ItemIsEditable));
    QCOMPARE(selected.count(), 1);
    QVERIFY(selected.first().at(0).toBool());
    QVERIFY(selected.first().at(1).toString().endsWith("LIMIT 100 OFFSET 1200"));
}

void TestMeasurementMaker::removalTakesTheRowsFromTheDatabase()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    MeasurementModel model(connection.database());
    const QAbstractItemModelTester tester(&model);
    model.limit = 100;
    QVERIFY(model.select());

    QVERIFY(model.removePageRows({0, 2, 99}));

    QCOMPARE(model.rowCount(), 100);
    QCOMPARE(model.index(0, 0).data().toString(), "1");
    QCOMPARE(model.index(1, 0).data().toString(), "3");
    QCOMPARE(answer(connection.database(), "SELECT COUNT(*) FROM " + measurementTable()).toInt(),
             kMeasurementBatchRows - 3);
}

void TestMeasurementMaker::refusedRemovalTakesNone()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    QSqlQuery(connection.database())
        .exec("CREATE TRIGGER keep BEFORE DELETE ON " + measurementTable()
              + " WHEN OLD.id = 1 BEGIN SELECT RAISE(ABORT, 'this one stays'); END");
    MeasurementModel model(connection.database());
    model.limit = 100;
    QVERIFY(model.select());

    QVERIFY(!model.removePageRows({0, 1}));

    QVERIFY2(model.lastError().text().contains("this one stays"),
             qPrintable(model.lastError().text()));
    QVERIFY(!model.isDirty());
    QCOMPARE(answer(connection.database(), "SELECT COUNT(*) FROM " + measurementTable()).toInt(),
             kMeasurementBatchRows);
}

void TestMeasurementMaker::refusedCommitTakesNone()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    QSqlQuery query(connection.database());
    QVERIFY(query.exec("PRAGMA foreign_keys = ON"));
    QVERIFY(query.exec("CREATE TABLE notes (id INTEGER REFERENCES " + measurementTable()
                       + " (id) DEFERRABLE INITIALLY DEFERRED)"));
    QVERIFY(query.exec("INSERT INTO notes VALUES (1)"));
    MeasurementModel model(connection.database());
    model.limit = 100;
    QVERIFY(model.select());

    QVERIFY(!model.removePageRows({0, 1}));

    QVERIFY2(model.lastError().text().contains("FOREIGN KEY"),
             qPrintable(model.lastError().text()));
    QCOMPARE(model.index(0, 0).data().toString(), "0");
    QCOMPARE(answer(connection.database(), "SELECT COUNT(*) FROM " + measurementTable()).toInt(),
             kMeasurementBatchRows);
}

void TestMeasurementMaker::removalWithoutAConnectionIsRefusedInWords()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    MeasurementModel model(connection.database());
    model.limit = 100;
    QVERIFY(model.select());
    connection.database().close();

    QVERIFY(!model.removePageRows({0}));

    QVERIFY(!model.lastError().text().trimmed().isEmpty());
}

void TestMeasurementMaker::otherColumnsAreNotSorted()
{
    MeasurementMaker maker;
    make(maker, place(), 1);
    const DatabaseConnection connection(place());
    QVERIFY(connection.database().open());
    MeasurementModel model(connection.database());
    model.limit = 100;
    QVERIFY(model.select());
    QSignalSpy selected(&model, SIGNAL(selected(bool, QString, qint64)));

    model.sort(int(MeasurementColumn::Lightness), Qt::DescendingOrder);
    QCOMPARE(selected.count(), 0);

    model.sort(int(MeasurementColumn::Number), Qt::DescendingOrder);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(model.index(0, 0).data().toString(), "9,999");
}

void TestMeasurementMaker::filterIsMadeOfANumber()
{
    QCOMPARE(measurementFilter(0), QString());
    QCOMPARE(measurementFilter(-1), QString());
    QCOMPARE(measurementFilter(3.5), "delta_e > 3.5000");
}

int main(int argc, char **argv)
{
    return runTest<TestMeasurementMaker>(argc, argv);
}

#include "tst_MeasurementMaker.moc"
