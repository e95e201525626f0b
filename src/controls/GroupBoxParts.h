#pragma once

#include <QFont>
#include <QList>
#include <QPointer>
#include <QWidget>

/// What the group boxes with a bold title share.
namespace GroupBoxParts {

/// The direct children that are widgets, in the order in which they came. A pointer goes null with
/// its widget: what is done to one child may make a host delete the next.
inline QList<QPointer<QWidget>> childrenOf(const QWidget &box)
{
    const auto children = box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return {children.cbegin(), children.cend()};
}

/// Gives the widget its own font with this weight, all else of it unchanged.
inline void setWeight(QWidget *widget, QFont::Weight weight)
{
    QFont font = widget->font();
    font.setWeight(weight);
    widget->setFont(font);
}

} // namespace GroupBoxParts
