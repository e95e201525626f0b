#include "RotationLabel.h"

RotationLabel::RotationLabel(QWidget *parent)
    : QLabel(parent)
{ }
