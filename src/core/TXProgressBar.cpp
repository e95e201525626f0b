#include "TXProgressBar.h"

TXProgressBar::TXProgressBar(QWidget *parent)
    : QWidget(parent)
{ }

void TXProgressBar::setMessage(const QString &) { }

int TXProgressBar::maximum() const
{
    return 0;
}

int TXProgressBar::minimum() const
{
    return 0;
}

int TXProgressBar::value() const
{
    return 0;
}

void TXProgressBar::setRange(int, int) { }

void TXProgressBar::setValue(int) { }
