#include "PageListDelegate.h"

#include "FocusColour.h"

#include <QPainter>
#include <QtMath>

namespace {

constexpr int kTextMargin = 16;
constexpr int kVerticalPadding = 8;
constexpr qreal kCornerRadius = 6;
constexpr qreal kGap = 1.5;
constexpr qreal kBarWidth = 3;
constexpr qreal kBarInset = 7;

QColor withAlpha(QColor colour, qreal alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

void paintCurrent(QPainter &painter, const QRectF &rect, const QStyleOptionViewItem &option)
{
    const QColor accent = option.palette.color(QPalette::Highlight);
    painter.setBrush(withAlpha(accent, 0.16));
    painter.drawRoundedRect(rect, kCornerRadius, kCornerRadius);

    QRectF bar = rect.adjusted(0, kBarInset, 0, -kBarInset);
    bar.setWidth(kBarWidth);
    if (option.direction == Qt::RightToLeft) {
        bar.moveRight(rect.right());
    }
    painter.setBrush(accent);
    painter.drawRoundedRect(bar, kBarWidth / 2, kBarWidth / 2);
}

void paintFocus(QPainter &painter, const QRectF &rect, const QStyleOptionViewItem &option)
{
    painter.setPen(QPen(focusColour(option.palette), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius, kCornerRadius);
}

void paintBackground(QPainter &painter, const QStyleOptionViewItem &option)
{
    const QRectF rect = QRectF(option.rect).adjusted(0, kGap, 0, -kGap);
    painter.setPen(Qt::NoPen);
    if (option.state.testFlag(QStyle::State_Selected)) {
        paintCurrent(painter, rect, option);
    } else if (option.state.testFlag(QStyle::State_MouseOver)) {
        painter.setBrush(withAlpha(option.palette.color(QPalette::WindowText), 0.06));
        painter.drawRoundedRect(rect, kCornerRadius, kCornerRadius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)
        && option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        paintFocus(painter, rect, option);
    }
}

} // namespace

PageListDelegate::PageListDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

void PageListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintBackground(*painter, option);

    QFont font = option.font;
    if (option.state.testFlag(QStyle::State_Selected)) {
        font.setWeight(QFont::DemiBold);
    }
    painter->setFont(font);
    painter->setPen(option.palette.color(QPalette::WindowText));
    const QRect textRect = option.rect.adjusted(kTextMargin, 0, -kTextMargin, 0);
    const QString text = QFontMetrics(font).elidedText(index.data(Qt::DisplayRole).toString(),
                                                       Qt::ElideRight, textRect.width());
    painter->drawText(textRect, int(Qt::AlignVCenter | Qt::AlignLeading), text);
    painter->restore();
}

QSize PageListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QFont font = option.font;
    font.setWeight(QFont::DemiBold);
    // Up to the next pixel: a text that needs a part of it would end with an ellipsis.
    const QFontMetricsF metrics(font);
    const int textWidth = qCeil(metrics.horizontalAdvance(index.data(Qt::DisplayRole).toString()));
    return {textWidth + 2 * kTextMargin, qCeil(metrics.height()) + 2 * kVerticalPadding};
}
