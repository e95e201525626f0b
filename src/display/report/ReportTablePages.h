#pragma once

#include "TXGUICommonExport.h"
#include "TXTable.h"

#include <QList>

/// Where a table is cut into pages, by the table's own arithmetic: as many rows as fit, at least
/// one, below the header rows that each page but the first repeats.
///
/// Made in one pass over the rows; then each page is found at once. Holds the number of each page's
/// first row, and shares the table's rows.
class TXGUICOMMON_PRIVATE_EXPORT ReportTablePages
{
public:
    /// Cuts the table for pages on which rows may be `height` points high together. A height that
    /// is not above 0, or not a number, gives pages of one row.
    ReportTablePages(const TXTable &table, float height);

    /// The number of pages; 0 for a table without rows.
    [[nodiscard]] int count() const;

    /// The first row of a page, the repeated header rows aside. Pages count from 0; the number of
    /// rows for a page outside the table.
    [[nodiscard]] int firstRow(int page) const;

    /// What stands on a page: its rows, with the header rows in front. Costs a step for each of
    /// them. The page must be one of the table's.
    [[nodiscard]] TXTable page(int page) const;

private:
    [[nodiscard]] int rowsFrom(int firstRow, float height) const;

    TXTable table;
    int rowCount;
    QList<int> firstRows;
};
