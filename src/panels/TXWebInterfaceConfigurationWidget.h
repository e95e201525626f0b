#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT TXWebInterfaceConfigurationWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TXWebInterfaceConfigurationWidget(QWidget *parent = nullptr);
};
