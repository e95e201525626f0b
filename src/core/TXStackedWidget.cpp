#include "TXStackedWidget.h"

TXStackedWidget::TXStackedWidget(QWidget *parent)
    : QStackedWidget(parent)
{ }

QSize TXStackedWidget::sizeHint() const
{
    const QWidget *page = currentWidget();
    return page ? page->sizeHint() : QFrame::sizeHint();
}

QSize TXStackedWidget::minimumSizeHint() const
{
    const QWidget *page = currentWidget();
    return page ? page->minimumSizeHint() : QWidget::minimumSizeHint();
}
