#include "TXUnfolderWidget.h"

TXUnfolderWidget::TXUnfolderWidget(QWidget *parent)
    : QGroupBox(parent)
{ }
