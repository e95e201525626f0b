#include "PdfFile.h"
#include "ReportDocumentHelpers.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TestBase.h"

#include <QTemporaryDir>

#include <cmath>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

class TestTXReportDocumentErrors : public TestBase
{
    Q_OBJECT

private slots:
    void targetsThatCannotBeWritten_data();
    void targetsThatCannotBeWritten();
    void fullDiskLeavesTheEarlierFile_data();
    void fullDiskLeavesTheEarlierFile();
    void reportWithoutPagesFails();
    void paperWithoutRoomFails_data();
    void paperWithoutRoomFails();
    void failureIsToldInTheLanguageOfItsReader();
    void successLeavesTheErrorAlone();
    void delegateAndErrorMayBeNull();
    void oddContentIsWritten();
};

namespace {

/// Lets files of this process grow to so many bytes, as a disk that fills would.
class FullDisk
{
    Q_DISABLE_COPY_MOVE(FullDisk)

public:
    explicit FullDisk(rlim_t bytes)
        : earlierHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &earlier);
        rlimit limit = earlier;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &earlier);
        std::signal(SIGXFSZ, earlierHandler);
    }

private:
    rlimit earlier = {};
    void (*earlierHandler)(int);
};

void drawText(TXGraphicsScene *scene, int page)
{
    scene->drawText(QStringLiteral("page %1").arg(page), {0, 0}, tenPoints(), Qt::black);
}

QString descriptionOf(const QString &fileName, const QString &reason)
{
    return QStringLiteral("The report could not be written to \"") + fileName
        + QStringLiteral("\": ") + reason;
}

} // namespace

void TestTXReportDocumentErrors::targetsThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");

    QTest::newRow("a folder") << "folder"
                              << "Filename refers to a directory";
    QTest::newRow("in a missing folder") << "missing/a.pdf"
                                         << "No such file or directory";
    QTest::newRow("below a file") << "file/a.pdf"
                                  << "Not a directory";
    QTest::newRow("a pipe") << "pipe"
                            << "This is not a regular file.";
    QTest::newRow("a link to a pipe") << "link"
                                      << "This is not a regular file.";
    QTest::newRow("zero character")
        << QString("a%1b.pdf").arg(QChar(0)) << "This is not a file name.";
    QTest::newRow("too long") << QString(300, 'x') << "File name too long";
    QTest::newRow("marks of arguments") << "missing/%1 %2 %3.pdf"
                                        << "No such file or directory";
}

void TestTXReportDocumentErrors::targetsThatCannotBeWritten()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("folder"));
    fill(folder.filePath("file"), "here");
    QCOMPARE(mkfifo(QFile::encodeName(folder.filePath("pipe")).constData(), 0600), 0);
    QVERIFY(QFile::link(folder.filePath("pipe"), folder.filePath("link")));
    const QStringList before = entriesOf(folder.path());
    TXReportDocument report;
    report.addPages(2, drawText);
    RecordingDelegate delegate;
    TXError error;
    const QString fileName = folder.filePath(name);

    QVERIFY(!report.writePdf(fileName, &delegate, &error));

    QVERIFY(!error.domain.isEmpty());
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(), descriptionOf(fileName, reason));
    QCOMPARE(delegate.errors, QStringList(error.getLocalizedDescription()));
    QCOMPARE(delegate.percents.count(100), 1);
    QCOMPARE(delegate.percents.last(), 100.0F);
    QVERIFY(!delegate.percentsBeforeLastError.contains(100));
    QVERIFY(!report.isCancelled());
    QCOMPARE(entriesOf(folder.path()), before);
    QCOMPARE(contentsOf(folder.filePath("file")), QByteArray("here"));
}

void TestTXReportDocumentErrors::fullDiskLeavesTheEarlierFile_data()
{
    QTest::addColumn<int>("roomBytes");

    // The report takes some 60,000 bytes: no room, in the head, amid the pages, in the last bytes.
    QTest::newRow("none") << 0;
    QTest::newRow("head") << 100;
    QTest::newRow("pages") << 20'000;
    QTest::newRow("all but the end") << -10;
}

void TestTXReportDocumentErrors::fullDiskLeavesTheEarlierFile()
{
    QFETCH(int, roomBytes);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("report.pdf");
    TXReportDocument report;
    report.setAuthor("A");
    report.addTable(tableOfRows(3000), tenPoints());
    QVERIFY(report.writePdf(fileName));
    const int wholeSize = int(QFileInfo(fileName).size());
    QVERIFY(wholeSize > 50'000);
    fill(fileName, "earlier");
    RecordingDelegate delegate;
    TXError error;
    bool isWritten = true;
    {
        const FullDisk disk(rlim_t(roomBytes < 0 ? wholeSize + roomBytes : roomBytes));
        isWritten = report.writePdf(fileName, &delegate, &error);
    }

    QVERIFY(!isWritten);
    QCOMPARE(error.getLocalizedDescription(), descriptionOf(fileName, "File too large"));
    QCOMPARE(delegate.errors, QStringList(error.getLocalizedDescription()));
    QCOMPARE(delegate.percents.count(100), 1);
    QCOMPARE(delegate.percents.last(), 100.0F);
    QVERIFY(!report.isCancelled());
    QCOMPARE(contentsOf(fileName), QByteArray("earlier"));
    QCOMPARE(entriesOf(folder.path()), QStringList("report.pdf"));

    QVERIFY(report.writePdf(fileName));
    QCOMPARE(int(QFileInfo(fileName).size()), wholeSize);
}

void TestTXReportDocumentErrors::reportWithoutPagesFails()
{
    const QTemporaryDir folder;
    TXReportDocument report;
    report.addTable(TXTable(2, false), tenPoints());
    RecordingDelegate delegate;
    TXError error;

    QVERIFY(!report.writePdf(folder.filePath("a.pdf"), &delegate, &error));

    QCOMPARE(error.getLocalizedDescription(), QString("The report has no pages."));
    QCOMPARE(delegate.errors.size(), 1);
    QCOMPARE(delegate.percents, QList<float>({0, 100}));
    QCOMPARE(entriesOf(folder.path()), QStringList());
}

void TestTXReportDocumentErrors::paperWithoutRoomFails_data()
{
    QTest::addColumn<QPageSize>("size");
    QTest::addColumn<QMarginsF>("margins");

    const QPageSize a4(QPageSize::A4);
    const double nan = std::nan("");
    const double infinite = std::numeric_limits<double>::infinity();
    QTest::newRow("margins meet") << a4 << QMarginsF(298, 0, 298, 0);
    QTest::newRow("no room between the lines") << a4 << QMarginsF(0, 410, 0, 410);
    QTest::newRow("not a number") << a4 << QMarginsF(nan, nan, nan, nan);
    QTest::newRow("infinite") << a4 << QMarginsF(0, infinite, 0, 0);
    QTest::newRow("paper of no size")
        << QPageSize(QSizeF(0.2, 0.2), QPageSize::Point) << QMarginsF();
}

void TestTXReportDocumentErrors::paperWithoutRoomFails()
{
    QFETCH(QPageSize, size);
    QFETCH(QMarginsF, margins);
    QPageLayout layout(size, QPageLayout::Portrait, QMarginsF());
    // Only layouts of this mode take any margins.
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins(margins);
    const QTemporaryDir folder;
    TXReportDocument report;
    report.setPageLayout(layout);
    report.setTitle("T");
    report.addTable(tableOfRows(10), tenPoints());
    TXError error;

    QCOMPARE(report.pageLayout(), layout);
    QVERIFY(!report.writePdf(folder.filePath("a.pdf"), nullptr, &error));

    QCOMPARE(error.getLocalizedDescription(),
             QString("The margins, the header and the footer leave no room on the paper."));
    QCOMPARE(entriesOf(folder.path()), QStringList());
}

void TestTXReportDocumentErrors::failureIsToldInTheLanguageOfItsReader()
{
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *source, const char * /*comment*/,
                          int /*n*/) const override
        {
            return qstrcmp(context, "TXReportDocument") == 0
                ? QStringLiteral("translated: ") + QString::fromUtf8(source)
                : QString();
        }
    };
    TXReportDocument report;
    TXError error;
    QVERIFY(!report.writePdf("a.pdf", nullptr, &error));
    QCOMPARE(error.getLocalizedDescription(), QString("The report has no pages."));

    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(error.getLocalizedDescription(), QString("translated: The report has no pages."));
    QCOMPARE(TXReportDocument().footerText(TXAlignHorizontallyCentred),
             QString("translated: page {page} of {pages}"));
    QCoreApplication::removeTranslator(&translator);
}

void TestTXReportDocumentErrors::successLeavesTheErrorAlone()
{
    const QTemporaryDir folder;
    TXReportDocument report;
    report.addPages(1, drawText);
    TXError error;
    error.domain = "before";

    QVERIFY(report.writePdf(folder.filePath("a.pdf"), nullptr, &error));

    QCOMPARE(error.domain, QString("before"));
    QCOMPARE(error.getLocalizedDescription(), QString());
}

void TestTXReportDocumentErrors::delegateAndErrorMayBeNull()
{
    TXReportDocument report;

    QVERIFY(!report.writePdf(QString()));
    report.addPages(1, drawText);
    QVERIFY(!report.writePdf(QString()));
    QVERIFY(!report.isCancelled());
}

void TestTXReportDocumentErrors::oddContentIsWritten()
{
    const QTemporaryDir folder;
    TXReportDocument report;
    report.setTitle(QString(QChar(0xd800)) + QChar(0) + QString(100'000, 'T'));
    report.setAuthor(QString(100'000, 'A'));
    report.addTable(tableOfRows({std::nan(""), -5, 1e6, 0, 20}), tenPoints());
    TXTable withoutColumns(0, true);
    withoutColumns.addCell({{"CellElement", "alone"}});
    report.addTable(withoutColumns, tenPoints());
    report.addPages(1, [](TXGraphicsScene *scene, int) {
        scene->drawRect({-1e9, -1e9, 2e9, 2e9}, QPen(Qt::red, -1), Qt::NoBrush, true);
        scene->drawRect({0, 0, std::nan(""), 5}, QPen(), Qt::NoBrush, false);
        constexpr double kInfinite = std::numeric_limits<double>::infinity();
        scene->drawRect({-kInfinite, 0, kInfinite, 5}, QPen(), Qt::NoBrush, false);
        scene->drawLine({0, 0}, {1e300, -1e300}, QPen(), false);
        scene->drawText("far", {1e300, 10}, tenPoints(), Qt::black);
        drawText(scene, 7);
    });

    QVERIFY(report.writePdf(folder.filePath("a.pdf")));

    PdfFile file(folder.filePath("a.pdf"));
    QCOMPARE(file.information().pageSizes.size(), report.pageCount());
    QCOMPARE(file.information().author, report.author());
    QVERIFY(file.pageTexts().value(report.pageCount() - 2).contains("alone"));
    QVERIFY(file.pageTexts().last().contains("page 7"));
    QCOMPARE(file.errorText(), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocumentErrors>(argc, argv);
}

#include "tst_TXReportDocumentErrors.moc"
