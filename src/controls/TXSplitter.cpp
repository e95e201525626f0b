#include "TXSplitter.h"

TXSplitter::TXSplitter(QWidget *parent)
    : QSplitter(parent)
{ }
