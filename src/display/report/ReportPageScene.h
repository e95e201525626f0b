#pragma once

#include "TXGUICommonExport.h"
#include "TXGraphicsScene.h"

#include <QHash>
#include <QPixmap>
#include <QString>

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
    /// Pictures as a scene keeps them: by the pixmap they came from, and by size.
    using Pictures = QHash<qint64, QHash<QString, QPixmap>>;

    /// A scene that goes on with the pictures of earlier pages, so that what comes again, as a logo
    /// does, is resampled once and is the same picture for a PDF. As long as the scene lives it
    /// holds them; afterwards they are back, with its own. Above 64 MB it gives none back.
    explicit ReportPageScene(Pictures *pictures);
    ~ReportPageScene() override;

protected:
    void drawItems(QPainter *painter, int numItems, QGraphicsItem *items[],
                   const QStyleOptionGraphicsItem options[], QWidget *widget) override;

private:
    Pictures *pictures;
};
