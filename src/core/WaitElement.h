#pragma once

#include "TXGUICommonExport.h"

#include <QObject>

class TXGUICOMMON_EXPORT WaitElement : public QObject
{
    Q_OBJECT
};
