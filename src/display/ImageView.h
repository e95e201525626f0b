#pragma once

#include "LayerKeeper.h"
#include "TXImageViewer.h"

#include <QRectF>
#include <QSize>

#include <optional>

/// What an image viewer knows of its pictures and where they stand.
struct TXImageViewer::View
{
    /// What lies under a place of the viewer.
    struct PixelUnderMouse
    {
        /// Whether the pixel belongs to the first picture; its last row and column do not count.
        bool isInside = false;
        /// -1 outside of all zones.
        int zoneIndex = -1;
        /// In picture pixels; (0, 0) outside of all zones.
        QPoint pixmapCoord;
    };

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
    /// At most maxScale.
    double minScale = 0.0078125;
    double maxScale = 16.0;
    bool dragging = false;
    QPixmap mouseMarker;
    /// From the marker's top left corner.
    QPoint mouseMarkerHotSpot;
    Overlay overlay;
    /// What a change of size does: 0 nothing, 1 sets ScaleShare again, 2 ScaleFit.
    int scalingMode = 0;
    /// What was painted, for the next paint. Let go when something else is to be shown, or nothing.
    LayerKeeper layers;
    /// Where the mouse was last seen, in viewer pixels; nothing once it has left.
    std::optional<QPointF> mousePlace;
    /// What assistive tools were told last of pixelUnderMouse().
    std::optional<QPoint> toldPixel;

    /// The factor of a notch of the wheel and of a key press.
    static constexpr double kZoomStep = 2.0;

    /// What this viewer knows.
    [[nodiscard]] static const View &of(const TXImageViewer &viewer) { return *viewer.view; }

    /// The nearest whole numbers; halves go away from zero.
    [[nodiscard]] static QPointF rounded(const QPointF &place);

    /// The zone of a picture in a viewer of this size.
    [[nodiscard]] QRectF zone(qsizetype index, const QSize &viewerSize) const;

    /// The pixel under a place in a viewer of this size. The place is rounded; one on the border of
    /// two zones is in the first of them. The pixel is truncated toward zero, so that less than a
    /// pixel left of a picture still counts as its column 0. Needs the same time however many
    /// zones.
    [[nodiscard]] PixelUnderMouse pixelAt(const QPointF &viewerPos, const QSize &viewerSize) const;

    /// The picture pixel where the mouse was last seen, or nothing when that is not in a picture.
    [[nodiscard]] std::optional<QPoint> pixelUnderMouse(const QSize &viewerSize) const;

    /// Sets the position; a coordinate that is not a number stays as it is.
    void moveTo(const QPointF &wanted);

    /// Moves the pictures by viewer pixels. No limit holds; a coordinate whose sum is not a number
    /// stays as it is.
    void moveBy(const QPointF &viewerDistance);

    /// Moves the seen part over the pictures by viewer pixels, no farther than painting allows, so
    /// that steps beyond an edge need not be taken back.
    void scrollBy(const QPointF &viewerDistance, const QSize &viewerSize);

    /// The position that painting gives it: no edge of a picture inside its zone, and a picture
    /// that is smaller than the zone in the middle.
    [[nodiscard]] QPointF heldPosition(const QSize &viewerSize) const;

    /// Brings the position to the held one.
    void holdPosition(const QSize &viewerSize);

    /// What a paint shows in a viewer of this size.
    [[nodiscard]] LayerKeeper::Content content(const QSize &viewerSize) const;

    /// To be called after each change of it.
    void letGoOfOtherLayer(const QSize &viewerSize);

private:
    [[nodiscard]] int zoneAt(const QPointF &place, const QSize &viewerSize) const;
    [[nodiscard]] bool isInside(const QPoint &pixmapCoord) const;
};
