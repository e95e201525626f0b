#include "TXWebInterfaceConfigurationWidget.h"

TXWebInterfaceConfigurationWidget::TXWebInterfaceConfigurationWidget(QWidget *parent)
    : QWidget(parent)
{ }
