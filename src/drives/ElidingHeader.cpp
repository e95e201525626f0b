#include "ElidingHeader.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionHeader>

ElidingHeader::ElidingHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setStretchLastSection(true);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ElidingHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    const int room = sectionSize(logicalIndex) - 2 * margin;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}
