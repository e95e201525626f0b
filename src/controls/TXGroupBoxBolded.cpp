#include "TXGroupBoxBolded.h"

TXGroupBoxBolded::TXGroupBoxBolded(QWidget *parent)
    : QGroupBox(parent)
{ }

void TXGroupBoxBolded::setBoldTitle(bool) { }
