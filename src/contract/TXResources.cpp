#include "TXResources.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>

#include <functional>

namespace {

constexpr int kBulletSide = 32;
constexpr int kLittleSide = 16;

// Each stands out from light and dark windows by 3 to 1 at least, and so does the white mark on it.
const QColor kSuccess(0x2e, 0x9e, 0x4f);
const QColor kFailure(0xd1, 0x34, 0x38);
const QColor kWarning(0xc9, 0x78, 0x00);
const QColor kInformation(0x1f, 0x76, 0xd2);

/// Paints in a square from (-1, -1) to (1, 1) with a white pen fit for a mark.
using Paint = std::function<void(QPainter &)>;

QPixmap paintSquare(int side, qreal ratio, const Paint &paint)
{
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(side / 2.0, side / 2.0);
    painter.setPen(Qt::NoPen);
    paint(painter);
    return pixmap;
}

/// Paints a picture once; item views ask for it at every repaint.
QPixmap cachedSquare(const char *name, int side, const Paint &paint)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    const QString key = QStringLiteral("TXResources/%1/%2").arg(QLatin1String(name)).arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = paintSquare(side, ratio, paint);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

void useMarkPen(QPainter &painter)
{
    painter.setPen(QPen(Qt::white, 0.22, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

void paintDisc(QPainter &painter, const QColor &colour)
{
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(-0.9, -0.9, 1.8, 1.8));
    useMarkPen(painter);
}

void paintSuccess(QPainter &painter)
{
    paintDisc(painter, kSuccess);
    painter.drawPolyline(QPolygonF({{-0.42, 0.02}, {-0.12, 0.34}, {0.44, -0.32}}));
}

void paintFailure(QPainter &painter)
{
    paintDisc(painter, kFailure);
    painter.drawLine(QLineF(-0.34, -0.34, 0.34, 0.34));
    painter.drawLine(QLineF(-0.34, 0.34, 0.34, -0.34));
}

void paintWarning(QPainter &painter)
{
    painter.setPen(QPen(kWarning, 0.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(kWarning);
    painter.drawPolygon(QPolygonF({{0.0, -0.78}, {0.82, 0.72}, {-0.82, 0.72}}));
    useMarkPen(painter);
    painter.drawLine(QLineF(0.0, -0.3, 0.0, 0.2));
    painter.drawPoint(QPointF(0.0, 0.52));
}

void paintInformation(QPainter &painter)
{
    paintDisc(painter, kInformation);
    painter.drawPoint(QPointF(0.0, -0.44));
    painter.drawLine(QLineF(0.0, -0.08, 0.0, 0.46));
}

} // namespace

QPixmap TXDisplayFixBulletStaticImage()
{
    return cachedSquare("success", kBulletSide, paintSuccess);
}

QPixmap TXDisplayErrorBulletStaticImage()
{
    return cachedSquare("failure", kBulletSide, paintFailure);
}

QPixmap TXDisplayWarningBulletStaticImage()
{
    return cachedSquare("warning", kBulletSide, paintWarning);
}

QPixmap TXDisplayLittleInformationBulletStaticImage()
{
    return cachedSquare("little-information", kLittleSide, paintInformation);
}

QPixmap TXDisplayLittleWarningBulletStaticImage()
{
    return cachedSquare("little-warning", kLittleSide, paintWarning);
}

QPixmap TXDisplayLittleErrorBulletStaticImage()
{
    return cachedSquare("little-error", kLittleSide, paintFailure);
}
