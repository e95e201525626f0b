#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT TXCheckForUpdateConfigWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TXCheckForUpdateConfigWidget(QWidget *parent = nullptr);
};
