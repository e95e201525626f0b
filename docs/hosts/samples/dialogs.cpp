#include "Samples.h"

#include <TXFileDialog.h>

//! [open]
QString askForReadings(QWidget *window)
{
    QString filter;
    return TXFileDialog::getOpenFileName(window, "Open readings", QString(),
                                         "Readings (*.txt);;All files (*)", &filter, {},
                                         "ReadingsFolder", "ReadingsFilter");
}
//! [open]
