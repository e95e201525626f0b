#include "LocalDisplay.h"

#include <QCoreApplication>

#include <iostream>

// Not a test of its own: starts a screen, tells its name, and waits to be killed, or for the end of
// its input.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    LocalDisplay display;
    if (!display.start()) {
        return 1;
    }
    std::cout << display.environment().value(QStringLiteral("DISPLAY")).toStdString() << std::endl;
    std::cin.get();
    return 0;
}
