#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT TXTriggerEventWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TXTriggerEventWidget(QWidget *parent = nullptr);
};
