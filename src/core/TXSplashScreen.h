#pragma once

#include "TXGUICommonExport.h"

#include <QSplashScreen>

class TXGUICOMMON_EXPORT TXSplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    static QPixmap pixmap(int product, const QString &defaultPath);
    TXSplashScreen(int product, const QString &defaultPath, Qt::WindowFlags flags = {});
};
