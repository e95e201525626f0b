#include "PdfFile.h"
#include "ReportPageTest.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QUrl>

/// What the page writes as PDF and tells of it, and how the file is opened.
class TestReportPageExport : public ReportPageTest
{
    Q_OBJECT

private slots:
    void exportWritesAPdfThatIsOpened();
    void exportThatIsNotWantedWritesNothing();
    void controlsAreDisabledWhileExporting();
    void cancelLeavesNoFile();
    void cancelKeepsTheEarlierFile();
    void failureIsShown();
    void fileThatNothingOpensIsTold();

public slots:
    void takeUrl(const QUrl &url) { openedUrl = url; }

private:
    void openPdf();

    QUrl openedUrl;
};

/// With openedUrl instead of a program.
void TestReportPageExport::openPdf()
{
    QDesktopServices::setUrlHandler("file", this, "takeUrl");
    DialogDriver::click(buttonOf(*window, "Open PDF"));
    QDesktopServices::unsetUrlHandler("file");
}

void TestReportPageExport::exportWritesAPdfThatIsOpened()
{
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
    clickAndAccept("Export PDF...");

    QCOMPARE(progress()->value(), 100);
    PdfFile file(path());
    const QStringList pages = file.pageTexts();
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(pages.size(), view()->pageCount());
    QVERIFY(pages.at(1).contains("Purplish blue"));
    const QString ending = QStringLiteral("%1 page(s) in \"report.pdf\"").arg(pages.size());
    QVERIFY(isRead(*window, ending));

    openPdf();
    QCOMPARE(openedUrl, QUrl::fromLocalFile(path()));
}

void TestReportPageExport::exportThatIsNotWantedWritesNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });
    DialogDriver::click(buttonOf(*window, "Export PDF..."));

    QVERIFY(!output()->isBusy());
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPageExport::controlsAreDisabledWhileExporting()
{
    QSignalSpy busy(output(), SIGNAL(busyChanged(bool)));
    duringExport([this] {
        QVERIFY(output()->isBusy());
        QVERIFY(!buttonOf(*window, "Export PDF...")->isEnabled());
        QVERIFY(!buttonOf(*window, "Print...")->isEnabled());
        QVERIFY(!controlOf<QComboBox>(*window, "Paper")->isEnabled());
        QVERIFY(buttonOf(*window, "Cancel")->isEnabled());
        // A second one is not begun.
        output()->writePdf(path("second.pdf"));
    });
    QCOMPARE(busy.size(), 2);
    QVERIFY(QFile::exists(path()));
    QVERIFY(!QFile::exists(path("second.pdf")));
    const QString ending = QStringLiteral("%1 page(s) in \"report.pdf\"").arg(view()->pageCount());
    QVERIFY(isRead(*window, ending));
    openPdf();
    QCOMPARE(openedUrl, QUrl::fromLocalFile(path()));
    QVERIFY(buttonOf(*window, "Export PDF...")->isEnabled());
    QVERIFY(controlOf<QComboBox>(*window, "Paper")->isEnabled());
    QVERIFY(!buttonOf(*window, "Cancel")->isEnabled());
}

void TestReportPageExport::cancelLeavesNoFile()
{
    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(isNothingWritten());
    QVERIFY(isRead(*window, "Cancelled, nothing was written."));
    QCOMPARE(progress()->value(), 0);
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPageExport::cancelKeepsTheEarlierFile()
{
    output()->writePdf(path());
    const qint64 size = QFileInfo(path()).size();
    QVERIFY(size > 0);

    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QCOMPARE(QFileInfo(path()).size(), size);
}

void TestReportPageExport::failureIsShown()
{
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QVERIFY2(!box.text().isEmpty(), "without a reason");
        QVERIFY(!output()->isBusy());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    output()->writePdf(path("missing/report.pdf"));

    QVERIFY(isRead(*window, "Nothing was written."));
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPageExport::fileThatNothingOpensIsTold()
{
    output()->writePdf(path());
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.text(), QStringLiteral("No program opens the file \"%1\".").arg(path()));
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    // What is to take the file cannot: so no program of this system is started.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such method .*::takeNothing"));
    QDesktopServices::setUrlHandler("file", this, "takeNothing");
    DialogDriver::click(buttonOf(*window, "Open PDF"));
    QDesktopServices::unsetUrlHandler("file");
}

int main(int argc, char **argv)
{
    return runTest<TestReportPageExport>(argc, argv);
}

#include "tst_ReportPageExport.moc"
