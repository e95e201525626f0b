#include "ChartReportCover.h"
#include "ChartReportTables.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TXTableCell.h"
#include "WebSettings.h"
#include "WebStatusPage.h"

#include "Contrast.h"
#include "PdfFile.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QGraphicsSimpleTextItem>
#include <QPainter>
#include <QTextBrowser>

#include <cmath>

/// The contrast of coloured texts on paper and on the page for web browsers, which are the same in
/// each palette.
class TestPaperTexts : public TestBase
{
    Q_OBJECT

private slots:
    void coverOfTheReport();
    void tablesOfTheReport_data();
    void tablesOfTheReport();
    void statusPageForBrowsers();
    void wordsOfTheManual();
};

/// Each text is taken away to see its ground.
void TestPaperTexts::coverOfTheReport()
{
    TXGraphicsScene scene;
    scene.setSceneRect(0, 0, 595, 842);
    ChartReportCover(&scene, QSizeF(595, 842), ChartReportOptions()).draw("Title");
    int texts = 0;
    const QList<QGraphicsItem *> items = scene.items();
    for (QGraphicsItem *item : items) {
        const auto *text = qgraphicsitem_cast<QGraphicsSimpleTextItem *>(item);
        if (!text || text->text().isEmpty()) {
            continue;
        }
        item->hide();
        QImage ground(40, 20, QImage::Format_RGB32);
        ground.fill(Qt::white);
        QPainter painter(&ground);
        scene.render(&painter, ground.rect(), item->sceneBoundingRect(), Qt::IgnoreAspectRatio);
        painter.end();
        item->show();
        const qreal found = Contrast::between(text->brush().color(), Contrast::groundOf(ground));
        QVERIFY2(found >= Contrast::kText, qPrintable(text->text() + ' ' + QString::number(found)));
        ++texts;
    }
    QVERIFY(texts > 60);
}

void TestPaperTexts::tablesOfTheReport_data()
{
    QTest::addColumn<TXTable>("table");
    QTest::addColumn<int>("leastTexts");
    const ChartReportTables tables(QSizeF(595, 842), ChartReportOptions());
    QTest::newRow("patches") << tables.patches() << 24 * 10;
    QTest::newRow("pairs") << tables.pairs() << 276 * 7;
}

void TestPaperTexts::tablesOfTheReport()
{
    QFETCH(TXTable, table);
    QFETCH(int, leastTexts);
    int texts = 0;
    const QList<QList<TXTableCell>> rows = table.getTableCellList();
    for (const QList<TXTableCell> &row : rows) {
        for (const TXTableCell &cell : row) {
            const QString text = cell.element.toString();
            if (text.isEmpty()) {
                continue;
            }
            const qreal found = Contrast::between(cell.textColor, cell.insideColor);
            QVERIFY2(found >= Contrast::kText, qPrintable(text + ' ' + QString::number(found)));
            ++texts;
        }
    }
    QVERIFY2(texts >= leastTexts, qPrintable(QString::number(texts)));
}

/// In the colours of the page also where the browser's own are dark. The heading is measured, as
/// all texts have one colour.
void TestPaperTexts::statusPageForBrowsers()
{
    QTextBrowser browser;
    QPalette dark = browser.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    browser.setPalette(dark);
    browser.setFrameShape(QFrame::NoFrame);
    browser.setHtml(WebStatusPage::html({}));
    browser.resize(500, 90);

    const QImage heading = PixelProbe(browser, 2).image();

    QCOMPARE(Contrast::groundOf(heading), QColor(Qt::white));
    QVERIFY(Contrast::ofText(heading) >= Contrast::kHigh);
}

/// Of large letters only, in which there are pixels of the pure colour: the headings, and what
/// stands in code at the resolution of a press.
void TestPaperTexts::wordsOfTheManual()
{
    constexpr double kDotsPerInch = 300;
    constexpr double kScale = kDotsPerInch / 72;
    PdfFile manual(QCoreApplication::applicationDirPath()
                   + "/../gallery/Resources/Manual/TXGallery.pdf");
    const QList<QList<PdfFile::Word>> words = manual.words();
    QVERIFY2(manual.errorText().isEmpty(), qPrintable(manual.errorText()));
    int measured = 0;
    for (int page : {0, 1, int(words.size()) - 1}) {
        const QImage paper = manual.rendered(page + 1, kDotsPerInch);
        for (const PdfFile::Word &word : words.at(page)) {
            const QRectF area(word.box.topLeft() * kScale, word.box.size() * kScale);
            // Dots and dashes are thinner than a pixel is wide.
            if (word.text.size() < 3) {
                continue;
            }
            const qreal found = Contrast::ofText(paper.copy(area.toAlignedRect()));
            QVERIFY2(found >= Contrast::kText,
                     qPrintable(word.text + ' ' + QString::number(found)));
            ++measured;
        }
    }
    QVERIFY2(measured > 100, qPrintable(QString::number(measured)));
}

int main(int argc, char **argv)
{
    return runTest<TestPaperTexts>(argc, argv);
}

#include "tst_PaperTexts.moc"
