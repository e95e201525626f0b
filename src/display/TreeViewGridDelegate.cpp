#include "TreeViewGridDelegate.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QStyleOptionViewItem>

#include <array>

namespace {

constexpr double kLineWidth = 1.0;
/// How far the line at the bottom reaches to the left of the item, below the branches.
constexpr double kBelowBranches = 200.0;

std::array<QLineF, 2> gridLines(const QRect &item)
{
    const double right = item.right();
    const double bottom = item.bottom();
    return {{{right, double(item.top()), right, bottom},
             {item.left() - kBelowBranches, bottom, right, bottom}}};
}

} // namespace

TreeViewGridDelegate::TreeViewGridDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{ }

void TreeViewGridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const std::array<QLineF, 2> lines = gridLines(option.rect);
    const QPen before = painter->pen();
    painter->setPen(QPen(Qt::lightGray, kLineWidth));
    painter->drawLines(lines.data(), int(lines.size()));
    // A view paints the next cell with the same painter, and what it draws there may use its pen.
    painter->setPen(before);
}
