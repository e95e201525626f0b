#include "ConfWidget.h"

ConfWidget::ConfWidget(QWidget *parent)
    : QWidget(parent)
{ }
