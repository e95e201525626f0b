#include "TXDoubleSpinBoxDisabled.h"

#include "TXWidgetUtilities.h"

#include <QEvent>

TXDoubleSpinBoxDisabled::TXDoubleSpinBoxDisabled(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    TXWidgetUtilities::treatWhenSpinBoxDisabled(this);
}

void TXDoubleSpinBoxDisabled::changeEvent(QEvent *event)
{
    if (!event) {
        return; // The base class would read it.
    }
    if (event->type() == QEvent::EnabledChange) {
        TXWidgetUtilities::treatWhenSpinBoxDisabled(this);
    }
    QDoubleSpinBox::changeEvent(event);
}
