#include "TXImageViewer.h"

#include "ImageView.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

TXImageViewer::TXImageViewer(QWidget *parent)
    : QWidget(parent)
    , view(std::make_unique<View>())
{
    setMouseTracking(true);
}

TXImageViewer::~TXImageViewer() = default;

QList<QPixmap> TXImageViewer::pixmaps() const
{
    return view->pixmaps;
}

void TXImageViewer::setPixmap(const QPixmap &pixmap)
{
    setPixmaps({pixmap});
}

void TXImageViewer::setPixmaps(const QList<QPixmap> &pixmaps)
{
    view->pixmaps = pixmaps;
    view->imageRect = QRectF(pixmaps.value(0).rect());
    view->imageRect.moveCenter(QPointF());
    if (view->scalingMode != 0) {
        scale(view->scalingMode == 1 ? ScaleShare : ScaleFit);
    } else if (std::isfinite(view->scale) && view->scale >= 0.0) {
        update();
    } else {
        scale(ScaleFit);
    }
}

double TXImageViewer::scale() const
{
    return view->scale;
}

void TXImageViewer::scale(double factor, Relation relation)
{
    view->scalingMode = 0;
    const double wanted = relation == Absolute ? factor : factor * view->scale;
    view->scale = std::clamp(wanted, view->minScale, view->maxScale);
    update();
    emit scaleChanged(static_cast<float>(view->scale));
}

void TXImageViewer::scale(Scaling scaling)
{
    view->scalingMode = scaling == ScaleFit ? 2 : scaling == ScaleShare ? 1 : 0;
    view->scale = scaleHint(scaling);
    view->minScale = std::min(view->minScale, view->scale);
    view->maxScale = std::max(view->maxScale, view->scale);
    update();
    emit scaleChanged(static_cast<float>(view->scale));
}

double TXImageViewer::scaleHint(Scaling scaling)
{
    const bool hasZones = !view->pixmaps.isEmpty();
    const double largest = std::numeric_limits<double>::max();
    const double zoneWidth = hasZones ? double(width()) / double(view->pixmaps.size()) : largest;
    const double zoneHeight = hasZones ? double(height()) : largest;
    switch (scaling) {
    case ScaleFit:
        return std::min(zoneWidth / view->imageRect.width(), zoneHeight / view->imageRect.height());
    case ScaleShare:
        return zoneWidth / width();
    default:
        return 1.0;
    }
}

void TXImageViewer::setScaleLimits(double a, double b)
{
    view->minScale = std::min(a, b);
    view->maxScale = std::max(a, b);
}

QPointF TXImageViewer::position() const
{
    return view->position;
}

void TXImageViewer::setPosition(QPointF position)
{
    view->position = position;
    update();
}

void TXImageViewer::setMouseMarker(QPixmap marker, QPoint hotSpot)
{
    view->mouseMarker = std::move(marker);
    view->mouseMarkerHotSpot = hotSpot;
    update();
}

void TXImageViewer::setOverlay(Overlay overlay)
{
    view->overlay = std::move(overlay);
    update();
}

void TXImageViewer::wheelEvent(QWheelEvent *event)
{
    scale(event->angleDelta().y() > 0 ? 2.0 : 0.5, Relative);
    event->accept();
}

void TXImageViewer::leaveEvent(QEvent *)
{
    emit hover(QPointF(), Qt::NoButton, Qt::NoButton, Qt::NoModifier, false, -1, QPoint());
}

void TXImageViewer::mousePressEvent(QMouseEvent *event)
{
    view->lastMousePos = event->position().toPoint();
    setCursor(Qt::ClosedHandCursor);
    view->dragging = true;
    emitHover(*event);
}

void TXImageViewer::mouseMoveEvent(QMouseEvent *event)
{
    if (view->dragging) {
        const QPointF place = event->position().toPoint();
        view->position += (place - view->lastMousePos) / view->scale;
        view->lastMousePos = place;
        update();
    }
    emitHover(*event);
}

void TXImageViewer::mouseReleaseEvent(QMouseEvent *event)
{
    unsetCursor();
    view->dragging = false;
    emitHover(*event);
}

void TXImageViewer::resizeEvent(QResizeEvent *)
{
    if (view->scalingMode != 0) {
        scale(view->scalingMode == 1 ? ScaleShare : ScaleFit);
    }
}

void TXImageViewer::emitHover(const QMouseEvent &event)
{
    emit hover(event.position(), event.button(), event.buttons(), event.modifiers(), false, -1,
               QPoint());
}
