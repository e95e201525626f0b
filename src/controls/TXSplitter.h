#pragma once

#include "TXGUICommonExport.h"

#include <QSplitter>

class TXGUICOMMON_EXPORT TXSplitter : public QSplitter
{
    Q_OBJECT

public:
    explicit TXSplitter(QWidget *parent = nullptr);
};
