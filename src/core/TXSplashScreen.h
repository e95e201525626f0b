#pragma once

#include "TXGUICommonExport.h"

#include <QSplashScreen>

class QPixmap;
class QScreen;
class QString;

/// The picture that is shown while an application starts, which an OEM partner can replace by a
/// logo of its own. Take QSplashScreen where nobody shall replace the picture.
///
/// The partner puts the logo among the installed files; a copy of it is kept for each product, so
/// that the logo stays when the installed file later goes. The files:
///
/// - the installed logo, installedLogoPath();
/// - the cached logo, cachedLogoPath(), in the common data folder. That is the folder "Tovra Hue
///   Works" below the one that the environment variable ALLUSERSPROFILE names, or below "/var/lib"
///   where it is not set or empty. It is worked out once, when the library is loaded: a later
///   change of the variable changes nothing.
///
/// The library never makes the common data folder. Where it is missing or cannot be written, no
/// copy is kept, and nothing is said about that; nor does any other failure show a message.
///
/// Show it, and call QSplashScreen::finish() when the main window is up. Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    /// The picture that this splash shows, as QSplashScreen has it.
    using QSplashScreen::pixmap;

    /// The picture for the product of this number: the installed logo; where there is none that can
    /// be read, the cached logo of the product; without that the picture at `defaultPath`, a file
    /// or a resource. Null when all three fail, also for an empty `defaultPath`.
    ///
    /// An installed logo that could be read is copied to the cached one when their sizes in bytes
    /// differ. A cached logo that exists is never overwritten: the first one stays until somebody
    /// deletes it.
    ///
    /// Any picture format of Qt does, whatever the suffix says. What is no regular file, as a
    /// folder or a pipe, counts as missing.
    static QPixmap pixmap(int product, const QString &defaultPath);

    /// Where the installed logo of the running application is looked for: "oemLogo.png" in
    /// "../Resources/Images" seen from the program. Needs an application object.
    static QString installedLogoPath();

    /// Where the cached logo of the product of this number is kept: "oemLogo_<product>.png" in the
    /// common data folder. Two slashes stand before the name.
    static QString cachedLogoPath(int product);

    /// Shows pixmap(product, defaultPath) on the screen that Qt chooses. Without a picture it is
    /// empty. The flags are added to those of QSplashScreen.
    TXSplashScreen(int product, const QString &defaultPath, Qt::WindowFlags flags = {});

    /// The same on a certain screen; null is the screen that Qt chooses.
    TXSplashScreen(QScreen *screen, int product, const QString &defaultPath,
                   Qt::WindowFlags flags = {});
};
