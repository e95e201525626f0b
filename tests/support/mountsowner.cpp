#include "DesktopMounts.h"

#include <QCoreApplication>
#include <QProcess>

#include <iostream>

// Not a test of its own: starts the desktop's services, connects the share that the argument names,
// tells the folder of their session, and waits to be killed, or for the end of its input.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    DesktopMounts mounts;
    if (!mounts.start()) {
        std::cerr << mounts.error().toStdString() << std::endl;
        return 1;
    }
    QProcess gio;
    gio.start(QStringLiteral("gio"),
              {QStringLiteral("mount"), QCoreApplication::arguments().value(1)});
    gio.write("mia\n\ns3cret\n");
    gio.closeWriteChannel();
    gio.waitForFinished();
    std::cout << qgetenv("XDG_RUNTIME_DIR").toStdString() << std::endl;
    std::cin.get();
    return 0;
}
