#include "TXComboBoxEditable.h"

#include <QKeyEvent>

TXComboBoxEditable::TXComboBoxEditable(QWidget *parent)
    : QComboBox(parent)
{
    ensurePolished();
}

void TXComboBoxEditable::focusOutEvent(QFocusEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        emit focusHasBeenLost();
    }
    QComboBox::focusOutEvent(event);
}

void TXComboBoxEditable::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool isArrow = key == Qt::Key_Up || key == Qt::Key_Down;
    if (isReturn || (isArrow && isEditable())) {
        event->ignore();
        return;
    }
    QComboBox::keyPressEvent(event);
    event->accept();
}
