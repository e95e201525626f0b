#include "AboutAppWindow.h"

AboutAppWindow::AboutAppWindow(QWidget *parent)
    : QDialog(parent)
{ }
