#include "PdfFile.h"
#include "ReportDocumentHelpers.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TestBase.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>
#include <memory>
#include <semaphore>
#include <thread>

class TestTXReportDocument : public TestBase
{
    Q_OBJECT

private slots:
    void defaults();
    void invalidLayoutIsIgnored();
    void contentIsWhatMarginsHeaderAndFooterLeave();
    void layoutReachesThePdf_data();
    void layoutReachesThePdf();
    void titleAndAuthorAreInThePdf();
    void pagesComeInTheOrderOfAdding();
    void badContentAddsNothing();
    void pagesAreCountedAnewAfterAChange();
    void countOfPagesDoesNotOverflow();
    void drawnPagesAreMadeOneAtATime();
    void sceneDestroyedBeforeLeavesAnEmptyPage();
    void tableStandsWithItsFrameInTheCorner();
    void paintedPageShowsTheSceneOnTheWholeSheet();
    void paintedPageLeavesThePainterAsItWas();
    void nothingIsPaintedOutsideThePages();
    void nothingIsPaintedOutsideThePaper();
    void progressGoesTo100Once();
    void aLaterChangeDoesNotDisturbTheWriting();
    void cancelEndsAtTheNextPage();
    void cancelWithoutAWritingDoesNothing();
    void cancelAfterTheLastPageStillCounts();
    void reportThatIsBeingWrittenIsRefused();
    void writingOnAWorkerIsCancelledFromHere();
    void manyPagesAreFoundAtOnce();

private:
    QTemporaryDir folder;
    QString fileName = folder.filePath("report.pdf");
    void finish() override { QFile::remove(fileName); }
};

namespace {

constexpr TXHorizontalAlignment kNoPlace = TXHorizontalAlignment(3);

void drawMark(TXGraphicsScene *scene, int page)
{
    scene->drawText(QStringLiteral("drawn%1").arg(page), {0, 0}, tenPoints(), Qt::black);
}

QStringList firstWords(const QString &fileName)
{
    PdfFile file(fileName);
    QStringList words;
    for (const QList<PdfFile::Word> &page : file.words()) {
        words.append(page.isEmpty() ? QString() : page.first().text);
    }
    return words;
}

QImage paintedPage(const TXReportDocument &report, int page, double scale = 1.0)
{
    QImage image((report.pageLayout().fullRect(QPageLayout::Point).size() * scale).toSize(),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    report.paintPage(page, &painter);
    return image;
}

} // namespace

void TestTXReportDocument::defaults()
{
    const TXReportDocument report;

    QCOMPARE(
        report.pageLayout(),
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36)));
    QCOMPARE(report.title(), QString());
    QCOMPARE(report.author(), QString());
    QCOMPARE(report.headerText(TXAlignLeft), QString("{title}"));
    QCOMPARE(report.headerText(TXAlignHorizontallyCentred), QString());
    QCOMPARE(report.headerText(TXAlignRight), QString());
    QCOMPARE(report.footerText(TXAlignLeft), QString());
    QCOMPARE(report.footerText(TXAlignHorizontallyCentred), QString("page {page} of {pages}"));
    QCOMPARE(report.footerText(TXAlignRight), QString());
    QCOMPARE(report.headerFont().pixelSize(), 8);
    QCOMPARE(report.pageCount(), 0);
    QVERIFY(!report.isCancelled());
}

void TestTXReportDocument::invalidLayoutIsIgnored()
{
    TXReportDocument report;
    const QPageLayout before = report.pageLayout();

    report.setPageLayout(QPageLayout());

    QCOMPARE(report.pageLayout(), before);
}

void TestTXReportDocument::contentIsWhatMarginsHeaderAndFooterLeave()
{
    TXReportDocument report;
    report.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(10, 20, 30, 40)));
    report.setFooterText("", TXAlignHorizontallyCentred);
    QCOMPARE(report.contentRect(), QRectF(10, 20, 842 - 40, 595 - 60));

    const double room = QFontMetricsF(report.headerFont()).height() + 4;
    report.setTitle("T");
    QCOMPARE(report.contentRect(), QRectF(10, 20 + room, 842 - 40, 595 - 60 - room));
    report.setFooterText("x", kNoPlace);
    QCOMPARE(report.contentRect(), QRectF(10, 20 + room, 842 - 40, 595 - 60 - room));
    report.setFooterText("x", TXAlignRight);
    QCOMPARE(report.contentRect(), QRectF(10, 20 + room, 842 - 40, 595 - 60 - 2 * room));

    QFont font;
    font.setPixelSize(30);
    report.setHeaderFont(font);
    QCOMPARE(report.headerFont(), font);
    const double larger = QFontMetricsF(font).height() + 4;
    QCOMPARE(report.contentRect(), QRectF(10, 20 + larger, 842 - 40, 595 - 60 - 2 * larger));
}

void TestTXReportDocument::layoutReachesThePdf_data()
{
    QTest::addColumn<QPageLayout>("layout");
    QTest::addColumn<QSizeF>("size");

    const QMarginsF margins(20, 20, 20, 20);
    QPageLayout full(QPageSize(QPageSize::A5), QPageLayout::Portrait, margins);
    full.setMode(QPageLayout::FullPageMode);
    QTest::newRow("A4") << QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, margins)
                        << QSizeF(595, 842);
    QTest::newRow("letter across")
        << QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Landscape, margins)
        << QSizeF(792, 612);
    QTest::newRow("full page") << full << QSizeF(420, 595);
    QTest::newRow("a size of its own") << QPageLayout(QPageSize(QSizeF(123, 456), QPageSize::Point),
                                                      QPageLayout::Portrait, margins)
                                       << QSizeF(123, 456);
}

void TestTXReportDocument::layoutReachesThePdf()
{
    QFETCH(QPageLayout, layout);
    QFETCH(QSizeF, size);
    TXReportDocument report;
    report.setPageLayout(layout);
    report.addPages(1, drawMark);

    QVERIFY(report.writePdf(fileName));

    PdfFile file(fileName);
    QCOMPARE(file.information().pageSizes, QList<QSizeF>{size});
    const PdfFile::Word word = file.words().value(0).value(0);
    QVERIFY(std::abs(word.box.left() - 20) < 0.01);
    QVERIFY(std::abs(word.box.top() - 20) < 0.01);
    QCOMPARE(file.errorText(), QString());
}

void TestTXReportDocument::titleAndAuthorAreInThePdf()
{
    TXReportDocument report;
    report.setTitle(QString("Farben\n(český) \\"));
    report.setAuthor("Jürgen\t😀");
    report.addPages(1, drawMark);
    QVERIFY(report.writePdf(fileName));

    PdfFile file(fileName);
    QCOMPARE(file.information().title, QString("Farben (český) \\"));
    QCOMPARE(file.information().author, QString("Jürgen 😀"));
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(report.title(), QString("Farben\n(český) \\"));

    report.setAuthor("");
    QVERIFY(report.writePdf(fileName));
    QCOMPARE(file.information().author, QString());
    QCOMPARE(file.information().title, QString("Farben (český) \\"));
}

void TestTXReportDocument::pagesComeInTheOrderOfAdding()
{
    TXGraphicsScene scene;
    scene.drawText("scene", {0, 0}, tenPoints(), Qt::black);
    TXReportDocument report;
    report.addPages(2, drawMark);
    report.addTable(tableOfRows(40), tenPoints());
    report.addPage(&scene);
    report.addPages(1, drawMark);
    report.addPage(&scene);

    QCOMPARE(report.pageCount(), 7);
    QVERIFY(report.writePdf(fileName));

    QCOMPARE(firstWords(fileName),
             QStringList({"drawn0", "drawn1", "header", "header", "scene", "drawn0", "scene"}));
}

void TestTXReportDocument::badContentAddsNothing()
{
    TXReportDocument report;
    report.addPage(nullptr);
    report.addPages(0, drawMark);
    report.addPages(-1, drawMark);
    report.addPages(3, TXReportDocument::PageDrawing());
    report.addTable(TXTable(3, true), tenPoints());
    QCOMPARE(report.pageCount(), 0);

    // None of it stands in the way of what comes before and behind.
    report.addPages(1, drawMark);
    report.addTable(TXTable(0, true), tenPoints());
    report.addPages(1, drawMark);
    QCOMPARE(report.pageCount(), 2);
    QVERIFY(report.writePdf(fileName));
    QCOMPARE(firstWords(fileName), QStringList({"drawn0", "drawn0"}));
}

void TestTXReportDocument::pagesAreCountedAnewAfterAChange()
{
    TXReportDocument report;
    report.addTable(tableOfRows(40), tenPoints());
    QCOMPARE(report.pageCount(), 2);
    report.addTable(tableOfRows(1), tenPoints());
    QCOMPARE(report.pageCount(), 3);

    report.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A5), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36)));
    QCOMPARE(report.pageCount(), 3);
    report.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A6), QPageLayout::Landscape, QMarginsF(36, 36, 36, 36)));
    QCOMPARE(report.pageCount(), 6);
    QFont font;
    font.setPixelSize(30);
    report.setHeaderFont(font);
    QCOMPARE(report.pageCount(), 7);
    report.setTitle("T");
    QCOMPARE(report.pageCount(), 9);
    report.setFooterText("", TXAlignHorizontallyCentred);
    QCOMPARE(report.pageCount(), 7);
    report.setHeaderText("", TXAlignLeft);
    QCOMPARE(report.pageCount(), 6);
}

void TestTXReportDocument::countOfPagesDoesNotOverflow()
{
    TXReportDocument report;
    constexpr int kMost = std::numeric_limits<int>::max();
    report.addPages(kMost, drawMark);
    report.addPages(kMost, drawMark);

    QCOMPARE(report.pageCount(), kMost);
    QVERIFY(paintedPage(report, kMost - 1) != paintedPage(report, kMost));
}

void TestTXReportDocument::drawnPagesAreMadeOneAtATime()
{
    QList<int> drawn;
    QPointer<TXGraphicsScene> last;
    TXReportDocument report;
    report.addPages(4, [&](TXGraphicsScene *scene, int page) {
        QVERIFY(last.isNull());
        QVERIFY(scene->items().isEmpty());
        last = scene;
        drawn.append(page);
        drawMark(scene, page);
    });
    QCOMPARE(report.pageCount(), 4);
    QCOMPARE(drawn, QList<int>());

    QVERIFY(report.writePdf(fileName));

    QCOMPARE(drawn, QList<int>({0, 1, 2, 3}));
    QVERIFY(last.isNull());
}

void TestTXReportDocument::sceneDestroyedBeforeLeavesAnEmptyPage()
{
    auto scene = std::make_unique<TXGraphicsScene>();
    drawMark(scene.get(), 0);
    TXReportDocument report;
    report.addPage(scene.get());
    report.addPages(1, drawMark);
    scene.reset();

    QVERIFY(report.writePdf(fileName));

    QCOMPARE(firstWords(fileName), QStringList({"page", "drawn0"}));
}

void TestTXReportDocument::tableStandsWithItsFrameInTheCorner()
{
    TXReportDocument report;
    report.addTable(tableOfRows(1), tenPoints());
    constexpr int kScale = 10;
    const QImage page = paintedPage(report, 0, kScale);

    // The frame is 0.1 wide, half of it without; the header cell's border is 0.5 wide.
    const auto isWhite = [&](double x, double y) {
        return page.pixelColor(int(x * kScale), int(y * kScale)) == QColor(Qt::white);
    };
    QVERIFY(isWhite(35.8, 50));
    QVERIFY(!isWhite(36.0, 50));
    QVERIFY(isWhite(36.3, 50));
    QVERIFY(isWhite(40.6, 50));
    QVERIFY(!isWhite(41.0, 50));
    QVERIFY(isWhite(41.4, 50));
    QVERIFY(!isWhite(50, 36.0));
    QVERIFY(!isWhite(50, 41.0));
}

void TestTXReportDocument::paintedPageShowsTheSceneOnTheWholeSheet()
{
    TXGraphicsScene scene;
    scene.drawRect({0, 0, 10, 10}, Qt::NoPen, Qt::red, false);
    scene.drawRect({-36, -36, 10, 10}, Qt::NoPen, Qt::blue, false);
    scene.drawRect({595 - 36 - 10, 842 - 36 - 10, 10, 10}, Qt::NoPen, Qt::green, false);
    TXReportDocument report;
    report.addPage(&scene);

    const QImage page = paintedPage(report, 0);

    QCOMPARE(page.pixelColor(36, 36), QColor(Qt::red));
    QCOMPARE(page.pixelColor(45, 45), QColor(Qt::red));
    QCOMPARE(page.pixelColor(35, 36), QColor(Qt::white));
    QCOMPARE(page.pixelColor(46, 45), QColor(Qt::white));
    QCOMPARE(page.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(page.pixelColor(594, 841), QColor(Qt::green));
}

void TestTXReportDocument::paintedPageLeavesThePainterAsItWas()
{
    TXReportDocument report;
    report.setTitle("T");
    report.addTable(tableOfRows(1), tenPoints());
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    painter.translate(3, 4);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::LosslessImageRendering, false);
    const QPainter::RenderHints hints = painter.renderHints();

    report.paintPage(0, &painter);

    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QCOMPARE(painter.transform(), QTransform::fromTranslate(3, 4));
    QCOMPARE(painter.renderHints(), hints);
    QVERIFY(!painter.hasClipping());
}

void TestTXReportDocument::nothingIsPaintedOutsideThePages()
{
    TXReportDocument report;
    report.addPages(2, drawMark);
    const QImage blank = paintedPage(TXReportDocument(), 0);

    QCOMPARE(paintedPage(report, -1), blank);
    QCOMPARE(paintedPage(report, 2), blank);
    QVERIFY(paintedPage(report, 1) != blank);
    report.paintPage(0, nullptr);
    QPainter inactive;
    report.paintPage(0, &inactive);
}

void TestTXReportDocument::nothingIsPaintedOutsideThePaper()
{
    TXReportDocument report;
    report.setPageLayout(QPageLayout(QPageSize(QSizeF(100, 100), QPageSize::Point),
                                     QPageLayout::Portrait, QMarginsF(10, 10, 10, 10)));
    report.addTable(tableOfRows(1), tenPoints());
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);

    report.paintPage(0, &painter);
    painter.end();

    const QImage paper = image.copy(0, 0, 100, 100);
    const QImage beside = image.copy(100, 0, 100, 100);
    QVERIFY(paper.pixelColor(99, 15) != QColor(Qt::white));
    QImage white = beside;
    white.fill(Qt::white);
    QCOMPARE(beside, white);
}

void TestTXReportDocument::progressGoesTo100Once()
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

void TestTXReportDocument::aLaterChangeDoesNotDisturbTheWriting()
{
    TXReportDocument report;
    report.addTable(tableOfRows(100), tenPoints());
    QCOMPARE(report.pageCount(), 3);
    RecordingDelegate delegate;
    delegate.whenProgressing = [&](float) {
        report.addPages(1, drawMark);
        report.setPageLayout(QPageLayout(QPageSize(QPageSize::A0), QPageLayout::Portrait,
                                         QMarginsF(36, 36, 36, 36)));
    };

    QVERIFY(report.writePdf(fileName, &delegate));

    PdfFile file(fileName);
    QCOMPARE(file.information().pageSizes.size(), delegate.messages.size());
}

void TestTXReportDocument::cancelEndsAtTheNextPage()
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

void TestTXReportDocument::cancelWithoutAWritingDoesNothing()
{
    TXReportDocument report;
    report.addPages(1, drawMark);

    report.cancel();

    QVERIFY(!report.isCancelled());
    QVERIFY(report.writePdf(fileName));
    report.cancel();
    QVERIFY(!report.isCancelled());
}

void TestTXReportDocument::cancelAfterTheLastPageStillCounts()
{
    TXReportDocument report;
    report.addPages(1, [&](TXGraphicsScene *, int) { report.cancel(); });
    report.setAuthor("A");

    QVERIFY(!report.writePdf(fileName));

    QVERIFY(report.isCancelled());
    QCOMPARE(entriesOf(folder.path()), QStringList());
}

void TestTXReportDocument::reportThatIsBeingWrittenIsRefused()
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

void TestTXReportDocument::writingOnAWorkerIsCancelledFromHere()
{
    TXReportDocument report;
    report.addTable(tableOfRows(5000), tenPoints());
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

void TestTXReportDocument::manyPagesAreFoundAtOnce()
{
    TXReportDocument report;
    constexpr int kContents = 20'000;
    for (int i = 0; i < kContents; ++i) {
        report.addPages(1, [i](TXGraphicsScene *scene, int) {
            scene->setBackgroundBrush(QColor::fromRgb(QRgb(i)));
        });
        QCOMPARE(report.pageCount(), i + 1);
    }

    QImage image(1, 1, QImage::Format_RGB32);
    QPainter painter(&image);
    for (int page = 0; page < kContents; ++page) {
        report.paintPage(page, &painter);
        QCOMPARE(image.pixel(0, 0) & 0xffffff, QRgb(page));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportDocument>(argc, argv);
}

#include "tst_TXReportDocument.moc"
