#pragma once

#include "TXGUICommonExport.h"
#include "TXTableCell.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

class QFont;
class QPen;
class QPointF;
class TXGraphicsScene;

/// A table of a printed report: filled cell after cell, measured, cut into pages and drawn.
///
/// A value without signals or selection; take QTableView for a table that users work with. Copies
/// share their rows. Lengths are in points.
///
/// The usual order: construct, setColumnWidth() for each column, initHeaderOfTableWithTitles(),
/// addCell() for each value row by row, optimizeTableSize(). TXReportDocument::addTable() then
/// takes the whole table to paper. A host that draws its pages itself calls
/// getNbRowDrawableOnHeight(), copyPartOfTable() and TXGraphicsScene::drawTable() for each page.
///
/// A row need not have as many cells as the table has columns: a list given to addCell() puts
/// several cells side by side into one column, and mergeCells() joins some. The index of a cell in
/// its row and the index of its column are therefore different things, and each function says which
/// it takes.
///
/// Thread: one thread at a time for each table; drawing is for the scene's thread.
class TXGUICOMMON_EXPORT TXTable
{
public:
    /// A table without rows whose columns are 30 points wide. Rows without cells count as 20 points
    /// high. With a shadow, the frame around the table throws one. Less than one column leaves the
    /// table without any: each plain cell then stands in a row of its own. Beyond a million,
    /// columns take cells but have no width of their own.
    TXTable(int nbColumns, bool hasShadow);

    /// \name Filling
    /// @{

    /// Adds the value under "CellElement" at the cursor, with the settings of TXTableCell's
    /// constructor, and moves the cursor one column on. A full row is closed when the next cell
    /// arrives.
    ///
    /// A text (also an empty one), a picture or anything else with a text becomes one cell. A list
    /// becomes cells that share one column: the width of "CellSize", which a list needs, is shared
    /// out evenly among them. A list in the first column makes a row of each value, and what
    /// follows then joins the first row that the cursor stands at. A list of one text that is not
    /// empty is that text. An empty list adds no cell and moves the cursor; a list does not mind
    /// whether the row is full. Without an element, or with one that is nothing of these, nothing
    /// happens. Where setTableCellList() has left fewer rows than the cursor stands at, the cell
    /// opens a row at the end.
    void addCell(const QHash<QString, QVariant> &dictionary);

    /// Replaces all cells. The cursor and the widths of the columns stay.
    void setTableCellList(QList<QList<TXTableCell>> cells);
    /// The rows of cells.
    [[nodiscard]] QList<QList<TXTableCell>> getTableCellList() const;

    /// Sets the width of a column (mind the order). Does not change the cells there are, which are
    /// drawn by their own widths. A column outside the table is ignored.
    void setColumnWidth(float width, int column);

    /// Joins the cells of a row, by index of cell, into the first of them. The merged cell is as
    /// wide as all together, truncated to whole points cell by cell, and as high as the first,
    /// truncated too. Nothing happens unless 0 <= `firstCell` < `lastCell` and all lie in the
    /// table.
    void mergeCells(int firstCell, int lastCell, int row);

    /// Makes each column as wide as its widest cell and the widest text in it with two blanks on
    /// either side. Several cells in one column of a row share the width of that column evenly; as
    /// their single widths count and not their sum, they shrink when their texts are short. The
    /// columns that the first row reaches take the new widths over. Heights stay.
    ///
    /// Linear in the number of cells; each distinct text is measured once for a font. Rows whose
    /// widths fit already stay shared with copies of the table. A cell's width that is not a number
    /// counts as none.
    void optimizeTableSize(const QFont &font);

    /// @}
    /// \name Measures
    /// @{

    /// The sum of the columns' widths; 0 without columns.
    [[nodiscard]] float tableWidth() const;
    /// The sum of the rows' heights; 0 without rows. Linear in the number of rows.
    [[nodiscard]] float tableHeight() const;
    /// The height of a row: that of its first cell. 20 for a row without cells or outside the
    /// table.
    [[nodiscard]] float getRowHeight(int row) const;
    /// The width of a column; 0 outside the table.
    [[nodiscard]] float columnWidthAtIndex(int column) const;
    /// How many rows fit on a page of this height that starts with `firstRow`, the repeated header
    /// rows included. A row that ends exactly at the height does not fit any more. Rows above the
    /// table (`firstRow` below 0) count as rows without cells, but no more than a million. Costs
    /// the number of rows that fit.
    [[nodiscard]] int getNbRowDrawableOnHeight(float height, int firstRow) const;
    /// How many rows at the top each page repeats: 1.
    [[nodiscard]] int getNbHeaderRows() const;

    /// @}
    /// \name Drawing
    /// @{

    /// Draws on the scene, which must not be null, the frame: a white rectangle with a thin black
    /// line that stands `margin` points out from the table on every side, with the shadow if the
    /// table has one. `topLeft` is the table's corner. The frame follows the columns' widths.
    void drawBorderTable(TXGraphicsScene *scene, const QPointF &topLeft, float margin) const;

    /// Draws the cells on the scene, which must not be null, from the corner of the table: side by
    /// side by their own widths, row below row. A row is as high as its first cell.
    void drawTableWithCell(TXGraphicsScene *scene, const QPointF &topLeft, const QFont &font) const;

    /// @}
    /// \name Pages and headers
    /// @{

    /// The table with the rows from `firstRow` up to, but without, `lastRow`. Where the first row
    /// is not 0 the header rows come before them again. The cells are shared with `table`, not
    /// copied; the cost is that of the rows taken. Rows outside the table are left out; a `lastRow`
    /// before a `firstRow` in the table means all the rest.
    [[nodiscard]] static TXTable copyPartOfTable(const TXTable &table, int firstRow, int lastRow);

    /// Settings for addCell() of a header cell: bold white text on black, dark grey border of 0.35.
    [[nodiscard]] static QHash<QString, QVariant> headerCellHashTemplate();

    /// Settings for addCell() of a cell that takes up room and shows nothing.
    [[nodiscard]] static QHash<QString, QVariant> invisibleCellHashTemplate();

    /// Adds a header cell for each title through addCell(), as wide as its column and `rowHeight`
    /// points high, or as high as an empty row if that is not above 0. On request the first title
    /// stands black on white. A title beyond the last column gets no width.
    static void initHeaderOfTableWithTitles(TXTable &table, const QList<QVariant> &titles,
                                            bool invertFirstTitle, float rowHeight);

    /// @}

private:
    friend class ReportTablePainter;

    void addSingleCell(const QHash<QString, QVariant> &dictionary);
    void addCellGroup(const QHash<QString, QVariant> &dictionary, const QList<QVariant> &elements);
    void appendAtCursor(const TXTableCell &cell);
    [[nodiscard]] static QPen framePen();
    [[nodiscard]] QRectF frameRect(const QPointF &topLeft, float margin) const;

    int currentRow = 0;
    int currentColumn = 0;
    int nbColumns;
    int nbHeaderRows = 1;
    QList<float> columnWidths;
    float defaultRowHeight = 20.0F;
    bool hasShadow;
    QList<QList<TXTableCell>> tableCells;
    QString tableTitle;
};
