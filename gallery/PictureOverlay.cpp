#include "PictureOverlay.h"

#include "ChartPatches.h"
#include "ChartPicture.h"

#include <QFontMetrics>
#include <QPainter>

#include <utility>

namespace {

constexpr int kNumberPixels = 44;
constexpr int kNumberInset = 12;
constexpr double kOutlinePixels = 1.5;
constexpr double kLightPatch = 60;

constexpr int kCaptionInset = 6;
constexpr int kCaptionPadding = 6;
constexpr int kCaptionRadius = 4;
constexpr QColor kCaptionGround(0, 0, 0, 170);

QColor inkOn(int patch)
{
    return chartPatches()[size_t(patch)].newer.lightness > kLightPatch ? Qt::black : Qt::white;
}

} // namespace

PictureOverlay::PictureOverlay(const QWidget *viewer, QStringList captions, bool isChart)
    : viewer(viewer)
    , captions(std::move(captions))
    , isChart(isChart)
{ }

void PictureOverlay::operator()(QPainter *painter, int zone, bool isInPicture, QPointF /*origin*/,
                                double /*scale*/) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (!isInPicture) {
        paintCaption(painter, zone);
    } else if (isChart) {
        paintPatches(painter);
    }
    painter->restore();
}

/// In pixels of the picture, so that it grows with it; but for the lines, which stay fine.
void PictureOverlay::paintPatches(QPainter *painter) const
{
    QFont font = painter->font();
    font.setPixelSize(kNumberPixels);
    painter->setFont(font);
    for (int i = 0; i < kChartPatches; ++i) {
        const QRect patch = ChartPicture::patchRect(i);
        QPen pen(inkOn(i), kOutlinePixels);
        pen.setCosmetic(true);
        painter->setPen(pen);
        painter->drawRect(patch);
        painter->drawText(patch.adjusted(kNumberInset, kNumberInset, 0, 0),
                          Qt::AlignLeft | Qt::AlignTop, QString::number(i + 1));
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
