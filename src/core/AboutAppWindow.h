#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>

class TXGUICOMMON_EXPORT AboutAppWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AboutAppWindow(QWidget *parent = nullptr);
};
