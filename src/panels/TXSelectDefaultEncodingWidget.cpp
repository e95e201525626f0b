#include "TXSelectDefaultEncodingWidget.h"

TXSelectDefaultEncodingWidget::TXSelectDefaultEncodingWidget(QWidget *parent)
    : QWidget(parent)
{ }
