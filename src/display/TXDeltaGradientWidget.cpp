#include "TXDeltaGradientWidget.h"

#include "AccessibleDescription.h"
#include "AccessibleInterfaces.h"
#include "DeltaGradientAccessible.h"
#include "FocusFrame.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

const QColor kRowColor(0xef, 0xee, 0xdc);

QString withNumber(const QString &text, double value)
{
    constexpr int kNoWidth = 0;
    constexpr int kDigits = 1;
    return text.arg(value, kNoWidth, 'f', kDigits, QLatin1Char(' '));
}

/// A percentage that can be counted with. Held where nothing is seen of it any more, so that no
/// place on the widest widget leaves the range of int.
double paintable(double percent)
{
    constexpr double kFarOutside = 10000.0;
    return std::isnan(percent) ? 0.0 : std::clamp(percent, -kFarOutside, kFarOutside);
}

/// How far from the middle of the row a percentage stands, as a share of the row.
double fromMiddle(double percent)
{
    return paintable(percent) / 100 - 0.5;
}

QLinearGradient gradient(const QRect &area, const QColor &start, const QColor &end)
{
    QLinearGradient result(area.topLeft(), area.topRight());
    result.setColorAt(0.0, start);
    result.setColorAt(1.0, end);
    return result;
}

/// A triangle whose tip points at the place below the row.
void paintMark(QPainter &painter, float percent, const QRect &row, const QColor &color)
{
    const float x = float(row.left()) + float(row.width()) * percent / 100.0F;
    const QPointF tip(double(x), row.bottom());
    const int height = row.height();
    QPainterPath path(tip);
    path.lineTo(tip.x() - height, row.top());
    path.lineTo(tip.x() + height, row.top());
    path.lineTo(tip);
    painter.fillPath(path, QBrush(color));
    painter.drawPath(path);
}

} // namespace

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
{
    AccessibleInterfaces::install<TXDeltaGradientWidget, DeltaGradientAccessible>();
    setFocusPolicy(Qt::TabFocus);
}

TXDeltaGradientWidget::~TXDeltaGradientWidget() = default;

void TXDeltaGradientWidget::setAverage(double delta, double percent)
{
    bar->averageDelta = delta;
    bar->averagePercent = percent;
    valuesChanged();
}

void TXDeltaGradientWidget::setLimit(double delta, double percent)
{
    bar->limitDelta = delta;
    bar->limitPercent = percent;
    valuesChanged();
}

void TXDeltaGradientWidget::setMax(double delta)
{
    bar->maxDelta = delta;
    bar->maxPercent = 100.0;
    valuesChanged();
}

QSize TXDeltaGradientWidget::sizeHint() const
{
    constexpr int kWidth = 32;
    return {kWidth, bar->totalHeight};
}

void TXDeltaGradientWidget::paintEvent(QPaintEvent *)
{
    const int right = width() - 1;
    const int valueTop = bar->topRowHeight;
    const int markTop = valueTop + bar->valueRowHeight;
    const int gradientTop = markTop + bar->markRowHeight;
    const int bottom = gradientTop + bar->gradientRowHeight;
    const auto row = [right](int top, int last) {
        return QRect(QPoint(0, top), QPoint(right, last));
    };

    QPainter painter(this);
    // Each text reads in the direction of its own letters, a formula from left to right.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    paintCaptions(painter, row(0, valueTop));
    painter.fillRect(row(valueTop, markTop), kRowColor);
    painter.fillRect(row(markTop, gradientTop), kRowColor);
    paintValues(painter, row(valueTop, markTop));
    paintMarks(painter, row(markTop, gradientTop));
    paintGradients(painter, row(gradientTop, bottom));
    paintAverage(painter, row(gradientTop, bottom));
    FocusFrame::paint(painter, *this, rect());
}

QString TXDeltaGradientWidget::valuesInWords() const
{
    QString text = tr("Average %1, limit %2 with %3 % of the pixels below, maximum %4");
    for (const double value :
         {bar->averageDelta, bar->limitDelta, bar->limitPercent, bar->maxDelta}) {
        text = withNumber(text, value);
    }
    return text;
}

void TXDeltaGradientWidget::valuesChanged()
{
    update();
    AccessibleDescription::tellOfChange(*this);
}

void TXDeltaGradientWidget::paintCaptions(QPainter &painter, const QRect &row) const
{
    // The colours run from left to right in every language, and so do their names and numbers.
    painter.drawText(row, Qt::AlignLeft | Qt::AlignAbsolute, tr("∆EMin"));
    const QString summary = tr("∆Eavg: %1    %2 % of pixels < ∆E Limit");
    painter.drawText(row, Qt::AlignCenter,
                     withNumber(withNumber(summary, bar->averageDelta), bar->limitPercent));
    painter.drawText(row, Qt::AlignRight | Qt::AlignAbsolute, tr("∆EMax"));
}

void TXDeltaGradientWidget::paintValues(QPainter &painter, const QRect &row) const
{
    // So far from the middle at most, in shares of the row, that the text stays inside.
    constexpr double kFarthest = 0.45;
    const double share = std::clamp(fromMiddle(bar->limitPercent), -kFarthest, kFarthest);
    const QRect limitRow = row.translated(int(share * row.width()), 0);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignAbsolute, withNumber(tr("%1"), 0.0));
    painter.drawText(limitRow, Qt::AlignCenter, withNumber(tr("%1"), bar->limitDelta));
    painter.drawText(row, Qt::AlignRight | Qt::AlignAbsolute, withNumber(tr("%1"), bar->maxDelta));
}

void TXDeltaGradientWidget::paintMarks(QPainter &painter, const QRect &row) const
{
    paintMark(painter, 0.0F, row, Qt::black);
    paintMark(painter, float(paintable(bar->averagePercent)), row, Qt::yellow);
    paintMark(painter, float(paintable(bar->limitPercent)), row, Qt::black);
    paintMark(painter, 100.0F, row, Qt::black);
}

void TXDeltaGradientWidget::paintGradients(QPainter &painter, const QRect &row) const
{
    const double percent = std::clamp(paintable(bar->limitPercent), 0.0, 100.0);
    const int limit = int(percent * row.right() / 100);
    const QRect bad(QPoint(limit, row.top()), row.bottomRight());
    const QRect good(row.topLeft(), QPoint(limit, row.bottom()));
    painter.fillRect(bad, gradient(bad, bar->badStartColor, bar->badEndColor));
    painter.fillRect(good, gradient(good, bar->goodStartColor, bar->goodEndColor));
}

void TXDeltaGradientWidget::paintAverage(QPainter &painter, const QRect &row) const
{
    const int offset = int(fromMiddle(bar->averagePercent) * row.width());
    painter.setPen(Qt::yellow);
    painter.drawText(row.translated(offset, 0), Qt::AlignCenter,
                     withNumber(tr("%1"), bar->averageDelta));
}
