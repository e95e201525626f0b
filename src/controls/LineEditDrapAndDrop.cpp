#include "LineEditDrapAndDrop.h"

LineEditDrapAndDrop::LineEditDrapAndDrop(QWidget *parent)
    : QLineEdit(parent)
{ }
