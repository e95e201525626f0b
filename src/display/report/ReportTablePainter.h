#pragma once

#include "TXGUICommonExport.h"

class QFont;
class QPainter;
class QPointF;
class TXTable;

/// Paints a table straight to a painter, as TXGraphicsScene::drawTable() and a rendering of the
/// scene would show it, without an item for each cell.
///
/// Costs the same for each cell; memory for nothing but remembered texts and pictures, which is
/// bounded. Thread: any one at a time.
class TXGUICOMMON_PRIVATE_EXPORT ReportTablePainter
{
public:
    /// Paints frame and cells, one unit of the painter being a point. `topLeft` is the corner of
    /// the cells; the frame stands 5 points out. Leaves the painter's state as it was.
    static void paint(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                      const QFont &font);
};
