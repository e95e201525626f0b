#include "Samples.h"

#include <DoubleSpinBoxWithSliderWidget.h>
#include <TXColorSquareWidget.h>
#include <TXSelectionItemWidget.h>
#include <TXWidgetListWidget.h>

#include <QBrush>
#include <QStandardItemModel>

//! [value]
DoubleSpinBoxWithSliderWidget *makeToleranceField(QWidget *parent)
{
    auto *field = new DoubleSpinBoxWithSliderWidget(parent);
    field->setDataName("Tolerance");
    field->setDecimals(1);
    field->setMinimumValue(0.5);
    field->setMaximumValue(20);
    field->setValue(2);
    return field;
}
//! [value]

//! [selection]
TXSelectionItemWidget *makePresetBar(const QList<QString> &presets, QWidget *parent)
{
    auto *bar = new TXSelectionItemWidget(parent);
    auto *model = new QStandardItemModel(bar);
    for (const QString &preset : presets) {
        auto *item = new QStandardItem(preset);
        item->setData(preset, Qt::UserRole);
        model->appendRow(item);
    }
    bar->setItemBasedName("Preset");
    bar->setModel(model, nullptr, nullptr);
    QObject::connect(bar, &TXSelectionItemWidget::removeItemHasBeenRequest, model, [bar, model] {
        const QVariant value = bar->getSelectedItemUserData();
        const QModelIndexList found = model->match(model->index(0, 0), Qt::UserRole, value, 1);
        for (const QModelIndex &index : found) {
            model->removeRow(index.row());
        }
    });
    return bar;
}
//! [selection]

//! [tiles]
TXWidgetListWidget *makeSwatches(const QList<QColor> &colours, QWidget *parent)
{
    auto *list = new TXWidgetListWidget(parent);
    for (const QColor &colour : colours) {
        auto *swatch = new TXColorSquareWidget;
        swatch->setBrush(colour);
        list->append(swatch);
    }
    return list;
}
//! [tiles]
