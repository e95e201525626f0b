#include "TXSplashScreen.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>

namespace {

QString folderOfAllUsers()
{
    constexpr const char *kVariable = "ALLUSERSPROFILE";
    const QString folder = qEnvironmentVariableIsEmpty(kVariable) ? QStringLiteral("/var/lib")
                                                                  : qEnvironmentVariable(kVariable);
    return QString(folder).replace(u'\\', u'/');
}

/// Made when the library is loaded.
const QString commonDataFolder = folderOfAllUsers() + QStringLiteral("/Tovra Hue Works/");

QPixmap load(const QString &path)
{
    const QFileInfo info(path);
    // To open a pipe would wait for somebody who writes, and a device may have no end. What is not
    // there is left to QImage, which also tries suffixes.
    if (path.isEmpty() || (info.exists() && !info.isFile())) {
        return {};
    }
    // Not QPixmap(path): it would give again what it has read before, if the file has been replaced
    // within a second by one of the same size.
    return QPixmap::fromImage(QImage(path));
}

void cache(const QString &installed, const QString &cached)
{
    if (QFileInfo(cached).size() != QFileInfo(installed).size()) {
        QFile::copy(installed, cached);
    }
}

} // namespace

QPixmap TXSplashScreen::pixmap(int product, const QString &defaultPath)
{
    const QString installed = installedLogoPath();
    const QString cached = cachedLogoPath(product);
    QPixmap logo = load(installed);
    if (!logo.isNull()) {
        cache(installed, cached);
    }
    if (logo.isNull()) {
        logo = load(cached);
    }
    return logo.isNull() ? load(defaultPath) : logo;
}

QString TXSplashScreen::installedLogoPath()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/Images/oemLogo.png");
}

QString TXSplashScreen::cachedLogoPath(int product)
{
    // The folder is put in front: it may hold a "%1" of its own.
    return commonDataFolder + QStringLiteral("/oemLogo_%1.png").arg(product);
}

TXSplashScreen::TXSplashScreen(int product, const QString &defaultPath, Qt::WindowFlags flags)
    : QSplashScreen(pixmap(product, defaultPath), flags)
{ }

TXSplashScreen::TXSplashScreen(QScreen *screen, int product, const QString &defaultPath,
                               Qt::WindowFlags flags)
    : QSplashScreen(screen, pixmap(product, defaultPath), flags)
{ }
