#include "TXReportDocument.h"

#include "ReportDocumentHelpers.h"
#include "ReportTestFont.h"
#include "ReportTexts.h"
#include "TestBase.h"

#include <algorithm>
#include <memory>

namespace {

QStringList wordsOf(const QList<TXReportText> &texts)
{
    QStringList words;
    for (const TXReportText &text : texts) {
        words.append(text.text);
    }
    return words;
}

const QString kAlef(QChar(0x05d0));
const QString kBet(QChar(0x05d1));
const QString kGimel(QChar(0x05d2));
const QString kSeen(QChar(0x0633));
const QString kMeem(QChar(0x0645));

/// The texts of each line from the left, the lines from the top.
QList<TXReportText> onLines(const QList<QStringList> &lines)
{
    QList<TXReportText> texts;
    for (int line = 0; line < lines.size(); ++line) {
        for (int place = 0; place < lines.at(line).size(); ++place) {
            texts.append({lines.at(line).at(place), QRectF(20 * place, 20 * line, 10, 10)});
        }
    }
    return texts;
}

TXTable numberedTable(int rows)
{
    TXTable table(2, false);
    TXTable::initHeaderOfTableWithTitles(table, {"Patch", "Density"}, false, 0);
    for (int row = 0; row < rows; ++row) {
        table.addCell({{"CellElement", QString("P%1").arg(row)}, {"CellSize", QSizeF(60, 20)}});
        table.addCell({{"CellElement", QString("%1").arg(row)}, {"CellSize", QSizeF(60, 20)}});
    }
    return table;
}

} // namespace

/// The texts of a report's pages, for those who do not see them.
class TestTXReportDocumentTexts : public TestBase
{
    Q_OBJECT

private slots:
    void headerAndFooterStandAroundThePage();
    void sceneIsReadWhereItStandsOnThePaper();
    void drawnPagesAreReadEach();
    void tableIsReadPageByPage();
    void pagesOutsideHaveNoTexts();
    void destroyedSceneLeavesHeaderAndFooter();
    void cellsWithoutTextAreNotRead();
    void textsOnOneLineComeFromTheLeft();
    void linesRunAsTheirTextsDo_data();
    void linesRunAsTheirTextsDo();
    void linesWithoutLettersRunAsTheOthers_data();
    void linesWithoutLettersRunAsTheOthers();
    void overlappingTextsFromTheRightGoByTheirRightEdges();
    void rowsOfATableRunAsTheirTextsDo();
    void sceneIsReadFromTheRight();
};

void TestTXReportDocumentTexts::headerAndFooterStandAroundThePage()
{
    TXGraphicsScene scene;
    scene.drawText("Cover", {0, 0}, reportTestFont(), Qt::black);
    TXReportDocument report;
    report.setTitle("Comparison");
    report.setHeaderText("right {page}", TXAlignRight);
    report.addPage(&scene);

    const QList<TXReportText> texts = report.pageTexts(0);

    QCOMPARE(wordsOf(texts), QStringList({"Comparison", "right 1", "Cover", "page 1 of 1"}));
    const QRectF paper = report.pageLayout().fullRect(QPageLayout::Point);
    for (const TXReportText &text : texts) {
        QVERIFY2(paper.contains(text.rect), qPrintable(text.text));
    }
    QVERIFY(texts.at(1).rect.left() > texts.at(0).rect.right());
    QVERIFY(texts.at(3).rect.top() > report.contentRect().bottom());
}

void TestTXReportDocumentTexts::sceneIsReadWhereItStandsOnThePaper()
{
    TXGraphicsScene scene;
    scene.drawText("Cover", {7, 9}, reportTestFont(), Qt::black);
    TXReportDocument report;
    report.addPage(&scene);
    const QRectF rect = report.pageTexts(0).constFirst().rect;
    QCOMPARE(rect.topLeft(), report.contentRect().topLeft() + QPointF(7, 9));
}

void TestTXReportDocumentTexts::drawnPagesAreReadEach()
{
    TXReportDocument report;
    report.setFooterText({}, TXAlignHorizontallyCentred);
    report.addPages(3, [](TXGraphicsScene *scene, int page) {
        scene->drawText(QString("drawn %1").arg(page), {}, reportTestFont(), Qt::black);
    });
    QCOMPARE(wordsOf(report.pageTexts(0)), QStringList("drawn 0"));
    QCOMPARE(wordsOf(report.pageTexts(2)), QStringList("drawn 2"));
}

void TestTXReportDocumentTexts::tableIsReadPageByPage()
{
    constexpr int kRows = 10'000;
    TXReportDocument report;
    report.setFooterText({}, TXAlignHorizontallyCentred);
    report.addTable(numberedTable(kRows), reportTestFont());
    QVERIFY(report.pageCount() > 100);

    int read = 0;
    for (int page = 0; page < report.pageCount(); ++page) {
        const QList<TXReportText> texts = report.pageTexts(page);
        QCOMPARE(texts.at(0).text, "Patch");
        QCOMPARE(texts.at(1).text, "Density");
        QCOMPARE(texts.at(2).text, QString("P%1").arg(read));
        QCOMPARE(texts.at(2).rect.size(), QSizeF(60, 20));
        read += int(texts.size() - 2) / 2;
    }
    QCOMPARE(read, kRows);
}

void TestTXReportDocumentTexts::pagesOutsideHaveNoTexts()
{
    TXReportDocument report;
    QCOMPARE(report.pageTexts(0).size(), 0);
    report.addTable(numberedTable(1), reportTestFont());
    QCOMPARE(report.pageTexts(-1).size(), 0);
    QCOMPARE(report.pageTexts(1).size(), 0);
}

void TestTXReportDocumentTexts::destroyedSceneLeavesHeaderAndFooter()
{
    auto scene = std::make_unique<TXGraphicsScene>();
    scene->drawText("Cover", {}, reportTestFont(), Qt::black);
    TXReportDocument report;
    report.addPage(scene.get());
    scene.reset();
    QCOMPARE(wordsOf(report.pageTexts(0)), QStringList("page 1 of 1"));
}

void TestTXReportDocumentTexts::cellsWithoutTextAreNotRead()
{
    TXTable table(3, false);
    QPixmap picture(4, 4);
    picture.fill(Qt::cyan);
    table.addCell({{"CellElement", picture}, {"CellSize", QSizeF(30, 20)}});
    table.addCell(TXTable::invisibleCellHashTemplate());
    table.addCell({{"CellElement", 1.5}, {"CellSize", QSizeF(40, 20)}});
    const QList<TXReportText> texts = ReportTexts::ofTable(table, {10, 10});
    QCOMPARE(wordsOf(texts), QStringList("1.5"));
    QCOMPARE(texts.constFirst().rect, QRectF(90, 10, 40, 20));
}

void TestTXReportDocumentTexts::textsOnOneLineComeFromTheLeft()
{
    const QList<TXReportText> texts = {
        {"third", QRectF(0, 40, 10, 10)},
        {"second", QRectF(50, 3, 10, 10)},
        {"first", QRectF(0, 0, 10, 12)},
    };
    QCOMPARE(wordsOf(ReportTexts::inReadingOrder(texts)),
             QStringList({"first", "second", "third"}));
    QCOMPARE(ReportTexts::inReadingOrder({}).size(), 0);
}

void TestTXReportDocumentTexts::linesRunAsTheirTextsDo_data()
{
    QTest::addColumn<QStringList>("fromLeft");
    QTest::addColumn<bool>("isFromRight");
    QTest::newRow("left to right") << QStringList{"a", "b", "c"} << false;
    QTest::newRow("right to left") << QStringList{kAlef, kBet, kGimel} << true;
    QTest::newRow("Arabic") << QStringList{kSeen, kMeem} << true;
    QTest::newRow("most from the right") << QStringList{kAlef, "b", kGimel} << true;
    QTest::newRow("most from the left") << QStringList{"a", kBet, "c"} << false;
    QTest::newRow("as many of both") << QStringList{kAlef, "b"} << false;
    QTest::newRow("numbers do not count") << QStringList{"1", "2.5", "100 %", kAlef} << true;
    QTest::newRow("numbers alone") << QStringList{"1", "2.5", "-"} << false;
    QTest::newRow("begins with a number") << QStringList{"1 " + kAlef, "2 " + kBet} << true;
    QTest::newRow("other script, beyond 16 bits")
        << QStringList{kAlef, QString::fromUcs4(U"\U00020000", 1), "c"} << false;
}

void TestTXReportDocumentTexts::linesRunAsTheirTextsDo()
{
    QFETCH(QStringList, fromLeft);
    QFETCH(bool, isFromRight);
    QStringList wanted = fromLeft;
    if (isFromRight) {
        std::reverse(wanted.begin(), wanted.end());
    }
    QCOMPARE(wordsOf(ReportTexts::inReadingOrder(onLines({fromLeft}))), wanted);
}

void TestTXReportDocumentTexts::linesWithoutLettersRunAsTheOthers_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("read");
    QTest::newRow("left to right") << "a" << QStringList{"a", "1", "2", "3"};
    QTest::newRow("right to left") << kAlef << QStringList{kAlef, "3", "2", "1"};
    QTest::newRow("nothing to go by") << "0" << QStringList{"0", "1", "2", "3"};
}

void TestTXReportDocumentTexts::linesWithoutLettersRunAsTheOthers()
{
    QFETCH(QString, title);
    QFETCH(QStringList, read);
    const QList<TXReportText> texts = onLines({{title}, {"1", "2", "3"}});
    QCOMPARE(wordsOf(ReportTexts::inReadingOrder(texts)), read);
}

/// From the right a text begins at its right edge, wherever its left one is.
void TestTXReportDocumentTexts::overlappingTextsFromTheRightGoByTheirRightEdges()
{
    const QList<TXReportText> texts = {{kBet, QRectF(50, 0, 10, 10)},
                                       {kAlef, QRectF(0, 0, 100, 10)}};
    QCOMPARE(wordsOf(ReportTexts::inReadingOrder(texts)), QStringList({kAlef, kBet}));
}

void TestTXReportDocumentTexts::rowsOfATableRunAsTheirTextsDo()
{
    TXTable table(2, false);
    for (const QString &text :
         {kBet, kAlef, QString("1"), QString("2"), QString("a"), QString("b")}) {
        table.addCell({{"CellElement", text}, {"CellSize", QSizeF(40, 20)}});
    }
    const QList<TXReportText> texts = ReportTexts::ofTable(table, {});
    QCOMPARE(wordsOf(texts), QStringList({kAlef, kBet, "1", "2", "a", "b"}));
    QCOMPARE(texts.constFirst().rect.left(), 40.0);

    TXTable ofNumbers(2, false);
    for (const QString &text : {kBet, kAlef, QString("1"), QString("2")}) {
        ofNumbers.addCell({{"CellElement", text}, {"CellSize", QSizeF(40, 20)}});
    }
    QCOMPARE(wordsOf(ReportTexts::ofTable(ofNumbers, {})), QStringList({kAlef, kBet, "2", "1"}));
}

void TestTXReportDocumentTexts::sceneIsReadFromTheRight()
{
    TXGraphicsScene scene;
    scene.drawText(kBet, {0, 0}, reportTestFont(), Qt::black);
    scene.drawText(kAlef, {200, 0}, reportTestFont(), Qt::black);
    QCOMPARE(wordsOf(ReportTexts::ofScene(scene)), QStringList({kAlef, kBet}));
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocumentTexts>(argc, argv);
}

#include "tst_TXReportDocumentTexts.moc"
