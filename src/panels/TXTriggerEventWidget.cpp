#include "TXTriggerEventWidget.h"

TXTriggerEventWidget::TXTriggerEventWidget(QWidget *parent)
    : QWidget(parent)
{ }
