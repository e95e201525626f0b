#include "PdfFile.h"
#include "Samples.h"

#include "DialogDriver.h"
#include "TXError.h"
#include "TXGraphicsScene.h"
#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TXLogModel.h"
#include "TXLogWindow.h"
#include "TXReportDocument.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QFile>
#include <QFont>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

namespace {

QList<Reading> readings(int count)
{
    QList<Reading> list;
    for (int patch = 1; patch <= count; ++patch) {
        list.append({QStringLiteral("P%1").arg(patch), patch / 10.0});
    }
    return list;
}

/// A file of three readings in the folder; its path.
QString writeReadings(const QTemporaryDir &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write("0.5\n1.25\n3\n") < 0) {
        return {};
    }
    return file.fileName();
}

} // namespace

/// What the guide says of errors, the log and reports.
class TestGuideReports : public TestBase
{
    Q_OBJECT

protected:
    void finish() override;

private slots:
    void aFailureFillsTheErrorAndSuccessLeavesItAlone();
    void anErrorIsShownUnderItsTitle();
    void nestedErrorsStandInTheWholeReport();
    void linesFromOtherThreadsComeIntoTheWindow();
    void subItemsStandBelowTheirItem();
    void aPdfHasACoverAndThePagesOfTheTable();
    void aReportThatCannotBeWrittenSaysWhy();
    void aReportIsPrinted();
    void aPrinterThatFailsIsTold();
};

void TestGuideReports::finish()
{
    TXLogManager::applicationLog()->reset();
}

void TestGuideReports::aFailureFillsTheErrorAndSuccessLeavesItAlone()
{
    const QTemporaryDir folder;
    QList<double> differences;
    TXError error;
    QVERIFY(readDifferences(writeReadings(folder, QStringLiteral("a.txt")), &differences, &error));
    QCOMPARE(differences, QList<double>({0.5, 1.25, 3}));
    QVERIFY(!error.isValid());
    QVERIFY(!readDifferences(QStringLiteral("/nowhere/a.txt"), &differences, &error));
    QCOMPARE(error.domain, QStringLiteral("ReadingsFile"));
    QCOMPARE(error.getLocalizedDescription(),
             QStringLiteral("The file /nowhere/a.txt cannot be opened."));
    QVERIFY(!readDifferences(QStringLiteral("/nowhere/a.txt"), &differences, nullptr));
}

void TestGuideReports::anErrorIsShownUnderItsTitle()
{
    QWidget window;
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), QStringLiteral("Open readings"));
        QVERIFY(box.text().contains(QStringLiteral("/nowhere/a.txt")));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });
    openReadings(QStringLiteral("/nowhere/a.txt"), &window);
}

void TestGuideReports::nestedErrorsStandInTheWholeReport()
{
    const QTemporaryDir folder;
    TXError error;
    QVERIFY(importFolder({writeReadings(folder, QStringLiteral("a.txt"))}, &error));
    QVERIFY(!error.isValid());
    QVERIFY(!importFolder({QStringLiteral("/nowhere/b.txt"), QStringLiteral("/nowhere/c.txt")},
                          &error));
    const QStringList lines = error.getCompletLocalizedDescription().split(u'\n');
    QCOMPARE(lines.first(), QStringLiteral("2 file(s) were left out."));
    QVERIFY(lines.value(1).contains(QStringLiteral("/nowhere/b.txt")));
    QVERIFY(lines.value(2).contains(QStringLiteral("/nowhere/c.txt")));
}

void TestGuideReports::linesFromOtherThreadsComeIntoTheWindow()
{
    const QTemporaryDir folder;
    TXLogWindow window(TXLogManager::applicationLog(), nullptr);
    window.show();
    readInBackground(
        {writeReadings(folder, QStringLiteral("a.txt")), QStringLiteral("/nowhere/b.txt")});
    QTRY_COMPARE(window.nbEventLogged(), 2);
    const QAbstractItemModel *rows = window.findChild<QAbstractItemView *>("logTreeView")->model();
    QStringList texts;
    for (int row = 0; row < rows->rowCount(); ++row) {
        texts.append(rows->index(row, TXLogModel::MessageColumn).data().toString());
    }
    texts.sort();
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.first(), QStringLiteral("/nowhere/b.txt cannot be read"));
    QVERIFY(texts.last().endsWith(QStringLiteral("a.txt: 3 readings")));
}

void TestGuideReports::subItemsStandBelowTheirItem()
{
    const std::unique_ptr<QTreeView> view(makeLogView(nullptr));
    logImport(QStringLiteral("Monday"), {QStringLiteral("a.txt"), QStringLiteral("b.txt")});
    const QAbstractItemModel *rows = view->model();
    QTRY_COMPARE(rows->rowCount(), 1);
    const QModelIndex import = rows->index(0, TXLogModel::MessageColumn);
    QCOMPARE(import.data().toString(), QStringLiteral("Import of Monday"));
    const QModelIndex parent = rows->index(0, 0);
    QTRY_COMPARE(rows->rowCount(parent), 2);
    QCOMPARE(rows->index(1, TXLogModel::MessageColumn, parent).data().toString(),
             QStringLiteral("b.txt"));
    QVERIFY(view->isColumnHidden(TXLogModel::LevelColumn));
}

void TestGuideReports::aPdfHasACoverAndThePagesOfTheTable()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("report.pdf"));
    TXError error;
    QVERIFY2(writeReport(readings(100), fileName, &error),
             qPrintable(error.getCompletLocalizedDescription()));
    PdfFile pdf(fileName);
    const QStringList pages = pdf.pageTexts();
    QVERIFY2(pdf.errorText().isEmpty(), qPrintable(pdf.errorText()));
    QVERIFY(pages.size() > 2);
    QVERIFY(pages.first().contains(QStringLiteral("100 patches")));
    for (qsizetype page = 1; page < pages.size(); ++page) {
        QVERIFY(pages[page].contains(QStringLiteral("Patch")));
        QVERIFY(pages[page].contains(
            QStringLiteral("page %1 of %2").arg(page + 1).arg(pages.size()), Qt::CaseInsensitive));
    }
    QVERIFY(pages.last().contains(QStringLiteral("P100")));
    QCOMPARE(pdf.information().title, QStringLiteral("Chart comparison"));
}

void TestGuideReports::aReportThatCannotBeWrittenSaysWhy()
{
    TXError error;
    QVERIFY(!writeReport(readings(3), QStringLiteral("/nowhere/report.pdf"), &error));
    QVERIFY(!error.getLocalizedDescription().isEmpty());
}

void TestGuideReports::aReportIsPrinted()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("printed.pdf"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    TXReportDocument report;
    report.addTable(makeTable(readings(100), font), font);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    QVERIFY(report.pageCount() > 1);
    QVERIFY(printReport(&report, &printer, nullptr));
    QCOMPARE(PdfFile(fileName).information().pageSizes.size(), report.pageCount());
}

void TestGuideReports::aPrinterThatFailsIsTold()
{
    TXReportDocument report;
    QPrinter printer;
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Ok); });
    QVERIFY(!printReport(&report, &printer, nullptr));
}

int main(int argc, char **argv)
{
    return runTest<TestGuideReports>(argc, argv);
}

#include "tst_GuideReports.moc"
