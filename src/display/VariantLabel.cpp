#include "VariantLabel.h"

VariantLabel::VariantLabel(QWidget *parent)
    : QLabel(parent)
{
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
}
