#include "DatabasePage.h"
#include "DatabaseServerPanel.h"
#include "DialogDriver.h"
#include "MeasurementMakingPanel.h"
#include "PageChecks.h"
#include "PageInWindow.h"
#include "TestBase.h"

#include "TXDBNavWidget.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kFewRows = 0;
constexpr int kWheelStep = 120;

} // namespace

/// With the internal database alone.
class TestDatabasePage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void tableIsMadeInAFile();
    void pagesAreTurned();
    void choicesSelectAsSeldomAsTheyCan();
    void filterShowsFewerRows();
    void rowsPerPageKeepTheTopRow();
    void fewerRowsPerPageKeepTheTopRowToo();
    void clickOnAHeaderWithAnIndexSorts();
    void clickOnAnotherHeaderDoesNot();
    void statementIsSeenWhole();
    void cancelledMakingLeavesNoFile();
    void deleteKeyRemovesTheSelectedRows();
    void chosenFolderHoldsTheFileAndIsRemembered();
    void folderThatCannotBeWrittenIsTold();
    void wheelChangesNothing();
    void pictureComesWithoutAServerToo();
    void focusGoesToCancelAndBack();
    void textsFollowTheLanguage();
    void mnemonicsAreDistinct();
    void everyControlIsNamedAndReached();
    void pageIsNotTooWide();
    void pageMayGoWhileATableIsMade();

private:
    void make(int amount = kFewRows);
    [[nodiscard]] QTableView &table() const { return *page->findChild<QTableView *>(); }
    [[nodiscard]] QSpinBox &pageBox() const { return *page->findChild<QSpinBox *>("gotoSpinBox"); }
    [[nodiscard]] QString statement() const
    {
        return page->findChild<QPlainTextEdit *>()->toPlainText();
    }
    [[nodiscard]] QComboBox &rowsBox() const
    {
        return *qobject_cast<QComboBox *>(labelOf(*page, "Rows per page:")->buddy());
    }
    void clickOnHeader(int column)
    {
        const QHeaderView &header = *table().horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                           header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return table().model()->index(row, column).data().toString();
    }

    std::unique_ptr<DatabasePage> page;
    DatabaseServerPanel *server = nullptr;
    MeasurementMakingPanel *making = nullptr;
};

void TestDatabasePage::prepare()
{
    page = std::make_unique<DatabasePage>();
    server = page->findChild<DatabaseServerPanel *>();
    making = page->findChild<MeasurementMakingPanel *>();
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
    DialogDriver::click(buttonOf(*page, "Make Table"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);
    QVERIFY2(ended.first().first().toBool(), qPrintable(allTexts(*page)));
    QVERIFY(table().model());
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

void TestDatabasePage::deleteKeyRemovesTheSelectedRows()
{
    make();
    QAbstractButton *button = buttonOf(*page, "Remove Rows");
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

    DialogDriver::click(buttonOf(*page, "Browse..."));
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

    DialogDriver::click(buttonOf(*page, "Make Table"));

    QCOMPARE(ended.count(), 1);
    QVERIFY(!ended.first().first().toBool());
    QVERIFY(allTexts(*page).contains("No table was made: "));
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

void TestDatabasePage::pictureComesWithoutAServerToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(ready.count() == 1 || ready.wait(kPatienceMilliseconds));
    QVERIFY(!server->isRunning());
    QVERIFY(!server->error().isEmpty());
    // The internal database instead, in its midst.
    QCOMPARE(pageBox().suffix(), "/1000");
    QCOMPARE(pageBox().value(), 501);
    QCOMPARE(cell(0, 0), "50,000");
    QTRY_VERIFY2(pageBox().width() >= pageBox().sizeHint().width(), "the pages are cut off");
}

void TestDatabasePage::focusGoesToCancelAndBack()
{
    QAbstractButton *makeButton = buttonOf(*page, "Make Table");
    QSignalSpy ended(making, SIGNAL(ended(bool)));
    making->setAmount(kFewRows);
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    makeButton->setFocus();
    QVERIFY(makeButton->hasFocus());

    QTest::keyClick(makeButton, Qt::Key_Space);
    QVERIFY(buttonOf(*page, "Cancel")->hasFocus());
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);

    QVERIFY(makeButton->hasFocus());
}

void TestDatabasePage::tableIsMadeInAFile()
{
    QVERIFY(!table().model());

    make();

    QCOMPARE(QDir(QDir::tempPath()).entryList({"TXGallery-*.sqlite"}).size(), 1);
    QCOMPARE(pageBox().suffix(), "/100");
    QCOMPARE(pageBox().value(), 1);
    QCOMPARE(table().model()->rowCount(), 100);
    QCOMPARE(cell(0, 0), "0");
    QVERIFY2(statement().endsWith("LIMIT 100 OFFSET 0"), qPrintable(statement()));
    make();
    QCOMPARE(pageBox().suffix(), "/100");
}

void TestDatabasePage::choicesSelectAsSeldomAsTheyCan()
{
    make();
    auto *filter = page->findChild<QDoubleSpinBox *>();
    QSignalSpy selected(table().model(), SIGNAL(selected(bool, QString, qint64)));

    filter->setValue(0.5);
    QCOMPARE(selected.count(), 1);

    // Once by the filter, which selects at once, and once by the navigator going back to page 1.
    pageBox().setValue(3);
    selected.clear();
    filter->setValue(0);
    QCOMPARE(selected.count(), 2);
    QCOMPARE(pageBox().value(), 1);

    selected.clear();
    rowsBox().setCurrentIndex(rowsBox().findText("500"));
    QCOMPARE(selected.count(), 1);
    pageBox().setValue(3);
    selected.clear();
    rowsBox().setCurrentIndex(rowsBox().findText("100"));
    QCOMPARE(selected.count(), 1);

    selected.clear();
    clickOnHeader(5);
    QCOMPARE(selected.count(), 1);
}

void TestDatabasePage::rowsPerPageKeepTheTopRow()
{
    make();
    pageBox().setValue(13);
    QCOMPARE(cell(0, 0), "1,200");

    rowsBox().setCurrentIndex(rowsBox().findText("500"));

    QCOMPARE(pageBox().suffix(), "/20");
    QCOMPARE(pageBox().value(), 3);
    QCOMPARE(cell(0, 0), "1,000");
    QCOMPARE(table().model()->rowCount(), 500);
}

void TestDatabasePage::fewerRowsPerPageKeepTheTopRowToo()
{
    make();
    rowsBox().setCurrentIndex(rowsBox().findText("1,000"));
    pageBox().setValue(10);
    QCOMPARE(cell(0, 0), "9,000");

    // To a page beyond the last one that there was.
    rowsBox().setCurrentIndex(rowsBox().findText("20"));

    QCOMPARE(pageBox().suffix(), "/500");
    QCOMPARE(pageBox().value(), 451);
    QCOMPARE(cell(0, 0), "9,000");
}

void TestDatabasePage::clickOnAHeaderWithAnIndexSorts()
{
    make();

    clickOnHeader(5);
    const double least = cell(0, 5).toDouble();
    clickOnHeader(5);
    const double largest = cell(0, 5).toDouble();
    QVERIFY2(statement().contains("ORDER BY"), qPrintable(statement()));
    QVERIFY2(least < 0.2 && largest > 2, qPrintable(QString("%1 %2").arg(least).arg(largest)));

    clickOnHeader(0);
    QCOMPARE(cell(0, 0), "0");
}

void TestDatabasePage::clickOnAnotherHeaderDoesNot()
{
    make();
    clickOnHeader(5);
    QSignalSpy selected(table().model(), SIGNAL(selected(bool, QString, qint64)));

    for (const int column : {1, 2, 3, 4, 6}) {
        clickOnHeader(column);
        QCOMPARE(table().horizontalHeader()->sortIndicatorSection(), 5);
        QCOMPARE(table().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    QCOMPARE(selected.count(), 0);
}

void TestDatabasePage::statementIsSeenWhole()
{
    make();
    auto *filter = page->findChild<QDoubleSpinBox *>();

    filter->setValue(1.5);

    auto *edit = page->findChild<QPlainTextEdit *>();
    QVERIFY(!edit->verticalScrollBar()->isVisible());
    QCOMPARE(edit->verticalScrollBar()->maximum(), 0);
    QTextCursor end(edit->document());
    end.movePosition(QTextCursor::End);
    edit->setTextCursor(end);
    QVERIFY2(edit->viewport()->rect().contains(edit->cursorRect().adjusted(0, 0, -1, 0)),
             "the last line is cut off");
}

void TestDatabasePage::cancelledMakingLeavesNoFile()
{
    QAbstractButton *cancelButton = buttonOf(*page, "Cancel");
    QSignalSpy ended(making, SIGNAL(ended(bool)));
    QVERIFY(!cancelButton->isEnabled());
    DialogDriver::click(buttonOf(*page, "Make Table"));
    QVERIFY(isRead(*page, "Under way..."));

    DialogDriver::click(cancelButton);

    QVERIFY(!cancelButton->isEnabled());
    QVERIFY(isRead(*page, "Cancelling..."));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kPatienceMilliseconds);
    QVERIFY(!ended.first().first().toBool());
    QVERIFY(isRead(*page, "Cancelled: no table was made."));
    QVERIFY(QDir(QDir::tempPath()).entryList({"TXGallery-*.sqlite*"}).isEmpty());
    QVERIFY(!table().model());
}

void TestDatabasePage::textsFollowTheLanguage()
{
    make();
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    // What the forms of the library have read once, and the name of the table.
    const QStringList allowed = {
        "Internal Database",
        "MySQL/MariaDB Database",
        "Host",
        "Port",
        "User name",
        "Password",
        "Database",
        "Options",
        "Test",
        "Page:",
        "ON A SERVER THE TABLE \"txgallery_measurements\" IS DROPPED, MADE ANEW AND LEFT THERE."};
    QCOMPARE(smallTexts(*page, allowed).join("|"), QString());
    QCOMPARE(table().model()->headerData(1, Qt::Horizontal).toString(), "PATCH");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Make Table"));
}

void TestDatabasePage::mnemonicsAreDistinct()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("database")), QStringList());
}

void TestDatabasePage::everyControlIsNamedAndReached()
{
    make();
    QCOMPARE(namelessControls(*page), QStringList());
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    buttonOf(*page, "Make Table")->setFocus();
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestDatabasePage::pageIsNotTooWide()
{
    make();
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

void TestDatabasePage::pageMayGoWhileATableIsMade()
{
    DialogDriver::click(buttonOf(*page, "Make Table"));
    QVERIFY(making->isBusy());

    page.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestDatabasePage>(argc, argv);
}

#include "tst_DatabasePage.moc"
