#include "GallerySplash.h"

#include "TXApplicationInformation.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

constexpr int kStripMargin = 8;

} // namespace

GallerySplash::GallerySplash(QScreen *screen)
    : TXSplashScreen(screen, baseProd(), ownPicturePath())
{ }

QString GallerySplash::ownPicturePath()
{
    // Two pixels for each of a screen of ordinary resolution.
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/Images/splash@2x.png");
}

void GallerySplash::open()
{
    if (!pixmap().isNull()) {
        show();
    }
}

void GallerySplash::tell(const QString &text)
{
    if (isVisible()) {
        showMessage(text);
    }
}

void GallerySplash::drawContents(QPainter *painter)
{
    if (message().isEmpty()) {
        return;
    }
    QRect strip = rect();
    strip.setTop(strip.bottom() + 1 - fontMetrics().height() - 2 * kStripMargin);
    painter->fillRect(strip, QColor(0, 0, 0, 150));
    painter->setPen(Qt::white);
    strip.adjust(2 * kStripMargin, 0, -2 * kStripMargin, 0);
    painter->drawText(strip, Qt::AlignLeft | Qt::AlignVCenter,
                      fontMetrics().elidedText(message(), Qt::ElideRight, strip.width()));
}
