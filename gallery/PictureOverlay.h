#pragma once

#include <QPointF>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>

class PatchNumbers;
class QPainter;

/// What the page paints over the pictures of a viewer, a function for TXImageViewer::setOverlay():
/// in each zone a caption, and on those of the chart outlines and numbers of the patches.
///
/// Painting it again at the same scale is cheap, as it is done at each move of the mouse.
class PictureOverlay
{
public:
    /// Without a caption for a zone it gets none.
    PictureOverlay(const QWidget *viewer, QStringList captions, bool isChart);

    void operator()(QPainter *painter, int zone, bool isInPicture, QPointF origin,
                    double scale) const;

private:
    void paintPatches(QPainter *painter, const QPointF &origin, double scale) const;
    void paintCaption(QPainter *painter, int zone) const;

    QPointer<const QWidget> viewer;
    QStringList captions;
    /// Shared with all copies: a viewer makes one at each paint. Null but on the chart.
    std::shared_ptr<PatchNumbers> numbers;
};
