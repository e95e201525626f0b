#include "TXTable.h"

#include "TXGraphicsScene.h"
#include "WholeNumber.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

constexpr float kDefaultColumnWidth = 30.0F;
constexpr float kFramePenWidth = 0.1F;
constexpr float kHeaderBorderWidth = 0.35F;

/// Widths are kept for so many columns; far more than any sheet can show, far less than memory has.
constexpr int kMostColumnsWithWidth = 1'000'000;

/// Rows above the table are counted too, but not by the thousand million.
constexpr int kFarAboveTable = -1'000'000;

bool isList(const QVariant &element)
{
    return element.typeId() == QMetaType::QVariantList
        || element.typeId() == QMetaType::QStringList;
}

bool isText(const QVariant &element)
{
    return element.typeId() == QMetaType::QString;
}

bool isPicture(const QVariant &element)
{
    return element.typeId() == QMetaType::QPixmap;
}

/// A list of one text has a text, and so is a single value and no list.
bool isSingleValue(const QVariant &element)
{
    return isText(element) || isPicture(element) || !element.toString().isEmpty();
}

QHash<QString, QVariant> inverted(QHash<QString, QVariant> settings)
{
    settings.insert(QStringLiteral("InsideCellColor"), QColor(Qt::white));
    settings.insert(QStringLiteral("CellTextColor"), QColor(Qt::black));
    return settings;
}

/// Tells what elements need of their column: a text stands between two blanks on either side, an
/// empty one too; pictures and elements without a text need nothing.
class PaddedTextMeter
{
public:
    explicit PaddedTextMeter(const QFont &font)
        : font(font)
    { }

    double width(const QVariant &element)
    {
        if (isText(element)) {
            return paddedWidth(*static_cast<const QString *>(element.constData()));
        }
        const QString text = isPicture(element) ? QString() : element.toString();
        return text.isEmpty() ? 0.0 : paddedWidth(text);
    }

private:
    double paddedWidth(const QString &text)
    {
        constexpr QLatin1String kPadding("  ");
        // One piece of memory serves all texts; most of them are measured already.
        padded.resize(0);
        padded.append(kPadding).append(text).append(kPadding);
        return TXGraphicsScene::getBoundingRectOfText(padded, font).width();
    }

    const QFont &font;
    QString padded;
};

/// A width for each column, 0 at first. Any number may name a column; the usual ones are found
/// without a search.
class ColumnWidths
{
public:
    float &operator[](int column)
    {
        return isUsual(column) ? usual[size_t(column)] : others[column];
    }

    float operator[](int column) const
    {
        return isUsual(column) ? usual[size_t(column)] : others.value(column);
    }

private:
    static constexpr int kUsualColumns = 64;

    static bool isUsual(int column) { return column >= 0 && column < kUsualColumns; }

    std::array<float, kUsualColumns> usual = {};
    QHash<int, float> others;
};

/// The width of the widest cell or text in each column. The texts that a row has in one column
/// count together.
ColumnWidths widestColumns(const QList<QList<TXTableCell>> &rows, const QFont &font)
{
    ColumnWidths widths;
    PaddedTextMeter meter(font);
    for (const QList<TXTableCell> &cells : rows) {
        double textWidth = 0.0;
        int previousColumn = -1;
        for (const TXTableCell &cell : cells) {
            if (cell.realColumn != previousColumn) {
                textWidth = 0.0;
                previousColumn = cell.realColumn;
            }
            textWidth += meter.width(cell.element);
            float &width = widths[cell.realColumn];
            width = std::max({width, float(cell.size.width()), float(textWidth)});
        }
    }
    return widths;
}

/// The width of a cell when the cells in its column share the column's width.
float evenShare(const ColumnWidths &columnWidths, const TXTableCell &cell)
{
    const float width = columnWidths[cell.realColumn];
    return cell.nbMergedCell == 0 ? width : width / float(cell.nbMergedCell);
}

bool hasEvenShares(const QList<TXTableCell> &cells, const ColumnWidths &columnWidths)
{
    return std::all_of(cells.cbegin(), cells.cend(), [&](const TXTableCell &cell) {
        return cell.size.width() == double(evenShare(columnWidths, cell));
    });
}

/// A row that fits already stays shared with the copies of the table.
void shareEvenly(QList<QList<TXTableCell>> &rows, qsizetype row, const ColumnWidths &columnWidths)
{
    if (!hasEvenShares(rows.at(row), columnWidths)) {
        for (TXTableCell &cell : rows[row]) {
            cell.size.setWidth(evenShare(columnWidths, cell));
        }
    }
}

} // namespace

TXTable::TXTable(int nbColumns, bool hasShadow)
    : nbColumns(nbColumns)
    , columnWidths(std::clamp(nbColumns, 0, kMostColumnsWithWidth), kDefaultColumnWidth)
    , hasShadow(hasShadow)
{ }

void TXTable::addCell(const QHash<QString, QVariant> &dictionary)
{
    const QVariant element = dictionary.value(QStringLiteral("CellElement"));
    if (isSingleValue(element)) {
        addSingleCell(dictionary);
    } else if (isList(element)) {
        addCellGroup(dictionary, element.toList());
    }
}

void TXTable::addSingleCell(const QHash<QString, QVariant> &dictionary)
{
    if (!tableCells.isEmpty() && currentColumn != 0 && currentColumn >= nbColumns) {
        ++currentRow;
        currentColumn = 0;
    }
    TXTableCell cell(dictionary);
    cell.realColumn = currentColumn;
    appendAtCursor(cell);
    ++currentColumn;
}

void TXTable::addCellGroup(const QHash<QString, QVariant> &dictionary,
                           const QList<QVariant> &elements)
{
    QSizeF size = dictionary.value(QStringLiteral("CellSize")).toSizeF();
    size.setWidth(size.width() / double(elements.size()));
    QHash<QString, QVariant> settings = dictionary;
    settings.insert(QStringLiteral("CellSize"), size);
    settings.insert(QStringLiteral("CellRealColumn"), currentColumn);
    settings.insert(QStringLiteral("NbMergedCell"), int(elements.size()));
    for (const QVariant &element : elements) {
        settings.insert(QStringLiteral("CellElement"), element);
        appendAtCursor(TXTableCell(settings));
    }
    ++currentColumn;
}

void TXTable::appendAtCursor(const TXTableCell &cell)
{
    // After setTableCellList() the cursor may stand below the last row.
    const bool opensRow = currentColumn == 0 || currentRow >= tableCells.size();
    if (opensRow) {
        tableCells.append({cell});
    } else {
        tableCells[currentRow].append(cell);
    }
}

void TXTable::setTableCellList(QList<QList<TXTableCell>> cells)
{
    tableCells = std::move(cells);
}

QList<QList<TXTableCell>> TXTable::getTableCellList() const
{
    return tableCells;
}

void TXTable::setColumnWidth(float width, int column)
{
    if (column >= 0 && column < columnWidths.size()) {
        columnWidths[column] = width;
    }
}

void TXTable::mergeCells(int firstCell, int lastCell, int row)
{
    if (row < 0 || row >= tableCells.size()) {
        return;
    }
    if (firstCell < 0 || firstCell >= lastCell || lastCell >= tableCells.at(row).size()) {
        return;
    }
    QList<TXTableCell> &cells = tableCells[row];
    int width = 0;
    for (int i = firstCell; i <= lastCell; ++i) {
        width = WholeNumber::truncated(width + cells.at(i).size.width());
    }
    TXTableCell &merged = cells[firstCell];
    merged.size = QSizeF(width, WholeNumber::truncated(merged.size.height()));
    cells.remove(firstCell + 1, lastCell - firstCell);
}

void TXTable::optimizeTableSize(const QFont &font)
{
    if (tableCells.isEmpty()) {
        return;
    }
    const ColumnWidths widths = widestColumns(tableCells, font);
    for (qsizetype row = 0; row < tableCells.size(); ++row) {
        shareEvenly(tableCells, row, widths);
    }
    for (const TXTableCell &cell : tableCells.constFirst()) {
        setColumnWidth(widths[cell.realColumn], cell.realColumn);
    }
}

float TXTable::tableWidth() const
{
    return std::accumulate(columnWidths.cbegin(), columnWidths.cend(), 0.0F);
}

float TXTable::tableHeight() const
{
    float height = 0.0F;
    for (int row = 0; row < tableCells.size(); ++row) {
        height += getRowHeight(row);
    }
    return height;
}

float TXTable::getRowHeight(int row) const
{
    if (row < 0 || row >= tableCells.size() || tableCells.at(row).isEmpty()) {
        return defaultRowHeight;
    }
    return float(tableCells.at(row).first().size.height());
}

float TXTable::columnWidthAtIndex(int column) const
{
    return column >= 0 && column < columnWidths.size() ? columnWidths.at(column) : 0.0F;
}

int TXTable::getNbRowDrawableOnHeight(float height, int firstRow) const
{
    float used = 0.0F;
    int count = 0;
    const auto add = [&](int row) {
        used += getRowHeight(row);
        if (height > used) {
            ++count;
        }
    };
    for (int row = 0; row < firstRow && row < nbHeaderRows && height > used; ++row) {
        add(row);
    }
    for (int row = std::max(firstRow, kFarAboveTable); row < tableCells.size() && height > used;
         ++row) {
        add(row);
    }
    return count;
}

int TXTable::getNbHeaderRows() const
{
    return nbHeaderRows;
}

void TXTable::drawBorderTable(TXGraphicsScene *scene, const QPointF &topLeft, float margin) const
{
    scene->drawRect(frameRect(topLeft, margin), framePen(), QBrush(Qt::white, Qt::SolidPattern),
                    hasShadow);
}

QPen TXTable::framePen()
{
    return {Qt::black, kFramePenWidth, Qt::SolidLine};
}

QRectF TXTable::frameRect(const QPointF &topLeft, float margin) const
{
    return {topLeft.x() - margin, topLeft.y() - margin, tableWidth() + 2 * margin,
            tableHeight() + 2 * margin};
}

void TXTable::drawTableWithCell(TXGraphicsScene *scene, const QPointF &topLeft,
                                const QFont &font) const
{
    QPointF place = topLeft;
    for (int row = 0; row < tableCells.size(); ++row) {
        for (const TXTableCell &cell : tableCells.at(row)) {
            cell.drawTableCell(scene, place, font);
            place.rx() += cell.size.width();
        }
        place = {topLeft.x(), place.y() + getRowHeight(row)};
    }
}

TXTable TXTable::copyPartOfTable(const TXTable &table, int firstRow, int lastRow)
{
    TXTable part(table);
    const auto rows = table.tableCells.mid(firstRow, qsizetype(lastRow) - firstRow);
    if (firstRow == 0) {
        part.tableCells = rows;
    } else {
        part.tableCells = table.tableCells.mid(0, table.nbHeaderRows);
        part.tableCells.append(rows);
    }
    return part;
}

QHash<QString, QVariant> TXTable::headerCellHashTemplate()
{
    return {{QStringLiteral("CellTextColor"), QColor(Qt::white)},
            {QStringLiteral("CellTextBold"), true},
            {QStringLiteral("InsideCellColor"), QColor(Qt::black)},
            {QStringLiteral("BorderCellColor"), QColor(Qt::darkGray)},
            {QStringLiteral("BorderCellLineWidth"), kHeaderBorderWidth}};
}

QHash<QString, QVariant> TXTable::invisibleCellHashTemplate()
{
    return {{QStringLiteral("CellElement"), QString("")},
            {QStringLiteral("CellTextColor"), QColor(Qt::transparent)},
            {QStringLiteral("InsideCellColor"), QColor(Qt::transparent)},
            {QStringLiteral("BorderCellColor"), QColor(Qt::transparent)},
            {QStringLiteral("BorderCellLineWidth"), 0}};
}

void TXTable::initHeaderOfTableWithTitles(TXTable &table, const QList<QVariant> &titles,
                                          bool invertFirstTitle, float rowHeight)
{
    QHash<QString, QVariant> settings = headerCellHashTemplate();
    const float height = rowHeight > 0.0F ? rowHeight : table.defaultRowHeight;
    for (int i = 0; i < titles.size(); ++i) {
        settings.insert(QStringLiteral("CellSize"), QSizeF(table.columnWidthAtIndex(i), height));
        settings.insert(QStringLiteral("CellElement"), titles.at(i));
        table.addCell(i == 0 && invertFirstTitle ? inverted(settings) : settings);
    }
}
