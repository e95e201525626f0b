#include "PictureOverlay.h"

#include "ChartPatches.h"
#include "ChartPicture.h"
#include "PatchNumbers.h"

#include <QFontMetrics>
#include <QPainter>

#include <utility>

namespace {

constexpr int kCaptionInset = 6;
constexpr int kCaptionPadding = 6;
constexpr int kCaptionRadius = 4;
constexpr QColor kCaptionGround(0, 0, 0, 170);

} // namespace

PictureOverlay::PictureOverlay(const QWidget *viewer, QStringList captions, bool isChart)
    : viewer(viewer)
    , captions(std::move(captions))
    , numbers(isChart ? std::make_shared<PatchNumbers>(viewer->font()) : nullptr)
{ }

void PictureOverlay::operator()(QPainter *painter, int zone, bool isInPicture, QPointF origin,
                                double scale) const
{
    // All of it stands on whole pixels of the viewer.
    if (isInPicture) {
        return;
    }
    painter->save();
    if (numbers) {
        paintPatches(painter, origin, scale);
    }
    painter->setRenderHint(QPainter::Antialiasing);
    paintCaption(painter, zone);
    painter->restore();
}

/// The lines stay fine at any scale, the numbers grow with the picture.
void PictureOverlay::paintPatches(QPainter *painter, const QPointF &origin, double scale) const
{
    const QRectF sight = painter->clipBoundingRect();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Qt::white, 0));
    for (int i = 0; i < kChartPatches; ++i) {
        const QRectF inPicture = ChartPicture::patchRect(i);
        const QRectF patch(origin + inPicture.topLeft() * scale, inPicture.size() * scale);
        if (patch.intersects(sight)) {
            painter->drawRect(patch.toRect());
            numbers->paint(painter, i, patch.topLeft(), scale);
        }
    }
}

/// In pixels of the viewer: at the same place and in the same size at any scale.
void PictureOverlay::paintCaption(QPainter *painter, int zone) const
{
    const QString caption = captions.value(zone);
    if (caption.isEmpty() || !viewer) {
        return;
    }
    painter->setFont(viewer->font());
    const QFontMetrics metrics(painter->font(), painter->device());
    const int zoneWidth = viewer->width() / int(captions.size());
    const int room = zoneWidth - 2 * (kCaptionInset + kCaptionPadding);
    const QString text = metrics.elidedText(caption, Qt::ElideMiddle, room);
    const QRect label(viewer->width() * zone / int(captions.size()) + kCaptionInset, kCaptionInset,
                      metrics.horizontalAdvance(text) + 2 * kCaptionPadding,
                      metrics.height() + kCaptionPadding);
    painter->setPen(Qt::NoPen);
    painter->setBrush(kCaptionGround);
    painter->drawRoundedRect(label, kCaptionRadius, kCaptionRadius);
    painter->setPen(Qt::white);
    painter->drawText(label, Qt::AlignCenter, text);
}
