#include "TXSpinBoxDisabled.h"

#include "TXWidgetUtilities.h"

#include <QEvent>

TXSpinBoxDisabled::TXSpinBoxDisabled(QWidget *parent)
    : QSpinBox(parent)
{
    TXWidgetUtilities::treatWhenSpinBoxDisabled(this);
}

void TXSpinBoxDisabled::changeEvent(QEvent *event)
{
    if (!event) {
        return; // The base class would read it.
    }
    if (event->type() == QEvent::EnabledChange) {
        TXWidgetUtilities::treatWhenSpinBoxDisabled(this);
    }
    QSpinBox::changeEvent(event);
}
