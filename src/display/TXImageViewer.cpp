#include "TXImageViewer.h"

#include "AccessibleInterfaces.h"
#include "ImageView.h"
#include "ImageViewerAccessible.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr int kShareMode = 1;
constexpr int kFitMode = 2;
/// A key moves by a zone's length divided by it.
constexpr double kStepsInZone = 10.0;
constexpr double kWheelUnitsInDegree = 8.0;

/// Which way the seen part moves with a key; nowhere with other keys than arrows.
QPoint wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// The modifiers that make another key of it: some layouts need Shift for the plus.
Qt::KeyboardModifiers realModifiers(const QKeyEvent &event)
{
    return event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
}

/// The middle where the wanted coordinate is negative.
int hotSpotIn(double length, int wanted)
{
    return wanted < 0 ? int(length / 2.0) : wanted;
}

} // namespace

TXImageViewer::TXImageViewer(QWidget *parent)
    : QWidget(parent)
    , view(std::make_unique<View>())
{
    AccessibleInterfaces::install<TXImageViewer, ImageViewerAccessible>();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
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
        repeatScaling();
    } else if (std::isfinite(view->scale) && view->scale >= 0.0) {
        showChange();
        ImageViewerAccessible::tellOfText(*this);
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
    const double wanted = relation == Absolute ? factor : factor * view->scale;
    // Clamping what is not a number is undefined, and painting could do nothing with it.
    if (std::isnan(wanted)) {
        return;
    }
    view->scalingMode = 0;
    showAtScale(std::clamp(wanted, view->minScale, view->maxScale));
}

void TXImageViewer::scale(Scaling scaling)
{
    view->scalingMode = scaling == ScaleFit ? kFitMode : scaling == ScaleShare ? kShareMode : 0;
    const double hint = scaleHint(scaling);
    // As above: what comes of 0 divided by 0 is no scale.
    const double wanted = std::isnan(hint) ? view->scale : hint;
    if (!std::isnan(hint)) {
        view->minScale = std::min(view->minScale, hint);
        view->maxScale = std::max(view->maxScale, hint);
    }
    showAtScale(wanted);
}

double TXImageViewer::scaleHint(Scaling scaling)
{
    const bool hasZones = !view->pixmaps.isEmpty();
    const double largest = std::numeric_limits<double>::max();
    const QSizeF zone = view->zone(0, size()).size();
    const double zoneWidth = hasZones ? zone.width() : largest;
    const double zoneHeight = hasZones ? zone.height() : largest;
    switch (scaling) {
    case ScaleFit:
        return std::fmin(zoneWidth / view->imageRect.width(),
                         zoneHeight / view->imageRect.height());
    case ScaleShare:
        return zoneWidth / width();
    default:
        return 1.0;
    }
}

void TXImageViewer::setScaleLimits(double a, double b)
{
    // As above: a scale cannot be held to what is not a number.
    if (std::isnan(a) || std::isnan(b)) {
        return;
    }
    view->minScale = std::min(a, b);
    view->maxScale = std::max(a, b);
    if (view->scale < view->minScale || view->scale > view->maxScale) {
        showAtScale(std::clamp(view->scale, view->minScale, view->maxScale));
    }
}

QPointF TXImageViewer::position() const
{
    return view->position;
}

void TXImageViewer::setPosition(QPointF position)
{
    view->moveTo(position);
    showChange();
    tellOfPixel();
}

void TXImageViewer::setMouseMarker(QPixmap marker, QPoint hotSpot)
{
    const QSizeF shown = marker.deviceIndependentSize();
    view->mouseMarkerHotSpot = {hotSpotIn(shown.width(), hotSpot.x()),
                                hotSpotIn(shown.height(), hotSpot.y())};
    view->mouseMarker = std::move(marker);
    update();
}

void TXImageViewer::setOverlay(Overlay overlay)
{
    view->overlay = std::move(overlay);
    update();
}

void TXImageViewer::wheelEvent(QWheelEvent *event)
{
    if (!isZoomedByUser()) {
        event->ignore();
        return;
    }
    const QPoint degrees = event->angleDelta() * (1.0 / kWheelUnitsInDegree);
    if (degrees.isNull()) {
        return;
    }
    // A wheel turned sideways only zooms out, whichever way.
    zoomBy(degrees.y() >= 1 ? View::kZoomStep : 1.0 / View::kZoomStep);
    event->accept();
}

void TXImageViewer::leaveEvent(QEvent *)
{
    view->mousePlace.reset();
    updateMarker();
    tellOfPixel();
    emit hover(QPointF(), Qt::NoButton, Qt::NoButton, Qt::NoModifier, false, -1, QPoint());
}

void TXImageViewer::mousePressEvent(QMouseEvent *event)
{
    view->lastMousePos = View::rounded(event->position());
    setCursor(Qt::ClosedHandCursor);
    view->dragging = true;
    emitHover(*event);
}

void TXImageViewer::mouseMoveEvent(QMouseEvent *event)
{
    if (view->dragging) {
        const QPointF place = View::rounded(event->position());
        view->moveBy(place - view->lastMousePos);
        view->lastMousePos = place;
        showChange();
    }
    updateMarker();
    emitHover(*event);
}

void TXImageViewer::mouseReleaseEvent(QMouseEvent *event)
{
    endDrag();
    emitHover(*event);
}

void TXImageViewer::resizeEvent(QResizeEvent *)
{
    showChange();
    repeatScaling();
}

void TXImageViewer::hideEvent(QHideEvent *event)
{
    view->layers.clear();
    endLostDrag();
    QWidget::hideEvent(event);
}

void TXImageViewer::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        endLostDrag();
    }
    QWidget::changeEvent(event);
}

void TXImageViewer::keyPressEvent(QKeyEvent *event)
{
    if (!panByKey(*event) && !zoomByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool TXImageViewer::isZoomedByUser() const
{
    return view->minScale >= 0.0;
}

/// Paints what has changed, for which nothing need be kept any more.
void TXImageViewer::showChange()
{
    view->letGoOfOtherLayer(size());
    update();
}

/// The marker follows the mouse when it is painted.
void TXImageViewer::updateMarker()
{
    if (!view->mouseMarker.isNull()) {
        update();
    }
}

void TXImageViewer::showAtScale(double scale)
{
    view->scale = scale;
    showChange();
    ImageViewerAccessible::tellOfScale(*this);
    emit scaleChanged(static_cast<float>(scale));
}

/// The wheel and the keys, which leave the scaling mode alone.
void TXImageViewer::zoomBy(double factor)
{
    showAtScale(std::clamp(view->scale * factor, view->minScale, view->maxScale));
}

void TXImageViewer::repeatScaling()
{
    if (view->scalingMode != 0) {
        scale(view->scalingMode == kShareMode ? ScaleShare : ScaleFit);
    }
}

bool TXImageViewer::panByKey(const QKeyEvent &event)
{
    const QPoint way = wayOf(event.key());
    const Qt::KeyboardModifiers modifiers = realModifiers(event);
    const bool isFine = modifiers == Qt::ControlModifier;
    if (way.isNull() || view->pixmaps.isEmpty() || (modifiers && !isFine)) {
        return false;
    }
    const QSizeF step = isFine ? QSizeF(1.0, 1.0) : view->zone(0, size()).size() / kStepsInZone;
    view->scrollBy({way.x() * step.width(), way.y() * step.height()}, size());
    showChange();
    tellOfPixel();
    return true;
}

bool TXImageViewer::zoomByKey(const QKeyEvent &event)
{
    if (!isZoomedByUser() || realModifiers(event)) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomBy(View::kZoomStep);
        return true;
    case Qt::Key_Minus:
        zoomBy(1.0 / View::kZoomStep);
        return true;
    case Qt::Key_0:
    case Qt::Key_Home:
        scale(ScaleFit);
        return true;
    case Qt::Key_1:
        scale(ScaleNatural);
        return true;
    default:
        return false;
    }
}

void TXImageViewer::endDrag()
{
    unsetCursor();
    view->dragging = false;
}

/// For what keeps the release of the button from coming.
void TXImageViewer::endLostDrag()
{
    if (view->dragging) {
        endDrag();
    }
}

/// Last of all, as a slot may delete the viewer.
void TXImageViewer::emitHover(const QMouseEvent &event)
{
    view->mousePlace = event.position();
    tellOfPixel();
    const View::PixelUnderMouse pixel = view->pixelAt(event.position(), size());
    emit hover(event.position(), event.button(), event.buttons(), event.modifiers(), pixel.isInside,
               pixel.zoneIndex, pixel.pixmapCoord);
}

/// Tells assistive tools when another pixel is under the mouse.
void TXImageViewer::tellOfPixel()
{
    const std::optional<QPoint> pixel = view->pixelUnderMouse(size());
    if (pixel != view->toldPixel) {
        view->toldPixel = pixel;
        ImageViewerAccessible::tellOfText(*this);
    }
}
