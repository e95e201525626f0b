#include "GalleryAboutWindow.h"

#include "GalleryIcon.h"
#include "PaperPalette.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLabel>

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
{
    choosePlate();
}

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

void GalleryAboutWindow::changeEvent(QEvent *event)
{
    AboutAppWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        choosePlate();
    }
}

/// The link is blue whatever stands behind it, so in dark colours it gets a light ground.
void GalleryAboutWindow::choosePlate()
{
    auto *link = findChild<QLabel *>(QStringLiteral("companyWebSiteLabel"));
    // Not yet, while the base class makes its form.
    if (!link) {
        return;
    }
    const bool isDark = palette().color(QPalette::WindowText).lightness()
        > palette().color(QPalette::Window).lightness();
    link->setPalette(isDark ? paperPalette() : QPalette());
    link->setAutoFillBackground(isDark);
}
