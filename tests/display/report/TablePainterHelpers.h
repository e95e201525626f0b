#pragma once

#include "PdfPicture.h"
#include "ReportTablePainter.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"

#include <QFont>
#include <QGraphicsItem>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>
#include <memory>

/// Tables of all sorts, and the two ways to paint them that must look the same: directly, and as
/// the items of a scene.
namespace TablePainterHelpers {

using PdfPicture::kPaper;
using Settings = QHash<QString, QVariant>;
using Rows = QList<QList<Settings>>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr QPointF kTopLeft(12.3, 9.7);

inline QFont reportFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(10);
    return font;
}

inline QPixmap picture(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::yellow);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, width / 2, height / 3, Qt::darkCyan);
    painter.drawLine(0, 0, width, height);
    return pixmap;
}

inline TXTable tableOf(const Rows &rows, bool hasShadow = false)
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

inline Settings cell(const QVariant &element, Settings more = {})
{
    more.insert("CellElement", element);
    return more;
}

inline Settings inverse(const QVariant &element)
{
    return cell(element,
                {{"CellTextColor", QColor(Qt::white)},
                 {"InsideCellColor", QColor(Qt::darkBlue)},
                 {"BorderCellColor", QColor(Qt::red)}});
}

using Paint = void (*)(QPainter *, const TXTable &);

inline void paintDirectly(QPainter *painter, const TXTable &table)
{
    ReportTablePainter::paint(painter, table, kTopLeft, reportFont());
}

/// Qt shows an edge of such a rectangle on pixels, after seconds, and breaks a PDF with it.
inline void removeWhatIsNotFinite(TXGraphicsScene &scene)
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

inline void paintThroughScene(QPainter *painter, const TXTable &table)
{
    TXGraphicsScene scene;
    scene.drawTable(table, kTopLeft, reportFont());
    removeWhatIsNotFinite(scene);
    scene.render(painter, kPaper, kPaper);
}

inline QVariant randomElement(QRandomGenerator &random)
{
    static const QStringList kTexts{"Patch A1",  "12.345", "",        "two\nlines", "a\tb",
                                    "&Mnemonic", "שלום",   "e\u0301", "𝄞 clef",     "x\n\ny\n"};
    switch (random.bounded(5)) {
    case 0:
        return random.bounded(1000);
    case 1:
        return picture(random.bounded(1, 40), random.bounded(1, 40));
    case 2:
        return {};
    default:
        return kTexts.at(int(random.bounded(kTexts.size())));
    }
}

inline QColor randomColour(QRandomGenerator &random)
{
    static const QList<QColor> kColours{Qt::black, Qt::white,       QColor(),
                                        Qt::red,   Qt::transparent, QColor(0, 90, 200, 120)};
    return kColours.at(random.bounded(kColours.size()));
}

inline Settings randomCell(QRandomGenerator &random)
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

inline TXTable randomTable(quint32 seed)
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

inline TXTable mergedTable()
{
    TXTable table = tableOf({{cell("one"), cell("two"), cell("three"), cell("four")},
                             {cell("five"), cell("six"), cell("seven"), cell("eight")}});
    table.mergeCells(1, 3, 0);
    table.mergeCells(0, 1, 1);
    return table;
}

inline TXTable alignedTable()
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

inline TXTable rowOfBorders(const QList<double> &widths)
{
    QList<Settings> row;
    for (const double width : widths) {
        row.append(cell("w", {{"BorderCellLineWidth", width}, {"CellSize", QSizeF(30.5, 20.25)}}));
    }
    return tableOf({row, row});
}

inline TXTable rowOfSizes(const QList<QSizeF> &sizes)
{
    QList<Settings> row;
    for (const QSizeF &size : sizes) {
        row.append(cell("size", {{"CellSize", size}, {"InsideCellColor", QColor(Qt::cyan)}}));
        row.append(cell(picture(30, 20), {{"CellSize", size}}));
    }
    return tableOf({row, {cell("below")}});
}

inline void addTables()
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

} // namespace TablePainterHelpers

Q_DECLARE_METATYPE(TXTable)
