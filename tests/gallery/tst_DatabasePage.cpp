#include "DatabasePage.h"
#include "DatabaseServerPanel.h"
#include "DialogDriver.h"
#include "MeasurementMakingPanel.h"
#include "MeasurementTablePanel.h"
#include "PageChecks.h"
#include "PageHelpers.h"
#include "TestBase.h"

#include "TXDBNavWidget.h"
#include "TXDatabaseConfigurationWidget.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QWheelEvent>

#include <memory>

using Trouble = DatabaseServerPanel::Trouble;

Q_DECLARE_METATYPE(Trouble)

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kFewRows = 0;
constexpr int kWheelStep = 120;

} // namespace

class TestDatabasePage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void startOfTheServerFillsThePanel();
    void testShowsItsOutcome_data();
    void testShowsItsOutcome();
    void savingTellsWhetherItWorks();
    void settingsAreShownWithTheCipher();
    void dialogShowsItsSettingsAfterOk();
    void tableIsMadeInEitherDatabase_data();
    void tableIsMadeInEitherDatabase();
    void unreachableDatabaseIsToldInWords();
    void pagesAreTurned();
    void filterShowsFewerRows();
    void rowsPerPageKeepTheTopRow();
    void clickOnAHeaderSorts();
    void deleteKeyRemovesTheSelectedRows();
    void serverThatIsGoneIsToldInWords();
    void chosenFolderHoldsTheFileAndIsRemembered();
    void folderThatCannotBeWrittenIsTold();
    void wheelChangesNothing();
    void pictureShowsAMiddlePage();
    void pictureComesWithoutAServerToo();
    void focusGoesToCancelAndBack();
    void textsFollowTheLanguage();
    void mnemonicsAreDistinct();
    void everyControlHasAName();
    void pageIsNotTooWide();
    void pageMayGoWhileATableIsMade();

private:
    void make(int amount = kFewRows);
    [[nodiscard]] QTableView &table() const { return *page->findChild<QTableView *>(); }
    [[nodiscard]] QTreeWidget &settings() const { return *page->findChild<QTreeWidget *>(); }
    [[nodiscard]] QSpinBox &pageBox() const { return *page->findChild<QSpinBox *>("gotoSpinBox"); }
    [[nodiscard]] QLabel &bullet() const { return *widget->findChild<QLabel *>("validLabel"); }
    [[nodiscard]] QString statement() const
    {
        return page->findChild<QPlainTextEdit *>()->toPlainText();
    }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return table().model()->index(row, column).data().toString();
    }
    [[nodiscard]] QString allTexts() const
    {
        QStringList texts;
        const auto labels = page->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            texts.append(label->text());
        }
        return texts.join('\n');
    }

    std::unique_ptr<DatabasePage> page;
    DatabaseServerPanel *server = nullptr;
    MeasurementMakingPanel *making = nullptr;
    TXDatabaseConfigurationWidget *widget = nullptr;
};

void TestDatabasePage::prepare()
{
    page = std::make_unique<DatabasePage>();
    server = page->findChild<DatabaseServerPanel *>();
    making = page->findChild<MeasurementMakingPanel *>();
    widget = page->findChild<TXDatabaseConfigurationWidget *>();
    page->resize(845, 1000);
    page->show();
}

void TestDatabasePage::finish()
{
    page.reset();
    QVERIFY(QDir(QDir::tempPath()).entryList({"TXGallery-*.sqlite*"}).isEmpty());
}

/// Clicks "Make Table" and waits for the end.
void TestDatabasePage::make(int amount)
{
    QSignalSpy ended(making, SIGNAL(ended(bool)));
    making->setAmount(amount);
    DialogDriver::click(PageTest::button(*page, "Make Table"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);
    QVERIFY2(ended.first().first().toBool(), qPrintable(allTexts()));
    QVERIFY(table().model());
}

void TestDatabasePage::startOfTheServerFillsThePanel()
{
    server->setRunning(true);

    QVERIFY2(server->isRunning(), qPrintable(server->error()));
    const QHash<QString, QVariant> filled = widget->settings();
    QCOMPARE(filled.value("Driver").toString(), "QMYSQL");
    QCOMPARE(filled.value("Parameters").toHash().value("Port").toInt(), int(server->port()));
    QVERIFY(widget->isValid());
}

void TestDatabasePage::testShowsItsOutcome_data()
{
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("none") << Trouble::None << true;
    QTest::newRow("password") << Trouble::WrongPassword << false;
    QTest::newRow("closed") << Trouble::ClosedDatabase << false;
    QTest::newRow("silent") << Trouble::Silent << false;
    QTest::newRow("nobody") << Trouble::NobodyThere << false;
}

void TestDatabasePage::testShowsItsOutcome()
{
    QFETCH(Trouble, trouble);
    QFETCH(bool, isGood);
    server->setRunning(true);
    server->setTrouble(trouble);
    QElapsedTimer timer;
    timer.start();

    DialogDriver::click(PageTest::button(*widget, "Test"));

    QCOMPARE(bullet().accessibleName(), isGood ? "Connection succeeded" : "Connection failed");
    // Far less than the limit of the library.
    QVERIFY(timer.elapsed() < 10000);
}

void TestDatabasePage::savingTellsWhetherItWorks()
{
    server->setRunning(true);
    DialogDriver::click(PageTest::button(*page, "Save"));
    QVERIFY(isRead(*page, "Saved: a connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 7);

    server->setTrouble(Trouble::WrongPassword);
    DialogDriver::click(PageTest::button(*page, "Save"));

    QVERIFY(isRead(*page, "Nothing to save: no connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 0);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestDatabasePage::settingsAreShownWithTheCipher()
{
    server->setRunning(true);

    DialogDriver::click(PageTest::button(*page, "Show Settings"));

    const auto found = settings().findItems("Parameters/Password", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QVERIFY(!found.first()->text(2).isEmpty());
    QVERIFY(!found.first()->text(2).contains("s3cret"));
    const auto host = settings().findItems("Parameters/Host", Qt::MatchExactly);
    QCOMPARE(host.first()->text(2), "127.0.0.1");
}

void TestDatabasePage::dialogShowsItsSettingsAfterOk()
{
    server->setRunning(true);
    {
        DialogDriver driver;
        driver.expect([](QDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), "Where to Keep the Measurements");
            DialogDriver::click(dialog.findChild<QRadioButton *>("internalDBRadio"));
            DialogDriver::click(dialog, QDialogButtonBox::Ok);
        });
        DialogDriver::click(PageTest::button(*page, "Ask..."));
    }
    const auto found = settings().findItems("Driver", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first()->text(2), "QSQLITE");

    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });
    DialogDriver::click(PageTest::button(*page, "Ask..."));

    QVERIFY(isRead(*page, "Cancelled, or no connection can be opened."));
    QCOMPARE(settings().topLevelItemCount(), 0);
}

void TestDatabasePage::tableIsMadeInEitherDatabase_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::newRow("internal") << false;
    QTest::newRow("server") << true;
}

void TestDatabasePage::tableIsMadeInEitherDatabase()
{
    QFETCH(bool, isOnServer);
    server->setRunning(isOnServer);
    QVERIFY(!table().model());

    make();

    QCOMPARE(pageBox().suffix(), "/100");
    QCOMPARE(pageBox().value(), 1);
    QCOMPARE(table().model()->rowCount(), 100);
    QCOMPARE(cell(0, 0), "0");
    QVERIFY2(statement().endsWith("LIMIT 100 OFFSET 0"), qPrintable(statement()));
    make();
    QCOMPARE(pageBox().suffix(), "/100");
}

void TestDatabasePage::unreachableDatabaseIsToldInWords()
{
    server->setRunning(true);
    server->setTrouble(Trouble::WrongPassword);
    QSignalSpy ended(making, SIGNAL(ended(bool)));

    DialogDriver::click(PageTest::button(*page, "Make Table"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);

    QVERIFY(!ended.first().first().toBool());
    QVERIFY(!table().model());
    QVERIFY2(allTexts().contains("There is no table: "), qPrintable(allTexts()));
    QVERIFY(allTexts().contains("Access denied"));
    QVERIFY(!allTexts().contains("forgotten"));
    QVERIFY(PageTest::button(*page, "Make Table")->isEnabled());
}

void TestDatabasePage::pagesAreTurned()
{
    make();

    pageBox().setFocus();
    QTest::keyClick(&pageBox(), Qt::Key_Up);

    QCOMPARE(pageBox().value(), 2);
    QCOMPARE(cell(0, 0), "100");
}

void TestDatabasePage::filterShowsFewerRows()
{
    make();
    pageBox().setValue(100);
    auto *filter = page->findChild<QDoubleSpinBox *>();

    filter->setValue(1.5);

    const int pages = pageBox().maximum();
    QVERIFY2(pages > 1 && pages < 60, qPrintable(QString::number(pages)));
    QCOMPARE(pageBox().value(), 1);
    QVERIFY2(statement().contains("WHERE delta_e > 1.5000"), qPrintable(statement()));
    QVERIFY(statement().endsWith("OFFSET 0"));
    for (int row = 0; row < table().model()->rowCount(); ++row) {
        QVERIFY(cell(row, 5).toDouble() > 1.5);
    }

    filter->setValue(20);
    QCOMPARE(table().model()->rowCount(), 0);
    QVERIFY(!page->findChild<TXDBNavWidget *>()->isEnabled());

    filter->setValue(0);
    QCOMPARE(pageBox().maximum(), 100);
    QVERIFY(page->findChild<TXDBNavWidget *>()->isEnabled());
}

void TestDatabasePage::rowsPerPageKeepTheTopRow()
{
    make();
    pageBox().setValue(13);
    QCOMPARE(cell(0, 0), "1,200");
    QComboBox *rows = nullptr;
    const auto boxes = page->findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        rows = box->findText("500") >= 0 ? box : rows;
    }
    QVERIFY(rows);

    rows->setCurrentIndex(rows->findText("500"));

    QCOMPARE(pageBox().suffix(), "/20");
    QCOMPARE(pageBox().value(), 3);
    QCOMPARE(cell(0, 0), "1,000");
    QCOMPARE(table().model()->rowCount(), 500);
}

void TestDatabasePage::clickOnAHeaderSorts()
{
    make();
    const QHeaderView &header = *table().horizontalHeader();
    const QPoint place(header.sectionViewportPosition(5) + header.sectionSize(5) / 2,
                       header.height() / 2);

    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    const double least = cell(0, 5).toDouble();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    const double largest = cell(0, 5).toDouble();

    QVERIFY2(statement().contains("ORDER BY"), qPrintable(statement()));
    QVERIFY2(least < 0.2 && largest > 2, qPrintable(QString("%1 %2").arg(least).arg(largest)));
}

void TestDatabasePage::deleteKeyRemovesTheSelectedRows()
{
    make();
    QAbstractButton *button = PageTest::button(*page, "Remove Rows");
    QVERIFY(!button->isEnabled());
    table().setFocus();
    table().selectRow(0);
    QTest::keyClick(&table(), Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(button->isEnabled());

    QTest::keyClick(&table(), Qt::Key_Delete);
    QCOMPARE(cell(0, 0), "2");
    QCOMPARE(pageBox().suffix(), "/100");

    // So many that the last page goes.
    table().selectAll();
    pageBox().setValue(100);
    QCOMPARE(table().model()->rowCount(), 98);
    table().selectAll();
    DialogDriver::click(button);
    QCOMPARE(pageBox().suffix(), "/99");
    QCOMPARE(pageBox().value(), 99);
    QCOMPARE(table().model()->rowCount(), 100);
}

void TestDatabasePage::serverThatIsGoneIsToldInWords()
{
    server->setRunning(true);
    make();
    server->setRunning(false);
    // The driver says so as well when it cannot prepare.
    pageBox().setValue(2);

    QVERIFY2(allTexts().contains("The database refuses: "), qPrintable(allTexts()));
}

void TestDatabasePage::chosenFolderHoldsTheFileAndIsRemembered()
{
    const QTemporaryDir folder;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        QVERIFY(name);
        name->setText(folder.path());
        DialogDriver::click(dialog.findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
    });

    DialogDriver::click(PageTest::button(*page, "Browse..."));
    make();

    QCOMPARE(QDir(folder.path()).entryList({"TXGallery-*.sqlite"}).size(), 1);
    QCOMPARE(QSettings().value("Gallery/MeasurementsFolder").toString(), folder.path());
    page.reset();
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestDatabasePage::folderThatCannotBeWrittenIsTold()
{
    const auto edits = making->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        // Nothing can be made there, not even by the superuser.
        edit->setText(edit->isReadOnly() ? "/proc" : edit->text());
    }
    QSignalSpy ended(making, SIGNAL(ended(bool)));

    DialogDriver::click(PageTest::button(*page, "Make Table"));

    QCOMPARE(ended.count(), 1);
    QVERIFY(!ended.first().first().toBool());
    QVERIFY(allTexts().contains("There is no table: "));
}

void TestDatabasePage::wheelChangesNothing()
{
    make();
    QList<QWidget *> controls = {&pageBox(), page->findChild<QDoubleSpinBox *>()};
    const auto boxes = page->findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        controls.append(box);
    }
    pageBox().setValue(5);
    QStringList before;
    for (QWidget *control : controls) {
        before.append(control->property("value").toString()
                      + control->property("currentIndex").toString());
    }

    for (QWidget *control : controls) {
        const QPointF place(5, 5);
        QWheelEvent event(place, control->mapToGlobal(place), {}, {0, -kWheelStep}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &event);
        QVERIFY(!event.isAccepted());
    }

    QStringList after;
    for (QWidget *control : controls) {
        after.append(control->property("value").toString()
                     + control->property("currentIndex").toString());
    }
    QCOMPARE(after, before);
}

void TestDatabasePage::pictureShowsAMiddlePage()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QVERIFY(ready.wait(kPatienceMilliseconds));
    QVERIFY(page->isReady());
    QCOMPARE(pageBox().suffix(), "/10000");
    QCOMPARE(pageBox().value(), 5001);
    QCOMPARE(cell(0, 0), "500,000");
    QTRY_VERIFY2(pageBox().width() >= pageBox().sizeHint().width(), "the pages are cut off");
    QCOMPARE(bullet().accessibleName(), "Connection succeeded");
    QCOMPARE(settings().topLevelItemCount(), 7);
}

void TestDatabasePage::pictureComesWithoutAServerToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");
    making->setAmount(kFewRows);
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(ready.count() == 1 || ready.wait(kPatienceMilliseconds));
    QVERIFY(!server->isRunning());
    QVERIFY(!server->error().isEmpty());
    // The internal database instead, at its last page.
    QCOMPARE(pageBox().value(), 100);
}

void TestDatabasePage::focusGoesToCancelAndBack()
{
    QAbstractButton *makeButton = PageTest::button(*page, "Make Table");
    QSignalSpy ended(making, SIGNAL(ended(bool)));
    making->setAmount(kFewRows);
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    makeButton->setFocus();
    QVERIFY(makeButton->hasFocus());

    QTest::keyClick(makeButton, Qt::Key_Space);
    QVERIFY(PageTest::button(*page, "Cancel")->hasFocus());
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);

    QVERIFY(makeButton->hasFocus());
}

void TestDatabasePage::textsFollowTheLanguage()
{
    make();
    PageTest::StarTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QVERIFY(PageTest::button(*page, "*Make Table"));
    QVERIFY(PageTest::button(*page, "*Show Settings"));
    QVERIFY(PageTest::button(*page, "*Remove Rows"));
    QCOMPARE(table().model()->headerData(1, Qt::Horizontal).toString(), "*Patch");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(PageTest::button(*page, "Make Table"));
}

void TestDatabasePage::mnemonicsAreDistinct()
{
    QStringList keys = PageTest::mnemonics(*page) + PageTest::mnemonicsOfTheHeader();
    QVERIFY(keys.size() > 12);

    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestDatabasePage::everyControlHasAName()
{
    server->setRunning(true);
    make();
    QCOMPARE(namelessControls(*page), QStringList());
}

void TestDatabasePage::pageIsNotTooWide()
{
    make();
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

void TestDatabasePage::pageMayGoWhileATableIsMade()
{
    DialogDriver::click(PageTest::button(*page, "Make Table"));
    QVERIFY(making->isBusy());

    page.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestDatabasePage>(argc, argv);
}

#include "tst_DatabasePage.moc"
