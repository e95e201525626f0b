#include "PdfFile.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QFont>
#include <QImage>
#include <QMap>
#include <QPageLayout>
#include <QPageSize>
#include <QPen>
#include <QPrinter>

#include <algorithm>

namespace {

/// What stands right of the word "n<row>", from left to right, one blank between the words.
QString textOfRow(const QList<PdfFile::Word> &words, int row)
{
    constexpr double kSameRowPoints = 4.0;
    const QString name = QStringLiteral("n%1").arg(row);
    const auto isName = [&](const auto &word) {
        return word.text == name;
    };
    const auto found = std::find_if(words.begin(), words.end(), isName);
    if (found == words.end()) {
        return QStringLiteral("row not found");
    }
    QMap<double, QString> texts;
    for (const PdfFile::Word &word : words) {
        if (qAbs(word.box.bottom() - found->box.bottom()) < kSameRowPoints && word.text != name) {
            texts.insert(word.box.left(), word.text);
        }
    }
    return QStringList(texts.values()).join(u' ').normalized(QString::NormalizationForm_C);
}

QStringList textsToFind()
{
    return {QStringLiteral("Plain ASCII text"),
            QStringLiteral("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"),
            QStringLiteral("0123456789 1.25 -3,5 1e-9"),
            QStringLiteral("Ångström, été, naïve, Größe, ñandú, œuvre"),
            QStringLiteral("Ελληνικά γράμματα"),
            QStringLiteral("Кириллица, щётка"),
            QStringLiteral("jump over Tj AV To"),
            QStringLiteral("L* a* b* C* h° ±0.5 × 2 ≤ ∞"),
            QStringLiteral("e\u0301te\u0301 a\u0308 n\u0303"),
            QStringLiteral("ΔE 2.31 ½ ‰ €")};
}

} // namespace

class TestReportPdfText : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void titleAndAuthorComeBack_data();
    void titleAndAuthorComeBack();
    void everyTextOfATableIsFound();
    void everyTextOfASceneIsFound();
    void joinedLettersAreFoundAsTheirLigature();
    void wordsFromTheRightAreFoundInTheirOwnOrder();
    void charactersBeyondThePlanesFirstLeaveTheirNeighboursBe();
    void fontsAreEmbedded();
    void textsAndLinesAreNoPictures();
    void printedReportIsTheWrittenOne();
};

void TestReportPdfText::titleAndAuthorComeBack_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("author");
    QTest::newRow("plain") << "Report"
                           << "Jane Doe";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("title only") << "Report"
                                << "";
    QTest::newRow("author only") << ""
                                 << "Jane Doe";
    QTest::newRow("accents") << "Étude n° 5"
                             << "Zoë Müller";
    QTest::newRow("parentheses") << "a (b) c) ((d"
                                 << ")(";
    QTest::newRow("backslashes") << "C:\\new\\1\\"
                                 << "\\";
    QTest::newRow("from the right") << "דוח צבע"
                                    << "محمد";
    QTest::newRow("Greek and Cyrillic") << "Χρώμα"
                                        << "Цвет";
    QTest::newRow("ideographs") << "色彩報告"
                                << "山田";
    QTest::newRow("astral") << "𝔄 report 😀"
                            << "𝔅";
    QTest::newRow("bytes of a line's end") << "č਍Ċഊ"
                                           << "č਍Ċഊ";
}

void TestReportPdfText::titleAndAuthorComeBack()
{
    QFETCH(QString, title);
    QFETCH(QString, author);
    TXReportDocument report;
    // The fonts of the tests cannot show all of them.
    removeHeaderAndFooter(report);
    report.setTitle(title);
    report.setAuthor(author);
    report.addTable(tableOf({QStringLiteral("text")}), reportTestFont(10));
    PdfFile pdf = written(report);
    const PdfFile::Information information = pdf.information();

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(information.title, title);
    QCOMPARE(information.author, author);
    QCOMPARE(pdf.words().size(), 1);
}

void TestReportPdfText::everyTextOfATableIsFound()
{
    const QStringList texts = textsToFind();
    TXReportDocument report;
    report.addTable(tableOf(texts), reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    for (int row = 0; row < texts.size(); ++row) {
        QCOMPARE(textOfRow(words, row), texts[row].normalized(QString::NormalizationForm_C));
    }
}

void TestReportPdfText::everyTextOfASceneIsFound()
{
    const QStringList texts = textsToFind();
    TXGraphicsScene scene;
    for (int row = 0; row < texts.size(); ++row) {
        scene.drawText(QStringLiteral("n%1").arg(row), {0, row * 20.0}, reportTestFont(10),
                       Qt::black);
        scene.drawText(texts[row], {40, row * 20.0}, reportTestFont(10), Qt::black);
    }
    TXReportDocument report;
    report.addPage(&scene);
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);

    QCOMPARE(pdf.errorText(), QString());
    for (int row = 0; row < texts.size(); ++row) {
        QCOMPARE(textOfRow(words, row), texts[row].normalized(QString::NormalizationForm_C));
    }
}

void TestReportPdfText::joinedLettersAreFoundAsTheirLigature()
{
    // Qt names one character for each glyph. Viewers take a ligature for its letters when they
    // search.
    TXReportDocument report;
    report.addTable(tableOf({QStringLiteral("first office affluent")}), reportTestFont(10));
    PdfFile pdf = written(report);
    const QString text = textOfRow(pdf.words().value(0), 0);

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(text.normalized(QString::NormalizationForm_KC),
             QStringLiteral("first office affluent"));
}

void TestReportPdfText::wordsFromTheRightAreFoundInTheirOwnOrder()
{
    // On paper such letters stand from right to left, each a word of poppler's own. As a line
    // poppler turns them round, and puts the marks of the direction around them.
    const QString hebrew = QStringLiteral("שלום");
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addTable(tableOf({hebrew, QStringLiteral("after")}), reportTestFont(10));
    PdfFile pdf = written(report);
    const QString text = pdf.pageTexts().value(0);
    QString fromTheLeft = textOfRow(pdf.words().value(0), 0);

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY2(text.contains(hebrew), qPrintable(text));
    QVERIFY(text.contains(QStringLiteral("after")));
    fromTheLeft.remove(u' ');
    std::reverse(fromTheLeft.begin(), fromTheLeft.end());
    QCOMPARE(fromTheLeft, hebrew);
}

void TestReportPdfText::charactersBeyondThePlanesFirstLeaveTheirNeighboursBe()
{
    // Qt names no characters above U+FFFF in a PDF: such a one is shown and cannot be found.
    TXReportDocument report;
    removeHeaderAndFooter(report);
    report.addTable(tableOf({QStringLiteral("before 𝔄 after"), QStringLiteral("next")}),
                    reportTestFont(10));
    PdfFile pdf = written(report);
    const QList<PdfFile::Word> words = pdf.words().value(0);
    const QImage page = pdf.rendered(1, 72);

    QCOMPARE(pdf.errorText(), QString());
    const QRectF before = boxOf(words, QStringLiteral("before"));
    const QRectF after = boxOf(words, QStringLiteral("after"));
    QVERIFY(!before.isNull());
    QVERIFY(!after.isNull());
    QVERIFY(!boxOf(words, QStringLiteral("next")).isNull());
    const QRect between(QPointF(before.right() + 1, before.top()).toPoint(),
                        QPointF(after.left() - 1, after.bottom()).toPoint());
    int darkPixels = 0;
    for (int y = between.top(); y <= between.bottom(); ++y) {
        for (int x = between.left(); x <= between.right(); ++x) {
            darkPixels += qGray(page.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    QVERIFY2(darkPixels > 3, qPrintable(QString::number(darkPixels)));
}

void TestReportPdfText::fontsAreEmbedded()
{
    QFont bold = reportTestFont(12);
    bold.setBold(true);
    TXGraphicsScene scene;
    scene.drawText(QStringLiteral("bold"), {10, 10}, bold, Qt::black);
    TXTable table = tableOf(textsToFind());
    TXTable::initHeaderOfTableWithTitles(table, {QStringLiteral("Title")}, false, 20);
    TXReportDocument report;
    report.setTitle(QStringLiteral("header"));
    report.addPage(&scene);
    report.addTable(table, QFont(QStringLiteral("DejaVu Serif"), 9));
    PdfFile pdf = written(report);
    const QList<PdfFile::Font> fonts = pdf.fonts();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(fonts.size() >= 3);
    for (const PdfFile::Font &font : fonts) {
        QVERIFY2(font.isEmbedded && font.hasCharacters, qPrintable(font.name));
    }
}

void TestReportPdfText::textsAndLinesAreNoPictures()
{
    TXGraphicsScene scene;
    scene.drawText(QStringLiteral("text"), {10, 10}, reportTestFont(10), Qt::black);
    scene.drawLine({0, 0}, {100, 100}, QPen(Qt::blue, 0.5), false);
    scene.drawEllipse({50, 50, 100, 60}, QPen(Qt::red, 1), Qt::yellow, false);
    scene.drawRoundedRect({50, 150, 100, 60}, 8, 8, QPen(Qt::red, 1), Qt::green, false);
    scene.drawTable(tableOf(textsToFind()), {20, 250}, reportTestFont(10));
    TXReportDocument report;
    report.addPage(&scene);
    report.addTable(tableOf(textsToFind()), reportTestFont(10));
    PdfFile pdf = written(report);

    QCOMPARE(pdf.pictures().size(), 0);
    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pdf.words().size(), 2);
}

void TestReportPdfText::printedReportIsTheWrittenOne()
{
    TXGraphicsScene scene;
    scene.drawText(QStringLiteral("cover"), {123.4, 234.5}, reportTestFont(17), Qt::black);
    TXReportDocument report;
    report.setTitle(QStringLiteral("Printed"));
    report.setPageLayout(
        {QPageSize(QPageSize::A5), QPageLayout::Landscape, {30, 40, 30, 40}, QPageLayout::Point});
    report.addPage(&scene);
    report.addTable(tableOf(textsToFind() + textsToFind()), reportTestFont(10));
    PdfFile pdf = written(report);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName(QStringLiteral("printed.pdf")));
    QVERIFY(report.print(&printer));
    PdfFile printed(fileName(QStringLiteral("printed.pdf")));

    QCOMPARE(printed.information().title, QStringLiteral("Printed"));
    QCOMPARE(printed.information().pageSizes, pdf.information().pageSizes);
    const QList<QList<PdfFile::Word>> expected = pdf.words();
    const QList<QList<PdfFile::Word>> found = printed.words();
    QCOMPARE(printed.errorText(), QString());
    QCOMPARE(found.size(), expected.size());
    QVERIFY(found.size() > 2);
    for (int page = 0; page < found.size(); ++page) {
        QCOMPARE(found[page].size(), expected[page].size());
        for (int i = 0; i < found[page].size(); ++i) {
            const PdfFile::Word &word = found[page][i];
            const QPointF place = expected[page][i].box.topLeft();
            QCOMPARE(word.text, expected[page][i].text);
            QVERIFY2(isNear(word.box.topLeft(), place),
                     qPrintable(toText(word.box.topLeft(), place)));
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestReportPdfText>(argc, argv);
}

#include "tst_ReportPdfText.moc"
