#pragma once

#include "TXGUICommonExport.h"

#include <QWidget>

class TXGUICOMMON_EXPORT WaitWidget : public QWidget
{
    Q_OBJECT

public:
    explicit WaitWidget(QWidget *parent = nullptr);
    static WaitWidget *popUp(QWidget *parent, int size);
    void initWaitWidget();
    void startAnimation();
    void stopAnimation();
};
