#include "ReportTextLine.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <utility>

namespace {

/// More than stands on any paper; a longer text would only cost time on each page.
constexpr int kMostCharacters = 2000;
constexpr double kLeastGapPoints = 8.0;

constexpr std::array kAllPlaces = {TXAlignLeft, TXAlignRight, TXAlignHorizontallyCentred};

bool breaksLine(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator;
}

using Widths = std::array<double, kAllPlaces.size()>;

double centreWidth(const Widths &wanted, double room)
{
    const double side = std::max(wanted[TXAlignLeft], wanted[TXAlignRight]);
    const double leftOver = room - 2 * (side > 0 ? side + kLeastGapPoints : 0);
    return std::min(wanted[TXAlignHorizontallyCentred], std::max(leftOver, room / 3));
}

/// How wide each text may be so that none touches another.
Widths grantedWidths(const Widths &wanted, double room)
{
    Widths granted = wanted;
    if (wanted[TXAlignHorizontallyCentred] > 0) {
        const double centre = centreWidth(wanted, room);
        const double side = std::max((room - centre) / 2 - kLeastGapPoints, 0.0);
        granted[TXAlignHorizontallyCentred] = centre;
        granted[TXAlignLeft] = std::min(wanted[TXAlignLeft], side);
        granted[TXAlignRight] = std::min(wanted[TXAlignRight], side);
        return granted;
    }
    const bool areTwo = wanted[TXAlignLeft] > 0 && wanted[TXAlignRight] > 0;
    const double shared = std::max(areTwo ? room - kLeastGapPoints : room, 0.0);
    const double half = areTwo ? shared / 2 : 0.0;
    granted[TXAlignLeft] =
        std::min(wanted[TXAlignLeft], std::max(half, shared - wanted[TXAlignRight]));
    granted[TXAlignRight] =
        std::min(wanted[TXAlignRight], std::max(half, shared - wanted[TXAlignLeft]));
    return granted;
}

double leftOf(TXHorizontalAlignment place, double width, const QRectF &rect)
{
    switch (place) {
    case TXAlignRight:
        return rect.right() - width;
    case TXAlignHorizontallyCentred:
        return rect.center().x() - width / 2;
    default:
        return rect.left();
    }
}

/// Laid out as a scene lays out its texts, so that a pixel of the font is a unit of the painter
/// whatever the resolution of the painter's device.
void paintText(QPainter *painter, const QString &text, TXHorizontalAlignment place,
               const QRectF &rect, const QFont &font)
{
    QTextLayout layout(text, font);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    layout.draw(painter, QPointF(leftOf(place, line.naturalTextWidth(), rect), rect.top()));
}

} // namespace

QString ReportTextLine::text(TXHorizontalAlignment place) const
{
    return place < kPlaces ? texts[place] : QString();
}

void ReportTextLine::setText(const QString &text, TXHorizontalAlignment place)
{
    if (place < kPlaces) {
        texts[place] = text;
    }
}

QString ReportTextLine::onOneLine(QString text)
{
    std::replace_if(text.begin(), text.end(), breaksLine, QLatin1Char(' '));
    return text;
}

QString ReportTextLine::filledText(TXHorizontalAlignment place, const ReportPageFacts &facts) const
{
    QString filled = text(place).left(kMostCharacters);
    filled.replace(QLatin1String("{page}"), QString::number(facts.page));
    filled.replace(QLatin1String("{pages}"), QString::number(facts.pages));
    // Last, since a title may hold braces itself.
    filled.replace(QLatin1String("{title}"), facts.title.left(kMostCharacters));
    filled.truncate(kMostCharacters);
    return onOneLine(std::move(filled));
}

bool ReportTextLine::isBlank(const ReportPageFacts &facts) const
{
    return std::all_of(kAllPlaces.begin(), kAllPlaces.end(), [&](TXHorizontalAlignment place) {
        return filledText(place, facts).trimmed().isEmpty();
    });
}

void ReportTextLine::paint(QPainter *painter, const QRectF &rect, const QFont &font,
                           const ReportPageFacts &facts) const
{
    const QFontMetricsF metrics(font);
    std::array<QString, kPlaces> filled;
    Widths wanted = {};
    for (const TXHorizontalAlignment place : kAllPlaces) {
        filled[place] = filledText(place, facts);
        wanted[place] = metrics.horizontalAdvance(filled[place]);
    }
    const Widths granted = grantedWidths(wanted, rect.width());
    painter->setPen(Qt::black);
    for (const TXHorizontalAlignment place : kAllPlaces) {
        // Rounding must not cut a text that fits.
        constexpr double kSlackPoints = 0.01;
        const bool fits = wanted[place] <= granted[place] + kSlackPoints;
        paintText(painter,
                  fits ? filled[place]
                       : metrics.elidedText(filled[place], Qt::ElideRight, granted[place]),
                  place, rect, font);
    }
}

QList<TXReportText> ReportTextLine::placedTexts(const QRectF &rect, const QFont &font,
                                                const ReportPageFacts &facts) const
{
    constexpr std::array kFromTheLeft = {TXAlignLeft, TXAlignHorizontallyCentred, TXAlignRight};
    const QFontMetricsF metrics(font);
    QList<TXReportText> placed;
    for (const TXHorizontalAlignment place : kFromTheLeft) {
        const QString text = filledText(place, facts);
        if (!QStringView(text).trimmed().isEmpty()) {
            const double width = std::min(metrics.horizontalAdvance(text), rect.width());
            const QPointF topLeft(leftOf(place, width, rect), rect.top());
            placed.append({text, QRectF(topLeft, QSizeF(width, rect.height()))});
        }
    }
    return placed;
}
