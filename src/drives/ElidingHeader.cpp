#include "ElidingHeader.h"

#include <QAbstractItemModel>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionHeader>
#include <QToolTip>

ElidingHeader::ElidingHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

bool ElidingHeader::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip) {
        return QHeaderView::viewportEvent(event);
    }
    const auto *help = static_cast<QHelpEvent *>(event);
    const int section = logicalIndexAt(help->pos());
    QString text;
    if (model() && section >= 0) {
        QStyleOptionHeader shown;
        initStyleOption(&shown);
        shown.section = section;
        initStyleOptionForIndex(&shown, section);
        const QString whole = model()->headerData(section, orientation()).toString();
        text = shown.text == whole ? QString() : whole.toHtmlEscaped();
    }
    // An empty text takes away a tooltip of another section.
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

void ElidingHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    const int room = sectionSize(logicalIndex) - 2 * margin;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}
