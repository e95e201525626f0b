#include "PdfFile.h"
#include "ReportDocumentHelpers.h"
#include "ReportPrintRange.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TestBase.h"

#include <QPageRanges>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinter>
#include <QTemporaryDir>

#include <cmath>

class TestTXReportDocumentPrinting : public TestBase
{
    Q_OBJECT

private slots:
    void allPagesArePrintedOnTheReportsPaper();
    void resolutionOfThePrinterDoesNotMatter_data();
    void resolutionOfThePrinterDoesNotMatter();
    void rangesArePrinted_data();
    void rangesArePrinted();
    void numbersStayThoseOfTheReport();
    void rangeOutsideTheReportFails();
    void hugeRangesCostNothing();
    void cancelAbortsThePrinter();
    void missingPrinterFails();
    void reportWithoutPagesFails();
    void printerThatPaintsAlreadyFails();
    void printerThatDoesNotStartFails();
    void failingPrinterIsTold_data();
    void failingPrinterIsTold();

private:
    QTemporaryDir folder;
    QString fileName = folder.filePath("printed.pdf");
};

namespace {

/// What a printer can do wrong, and what it was asked for.
class PoorPrintEngine : public QPrintEngine
{
public:
    void setProperty(PrintEnginePropertyKey key, const QVariant &value) override
    {
        if (key != PPK_QPageLayout || takesPaper) {
            properties.insert(int(key), value);
        }
    }
    QVariant property(PrintEnginePropertyKey key) const override
    {
        if (key == PPK_Resolution) {
            return 72;
        }
        return properties.value(int(key));
    }
    bool newPage() override { return --pagesLeft > 0; }
    bool abort() override
    {
        isAborted = true;
        return true;
    }
    int metric(QPaintDevice::PaintDeviceMetric metric) const override
    {
        return metric == QPaintDevice::PdmDpiX || metric == QPaintDevice::PdmDpiY ? 72 : 1;
    }
    QPrinter::PrinterState printerState() const override { return state; }

    QPrinter::PrinterState state = QPrinter::Idle;
    bool takesPaper = true;
    int pagesLeft = 1000;
    bool isAborted = false;
    QHash<int, QVariant> properties{
        {PPK_QPageLayout,
         QVariant::fromValue(QPageLayout(QPageSize(QPageSize::A6), QPageLayout::Portrait, {}))},
        {PPK_PrinterName, "Poor"}};
};

/// Paints nowhere.
class NoPaintEngine : public QPaintEngine
{
public:
    explicit NoPaintEngine(PoorPrintEngine *printEngine)
        : printEngine(printEngine)
    { }

    bool begin(QPaintDevice * /*device*/) override
    {
        printEngine->state = starts ? QPrinter::Active : QPrinter::Error;
        return starts;
    }
    bool end() override
    {
        printEngine->state = QPrinter::Idle;
        return true;
    }
    void updateState(const QPaintEngineState & /*state*/) override { }
    void drawPixmap(const QRectF & /*target*/, const QPixmap & /*pixmap*/,
                    const QRectF & /*source*/) override
    { }
    void drawTextItem(const QPointF & /*place*/, const QTextItem & /*item*/) override { }
    void drawPath(const QPainterPath & /*path*/) override { }
    void drawPolygon(const QPointF * /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override
    { }
    Type type() const override { return User; }

    bool starts = true;

private:
    PoorPrintEngine *printEngine;
};

class PoorPrinter : public QPrinter
{
public:
    PoorPrinter() { setEngines(&engine, &paintEngine); }

    PoorPrintEngine engine;
    NoPaintEngine paintEngine{&engine};
};

void drawMark(TXGraphicsScene *scene, int page)
{
    scene->drawText(QStringLiteral("drawn%1").arg(page + 1), {0, 0}, tenPoints(), Qt::black);
}

QList<int> pagesOf(const ReportPrintRange &range)
{
    QList<int> pages;
    for (int i = 0; i < range.count(); ++i) {
        pages.append(range.page(i));
    }
    return pages;
}

} // namespace

void TestTXReportDocumentPrinting::allPagesArePrintedOnTheReportsPaper()
{
    TXReportDocument report;
    report.setTitle("Colours");
    report.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A5), QPageLayout::Landscape, QMarginsF(20, 20, 20, 20)));
    report.addPages(2, drawMark);
    QPrinter printer;
    printer.setOutputFileName(fileName);
    RecordingDelegate delegate;

    QVERIFY(report.print(&printer, &delegate));

    PdfFile file(fileName);
    QCOMPARE(file.information().pageSizes, QList<QSizeF>(2, QSizeF(595, 420)));
    QCOMPARE(file.information().title, QString("Colours"));
    QCOMPARE(printer.docName(), QString("Colours"));
    QCOMPARE(delegate.percents, QList<float>({0, 50, 100}));
    QCOMPARE(delegate.messages, QStringList({"Page 1 of 2", "Page 2 of 2"}));
    QCOMPARE(file.errorText(), QString());
}

void TestTXReportDocumentPrinting::resolutionOfThePrinterDoesNotMatter_data()
{
    QTest::addColumn<int>("dotsPerInch");

    for (const int dotsPerInch : {72, 96, 600, 1200}) {
        QTest::addRow("%d", dotsPerInch) << dotsPerInch;
    }
}

void TestTXReportDocumentPrinting::resolutionOfThePrinterDoesNotMatter()
{
    QFETCH(int, dotsPerInch);
    TXReportDocument report;
    report.addPages(1, [](TXGraphicsScene *scene, int) {
        scene->drawText("here", {123.25, 234.5}, tenPoints(), Qt::black);
    });
    QPrinter printer;
    printer.setOutputFileName(fileName);
    printer.setResolution(dotsPerInch);
    printer.setPageMargins({50, 60, 70, 80}, QPageLayout::Point);

    QVERIFY(report.print(&printer));

    PdfFile file(fileName);
    const QList<PdfFile::Word> words = file.words().value(0);
    QCOMPARE(words.value(0).text, QString("here"));
    QVERIFY(std::abs(words.value(0).box.left() - (36 + 123.25)) < 0.01);
    QVERIFY(std::abs(words.value(0).box.top() - (36 + 234.5)) < 0.01);
}

void TestTXReportDocumentPrinting::rangesArePrinted_data()
{
    QTest::addColumn<QString>("ranges");
    QTest::addColumn<QPrinter::PageOrder>("order");
    QTest::addColumn<QList<int>>("pages");

    const auto forward = QPrinter::FirstPageFirst;
    const auto backward = QPrinter::LastPageFirst;
    QTest::newRow("all") << "" << forward << QList<int>{0, 1, 2, 3, 4, 5};
    QTest::newRow("all backwards") << "" << backward << QList<int>{5, 4, 3, 2, 1, 0};
    QTest::newRow("one") << "3" << forward << QList<int>{2};
    QTest::newRow("some") << "1-2,4,6" << forward << QList<int>{0, 1, 3, 5};
    QTest::newRow("some backwards") << "1-2,4,6" << backward << QList<int>{5, 3, 1, 0};
    QTest::newRow("to the end and beyond") << "5-100" << forward << QList<int>{4, 5};
    QTest::newRow("beyond") << "7-100" << forward << QList<int>{};
}

void TestTXReportDocumentPrinting::rangesArePrinted()
{
    QFETCH(QString, ranges);
    QFETCH(QPrinter::PageOrder, order);
    QFETCH(QList<int>, pages);
    QPrinter printer;
    printer.setOutputFileName(fileName);
    printer.setPageRanges(QPageRanges::fromString(ranges));
    printer.setPageOrder(order);

    QCOMPARE(pagesOf(ReportPrintRange(printer, 6)), pages);
}

void TestTXReportDocumentPrinting::numbersStayThoseOfTheReport()
{
    TXReportDocument report;
    report.addPages(5, drawMark);
    QPrinter printer;
    printer.setOutputFileName(fileName);
    printer.setFromTo(2, 3);
    RecordingDelegate delegate;

    QVERIFY(report.print(&printer, &delegate));

    PdfFile file(fileName);
    const QStringList texts = file.pageTexts();
    QCOMPARE(texts.size(), 2);
    QVERIFY(texts.at(0).contains("drawn2") && texts.at(0).contains("page 2 of 5"));
    QVERIFY(texts.at(1).contains("drawn3") && texts.at(1).contains("page 3 of 5"));
    QCOMPARE(delegate.messages, QStringList({"Page 1 of 2", "Page 2 of 2"}));
}

void TestTXReportDocumentPrinting::rangeOutsideTheReportFails()
{
    TXReportDocument report;
    report.addPages(2, drawMark);
    QPrinter printer;
    QFile::remove(fileName);
    printer.setOutputFileName(fileName);
    printer.setFromTo(3, 7);
    TXError error;

    QVERIFY(!report.print(&printer, nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(),
             QString("The report has none of the pages that are to be printed."));
    QVERIFY(!QFile::exists(fileName));
}

void TestTXReportDocumentPrinting::hugeRangesCostNothing()
{
    constexpr int kMost = std::numeric_limits<int>::max();
    QPrinter printer;
    printer.setOutputFileName(fileName);
    printer.setFromTo(5, kMost);
    const ReportPrintRange range(printer, kMost);

    QCOMPARE(range.count(), kMost - 4);
    QCOMPARE(range.page(0), 4);
    QCOMPARE(range.page(range.count() - 1), kMost - 1);
}

void TestTXReportDocumentPrinting::cancelAbortsThePrinter()
{
    TXReportDocument report;
    report.addPages(10, drawMark);
    PoorPrinter printer;
    RecordingDelegate delegate;
    delegate.whenProgressing = [&](float percent) {
        if (percent >= 20) {
            report.cancel();
        }
    };
    TXError error;

    QVERIFY(!report.print(&printer, &delegate, &error));

    QVERIFY(printer.engine.isAborted);
    QVERIFY(report.isCancelled());
    QVERIFY(!error.isValid());
    QCOMPARE(delegate.percents, QList<float>({0, 10, 20, 100}));
    QCOMPARE(delegate.errors, QStringList());
}

void TestTXReportDocumentPrinting::missingPrinterFails()
{
    TXReportDocument report;
    report.addPages(1, drawMark);
    TXError error;

    QVERIFY(!report.print(nullptr, nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(), QString("There is no printer."));
}

void TestTXReportDocumentPrinting::reportWithoutPagesFails()
{
    PoorPrinter printer;
    TXReportDocument report;
    TXError error;

    QVERIFY(!report.print(&printer, nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(), QString("The report has no pages."));
}

void TestTXReportDocumentPrinting::printerThatPaintsAlreadyFails()
{
    PoorPrinter printer;
    const QPainter painter(&printer);
    TXReportDocument report;
    report.addPages(1, drawMark);
    TXError error;

    QVERIFY(!report.print(&printer, nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(), QString("The printer \"Poor\" can't be started."));
}

void TestTXReportDocumentPrinting::printerThatDoesNotStartFails()
{
    PoorPrinter printer;
    printer.paintEngine.starts = false;
    TXReportDocument report;
    report.addPages(1, drawMark);
    TXError error;
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");

    QVERIFY(!report.print(&printer, nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(), QString("The printer \"Poor\" can't be started."));
}

void TestTXReportDocumentPrinting::failingPrinterIsTold_data()
{
    QTest::addColumn<bool>("takesPaper");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("reason");

    QTest::newRow("good") << true << 100 << QString();
    QTest::newRow("other paper")
        << false << 100 << "The printer \"Poor\" does not take the page size of the report.";
    QTest::newRow("out of paper") << true << 2 << "The printer \"Poor\" has stopped in the middle.";
}

void TestTXReportDocumentPrinting::failingPrinterIsTold()
{
    QFETCH(bool, takesPaper);
    QFETCH(int, pages);
    QFETCH(QString, reason);
    PoorPrinter printer;
    printer.engine.takesPaper = takesPaper;
    printer.engine.pagesLeft = pages;
    TXReportDocument report;
    report.addPages(3, drawMark);
    RecordingDelegate delegate;
    TXError error;

    QCOMPARE(report.print(&printer, &delegate, &error), reason.isEmpty());

    QCOMPARE(error.getLocalizedDescription(), reason);
    QCOMPARE(delegate.errors, reason.isEmpty() ? QStringList() : QStringList(reason));
    QCOMPARE(delegate.percents.count(100), 1);
    QCOMPARE(delegate.percents.last(), 100.0F);
    QVERIFY(!report.isCancelled());
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocumentPrinting>(argc, argv);
}

#include "tst_TXReportDocumentPrinting.moc"
