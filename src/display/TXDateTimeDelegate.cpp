#include "TXDateTimeDelegate.h"

#include "ItemInk.h"

#include <QBrush>
#include <QDateTime>
#include <QFontMetricsF>
#include <QLocale>
#include <QModelIndex>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QSizeF>
#include <QString>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QVariant>

namespace {

constexpr QLatin1String kMargin("  ");
constexpr QLatin1String kBlank(" ");
constexpr QLatin1String kDots("...");
/// How much of the end of a text that is too wide is given up for the dots at a time.
constexpr qsizetype kCutCharacters = 5;

struct Texts
{
    QString date;
    QString time;
};

Texts textsOf(const QModelIndex &index, const QLocale &locale)
{
    const QDateTime value = index.data(Qt::DisplayRole).toDateTime();
    return {locale.toString(value.date(), QLocale::ShortFormat),
            locale.toString(value.time(), QLocale::ShortFormat)};
}

QSize sizeOf(const QString &text, const QFontMetricsF &metrics)
{
    const QSizeF size = metrics.size(Qt::TextShowMnemonic, text);
    return {qRound(size.width()), qRound(size.height())};
}

QString shortened(QString text, int width, const QFontMetricsF &metrics)
{
    // A cell narrower than the dots gets them all the same: nothing shorter would come of it.
    while (text != kDots && sizeOf(text, metrics).width() > width) {
        text.chop(kCutCharacters);
        text += kDots;
    }
    return text;
}

/// With the margins, and so that they do not need more than the width if that can be.
Texts fitted(const Texts &texts, int width, const QFontMetricsF &metrics)
{
    const QString date = kMargin + texts.date;
    const QString time = texts.time + kMargin;
    const int dateWidth = sizeOf(date, metrics).width();
    if (dateWidth + sizeOf(time, metrics).width() <= width) {
        return {date, time};
    }
    return {dateWidth <= width ? date : shortened(date, width, metrics), QString()};
}

void paintGround(QPainter &painter, const QStyleOptionViewItem &option, QPalette::ColorRole role)
{
    painter.fillRect(option.rect, option.palette.brush(QPalette::Current, role));
}

/// The ground of the cell, and the pen and brush for what stands on it.
void prepare(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isActive = option.state.testFlag(QStyle::State_Active);
    if (isSelected && isActive) {
        paintGround(painter, option, QPalette::Highlight);
        painter.setPen(Qt::white);
        painter.setBrush(option.palette.brush(QPalette::Current, QPalette::HighlightedText));
    } else if (isSelected && !option.state.testFlag(QStyle::State_HasFocus)) {
        paintGround(painter, option, QPalette::Window);
    } else {
        ItemInk::apply(painter, option, index);
    }
}

} // namespace

TXDateTimeDelegate::TXDateTimeDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

void TXDateTimeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const QFontMetricsF metrics(option.font);
    const Texts texts = fitted(textsOf(index, option.locale), option.rect.width(), metrics);
    painter->save();
    prepare(*painter, option, index);
    painter->drawText(option.rect, Qt::AlignLeft | Qt::AlignVCenter, texts.date);
    if (!texts.time.isEmpty()) {
        painter->drawText(option.rect, Qt::AlignRight | Qt::AlignVCenter, texts.time);
    }
    painter->restore();
}

QSize TXDateTimeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    const Texts texts = textsOf(index, option.locale);
    return sizeOf(kMargin + texts.date + kBlank + texts.time + kMargin, QFontMetricsF(option.font));
}
