#include "ReportTablePainter.h"

#include "TablePainterHelpers.h"
#include "TestBase.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

using TablePainterHelpers::cell;
using TablePainterHelpers::inverse;
using TablePainterHelpers::kPaper;
using TablePainterHelpers::kTopLeft;
using TablePainterHelpers::Paint;
using TablePainterHelpers::paintDirectly;
using TablePainterHelpers::paintThroughScene;
using TablePainterHelpers::picture;
using TablePainterHelpers::randomTable;
using TablePainterHelpers::reportFont;
using TablePainterHelpers::tableOf;

namespace {

/// How a painter may be set up.
struct Look
{
    bool isSmooth;
    double ratio;
    double scale;
};

QImage imageBy(Paint paint, const TXTable &table, const Look &look)
{
    const QSizeF size = kPaper.size() * look.scale * look.ratio;
    QImage image(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(look.ratio);
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, look.isSmooth);
    painter.scale(look.scale, look.scale);
    painter.setClipRect(kPaper);
    paint(&painter, table);
    return image;
}

int differingPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

QList<Look> allLooks()
{
    QList<Look> looks;
    for (const bool isSmooth : {false, true}) {
        for (const double ratio : {1.0, 2.0}) {
            for (const double scale : {1.0, 1.37, 200.0 / 72.0}) {
                looks.append({isSmooth, ratio, scale});
            }
        }
    }
    return looks;
}

/// Empty when both ways give the same pixels.
QString differenceOf(const TXTable &table, const Look &look)
{
    const QImage direct = imageBy(paintDirectly, table, look);
    const QImage expected = imageBy(paintThroughScene, table, look);
    if (direct == expected) {
        return {};
    }
    return QStringLiteral("%1 pixels differ, antialiasing %2, ratio %3, scale %4")
        .arg(differingPixels(direct, expected))
        .arg(look.isSmooth)
        .arg(look.ratio)
        .arg(look.scale);
}

} // namespace

class TestReportTablePainter : public TestBase
{
    Q_OBJECT

private slots:
    void paintsThePixelsOfTheRenderedScene_data() { TablePainterHelpers::addTables(); }
    void paintsThePixelsOfTheRenderedScene();
    void paintsThePixelsOfTheRenderedSceneForRandomTables();
    void paintsEachTableInItsOwnFont();
    void leavesThePaintersState_data();
    void leavesThePaintersState();
    void paintsTextsThatAreTooLongToBeRemembered();
};

void TestReportTablePainter::paintsThePixelsOfTheRenderedScene()
{
    QFETCH(TXTable, table);
    for (const Look &look : allLooks()) {
        const QString difference = differenceOf(table, look);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void TestReportTablePainter::paintsThePixelsOfTheRenderedSceneForRandomTables()
{
    const QList<Look> looks = allLooks();
    for (quint32 seed = 1; seed <= 200; ++seed) {
        const QString difference = differenceOf(randomTable(seed), looks.at(seed % looks.size()));
        QVERIFY2(difference.isEmpty(), qPrintable(QString::number(seed) + ": " + difference));
    }
}

void TestReportTablePainter::paintsEachTableInItsOwnFont()
{
    const TXTable table = tableOf({{cell("text"), cell("bold", {{"CellTextBold", true}})}});
    QFont large = reportFont();
    large.setPixelSize(17);
    ReportTablePainter tables;
    for (const QFont &font : {reportFont(), large, reportFont()}) {
        QImage direct(200, 100, QImage::Format_RGB32);
        direct.fill(Qt::white);
        QImage expected = direct;
        QPainter painter(&direct);
        painter.setClipRect(direct.rect());
        tables.paintTable(&painter, table, kTopLeft, font);
        painter.end();
        painter.begin(&expected);
        painter.setClipRect(expected.rect());
        TXGraphicsScene scene;
        scene.drawTable(table, kTopLeft, font);
        scene.render(&painter, QRectF(0, 0, 200, 100), QRectF(0, 0, 200, 100));
        painter.end();
        QCOMPARE(direct, expected);
    }
}

void TestReportTablePainter::leavesThePaintersState_data()
{
    QTest::addColumn<bool>("isPaper");
    QTest::newRow("pixels") << false;
    QTest::newRow("paper") << true;
}

void TestReportTablePainter::leavesThePaintersState()
{
    QFETCH(bool, isPaper);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QPdfWriter writer(&buffer);
    QPainter painter(isPaper ? static_cast<QPaintDevice *>(&writer) : &image);
    painter.scale(1.5, 2.0);
    painter.setPen(QPen(Qt::green, 3.0));
    painter.setBrush(Qt::cyan);
    const QTransform transform = painter.transform();
    const QPainter::RenderHints hints = painter.renderHints();
    paintDirectly(&painter, tableOf({{cell("text"), cell(picture(9, 9)), inverse("b")}}, true));
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.renderHints(), hints);
    QCOMPARE(painter.pen(), QPen(Qt::green, 3.0));
    QCOMPARE(painter.brush(), QBrush(Qt::cyan));
}

void TestReportTablePainter::paintsTextsThatAreTooLongToBeRemembered()
{
    const QString longText = QString("long ").repeated(20'000);
    const QString difference =
        differenceOf(tableOf({{cell(longText, {{"CellTextHorizontalAlign", 0}}), cell("next")}}),
                     {true, 1.0, 1.0});
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

int main(int argc, char **argv)
{
    return runTest<TestReportTablePainter>(argc, argv);
}

#include "tst_ReportTablePainter.moc"
