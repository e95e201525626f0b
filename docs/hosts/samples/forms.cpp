#include "Samples.h"

#include "ui_ScanSettings.h"

#include <QWidget>

//! [form]
QWidget *makeScanSettings(QWidget *parent)
{
    auto *page = new QWidget(parent);
    Ui::ScanSettings ui;
    ui.setupUi(page);
    QObject::connect(ui.averageSwitch, &TXSwitchSlider::clicked, ui.passesBox,
                     &QWidget::setEnabled);
    return page;
}
//! [form]
