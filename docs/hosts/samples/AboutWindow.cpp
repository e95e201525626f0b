#include "AboutWindow.h"

#include <TXSplashScreen.h>

//! [logo]
QPixmap AboutWindow::applicationLogo() const
{
    const int product = 7;
    return TXSplashScreen::pixmap(product, ":/images/logo.png");
}
//! [logo]
