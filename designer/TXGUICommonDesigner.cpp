#include "TXGUICommonDesigner.h"

#include "DesignerWidget.h"

TXGUICommonDesigner::TXGUICommonDesigner(QObject *parent)
    : QObject(parent)
{
    add(tr("TXGUICommon Controls"), controlWidgets());
    add(tr("TXGUICommon Containers"), containerWidgets());
    add(tr("TXGUICommon Display"), displayWidgets());
    add(tr("TXGUICommon Panels"), panelWidgets());
}

QList<QDesignerCustomWidgetInterface *> TXGUICommonDesigner::customWidgets() const
{
    return widgets;
}

void TXGUICommonDesigner::add(const QString &group, const QList<WidgetRow> &rows)
{
    for (const WidgetRow &row : rows) {
        widgets.append(new DesignerWidget(group, row, this));
    }
}
