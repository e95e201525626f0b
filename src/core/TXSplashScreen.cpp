#include "TXSplashScreen.h"

QPixmap TXSplashScreen::pixmap(int, const QString &)
{
    return {};
}

TXSplashScreen::TXSplashScreen(int product, const QString &defaultPath, Qt::WindowFlags flags)
    : QSplashScreen(pixmap(product, defaultPath), flags)
{ }
