#include "ScannerPlugin.h"

#include "ScannerPage.h"

//! [plugin]
ConfWidget *ScannerPlugin::createPage(QWidget *parent)
{
    return new ScannerPage(parent);
}
//! [plugin]
