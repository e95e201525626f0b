#pragma once

#include "ImageLayer.h"
#include "TXGUICommonExport.h"

#include <QImage>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

#include <memory>

/// Keeps what a viewer has painted while it is painted again unchanged, and lets it go once it is
/// of no more use.
///
/// A layer is made when a state is painted for the second time, so that dragging and zooming do not
/// pay for it. At any time there is one at most.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT LayerKeeper
{
public:
    /// What stands in the viewer. One that was not set is a viewer without pictures.
    struct Content
    {
        double scale = 1.0;
        /// As painting holds it, in picture pixels.
        QPointF position;
        QSize viewerSize;
        /// One a zone.
        QList<QPixmap> pictures;
    };

    /// A paint that is under way.
    struct Paint
    {
        Content content;
        /// In the viewer, one a picture.
        QList<QRectF> zones;
        /// Whether the viewer is on the screen: what is painted once for a picture of a window is
        /// not worth keeping.
        bool isVisible = false;
        /// Whether at least half of the viewer is painted.
        bool isOfMost = false;
        /// From viewer to device pixels.
        QTransform toDevice;
        /// Of the picture that is painted on; Format_Invalid for all other devices.
        QImage::Format format = QImage::Format_Invalid;
        QPainter::CompositionMode mode = QPainter::CompositionMode_SourceOver;

        /// Takes the device's part over from a painter that stands in viewer pixels.
        void setDevice(const QPainter &painter);
    };

    /// True when pixels that were kept would look the same as drawn anew, would be quicker, and
    /// take no more memory than the screen of the largest usual kind.
    [[nodiscard]] static bool isWorthKeeping(const Paint &paint);

    /// The layer that shows what is to be painted, or null when the pictures are to be drawn. Makes
    /// it by `draw` if this is the second time. A paint that cannot do with a layer lets it go. Do
    /// not call it from `draw`.
    [[nodiscard]] std::shared_ptr<const ImageLayer> layerFor(const Paint &paint,
                                                             const ImageLayer::DrawPicture &draw);

    /// Lets the layer go if it shows something else. Cheap while there is none.
    void keepOnlyFor(const Content &content);

    /// Lets the layer go and forgets what was painted.
    void clear();

    /// Whether pixels are kept at present.
    [[nodiscard]] bool hasLayer() const { return layer != nullptr; }

private:
    ImageLayer::State lastPainted;
    std::shared_ptr<const ImageLayer> layer;
};
