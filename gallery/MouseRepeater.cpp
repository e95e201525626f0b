#include "MouseRepeater.h"

#include "TXImageViewer.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QScopedValueRollback>

MouseRepeater::MouseRepeater(TXImageViewer *viewer)
    : QObject(viewer)
    , viewer(viewer)
{
    viewer->installEventFilter(this);
}

bool MouseRepeater::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        remember(*static_cast<const QMouseEvent *>(event));
        break;
    case QEvent::Leave:
        place.reset();
        break;
    case QEvent::Paint:
        if (place) {
            QMetaObject::invokeMethod(this, "repeatIfMoved", Qt::QueuedConnection);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void MouseRepeater::repeatIfMoved()
{
    if (place && !(state() == seen)) {
        repeat();
    }
}

bool MouseRepeater::State::operator==(const State &other) const
{
    return scale == other.scale && position == other.position && viewerSize == other.viewerSize
        && pictures == other.pictures;
}

MouseRepeater::State MouseRepeater::state() const
{
    State state = {viewer->scale(), viewer->position(), viewer->size(), {}};
    const QList<QPixmap> pixmaps = viewer->pixmaps();
    for (const QPixmap &pixmap : pixmaps) {
        state.pictures.append(pixmap.cacheKey());
    }
    return state;
}

/// The pictures may move by the event itself: then this is not the state that is told, and the
/// event is repeated.
void MouseRepeater::remember(const QMouseEvent &event)
{
    if (!isRepeating) {
        seen = state();
    }
    place = event.position();
    buttons = event.buttons();
    modifiers = event.modifiers();
}

/// While a button is held the same place moves nothing.
void MouseRepeater::repeat()
{
    const QScopedValueRollback<bool> repeating(isRepeating, true);
    seen = state();
    QMouseEvent event(QEvent::MouseMove, *place, viewer->mapToGlobal(*place), Qt::NoButton, buttons,
                      modifiers);
    QCoreApplication::sendEvent(viewer, &event);
}
