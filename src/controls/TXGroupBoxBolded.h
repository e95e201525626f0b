#pragma once

#include "TXGUICommonExport.h"

#include <QGroupBox>

class TXGUICOMMON_EXPORT TXGroupBoxBolded : public QGroupBox
{
    Q_OBJECT

public:
    explicit TXGroupBoxBolded(QWidget *parent = nullptr);
    void setBoldTitle(bool isBold);
};
