#include "TXFileDialog.h"

#include <QApplication>

/// A host that shows the folder of its argument in the desktop's file manager and ends. Run by
/// tst_GraphicalShellMuteBus.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    return arguments.size() == 2 && TXFileDialog::showInGraphicalShell(arguments.at(1)) ? 0 : 1;
}
