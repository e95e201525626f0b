#include "QSingleItemSquareLayout.h"

QSingleItemSquareLayout::QSingleItemSquareLayout(QWidget *parent, int)
    : QLayout(parent)
{ }

void QSingleItemSquareLayout::addItem(QLayoutItem *) { }

void QSingleItemSquareLayout::addWidget(QWidget *) { }

QLayoutItem *QSingleItemSquareLayout::takeAt(int)
{
    return nullptr;
}

QLayoutItem *QSingleItemSquareLayout::itemAt(int) const
{
    return nullptr;
}

int QSingleItemSquareLayout::count() const
{
    return 0;
}

QSize QSingleItemSquareLayout::sizeHint() const
{
    return {};
}
