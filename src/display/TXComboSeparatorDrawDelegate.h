#pragma once

#include "TXGUICommonExport.h"

#include <QSize>
#include <QStyledItemDelegate>

/// Draws the separator rows of a combo box's list as a line, at a place and of a height that the
/// host chooses. A separator is a row whose text under Qt::AccessibleDescriptionRole is exactly
/// "separator", as QComboBox::insertSeparator() makes it. All other rows, and what else a separator
/// row shows, are painted as by QStyledItemDelegate.
///
/// Take TXSeparatorListDelegate where lines are to stand below rows that are no separators.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXComboSeparatorDrawDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `linePosition` places the line in the rectangle of its row: 0 in the middle, 1 at the top, 2
    /// at the bottom. With any other value it is drawn at y 0 of the painter's coordinates, so at
    /// the top of the view. `separatorSize` is the size of a separator row in device-independent
    /// pixels; an invalid size leaves it to the view.
    TXComboSeparatorDrawDelegate(int linePosition, QSize separatorSize, QObject *parent = nullptr);

    /// The row as QStyledItemDelegate paints it, and for a separator the line over it, from the
    /// left to the right edge in the active QPalette::Dark of the option's palette, also where the
    /// view is disabled or its window is not active. The line is 1 unit wide and its middle stands
    /// on the coordinate, so that at device pixel ratio 2 half of it lies above its row of units.
    /// The painter keeps its pen. Constant cost beyond the base class.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The size given to the constructor for a separator, else that of the base class.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

private:
    int linePosition;
    QSize separatorSize;
};
