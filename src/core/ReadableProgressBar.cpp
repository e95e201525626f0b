#include "ReadableProgressBar.h"

#include <QPaintEngine>
#include <QPixmap>
#include <QStyleOptionProgressBar>
#include <QStylePainter>

namespace {

bool isFilledFromRight(const QStyleOptionProgressBar &bar)
{
    return bar.state.testFlag(QStyle::State_Horizontal)
        && (bar.direction == Qt::RightToLeft) != bar.invertedAppearance;
}

QRect filledPart(const QStyleOptionProgressBar &bar, const QRect &whole)
{
    const qint64 steps = qint64(bar.maximum) - bar.minimum;
    const qint64 done = qint64(bar.progress) - bar.minimum;
    const int width = steps > 0 ? int(done * whole.width() / steps) : 0;
    return {whole.x() + whole.width() - width, whole.y(), width, whole.height()};
}

/// The text alone, in the one colour that the style has for it at this progress. A picture of its
/// own, as Fusion replaces the clipping of the painter.
QPixmap pictureOfText(QStyleOptionProgressBar bar, int progress, QWidget *widget, qreal ratio)
{
    bar.progress = progress;
    // So that the style takes the filled part to be where it paints it.
    bar.invertedAppearance = !bar.invertedAppearance;
    QPixmap picture((QSizeF(widget->size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QStylePainter painter(&picture, widget);
    painter.drawControl(QStyle::CE_ProgressBarLabel, bar);
    return picture;
}

void drawPart(QPainter &painter, const QRegion &part, const QPixmap &picture)
{
    painter.setClipRegion(part);
    painter.drawPixmap(0, 0, picture);
}

} // namespace

ReadableProgressBar::ReadableProgressBar(QWidget *parent)
    : QProgressBar(parent)
{ }

void ReadableProgressBar::paintEvent(QPaintEvent *event)
{
    QStyleOptionProgressBar bar;
    initStyleOption(&bar);
    if (!isFilledFromRight(bar) || !bar.textVisible || bar.text.isEmpty()) {
        QProgressBar::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    bar.rect = style()->subElementRect(QStyle::SE_ProgressBarGroove, &bar, this);
    painter.drawControl(QStyle::CE_ProgressBarGroove, bar);
    bar.rect = rect();
    bar.rect = style()->subElementRect(QStyle::SE_ProgressBarContents, &bar, this);
    painter.drawControl(QStyle::CE_ProgressBarContents, bar);
    bar.rect = rect();
    bar.rect = style()->subElementRect(QStyle::SE_ProgressBarLabel, &bar, this);

    // In a grab the painter draws on a picture, whose pixels need not be as large as the window's.
    const qreal ratio = painter.paintEngine()->paintDevice()->devicePixelRatioF();
    const QRect filled = filledPart(bar, bar.rect);
    drawPart(painter, filled, pictureOfText(bar, bar.maximum, this, ratio));
    drawPart(painter, QRegion(bar.rect) - filled, pictureOfText(bar, bar.minimum, this, ratio));
}
