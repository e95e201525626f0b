#include "VariantLabel.h"

#include "AccessibleInterfaces.h"
#include "ClippedText.h"
#include "ColouredLineLayout.h"
#include "FocusFrame.h"
#include "RichLine.h"
#include "VariantLabelAccessible.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QtMath>

#include <utility>

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
    if (isMeasured && isSame(markup, measuredText) && font() == measuredFont
        && logicalDpiY() == measuredDpi) {
        return;
    }
    measuredText = markup;
    measuredFont = QFont(font(), this);
    measuredDpi = logicalDpiY();
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
    const QString words = richLine != nullptr ? richLine->text() : line->line().text();
    return ClippedText::start(words, maximum);
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
    // QLabel itself asks for twice the indent that it then paints with.
    if (indentation < 0 && frameWidth() > 0) {
        indentation = fontMetrics().horizontalAdvance(u'x') - 2 * margin();
    }
    if (indentation > 0) {
        if (visualAlignment() & (Qt::AlignLeft | Qt::AlignRight)) {
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

bool VariantLabel::hasHeightForWidth() const
{
    return false;
}

int VariantLabel::heightForWidth(int) const
{
    return sizeHint().height();
}

/// With a side also where none is set; the line always runs from left to right.
Qt::Alignment VariantLabel::visualAlignment() const
{
    return QStyle::visualAlignment(Qt::LeftToRight, alignment());
}

QRect VariantLabel::textRoom() const
{
    const Qt::Alignment side = visualAlignment();
    QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    int indentation = indent();
    if (indentation < 0 && frameWidth() > 0) {
        indentation = fontMetrics().horizontalAdvance(u'x') / 2 - margin();
    }
    if (indentation > 0) {
        room.adjust(side & Qt::AlignLeft ? indentation : 0, side & Qt::AlignTop ? indentation : 0,
                    side & Qt::AlignRight ? -indentation : 0,
                    side & Qt::AlignBottom ? -indentation : 0);
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

bool VariantLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal) {
        updateGeometry();
    }
    return QLabel::event(event);
}

void VariantLabel::hideEvent(QHideEvent *event)
{
    if (line != nullptr) {
        line->forgetPainted();
    }
    QLabel::hideEvent(event);
}

// With any of these, QLabel would make a document of the text once it has a text interaction.

void VariantLabel::mousePressEvent(QMouseEvent *event)
{
    event->ignore();
}

void VariantLabel::mouseMoveEvent(QMouseEvent *event)
{
    event->ignore();
}

void VariantLabel::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
}

void VariantLabel::contextMenuEvent(QContextMenuEvent *event)
{
    event->ignore();
}

void VariantLabel::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}

void VariantLabel::focusInEvent(QFocusEvent *) { }

void VariantLabel::focusOutEvent(QFocusEvent *) { }

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
        richLine->draw(painter, room.topLeft(), textRoom().width(), alignment(), textPalette(),
                       visible);
    } else {
        paintLine(painter, room, visible);
    }
    painter.restore();
}

void VariantLabel::paintLine(QPainter &painter, const QRectF &room, const QRect &visible) const
{
    QPointF start = room.topLeft();
    const qreal spare = qMax(textRoom().width() - line->advance(), 0.0);
    if (visualAlignment() & Qt::AlignRight) {
        start.rx() += spare;
    } else if (visualAlignment() & Qt::AlignHCenter) {
        start.rx() += spare / 2;
    }
    painter.setPen(textPalette().color(QPalette::Text));
    line->draw(painter, start, visible.left() - start.x(), visible.right() + 1 - start.x());
}
