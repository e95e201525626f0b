#include "DifferenceLegend.h"

#include "DifferencePicture.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>

namespace {

constexpr int kBarHeight = 14;
constexpr int kGap = 3;
constexpr int kShortest = 160;

} // namespace

DifferenceLegend::DifferenceLegend(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    retranslate();
}

QSize DifferenceLegend::sizeHint() const
{
    return {kShortest, kBarHeight + kGap + fontMetrics().height()};
}

void DifferenceLegend::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

/// Each column in the colour of its difference, as the picture has it.
void DifferenceLegend::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QRect bar = barRect();
    for (int x = 0; x < bar.width(); ++x) {
        const double delta = DifferencePicture::kLargestDelta * x / bar.width();
        painter.fillRect(bar.left() + x, bar.top(), 1, bar.height(),
                         QColor(DifferencePicture::colourOf(delta)));
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(bar.adjusted(0, 0, -1, -1));

    painter.setPen(palette().color(QPalette::WindowText));
    const int textTop = bar.bottom() + 1 + kGap;
    const int textHeight = fontMetrics().height();
    const int close =
        int(bar.width() * DifferencePicture::kCloseDelta / DifferencePicture::kLargestDelta);
    // The colours run from left to right in every language, and so do their numbers.
    painter.drawText(bar.left(), textTop, bar.width(), textHeight,
                     Qt::AlignLeft | Qt::AlignAbsolute, QStringLiteral("ΔE 0"));
    painter.drawText(bar.left(), textTop, 2 * close, textHeight, Qt::AlignHCenter,
                     locale().toString(DifferencePicture::kCloseDelta));
    painter.drawText(bar.left(), textTop, bar.width(), textHeight,
                     Qt::AlignRight | Qt::AlignAbsolute,
                     QStringLiteral("≥ ") + locale().toString(DifferencePicture::kLargestDelta));
}

void DifferenceLegend::retranslate()
{
    setToolTip(tr("Colour difference by CIEDE2000. Up to %1: close.")
                   .arg(locale().toString(DifferencePicture::kCloseDelta)));
    setAccessibleName(tr("Colours of the difference"));
}

QRect DifferenceLegend::barRect() const
{
    return {0, 0, width(), kBarHeight};
}
