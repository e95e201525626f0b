#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>

class TXGUICOMMON_EXPORT RotationLabel : public QLabel
{
    Q_OBJECT

public:
    explicit RotationLabel(QWidget *parent = nullptr);
};
