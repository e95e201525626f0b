#include "DatabasePage.h"
#include "DatabasePlace.h"
#include "DatabaseServerPanel.h"
#include "DialogDriver.h"
#include "LocalMariaDbServer.h"
#include "MeasurementMakingPanel.h"
#include "MeasurementStatements.h"
#include "PageChecks.h"
#include "TestBase.h"

#include "TXDataCrypt.h"
#include "TXDatabaseConfigurationWidget.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableView>
#include <QTreeWidget>

#include <memory>

using Trouble = DatabaseServerPanel::Trouble;

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kFewRows = 0;

} // namespace

/// With a MariaDB server: one for all tests, but for those of the page's own switch.
class TestDatabasePageServer : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { page.reset(); }

private slots:
    void initTestCase();
    void cleanupTestCase() { server.reset(); }
    void switchFillsThePanelWithEachTrouble();
    void savingTellsWhetherItWorks();
    void settingsAreShownWithTheCipher();
    void dialogShowsItsSettingsAfterOk();
    void tableIsMadeOnTheServer();
    void unreachableDatabaseIsToldInWords();
    void serverThatIsGoneIsToldInWords();

private:
    void startServer();
    void load(const QByteArray &password);
    void make();
    [[nodiscard]] QVariant answer(const QString &statement) const;
    [[nodiscard]] QSpinBox &pageBox() const { return *page->findChild<QSpinBox *>("gotoSpinBox"); }
    [[nodiscard]] QTableView &table() const { return *page->findChild<QTableView *>(); }
    [[nodiscard]] QTreeWidget &settings() const { return *page->findChild<QTreeWidget *>(); }
    [[nodiscard]] QLabel &bullet() const { return *widget->findChild<QLabel *>("validLabel"); }

    std::unique_ptr<LocalMariaDbServer> server;
    std::unique_ptr<DatabasePage> page;
    DatabaseServerPanel *serverPanel = nullptr;
    MeasurementMakingPanel *making = nullptr;
    TXDatabaseConfigurationWidget *widget = nullptr;
};

void TestDatabasePageServer::initTestCase()
{
    server = std::make_unique<LocalMariaDbServer>();
    QVERIFY2(server->start(), qPrintable(server->error()));
}

void TestDatabasePageServer::prepare()
{
    page = std::make_unique<DatabasePage>();
    serverPanel = page->findChild<DatabaseServerPanel *>();
    making = page->findChild<MeasurementMakingPanel *>();
    widget = page->findChild<TXDatabaseConfigurationWidget *>();
    page->resize(845, 1000);
    page->show();
}

/// That of the page.
void TestDatabasePageServer::startServer()
{
    serverPanel->setRunning(true);
    QVERIFY2(serverPanel->isRunning(), qPrintable(serverPanel->error()));
}

/// The settings of the server that all share.
void TestDatabasePageServer::load(const QByteArray &password)
{
    const QHash<QString, QVariant> parameters = {
        {"Host", "127.0.0.1"},
        {"Port", server->port()},
        {"User", "mia"},
        {"Password", QString::fromLatin1(TXDataCrypt::encrypt(password, nullptr))},
        {"Options", QString()},
    };
    widget->load(
        {{"Driver", "QMYSQL"}, {"Connection", "measurements"}, {"Parameters", parameters}});
}

/// Clicks "Make Table" and waits for the end.
void TestDatabasePageServer::make()
{
    QSignalSpy ended(making, SIGNAL(ended(bool)));
    making->setAmount(kFewRows);
    DialogDriver::click(buttonOf(*page, "Make Table"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);
    QVERIFY2(ended.first().first().toBool(), qPrintable(allTexts(*page)));
    QVERIFY(table().model());
}

/// What the shared server answers, asked beside the page.
QVariant TestDatabasePageServer::answer(const QString &statement) const
{
    const DatabaseConnection connection(
        {"QMYSQL", "measurements", "127.0.0.1", server->port(), "mia", "s3cret", {}});
    QSqlDatabase database = connection.database();
    database.open();
    QSqlQuery query(statement, database);
    return query.next() ? query.value(0) : QVariant();
}

void TestDatabasePageServer::switchFillsThePanelWithEachTrouble()
{
    startServer();
    const QHash<QString, QVariant> filled = widget->settings();
    QCOMPARE(filled.value("Driver").toString(), "QMYSQL");
    QCOMPARE(filled.value("Parameters").toHash().value("Port").toInt(), int(serverPanel->port()));
    QVERIFY(widget->isValid());

    for (const Trouble trouble : {Trouble::None, Trouble::WrongPassword, Trouble::ClosedDatabase,
                                  Trouble::Silent, Trouble::NobodyThere}) {
        serverPanel->setTrouble(trouble);
        QElapsedTimer timer;
        timer.start();

        DialogDriver::click(buttonOf(*widget, "Test"));

        QVERIFY2(bullet().accessibleName()
                     == (trouble == Trouble::None ? "Connection succeeded" : "Connection failed"),
                 qPrintable(QString::number(int(trouble))));
        // Far less than the limit of the library.
        QVERIFY(timer.elapsed() < 10000);
    }
}

void TestDatabasePageServer::savingTellsWhetherItWorks()
{
    startServer();
    DialogDriver::click(buttonOf(*page, "Save"));
    QVERIFY(isRead(*page, "Saved: a connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 7);

    serverPanel->setTrouble(Trouble::WrongPassword);
    QVERIFY(!isRead(*page, "Saved: a connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 0);
    DialogDriver::click(buttonOf(*page, "Save"));

    QVERIFY(isRead(*page, "Nothing to save: no connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 0);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestDatabasePageServer::settingsAreShownWithTheCipher()
{
    load("s3cret");

    DialogDriver::click(buttonOf(*page, "Show Settings"));

    const auto found = settings().findItems("Parameters/Password", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QVERIFY(!found.first()->text(2).isEmpty());
    QVERIFY(!found.first()->text(2).contains("s3cret"));
    const auto host = settings().findItems("Parameters/Host", Qt::MatchExactly);
    QCOMPARE(host.first()->text(2), "127.0.0.1");
}

void TestDatabasePageServer::dialogShowsItsSettingsAfterOk()
{
    load("s3cret");
    {
        DialogDriver driver;
        driver.expect([](QDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), "Where to Keep the Measurements");
            DialogDriver::click(dialog.findChild<QRadioButton *>("internalDBRadio"));
            DialogDriver::click(dialog, QDialogButtonBox::Ok);
        });
        DialogDriver::click(buttonOf(*page, "Ask..."));
    }
    const auto found = settings().findItems("Driver", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first()->text(2), "QSQLITE");

    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });
    DialogDriver::click(buttonOf(*page, "Ask..."));

    QVERIFY(isRead(*page, "Cancelled, or no connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 0);
}

void TestDatabasePageServer::tableIsMadeOnTheServer()
{
    load("s3cret");

    make();

    QCOMPARE(pageBox().suffix(), "/100");
    QCOMPARE(table().model()->rowCount(), 100);
    const QString count = "SELECT COUNT(*) FROM " + measurementTable();
    QCOMPARE(answer(count).toInt(), kMeasurementBatchRows);

    // Anew in its place, and left there.
    table().selectRow(0);
    DialogDriver::click(buttonOf(*page, "Remove Rows"));
    QCOMPARE(answer(count).toInt(), kMeasurementBatchRows - 1);
    make();
    QCOMPARE(answer(count).toInt(), kMeasurementBatchRows);
    page.reset();
    QCOMPARE(answer(count).toInt(), kMeasurementBatchRows);
}

void TestDatabasePageServer::unreachableDatabaseIsToldInWords()
{
    load("forgotten");
    QSignalSpy ended(making, SIGNAL(ended(bool)));

    DialogDriver::click(buttonOf(*page, "Make Table"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);

    QVERIFY(!ended.first().first().toBool());
    QVERIFY(!table().model());
    QVERIFY2(allTexts(*page).contains("No table was made: "), qPrintable(allTexts(*page)));
    QVERIFY(allTexts(*page).contains("Access denied"));
    QVERIFY(!allTexts(*page).contains("forgotten"));
    QVERIFY(buttonOf(*page, "Make Table")->isEnabled());
}

void TestDatabasePageServer::serverThatIsGoneIsToldInWords()
{
    startServer();
    make();
    serverPanel->setRunning(false);
    // The driver says so as well when it cannot prepare.
    pageBox().setValue(2);

    QVERIFY2(allTexts(*page).contains("The database refuses: "), qPrintable(allTexts(*page)));
}

int main(int argc, char **argv)
{
    return runTest<TestDatabasePageServer>(argc, argv);
}

#include "tst_DatabasePageServer.moc"
