#include "FocusFrame.h"
#include "ImageView.h"
#include "MarkerPlaces.h"
#include "PictureDrawing.h"
#include "TXImageViewer.h"

#include <QCursor>
#include <QPaintEvent>
#include <QPainter>
#include <QRegion>

#include <cmath>
#include <memory>

namespace {

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
    [[nodiscard]] QPointF corner() const { return position + imageRect.topLeft(); }
    void placeMarker();

    void findLayer(const QRegion &region);
    void begin(QPainter &painter, qsizetype index) const;
    void drawPicture(QPainter &painter, qsizetype index) const;
    void paintZone(qsizetype index) const;
    void enterPicture(QPainter &painter, qsizetype index) const;
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
    /// Null when none is to be seen.
    QPixmap marker;
    /// From the top left of each zone.
    QRectF markerRect;
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
        markerRect = {mouse - zone(pixel.zoneIndex).topLeft() - view.mouseMarkerHotSpot,
                      marker.deviceIndependentSize()};
    }
}

void TXImageViewer::Painting::paint(const QRegion &region)
{
    findLayer(region);
    for (qsizetype i = 0; i < zones.size(); ++i) {
        paintZone(i);
        paintMarkers(i);
    }
}

void TXImageViewer::Painting::findLayer(const QRegion &region)
{
    LayerKeeper::Paint paint;
    paint.content = view.content(viewer.size());
    paint.zones = zones;
    paint.isVisible = viewer.isVisible();
    paint.isOfMost = isMostOf(region, viewer.rect());
    paint.setDevice(QPainter(&viewer));
    layer = view.layers.layerFor(paint, [this](QPainter &painter, qsizetype index) {
        begin(painter, index);
        drawPicture(painter, index);
    });
}

void TXImageViewer::Painting::begin(QPainter &painter, qsizetype index) const
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    painter.setClipRect(zone(index), Qt::ReplaceClip);
}

/// The painter stands in viewer pixels.
void TXImageViewer::Painting::drawPicture(QPainter &painter, qsizetype index) const
{
    PictureDrawing::draw(painter, pixmaps[index], {zone(index), corner(), scale});
}

void TXImageViewer::Painting::paintZone(qsizetype index) const
{
    // A painter for each zone: in whatever state an overlay leaves it, it ends here.
    QPainter painter(&viewer);
    begin(painter, index);
    if (layer) {
        layer->drawZone(painter, index);
    } else {
        drawPicture(painter, index);
    }
    if (overlay) {
        callOverlay(painter, index);
    }
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
    painter.translate(corner());
}

void TXImageViewer::Painting::callOverlay(QPainter &painter, qsizetype index) const
{
    const QPointF origin = zone(index).center() + corner() * scale;
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
    if (marker.isNull()) {
        return;
    }
    QPainter painter(&viewer);
    begin(painter, index);
    const QList<QPointF> places =
        MarkerPlaces::seenIn(index, zones, markerRect, painter.deviceTransform());
    for (const QPointF &place : places) {
        painter.drawPixmap(place, marker);
    }
}

void TXImageViewer::paintEvent(QPaintEvent *event)
{
    Painting(*this).paint(event->region());
    QPainter painter(this);
    FocusFrame::paint(painter, *this, rect());
    painter.end();
    // Painting may have held the position, which moves the pictures under a mouse at rest.
    tellOfPixel();
}
