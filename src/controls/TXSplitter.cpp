#include "TXSplitter.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>

namespace {

constexpr double kLinePixels = 1.0;

/// The size of the grip picture along the handle, in pixels; 0 when there is none.
int measureGrip(Qt::Orientation orientation)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    const QString picture = isHorizontal
        ? QStringLiteral("../Resources/Images/VerticalSplitter.png")
        : QStringLiteral("../Resources/Images/HorizontalSplitter.png");
    const QPixmap grip(QDir::cleanPath(
        QStringLiteral("%1/%2").arg(QCoreApplication::applicationDirPath(), picture)));
    return isHorizontal ? grip.height() : grip.width();
}

} // namespace

TXSplitter::TXSplitter(QWidget *parent)
    : QSplitter(parent)
{ }

TXSplitter::TXSplitter(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{ }

QSplitterHandle *TXSplitter::createHandle()
{
    return new TXSplitterHandle(orientation(), this);
}

TXSplitterHandle::TXSplitterHandle(Qt::Orientation orientation, QSplitter *parent)
    : QSplitterHandle(orientation, parent)
    , grabSize(float(measureGrip(orientation)))
{ }

void TXSplitterHandle::paintEvent(QPaintEvent *event)
{
    if (splitter()->handleWidth() <= 0) {
        return;
    }
    QSplitterHandle::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QPen(Qt::black, kLinePixels, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const QRect edges = geometry();
    const QPointF centre(width() * 0.5, height() * 0.5);
    const double half = double(grabSize) * 0.5;
    if (orientation() == Qt::Horizontal) {
        painter.drawLine(QLineF(centre.x(), edges.top(), centre.x(), centre.y() - half));
        painter.drawLine(QLineF(centre.x(), centre.y() + half, centre.x(), edges.bottom()));
    } else {
        painter.drawLine(QLineF(edges.left(), centre.y(), centre.x() - half, centre.y()));
        painter.drawLine(QLineF(centre.x() + half, centre.y(), edges.right(), centre.y()));
    }
}
