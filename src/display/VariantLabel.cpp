#include "VariantLabel.h"

#include "AccessibleInterfaces.h"
#include "ColouredLineLayout.h"
#include "FocusFrame.h"
#include "RichLine.h"
#include "VariantLabelAccessible.h"

#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

namespace {

/// Whether the two are one text in memory. To compare the characters would cost their number.
bool isSame(const QString &one, const QString &other)
{
    return one.constData() == other.constData() && one.size() == other.size();
}

} // namespace

VariantLabel::VariantLabel(QWidget *parent)
    : QLabel(parent)
{
    AccessibleInterfaces::install<VariantLabel, VariantLabelAccessible>();
    // With this format QLabel itself does nothing with the text.
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
}

VariantLabel::~VariantLabel() = default;

void VariantLabel::setFocusOwner(const QWidget *owner)
{
    focusOwner = owner;
}

void VariantLabel::ensureMeasured() const
{
    const QString markup = text();
    const bool isMeasured = line != nullptr || richLine != nullptr;
    if (isMeasured && isSame(markup, measuredText) && font() == measuredFont) {
        return;
    }
    measuredText = markup;
    measuredFont = font();
    line.reset();
    richLine.reset();
    ColouredLine parsed(markup);
    if (RichLine::isWanted(parsed, markup)) {
        richLine = std::make_unique<RichLine>(markup, measuredFont);
    } else {
        line = std::make_unique<ColouredLineLayout>(std::move(parsed), measuredFont);
    }
}

QString VariantLabel::visibleText(qsizetype maximum) const
{
    ensureMeasured();
    return (richLine != nullptr ? richLine->text() : line->line().text()).left(maximum);
}

QSize VariantLabel::textSize() const
{
    ensureMeasured();
    const QSizeF size =
        richLine != nullptr ? richLine->size() : QSizeF(line->width(), line->height());
    return {qMin(qCeil(size.width()), QWIDGETSIZE_MAX), qCeil(size.height())};
}

QSize VariantLabel::sizeHint() const
{
    ensurePolished();
    QSize extra(2 * margin(), 2 * margin());
    int indentation = indent();
    if (indentation < 0 && frameWidth() > 0) {
        indentation = fontMetrics().horizontalAdvance(u'x') - 2 * margin();
    }
    if (indentation > 0) {
        if (alignment() & (Qt::AlignLeft | Qt::AlignRight)) {
            extra.rwidth() += indentation;
        }
        if (alignment() & (Qt::AlignTop | Qt::AlignBottom)) {
            extra.rheight() += indentation;
        }
    }
    const QMargins around = contentsMargins();
    extra += QSize(around.left() + around.right(), around.top() + around.bottom());
    return (textSize() + extra)
        .boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))
        .expandedTo(minimumSize());
}

QSize VariantLabel::minimumSizeHint() const
{
    return sizeHint();
}

QRect VariantLabel::textRoom() const
{
    QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    int indentation = indent();
    if (indentation < 0 && frameWidth() > 0) {
        indentation = fontMetrics().horizontalAdvance(u'x') / 2 - margin();
    }
    if (indentation > 0) {
        room.adjust(alignment() & Qt::AlignLeft ? indentation : 0,
                    alignment() & Qt::AlignTop ? indentation : 0,
                    alignment() & Qt::AlignRight ? -indentation : 0,
                    alignment() & Qt::AlignBottom ? -indentation : 0);
    }
    return room;
}

QPalette VariantLabel::textPalette() const
{
    QPalette colours = palette();
    if (isEnabled() && foregroundRole() != QPalette::Text) {
        colours.setColor(QPalette::Text, colours.color(foregroundRole()));
    }
    return colours;
}

void VariantLabel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawFrame(&painter);
    paintText(painter, event->rect());
    if (focusOwner != nullptr) {
        FocusFrame::paint(painter, *focusOwner, rect());
    }
}

void VariantLabel::paintText(QPainter &painter, const QRect &visible) const
{
    ensureMeasured();
    QRectF room = textRoom();
    const qreal height = richLine != nullptr ? richLine->size().height() : line->height();
    const qreal spare = qMax(room.height() - height, 0.0);
    if (alignment() & Qt::AlignVCenter) {
        room.translate(0, spare / 2);
    } else if (alignment() & Qt::AlignBottom) {
        room.translate(0, spare);
    }
    room = room.toAlignedRect();
    painter.save();
    painter.setClipRect(room);
    if (richLine != nullptr) {
        richLine->draw(painter, room.topLeft(), textRoom().width(), alignment(), textPalette());
    } else {
        paintLine(painter, room, visible);
    }
    painter.restore();
}

void VariantLabel::paintLine(QPainter &painter, const QRectF &room, const QRect &visible) const
{
    QPointF start = room.topLeft();
    const qreal spare = qMax(textRoom().width() - line->advance(), 0.0);
    if (alignment() & Qt::AlignRight) {
        start.rx() += spare;
    } else if (alignment() & Qt::AlignHCenter) {
        start.rx() += spare / 2;
    }
    painter.setPen(textPalette().color(QPalette::Text));
    line->draw(painter, start, visible.left() - start.x(), visible.right() + 1 - start.x());
}
