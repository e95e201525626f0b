#include "PictureOverlay.h"

#include "ChartPatches.h"
#include "ChartPicture.h"

#include <QFontMetrics>
#include <QPainter>

#include <utility>

namespace {

constexpr int kNumberPixels = 44;
constexpr QPoint kNumberPlace(14, 50);
constexpr double kBorderPixels = 7;

constexpr int kCaptionInset = 6;
constexpr int kCaptionPadding = 6;
constexpr int kCaptionRadius = 4;
constexpr QColor kCaptionGround(0, 0, 0, 170);

} // namespace

PictureOverlay::PictureOverlay(const QWidget *viewer, QStringList captions, bool isChart)
    : viewer(viewer)
    , captions(std::move(captions))
    , isChart(isChart)
{
    if (isChart) {
        makeNumbers();
    }
}

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

/// Made once: what is painted at each move of the mouse has to be cheap.
void PictureOverlay::makeNumbers()
{
    QFont font = viewer->font();
    font.setPixelSize(kNumberPixels);
    font.setBold(true);
    for (int i = 0; i < kChartPatches; ++i) {
        numbers.addText(ChartPicture::patchRect(i).topLeft() + kNumberPlace, font,
                        QString::number(i + 1));
    }
    QPainterPathStroker stroker;
    stroker.setWidth(kBorderPixels);
    stroker.setJoinStyle(Qt::RoundJoin);
    border = stroker.createStroke(numbers);
}

/// In pixels of the picture, so that it grows with it; but for the lines, which stay fine. White
/// in black is seen on all colours.
void PictureOverlay::paintPatches(QPainter *painter) const
{
    painter->setPen(QPen(Qt::white, 0));
    for (int i = 0; i < kChartPatches; ++i) {
        painter->drawRect(ChartPicture::patchRect(i));
    }
    painter->fillPath(border, Qt::black);
    painter->fillPath(numbers, Qt::white);
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
