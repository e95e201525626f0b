#pragma once

#include "TXGUICommonExport.h"

#include <QGroupBox>

class TXGUICOMMON_EXPORT TXUnfolderWidget : public QGroupBox
{
    Q_OBJECT

public:
    explicit TXUnfolderWidget(QWidget *parent = nullptr);
};
