#include "ImageView.h"
#include "TXImageViewer.h"

#include <QPainter>

void TXImageViewer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, view->scale < 1.0);
    for (int i = 0; i < view->pixmaps.size(); ++i) {
        drawZone(painter, i);
    }
}

void TXImageViewer::drawZone(QPainter &painter, int index)
{
    const QRectF zone = view->zone(index, size());
    painter.setClipRect(zone, Qt::ReplaceClip);
    painter.translate(zone.center());
    painter.scale(view->scale, view->scale);
    painter.translate(view->position + view->imageRect.topLeft());
    painter.drawPixmap(QPointF(), view->pixmaps[index]);
    painter.resetTransform();
}
