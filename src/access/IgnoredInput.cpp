#include "IgnoredInput.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int kPauseMilliseconds = 100;
/// One turn may leave some behind, and a busy program never runs out of events.
constexpr int kTakingInMilliseconds = 20;

bool beginsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::NativeGesture:
        return true;
    default:
        return false;
    }
}

} // namespace

IgnoredInput::IgnoredInput()
    : turns(new QTimer(this))
{
    turns->setSingleShot(true);
    turns->setInterval(kPauseMilliseconds);
    connect(turns, SIGNAL(timeout()), this, SLOT(takeIn()));
    QCoreApplication::instance()->installEventFilter(this);
    turns->start();
}

bool IgnoredInput::eventFilter(QObject *watched, QEvent *event)
{
    if (!beginsInput(event->type())) {
        return QObject::eventFilter(watched, event);
    }
    // Else somebody else would be asked next, or a shortcut looked for.
    event->accept();
    return true;
}

void IgnoredInput::takeIn()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents, kTakingInMilliseconds);
    turns->start();
}
