#include "ReportTablePainter.h"

#include "TXGraphicsScene.h"
#include "TXTable.h"

#include <QPainter>

void ReportTablePainter::paint(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                               const QFont &font)
{
    TXGraphicsScene scene;
    scene.drawTable(table, topLeft, font);
    const QRectF extent = scene.itemsBoundingRect();
    scene.render(painter, extent, extent);
}
