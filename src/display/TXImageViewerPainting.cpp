#include "FocusFrame.h"
#include "ImageLayer.h"
#include "ImageView.h"
#include "TXImageViewer.h"
#include "WholeNumber.h"

#include <QCursor>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QRegion>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace {

/// Below this a picture of any size is narrower than a pixel.
constexpr double kLeastDrawnScale = 1e-6;
/// From here on few pixels of a picture are in sight, and each is drawn by itself: a place within a
/// picture is told to Qt in steps that would be seen.
constexpr double kEachPixelScale = 1000.0;
/// Qt's fast ways of drawing pictures count in steps of 1/65536 and are right up to this size.
constexpr double kMostDrawnPixels = 32767.0;

/// Narrower zones are drawn as quickly as copied.
constexpr double kLeastKeptPixels = 16.0;
/// Layers are kept for viewers up to an 8K screen.
constexpr double kMostKeptPixels = 7680.0 * 4320.0;

bool isDrawable(double scale)
{
    return std::isfinite(scale) && std::abs(scale) >= kLeastDrawnScale;
}

bool isWithinReach(const QRectF &place)
{
    return place.left() > -kMostDrawnPixels && place.right() < kMostDrawnPixels
        && place.top() > -kMostDrawnPixels && place.bottom() < kMostDrawnPixels;
}

/// Qt would take an empty rectangle for the whole picture.
void drawPart(QPainter &painter, const QRectF &place, const QPixmap &picture, const QRectF &part)
{
    if (!place.isEmpty()) {
        painter.drawPixmap(place, picture, part);
    }
}

/// Draws a picture where the transform puts it. Of what would be larger than Qt can draw, only the
/// part that is in sight.
void drawPicture(QPainter &painter, const QPixmap &picture, const QTransform &toViewer,
                 const QRectF &sight)
{
    painter.setWorldTransform(toViewer, true);
    const QRectF whole(QPointF(), picture.deviceIndependentSize());
    if (isWithinReach(painter.deviceTransform().mapRect(whole))) {
        painter.drawPixmap(QPointF(), picture);
        return;
    }
    const QRectF part = whole & toViewer.inverted().mapRect(sight);
    const double ratio = picture.devicePixelRatio();
    drawPart(painter, part, picture, QRectF(part.topLeft() * ratio, part.size() * ratio));
}

/// The whole numbers around a range, held to those below a limit.
std::pair<int, int> wholeAround(double from, double to, int limit)
{
    return {std::clamp(WholeNumber::truncated(from) - 1, 0, limit),
            std::clamp(WholeNumber::truncated(to) + 1, -1, limit - 1)};
}

/// The rectangle between two points, which are told from the middle of the sight, as far as it is
/// in sight. A rectangle of that size itself would have no room for the place of its far edge.
QRectF between(const QPointF &from, const QPointF &to, const QRectF &sight)
{
    const auto held = [&sight](double x, double y) {
        const QPointF place = sight.center() + QPointF(x, y);
        return QPointF(std::clamp(place.x(), sight.left(), sight.right()),
                       std::clamp(place.y(), sight.top(), sight.bottom()));
    };
    return {held(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
            held(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

/// The same for scales at which the sight holds few pixels. The corner is the picture's, in picture
/// pixels from the middle of the sight: from there all is reckoned, as the way from the viewer's
/// corner may be longer than a double can tell.
void drawPixelsInSight(QPainter &painter, const QPixmap &picture, double scale,
                       const QPointF &corner, const QRectF &sight)
{
    const double ratio = picture.devicePixelRatio();
    const QPointF reach = QPointF(sight.width(), sight.height()) / (2.0 * std::abs(scale));
    const QPointF from = (-corner - reach) * ratio;
    const QPointF to = (-corner + reach) * ratio;
    const auto [left, right] = wholeAround(from.x(), to.x(), picture.width());
    const auto [top, bottom] = wholeAround(from.y(), to.y(), picture.height());
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const QPointF begin = (QPointF(x, y) / ratio + corner) * scale;
            const QPointF end = (QPointF(x + 1, y + 1) / ratio + corner) * scale;
            drawPart(painter, between(begin, end, sight), picture, QRectF(x, y, 1.0, 1.0));
        }
    }
}

/// The format of the picture that is painted on, or Format_Invalid when it is something else.
QImage::Format formatBehind(const QPainter &painter)
{
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    const bool isImage = device && device->devType() == QInternal::Image;
    return isImage ? static_cast<const QImage *>(device)->format() : QImage::Format_Invalid;
}

/// True where a copied pixel ends up as one that was drawn there.
bool isCopiedExactly(const QPainter &painter)
{
    const QTransform toDevice = painter.deviceTransform();
    const QImage::Format format = formatBehind(painter);
    return (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied)
        && toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0.0 && toDevice.m22() > 0.0
        && painter.opacity() >= 1.0
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

bool isBitmap(const QPixmap &pixmap)
{
    return pixmap.isQBitmap();
}

/// True when at least half of the area is to be painted.
bool isMostOf(const QRegion &region, const QRect &area)
{
    const QRect part = region.boundingRect();
    return 2.0 * part.width() * part.height() >= double(area.width()) * area.height();
}

} // namespace

/// One paint event: what is shown, as it was when the event began, so that an overlay may change
/// the viewer.
class TXImageViewer::Painting
{
public:
    explicit Painting(TXImageViewer &shownViewer);

    void paint(const QRegion &region);

private:
    [[nodiscard]] QRectF zone(qsizetype index) const { return zones[index]; }
    void placeMarker();

    void begin(QPainter &painter, qsizetype index) const;
    void enterPicture(QPainter &painter, qsizetype index) const;
    void drawPixmap(QPainter &painter, qsizetype index) const;

    void findLayer(const QRegion &region);
    [[nodiscard]] bool isWorthKeeping(const QPainter &painter) const;
    [[nodiscard]] ImageLayer::State stateOn(const QPainter &painter) const;
    [[nodiscard]] std::shared_ptr<const ImageLayer> makeLayer(const ImageLayer::State &state) const;

    void paintZone(qsizetype index) const;
    void callOverlay(QPainter &painter, qsizetype index) const;
    void paintMarkers(qsizetype index) const;

    TXImageViewer &viewer;
    View &view;
    QList<QPixmap> pixmaps;
    QList<QRectF> zones;
    QRectF imageRect;
    double scale;
    QPointF position;
    Overlay overlay;
    QPixmap marker;
    /// From the top left of each zone; nothing when no marker is to be seen.
    std::optional<QPointF> markerPlace;
    std::shared_ptr<const ImageLayer> layer;
};

TXImageViewer::Painting::Painting(TXImageViewer &shownViewer)
    : viewer(shownViewer)
    , view(*shownViewer.view)
    , pixmaps(view.pixmaps)
    , imageRect(view.imageRect)
    , scale(view.scale)
    , overlay(view.overlay)
{
    zones.reserve(pixmaps.size());
    for (qsizetype i = 0; i < pixmaps.size(); ++i) {
        zones.append(view.zone(i, viewer.size()));
    }
    if (!zones.isEmpty()) {
        view.holdPosition(viewer.size());
    }
    position = view.position;
    placeMarker();
}

void TXImageViewer::Painting::placeMarker()
{
    if (view.mouseMarker.isNull()) {
        return;
    }
    const QPointF mouse = viewer.mapFromGlobal(QCursor::pos());
    const View::PixelUnderMouse pixel = view.pixelAt(mouse, viewer.size());
    if (pixel.isInside) {
        marker = view.mouseMarker;
        markerPlace = mouse - zone(pixel.zoneIndex).topLeft() - view.mouseMarkerHotSpot;
    }
}

void TXImageViewer::Painting::begin(QPainter &painter, qsizetype index) const
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    painter.setClipRect(zone(index), Qt::ReplaceClip);
}

void TXImageViewer::Painting::enterPicture(QPainter &painter, qsizetype index) const
{
    painter.translate(zone(index).center());
    if (!std::isfinite(scale)) {
        // Nothing is to be seen of such a picture; what is not a number stays out of the painter.
        painter.setClipRect(QRectF(), Qt::ReplaceClip);
        return;
    }
    painter.scale(scale, scale);
    painter.translate(position + imageRect.topLeft());
}

/// The painter stands in viewer pixels.
void TXImageViewer::Painting::drawPixmap(QPainter &painter, qsizetype index) const
{
    if (!isDrawable(scale)) {
        return;
    }
    const QPixmap &pixmap = pixmaps[index];
    const QPointF corner = position + imageRect.topLeft();
    if (std::abs(scale) > kEachPixelScale * pixmap.devicePixelRatio()) {
        drawPixelsInSight(painter, pixmap, scale, corner, zone(index));
        return;
    }
    QTransform toViewer;
    toViewer.translate(zone(index).center().x(), zone(index).center().y());
    toViewer.scale(scale, scale);
    toViewer.translate(corner.x(), corner.y());
    drawPicture(painter, pixmap, toViewer, zone(index));
}

/// Takes the layer while nothing has changed. Makes one when a state is painted for the second
/// time, so that dragging and zooming do not pay for it; also when only a part is painted, which Qt
/// draws a little differently by itself.
void TXImageViewer::Painting::findLayer(const QRegion &region)
{
    const QPainter painter(&viewer);
    if (!isCopiedExactly(painter) || !isWorthKeeping(painter)) {
        return;
    }
    const ImageLayer::State state = stateOn(painter);
    if (!view.layer || !(view.layer->state() == state)) {
        view.layer = view.lastPainted == state ? makeLayer(state) : nullptr;
    }
    if (isMostOf(region, viewer.rect())) {
        view.lastPainted = state;
    }
    layer = view.layer;
}

bool TXImageViewer::Painting::isWorthKeeping(const QPainter &painter) const
{
    const QTransform toDevice = painter.deviceTransform();
    const QSizeF size = toDevice.mapRect(zone(0)).size();
    const bool isAnyBitmap = std::any_of(pixmaps.cbegin(), pixmaps.cend(), isBitmap);
    // At a pixel for a pixel the picture itself is as quick to draw.
    return isDrawable(scale) && !isAnyBitmap && !qFuzzyCompare(scale * toDevice.m11(), 1.0)
        && size.width() >= kLeastKeptPixels
        && size.width() * size.height() * double(zones.size()) <= kMostKeptPixels;
}

ImageLayer::State TXImageViewer::Painting::stateOn(const QPainter &painter) const
{
    const QTransform device = painter.deviceTransform();
    const double dx = device.dx() - std::floor(device.dx());
    const double dy = device.dy() - std::floor(device.dy());
    const QTransform toDevice(device.m11(), 0.0, 0.0, device.m22(), dx, dy);
    ImageLayer::State state = {scale, position, viewer.size(), toDevice, {}};
    state.pictures.reserve(pixmaps.size());
    for (const QPixmap &pixmap : pixmaps) {
        state.pictures.append(pixmap.cacheKey());
    }
    return state;
}

std::shared_ptr<const ImageLayer>
TXImageViewer::Painting::makeLayer(const ImageLayer::State &state) const
{
    const auto draw = [this](QPainter &painter, qsizetype index) {
        begin(painter, index);
        drawPixmap(painter, index);
    };
    return std::make_shared<const ImageLayer>(state, zones, draw);
}

void TXImageViewer::Painting::paint(const QRegion &region)
{
    if (!zones.isEmpty()) {
        findLayer(region);
    }
    for (qsizetype i = 0; i < zones.size(); ++i) {
        paintZone(i);
        paintMarkers(i);
    }
}

void TXImageViewer::Painting::paintZone(qsizetype index) const
{
    // A painter for each zone: in whatever state an overlay leaves it, it ends here.
    QPainter painter(&viewer);
    begin(painter, index);
    if (layer) {
        layer->drawZone(painter, index);
    } else {
        drawPixmap(painter, index);
        painter.resetTransform();
    }
    if (overlay) {
        callOverlay(painter, index);
    }
}

void TXImageViewer::Painting::callOverlay(QPainter &painter, qsizetype index) const
{
    const QPointF corner = position + imageRect.topLeft();
    const QPointF origin = zone(index).center() + corner * scale;
    enterPicture(painter, index);
    overlay(&painter, int(index), true, origin, scale);
    if (painter.isActive()) {
        painter.resetTransform();
        overlay(&painter, int(index), false, origin, scale);
    }
}

/// Draws the marker of each zone whose marker reaches into this one.
void TXImageViewer::Painting::paintMarkers(qsizetype index) const
{
    if (!markerPlace) {
        return;
    }
    QPainter painter(&viewer);
    begin(painter, index);
    if (painter.clipBoundingRect().isEmpty()) {
        return;
    }
    const double width = zone(index).width();
    const double right = markerPlace->x() + marker.deviceIndependentSize().width();
    const qsizetype before = WholeNumber::truncated((right + 1.0) / width) + 1;
    const qsizetype behind = WholeNumber::truncated((width + 1.0 - markerPlace->x()) / width) + 1;
    const qsizetype first = std::max(index - before, qsizetype(0));
    const qsizetype last = std::min(index + behind, zones.size() - 1);
    for (qsizetype i = first; i <= last; ++i) {
        painter.drawPixmap(zone(i).topLeft() + *markerPlace, marker);
    }
}

void TXImageViewer::paintEvent(QPaintEvent *event)
{
    Painting(*this).paint(event->region());
    QPainter painter(this);
    FocusFrame::paint(painter, *this, rect());
}

void TXImageViewer::hideEvent(QHideEvent *event)
{
    view->layer.reset();
    QWidget::hideEvent(event);
}
