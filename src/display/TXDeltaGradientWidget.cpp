#include "TXDeltaGradientWidget.h"

#include <QApplication>
#include <QFontMetrics>

/// The values, the colours, and the heights of the rows in pixels.
struct TXDeltaGradientWidget::Bar
{
    explicit Bar(const QFont &font)
        : fontHeight(QFontMetrics(font).height())
    { }

    int fontHeight;
    int topRowHeight = fontHeight + 4;
    int valueRowHeight = fontHeight + 4;
    int markRowHeight = 8;
    int gradientRowHeight = fontHeight + 6;
    int totalHeight = topRowHeight + valueRowHeight + markRowHeight + gradientRowHeight;
    double averageDelta = 0.0;
    double averagePercent = 0.0;
    double limitDelta = 0.0;
    double limitPercent = 0.0;
    double maxDelta = 0.0;
    double maxPercent = 0.0;
    QColor goodStartColor = QColor(0xff, 0xff, 0xff);
    QColor goodEndColor = QColor(0x00, 0x99, 0x00);
    QColor badStartColor = QColor(0xff, 0xb2, 0x00);
    QColor badEndColor = QColor(0x33, 0x00, 0x00);
};

TXDeltaGradientWidget::TXDeltaGradientWidget(QWidget *parent)
    : QWidget(parent)
    , bar(QSharedPointer<Bar>::create(parent != nullptr ? parent->font() : QApplication::font()))
{ }

TXDeltaGradientWidget::~TXDeltaGradientWidget() = default;

void TXDeltaGradientWidget::setAverage(double delta, double percent)
{
    bar->averageDelta = delta;
    bar->averagePercent = percent;
    update();
}

void TXDeltaGradientWidget::setLimit(double delta, double percent)
{
    bar->limitDelta = delta;
    bar->limitPercent = percent;
    update();
}

void TXDeltaGradientWidget::setMax(double delta)
{
    bar->maxDelta = delta;
    bar->maxPercent = 100.0;
    update();
}

QSize TXDeltaGradientWidget::sizeHint() const
{
    constexpr int kWidth = 32;
    return {kWidth, bar->totalHeight};
}

void TXDeltaGradientWidget::paintEvent(QPaintEvent *) { }
