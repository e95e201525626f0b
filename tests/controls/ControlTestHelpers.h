#pragma once

#include <QApplication>
#include <QPalette>
#include <QWheelEvent>

// What the tests of the controls share.

/// A dark palette, as a dark desktop would give it.
inline QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(45, 45, 48));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Button, QColor(60, 60, 63));
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

/// One notch of the wheel over the middle of the widget.
inline void turnWheel(QWidget *widget)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}
