#include "TXTable.h"

#include "TXGraphicsScene.h"
#include "WholeNumber.h"

#include <QFont>
#include <QPen>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr float kDefaultColumnWidth = 30.0F;
constexpr float kFramePenWidth = 0.1F;
constexpr float kHeaderBorderWidth = 0.35F;

/// Rows above the table are counted too, but not by the thousand million.
constexpr int kFarAboveTable = -1'000'000;

bool isList(const QVariant &element)
{
    return element.typeId() == QMetaType::QVariantList
        || element.typeId() == QMetaType::QStringList;
}

bool hasText(const QVariant &element)
{
    return element.typeId() == QMetaType::QString || !element.toString().isEmpty();
}

bool isSingleValue(const QVariant &element)
{
    return hasText(element) || element.typeId() == QMetaType::QPixmap;
}

QPen framePen()
{
    return QPen(Qt::black, kFramePenWidth, Qt::SolidLine);
}

QHash<QString, QVariant> inverted(QHash<QString, QVariant> settings)
{
    settings.insert("InsideCellColor", QColor(Qt::white));
    settings.insert("CellTextColor", QColor(Qt::black));
    return settings;
}

/// What a text needs of its column: it stands between two blanks on either side.
float paddedTextWidth(const QString &text, const QFont &font)
{
    return float(
        TXGraphicsScene::getBoundingRectOfText(QStringLiteral("  %1  ").arg(text), font).width());
}

} // namespace

TXTable::TXTable(int nbColumns, bool hasShadow)
    : nbColumns(nbColumns)
    , columnWidths(std::max(nbColumns, 0), kDefaultColumnWidth)
    , hasShadow(hasShadow)
{ }

void TXTable::addCell(const QHash<QString, QVariant> &dictionary)
{
    const QVariant element = dictionary.value("CellElement");
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
    QSizeF size = dictionary.value("CellSize").toSizeF();
    size.setWidth(size.width() / double(elements.size()));
    QHash<QString, QVariant> settings = dictionary;
    settings.insert("CellSize", size);
    settings.insert("CellRealColumn", currentColumn);
    settings.insert("NbMergedCell", int(elements.size()));
    for (const QVariant &element : elements) {
        settings.insert("CellElement", element);
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
    if (column >= 0 && column < nbColumns) {
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
    const QHash<int, float> widths = optimalColumnWidths(font);
    for (QList<TXTableCell> &cells : tableCells) {
        for (TXTableCell &cell : cells) {
            const float width = widths.value(cell.realColumn);
            cell.size.setWidth(cell.nbMergedCell == 0 ? width : width / float(cell.nbMergedCell));
        }
    }
    if (tableCells.isEmpty()) {
        return;
    }
    for (const TXTableCell &cell : std::as_const(tableCells.first())) {
        if (cell.realColumn >= 0 && cell.realColumn < columnWidths.size()) {
            columnWidths[cell.realColumn] = widths.value(cell.realColumn);
        }
    }
}

QHash<int, float> TXTable::optimalColumnWidths(const QFont &font) const
{
    QHash<int, float> widths;
    for (const QList<TXTableCell> &cells : tableCells) {
        double textWidth = 0.0;
        int previousColumn = -1;
        for (const TXTableCell &cell : cells) {
            if (cell.realColumn != previousColumn) {
                textWidth = 0.0;
                previousColumn = cell.realColumn;
            }
            if (hasText(cell.element)) {
                textWidth += paddedTextWidth(cell.element.toString(), font);
            }
            float &width = widths[cell.realColumn];
            width = std::max({width, float(cell.size.width()), float(textWidth)});
        }
    }
    return widths;
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
    return column >= 0 && column < nbColumns ? columnWidths.at(column) : 0.0F;
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
    part.tableCells = table.tableCells.mid(firstRow, qsizetype(lastRow) - firstRow);
    if (firstRow != 0) {
        part.tableCells = table.tableCells.mid(0, table.nbHeaderRows) + part.tableCells;
    }
    return part;
}

QHash<QString, QVariant> TXTable::headerCellHashTemplate()
{
    return {{"CellTextColor", QColor(Qt::white)},
            {"CellTextBold", true},
            {"InsideCellColor", QColor(Qt::black)},
            {"BorderCellColor", QColor(Qt::darkGray)},
            {"BorderCellLineWidth", kHeaderBorderWidth}};
}

QHash<QString, QVariant> TXTable::invisibleCellHashTemplate()
{
    return {{"CellElement", QString("")},
            {"CellTextColor", QColor(Qt::transparent)},
            {"InsideCellColor", QColor(Qt::transparent)},
            {"BorderCellColor", QColor(Qt::transparent)},
            {"BorderCellLineWidth", 0}};
}

void TXTable::initHeaderOfTableWithTitles(TXTable &table, const QList<QVariant> &titles,
                                          bool invertFirstTitle, float rowHeight)
{
    QHash<QString, QVariant> settings = headerCellHashTemplate();
    const float height = rowHeight > 0.0F ? rowHeight : table.defaultRowHeight;
    for (int i = 0; i < titles.size(); ++i) {
        settings.insert("CellSize", QSizeF(table.columnWidthAtIndex(i), height));
        settings.insert("CellElement", titles.at(i));
        table.addCell(i == 0 && invertFirstTitle ? inverted(settings) : settings);
    }
}
