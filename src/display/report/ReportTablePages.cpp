#include "ReportTablePages.h"

#include "TXTableCell.h"

#include <algorithm>

ReportTablePages::ReportTablePages(const TXTable &table, float height)
    : table(table)
    , rowCount(int(table.getTableCellList().size()))
{
    for (int row = 0; row < rowCount; row += rowsFrom(row, height)) {
        firstRows.append(row);
    }
}

int ReportTablePages::rowsFrom(int firstRow, float height) const
{
    const int repeated = std::min(firstRow, table.getNbHeaderRows());
    // A row that is higher than a page gets a page all the same, or there would be no end.
    return std::max(table.getNbRowDrawableOnHeight(height, firstRow) - repeated, 1);
}

int ReportTablePages::count() const
{
    return int(firstRows.size());
}

int ReportTablePages::firstRow(int page) const
{
    return firstRows.value(page, rowCount);
}

TXTable ReportTablePages::page(int page) const
{
    return TXTable::copyPartOfTable(table, firstRow(page), firstRow(page + 1));
}
