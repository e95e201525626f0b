#include <TXLogManager.h>
#include <TXLogPrint.h>
#include <TXLogWindow.h>

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    TXLogWindow window(TXLogManager::applicationLog(), nullptr);
    window.setWindowTitle(QStringLiteral("Hello"));
    window.show();

    TXLogPrint(QStringLiteral("Hello from TXGUICommon"), 1);
    TXLogPrint(QStringLiteral("The paper is not the one of the profile"), 2);
    return QApplication::exec();
}
