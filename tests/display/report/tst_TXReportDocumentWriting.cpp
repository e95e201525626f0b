#include "PdfFile.h"
#include "ReportDocumentHelpers.h"
#include "ReportTestFont.h"
#include "TXError.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TestBase.h"

#include <QFile>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QTemporaryDir>

#include <semaphore>
#include <thread>

/// What is told and may be done while a report is being written.
class TestTXReportDocumentWriting : public TestBase
{
    Q_OBJECT

private slots:
    void progressGoesTo100Once();
    void aLaterChangeDoesNotDisturbTheWriting();
    void cancelEndsAtTheNextPage();
    void cancelWithoutAWritingDoesNothing();
    void cancelAfterTheLastPageStillCounts();
    void reportThatIsBeingWrittenIsRefused();
    void writingOnAWorkerIsCancelledFromHere();

private:
    QTemporaryDir folder;
    QString fileName = folder.filePath("report.pdf");
    void finish() override { QFile::remove(fileName); }
};

void TestTXReportDocumentWriting::progressGoesTo100Once()
{
    TXReportDocument report;
    report.setTitle("Colours");
    report.addPages(4, drawMark);
    RecordingDelegate delegate;

    QVERIFY(report.writePdf(fileName, &delegate));

    QCOMPARE(delegate.percents, QList<float>({0, 25, 50, 75, 100}));
    QCOMPARE(delegate.paths, QList<QList<QString>>(5, {"Colours"}));
    QCOMPARE(delegate.messages,
             QStringList({"Page 1 of 4", "Page 2 of 4", "Page 3 of 4", "Page 4 of 4"}));
    QCOMPARE(delegate.errors, QStringList());
}

void TestTXReportDocumentWriting::aLaterChangeDoesNotDisturbTheWriting()
{
    TXReportDocument report;
    report.addTable(tableOfRows(100), reportTestFont());
    QCOMPARE(report.pageCount(), 3);
    RecordingDelegate delegate;
    delegate.whenProgressing = [&](float) {
        report.addPages(1, drawMark);
        report.setPageLayout(QPageLayout(QPageSize(QPageSize::A0), QPageLayout::Portrait,
                                         QMarginsF(36, 36, 36, 36)));
    };

    QVERIFY(report.writePdf(fileName, &delegate));

    PdfFile file(fileName);
    QCOMPARE(file.information().pageSizes, QList<QSizeF>(3, QSizeF(595, 842)));
    QVERIFY(!file.pageTexts().join(u' ').contains("drawn0"));
    QCOMPARE(file.errorText(), QString());
    // The change itself has taken place, once for each time that progress was told.
    QCOMPARE(report.pageCount(), 1 + delegate.percents.size());
}

void TestTXReportDocumentWriting::cancelEndsAtTheNextPage()
{
    TXReportDocument report;
    report.addPages(10, drawMark);
    fill(fileName, "earlier");
    RecordingDelegate delegate;
    delegate.whenProgressing = [&](float percent) {
        if (percent >= 30) {
            report.cancel();
        }
    };
    TXError error;

    QVERIFY(!report.writePdf(fileName, &delegate, &error));

    QVERIFY(report.isCancelled());
    QVERIFY(!error.isValid());
    QCOMPARE(delegate.percents, QList<float>({0, 10, 20, 30, 100}));
    QCOMPARE(delegate.messages.size(), 3);
    QCOMPARE(delegate.errors, QStringList());
    QCOMPARE(contentsOf(fileName), QByteArray("earlier"));
    QCOMPARE(entriesOf(folder.path()), QStringList("report.pdf"));

    delegate.whenProgressing = nullptr;
    QVERIFY(report.writePdf(fileName, &delegate));
    QVERIFY(!report.isCancelled());
}

void TestTXReportDocumentWriting::cancelWithoutAWritingDoesNothing()
{
    TXReportDocument report;
    report.addPages(1, drawMark);

    report.cancel();

    QVERIFY(!report.isCancelled());
    QVERIFY(report.writePdf(fileName));
    report.cancel();
    QVERIFY(!report.isCancelled());
}

void TestTXReportDocumentWriting::cancelAfterTheLastPageStillCounts()
{
    TXReportDocument report;
    report.addPages(1, [&](TXGraphicsScene *, int) { report.cancel(); });
    report.setAuthor("A");

    QVERIFY(!report.writePdf(fileName));

    QVERIFY(report.isCancelled());
    QCOMPARE(entriesOf(folder.path()), QStringList());
}

void TestTXReportDocumentWriting::reportThatIsBeingWrittenIsRefused()
{
    TXReportDocument report;
    report.addPages(2, drawMark);
    RecordingDelegate delegate;
    TXError error;
    delegate.whenProgressing = [&](float) {
        error = TXError();
        QVERIFY(!report.writePdf(folder.filePath("other.pdf"), &delegate, &error));
        QCOMPARE(error.getLocalizedDescription(),
                 QString("The report is being written or printed already."));
    };

    QVERIFY(report.writePdf(fileName, &delegate));

    QVERIFY(error.isValid());
    QCOMPARE(delegate.percents, QList<float>({0, 50, 100}));
    QCOMPARE(entriesOf(folder.path()), QStringList("report.pdf"));
}

void TestTXReportDocumentWriting::writingOnAWorkerIsCancelledFromHere()
{
    TXReportDocument report;
    report.addTable(tableOfRows(5000), reportTestFont());
    std::binary_semaphore hasBegun(0);
    std::binary_semaphore isCancelled(0);
    RecordingDelegate delegate;
    delegate.whenProgressing = [&](float percent) {
        if (percent == 0) {
            hasBegun.release();
        } else if (delegate.percents.size() == 2) {
            isCancelled.acquire();
        }
    };
    bool isWritten = true;
    std::thread worker([&] { isWritten = report.writePdf(fileName, &delegate); });
    hasBegun.acquire();
    report.cancel();
    isCancelled.release();
    worker.join();

    QVERIFY(!isWritten);
    QVERIFY(report.isCancelled());
    QVERIFY(delegate.percents.size() <= 3);
    QCOMPARE(entriesOf(folder.path()), QStringList());

    delegate.whenProgressing = nullptr;
    std::thread second([&] { isWritten = report.writePdf(fileName, &delegate); });
    second.join();
    QVERIFY(isWritten);
    QCOMPARE(PdfFile(fileName).information().pageSizes.size(), report.pageCount());
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocumentWriting>(argc, argv);
}

#include "tst_TXReportDocumentWriting.moc"
