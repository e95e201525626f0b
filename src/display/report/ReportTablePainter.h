#pragma once

#include "ReportPictures.h"
#include "ReportTextLayouts.h"
#include "TXGUICommonExport.h"

#include <memory>

class QFont;
class QPainter;
class QPointF;
class TXTable;

/// Paints tables straight to a painter, as TXGraphicsScene::drawTable() and a rendering of the
/// scene would show them, without an item for each cell.
///
/// Keep one painter for a whole report: it remembers texts laid out and pictures resampled, so that
/// what comes again costs little, and equal pictures are one in a PDF. What it remembers is
/// bounded; nothing else grows with the table. Costs the same for each cell.
///
/// Thread: any one at a time; the GUI thread where a table with a shadow is painted to pixels.
class TXGUICOMMON_PRIVATE_EXPORT ReportTablePainter
{
    Q_DISABLE_COPY_MOVE(ReportTablePainter)

public:
    /// Nothing is remembered yet.
    ReportTablePainter();
    ~ReportTablePainter();

    /// Paints frame and cells, one unit of the painter being a point. `topLeft` is the corner of
    /// the cells; the frame stands 5 points out. In a PDF texts stand within 1/128 point of where
    /// the scene has them, everywhere else exactly there. Frames, cells and texts without a finite
    /// place and size are left out. Rectangles of a size just below 0 are shown, though Qt does not
    /// show such items of a scene. Leaves the painter's state as it was.
    void paintTable(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                    const QFont &font);

    /// Paints one table with nothing remembered before or after; otherwise as paintTable().
    static void paint(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                      const QFont &font);

private:
    class Painting;

    void setFont(const QFont &font);

    std::unique_ptr<ReportTextLayouts> plainTexts;
    std::unique_ptr<ReportTextLayouts> boldTexts;
    QFont tableFont;
    ReportPictures pictures;
};
