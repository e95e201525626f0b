#include "TXWidgetListWidget.h"

TXWidgetListWidget::TXWidgetListWidget(QWidget *parent)
    : QWidget(parent)
{ }

int TXWidgetListWidget::count() const
{
    return 0;
}

void TXWidgetListWidget::append(QWidget *) { }

void TXWidgetListWidget::insert(int, QWidget *) { }

bool TXWidgetListWidget::removeAt(int)
{
    return false;
}

bool TXWidgetListWidget::removeWidget(QWidget *)
{
    return false;
}

void TXWidgetListWidget::clear() { }

QWidget *TXWidgetListWidget::widgetAt(int)
{
    return nullptr;
}

void TXWidgetListWidget::setFrameShape(QFrame::Shape) { }
