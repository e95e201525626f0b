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
    /// Grey, reaching 40 units to all sides, enabled. A parent owns the effect, as an item does.
    explicit ReportShadowEffect(QObject *parent = nullptr);

protected:
    /// Draws the shadow and then the item. An item larger than any screen is drawn as on paper. On
    /// paper a unit of the shadow is a point, whatever scale the item is drawn in, just as it is a
    /// pixel on the screen.
    void draw(QPainter *painter) override;
};
