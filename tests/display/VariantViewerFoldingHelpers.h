#pragma once

#include "TXVariantViewer.h"

#include <QLabel>
#include <QLayout>

/// What is found in a viewer of a variant, be it open or closed.
namespace FoldingTest {

/// What the label says, or that of the viewer.
inline QString text(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label != nullptr ? label->text() : widget->findChild<QLabel *>()->text();
}

/// The text of the label of a key.
inline QString key(const QString &name)
{
    return QStringLiteral("<span style=\"font-family: monospace\">") + name
        + QStringLiteral(": </span>");
}

/// The text of the label of a closed viewer.
inline QString line(const QVariant &value, bool preview = true)
{
    return QStringLiteral("<span style=\"font-family: monospace; overflow: hidden\">")
        + TXVariantViewer::variantToHtml(value, preview) + QStringLiteral("</span>");
}

/// What stands in the layout of the viewer, in order.
inline QList<QWidget *> entries(const QWidget &viewer)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < viewer.layout()->count(); ++i) {
        widgets.append(viewer.layout()->itemAt(i)->widget());
    }
    return widgets;
}

/// The viewer at a place among the entries.
inline TXVariantViewer *child(const QWidget &viewer, int place)
{
    return qobject_cast<TXVariantViewer *>(entries(viewer).value(place));
}

} // namespace FoldingTest
