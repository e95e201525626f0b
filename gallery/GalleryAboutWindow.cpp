#include "GalleryAboutWindow.h"

#include "GalleryIcon.h"

#include <QCoreApplication>
#include <QDir>

namespace {

constexpr int kLogoSide = 96;

QString noticesName()
{
    return QStringLiteral("TXGalleryLegalNotices.html");
}

} // namespace

GalleryAboutWindow::GalleryAboutWindow(Version version, QWidget *parent)
    : AboutAppWindow(parent)
    , version(version)
{ }

QString GalleryAboutWindow::noticesPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/LegalNotices/") + noticesName());
}

QPixmap GalleryAboutWindow::applicationLogo() const
{
    return galleryIcon().pixmap(QSize(kLogoSide, kLogoSide), devicePixelRatio());
}

QString GalleryAboutWindow::applicationName() const
{
    return tr("TXGUICommon Gallery");
}

QString GalleryAboutWindow::applicationVersion() const
{
    return QCoreApplication::applicationVersion();
}

QString GalleryAboutWindow::applicationVersionDetail() const
{
    return version == Version::WithQt ? tr("with Qt %1").arg(QLatin1String(qVersion())) : QString();
}

QString GalleryAboutWindow::applicationCopyrightStartYear() const
{
    return QStringLiteral("2024");
}

QString GalleryAboutWindow::patentFileName() const
{
    return noticesName();
}
