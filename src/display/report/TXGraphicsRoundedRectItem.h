#pragma once

#include "TXGUICommonExport.h"

#include <QGraphicsRectItem>

/// A rectangle with round corners on a scene.
///
/// Take QGraphicsRectItem where the corners are square. Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXGraphicsRoundedRectItem : public QGraphicsRectItem
{
public:
    /// An empty rectangle, with square corners until setRoundedRect() is called. A parent item owns
    /// the new one.
    explicit TXGraphicsRoundedRectItem(QGraphicsItem *parent = nullptr);

    /// Sets the rectangle and the radii of its corners, all in the item's units. A corner never
    /// takes up more than half of a side, whatever its radius.
    void setRoundedRect(const QRectF &rect, double xRadius, double yRadius);

    /// Paints the rectangle with the item's pen and brush.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    double xRadius = 0;
    double yRadius = 0;
};
