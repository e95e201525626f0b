#include "LayerKeeper.h"

#include "PictureDrawing.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace {

/// Narrower zones are drawn as quickly as copied.
constexpr double kLeastKeptPixels = 16.0;
/// Layers are kept for viewers up to an 8K screen.
constexpr double kMostKeptPixels = 7680.0 * 4320.0;

QImage::Format formatBehind(const QPainter &painter)
{
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    const bool isImage = device && device->devType() == QInternal::Image;
    return isImage ? static_cast<const QImage *>(device)->format() : QImage::Format_Invalid;
}

bool isBitmap(const QPixmap &pixmap)
{
    return pixmap.isQBitmap();
}

/// True where a copied pixel ends up as one that was drawn there. A bitmap is drawn in the
/// painter's colours.
bool isCopiedExactly(const LayerKeeper::Paint &paint)
{
    const QTransform &toDevice = paint.toDevice;
    const QList<QPixmap> &pictures = paint.content.pictures;
    return (paint.format == QImage::Format_RGB32
            || paint.format == QImage::Format_ARGB32_Premultiplied)
        && paint.mode == QPainter::CompositionMode_SourceOver
        && toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0.0 && toDevice.m22() > 0.0
        && std::none_of(pictures.cbegin(), pictures.cend(), isBitmap);
}

bool isQuicker(const LayerKeeper::Paint &paint)
{
    const QSizeF size = paint.toDevice.mapRect(paint.zones.first()).size();
    // At a pixel for a pixel the picture itself is as quick to draw.
    return PictureDrawing::isDrawable(paint.content.scale)
        && !qFuzzyCompare(paint.content.scale * paint.toDevice.m11(), 1.0)
        && size.width() >= kLeastKeptPixels
        && size.width() * size.height() * double(paint.zones.size()) <= kMostKeptPixels;
}

ImageLayer::State stateOf(const LayerKeeper::Content &content, const QTransform &toDevice)
{
    const double dx = toDevice.dx() - std::floor(toDevice.dx());
    const double dy = toDevice.dy() - std::floor(toDevice.dy());
    const QTransform withinPixel(toDevice.m11(), 0.0, 0.0, toDevice.m22(), dx, dy);
    ImageLayer::State state = {
        content.scale, content.position, content.viewerSize, withinPixel, {}};
    state.pictures.reserve(content.pictures.size());
    for (const QPixmap &pixmap : content.pictures) {
        state.pictures.append(pixmap.cacheKey());
    }
    return state;
}

} // namespace

void LayerKeeper::Paint::setDevice(const QPainter &painter)
{
    toDevice = painter.deviceTransform();
    format = formatBehind(painter);
    mode = painter.compositionMode();
}

bool LayerKeeper::isWorthKeeping(const Paint &paint)
{
    return paint.isVisible && !paint.zones.isEmpty() && isCopiedExactly(paint) && isQuicker(paint);
}

std::shared_ptr<const ImageLayer> LayerKeeper::layerFor(const Paint &paint,
                                                        const ImageLayer::DrawPicture &draw)
{
    if (!isWorthKeeping(paint)) {
        clear();
        return nullptr;
    }
    const ImageLayer::State state = stateOf(paint.content, paint.toDevice);
    if (layer && !(layer->state() == state)) {
        layer.reset();
    }
    // Also when only a part is painted, which Qt draws a little differently by itself.
    if (!layer && lastPainted == state) {
        layer = std::make_shared<const ImageLayer>(state, paint.zones, draw);
    }
    if (paint.isOfMost) {
        lastPainted = state;
    }
    return layer;
}

void LayerKeeper::keepOnlyFor(const Content &content)
{
    if (layer && !(layer->state() == stateOf(content, layer->state().toDevice))) {
        clear();
    }
}

void LayerKeeper::clear()
{
    layer.reset();
    lastPainted = {};
}
