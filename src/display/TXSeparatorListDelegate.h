#pragma once

#include "TXGUICommonExport.h"

#include <QSet>
#include <QSize>
#include <QStyledItemDelegate>

/// Draws the separator rows of a list as a line, as TXComboSeparatorDrawDelegate does, and a thin
/// line below rows that the host chooses.
///
/// Rows are chosen by their number alone, in every column and below every parent, and a number
/// stays chosen when rows come or go above it. Nothing is repainted by itself: update the view
/// after a change. For a row that is chosen and a separator, the separator's line is drawn alone.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSeparatorListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Chooses `separatorRow` to begin with; a number that no row has, such as -1, chooses none.
    /// The other arguments are those of TXComboSeparatorDrawDelegate.
    TXSeparatorListDelegate(int separatorRow, int linePosition, QSize separatorSize,
                            QObject *parent = nullptr);

    /// Has a line drawn below the row. A row that has one already is left alone.
    void addSeparatorAtRowIndex(int row);
    /// Takes the line below the row away. True if there was one.
    bool removeSeparatorAtRowIndex(int row);

    /// The row as QStyledItemDelegate paints it, and over it the line of a separator, or at the
    /// bottom that of a chosen row, light grey and 1 unit wide. The painter keeps its pen. Constant
    /// cost beyond the base class.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The size given to the constructor for a separator, else that of the base class.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

private:
    int linePosition;
    QSize separatorSize;
    QSet<int> separatorRows;
};
