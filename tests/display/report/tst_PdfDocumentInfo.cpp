#include "PdfDocumentInfo.h"
#include "PdfFile.h"
#include "ReportDocumentHelpers.h"
#include "TestBase.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

class TestPdfDocumentInfo : public TestBase
{
    Q_OBJECT

private slots:
    void updateIsNeededWhereQtDoesNotDo_data();
    void updateIsNeededWhereQtDoesNotDo();
    void readersFindTheTexts_data();
    void readersFindTheTexts();
    void whatIsWrittenStays();
    void unknownEndsAreRefused_data();
    void unknownEndsAreRefused();
};

namespace {

const QByteArray kTrailer =
    "0000000123 00000 n \ntrailer\n<<\n/Size 18 \n/Info 1 0 R\n/Root 2 0 R\n"
    ">>\nstartxref\n7124 \n%%EOF";

QByteArray pdfOfQt()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle("what Qt wrote");
        QPainter painter(&writer);
        painter.drawText(100, 100, "Hello");
    }
    return buffer.data();
}

} // namespace

void TestPdfDocumentInfo::updateIsNeededWhereQtDoesNotDo_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("author");
    QTest::addColumn<bool>("isNeeded");

    QTest::newRow("nothing") << ""
                             << "" << false;
    QTest::newRow("title") << "Häuser (und) \\"
                           << "" << false;
    QTest::newRow("author") << ""
                            << "A" << true;
    QTest::newRow("low byte of a line end") << "český"
                                            << "" << true;
    QTest::newRow("high byte of a line end") << QString(QChar(0x0d15)) << "" << true;
}

void TestPdfDocumentInfo::updateIsNeededWhereQtDoesNotDo()
{
    QFETCH(QString, title);
    QFETCH(QString, author);
    QFETCH(bool, isNeeded);
    PdfDocumentInfo info;
    info.title = title;
    info.author = author;

    QCOMPARE(info.needsUpdate(), isNeeded);
}

void TestPdfDocumentInfo::readersFindTheTexts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << "Anna Author";
    QTest::newRow("marks of the format") << "a(b)c)d( \\ <e> /f % [g]";
    QTest::newRow("letters") << "Jürgen Čapek, 日本, שלום";
    QTest::newRow("beyond 16 bits") << "😀 𝔸";
    QTest::newRow("line end bytes") << QString("x%1%2").arg(QChar(0x010d)).arg(QChar(0x0d0a));
    QTest::newRow("long") << QString(20'000, 'x');
}

void TestPdfDocumentInfo::readersFindTheTexts()
{
    QFETCH(QString, text);
    const QTemporaryDir folder;
    PdfDocumentInfo info;
    info.title = "T" + text;
    info.author = text;
    const QByteArray pdf = pdfOfQt();

    fill(folder.filePath("a.pdf"), pdf + info.update(pdf.right(1024), pdf.size()));

    PdfFile file(folder.filePath("a.pdf"));
    const PdfFile::Information found = file.information();
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(found.author, text);
    QCOMPARE(found.title, "T" + text);
    QCOMPARE(found.pageSizes.size(), 1);
    QCOMPARE(file.pageTexts().value(0).trimmed(), QString("Hello"));
}

void TestPdfDocumentInfo::whatIsWrittenStays()
{
    PdfDocumentInfo info;
    info.author = "A";
    info.creator = "program";
    info.creationTime = QDateTime(QDate(2024, 2, 29), QTime(12, 34, 56), Qt::OffsetFromUTC, 7200);

    const QByteArray update = info.update(kTrailer, 100'000);

    QVERIFY(update.contains("\n1 0 obj\n<<\n/Author <FEFF0041>\n/Creator <FEFF"));
    QVERIFY(update.contains("/Producer <FEFF"));
    QVERIFY(update.contains("/CreationDate (D:20240229103456Z)"));
    QVERIFY(!update.contains("/Title"));
    QVERIFY(
        update.contains("\nxref\n1 1\n0000100001 00000 n \ntrailer\n<<\n/Size 18 \n/Info 1 0 R\n"
                        "/Root 2 0 R\n/Prev 7124\n>>\nstartxref\n"));
    QVERIFY(update.endsWith("%%EOF\n"));
}

void TestPdfDocumentInfo::unknownEndsAreRefused_data()
{
    QTest::addColumn<QByteArray>("tail");
    QTest::addColumn<qint64>("size");

    const auto changed = [](const char *before, const char *after) {
        return QByteArray(kTrailer).replace(before, after);
    };
    QTest::newRow("nothing") << QByteArray() << qint64(0);
    QTest::newRow("no PDF") << QByteArray("trailer trailer trailer") << qint64(100'000);
    QTest::newRow("no dictionary") << changed("<<", "") << qint64(100'000);
    QTest::newRow("no information") << changed("/Info 1 0 R", "") << qint64(100'000);
    QTest::newRow("information beyond the size")
        << changed("/Info 1", "/Info 18") << qint64(100'000);
    QTest::newRow("number out of range")
        << changed("/Info 1", "/Info 99999999999") << qint64(100'000);
    QTest::newRow("no size") << changed("/Size 18", "") << qint64(100'000);
    QTest::newRow("no place") << changed("7124", "") << qint64(100'000);
    QTest::newRow("place behind the end") << kTrailer << qint64(7000);
    QTest::newRow("no end") << changed("%%EOF", "") << qint64(100'000);
    QTest::newRow("more behind the end") << kTrailer + "more" << qint64(100'000);
    QTest::newRow("an update already") << changed("/Size", "/Prev 12 /Size") << qint64(100'000);
    QTest::newRow("larger than places can tell") << kTrailer << qint64(9'999'999'999);
}

void TestPdfDocumentInfo::unknownEndsAreRefused()
{
    QFETCH(QByteArray, tail);
    QFETCH(qint64, size);
    PdfDocumentInfo info;
    info.author = "A";

    QVERIFY(!info.update(kTrailer, 9'999'999'998).isEmpty());
    QCOMPARE(info.update(tail, size), QByteArray());
}

int main(int argc, char **argv)
{
    return runTest<TestPdfDocumentInfo>(argc, argv);
}

#include "tst_PdfDocumentInfo.moc"
