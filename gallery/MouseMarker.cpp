#include "MouseMarker.h"

#include <QPainter>

namespace {

constexpr int kArm = 11;
constexpr int kLine = 1;
constexpr int kBorder = 1;

/// The four arms, this much wider on all sides.
void paintArms(QPainter &painter, int wider, Qt::GlobalColor colour)
{
    const int middle = MouseMarker::kHotSpot.x();
    const int start = kBorder;
    const int end = MouseMarker::kSize - kBorder - kArm;
    for (const int place : {start, end}) {
        const QRect lying(place, middle, kArm, kLine);
        const QRect upright(middle, place, kLine, kArm);
        for (const QRect &arm : {lying, upright}) {
            painter.fillRect(arm.adjusted(-wider, -wider, wider, wider), colour);
        }
    }
}

} // namespace

QPixmap MouseMarker::make(double devicePixelRatio)
{
    QPixmap marker(QSize(kSize, kSize) * devicePixelRatio);
    marker.setDevicePixelRatio(devicePixelRatio);
    marker.fill(Qt::transparent);
    QPainter painter(&marker);
    paintArms(painter, kBorder, Qt::white);
    paintArms(painter, 0, Qt::black);
    return marker;
}
