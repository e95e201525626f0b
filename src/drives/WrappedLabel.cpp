#include "WrappedLabel.h"

#include "ClippedText.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>

#include <cmath>

namespace {

constexpr int kWidestCharacters = 50;
// Laying out a text takes a time that grows with its length.
constexpr qsizetype kLongestCharacters = 1000;

} // namespace

QSize WrappedLabel::sizeHint() const
{
    QTextLayout layout;
    const QSizeF size = layOut(&layout, kWidestCharacters * fontMetrics().averageCharWidth());
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

void WrappedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QTextLayout layout;
    const QSizeF size = layOut(&layout, width());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, QPointF(0, qMax(0.0, (height() - size.height()) / 2)));
}

QString WrappedLabel::shownText() const
{
    QString shown = ClippedText::clipped(text(), kLongestCharacters);
    return shown.replace(u'\n', QChar::LineSeparator);
}

QSizeF WrappedLabel::layOut(QTextLayout *layout, qreal width) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)
                        | Qt::AlignAbsolute);
    layout->setTextOption(option);
    layout->setFont(font());
    layout->setText(shownText());
    qreal height = 0;
    qreal widest = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(qMax(1.0, width));
        line.setPosition(QPointF(0, height));
        height += line.height();
        widest = qMax(widest, line.naturalTextWidth());
    }
    layout->endLayout();
    return {widest, qMax(height, static_cast<qreal>(fontMetrics().height()))};
}
