#include "PdfFile.h"
#include "ReportPageTest.h"

#include <QRadioButton>
#include <QSpinBox>

namespace {

/// Only pages that the report does not have.
void chooseMissingPages(QDialog &dialog)
{
    constexpr int kMissingPage = 900;
    DialogDriver::click(buttonOf(dialog, "Options >>"));
    DialogDriver::click(dialog.findChild<QRadioButton *>("printRange"));
    for (const char *name : {"to", "from"}) {
        auto *box = dialog.findChild<QSpinBox *>(name);
        QVERIFY(box && box->isVisible() && box->isEnabled());
        box->setValue(kMissingPage);
        QCOMPARE(box->value(), kMissingPage);
    }
}

} // namespace

/// What the page prints, and what it tells of it.
class TestReportPagePrinting : public ReportPageTest
{
    Q_OBJECT

private slots:
    void printDialogIsOffered();
    void printerGetsTheReport();
    void cancelledPrintIsTold();
    void failedPrintIsTold();
};

void TestReportPagePrinting::printDialogIsOffered()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        QVERIFY(dialog.inherits("QPrintDialog"));
        dialog.reject();
    });
    DialogDriver::click(buttonOf(*window, "Print..."));

    QVERIFY(!output()->isBusy());
}

void TestReportPagePrinting::printerGetsTheReport()
{
    clickAndAccept("Print...");

    PdfFile file(path());
    const QStringList pages = file.pageTexts();
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(pages.size(), view()->pageCount());
    QVERIFY(pages.at(1).contains("Purplish blue"));
    QVERIFY(isRead(*window, "Printed."));
    QCOMPARE(progress()->value(), 100);
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPagePrinting::cancelledPrintIsTold()
{
    during([this] { clickAndAccept("Print..."); },
           [this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(isRead(*window, "Cancelled, some pages may be printed."));
    QCOMPARE(progress()->value(), 0);
    QVERIFY(!output()->isBusy());
}

void TestReportPagePrinting::failedPrintIsTold()
{
    DialogDriver driver;
    driver.expect([this](QDialog &dialog) {
        chooseMissingPages(dialog);
        acceptPrinting(dialog);
    });
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QCOMPARE(box.text(), "The report has none of the pages that are to be printed.");
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    DialogDriver::click(buttonOf(*window, "Print..."));

    QVERIFY(isRead(*window, "Printing has failed."));
    QVERIFY(isNothingWritten());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPagePrinting>(argc, argv);
}

#include "tst_ReportPagePrinting.moc"
