#include "WidgetReplacement.h"

#include <QLayout>
#include <QWidget>

namespace {

bool isReachedByTab(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) != 0;
}

QWidget *controlBefore(QWidget *next, const QWidget *replacement)
{
    QWidget *before = next->previousInFocusChain();
    while (before != next && (!isReachedByTab(before) || replacement->isAncestorOf(before))) {
        before = before->previousInFocusChain();
    }
    return before;
}

} // namespace

void replaceWidget(QWidget *old, QWidget *replacement, QWidget *next)
{
    replacement->setHidden(old->isHidden());
    delete old->parentWidget()->layout()->replaceWidget(old, replacement);
    delete old;
    QWidget *before = controlBefore(next, replacement);
    const auto widgets = replacement->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isReachedByTab(widget)) {
            QWidget::setTabOrder(before, widget);
            before = widget;
        }
    }
}
