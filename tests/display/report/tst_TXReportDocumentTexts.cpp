#include "TXReportDocument.h"

#include "ReportDocumentHelpers.h"
#include "ReportTestFont.h"
#include "ReportTexts.h"
#include "TestBase.h"

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

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocumentTexts>(argc, argv);
}

#include "tst_TXReportDocumentTexts.moc"
