#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT TXSelectDefaultEncodingWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TXSelectDefaultEncodingWidget(QWidget *parent = nullptr);
};
