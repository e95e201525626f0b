#include "TXWidget.h"

TXWidget::TXWidget(QWidget *parent)
    : QWidget(parent)
{ }

bool TXWidget::isValid()
{
    return true;
}

void TXWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

void TXWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
}
