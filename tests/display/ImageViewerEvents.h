#pragma once

#include "TXImageViewer.h"

#include <QApplication>
#include <QColor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QWheelEvent>
#include <QWidget>

// What a user does to an image viewer, as events, pictures for it, and one that counts its paints.

/// A picture of one colour.
inline QPixmap picture(int width, int height, const QColor &colour = Qt::darkCyan)
{
    QPixmap pixmap(width, height);
    pixmap.fill(colour);
    return pixmap;
}

/// A press, move or release at a place, which may lie between pixels or outside.
inline void sendMouse(QWidget &widget, QEvent::Type type, const QPointF &place,
                      Qt::MouseButton button = Qt::NoButton, Qt::MouseButtons buttons = {},
                      Qt::KeyboardModifiers modifiers = {})
{
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, modifiers);
    QApplication::sendEvent(&widget, &event);
}

inline void pressMouse(QWidget &widget, const QPointF &place)
{
    sendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
}

inline void dragMouse(QWidget &widget, const QPointF &place)
{
    sendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
}

inline void moveMouse(QWidget &widget, const QPointF &place)
{
    sendMouse(widget, QEvent::MouseMove, place);
}

inline void releaseMouse(QWidget &widget, const QPointF &place)
{
    sendMouse(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton);
}

/// Turns the wheel by eighths of a degree. True when the widget has accepted it.
inline bool turnWheelBy(QWidget &widget, const QPoint &angleDelta)
{
    const QPointF place = QRectF(widget.rect()).center();
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), angleDelta, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// Presses a key. True when the widget, which has no parent, has used it.
inline bool pressKey(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// Counts what it is asked to paint.
class PaintedViewer : public TXImageViewer
{
public:
    int paints = 0;

    /// Forgets what was asked for before.
    void settle()
    {
        show();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        paints = 0;
    }

    [[nodiscard]] bool isRepainted() const
    {
        QCoreApplication::processEvents();
        return paints > 0;
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        TXImageViewer::paintEvent(event);
    }
};
