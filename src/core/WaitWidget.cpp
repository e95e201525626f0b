#include "WaitWidget.h"

WaitWidget::WaitWidget(QWidget *parent)
    : QWidget(parent)
{ }

WaitWidget *WaitWidget::popUp(QWidget *parent, int)
{
    return new WaitWidget(parent);
}

void WaitWidget::initWaitWidget() { }

void WaitWidget::startAnimation() { }

void WaitWidget::stopAnimation() { }
