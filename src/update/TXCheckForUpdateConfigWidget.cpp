#include "TXCheckForUpdateConfigWidget.h"

TXCheckForUpdateConfigWidget::TXCheckForUpdateConfigWidget(QWidget *parent)
    : QWidget(parent)
{ }
