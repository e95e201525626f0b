#include "LocalFtpServer.h"

#include <QCoreApplication>

#include <iostream>

// Not a test of its own: starts a server, tells its process, and waits to be killed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    LocalFtpServer server;
    if (!server.start()) {
        std::cerr << server.error().toStdString() << std::endl;
        return 1;
    }
    std::cout << server.processId() << std::endl;
    return QCoreApplication::exec();
}
