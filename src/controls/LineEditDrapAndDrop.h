#pragma once

#include "TXGUICommonExport.h"

#include <QLineEdit>

class TXGUICOMMON_EXPORT LineEditDrapAndDrop : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEditDrapAndDrop(QWidget *parent = nullptr);
};
