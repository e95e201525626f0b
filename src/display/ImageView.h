#pragma once

#include "TXImageViewer.h"

/// What an image viewer knows of its pictures and where they stand.
struct TXImageViewer::View
{
    /// One a zone, in the order of the zones.
    QList<QPixmap> pixmaps;
    /// The first picture's rectangle, centred on the origin; all pictures are laid out by it.
    QRectF imageRect;
    /// The last point of a drag, in whole pixels.
    QPointF lastMousePos;
    /// In picture pixels.
    QPointF position;
    /// Negative until the first fit.
    double scale = -1.0;
    double minScale = 0.0078125;
    double maxScale = 16.0;
    bool dragging = false;
    QPixmap mouseMarker;
    QPoint mouseMarkerHotSpot;
    Overlay overlay;
    /// What a change of size does: 0 nothing, 1 sets ScaleShare again, 2 ScaleFit.
    int scalingMode = 0;

    /// The zone of a picture in a viewer of this size.
    [[nodiscard]] QRectF zone(qsizetype index, const QSize &viewerSize) const;
};
