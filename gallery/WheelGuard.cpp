#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QWidget *control)
    : QObject(control)
{
    control->installEventFilter(this);
}

void WheelGuard::protect(QWidget *control)
{
    // The control owns it.
    static_cast<void>(new WheelGuard(control));
}

bool WheelGuard::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(object, event);
}
