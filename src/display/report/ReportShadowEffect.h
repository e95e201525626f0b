#pragma once

#include "TXGUICommonExport.h"

#include <QGraphicsDropShadowEffect>

/// The soft grey shadow of report items.
///
/// On the screen it is Qt's drop shadow. On paper the item stays what it is, text and lines, and
/// only the shadow below it is a picture, a small one: Qt's own effect would turn the page into
/// one.
class TXGUICOMMON_PRIVATE_EXPORT ReportShadowEffect : public QGraphicsDropShadowEffect
{
    Q_OBJECT

public:
    explicit ReportShadowEffect(QObject *parent = nullptr);
};
