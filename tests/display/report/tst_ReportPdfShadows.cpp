#include "PdfFile.h"
#include "PixelProbe.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXReportDocument.h"
#include "TXTable.h"

#include <QColor>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPen>
#include <QSet>

namespace {

/// How far a shadow reaches.
constexpr int kReachPoints = 40;
constexpr qint64 kMaximumBytes = 300'000;

const QRectF kFrame(140, 200, 200, 120);

/// The scene as the screen shows it, a pixel for a point of the paper.
QImage onScreen(TXGraphicsScene &scene, const QSize &paper, const QPointF &corner)
{
    QImage image(paper, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, image.rect(), QRectF(image.rect()).translated(-corner),
                 Qt::IgnoreAspectRatio);
    return image;
}

/// Whether pictures are only the shadows of things of that size, and no finer than they need.
bool isShadowOf(const PdfFile::Picture &picture, const QSizeF &thing)
{
    constexpr double kRoundingPoints = 4.0;
    constexpr int kFinestDotsPerInch = 100;
    const QSizeF size = picture.size();
    return picture.dotsPerInch.width() <= kFinestDotsPerInch
        && picture.dotsPerInch.height() <= kFinestDotsPerInch
        && size.width() <= thing.width() + 2 * kReachPoints + kRoundingPoints
        && size.height() <= thing.height() + 2 * kReachPoints + kRoundingPoints;
}

} // namespace

class TestReportPdfShadows : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void thingsWithShadowsStayWhatTheyAre();
    void onlyTheShadowIsAPicture();
    void shadowFadesToAllSides();
    void shadowIsTheOneOnTheScreen();
    void textWithAShadowIsText();
    void pagesOfATableWithAShadowStaySmall();
    void largestShadowLeavesTheFileSmall();

private:
    [[nodiscard]] PdfFile writtenScene(TXGraphicsScene &scene) const;
    static void drawFrame(TXGraphicsScene &scene);
};

/// A white frame with a text in it.
void TestReportPdfShadows::drawFrame(TXGraphicsScene &scene)
{
    scene.drawRect(kFrame, QPen(Qt::black, 0.1), Qt::white, true);
    scene.drawText(QStringLiteral("within"), kFrame.topLeft() + QPointF(20, 30), reportTestFont(10),
                   Qt::black);
}

/// On paper of 500 by 700 points, the corner of the content at (10, 20).
PdfFile TestReportPdfShadows::writtenScene(TXGraphicsScene &scene) const
{
    TXReportDocument report;
    report.setPageLayout(layoutOf({500, 700}, {10, 20, 10, 20}));
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    return written(report);
}

void TestReportPdfShadows::thingsWithShadowsStayWhatTheyAre()
{
    TXGraphicsScene scene;
    drawFrame(scene);
    PdfFile pdf = writtenScene(scene);
    const QList<PdfFile::Word> words = pdf.words().value(0);
    // A line of a tenth of a point, which is two pixels here: no picture is as sharp.
    constexpr int kPixelsPerPoint = 20;
    const QPoint onLine =
        (QPointF(kFrame.left() + 10, kFrame.center().y() + 20) * kPixelsPerPoint).toPoint();
    const QImage edge = pdf.rendered(1, 72.0 * kPixelsPerPoint, {onLine.x() - 4, onLine.y(), 8, 1});

    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(words.size(), 1);
    QCOMPARE(words[0].text, QStringLiteral("within"));
    QVERIFY(isNear(words[0].box.topLeft(), kFrame.topLeft() + QPointF(30, 50)));
    QCOMPARE(pdf.fonts().size(), 1);
    QVERIFY(qGray(edge.pixel(1, 0)) > 180);
    QVERIFY(qGray(edge.pixel(3, 0)) < 10);
    QVERIFY(qGray(edge.pixel(4, 0)) < 10);
    QVERIFY(qGray(edge.pixel(6, 0)) > 250);
}

void TestReportPdfShadows::onlyTheShadowIsAPicture()
{
    TXGraphicsScene scene;
    drawFrame(scene);
    PdfFile pdf = writtenScene(scene);
    const QList<PdfFile::Picture> pictures = pdf.pictures();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(!pictures.isEmpty());
    for (const PdfFile::Picture &picture : pictures) {
        QVERIFY2(isShadowOf(picture, kFrame.size()),
                 qPrintable(QStringLiteral("%1 x %2 points at %3 dpi")
                                .arg(picture.size().width())
                                .arg(picture.size().height())
                                .arg(picture.dotsPerInch.width())));
    }
    QVERIFY(QFileInfo(fileName()).size() < kMaximumBytes / 3);
}

void TestReportPdfShadows::shadowFadesToAllSides()
{
    TXGraphicsScene scene;
    drawFrame(scene);
    PdfFile pdf = writtenScene(scene);
    const QImage page = pdf.rendered(1, 72);
    QCOMPARE(pdf.errorText(), QString());

    const QRect frame = kFrame.translated(10, 20).toRect();
    const QPoint middle = frame.center();
    const struct
    {
        QPoint edge;
        QPoint step;
    } sides[] = {{{frame.left() - 1, middle.y()}, {-1, 0}},
                 {{frame.right() + 2, middle.y()}, {1, 0}},
                 {{middle.x(), frame.top() - 1}, {0, -1}},
                 {{middle.x(), frame.bottom() + 2}, {0, 1}}};
    for (const auto &side : sides) {
        const QPoint edge = side.edge;
        const QPoint step = side.step;
        const auto greyAt = [&](int points) {
            return qGray(page.pixel(edge + step * points));
        };
        QVERIFY2(greyAt(2) < 242 && greyAt(2) > 200, qPrintable(QString::number(greyAt(2))));
        QVERIFY(greyAt(10) > greyAt(2));
        QVERIFY(greyAt(20) > greyAt(10));
        QVERIFY(greyAt(20) < 255);
        QCOMPARE(page.pixelColor(edge + step * (kReachPoints + 4)), QColor(Qt::white));
        // Behind the frame nothing of it is seen.
        QCOMPARE(page.pixelColor(edge - step * 6), QColor(Qt::white));
    }
    QCOMPARE(page.pixelColor(5, 5), QColor(Qt::white));
    QCOMPARE(page.pixelColor(480, 680), QColor(Qt::white));
}

void TestReportPdfShadows::shadowIsTheOneOnTheScreen()
{
    // The picture on paper is half as fine as the screen, and poppler cuts fractions off. Found are
    // 5 grey levels; the shadow itself is 25 at its darkest.
    constexpr int kMostGreyLevels = 6;
    TXGraphicsScene scene;
    drawFrame(scene);
    scene.drawEllipse({100, 420, 90, 60}, Qt::NoPen, Qt::white, true);
    PdfFile pdf = writtenScene(scene);
    const QImage paper = pdf.rendered(1, 72);
    const QImage screen = onScreen(scene, paper.size(), {10, 20});

    QCOMPARE(pdf.errorText(), QString());
    int shadowed = 0;
    const QRect frame = kFrame.translated(10, 20).toRect().adjusted(-2, -2, 2, 2);
    const QRect ellipse = QRect(110, 440, 90, 60).adjusted(-2, -2, 2, 2);
    for (int y = 0; y < paper.height(); y += 3) {
        for (int x = 0; x < paper.width(); x += 3) {
            if (frame.contains(x, y) || ellipse.contains(x, y)) {
                continue;
            }
            const int onPaper = qGray(paper.pixel(x, y));
            const int there = qGray(screen.pixel(x, y));
            shadowed += there < 250 ? 1 : 0;
            QVERIFY2(qAbs(onPaper - there) <= kMostGreyLevels,
                     qPrintable(QStringLiteral("(%1, %2): %3 on paper, %4 on the screen")
                                    .arg(x)
                                    .arg(y)
                                    .arg(onPaper)
                                    .arg(there)));
        }
    }
    QVERIFY(shadowed > 1000);
}

void TestReportPdfShadows::textWithAShadowIsText()
{
    TXGraphicsScene scene;
    scene.drawText(QStringLiteral("shadowed"), {100, 100}, reportTestFont(30), Qt::darkBlue);
    scene.addShadowEffectInGraphicsItem(scene.items().constFirst());
    PdfFile pdf = writtenScene(scene);
    const QRectF box = boxOf(pdf.words().value(0), QStringLiteral("shadowed"));
    const QList<PdfFile::Picture> pictures = pdf.pictures();

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY2(isNear(box.topLeft(), {110, 120}), qPrintable(toText(box.topLeft(), {110, 120})));
    QVERIFY(!pictures.isEmpty());
    for (const PdfFile::Picture &picture : pictures) {
        QVERIFY(isShadowOf(picture, box.size()));
    }
}

void TestReportPdfShadows::pagesOfATableWithAShadowStaySmall()
{
    constexpr int kColumns = 5;
    constexpr int kRows = 200;
    TXTable table(kColumns, true);
    for (int i = 0; i < kColumns * kRows; ++i) {
        table.addCell(leftTopCell(QStringLiteral("c%1").arg(i), {70, 20}));
    }
    for (int column = 0; column < kColumns; ++column) {
        table.setColumnWidth(70, column);
    }
    TXReportDocument report;
    report.setPageLayout(
        {QPageSize(QPageSize::A4), QPageLayout::Portrait, {60, 60, 60, 60}, QPageLayout::Point});
    report.addTable(table, reportTestFont(9));
    PdfFile pdf = written(report);
    const QList<QList<PdfFile::Word>> pages = pdf.words();
    const QList<PdfFile::Picture> pictures = pdf.pictures();
    const PixelProbe firstPage(pdf.rendered(1, 72));

    QCOMPARE(pdf.errorText(), QString());
    QVERIFY(pages.size() > 4);
    for (int i = 0; i < kColumns; ++i) {
        QVERIFY(!boxOf(pages.last(), QStringLiteral("c%1").arg(i)).isNull());
    }
    QVERIFY(!pictures.isEmpty());
    const QSizeF largest(kColumns * 70 + 10, report.contentRect().height());
    QSet<int> pagesWithShadow;
    for (const PdfFile::Picture &picture : pictures) {
        QVERIFY(isShadowOf(picture, largest));
        pagesWithShadow.insert(picture.page);
    }
    for (int page = 1; page <= pages.size(); ++page) {
        QVERIFY2(pagesWithShadow.contains(page), qPrintable(QString::number(page)));
    }
    QVERIFY(QFileInfo(fileName()).size() < kMaximumBytes * pages.size());
    const QPoint corner = report.contentRect().topLeft().toPoint();
    QVERIFY(firstPage.at(corner + QPoint(-5, 300)).lightness() < 245);
    QCOMPARE(firstPage.at(corner + QPoint(-50, 300)), QColor(Qt::white));
}

void TestReportPdfShadows::largestShadowLeavesTheFileSmall()
{
    TXGraphicsScene scene;
    scene.drawRect({20, 20, 555, 802}, QPen(Qt::black, 0.1), Qt::white, true);
    scene.drawRoundedRect({60, 60, 400, 300}, 20, 20, QPen(Qt::red, 1), Qt::yellow, true);
    scene.drawEllipse({60, 400, 400, 300}, QPen(Qt::blue, 1), Qt::cyan, true);
    scene.drawText(QStringLiteral("within"), {200, 200}, reportTestFont(10), Qt::black);
    TXReportDocument report;
    report.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Point});
    removeHeaderAndFooter(report);
    report.addPage(&scene);
    PdfFile pdf = written(report);

    QCOMPARE(inReadingOrder(pdf.words().value(0)), QStringList{QStringLiteral("within")});
    QCOMPARE(pdf.errorText(), QString());
    const qint64 bytes = QFileInfo(fileName()).size();
    QVERIFY2(bytes < kMaximumBytes, qPrintable(QString::number(bytes)));
}

int main(int argc, char **argv)
{
    return runTest<TestReportPdfShadows>(argc, argv);
}

#include "tst_ReportPdfShadows.moc"
