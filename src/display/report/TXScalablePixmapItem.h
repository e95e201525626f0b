#pragma once

#include "TXGUICommonExport.h"

#include <QGraphicsPixmapItem>
#include <QSizeF>

/// A picture on a scene whose size there has nothing to do with its number of pixels.
///
/// The whole picture fills the item's size, so that a picture of any resolution can stand in a
/// scene whose unit is the point. Take QGraphicsPixmapItem where a pixel is a unit.
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXScalablePixmapItem : public QGraphicsPixmapItem
{
public:
    /// Shows the pixmap at the given size in units of the scene; without one, call setSize() before
    /// the item is shown. A parent item owns the new one.
    explicit TXScalablePixmapItem(const QPixmap &pixmap, QGraphicsItem *parent = nullptr,
                                  QSizeF size = QSizeF());

    /// Sets the size in units of the scene. An empty, infinite or not-a-number size shows nothing;
    /// give none that is negative, as Qt takes the pixmap's own in its place.
    void setSize(QSizeF size);

    /// (0, 0) and the item's size.
    [[nodiscard]] QRectF boundingRect() const override;

    /// Fills the bounding rectangle, rounded to whole units, with the whole picture, smoothly.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QSizeF size;
};
