#include "TXResources.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include <functional>

namespace {

constexpr int kBulletSide = 32;
constexpr int kLittleSide = 16;

const QColor kSuccess(0x2e, 0x9e, 0x4f);
const QColor kFailure(0xd1, 0x34, 0x38);
const QColor kWarning(0xe0, 0x8a, 0x00);
const QColor kInformation(0x1f, 0x76, 0xd2);

/// Paints in a square from (-1, -1) to (1, 1) with a white pen fit for a mark.
using Paint = std::function<void(QPainter &)>;

QPixmap paintSquare(int side, const Paint &paint)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
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
    return paintSquare(kBulletSide, paintSuccess);
}

QPixmap TXDisplayErrorBulletStaticImage()
{
    return paintSquare(kBulletSide, paintFailure);
}

QPixmap TXDisplayWarningBulletStaticImage()
{
    return paintSquare(kBulletSide, paintWarning);
}

QPixmap TXDisplayLittleInformationBulletStaticImage()
{
    return paintSquare(kLittleSide, paintInformation);
}

QPixmap TXDisplayLittleWarningBulletStaticImage()
{
    return paintSquare(kLittleSide, paintWarning);
}

QPixmap TXDisplayLittleErrorBulletStaticImage()
{
    return paintSquare(kLittleSide, paintFailure);
}
