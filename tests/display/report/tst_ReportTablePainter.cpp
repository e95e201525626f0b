#include "ReportTablePainter.h"

#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QBuffer>
#include <QFont>
#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using Settings = QHash<QString, QVariant>;
using Rows = QList<QList<Settings>>;

Q_DECLARE_METATYPE(TXTable)

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr QPointF kTopLeft(12.3, 9.7);
const QRectF kPaper(0, 0, 420, 300);

QFont reportFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(10);
    return font;
}

QPixmap picture(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::yellow);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, width / 2, height / 3, Qt::darkCyan);
    painter.drawLine(0, 0, width, height);
    return pixmap;
}

TXTable tableOf(const Rows &rows, bool hasShadow = false)
{
    TXTable table(4, hasShadow);
    QList<QList<TXTableCell>> cells;
    for (const QList<Settings> &row : rows) {
        cells.append(QList<TXTableCell>());
        for (const Settings &cell : row) {
            cells.last().append(TXTableCell(cell));
        }
    }
    table.setTableCellList(cells);
    return table;
}

Settings cell(const QVariant &element, Settings more = {})
{
    more.insert("CellElement", element);
    return more;
}

Settings inverse(const QVariant &element)
{
    return cell(element,
                {{"CellTextColor", QColor(Qt::white)},
                 {"InsideCellColor", QColor(Qt::darkBlue)},
                 {"BorderCellColor", QColor(Qt::red)}});
}

using Paint = void (*)(QPainter *, const TXTable &);

void paintDirectly(QPainter *painter, const TXTable &table)
{
    ReportTablePainter::paint(painter, table, kTopLeft, reportFont());
}

/// Qt shows an edge of such a rectangle on pixels, after seconds, and breaks a PDF with it.
void removeWhatIsNotFinite(TXGraphicsScene &scene)
{
    for (QGraphicsItem *item : scene.items()) {
        const QRectF rect = item->boundingRect();
        if (!std::isfinite(rect.width()) || !std::isfinite(rect.height())
            || !std::isfinite(rect.x()) || !std::isfinite(rect.y())) {
            const std::unique_ptr<QGraphicsItem> owned(item);
            scene.removeItem(item);
        }
    }
}

void paintThroughScene(QPainter *painter, const TXTable &table)
{
    TXGraphicsScene scene;
    scene.drawTable(table, kTopLeft, reportFont());
    removeWhatIsNotFinite(scene);
    scene.render(painter, kPaper, kPaper);
}

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

QVariant randomElement(QRandomGenerator &random)
{
    static const QStringList kTexts{"Patch A1",  "12.345", "",        "two\nlines", "a\tb",
                                    "&Mnemonic", "שלום",   "e\u0301", "𝄞 clef",     "x\n\ny\n"};
    switch (random.bounded(5)) {
    case 0:
        return random.bounded(1000);
    case 1:
        return picture(random.bounded(1, 40), random.bounded(1, 40));
    case 2:
        return QVariant();
    default:
        return kTexts.at(int(random.bounded(kTexts.size())));
    }
}

QColor randomColour(QRandomGenerator &random)
{
    static const QList<QColor> kColours{Qt::black, Qt::white,       QColor(),
                                        Qt::red,   Qt::transparent, QColor(0, 90, 200, 120)};
    return kColours.at(random.bounded(kColours.size()));
}

Settings randomCell(QRandomGenerator &random)
{
    static const QList<double> kWidths{0.0, 0.35F, 0.5, 1.0, 2.5};
    return cell(randomElement(random),
                {{"CellSize", QSizeF(random.bounded(120.0), random.bounded(40.0))},
                 {"CellTextHorizontalAlign", random.bounded(4)},
                 {"CellTextVerticalAlign", random.bounded(4)},
                 {"CellTextBold", random.bounded(2) == 0},
                 {"CellTextColor", randomColour(random)},
                 {"InsideCellColor", randomColour(random)},
                 {"BorderCellColor", randomColour(random)},
                 {"BorderCellLineWidth", kWidths.at(random.bounded(kWidths.size()))}});
}

TXTable randomTable(quint32 seed)
{
    QRandomGenerator random(seed);
    Rows rows;
    const int rowCount = random.bounded(1, 10);
    for (int row = 0; row < rowCount; ++row) {
        rows.append(QList<Settings>());
        const int cells = random.bounded(6);
        for (int i = 0; i < cells; ++i) {
            rows.last().append(randomCell(random));
        }
    }
    return tableOf(rows, random.bounded(8) == 0);
}

TXTable mergedTable()
{
    TXTable table = tableOf({{cell("one"), cell("two"), cell("three"), cell("four")},
                             {cell("five"), cell("six"), cell("seven"), cell("eight")}});
    table.mergeCells(1, 3, 0);
    table.mergeCells(0, 1, 1);
    return table;
}

TXTable alignedTable()
{
    Rows rows;
    for (int vertical = 0; vertical < 4; ++vertical) {
        rows.append(QList<Settings>());
        for (int horizontal = 0; horizontal < 4; ++horizontal) {
            rows.last().append(cell(QStringLiteral("h%1 v%2").arg(horizontal).arg(vertical),
                                    {{"CellSize", QSizeF(77.7, 31.3)},
                                     {"CellTextHorizontalAlign", horizontal},
                                     {"CellTextVerticalAlign", vertical}}));
        }
    }
    return tableOf(rows);
}

TXTable rowOfBorders(const QList<double> &widths)
{
    QList<Settings> row;
    for (const double width : widths) {
        row.append(cell("w", {{"BorderCellLineWidth", width}, {"CellSize", QSizeF(30.5, 20.25)}}));
    }
    return tableOf({row, row});
}

TXTable rowOfSizes(const QList<QSizeF> &sizes)
{
    QList<Settings> row;
    for (const QSizeF &size : sizes) {
        row.append(cell("size", {{"CellSize", size}, {"InsideCellColor", QColor(Qt::cyan)}}));
        row.append(cell(picture(30, 20), {{"CellSize", size}}));
    }
    return tableOf({row, {cell("below")}});
}

void addTables()
{
    QTest::addColumn<TXTable>("table");

    QTest::newRow("no rows") << tableOf({});
    QTest::newRow("plain") << tableOf({{cell("one"), cell("two")}, {cell(3), cell(4.5)}});
    QTest::newRow("bold") << tableOf({{cell("one", {{"CellTextBold", true}}), cell("two"),
                                       cell("1", {{"CellTextBold", true}})}});
    QTest::newRow("aligned") << alignedTable();
    QTest::newRow("line breaks") << tableOf(
        {{cell("a\nbb\nccc"), cell("\n"), cell("x\n"), cell("\ny"), inverse("p\u2028q")}});
    QTest::newRow("tabs") << tableOf({{cell("a\tb"), cell("\t"), cell("tab\t\ttab")}});
    QTest::newRow("right to left")
        << tableOf({{cell("שלום"), cell("abc שלום 12"), inverse("مرحبا")}});
    QTest::newRow("combining") << tableOf({{cell("e\u0301a\u0308\u0323"), cell("\u0301")}});
    QTest::newRow("astral") << tableOf({{cell("𝄞𝒜😀"), cell(QString(QChar(0xD834)))}});
    QTest::newRow("ampersands") << tableOf({{cell("&File"), cell("A && B"), cell("&")}});
    QTest::newRow("runs over") << tableOf(
        {{cell("far too long for a cell"), cell("next"), inverse("covers what runs over")}});
    QTest::newRow("pictures") << tableOf(
        {{cell(picture(40, 20)), cell(picture(7, 90)), cell(QPixmap()), cell(picture(300, 300))}});
    QTest::newRow("merged") << mergedTable();
    QTest::newRow("invisible") << tableOf(
        {{cell("a"), TXTable::invisibleCellHashTemplate(), inverse("b")},
         {cell("text", TXTable::invisibleCellHashTemplate()), cell("c")}});
    QTest::newRow("header") << tableOf({{cell("A", TXTable::headerCellHashTemplate()), cell("b")},
                                        {inverse("c"), inverse("d"), cell("e")}});
    QTest::newRow("colours that are none") << tableOf(
        {{cell("a", {{"InsideCellColor", QColor()}}), cell("b", {{"BorderCellColor", QColor()}}),
          cell("c", {{"CellTextColor", QColor()}, {"InsideCellColor", "x"}})}});
    QTest::newRow("half transparent") << tableOf(
        {{cell("a", {{"InsideCellColor", QColor(255, 0, 0, 90)}, {"BorderCellLineWidth", 4.0}}),
          cell("b", {{"BorderCellColor", QColor(0, 0, 255, 60)}, {"BorderCellLineWidth", 6.0}}),
          cell("c", {{"CellTextColor", QColor(0, 0, 0, 50)}})}});
    QTest::newRow("borders") << rowOfBorders({0.0, 0.1, 0.35F, 0.5, 1.0, 1.5, 3.0, 12.0});
    QTest::newRow("rows without cells") << tableOf({{}, {cell("a")}, {}, {}, {cell("b")}, {}});
    QTest::newRow("negative sizes")
        << rowOfSizes({{-20.0, 15.0}, {30.0, -12.0}, {-25.0, -35.0}, {60.0, 20.0}});
    QTest::newRow("no sizes") << rowOfSizes({{0.0, 15.0}, {30.0, 0.0}, {0.0, 0.0}, {1.0, 1.0}});
    QTest::newRow("width that is no number") << rowOfSizes({{20.0, 20.0}, {kNan, 20.0}});
    QTest::newRow("height that is no number") << rowOfSizes({{20.0, 20.0}, {20.0, kNan}});
    QTest::newRow("infinite width") << rowOfSizes({{20.0, 20.0}, {kInfinity, 20.0}});
    QTest::newRow("infinite height") << rowOfSizes({{20.0, 20.0}, {20.0, kInfinity}});
    QTest::newRow("frame that has no height") << rowOfSizes({{20.0, kNan}, {20.0, 20.0}});
    QTest::newRow("huge") << rowOfSizes({{20.0, 20.0}, {1e6, 20.0}, {20.0, 1e6}});
    QTest::newRow("shadow") << tableOf({{cell("one"), cell("two")}, {cell(3), cell(4.5)}}, true);
}

/// Texts may stand 1/128 point off, which moves some of them by a step of the renderer's.
constexpr double kRounding = 0.2;

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return "failed: " + process.errorString().toUtf8();
    }
    return process.readAllStandardOutput() + process.readAllStandardError();
}

void writePdf(const QString &fileName, const std::function<void(QPainter *)> &paint)
{
    constexpr int kDotsPerInch = 300;
    constexpr double kPointsPerInch = 72.0;
    QPdfWriter writer(fileName);
    writer.setPageSize(QPageSize(kPaper.size(), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(kDotsPerInch);
    QPainter painter(&writer);
    painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setClipRect(kPaper);
    paint(&painter);
}

QImage imageOfPdf(Paint paint, const TXTable &table)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("table.pdf");
    writePdf(fileName, [&](QPainter *painter) { paint(painter, table); });
    const QByteArray png = outputOf("pdftoppm", {"-r", "150", "-png", fileName});
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
}

/// The mean difference of all channels, from 0 to 255; above that for images of other size.
double meanDifference(const QImage &one, const QImage &other)
{
    if (one.isNull() || one.size() != other.size()) {
        return 1000.0;
    }
    if (one == other) {
        return 0.0;
    }
    double sum = 0.0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb first = one.pixel(x, y);
            const QRgb second = other.pixel(x, y);
            sum += std::abs(qRed(first) - qRed(second)) + std::abs(qGreen(first) - qGreen(second))
                + std::abs(qBlue(first) - qBlue(second));
        }
    }
    return sum / 3.0 / (double(one.width()) * one.height());
}

} // namespace

class tst_ReportTablePainter : public TestBase
{
    Q_OBJECT

private slots:
    void paintsThePixelsOfTheRenderedScene_data() { addTables(); }
    void paintsThePixelsOfTheRenderedScene();
    void paintsThePixelsOfTheRenderedSceneForRandomTables();
    void paintsThePdfOfTheRenderedScene_data() { addTables(); }
    void paintsThePdfOfTheRenderedScene();
    void paintsThePdfOfTheRenderedSceneForRandomTables();
    void keepsNumbersThatAreNoneOutOfAPdf_data();
    void keepsNumbersThatAreNoneOutOfAPdf();
    void embedsEqualPicturesOnce();
    void paintsEachTableInItsOwnFont();
    void paintsTheShadowOfTheFrameOnPaper();
    void leavesThePaintersState_data();
    void leavesThePaintersState();
    void paintsTextsThatAreTooLongToBeRemembered();
};

void tst_ReportTablePainter::paintsThePixelsOfTheRenderedScene()
{
    QFETCH(TXTable, table);
    for (const Look &look : allLooks()) {
        const QString difference = differenceOf(table, look);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void tst_ReportTablePainter::paintsThePixelsOfTheRenderedSceneForRandomTables()
{
    const QList<Look> looks = allLooks();
    for (quint32 seed = 1; seed <= 200; ++seed) {
        const QString difference = differenceOf(randomTable(seed), looks.at(seed % looks.size()));
        QVERIFY2(difference.isEmpty(), qPrintable(QString::number(seed) + ": " + difference));
    }
}

void tst_ReportTablePainter::paintsThePdfOfTheRenderedScene()
{
    QFETCH(TXTable, table);
    const double difference =
        meanDifference(imageOfPdf(paintDirectly, table), imageOfPdf(paintThroughScene, table));
    QVERIFY2(difference < kRounding, qPrintable(QString::number(difference)));
}

void tst_ReportTablePainter::paintsThePdfOfTheRenderedSceneForRandomTables()
{
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const TXTable table = randomTable(seed);
        const double difference =
            meanDifference(imageOfPdf(paintDirectly, table), imageOfPdf(paintThroughScene, table));
        QVERIFY2(difference < kRounding,
                 qPrintable(QStringLiteral("%1: %2").arg(seed).arg(difference)));
    }
}

void tst_ReportTablePainter::keepsNumbersThatAreNoneOutOfAPdf_data()
{
    QTest::addColumn<QSizeF>("size");
    for (const double none : {kNan, kInfinity, -kInfinity}) {
        QTest::addRow("width %f", none) << QSizeF(none, 20);
        QTest::addRow("height %f", none) << QSizeF(20, none);
    }
}

void tst_ReportTablePainter::keepsNumbersThatAreNoneOutOfAPdf()
{
    QFETCH(QSizeF, size);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("table.pdf");
    const TXTable table = tableOf({{cell("before")},
                                   {cell("none", {{"CellSize", size}}), cell(picture(20, 20))},
                                   {cell(picture(20, 20), {{"CellSize", size}}), cell("last")}},
                                  true);
    writePdf(fileName, [&](QPainter *painter) { paintDirectly(painter, table); });
    const QByteArray text = outputOf("pdftotext", {fileName, "-"});
    QVERIFY2(text.contains("before"), text.constData());
    QVERIFY2(!text.contains("Error"), text.constData());
}

void tst_ReportTablePainter::embedsEqualPicturesOnce()
{
    const QPixmap pixmap = picture(60, 40);
    const TXTable table = tableOf({{cell(pixmap), cell(pixmap)}, {cell(pixmap), cell("text")}});
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("table.pdf");
    ReportTablePainter tables;
    writePdf(fileName, [&](QPainter *painter) {
        tables.paintTable(painter, table, kTopLeft, reportFont());
        tables.paintTable(painter, table, QPointF(200, 150), reportFont());
    });
    QSet<QString> objects;
    const QStringList lines =
        QString(outputOf("pdfimages", {"-list", fileName})).split('\n', Qt::SkipEmptyParts).mid(2);
    QCOMPARE(lines.size(), 6);
    for (const QString &line : lines) {
        objects.insert(line.simplified().split(' ').value(10));
    }
    QCOMPARE(objects.size(), 1);
}

void tst_ReportTablePainter::paintsEachTableInItsOwnFont()
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

void tst_ReportTablePainter::paintsTheShadowOfTheFrameOnPaper()
{
    const QImage with = imageOfPdf(paintDirectly, tableOf({{cell("text")}}, true));
    const QImage without = imageOfPdf(paintDirectly, tableOf({{cell("text")}}, false));
    const QPoint belowFrame(80, 150);
    QCOMPARE(QColor(without.pixel(belowFrame)), QColor(Qt::white));
    const int grey = QColor(with.pixel(belowFrame)).red();
    QVERIFY2(grey > 150 && grey < 245, qPrintable(QString::number(grey)));
}

void tst_ReportTablePainter::leavesThePaintersState_data()
{
    QTest::addColumn<bool>("isPaper");
    QTest::newRow("pixels") << false;
    QTest::newRow("paper") << true;
}

void tst_ReportTablePainter::leavesThePaintersState()
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

void tst_ReportTablePainter::paintsTextsThatAreTooLongToBeRemembered()
{
    const QString longText = QString("long ").repeated(20'000);
    const QString difference =
        differenceOf(tableOf({{cell(longText, {{"CellTextHorizontalAlign", 0}}), cell("next")}}),
                     {true, 1.0, 1.0});
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

int main(int argc, char **argv)
{
    return runTest<tst_ReportTablePainter>(argc, argv);
}

#include "tst_ReportTablePainter.moc"
