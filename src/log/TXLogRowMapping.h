#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QList>

#include <memory>

/// Which children of one log entry a proxy shows, and in which order: the translation between the
/// rows of the log model and the rows of the proxy, both ways in constant time.
///
/// Built for how a log changes. Source rows come at the end and go at the front; a row that enters
/// or leaves the shown order costs its distance from the nearer end on insertion and from the end
/// on removal, so that a log sorted by date costs next to nothing. Knows nothing of Qt's models.
class TXGUICOMMON_PRIVATE_EXPORT TXLogRowMapping
{
public:
    /// The mapping of the top level.
    TXLogRowMapping();
    ~TXLogRowMapping();
    Q_DISABLE_COPY_MOVE(TXLogRowMapping)

    /// A number by which find() knows this mapping, 0 for the top level, never given twice. An
    /// index that outlives its mapping can carry it without harm, which views do until they are
    /// laid out.
    [[nodiscard]] quintptr id() const { return ownId; }

    /// The mapping of this tree with the given id, null when it has gone. For the top level only.
    [[nodiscard]] TXLogRowMapping *find(quintptr id);

    [[nodiscard]] qsizetype sourceCount() const { return rows.size(); }
    [[nodiscard]] qsizetype shownCount() const { return order.size(); }

    /// Adds source rows at the end, hidden.
    void appendSourceRows(qsizetype count);

    /// Drops source row 0, which must be hidden; all others move up by one.
    void dropFirstSourceRow();

    /// The source row that stands in a shown row, -1 outside of 0 to shownCount() - 1.
    [[nodiscard]] qsizetype sourceRowAt(qsizetype shownRow) const
    {
        return shownRow < order.size() ? order.at(shownRow) - droppedRows : -1;
    }

    /// The shown row of a source row, -1 for one that is hidden or outside.
    [[nodiscard]] qsizetype shownRowOf(qsizetype sourceRow) const;

    /// Shows a hidden source row in the given place from 0 to shownCount().
    void show(qsizetype sourceRow, qsizetype shownRow);

    /// Hides the shown rows from `first` to `last` and lets go of what is mapped below them.
    void hide(qsizetype first, qsizetype last);

    /// The source rows that are shown, in their order.
    [[nodiscard]] QList<qsizetype> shownSourceRows() const;

    /// Shows exactly these source rows in this order. What is mapped below a row that is hidden by
    /// that is handed out, as indexes may still point to it. Linear.
    QList<TXLogRowMapping *> showOnly(const QList<qsizetype> &sourceRows);

    /// Says that the log has rows below a source row.
    void markRowsBelow(qsizetype sourceRow);

    /// False for a row that certainly has nothing below it in the log. Saves looking there, which a
    /// view asks for each row whenever it lays out.
    [[nodiscard]] bool mayHaveRowsBelow(qsizetype sourceRow) const;

    /// The mapping of what is below a source row; null as long as nobody asked for it, and for a
    /// row outside. Belongs to this mapping.
    [[nodiscard]] TXLogRowMapping *below(qsizetype sourceRow) const;

    /// Makes the mapping of what is below a shown source row that has none yet.
    TXLogRowMapping *makeBelow(qsizetype sourceRow);

    /// All mappings below this one that were made.
    [[nodiscard]] QList<TXLogRowMapping *> allBelow() const;

    /// The mapping that this one is below of; null for the top level.
    [[nodiscard]] TXLogRowMapping *above() const { return parent; }

    /// The source row in above() that this mapping is below of.
    [[nodiscard]] qsizetype sourceRowInAbove() const
    {
        return numberInParent - parent->droppedRows;
    }

    /// False once showOnly() handed out this mapping or one above it.
    [[nodiscard]] bool isInUse() const;

private:
    // Rows are known by running numbers, the source row plus droppedRows, that stay the same when
    // rows go at the front; places in the shown order by slots, the shown row plus firstSlot, that
    // stay the same when rows come or go at the front of the order.
    struct Row
    {
        qint64 slot;
        TXLogRowMapping *below;
        bool hasRowsBelow;
    };

    using Register = QHash<quintptr, TXLogRowMapping *>;

    TXLogRowMapping(TXLogRowMapping *parent, qint64 number);
    void renumber(qsizetype first, qsizetype end);

    QList<qint64> order; // running numbers in shown order
    QList<Row> rows; // by source row
    qint64 droppedRows = 0;
    qint64 firstSlot = 0;
    TXLogRowMapping *parent = nullptr;
    qint64 numberInParent = 0;
    bool isHandedOut = false;
    quintptr ownId = 0;
    TXLogRowMapping *topLevel = this;
    Register mappingsBelow; // of the top level only: all that exist
    quintptr lastId = 0; // of the top level only
};
