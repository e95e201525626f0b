#pragma once

#include "SceneTestHelpers.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TXTableCell.h"

#include <QColor>
#include <QDebug>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QHash>
#include <QList>
#include <QPixmap>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Shorthands for tests that fill report tables and look at what they hold.
namespace TableTest {

using Settings = QHash<QString, QVariant>;
using Row = QList<TXTableCell>;
using Rows = QList<Row>;

/// What TXTable::addCell() takes, with as little in it as a report gives.
inline Settings settings(const QVariant &element, const QSizeF &size = {50.0, 20.0})
{
    return {{"CellElement", element}, {"CellSize", size}};
}

inline TXTableCell cell(const QVariant &element, const QSizeF &size = {50.0, 20.0},
                        int realColumn = 0, int nbMergedCell = 1)
{
    TXTableCell result(settings(element, size));
    result.realColumn = realColumn;
    result.nbMergedCell = nbMergedCell;
    return result;
}

/// A table that was given these elements one after another.
inline TXTable filledWith(int nbColumns, const QList<QVariant> &elements,
                          const QSizeF &size = {90.0, 20.0})
{
    TXTable table(nbColumns, false);
    for (const QVariant &element : elements) {
        table.addCell(settings(element, size));
    }
    return table;
}

/// A row of one cell of this height.
inline Row rowOfHeight(double height, const QVariant &element = QString())
{
    return {cell(element, {50.0, height})};
}

inline TXTable tableOf(const Rows &rows, int nbColumns = 3)
{
    TXTable table(nbColumns, false);
    table.setTableCellList(rows);
    return table;
}

/// So many rows of 20 points, the texts of which are their numbers.
inline TXTable numberedRows(int count)
{
    Rows rows;
    for (int row = 0; row < count; ++row) {
        rows.append(rowOfHeight(20.0, QString::number(row)));
    }
    return tableOf(rows);
}

/// The width that the text is to get in a table.
inline double paddedWidth(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).size(Qt::TextShowMnemonic, "  " + text + "  ").width();
}

/// A value in words; pictures by what makes them the same picture.
inline QString describe(const QVariant &value)
{
    if (value.typeId() == QMetaType::QPixmap) {
        return QStringLiteral("picture %1").arg(value.value<QPixmap>().cacheKey());
    }
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

/// All that a cell holds, each number to its last digit.
inline QString describe(const TXTableCell &cell)
{
    using SceneTestHelpers::exactly;
    QStringList parts{describe(cell.element)};
    for (const QColor &colour : {cell.textColor, cell.insideColor, cell.borderColor}) {
        parts.append(colour.isValid() ? colour.name(QColor::HexArgb) : QStringLiteral("none"));
    }
    parts << QString::number(cell.horizontalAlign) << QString::number(cell.verticalAlign)
          << (cell.bold ? "bold" : "normal") << exactly(cell.size.width())
          << exactly(cell.size.height()) << exactly(cell.borderLineWidth)
          << QString::number(cell.realColumn) << QString::number(cell.nbMergedCell);
    return parts.join(u' ');
}

/// A line for each cell and one before each row.
inline QStringList describe(const Rows &rows)
{
    QStringList lines;
    for (const Row &row : rows) {
        lines.append(QStringLiteral("row"));
        for (const TXTableCell &cell : row) {
            lines.append(describe(cell));
        }
    }
    return lines;
}

/// The texts of the cells, one list a row.
inline QList<QStringList> texts(const TXTable &table)
{
    QList<QStringList> result;
    const Rows rows = table.getTableCellList();
    for (const Row &row : rows) {
        QStringList ofRow;
        for (const TXTableCell &cell : row) {
            ofRow.append(cell.element.toString());
        }
        result.append(ofRow);
    }
    return result;
}

/// The text of each row's first cell; "-" for a row without cells.
inline QStringList firstTexts(const TXTable &table)
{
    QStringList result;
    const auto rows = texts(table);
    for (const QStringList &row : rows) {
        result.append(row.isEmpty() ? QStringLiteral("-") : row.first());
    }
    return result;
}

inline TXTableCell cellAt(const TXTable &table, int row, int cell)
{
    return table.getTableCellList().at(row).at(cell);
}

/// Whether the table's frame throws a shadow when it is drawn; no table tells so itself.
inline bool hasShadow(const TXTable &table)
{
    TXGraphicsScene scene;
    table.drawBorderTable(&scene, {0.0, 0.0}, 5.0F);
    const auto *frame = SceneTestHelpers::onlyItem<QGraphicsItem>(scene);
    return frame != nullptr
        && qobject_cast<QGraphicsDropShadowEffect *>(frame->graphicsEffect()) != nullptr;
}

} // namespace TableTest
