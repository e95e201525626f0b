#include "WaitWidgetAccessible.h"

#include "WaitWidget.h"

WaitWidgetAccessible::WaitWidgetAccessible(WaitWidget *spinner)
    : QAccessibleWidget(spinner, QAccessible::Animation)
{ }

QString WaitWidgetAccessible::text(QAccessible::Text kind) const
{
    const QString ofWidget = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && ofWidget.isEmpty() ? WaitWidget::tr("Busy") : ofWidget;
}

QAccessible::State WaitWidgetAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.busy = static_cast<const WaitWidget *>(object())->isBusy();
    return state;
}
