#include "ui_ProofSettings.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    Ui::ProofSettings ui;
    ui.setupUi(&window);
    window.show();
    return QApplication::exec();
}
