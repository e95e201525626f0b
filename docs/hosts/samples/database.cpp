#include "Samples.h"

#include <TXDBNavWidget.h>
#include <TXSqlTableModel.h>

#include <QTableView>
#include <QVBoxLayout>

//! [pages]
QWidget *makeMeasurementView(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *model = new TXSqlTableModel(page);
    model->setTable("measurements");
    model->limit = 100;
    model->setSort(0, Qt::AscendingOrder);
    model->select();

    auto *table = new QTableView(page);
    table->setModel(model);
    auto *navigator = new TXDBNavWidget(page);
    navigator->setModel(model);

    auto *rows = new QVBoxLayout(page);
    rows->addWidget(table);
    rows->addWidget(navigator);
    return page;
}
//! [pages]
