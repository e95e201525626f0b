#pragma once

#include "TXGUICommonExport.h"

#include <QLayout>

class TXGUICOMMON_EXPORT QSingleItemSquareLayout : public QLayout
{
    Q_OBJECT

public:
    QSingleItemSquareLayout(QWidget *parent, int spacing);
    void addItem(QLayoutItem *newItem) override;
    void addWidget(QWidget *widget);
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QSize sizeHint() const override;
};
