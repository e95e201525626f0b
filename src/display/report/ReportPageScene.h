#pragma once

#include "TXGUICommonExport.h"
#include "TXGraphicsScene.h"

/// The scene that one page is drawn on, to be rendered once.
///
/// It looks like any TXGraphicsScene and is rendered sooner. A scene of Qt's saves the painter's
/// state before each item, which for the cells of a table costs more than the items do. Here items
/// that set all they paint with and leave nothing else behind follow one another without that:
/// rectangles, ellipses, lines and texts that have no effect, no child and nothing special about
/// them. All others are left to Qt.
class TXGUICOMMON_PRIVATE_EXPORT ReportPageScene : public TXGraphicsScene
{
public:
    ReportPageScene();

protected:
    void drawItems(QPainter *painter, int numItems, QGraphicsItem *items[],
                   const QStyleOptionGraphicsItem options[], QWidget *widget) override;
};
