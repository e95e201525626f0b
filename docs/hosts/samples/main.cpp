//! [program]
#include <TXLogItem.h>
#include <TXLogManager.h>
#include <TXLogPrint.h>
#include <TXLogWindow.h>

#include <QApplication>

int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName("Patchworks");
    QCoreApplication::setApplicationName("PatchReader");
    const QApplication application(argc, argv);

    TXLogWindow window(TXLogManager::applicationLog(), nullptr);
    TXLogPrint("PatchReader has started", TXLogItem::Information);
    window.show();
    return QApplication::exec();
}
//! [program]
