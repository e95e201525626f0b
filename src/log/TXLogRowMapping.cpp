#include "TXLogRowMapping.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 kHidden = std::numeric_limits<qint64>::min();

} // namespace

TXLogRowMapping::TXLogRowMapping() = default;

TXLogRowMapping::TXLogRowMapping(TXLogRowMapping *parent, qint64 number)
    : parent(parent)
    , numberInParent(number)
    , ownId(++parent->topLevel->lastId)
    , topLevel(parent->topLevel)
{
    topLevel->mappingsBelow.insert(ownId, this);
}

TXLogRowMapping::~TXLogRowMapping()
{
    for (const Row &row : qAsConst(rows)) {
        delete row.below;
    }
    topLevel->mappingsBelow.remove(ownId);
}

TXLogRowMapping *TXLogRowMapping::find(quintptr id)
{
    return id == ownId ? this : mappingsBelow.value(id);
}

void TXLogRowMapping::appendSourceRows(qsizetype count)
{
    rows.append(QList<Row>(count, Row{kHidden, nullptr, false}));
}

void TXLogRowMapping::dropFirstSourceRow()
{
    rows.removeFirst();
    ++droppedRows;
}

qsizetype TXLogRowMapping::shownRowOf(qsizetype sourceRow) const
{
    if (sourceRow < 0 || sourceRow >= rows.size() || rows.at(sourceRow).slot == kHidden) {
        return -1;
    }
    return rows.at(sourceRow).slot - firstSlot;
}

void TXLogRowMapping::show(qsizetype sourceRow, qsizetype shownRow)
{
    const qint64 number = sourceRow + droppedRows;
    if (shownRow < order.size() / 2) {
        order.prepend(number);
        std::rotate(order.begin(), order.begin() + 1, order.begin() + shownRow + 1);
        --firstSlot;
        renumber(0, shownRow + 1);
    } else {
        order.insert(shownRow, number);
        renumber(shownRow, order.size());
    }
}

void TXLogRowMapping::hide(qsizetype first, qsizetype last)
{
    for (qsizetype shownRow = first; shownRow <= last; ++shownRow) {
        Row &row = rows[sourceRowAt(shownRow)];
        row.slot = kHidden;
        delete std::exchange(row.below, nullptr);
    }
    const qsizetype count = last - first + 1;
    order.remove(first, count);
    if (first == 0) {
        firstSlot += count;
    } else {
        renumber(first, order.size());
    }
}

QList<qsizetype> TXLogRowMapping::shownSourceRows() const
{
    QList<qsizetype> sourceRows;
    sourceRows.reserve(order.size());
    for (const qint64 number : order) {
        sourceRows.append(number - droppedRows);
    }
    return sourceRows;
}

QList<TXLogRowMapping *> TXLogRowMapping::showOnly(const QList<qsizetype> &sourceRows)
{
    for (Row &row : rows) {
        row.slot = kHidden;
    }
    order.clear();
    order.reserve(sourceRows.size());
    for (const qsizetype sourceRow : sourceRows) {
        order.append(sourceRow + droppedRows);
    }
    renumber(0, order.size());

    QList<TXLogRowMapping *> handedOut;
    for (Row &row : rows) {
        if (row.below && row.slot == kHidden) {
            row.below->isHandedOut = true;
            handedOut.append(std::exchange(row.below, nullptr));
        }
    }
    return handedOut;
}

void TXLogRowMapping::markRowsBelow(qsizetype sourceRow)
{
    rows[sourceRow].hasRowsBelow = true;
}

bool TXLogRowMapping::mayHaveRowsBelow(qsizetype sourceRow) const
{
    return sourceRow >= 0 && sourceRow < rows.size() && rows.at(sourceRow).hasRowsBelow;
}

TXLogRowMapping *TXLogRowMapping::below(qsizetype sourceRow) const
{
    return sourceRow >= 0 && sourceRow < rows.size() ? rows.at(sourceRow).below : nullptr;
}

TXLogRowMapping *TXLogRowMapping::makeBelow(qsizetype sourceRow)
{
    rows[sourceRow].below = new TXLogRowMapping(this, sourceRow + droppedRows);
    return rows.at(sourceRow).below;
}

QList<TXLogRowMapping *> TXLogRowMapping::allBelow() const
{
    QList<TXLogRowMapping *> mappings;
    for (const Row &row : rows) {
        if (row.below) {
            mappings.append(row.below);
        }
    }
    return mappings;
}

bool TXLogRowMapping::isInUse() const
{
    const TXLogRowMapping *mapping = this;
    while (mapping && !mapping->isHandedOut) {
        mapping = mapping->parent;
    }
    return !mapping;
}

void TXLogRowMapping::renumber(qsizetype first, qsizetype end)
{
    for (qsizetype shownRow = first; shownRow < end; ++shownRow) {
        rows[sourceRowAt(shownRow)].slot = firstSlot + shownRow;
    }
}
