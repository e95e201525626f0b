#pragma once

#include "TXTableCell.h"
#include "TableTestHelpers.h"

#include <QFont>
#include <QList>
#include <QPixmap>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <map>
#include <vector>

/// The rules of a report table written down in their plainest form, to hold TXTable against.
///
/// It shares no code with the table, copies whatever it touches, measures each cell anew and looks
/// at nothing but one step at a time. Indexes that it is given must be those that a table takes.
class PlainTable
{
public:
    using Row = std::vector<TXTableCell>;

    explicit PlainTable(int nbColumns)
        : nbColumns(nbColumns)
        , columnWidths(size_t(nbColumns), 30.0F)
    { }

    void addCell(const TableTest::Settings &dictionary)
    {
        const QVariant element = dictionary.value("CellElement");
        const int type = element.typeId();
        if (!element.isValid()) {
            return;
        }
        if (type == QMetaType::QString || !element.toString().isEmpty()
            || type == QMetaType::QPixmap) {
            addValue(dictionary);
        } else if (type == QMetaType::QVariantList || type == QMetaType::QStringList) {
            addGroup(dictionary, element.toList());
        }
    }

    void mergeCells(int firstCell, int lastCell, int row)
    {
        if (row < 0 || row >= int(rows.size())) {
            return;
        }
        Row &cells = rows[size_t(row)];
        const int count = int(cells.size());
        if (firstCell < 0 || firstCell >= lastCell || firstCell >= count || lastCell >= count) {
            return;
        }
        TXTableCell merged = cells[size_t(firstCell)];
        int width = 0;
        for (int i = firstCell; i <= lastCell; ++i) {
            width = int(width + cells[size_t(i)].size.width());
        }
        merged.size = QSizeF(width, int(merged.size.height()));
        cells.erase(cells.begin() + firstCell, cells.begin() + lastCell + 1);
        cells.insert(cells.begin() + firstCell, merged);
    }

    void optimize(const QFont &font)
    {
        std::map<int, float> widest;
        for (const Row &row : rows) {
            double sum = 0.0;
            int previous = -1;
            for (const TXTableCell &cell : row) {
                if (cell.realColumn != previous) {
                    sum = 0.0;
                }
                previous = cell.realColumn;
                const QString text = cell.element.toString();
                if (cell.element.typeId() == QMetaType::QString || !text.isEmpty()) {
                    sum += TableTest::paddedWidth(text, font);
                }
                float &width = widest[cell.realColumn];
                width = std::max(width, float(cell.size.width()));
                width = std::max(width, float(sum));
            }
        }
        setWidths(widest);
    }

    [[nodiscard]] float rowHeight(int row) const
    {
        if (row < 0 || row >= int(rows.size()) || rows[size_t(row)].empty()) {
            return 20.0F;
        }
        return float(rows[size_t(row)].front().size.height());
    }

    [[nodiscard]] float height() const
    {
        float sum = 0.0F;
        for (int row = 0; row < int(rows.size()); ++row) {
            sum += rowHeight(row);
        }
        return sum;
    }

    [[nodiscard]] float width() const
    {
        float sum = 0.0F;
        for (const float width : columnWidths) {
            sum += width;
        }
        return sum;
    }

    [[nodiscard]] int rowsOnHeight(float height, int firstRow) const
    {
        float used = 0.0F;
        int count = 0;
        for (int i = 0; i < firstRow && i < kHeaderRows && height > used; ++i) {
            used += rowHeight(i);
            count += height > used ? 1 : 0;
        }
        for (int i = firstRow; i < int(rows.size()) && height > used; ++i) {
            used += rowHeight(i);
            count += height > used ? 1 : 0;
        }
        return count;
    }

    /// The rows of the piece; both indexes are 0 or above and in order.
    [[nodiscard]] std::vector<Row> part(int firstRow, int lastRow) const
    {
        std::vector<Row> result;
        for (int i = 0; firstRow != 0 && i < kHeaderRows && i < int(rows.size()); ++i) {
            result.push_back(rows[size_t(i)]);
        }
        for (int i = firstRow; i < lastRow && i < int(rows.size()); ++i) {
            result.push_back(rows[size_t(i)]);
        }
        return result;
    }

    /// Rows in the words of TableTest::describe().
    static QStringList described(const std::vector<Row> &rows)
    {
        TableTest::Rows list;
        for (const Row &row : rows) {
            list.append(TableTest::Row(row.begin(), row.end()));
        }
        return TableTest::describe(list);
    }

    std::vector<Row> rows;
    int nbColumns;
    std::vector<float> columnWidths;

private:
    static constexpr int kHeaderRows = 1;

    void addValue(const TableTest::Settings &dictionary)
    {
        TXTableCell cell(dictionary);
        if (rows.empty() || currentColumn == 0) {
            cell.realColumn = currentColumn;
            rows.push_back({cell});
            ++currentColumn;
        } else if (currentColumn >= nbColumns) {
            ++currentRow;
            currentColumn = 0;
            addValue(dictionary);
        } else {
            cell.realColumn = currentColumn;
            rows.at(size_t(currentRow)).push_back(cell);
            ++currentColumn;
        }
    }

    void addGroup(TableTest::Settings dictionary, const QList<QVariant> &values)
    {
        const QSizeF size = dictionary.value("CellSize").toSizeF();
        dictionary["CellSize"] = QSizeF(size.width() / double(values.size()), size.height());
        dictionary["CellRealColumn"] = currentColumn;
        dictionary["NbMergedCell"] = int(values.size());
        for (const QVariant &value : values) {
            dictionary["CellElement"] = value;
            if (rows.empty() || currentColumn == 0) {
                rows.push_back({TXTableCell(dictionary)});
            } else {
                rows.at(size_t(currentRow)).push_back(TXTableCell(dictionary));
            }
        }
        ++currentColumn;
    }

    void setWidths(std::map<int, float> &widest)
    {
        for (size_t i = 0; i < rows.size(); ++i) {
            for (TXTableCell &cell : rows[i]) {
                const float width = widest[cell.realColumn];
                const int cells = cell.nbMergedCell;
                cell.size.setWidth(cells == 0 ? width : width / float(cells));
                const bool isKnown =
                    cell.realColumn >= 0 && cell.realColumn < int(columnWidths.size());
                if (i == 0 && isKnown) {
                    columnWidths[size_t(cell.realColumn)] = width;
                }
            }
        }
    }

    int currentRow = 0;
    int currentColumn = 0;
};
