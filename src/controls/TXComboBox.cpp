#include "TXComboBox.h"

#include <QAbstractItemModel>

TXComboBox::TXComboBox(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, SIGNAL(currentIndexChanged(int)), this, SLOT(currentIndexHasBeenChanged(int)));
    baseToolTip = toolTip();
}

void TXComboBox::currentIndexHasBeenChanged(int index)
{
    const QModelIndex item = model() ? model()->index(index, 0, rootModelIndex()) : QModelIndex();
    if (!item.isValid()) {
        return;
    }
    const QString text = item.data(Qt::ToolTipRole).toString();
    setToolTip(text.isEmpty() ? baseToolTip : text);
}
