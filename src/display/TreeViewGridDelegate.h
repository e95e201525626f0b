#pragma once

#include "TXGUICommonExport.h"

#include <QStyledItemDelegate>

/// Draws the grid that QTreeView does not have: each cell as QStyledItemDelegate paints it, and
/// over it a light grey line along its right edge and one along its bottom. That at the bottom
/// starts 200 units to the left of the cell, so that it runs below the branches of the tree too.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TreeViewGridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// For any number of trees.
    explicit TreeViewGridDelegate(QObject *parent = nullptr);

    /// The lines are 1 unit wide, and their middle stands on the last coordinates of the cell. The
    /// painter keeps its pen. Constant cost beyond the base class.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
